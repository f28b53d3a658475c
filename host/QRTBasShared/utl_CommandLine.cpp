#include "utl_CommandLine.h"

utl_CommandLine::utl_CommandLine() = default;

utl_CommandLine::~utl_CommandLine() = default;

void utl_CommandLine::Insert(const cow_String& name, const cow_String& value)
{
    values.Insert(name, value);
}

bool utl_CommandLine::IsMember(const cow_String& name) const
{
    return values.IsMember(name);
}

const cow_String& utl_CommandLine::ConstGetValue(const cow_String& name) const
{
    const cow_String* value = values.ConstGet(name);
    return value == nullptr ? none : *value;
}
