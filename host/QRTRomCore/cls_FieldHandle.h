#pragma once

#include "cow_String.h"

/// Names one attribute of a row: its index in the class, and its stored name. Index -1 marks an attribute
/// that is found by its name alone.
class cls_FieldHandle
{
public:
    cls_FieldHandle(int index, const cow_String& name) : index(index), name(name) {}

    int Index() const { return index; }

    const cow_String& Name() const { return name; }

private:
    int index;
    cow_String name;
};
