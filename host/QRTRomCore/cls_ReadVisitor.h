#pragma once

#include "cls_Memento.h"

/// Carries the reading of one row.
class cls_ReadVisitor
{
public:
    /// Takes over `memento`.
    explicit cls_ReadVisitor(cls_MementoRead* memento) : memento(memento) {}

    /// The base section of the row: a read constructor hands a copy of its visitor to its base.
    cls_ReadVisitor(const cls_ReadVisitor& derived) : memento(derived.memento->OpenBase()) {}

    /// The row to which a field refers.
    cls_ReadVisitor(const cls_ReadVisitor& owner, const cls_FieldHandle& field)
        : memento(owner.memento->OpenField(field))
    {}

    cls_ReadVisitor& operator=(const cls_ReadVisitor&) = delete;

    ~cls_ReadVisitor() { memento->Close(); }

    cls_Uid GetUid() const { return memento->GetUid(); }

    cls_MementoRead& Memento() const { return *memento; }

private:
    cls_MementoRead* memento;
};
