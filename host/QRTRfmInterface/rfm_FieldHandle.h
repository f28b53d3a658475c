#pragma once

#include "cow_String.h"

/// Names one column of a table; index -1 marks a column that is found by its name alone.
class rfm_FieldHandle
{
public:
    rfm_FieldHandle(const cow_String& name, int index) : name(name), index(index) {}

    const cow_String& Name() const { return name; }

    int Index() const { return index; }

private:
    cow_String name;
    int index;
};
