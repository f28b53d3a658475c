#include "omu_EnumTable.h"

#include <cstring>

const omu_EnumEntry* omu_EnumTable::FindValue(int value) const
{
    for (int row = 0; row < rowCount; ++row)
    {
        if (rows[row].value == value)
            return &rows[row];
    }
    return nullptr;
}

const omu_EnumEntry* omu_EnumTable::FindName(const char* text) const
{
    // An empty text names nothing, not even a row with an empty name.
    if (text == nullptr || *text == '\0')
        return nullptr;
    for (int row = 0; row < rowCount; ++row)
    {
        if (std::strcmp(rows[row].name, text) == 0)
            return &rows[row];
    }
    return nullptr;
}

cow_String omu_NamesOf(const omu_EnumTable& table)
{
    cow_String names;
    for (int row = 0; row < table.rowCount; ++row)
    {
        if (row > 0)
            names.append(", ");
        names.append(table.rows[row].name);
    }
    return names;
}
