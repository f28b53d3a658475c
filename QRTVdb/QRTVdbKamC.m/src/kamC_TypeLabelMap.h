#pragma once

#include "atr_String.h"
#include "cls_Module.h"

/// Kinds of amplitude that have a label.
enum kamC_TypeLabelEnm : int
{
    kamC_TypeTabular = 1,
    kamC_TypeSmoothStep,
    kamC_TypeEquallySpaced,
    kamC_TypePeriodic,
    kamC_TypeModulated,
    kamC_TypeDecay,
    kamC_TypeSolutionDependent,
    kamC_TypePsdDefinition,
    kamC_TypeSpectrum,
    kamC_TypeActuator,
    kamC_TypeUser
};

/// Labels of the kinds of amplitude, as a user reads them.
class OVR_EXPORT kamC_TypeLabelMap
{
public:
    /// The label, or an empty text for anything else.
    static atr_String LabelString(kamC_TypeLabelEnm type, QRTBasStringMode mode);
    /// All labels by value.
    static std::vector<cls_Label> Rows();
};
