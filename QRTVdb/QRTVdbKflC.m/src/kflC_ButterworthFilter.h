#pragma once

#include "kflC_Filter.h"

/// Low-pass filter with a response that is as flat as can be.
class OVR_EXPORT kflC_ButterworthFilter : public kflC_Filter
{
    CLS_CONCRETE(kflC_ButterworthFilter, kflC_Filter, 0x3510003, 427)
    CLS_WORD(constructor, "ButterworthFilter")

    /// The rules of all filters, a positive cutoff frequency, an order from 1 to 20.
    void AssertValid() const;
    CLS_END
};
