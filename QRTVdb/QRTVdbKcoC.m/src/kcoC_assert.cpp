#include "kcoC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "Equation must have two or more terms.",                     // 0
    "The Cosntraint container is empty.",                        // 1
    "Constraint does not exist.",                                // 2
    "Unable to copy unknown constraint type.",                   // 3
    "Degree of freedom must be greater than zero.",              // 4
    "The main portion of the Tie constraint must be a surface.", // 5
    "Set to adjust for Tie-constraint overclosure is invalid.",  // 6
    "Rotational DOF's cannot be tied in an Explicit analysis.",  // 7
    ("For the distributing constraint, all displacement degrees of freedom\nneed to be "
     "constrained."),                                          // 8
    "The display body constraint must have a valid instance.", // 9
};

} // namespace

constexpr cls_MessageTable kcoC_Messages{"kcoC_Assert", texts, static_cast<int>(std::size(texts))};

void kcoC_Assert(bool condition, kcoC_ErrorEnm code)
{
    if (!condition)
        cls_RaiseMessage(kcoC_Messages, code, "QRTVdb/QRTVdbKcoC.m/src/kcoC_assert", __LINE__);
}
