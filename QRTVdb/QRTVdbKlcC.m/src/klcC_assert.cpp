#include "klcC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "A scale factor cannot be zero or blank.",                                           // 0
    "Load case name must be unique to the model.",                                       // 1
    "A load or boundary condition has been specified more than once in same load case.", // 2
    "Load cases are only available for Static Linear Perturbation and Steady-State Dynamics Direct "
    "steps.", // 3
    "Boundary conditions cannot be used in a Steady state dynamics, Modal or Steady state dynamics, Subspace "
    "load case.", // 4
    "A SIM-based frequency analysis is required when using a load case in a Steady state dynamics, Modal or "
    "Steady state dynamics, Subspace step.",    // 5
    "Suppressed load cases cannot be edited."}; // 6

} // namespace

constexpr cls_MessageTable klcC_Messages{"klcC_Assert", texts, static_cast<int>(std::size(texts))};

void klcC_Assert(bool condition, klcC_ErrorEnm code)
{
    if (!condition)
        cls_RaiseMessage(klcC_Messages, code, "QRTVdb/QRTVdbKlcC.m/src/klcC_assert", __LINE__);
}
