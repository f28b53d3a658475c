#include "rfm_CellText.h"
#include "rfm_Database.h"
#include "rfm_RowLayout.h"
#include "rfm_Statement.h"
#include "rfm_StoreText.h"
#include "rfm_TextLine.h"

#include <algorithm>
#include <limits>
#include <map>

namespace
{
/// Values longer than this do not push the ones behind them aside in every row.
constexpr std::size_t widestColumn = 40;
constexpr std::string_view gap = "  ";
/// How NULL is written.
constexpr const char* nothing = "-";

/// Characters that a text of UTF-8 takes.
std::size_t Width(std::string_view text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char letter) { return (letter & 0xC0) != 0x80; }));
}

/// One row as it is stored.
struct Row
{
    const rfm_Cell* cells; ///< in the order of the layout
    rfm_Cell check;
    bool fits; ///< whether it has no check number or the right one
};

class Writer
{
public:
    Writer(rfm_Database& database, const std::function<void(std::string_view)>& out,
           const rfm_StoreTextOptions& options)
        : database(database), out(out), options(options)
    {}

    void Write()
    {
        WriteOwn(rfm_RowLayout::Roots(), rfm_TableForm::Roots().SqlToRead());
        ReadCatalogueChecks();
        for (const rfm_TableInfo& table : database.Tables())
            WriteTable(rfm_RowLayout::Of(table), rfm_TableForm::Of(table).SqlToRead(), Heading(table));
        WriteOwn(rfm_RowLayout::Elements(), rfm_Elements::SqlToReadAll());
        WriteOwn(rfm_RowLayout::Arrays(), rfm_TableForm::Arrays().SqlToRead());
        for (const cow_String& name : database.ForeignParts())
            out("\n-- " + rfm_InQuotes(name.View()) + ": no part of a store, left out\n");
    }

    long Damaged() const { return damaged; }

private:
    using Visit = std::function<void(const Row&)>;

    /// Calls `visit` with each row of a table, in ascending order of the keys.
    void ForEachRow(const rfm_RowLayout& layout, const std::string& sql, const Visit& visit)
    {
        rfm_Statement statement(database, sql, layout.table);
        if (layout.keyWidth == 1)
            statement.Bind(1, std::numeric_limits<std::int64_t>::min());
        std::vector<rfm_Cell> cells(layout.kinds.size());
        std::vector<std::int64_t> lastKey;
        while (statement.Step())
        {
            for (std::size_t i = 0; i < cells.size(); ++i)
                cells[i] = statement.Column(static_cast<int>(i));
            RequireOrder(layout, cells, lastKey);
            const rfm_Cell check = statement.Column(static_cast<int>(cells.size()));
            const bool fits = check.IsNull() || (check.Is(rfm_CellKind::Integer) &&
                                                 check.integer == rfm_CheckOf(layout, cells.data()));
            visit({cells.data(), check, fits});
        }
    }

    /// In a damaged tree rows can stand out of order, and one could go round for ever.
    void RequireOrder(const rfm_RowLayout& layout, const std::vector<rfm_Cell>& cells,
                      std::vector<std::int64_t>& lastKey)
    {
        std::vector<std::int64_t> key;
        for (int i = 0; i < layout.keyWidth; ++i)
        {
            const rfm_Cell& cell = cells[static_cast<std::size_t>(i)];
            if (!cell.Is(rfm_CellKind::Integer))
                database.Raise("Expected a whole number in the key of each row.", layout.table);
            key.push_back(cell.integer);
        }
        if (!lastKey.empty() && key <= lastKey)
            database.Raise("The rows are not in ascending order: the file is damaged.", layout.table, key[0]);
        lastKey = std::move(key);
    }

    void ReadCatalogueChecks()
    {
        rfm_RowLayout layout{.table = rfm_TableForm::Catalogue().name,
                             .kinds = {},
                             .keyWidth = 1,
                             .checkSeed = rfm_TableForm::Catalogue().checkSeed,
                             .fields = {}};
        layout.kinds.resize(rfm_TableForm::Catalogue().columns.size() + 1);
        ForEachRow(layout, rfm_TableForm::Catalogue().SqlToRead(),
                   [this](const Row& row) { catalogueChecks[row.cells[0].integer] = CheckText(row); });
    }

    std::string Heading(const rfm_TableInfo& table)
    {
        const std::string name(table.name.View());
        std::string text = rfm_TextLine::IsPlainName(name) ? name : rfm_InQuotes(name);
        text += ": class " + rfm_TextOfClassId(table.classId) + ", version " + std::to_string(table.version);
        if (table.baseClassId != 1)
            text += ", base " + rfm_TextOfClassId(table.baseClassId);
        if (!rfm_RowLayout::Of(table).hasUids)
            text += ", no uids";
        if (const std::string& check = catalogueChecks[table.classId]; !check.empty())
            text += ", " + check;
        return text;
    }

    /// What tells a row's check number where it is not the one that the row should have.
    std::string CheckText(const Row& row) const
    {
        if (!options.withChecks || (row.fits && !row.check.IsNull()))
            return "";
        return "check=" + rfm_TextOf(row.check);
    }

    void WriteOwn(const rfm_RowLayout& layout, const std::string& sql)
    {
        if (database.HasTable(layout.table))
            WriteTable(layout, sql, "");
    }

    /// A table of the store itself has no heading but its name, and is left out if it is empty.
    void WriteTable(const rfm_RowLayout& layout, const std::string& sql, const std::string& heading)
    {
        Columns columns(layout, options);
        long count = 0;
        ForEachRow(layout, sql,
                   [&](const Row& row)
                   {
                       columns.Measure(row);
                       ++count;
                   });
        if (count == 0 && heading.empty())
            return;
        out((isFirst ? "" : "\n") + (heading.empty() ? std::string(layout.table.View()) : heading) + "  -- " +
            std::to_string(count) + (count == 1 ? " row\n" : " rows\n"));
        isFirst = false;
        out(columns.Titles() + '\n');
        ForEachRow(layout, sql, [&](const Row& row) { WriteRow(columns, row); });
    }

    /// The columns of a table, made wide enough for what stands in them.
    class Columns
    {
    public:
        Columns(const rfm_RowLayout& layout, const rfm_StoreTextOptions& options) : layout(layout)
        {
            if (layout.hasUids)
                uid = options.withUids ? UidColumn::Unneeded : UidColumn::Unwanted;
            for (const rfm_RowField& field : layout.fields)
            {
                widths.push_back(Width(field.title));
                isWanted.push_back(options.withEmptyColumns || field.cell < layout.keyWidth);
            }
        }

        void Measure(const Row& row)
        {
            if (uid == UidColumn::Unneeded && !HasMadeUpUid(row))
                uid = UidColumn::Written;
            for (std::size_t i = 0; i < widths.size(); ++i)
            {
                const std::string text = Text(row, layout.fields[i]);
                isWanted[i] = isWanted[i] || text != nothing;
                const std::size_t width = Width(text);
                if (width <= widestColumn)
                    widths[i] = std::max(widths[i], width);
            }
        }

        std::string Titles() const
        {
            return Line([this](std::size_t i) { return layout.fields[i].title; });
        }

        std::string Texts(const Row& row) const
        {
            return Line([this, &row](std::size_t i) { return Text(row, layout.fields[i]); });
        }

    private:
        enum class UidColumn
        {
            Written,
            Unneeded, ///< all of them so far are those that the text would be given anyway
            Unwanted
        };

        template <class TextAt>
        std::string Line(TextAt textAt) const
        {
            std::string line;
            std::size_t missing = 0;
            for (std::size_t i = 0; i < widths.size(); ++i)
            {
                if (!isWanted[i] ||
                    (uid != UidColumn::Written && layout.hasUids && layout.fields[i].cell == uidCell))
                    continue;
                const std::string text = textAt(i);
                line.append(missing, ' ').append(gap).append(text);
                missing = widths[i] - std::min(widths[i], Width(text));
            }
            return line;
        }

        bool HasMadeUpUid(const Row& row) const
        {
            const std::array<char, rfm_UidSize> madeUp =
                rfm_MadeUpUid(layout.checkSeed, row.cells[0].integer);
            return row.cells[uidCell].Is(rfm_CellKind::Blob) &&
                   row.cells[uidCell].View() == std::string_view(madeUp.data(), madeUp.size());
        }

        std::string Text(const Row& row, const rfm_RowField& field) const
        {
            const rfm_Cell& cell = row.cells[field.cell];
            switch (field.form)
            {
            case rfm_RowField::Form::ClassId:
                return ClassIdText(cell);
            case rfm_RowField::Form::Reference:
            {
                const rfm_Cell& oid = row.cells[field.cell + 1];
                const bool isAbsent = cell.IsNull() && oid.IsNull();
                return isAbsent ? nothing : ClassIdText(cell) + ':' + rfm_TextOf(oid);
            }
            case rfm_RowField::Form::Plain:
                break;
            }
            if (field.cell == layout.numbersCell)
            {
                if (const std::string numbers = NumbersText(row); !numbers.empty())
                    return numbers;
            }
            return rfm_TextOf(cell, layout.kinds[static_cast<std::size_t>(field.cell)]);
        }

        static std::string ClassIdText(const rfm_Cell& cell)
        {
            return cell.Is(rfm_CellKind::Integer) ? rfm_TextOfClassId(cell.integer) : rfm_TextOf(cell);
        }

        std::string NumbersText(const Row& row) const
        {
            const rfm_Cell& type = row.cells[layout.numbersCell - 2];
            const rfm_Cell& length = row.cells[layout.numbersCell - 1];
            const rfm_Cell& bytes = row.cells[layout.numbersCell];
            if (!type.Is(rfm_CellKind::Integer) || !length.Is(rfm_CellKind::Integer) ||
                !bytes.Is(rfm_CellKind::Blob))
                return "";
            return rfm_TextOfNumbers(type.integer, length.integer, bytes.View());
        }

        static constexpr int uidCell = 1;

        const rfm_RowLayout& layout;
        std::vector<std::size_t> widths;
        std::vector<bool> isWanted;
        UidColumn uid = UidColumn::Written;
    };

    void WriteRow(const Columns& columns, const Row& row)
    {
        std::string line = columns.Texts(row);
        if (const std::string check = CheckText(row); !check.empty())
            line.append(gap).append(check);
        if (!row.fits)
        {
            ++damaged;
            line.append(gap).append("-- damaged: the row does not fit its check number");
        }
        out(line + '\n');
    }

    rfm_Database& database;
    const std::function<void(std::string_view)>& out;
    rfm_StoreTextOptions options;
    std::map<std::int64_t, std::string> catalogueChecks;
    bool isFirst = true;
    long damaged = 0;
};
} // namespace

long rfm_WriteStoreText(rfm_Database& database, const std::function<void(std::string_view)>& out,
                        const rfm_StoreTextOptions& options)
{
    Writer writer(database, out, options);
    writer.Write();
    return writer.Damaged();
}

std::string rfm_StoreText(rfm_Database& database, const rfm_StoreTextOptions& options)
{
    std::string text;
    rfm_WriteStoreText(
        database, [&text](std::string_view piece) { text += piece; }, options);
    return text;
}
