#pragma once

#include "ovr_Export.h"
#include "rfm_FieldHandle.h"

#include <cstdint>

/// One row as a conversion function sees it. A field is a column, reached by `rfm_FieldHandle(name, -1)`: a
/// scalar attribute by its name, a reference to an object by "name#ClassID" and "name#OID". The two tests and
/// `PutAbsent` also take the bare name of such an attribute.
///
/// An operation on a field that the row does not have, or that holds another kind of value, throws
/// `rom_StoreException` with table, row and field. Rows that are input can't be written to.
class OVR_EXPORT dbc_Row
{
public:
    virtual ~dbc_Row();

    /// Whether the table has such a field.
    virtual bool HasField(const rfm_FieldHandle& field) const = 0;
    /// Whether the table has such a field and this row a value in it.
    virtual bool HasValue(const rfm_FieldHandle& field) const = 0;
    /// An integer, a boolean as 0 or 1, a class id or the number of a row.
    virtual std::int64_t GetInt(const rfm_FieldHandle& field) const = 0;
    /// A text or the text of an enumeration.
    virtual cow_String GetText(const rfm_FieldHandle& field) const = 0;
    virtual void PutInt(const rfm_FieldHandle& field, std::int64_t value) = 0;
    virtual void PutText(const rfm_FieldHandle& field, const cow_String& value) = 0;

    virtual double GetDouble(const rfm_FieldHandle& field) const = 0;
    virtual bool GetBool(const rfm_FieldHandle& field) const = 0;
    virtual void PutDouble(const rfm_FieldHandle& field, double value) = 0;
    virtual void PutBool(const rfm_FieldHandle& field, bool value) = 0;
    /// Leaves an optional object out for good. A field that nothing was put into takes the class's default
    /// when the upgrade ends.
    virtual void PutAbsent(const rfm_FieldHandle& field) = 0;

    /// The row's number in its table.
    virtual std::int64_t Oid() const = 0;

protected:
    dbc_Row() = default;
    dbc_Row(const dbc_Row&) = default;
    dbc_Row& operator=(const dbc_Row&) = default;
};
