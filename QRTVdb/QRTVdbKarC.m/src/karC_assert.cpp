#include "karC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "The minimum element size must be smaller than the maximum element size.", // 0
    "Suppressed remeshing rules cannot be changed.",                           // 1
    "The step for the remeshing rule cannot be found in the current model.",   // 2
    "The step type is invalid for remeshing rules.",                           // 3
    ("Invalid variables defined for the remeshing rule. Only error variables may be included in remeshing "
     "rules."),                                                                               // 4
    "Orphan mesh nodes and elements are not allowed in the region for remeshing rules.",      // 5
    "Target errors must be specified for both the minimum and maximum base solution values.", // 6
    "Specified target errors must be equal to or greater than zero.",                         // 7
    "Specified target errors must be greater than zero.",                                     // 8
    "The mesh bias must be in the range of zero to 10.",                                      // 9
    "The specified minimum element size must be greater than zero.",                          // 10
    "The specified maximum element size must be greater than zero.",                          // 11
    "The specified coarsening factor must be in the range of zero to 10.",                    // 12
    "The specified refinement factor must be in the range of zero to 10."};                   // 13

} // namespace

constexpr cls_MessageTable karC_Messages{"karC_Assert", texts, static_cast<int>(std::size(texts))};

void karC_Assert(bool condition, karC_ErrorEnm code)
{
    if (!condition)
        cls_RaiseMessage(karC_Messages, code, "QRTVdb/QRTVdbKarC.m/src/karC_assert", __LINE__);
}
