#pragma once

#include "dbc_Fields.h"

#include <span>
#include <variant>

/// A field that a conversion function adds, and what it puts there: for an enumeration its text. Functions
/// keep such fields in a static of their own.
class dbc_NewField
{
public:
    using Value = std::variant<int, double, bool, const char*>;

    dbc_NewField(const char* name, Value value) : field(dbc_Field(name)), value(value) {}

    const rfm_FieldHandle& Field() const { return field; }

    OVR_EXPORT void Put(dbc_Row& output) const;

private:
    rfm_FieldHandle field;
    Value value;
};

/// Puts every field, whatever the row had there.
OVR_EXPORT void dbc_PutNew(dbc_Row& output, std::span<const dbc_NewField> fields);

/// Puts those fields in which the input row has no value.
OVR_EXPORT void dbc_PutMissing(const dbc_Row& input, dbc_Row& output, std::span<const dbc_NewField> fields);
