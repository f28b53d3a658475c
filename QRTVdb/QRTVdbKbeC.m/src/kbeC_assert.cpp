#include "kbeC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "Number of dependencies specified is less than the minimum.",                         // 0
    "At least one displacement limit must be defined.",                                   // 1
    "At least one motion criterion must be defined.",                                     // 2
    "At least one component must be specified for this option.",                          // 3
    "Specified components must be between 1 and 6.",                                      // 4
    "Frequency dependency can only be TRUE when behavior is LINEAR.",                     // 5
    "Stick stiffness must be greater than zero.",                                         // 6
    "Frequency dependency can only be TRUE when coupling is set to UNCOUPLED.",           // 7
    "Independent components cannot be specified when coupling is set to UNCOUPLED.",      // 8
    "Independent component list must have between 1 and 6 members.",                      // 9
    "Independent component list must not contain duplicate values.",                      // 10
    "The number of dependencies does not match the table.",                               // 11
    "At least one independent component must be specified.",                              // 12
    "Independent components are not valid when behavior is LINEAR.",                      // 13
    "Minimum displacement/rotation must be less than the maximum displacement/rotation.", // 14
    "Minimum force must be less than the maximum force.",                                 // 15
    "Specified affected component must be between 1 and 6 or set to ALL.",                // 16
    "Specified independent components must be between 1 and 6.",                          // 17
    "At least one independent component must be specified.",                              // 18
    "Slip direction must have value between 1 and 6.",                                    // 19
    "Incomplete friction coeffient table.",                                               // 20
    "Static friction coefficient must be greater than kinetic friction coefficient.",     // 21
    "Allowable elastic slip distance must be greater than zero.",                         // 22
    "Allowable exponential decay coefficient must be greater than or equal to zero.",     // 23
    "Friction coefficient must be greater than or equal to zero.",                        // 24
    "Allowable pressure must be greater than or equal to zero.",                          // 25
    "Allowable slip rate must be greater than or equal to zero.",                         // 26
    "Number of state dependent variables must be greater than or equal to zero.",         // 27
    "Shear stress limit must be greater than zero.",                                      // 28
    "Allowable slip rate in test data must be greater than zero.",                        // 29
    "Elastic slip tolerance fraction must be greater than zero.",                         // 30
    "Missing friction coefficient.",                                                      // 31
    "Missing slip rate.",                                                                 // 32
    "Missing friction coefficient or decay coefficient.",                                 // 33
    "Contact force intrinsic component must have value between 1 and 6.",                 // 34
    ("Derived component for contact force must be specified when contactForceStyle is set to "
     "DerivedComponent."),                                                            // 35
    "Specified component must be between 1 and 6.",                                   // 36
    "Derived component name for potential must be specified.",                        // 37
    "Slip style must be specified.",                                                  // 38
    "Contact force component style must be specified.",                               // 39
    "Positive exponent value cannot be less than zero.",                              // 40
    "Potential exponent value must be greater than zero.",                            // 41
    "Contact force table must have a non-zero value.",                                // 42
    "Isotropic or kinematic hardening must be specified.",                            // 43
    "A non-zero value must be specified for the yield force/moment.",                 // 44
    "The number of table columns does not match the specified options.",              // 45
    "No affected components have been specified.",                                    // 46
    "Lower and upper limits cannot both be unspecified.",                             // 47
    "Damage variable values cannot be less than 0 or greater than 1.",                // 48
    "Damage variable table data can only have zero values in the first row of data.", // 49
    "Exponential law parameter values must be greater than 0.",                       // 50
    "At least one intrinsic component must be specified.",                            // 51
    "Intrinsic component values must be between 1 and 6.",                            // 52
    "Independent component type must be specified.",                                  // 53
    "At least one independent component must be specified.",                          // 54
    "Derived component specifies components that are not available CORM.",            // 55
    ("The regularize table option value must be set to ON when specifying defaultTolerance as "
     "OFF."), // 56
    ("The defaultTolerance table option value must be set to OFF when specifying a "
     "regularization value."), // 57
    ("The defaultRateFactor table option value must be set to OFF when specifying a rateFactor "
     "value."),                                                                        // 58
    "The rateFactor value must be greater than 0 and cannot be greater than 1.",       // 59
    "NONLINEAR behavior is not supported for connector damping type is STRUCTURAL.",   // 60
    "Temperature dependency can only be TRUE when connector damping type is VISCOUS.", // 61
    "The number of dependencies must be 0 when connector damping type is STRUCTURAL.", // 62
};

} // namespace

constexpr cls_MessageTable kbeC_Messages{"kbeC_Assert", texts, static_cast<int>(std::size(texts))};

void kbeC_Assert(bool condition, kbeC_ErrorEnm code)
{
    if (!condition)
        cls_RaiseMessage(kbeC_Messages, code, "QRTVdb/QRTVdbKbeC.m/src/kbeC_assert", __LINE__);
}
