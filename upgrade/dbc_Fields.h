#pragma once

#include "dbc_Row.h"

#include <initializer_list>
#include <utility>

// What conversion functions do with fields, over and over. A field that a row does not have counts as one
// without value.

/// A field by its name, for conversion functions: they keep it in a static of their own, for a handle is made
/// of text and a table has many rows.
inline rfm_FieldHandle dbc_Field(const char* name)
{
    return rfm_FieldHandle(name, -1);
}

/// Whether the row has the field and a value in it.
inline bool dbc_Has(const dbc_Row& row, const rfm_FieldHandle& field)
{
    return row.HasField(field) && row.HasValue(field);
}

/// One text of an old vocabulary and the one that stands for it now.
using dbc_TextPair = std::pair<const char*, const char*>;

/// Whether texts are folded to upper case before they are compared.
enum class dbc_Fold
{
    None,
    UpperCase
};

/// Writes the text of a field in the new vocabulary, if it is one of the old texts; else leaves it alone.
OVR_EXPORT void dbc_MapText(const dbc_Row& input, dbc_Row& output, const rfm_FieldHandle& field,
                            std::initializer_list<dbc_TextPair> pairs, dbc_Fold fold);
