#pragma once

#include "omi_Singleton.h"

/// The release of the system.
class OVR_EXPORT QRTBasUtlVersion : public omi_SingletonBase<QRTBasUtlVersion>
{
public:
    /// Number of the release: year and count in it. It is above every schema version that the release writes.
    int InternalVersion() const { return 2600; }
};
