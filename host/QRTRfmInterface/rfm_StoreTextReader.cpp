#include "rfm_CellText.h"
#include "rfm_Database.h"
#include "rfm_RowBatch.h"
#include "rfm_RowLayout.h"
#include "rfm_StoreText.h"
#include "rfm_TextLine.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <set>

namespace
{
constexpr std::int64_t greatestId = std::numeric_limits<std::uint32_t>::max();
/// Up to here every whole number is a double.
constexpr std::int64_t greatestWholeDouble = std::int64_t{1} << 53;

/// What a table is begun with.
struct Heading
{
    rfm_TableInfo table;
    rfm_Cell check; ///< unset unless the text gives one
    bool hasUids = true;
};

/// Takes `check=...`, if it comes next; else an unset cell.
rfm_Cell TakeCheck(rfm_TextLine& line)
{
    if (!line.Take("check"))
        return {};
    line.Expect("=");
    const std::size_t begin = line.Position();
    std::string bytes;
    const rfm_Cell check = line.TakeCell(bytes);
    if (!check.Is(rfm_CellKind::Integer) && !check.IsNull())
        line.Raise("expected a check number, or - for none", begin);
    return check;
}

std::string Titles(const rfm_RowLayout& layout)
{
    std::string titles;
    for (const rfm_RowField& field : layout.fields)
        titles += (titles.empty() ? "" : " ") + field.title;
    return titles;
}

/// The rows of one table.
class Rows
{
public:
    /// The text of the rows may leave out identities that the table has.
    Rows(rfm_Database& database, rfm_RowLayout layout, bool givesUids)
        : layout(std::move(layout)),
          batch(database, this->layout.table, static_cast<int>(this->layout.kinds.size()) + 1),
          cells(this->layout.kinds.size() + 1),
          bytes(this->layout.kinds.size())
    {
        if (givesUids)
            return;
        this->layout.hasUids = false;
        makesUids = true;
        this->layout.fields.erase(this->layout.fields.begin() + 1);
    }

    void Take(rfm_TextLine& line)
    {
        for (const rfm_RowField& field : layout.fields)
        {
            if (line.AtEnd())
                line.Raise("expected a value for " + field.title + ", for the columns are " + Titles(layout));
            TakeField(line, field);
            if (field.cell == layout.keyWidth - 1)
                RequireOrder(line);
        }
        rfm_Cell check = TakeCheck(line);
        if (!line.AtEnd())
            line.Raise("expected the end of the row, for the columns are " + Titles(layout));
        if (makesUids)
            MakeUid();
        cells.back() =
            check.Is(rfm_CellKind::Unset) ? rfm_Cell::Integer(rfm_CheckOf(layout, cells.data())) : check;
        batch.Add(cells.data());
    }

    void Flush() { batch.Flush(); }

private:
    void TakeField(rfm_TextLine& line, const rfm_RowField& field)
    {
        keyPosition = field.cell < layout.keyWidth ? line.Position() : keyPosition;
        if (field.form == rfm_RowField::Form::Reference)
            TakeReference(line, field);
        else if (field.cell == layout.numbersCell && line.Next() == '[')
            TakeNumbers(line);
        else
            TakeCell(line, field.cell);
    }

    void TakeReference(rfm_TextLine& line, const rfm_RowField& field)
    {
        TakeCell(line, field.cell);
        if (line.Take(":"))
            return TakeCell(line, field.cell + 1);
        if (!At(field.cell).IsNull())
            line.Raise("expected : and the row of the object, as in 0x230001:7");
        At(field.cell + 1) = rfm_Cell::Null();
    }

    void TakeNumbers(rfm_TextLine& line)
    {
        const std::size_t begin = line.Position();
        const rfm_Cell& type = At(layout.numbersCell - 2);
        const rfm_Cell& length = At(layout.numbersCell - 1);
        const int size = type.Is(rfm_CellKind::Integer) ? rfm_SizeOf(type.integer) : 0;
        if (size == 0)
            line.Raise("numbers can be listed for the types 1 (boolean), 2 (integer) and 4 (double) only",
                       begin);
        At(layout.numbersCell) =
            line.TakeNumbers(static_cast<rfm_Type>(type.integer), BytesAt(layout.numbersCell));
        const std::int64_t count = At(layout.numbersCell).size / static_cast<unsigned>(size);
        if (!length.Is(rfm_CellKind::Integer) || length.integer != count)
            line.Raise("expected as many numbers as the length says; these are " + std::to_string(count),
                       begin);
    }

    void TakeCell(rfm_TextLine& line, int position)
    {
        const std::size_t begin = line.Position();
        rfm_Cell& cell = At(position);
        cell = line.TakeCell(BytesAt(position));
        const char* const expected = AdaptTo(layout.kinds[static_cast<std::size_t>(position)], cell);
        if (expected)
            line.Raise(std::string("expected ") + expected, begin);
    }

    /// Makes of the cell what SQLite would make of it in a column of this kind. What is expected, if it would
    /// make something else of it than the text says.
    static const char* AdaptTo(rfm_ColumnKind kind, rfm_Cell& cell)
    {
        const bool isNumericText = cell.Is(rfm_CellKind::Text) && rfm_LooksNumeric(cell.View());
        switch (kind)
        {
        case rfm_ColumnKind::Integer:
            if (isNumericText ||
                (cell.Is(rfm_CellKind::Real) && std::trunc(cell.real) == cell.real &&
                 std::abs(cell.real) <= static_cast<double>(INT64_MAX) && !rfm_NeedsBits(cell.real)))
                return "a whole number";
            return nullptr;
        case rfm_ColumnKind::Real:
            if (isNumericText)
                return "a number";
            if (!cell.Is(rfm_CellKind::Integer))
                return nullptr;
            if (std::abs(cell.integer) > greatestWholeDouble)
                return "a number that a double can hold, with a point or an exponent";
            cell = rfm_Cell::Real(static_cast<double>(cell.integer));
            return nullptr;
        case rfm_ColumnKind::Text:
            if (cell.Is(rfm_CellKind::Integer) || (cell.Is(rfm_CellKind::Real) && !rfm_NeedsBits(cell.real)))
                return "a text in quotes";
            return nullptr;
        case rfm_ColumnKind::Blob:
        case rfm_ColumnKind::Any:
            break;
        }
        return nullptr;
    }

    /// Rows in ascending order cannot stand twice.
    void RequireOrder(const rfm_TextLine& line)
    {
        std::vector<std::int64_t> key;
        for (int i = 0; i < layout.keyWidth; ++i)
        {
            if (!At(i).Is(rfm_CellKind::Integer))
                line.Raise("expected a whole number", keyPosition);
            key.push_back(At(i).integer);
        }
        if (!lastKey.empty() && key <= lastKey)
            line.Raise("expected more than in the row before: rows stand in ascending order", keyPosition);
        lastKey = std::move(key);
    }

    void MakeUid()
    {
        const std::array<char, rfm_UidSize> uid = rfm_MadeUpUid(layout.checkSeed, At(0).integer);
        BytesAt(1).assign(uid.data(), uid.size());
        At(1) = rfm_Cell::Blob(BytesAt(1).data(), uid.size());
    }

    rfm_Cell& At(int position) { return cells[static_cast<std::size_t>(position)]; }

    std::string& BytesAt(int position) { return bytes[static_cast<std::size_t>(position)]; }

    rfm_RowLayout layout;
    rfm_RowBatch batch;
    std::vector<rfm_Cell> cells; ///< of one row, its check number last
    std::vector<std::string> bytes;
    std::vector<std::int64_t> lastKey;
    std::size_t keyPosition = 0;
    bool makesUids = false;
};

class Reader
{
public:
    Reader(rfm_Database& database, const std::string& source) : database(database), source(source) {}

    void Read(std::string_view text)
    {
        for (int number = 1; !text.empty(); ++number)
        {
            const std::size_t end = std::min(text.find('\n'), text.size());
            rfm_TextLine line(text.substr(0, end), source, number);
            text.remove_prefix(std::min(end + 1, text.size()));
            if (!line.AtEnd())
                Take(line);
        }
        EndTable();
    }

private:
    void Take(rfm_TextLine& line)
    {
        if (line.BeginsAtMargin())
            return BeginTable(line);
        if (rows)
            return rows->Take(line);
        if (own)
            return TakeOwnTitles(line);
        if (!heading)
            line.Raise("expected the beginning of a table at the margin, as in "
                       "kamC_Decay: class 0x2440003, version 203");
        TakeTitles(line);
    }

    void EndTable()
    {
        if (heading)
            CreateTable({});
        if (rows)
            rows->Flush();
        rows.reset();
        own.reset();
    }

    void BeginTable(rfm_TextLine& line)
    {
        EndTable();
        const std::size_t begin = line.Position();
        const std::string name = line.TakeName();
        if (!line.Take(":"))
            return BeginOwnTable(line, name, begin);
        heading.emplace();
        headingPlace = {line, begin};
        rfm_TableInfo& table = heading->table;
        table.name = name.c_str();
        line.Expect("class");
        const std::size_t idPlace = line.Position();
        table.classId = static_cast<unsigned>(line.TakeInteger("a class id of 32 bits", 0, greatestId));
        if (!classIds.insert(table.classId).second)
            line.Raise("expected another class: the table of this one stands above", idPlace);
        line.Expect(",");
        line.Expect("version");
        table.version = static_cast<int>(line.TakeInteger("a schema version", INT32_MIN, INT32_MAX));
        while (line.Take(","))
            TakeRemark(line);
        line.ExpectEnd();
    }

    void TakeRemark(rfm_TextLine& line)
    {
        if (line.Take("base"))
            heading->table.baseClassId =
                static_cast<unsigned>(line.TakeInteger("a class id of 32 bits", 0, greatestId));
        else if (line.Take("no"))
        {
            line.Expect("uids");
            heading->hasUids = false;
        }
        else
        {
            heading->check = TakeCheck(line);
            if (heading->check.Is(rfm_CellKind::Unset))
                line.Raise("expected base, no uids or check");
        }
    }

    void BeginOwnTable(rfm_TextLine& line, const std::string& name, std::size_t begin)
    {
        rfm_RowLayout layouts[] = {rfm_RowLayout::Roots(), rfm_RowLayout::Elements(),
                                   rfm_RowLayout::Arrays()};
        const auto found = std::find_if(std::begin(layouts), std::end(layouts),
                                        [&name](const rfm_RowLayout& each)
                                        { return each.table.View() == std::string_view(name); });
        if (found == std::end(layouts))
            line.Raise("expected a colon and the class of the table, or one of rom_Root, rom_Element and "
                       "rfm_Array");
        if (!ownTables.insert(name).second)
            line.Raise("expected another table: this one stands above", begin);
        line.ExpectEnd();
        own = std::make_unique<rfm_RowLayout>(std::move(*found));
    }

    void TakeOwnTitles(rfm_TextLine& line)
    {
        for (const rfm_RowField& field : own->fields)
        {
            if (!line.Take(field.title))
                line.Raise("expected the columns " + Titles(*own));
        }
        line.ExpectEnd();
        rows = std::make_unique<Rows>(database, std::move(*own), true);
        own.reset();
    }

    /// The columns of a class's table.
    void TakeTitles(rfm_TextLine& line)
    {
        line.Expect(rfm_OidColumn);
        std::vector<rfm_Column> columns;
        while (!line.AtEnd())
            TakeTitle(line, columns);
        CreateTable(std::move(columns));
    }

    static void TakeTitle(rfm_TextLine& line, std::vector<rfm_Column>& columns)
    {
        const std::string name = line.TakeName();
        if (!line.Take(":"))
        {
            if (name.find('#') == std::string::npos)
                line.Raise("expected the kind of the column, as in " + name + ":integer");
            columns.push_back(
                {name.c_str(), name == rfm_UidColumn ? rfm_ColumnKind::Blob : rfm_ColumnKind::Integer});
            return;
        }
        if (line.Take(rfm_ReferenceKind))
        {
            columns.push_back({(name + "#ClassID").c_str(), rfm_ColumnKind::Integer});
            columns.push_back({(name + "#OID").c_str(), rfm_ColumnKind::Integer});
            return;
        }
        columns.push_back({name.c_str(), TakeKind(line)});
    }

    static rfm_ColumnKind TakeKind(rfm_TextLine& line)
    {
        using enum rfm_ColumnKind;
        for (const rfm_ColumnKind kind : {Integer, Real, Text, Blob, Any})
        {
            if (line.Take(rfm_NameOf(kind)))
                return kind;
        }
        line.Raise("expected one of integer, real, text, blob, any, object");
    }

    void CreateTable(std::vector<rfm_Column> columns)
    {
        const auto isUid = [](const rfm_Column& column) { return column.name == rfm_UidColumn; };
        const bool givesUids = !heading->hasUids || std::any_of(columns.begin(), columns.end(), isUid);
        if (!givesUids)
            columns.insert(columns.begin(), {rfm_UidColumn, rfm_ColumnKind::Blob});
        heading->table.columns = std::move(columns);
        try
        {
            database.CreateTable(heading->table, heading->check);
        }
        catch (const rom_StoreException& error)
        {
            headingPlace->first.Raise(error.Message().CString(), headingPlace->second);
        }
        rows = std::make_unique<Rows>(database, rfm_RowLayout::Of(heading->table), givesUids);
        heading.reset();
    }

    rfm_Database& database;
    std::string source;
    std::optional<Heading> heading; ///< of a table whose columns are still to come
    std::optional<std::pair<rfm_TextLine, std::size_t>> headingPlace;
    std::unique_ptr<rfm_RowLayout> own; ///< the same of a table of the store itself
    std::unique_ptr<Rows> rows;
    std::set<unsigned> classIds;
    std::set<std::string> ownTables;
};
} // namespace

void rfm_ReadStoreText(rfm_Database& database, std::string_view text, const std::string& source)
{
    Reader(database, source).Read(text);
}

void rfm_MakeStoreOfText(const std::string& path, std::string_view text, const std::string& source)
{
    rfm_Database database(path.c_str(), rfm_Access::Create);
    rfm_ReadStoreText(database, text, source);
    database.Commit();
}
