#pragma once

#include "kflC_Filter.h"

/// Filter that does nothing but carry out its operation; cutoff frequency and order keep their defaults.
class OVR_EXPORT kflC_OperatorFilter : public kflC_Filter
{
    CLS_CONCRETE(kflC_OperatorFilter, kflC_Filter, 0x351000D, 1357)
    CLS_WORD(constructor, "OperatorFilter")

    /// The rules of all filters, no cutoff frequency, the order of a new filter, an operation.
    void AssertValid() const;
    CLS_END
};
