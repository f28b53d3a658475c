#pragma once

#include "cls_AgentRequest.h"

/// Carries the writing of one row. An object's `DBWrite` calls `StartWrite`, then puts its attributes through
/// the memento; each base section, nested object and collection gets a visitor of its own, built from this
/// one.
class cls_WriteVisitor
{
public:
    /// Takes over `memento`.
    explicit cls_WriteVisitor(cls_MementoWrite* memento) : memento(memento) {}

    /// One element of a collection; the object is named for the request's sake only and may be null.
    cls_WriteVisitor(const cls_AgentRequest& request, const void*) : memento(request.Open()) {}

    /// The base section of `derived`'s row.
    cls_WriteVisitor(const cls_WriteVisitor& derived, unsigned baseClassId)
        : memento(derived.memento->OpenBase(baseClassId))
    {}

    /// A nested row; `handle` is null for a member held by value.
    cls_WriteVisitor(const cls_WriteVisitor& owner, const cls_FieldHandle& field,
                     const cls_ErasedHandle* handle, const void*)
        : memento(owner.memento->OpenField(field, handle))
    {}

    cls_WriteVisitor(const cls_WriteVisitor&) = delete;
    cls_WriteVisitor& operator=(const cls_WriteVisitor&) = delete;

    ~cls_WriteVisitor() { memento->Close(); }

    /// Zero when the row must not be written again.
    int StartWrite(unsigned classId, const cls_Uid& uid) const { return memento->StartWrite(classId, uid); }

    void CheckCollectionType(cls_CollectionType code) const { memento->CheckCollectionType(code); }

    cls_MementoWrite& Memento() const { return *memento; }

private:
    cls_MementoWrite* memento;
};
