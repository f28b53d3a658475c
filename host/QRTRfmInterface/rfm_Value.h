#pragma once

#include "rfm_Check.h"

#include <sqlite3.h>

// For the sources of this folder alone. Connections are without mutexes, and then SQLite lets values be
// looked at wherever they are from.

/// Calls `taker` with what a value of SQLite holds: in a call of its own for each kind, so that what it does
/// for others is left out. A text or blob stays as long as the value does.
template <class Taker>
[[gnu::always_inline]] inline auto rfm_Look(sqlite3_value* value, const Taker& taker)
{
    const auto size = [value] { return static_cast<std::size_t>(sqlite3_value_bytes(value)); };
    switch (sqlite3_value_type(value))
    {
    case SQLITE_INTEGER:
        return taker(rfm_Cell::Integer(sqlite3_value_int64(value)));
    case SQLITE_FLOAT:
        return taker(rfm_Cell::Real(sqlite3_value_double(value)));
    case SQLITE_TEXT:
    {
        // The store is UTF-8, so the bytes can be had without a copy that ends with a null.
        const auto* text = static_cast<const char*>(sqlite3_value_blob(value));
        return taker(rfm_Cell::Text({text, size()}));
    }
    case SQLITE_BLOB:
    {
        const void* blob = sqlite3_value_blob(value);
        return taker(rfm_Cell::Blob(blob, size()));
    }
    default:
        return taker(rfm_Cell::Null());
    }
}

/// What a value of SQLite holds.
inline rfm_Cell rfm_CellOf(sqlite3_value* value)
{
    return rfm_Look(value, [](const rfm_Cell& cell) { return cell; });
}

/// The same, and enters it into a check number.
[[gnu::always_inline]] inline rfm_Cell rfm_CheckedCellOf(sqlite3_value* value, rfm_Check& check)
{
    return rfm_Look(value,
                    [&check](const rfm_Cell& cell)
                    {
                        check.Add(cell);
                        return cell;
                    });
}
