#pragma once

#include "rfm_Cell.h"
#include "rfm_TableForm.h"

#include <array>
#include <cstdint>

/// One value of a row as text: a cell, or the two cells of a reference.
struct rfm_RowField
{
    enum class Form
    {
        Plain,
        ClassId,
        Reference ///< two cells, written as CLASS:ROW
    };

    std::string title;
    int cell; ///< position of the first one, the row's key included
    Form form;
};

/// How the rows of one table stand in the text of a store.
struct rfm_RowLayout
{
    cow_String table;
    std::vector<rfm_ColumnKind> kinds; ///< of all cells, those of the key first
    int keyWidth;                      ///< cells that make up the key
    unsigned checkSeed;
    std::vector<rfm_RowField> fields;
    /// Whether the cell behind the key is the row's identity.
    bool hasUids = false;
    /// Position of the bytes that can be written as a list of numbers, behind their type and length; -1 in
    /// other tables.
    int numbersCell = -1;

    /// That of a class's table, which names the kinds of its columns.
    static rfm_RowLayout Of(const rfm_TableInfo& table);
    static rfm_RowLayout Roots();
    static rfm_RowLayout Elements();
    static rfm_RowLayout Arrays();
};

/// Name of the column that holds a row's identity.
inline constexpr char rfm_UidColumn[] = "##Uid";

/// The check number of a row, `cells` in the order of the layout.
std::int64_t rfm_CheckOf(const rfm_RowLayout& layout, const rfm_Cell* cells);

/// Bytes of an identity.
inline constexpr std::size_t rfm_UidSize = 16;
/// The identity of a row whose text gives none: made of class and row, so that it is always the same.
std::array<char, rfm_UidSize> rfm_MadeUpUid(unsigned classId, std::int64_t oid);

/// Names of the kinds of columns in the text, by kind.
const char* rfm_NameOf(rfm_ColumnKind kind);
/// Name of a column that stands for two: a reference.
inline constexpr char rfm_ReferenceKind[] = "object";
