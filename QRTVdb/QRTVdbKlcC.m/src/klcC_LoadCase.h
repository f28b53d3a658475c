#pragma once

#include "cls_Class.h"

/// A combination of loads, boundary conditions and predefined fields of a model, each by its name and with a
/// scale factor.
class OVR_EXPORT klcC_LoadCase : public mem_AllocationOperators
{
    CLS_CONCRETE_ROOT_SLOTS(klcC_LoadCase, 0x2DC0001, 1323)
    CLS_SLOT_COPY
    /// No scale factor may be zero, whether or not the load case is suppressed.
    virtual void AssertValid() const;
    CLS_SLOT_TYPE
    CLS_SLOT_WRITE
    CLS_WORD(constructor, "LoadCase")
    CLS_WORD(loadCaseRepository, "loadCases")
    CLS_WORD(name, "name")
    CLS_WORD(setValues, "setValues")
    CLS_WORD(suppressed, "suppressed")
    CLS_WORD(resume, "resume")

    /// Scale factors by the names of boundary conditions, as in the next two by those of fields and loads.
    CLS_ATTRIBUTE(cls_xpMapString2Float, boundaryConditions)
    CLS_ATTRIBUTE_AS(cls_xpMapString2Float, fields, "predefinedFields")
    CLS_ATTRIBUTE(cls_xpMapString2Float, loads)
    /// Whether the boundary conditions that hold in the base state hold here too.
    CLS_ATTRIBUTE(bool, includeActiveBaseStateBC, true)
    CLS_ATTRIBUTE(bool, suppress, false)

    void Suppress() { suppress = true; }
    void Resume() { suppress = false; }
    CLS_END
};
