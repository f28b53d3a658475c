#pragma once

#include "ovr_Export.h"
#include "rfm_TableInfo.h"

#include <string>

/// What statements need to know about a table whose rows have a number and a check number.
struct OVR_EXPORT rfm_TableForm
{
    cow_String name;
    cow_String keyColumn;
    std::vector<rfm_Column> columns; ///< without key and check number
    unsigned checkSeed;              ///< what tells the rows of this table from those of others
    /// Which of the files of a connection has the table: `rfm_OldSchema`, `rfm_ScratchSchema`, or empty for
    /// the database's own.
    cow_String schema = {};

    /// That of a class's table.
    static rfm_TableForm Of(const rfm_TableInfo& table);
    /// The catalogue of class tables: name, version, base.
    static rfm_TableForm Catalogue();
    /// The named objects: name, class id, row number.
    static rfm_TableForm Roots();
    /// The arrays: code of their numbers, length, bytes.
    static rfm_TableForm Arrays();

    /// The table's name as SQL takes it.
    std::string SqlName() const;
    std::string SqlToCreate() const;
    /// Rows from a key on, in ascending order: key, columns, check number.
    std::string SqlToRead() const;
};

/// Name of the attached store that is being converted, and of the file of tables that live as long as the
/// connection.
inline constexpr char rfm_OldSchema[] = "old";
inline constexpr char rfm_ScratchSchema[] = "scratch";

/// The table of the elements of collections.
namespace rfm_Elements
{
inline constexpr char name[] = "rom_Element";
inline constexpr unsigned checkSeed = 3;

enum Column
{
    ClassId,
    Oid,
    Position,
    Key,
    Value,
    TargetClassId,
    TargetOid,
    Check,
    ColumnCount
};

/// Names of the columns, as counted by `Column`.
OVR_EXPORT extern const char* const columns[ColumnCount];
/// Columns that make up the primary key.
inline constexpr int keyColumns = 3;

/// The table as one of rows that have their collection's number as key, so that several share one.
OVR_EXPORT rfm_TableForm Form(const cow_String& schema = cow_String());
OVR_EXPORT std::string SqlToCreate(const cow_String& schema = cow_String());
/// The elements of one collection by position, without the collection's own two columns.
std::string SqlToRead(const cow_String& schema = cow_String());
/// All elements, with all columns as counted by `Column`.
std::string SqlToReadAll();
} // namespace rfm_Elements

/// A name as SQL takes it.
OVR_EXPORT std::string rfm_Quoted(const cow_String& name);
