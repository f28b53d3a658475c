#include "karC_ErrorVariable.h"

#include <algorithm>
#include <iterator>

namespace
{

using Sizing = karC_RemeshingRule::karC_SizingMethod;

constexpr karC_ErrorVariable errorVariables[] = {
    {"ENDENERI", "Element energy", "ENDEN", "ELEN", Sizing::UNIFORM_ERROR},
    {"MISESERI", "Mises equivalent stress", "MISESAVG", "S", Sizing::MINIMUM_MAXIMUM},
    {"PEEQERI", "Equivalent plastic strain", "PEEQAVG", "PE", Sizing::MINIMUM_MAXIMUM},
    {"PEERI", "Plastic strain", "PEAVG", "PE", Sizing::MINIMUM_MAXIMUM},
    {"CEERI", "Creep strain", "CEAVG", "CE", Sizing::MINIMUM_MAXIMUM},
    {"HFLERI", "Heat flux", "HFLAVG", "HFL", Sizing::UNIFORM_ERROR},
    {"EFLERI", "Electrical flux", "EFLAVG", "EFL", Sizing::MINIMUM_MAXIMUM},
    {"EPGERI", "Electric potential gradient", "EPGAVG", "EPG", Sizing::MINIMUM_MAXIMUM},
};

} // namespace

const karC_ErrorVariable* karC_FindErrorVariable(const cow_String& name)
{
    const auto* row =
        std::find_if(std::begin(errorVariables), std::end(errorVariables),
                     [&name](const karC_ErrorVariable& variable) { return name == variable.name; });
    return row == std::end(errorVariables) ? nullptr : row;
}
