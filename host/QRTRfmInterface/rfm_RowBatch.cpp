#include "rfm_RowBatch.h"

#include "rfm_TableForm.h"

#include <algorithm>

namespace
{
std::size_t BytesOf(const rfm_Cell& cell)
{
    return cell.Is(rfm_CellKind::Text) || cell.Is(rfm_CellKind::Blob) ? cell.size : 0;
}
} // namespace

rfm_RowBatch::rfm_RowBatch(rfm_Database& database, const cow_String& table, int width)
    : rfm_RowBatch(database, table, "INSERT INTO " + rfm_Quoted(table), width)
{}

rfm_RowBatch::rfm_RowBatch(rfm_Database& database, const rfm_TableForm& form, const char* deed)
    : rfm_RowBatch(database, form.name, std::string(deed) + " INTO " + form.SqlName(),
                   static_cast<int>(form.columns.size() + 2))
{}

rfm_RowBatch rfm_RowBatch::WithoutKeys(rfm_Database& database, const rfm_TableForm& form)
{
    // A key that is given, even as NULL, might be taken, and each statement would keep what undoes it.
    std::string sql = "INSERT INTO " + form.SqlName() + " (";
    for (const rfm_Column& column : form.columns)
        sql += rfm_Quoted(column.name) + ",";
    return {database, form.name, sql + rfm_Quoted(rfm_CheckColumn) + ")",
            static_cast<int>(form.columns.size() + 1)};
}

rfm_RowBatch::rfm_RowBatch(rfm_Database& database, const cow_String& table, const std::string& sqlStart,
                           int width)
    : database(database),
      table(table),
      sqlStart(sqlStart),
      width(width),
      rowLimit(std::clamp(mostParameters / width, 1, mostRows)),
      single(database, SqlFor(1), table),
      gathered(static_cast<std::size_t>(rowLimit * width))
{}

std::string rfm_RowBatch::SqlFor(int rows) const
{
    std::string row = "(?";
    for (int i = 1; i < width; ++i)
        row += ",?";
    row += ")";
    std::string sql = sqlStart + " VALUES" + row;
    for (int i = 1; i < rows; ++i)
        sql += "," + row;
    return sql;
}

void rfm_RowBatch::Add(const rfm_Cell* cells)
{
    std::copy_n(cells, width, NextRow());
    Take();
}

void rfm_RowBatch::Take()
{
    rfm_Cell* row = NextRow();
    std::size_t bytes = 0;
    for (int i = 0; i < width; ++i)
        bytes += BytesOf(row[i]);
    if (rowCount > 0 && bytes > arenaSize - arenaUsed) [[unlikely]]
    {
        Flush();
        row = std::copy_n(row, width, NextRow()) - width;
    }
    if (bytes > arenaSize) [[unlikely]]
    {
        Run(single, row, 1);
        return;
    }
    if (!arena)
        arena = std::make_unique<char[]>(arenaSize);
    for (int i = 0; i < width; ++i)
        Keep(row[i]);
    if (++rowCount == rowLimit)
        Flush();
}

void rfm_RowBatch::Keep(rfm_Cell& cell)
{
    const std::size_t size = BytesOf(cell);
    if (size == 0)
        return;
    char* place = arena.get() + arenaUsed;
    std::memcpy(place, cell.bytes, size);
    cell.bytes = place;
    arenaUsed += size;
}

void rfm_RowBatch::Flush()
{
    const int rows = rowCount;
    rowCount = 0;
    arenaUsed = 0;
    if (rows == rowLimit && rows > 1)
    {
        if (!several)
            several = std::make_unique<rfm_Statement>(database, SqlFor(rowLimit), table);
        Run(*several, gathered.data(), rows);
        return;
    }
    for (int i = 0; i < rows; ++i)
        Run(single, gathered.data() + static_cast<std::ptrdiff_t>(i) * width, 1);
}

void rfm_RowBatch::Run(rfm_Statement& statement, const rfm_Cell* cells, int rows)
{
    const int count = rows * width;
    for (int i = 0; i < count; ++i)
        statement.Bind(i + 1, cells[i]);
    statement.Run();
}
