#pragma once

#include "kflC_Filter.h"

/// Low-pass filter with ripples in the frequencies that it lets through.
class OVR_EXPORT kflC_Chebyshev1Filter : public kflC_Filter
{
    CLS_CONCRETE(kflC_Chebyshev1Filter, kflC_Filter, 0x3510004, 427)
    CLS_WORD(constructor, "Chebyshev1Filter")

    CLS_ATTRIBUTE(double, rippleFactor, 0.225)

    /// The rules of all filters, a positive cutoff frequency, a positive ripple factor, an order from 1
    /// to 20.
    void AssertValid() const;
    CLS_END
};
