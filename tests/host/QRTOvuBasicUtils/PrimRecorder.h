#pragma once

#include "omu_Primitive.h"

#include <string>

/// Notes as what kind of primitive it was shown something, and what.
class PrimRecorder : public omu_PrimVisitor
{
public:
    void VisitNone(omu_PrimNone& primitive) override { Note("none", &primitive); }
    void VisitBool(omu_PrimBool& primitive) override { Note("bool", &primitive); }
    void VisitInt(omu_PrimInt& primitive) override { Note("int", &primitive); }
    void VisitDouble(omu_PrimDouble& primitive) override { Note("double", &primitive); }
    void VisitString(omu_PrimString& primitive) override { Note("string", &primitive); }
    void VisitEnum(omu_PrimEnumBase& primitive) override { Note("enum", &primitive); }
    void VisitTuple(omu_PrimTuple& primitive) override { Note("tuple", &primitive); }
    void VisitList(omu_PrimList& primitive) override { Note("list", &primitive); }

    std::string kind;
    const void* seen = nullptr;

private:
    void Note(const char* newKind, const void* primitive)
    {
        kind = newKind;
        seen = primitive;
    }
};
