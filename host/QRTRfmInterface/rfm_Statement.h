#pragma once

#include "cow_String.h"
#include "ovr_Export.h"
#include "rfm_Cell.h"
#include "rom_StoreException.h"

#include <string>

class rfm_Check;
class rfm_Database;
struct sqlite3_stmt;

/// One prepared statement of a database. Every failure throws `rom_StoreException` with the database's file
/// and the table that the statement is about.
class OVR_EXPORT rfm_Statement
{
public:
    /// `table` names the place in errors and may be empty.
    rfm_Statement(rfm_Database& database, const std::string& sql, const cow_String& table = cow_String());
    rfm_Statement(const rfm_Statement&) = delete;
    rfm_Statement& operator=(const rfm_Statement&) = delete;
    ~rfm_Statement();

    /// Gives parameter `position`, counted from 1, a value. A text or blob must stay until `Reset`.
    void Bind(int position, const rfm_Cell& cell);
    void Bind(int position, std::int64_t number);
    /// Goes to the next row; false when there is none. An error names row `sought`.
    bool Step(std::int64_t sought = rom_StoreException::NoRow);
    /// Runs the statement to its end and makes it ready to run again.
    void Run(std::int64_t sought = rom_StoreException::NoRow);
    void Reset() noexcept;

    /// A value of the current row, columns counted from 0; texts and blobs stay until the next step.
    rfm_Cell Column(int column) const;
    /// The same, entered into a check number.
    rfm_Cell Column(int column, rfm_Check& check) const;
    int ColumnCount() const;

private:
    rfm_Database& database;
    cow_String table;
    sqlite3_stmt* statement = nullptr;
};
