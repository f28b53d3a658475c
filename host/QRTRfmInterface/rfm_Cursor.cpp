#include "rfm_Cursor.h"

#include "rfm_Check.h"
#include "rfm_Database.h"

#include <cstdint>

rfm_Cursor::rfm_Cursor(rfm_Database& database, const rfm_TableForm& form)
    : database(database),
      table(form.name),
      statement(database, form.SqlToRead(), form.name),
      checkSeed(form.checkSeed),
      cells(form.columns.size())
{}

bool rfm_Cursor::Seek(std::int64_t key)
{
    if (hasRow && rowKey == key)
        return true;
    if (hasRow && key == rowKey + 1)
        return Next() && rowKey == key;
    return SeekFrom(key) && rowKey == key;
}

bool rfm_Cursor::SeekFrom(std::int64_t key)
{
    hasRow = false;
    statement.Reset();
    statement.Bind(1, key);
    return TakeRow(key);
}

bool rfm_Cursor::Next()
{
    const std::int64_t last = rowKey;
    hasRow = false;
    if (last == INT64_MAX || !TakeRow(last + 1))
        return false;
    return true;
}

bool rfm_Cursor::TakeRow(std::int64_t sought)
{
    if (!statement.Step(sought))
        return false;
    rowKey = statement.Column(0).integer;
    // Rows out of order are a damaged tree, in which one could go round for ever.
    if (rowKey < sought)
        database.Raise("The rows are not in ascending order: the file is damaged.", table, sought);
    rfm_Check found(checkSeed, rowKey);
    for (std::size_t i = 0; i < cells.size(); ++i)
        cells[i] = statement.Column(static_cast<int>(i + 1), found);
    check = statement.Column(static_cast<int>(cells.size() + 1));
    const bool fits = check.Is(rfm_CellKind::Integer) && check.integer == found.Number();
    if (!fits && !check.IsNull())
        database.Raise("The row does not fit its check number: the file is damaged.", table, rowKey,
                       rfm_CheckColumn);
    hasRow = true;
    return true;
}
