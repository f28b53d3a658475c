#pragma once

#include "cow_Map.h"
#include "cow_String.h"

/// The words given to the program when it was started, under their names. The program fills it; libraries ask
/// it through thr_GlobalSingleton<utl_CommandLine>.
class OVR_EXPORT utl_CommandLine
{
public:
    utl_CommandLine();
    ~utl_CommandLine();

    /// Notes a word and its value, in place of an earlier value; a word without one has the empty text.
    void Insert(const cow_String& name, const cow_String& value);

    /// Whether the word was given.
    bool IsMember(const cow_String& name) const;

    /// The word's value; the empty text if it was not given.
    const cow_String& ConstGetValue(const cow_String& name) const;

private:
    cow_Map<cow_String, cow_String> values;
    cow_String none;
};
