#pragma once

#include "kflC_Filter.h"

/// Low-pass filter with ripples in the frequencies that it holds back.
class OVR_EXPORT kflC_Chebyshev2Filter : public kflC_Filter
{
    CLS_CONCRETE(kflC_Chebyshev2Filter, kflC_Filter, 0x3510005, 427)
    CLS_WORD(constructor, "Chebyshev2Filter")

    CLS_ATTRIBUTE(double, rippleFactor, 0.025)

    /// The rules of all filters, a positive cutoff frequency, a positive ripple factor of at most 1, an order
    /// from 1 to 20.
    void AssertValid() const;
    CLS_END
};
