#include "kadC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "Frequency value must be greater than zero.",          // 0
    "Initial remeshing sweeps must be greater than zero.", // 1
    "Sweeps per increment must be greater than zero.",     // 2
    ("Free boundary upwinding factor must be greater than or equal to zero and less than or equal to "
     "one."),                                                                                        // 3
    "Initial feature angle must be greater than or equal to zero and less than or equal to 180.",    // 4
    "Transition feature angle must be greater than or equal to zero and less than or equal to 180.", // 5
    "Volumetric smoothing weight must be greater than or equal to zero.",                            // 6
    "Laplacian smoothing weight must be greater than or equal to zero.",                             // 7
    "Equipotential smoothing weight must be greater than or equal to zero.",                         // 8
    "Mesh constraint angle must be greater than or equal to zero and less than or equal to 180.",    // 9
    "The sum of smoothing weights must be less than or equal to one.",                               // 10
    "A region must be specified.",                                                                   // 11
    "Curvature refinement must be greater than or equal to zero.",                                   // 12
    "Original configuration projection weight must be greater than or equal to zero."};              // 13

} // namespace

constexpr cls_MessageTable kadC_Messages{"kadC_Assert", texts, static_cast<int>(std::size(texts))};

void kadC_Assert(bool condition, kadC_ErrorEnm code)
{
    if (!condition)
        cls_RaiseMessage(kadC_Messages, code, "QRTVdb/QRTVdbKadC.m/src/kadC_assert", __LINE__);
}
