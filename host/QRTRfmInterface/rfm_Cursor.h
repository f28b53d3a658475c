#pragma once

#include "ovr_Export.h"
#include "rfm_Statement.h"
#include "rfm_TableForm.h"

/// Goes through the rows of one table. Asked for the next row it steps; only for another it searches. Every
/// row's check number is compared; a row without one is taken as it is.
class OVR_EXPORT rfm_Cursor
{
public:
    rfm_Cursor(rfm_Database& database, const rfm_TableForm& form);

    /// Goes to the row with this key; false if there is none.
    bool Seek(std::int64_t key);
    /// Goes to the row with the lowest key that is not below this one; false if there is none.
    bool SeekFrom(std::int64_t key);
    /// Goes to the next row; false if there is none. The cursor must stand on a row.
    bool Next();

    /// Leaves the row, so that the next search sees what has changed since.
    void Leave() noexcept
    {
        hasRow = false;
        statement.Reset();
    }

    /// Whether `Seek(key)` needs no search.
    bool IsNext(std::int64_t key) const { return hasRow && key == rowKey + 1; }

    std::int64_t Key() const { return rowKey; }
    /// The row's cells, as many as the table has columns. They stay until the cursor goes on.
    const rfm_Cell* Cells() const { return cells.data(); }
    int Count() const { return static_cast<int>(cells.size()); }
    /// The row's check number, or a null cell.
    const rfm_Cell& Check() const { return check; }

private:
    bool TakeRow(std::int64_t sought);

    rfm_Database& database;
    cow_String table;
    rfm_Statement statement;
    unsigned checkSeed;
    std::vector<rfm_Cell> cells;
    rfm_Cell check;
    std::int64_t rowKey = 0;
    bool hasRow = false;
};
