#pragma once

#include "dbc_Row.h"

/// The rows of one table, in ascending order of their numbers. Rows of an input table are those of before the
/// stage that is running; an output table has what the stage has made of it so far.
class OVR_EXPORT dbc_Table
{
public:
    virtual ~dbc_Table();

    virtual unsigned ClassId() const = 0;
    /// Name of the class, which is the table's.
    virtual const cow_String& Name() const = 0;
    /// Schema version of the rows.
    virtual int Version() const = 0;

    /// Takes time in proportion to the rows.
    virtual std::int64_t RowCount() const = 0;
    /// The row of this number, or null. It stays until the next `Find` on this table.
    virtual const dbc_Row* Find(std::int64_t oid) const = 0;
    /// The first row, or null. Walks start anew with each call; the row stays until `Next`.
    virtual const dbc_Row* First() const = 0;
    /// The row after the one of `First` or `Next`, or null.
    virtual const dbc_Row* Next() const = 0;

    // What follows throws on an input table.

    /// A row of this number to change; throws if there is none. It counts from its `Commit` on.
    virtual dbc_Row& Edit(std::int64_t oid) = 0;
    /// A new row under a free number. It counts from its `Commit` on.
    virtual dbc_Row& NewRow() = 0;
    /// A new row under a number that the caller knows to be free: that of the row whose place it takes.
    virtual dbc_Row& NewRow(std::int64_t oid) = 0;
    /// Puts a row of `Edit` or `NewRow` into the table. The row is gone then.
    virtual void Commit(dbc_Row& row) = 0;

protected:
    dbc_Table() = default;
    dbc_Table(const dbc_Table&) = default;
    dbc_Table& operator=(const dbc_Table&) = default;
};

/// A table of the store that is being upgraded, as it stood before the stage or as it will stand after it.
class OVR_EXPORT dbc_TableRfm : public dbc_Table
{};

/// A table that is made beside those of the store, of a class and version of one's choice. What is in it when
/// the stage ends joins the store, and goes on from there by the steps of its class.
class OVR_EXPORT dbc_TableMem : public dbc_Table
{};
