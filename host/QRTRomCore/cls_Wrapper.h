#pragma once

#include "cls_Uid.h"

/// A collection value together with the identity of the row in which it is stored. It is used as the value
/// itself; a new value assigned to it takes a new identity, so that a changed collection gets a new row,
/// while a copy keeps its source's identity.
template <class Value>
class cls_Wrapper : public Value
{
public:
    cls_Wrapper() { uid.AllocateUid(); }

    cls_Wrapper(const Value& value) : Value(value) { uid.AllocateUid(); }

    cls_Wrapper(const cls_Wrapper&) = default;

    cls_Wrapper& operator=(const Value& value)
    {
        if (static_cast<const Value*>(this) == &value)
            return *this;
        Value::operator=(value);
        uid.NewUid();
        return *this;
    }

    cls_Wrapper& operator=(const cls_Wrapper& other) { return *this = static_cast<const Value&>(other); }

    ~cls_Wrapper() = default;

    const cls_Uid& Uid() const { return uid; }

    void NewUid() { uid.NewUid(); }

    /// Takes value and identity of `stored`, as reading does.
    void Restore(const cls_Wrapper& stored)
    {
        Value::operator=(stored);
        uid = stored.uid;
    }

protected:
    cls_Uid uid;
};
