#include "ModuleTest.h"
#include "karC_assert.h"

namespace
{

TEST(karC_Assert, ThrowsTheTextOfTheCode)
{
    CheckMessages(
        karC_Assert, "QRTVdb/QRTVdbKarC.m/src/karC_assert",
        {"The minimum element size must be smaller than the maximum element size.",
         "Suppressed remeshing rules cannot be changed.",
         "The step for the remeshing rule cannot be found in the current model.",
         "The step type is invalid for remeshing rules.",
         "Invalid variables defined for the remeshing rule. Only error variables may be included in "
         "remeshing rules.",
         "Orphan mesh nodes and elements are not allowed in the region for remeshing rules.",
         "Target errors must be specified for both the minimum and maximum base solution values.",
         "Specified target errors must be equal to or greater than zero.",
         "Specified target errors must be greater than zero.",
         "The mesh bias must be in the range of zero to 10.",
         "The specified minimum element size must be greater than zero.",
         "The specified maximum element size must be greater than zero.",
         "The specified coarsening factor must be in the range of zero to 10.",
         "The specified refinement factor must be in the range of zero to 10."});
}

} // namespace
