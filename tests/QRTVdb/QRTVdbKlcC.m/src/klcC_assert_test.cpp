#include "ModuleTest.h"
#include "klcC_assert.h"

namespace
{

TEST(klcC_Assert, ThrowsTheTextOfTheCode)
{
    CheckMessages(
        klcC_Assert, "QRTVdb/QRTVdbKlcC.m/src/klcC_assert",
        {"A scale factor cannot be zero or blank.", "Load case name must be unique to the model.",
         "A load or boundary condition has been specified more than once in same load case.",
         "Load cases are only available for Static Linear Perturbation and Steady-State Dynamics Direct "
         "steps.",
         "Boundary conditions cannot be used in a Steady state dynamics, Modal or Steady state dynamics, "
         "Subspace load case.",
         "A SIM-based frequency analysis is required when using a load case in a Steady state dynamics, "
         "Modal or Steady state dynamics, Subspace step.",
         "Suppressed load cases cannot be edited."});
}

} // namespace
