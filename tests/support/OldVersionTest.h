#pragma once

#include "MemoryRow.h"
#include "cls_ClassRegistrar.h"
#include "dbc_DatabaseConverter.h"
#include "dbc_OldClasses.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

// What tests of old class versions share.

/// Runs a conversion function on every line: what it puts into the output row, and that it leaves the input
/// row alone.
inline void TryConversion(dbc_ConversionFunction convert, const std::vector<ConversionRow>& lines)
{
    for (const ConversionRow& line : lines)
    {
        const MemoryRow input(line.from);
        MemoryRow output;
        EXPECT_EQ(nullptr, convert(input, output, 0)) << line.input;
        EXPECT_EQ(line.to, output.All()) << line.input;
        EXPECT_EQ(line.from, input.All()) << line.input;
    }
}

/// An old version as text: what it is of, what it leads to, and its attributes with index and stored code,
/// for objects and collections also the class id and the collection code.
inline std::string TextOfOldVersion(const dbc_OldClasses::Entry& entry)
{
    const cls_ClassMetadata& form = *entry.form;
    std::ostringstream text;
    text << form.Name().CString() << ' ' << form.Version() << " (0x" << std::hex << std::uppercase
         << form.ClassId() << ", base 0x" << form.BaseClassId() << ", mask " << std::dec << entry.mask << ')';
    for (const dbc_ClassConverter* step : entry.steps)
    {
        text << " to " << step->TargetVersion();
        if (step->ConversionFunction())
            text << " by " << step->ConversionName().CString();
        if (step->FinalizeFunction())
            text << " with a finalizer";
    }
    text << ':';
    for (const cls_AttributeMetadata& attribute : form.Attributes())
    {
        text << ' ' << attribute.field.Index() << ' ' << attribute.field.Name().CString() << ' '
             << attribute.type;
        if (attribute.type == cls_TypeObject)
            text << "/0x" << std::hex << attribute.typeId << std::dec << '/' << attribute.collectionType;
    }
    return text.str();
}

/// The old versions that a module registered, in order.
inline std::vector<std::string> OldVersionsOf(unsigned moduleNumber)
{
    dbc_DatabaseConverter converter;
    const dbc_OldClasses classes(converter);
    std::vector<std::string> versions;
    for (const dbc_OldClasses::Entry& entry : classes.Entries())
    {
        if (entry.form && entry.form->ClassId() >> 16 == moduleNumber)
            versions.push_back(TextOfOldVersion(entry));
    }
    return versions;
}
