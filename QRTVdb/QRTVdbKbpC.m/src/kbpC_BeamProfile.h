#pragma once

#include "cls_Class.h"

/// A named cross-section of beams: a shape with its dimensions, or the properties of a section.
class OVR_EXPORT kbpC_BeamProfile : public mem_AllocationOperators
{
    CLS_ABSTRACT_ROOT_SLOTS(kbpC_BeamProfile, 0x2640001, 203)
    /// The rules of the shape.
    virtual void AssertValid() const = 0;
    /// Number of points over the section at which temperatures are given. What `flag` stands for, the caller
    /// knows; a shape has a number for either.
    virtual int NumTempPoints(bool flag) const = 0;
    CLS_SLOT_ABSTRACT_COPY
    CLS_SLOT_WRITE
    CLS_SLOT_TYPE
    CLS_WORD(constructor, "Profile")
    CLS_WORD(profileRepository, "profiles")
    CLS_END
};
