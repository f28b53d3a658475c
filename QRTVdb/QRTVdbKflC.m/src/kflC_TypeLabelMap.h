#pragma once

#include "cls_LabelMap.h"

/// Kinds of filter that have a label.
enum kflC_TypeLabelEnm : int
{
    kflC_TypeButterworth = 1,
    kflC_TypeChebyshev1,
    kflC_TypeChebyshev2,
    kflC_TypeOperator
};

/// Labels of the kinds of filter, as a user reads them; in the map by the class id of the kind.
class OVR_EXPORT kflC_TypeLabelMap : public cls_LabelMap<kflC_TypeLabelMap>
{
public:
    kflC_TypeLabelMap();

    /// The translated label, or an empty text for anything else.
    static atr_String LabelString(kflC_TypeLabelEnm type, QRTBasStringMode mode);
    /// All labels by value, not translated.
    static std::vector<cls_Label> Rows();
};
