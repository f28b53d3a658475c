#pragma once

#include "cow_String.h"

#include <vector>

/// What a column is declared to hold. A store is read by what its cells are, not by this.
enum class rfm_ColumnKind
{
    Integer,
    Real,
    Text,
    Blob,
    Any
};

/// One column of a table.
struct rfm_Column
{
    cow_String name;
    rfm_ColumnKind kind;
};

/// A table of a store: the rows of one class layer.
struct rfm_TableInfo
{
    cow_String name;
    unsigned classId = 0;
    int version = 0;                 ///< schema version of the class whose rows these are
    unsigned baseClassId = 1;        ///< 1 for a root
    std::vector<rfm_Column> columns; ///< in stored order, without the row's number and its check number
};

/// Name of the column that holds a row's number.
inline constexpr char rfm_OidColumn[] = "OID";
/// Name of the column that holds a row's check number.
inline constexpr char rfm_CheckColumn[] = "##Check";
