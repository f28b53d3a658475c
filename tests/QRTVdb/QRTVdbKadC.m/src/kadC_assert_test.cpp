#include "ModuleTest.h"
#include "kadC_assert.h"

namespace
{

TEST(kadC_Assert, ThrowsTheTextOfTheCode)
{
    CheckMessages(
        kadC_Assert, "QRTVdb/QRTVdbKadC.m/src/kadC_assert",
        {"Frequency value must be greater than zero.", "Initial remeshing sweeps must be greater than zero.",
         "Sweeps per increment must be greater than zero.",
         "Free boundary upwinding factor must be greater than or equal to zero and less than or equal to "
         "one.",
         "Initial feature angle must be greater than or equal to zero and less than or equal to 180.",
         "Transition feature angle must be greater than or equal to zero and less than or equal to 180.",
         "Volumetric smoothing weight must be greater than or equal to zero.",
         "Laplacian smoothing weight must be greater than or equal to zero.",
         "Equipotential smoothing weight must be greater than or equal to zero.",
         "Mesh constraint angle must be greater than or equal to zero and less than or equal to 180.",
         "The sum of smoothing weights must be less than or equal to one.", "A region must be specified.",
         "Curvature refinement must be greater than or equal to zero.",
         "Original configuration projection weight must be greater than or equal to zero."});
}

} // namespace
