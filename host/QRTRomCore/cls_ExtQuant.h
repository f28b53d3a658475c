#pragma once

#include "omi_Singleton.h"
#include "ovr_Export.h"

/// The growth steps that a class may ask for its table, in rows.
class OVR_EXPORT cls_ExtQuant : public omi_SingletonBase<cls_ExtQuant>
{
public:
    /// For classes of which a model holds many small rows.
    int ExtentQuantumConstSmall() const { return 16; }

    /// For classes of which a model holds a fair number.
    int ExtentQuantumConstMedium() const { return 64; }
};
