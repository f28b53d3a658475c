#pragma once

#include "cls_Memento.h"

/// Asks a collection writer for the row of one element.
class OVR_EXPORT cls_AgentRequest
{
public:
    virtual ~cls_AgentRequest() = default;
    /// The writer of the element's row.
    virtual cls_MementoWrite* Open() const = 0;
};

/// One element of a list.
class OVR_EXPORT cls_WriteRequestListObj : public cls_AgentRequest
{
public:
    explicit cls_WriteRequestListObj(cls_WriteListObj* writer) : writer(writer) {}

    cls_MementoWrite* Open() const override { return writer->OpenElement(); }

private:
    cls_WriteListObj* writer;
};

/// One entry of a map by number.
class OVR_EXPORT cls_WriteRequestMapInt2Obj : public cls_AgentRequest
{
public:
    cls_WriteRequestMapInt2Obj(cls_WriteMapInt2Obj* writer, int key) : writer(writer), key(key) {}

    cls_MementoWrite* Open() const override { return writer->OpenElement(key); }

private:
    cls_WriteMapInt2Obj* writer;
    int key;
};

/// One entry of a map by text.
class OVR_EXPORT cls_WriteRequestMapString2Obj : public cls_AgentRequest
{
public:
    cls_WriteRequestMapString2Obj(cls_WriteMapString2Obj* writer, const cow_String& key)
        : writer(writer), key(key)
    {}

    cls_MementoWrite* Open() const override { return writer->OpenElement(key); }

private:
    cls_WriteMapString2Obj* writer;
    cow_String key;
};
