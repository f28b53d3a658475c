#pragma once

#include "atr_String.h"
#include "cls_Module.h"

/// Kinds of time that have a label.
enum kamC_TimeLabelEnm : int
{
    kamC_TimeStep = 1,
    kamC_TimeTotal,
    kamC_TimeNone
};

/// Labels of the kinds of time, as a user reads them.
class OVR_EXPORT kamC_TimeLabelMap
{
public:
    /// The label, or an empty text for anything else.
    static atr_String LabelString(kamC_TimeLabelEnm time, QRTBasStringMode mode);
    /// All labels by value.
    static std::vector<cls_Label> Rows();
};
