#pragma once

#include "ovr_Export.h"

namespace atr_detail
{
extern OVR_EXPORT bool naturalOrder;
}

/// Whether text keys sort in natural order ("part2" before "part10"); false at start.
inline bool atr_getNaturalOrder()
{
    return atr_detail::naturalOrder;
}

/// A map is only in order while the flag is as it was when its keys went in.
inline void atr_setNaturalOrder(bool natural)
{
    atr_detail::naturalOrder = natural;
}
