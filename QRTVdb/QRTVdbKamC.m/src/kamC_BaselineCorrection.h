#pragma once

#include "cls_Class.h"

/// Correction of an acceleration history, so that the velocity that follows from it has no drift.
class OVR_EXPORT kamC_BaselineCorrection : public mem_AllocationOperators
{
    CLS_DIRECT(kamC_BaselineCorrection, 0x2440001, 203)
    CLS_WORD(constructor, "BaselineCorrection")

    /// Times that bound the correction intervals; none stands for one interval over the whole history.
    CLS_ATTRIBUTE(cls_xp1DArrayListDouble, intervals)

    /// The first time must not be negative, and each further one greater than that before it.
    void AssertValid() const;
    CLS_END
};

using kamC_BaselineCorrectionHandle = cow_COW<kamC_BaselineCorrection, cow_Direct<kamC_BaselineCorrection>>;
