#include "kbeC_assert.h"

#include "ModuleTest.h"

namespace
{

TEST(kbeC_Assert, ThrowsTheMessageOfItsCode)
{
    CheckMessages(kbeC_Assert, "QRTVdb/QRTVdbKbeC.m/src/kbeC_assert",
                  {
                      "Number of dependencies specified is less than the minimum.",
                      "At least one displacement limit must be defined.",
                      "At least one motion criterion must be defined.",
                      "At least one component must be specified for this option.",
                      "Specified components must be between 1 and 6.",
                      "Frequency dependency can only be TRUE when behavior is LINEAR.",
                      "Stick stiffness must be greater than zero.",
                      "Frequency dependency can only be TRUE when coupling is set to UNCOUPLED.",
                      "Independent components cannot be specified when coupling is set to UNCOUPLED.",
                      "Independent component list must have between 1 and 6 members.",
                      "Independent component list must not contain duplicate values.",
                      "The number of dependencies does not match the table.",
                      "At least one independent component must be specified.",
                      "Independent components are not valid when behavior is LINEAR.",
                      "Minimum displacement/rotation must be less than the maximum displacement/rotation.",
                      "Minimum force must be less than the maximum force.",
                      "Specified affected component must be between 1 and 6 or set to ALL.",
                      "Specified independent components must be between 1 and 6.",
                      "At least one independent component must be specified.",
                      "Slip direction must have value between 1 and 6.",
                      "Incomplete friction coeffient table.",
                      "Static friction coefficient must be greater than kinetic friction coefficient.",
                      "Allowable elastic slip distance must be greater than zero.",
                      "Allowable exponential decay coefficient must be greater than or equal to zero.",
                      "Friction coefficient must be greater than or equal to zero.",
                      "Allowable pressure must be greater than or equal to zero.",
                      "Allowable slip rate must be greater than or equal to zero.",
                      "Number of state dependent variables must be greater than or equal to zero.",
                      "Shear stress limit must be greater than zero.",
                      "Allowable slip rate in test data must be greater than zero.",
                      "Elastic slip tolerance fraction must be greater than zero.",
                      "Missing friction coefficient.",
                      "Missing slip rate.",
                      "Missing friction coefficient or decay coefficient.",
                      "Contact force intrinsic component must have value between 1 and 6.",
                      ("Derived component for contact force must be specified when contactForceStyle is set "
                       "to DerivedComponent."),
                      "Specified component must be between 1 and 6.",
                      "Derived component name for potential must be specified.",
                      "Slip style must be specified.",
                      "Contact force component style must be specified.",
                      "Positive exponent value cannot be less than zero.",
                      "Potential exponent value must be greater than zero.",
                      "Contact force table must have a non-zero value.",
                      "Isotropic or kinematic hardening must be specified.",
                      "A non-zero value must be specified for the yield force/moment.",
                      "The number of table columns does not match the specified options.",
                      "No affected components have been specified.",
                      "Lower and upper limits cannot both be unspecified.",
                      "Damage variable values cannot be less than 0 or greater than 1.",
                      "Damage variable table data can only have zero values in the first row of data.",
                      "Exponential law parameter values must be greater than 0.",
                      "At least one intrinsic component must be specified.",
                      "Intrinsic component values must be between 1 and 6.",
                      "Independent component type must be specified.",
                      "At least one independent component must be specified.",
                      "Derived component specifies components that are not available CORM.",
                      ("The regularize table option value must be set to ON when specifying defaultTolerance "
                       "as OFF."),
                      ("The defaultTolerance table option value must be set to OFF when specifying a "
                       "regularization value."),
                      ("The defaultRateFactor table option value must be set to OFF when specifying a "
                       "rateFactor value."),
                      "The rateFactor value must be greater than 0 and cannot be greater than 1.",
                      "NONLINEAR behavior is not supported for connector damping type is STRUCTURAL.",
                      "Temperature dependency can only be TRUE when connector damping type is VISCOUS.",
                      "The number of dependencies must be 0 when connector damping type is STRUCTURAL.",
                  });
}

} // namespace
