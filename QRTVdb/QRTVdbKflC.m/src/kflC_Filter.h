#pragma once

#include "cls_Class.h"

/// Symbol of the filter that the system defines itself.
OMU_NAMESPACE_ENUM(kflC_DefaultFilterEnm, ANTIALIASING = 0)

/// A named signal filter of output, with an operation on what it lets through and a limit of that.
class OVR_EXPORT kflC_Filter : public mem_AllocationOperators
{
    CLS_CONCRETE_ROOT(kflC_Filter, 0x3510002, 1412)
    CLS_WORD(constructor, "Filter")
    CLS_WORD(filterRepository, "filters")
    OMU_ENUM(OperationEnm, NONE = 0, MIN = 1, MAX = 2, ABS = 3)
    OMU_ENUM(InvariantEnm, NONE = 0, FIRST = 1, SECOND = 2)

    CLS_ATTRIBUTE(double, cutoffFrequency, 0.0)
    CLS_ATTRIBUTE(int, order, 2)
    CLS_ATTRIBUTE(OperationEnm, operation, OperationEnm::NONE)
    /// Whether the analysis stops where the limit is reached.
    CLS_ATTRIBUTE(bool, halt, false)
    /// Bound of the filtered value; may be not set.
    CLS_ATTRIBUTE(double, limit, cls_UnsetDouble)
    CLS_ATTRIBUTE(InvariantEnm, invariant, InvariantEnm::NONE)

    /// ABS wants a positive limit, one that is not set among them; a limit and an invariant want an
    /// operation, a halt wants a limit.
    void AssertValid() const;
    CLS_END
};
