#pragma once

#include "ovr_Export.h"

/// Brings the library up: the host libraries it needs, then its modules. The first call does the work and
/// adds to `tally`, one for each component that comes up; later calls only count. Call it before any other
/// use, on one thread.
OVR_EXPORT void QRTVdbAttrEO2_initialize(int& tally);

/// Undoes one QRTVdbAttrEO2_initialize; the call that undoes the first takes everything down in reverse and
/// takes from `tally` what was added. The count is not clamped: a call too many makes the next initialization
/// a call that only counts.
OVR_EXPORT void QRTVdbAttrEO2_finalize(int& tally);

extern "C"
{
    /// As QRTVdbAttrEO2_initialize, on a tally of the library's own. Both forms share one count, so a caller
    /// may initialize through one and finalize through the other.
    OVR_EXPORT void QRTVdbAttrEO2_initializeC();

    /// As QRTVdbAttrEO2_finalize, on the library's own tally.
    OVR_EXPORT void QRTVdbAttrEO2_finalizeC();
}

/// The library's own counters, for tests and diagnosis.
struct QRTVdbAttrEO2_Counters
{
    int outerCount;         ///< Initializations not yet finalized; negative after a finalization too many.
    int innerCount;         ///< Stepped once for each first initialization.
    int privateModuleCount; ///< The tally of the C forms.
};

OVR_EXPORT QRTVdbAttrEO2_Counters QRTVdbAttrEO2_counters();
