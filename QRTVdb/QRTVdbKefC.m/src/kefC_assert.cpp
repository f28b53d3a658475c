#include "kefC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "Point mass/Inertia must contain mass or rotary inertia data.",       // 0
    "Diagonal terms of rotary inertia cannot possess negative magnitude", // 1
    "Mid-side node parameter should lie between 0.0 and 1.0.",            // 2
    ("Either the spring stiffness or dashpot coefficient, or both, must be selected for the "
     "spring/dashpot."),                                                         // 3
    "The region for the spring/dashpot to ground is invalid.",                   // 4
    "The degree of freedom for the spring/dashpot to ground must be specified.", // 5
    "At least one pair of points must be selected for the spring/dashpot.",      // 6
    "The degree of freedom at point 1 must be specified.",                       // 7
    "The degree of freedom at point 2 must be specified.",                       // 8
    "The dashpot coefficient must be greater than zero.",                        // 9
    "The spring stiffness must be greater than zero.",                           // 10
    "Nonstructural mass data cannot possess negative magnitude.",                // 11
    "Influence radius must be specified and must be greater than zero.",         // 12
    "Search radius must be greater than zero.",                                  // 13
    "Physical radius must be specified and must be greater than zero.",          // 14
    "Maximum layers must be greater than zero.",                                 // 15
    "A connector section must be specified.",                                    // 16
    ("Specified MPC section not yet supported for point fasteners. Point fastener supports only "
     "beam type MPC section from available MPC sections."),                                      // 17
    "The singularityCalcRadius must be greater than zero.",                                      // 18
    "The length of nodeId must match other array lengths.",                                      // 19
    "The length of hasCrackFront must match other array lengths.",                               // 20
    "The length of crackPlaneDist must match other array lengths.",                              // 21
    "The length of crackFrontDist must match other array lengths.",                              // 22
    "The crackLocation must be specified when crack growth is not allowed.",                     // 23
    "Suppressed cracks cannot be edited.",                                                       // 24
    "Suppressed inertias cannot be edited.",                                                     // 25
    "Suppressed springs/dashpots cannot be edited.",                                             // 26
    "Suppressed fasteners cannot be edited.",                                                    // 27
    "A template model must be specified.",                                                       // 28
    "A control point set must be specified.",                                                    // 29
    "A model prefix string must be specified.",                                                  // 30
    "The model prefix string cannot contain an underscore.",                                     // 31
    "The number of template model surfaces must match the number of assignment model surfaces.", // 32
    "At least one template model surface and one assignment model surface must be specified.",   // 33
    "The template model and assignment model surface names cannot be empty/blank.",              // 34
    "Point mass/inertia cannot contain both isotropic and anisotropic mass values.",             // 35
    "An interaction must be specified.",                                                         // 36
    "An initiation step must be specified.",                                                     // 37
    "Print frequency to DAT file value cannot be negative.",                                     // 38
    ("The interaction specified in the Debond VCCT crack must be Ovaris/Standard contact pair "
     "interaction"),                                                               // 39
    "The step specified in the Debond VCCT crack must be an Ovaris/Standard step", // 40
    "The target surface cannot be an edge based for Point fastners.",              // 41
    "Dummy",                                                                       // 42
};

} // namespace

constexpr cls_MessageTable kefC_Messages{"kefC_Assert", texts, static_cast<int>(std::size(texts))};

void kefC_Assert(bool condition, kefC_ErrorEnm code)
{
    if (!condition)
        cls_RaiseMessage(kefC_Messages, code, "QRTVdb/QRTVdbKefC.m/src/kefC_assert", __LINE__);
}
