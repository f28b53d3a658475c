#include "kflC_TypeLabelMap.h"

#include "kflC_ButterworthFilter.h"
#include "kflC_Chebyshev1Filter.h"
#include "kflC_Chebyshev2Filter.h"
#include "kflC_OperatorFilter.h"

#include <iterator>

namespace
{

// The first label belongs to the value 1.
constexpr cls_ClassLabel labels[] = {{kflC_ButterworthFilter::TypeId(), "Butterworth Filter"},
                                     {kflC_Chebyshev1Filter::TypeId(), "Chebyshev1 Filter"},
                                     {kflC_Chebyshev2Filter::TypeId(), "Chebyshev2 Filter"},
                                     {kflC_OperatorFilter::TypeId(), "Operator Filter"}};

} // namespace

kflC_TypeLabelMap::kflC_TypeLabelMap() : cls_LabelMap(labels) {}

atr_String kflC_TypeLabelMap::LabelString(kflC_TypeLabelEnm type, QRTBasStringMode)
{
    if (type < 1 || type > static_cast<int>(std::size(labels)))
        return atr_String();
    return omi_Singleton<kflC_TypeLabelMap>::Instance()->GetTranslated(labels[type - 1].classId);
}

std::vector<cls_Label> kflC_TypeLabelMap::Rows()
{
    std::vector<cls_Label> rows;
    for (const cls_ClassLabel& label : labels)
        rows.push_back({static_cast<int>(rows.size()) + 1, label.text});
    return rows;
}
