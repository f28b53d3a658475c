#include "kmaC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "Number of dependencies specified is less than the minimum.", // 0
    "Detonation energy should be non-negative.",                  // 1
    "The number of table columns does not match the specified options for eos ignition and growth gas "
    "specific data.",                                                                   // 2
    "Delete number is less than the minimum.",                                          // 3
    "The poisson's ratio given is less than the minimum.",                              // 4
    "The poisson's ratio given is greater than the maximum.",                           // 5
    "Value for nmax is less than the minimum.",                                         // 6
    "Value for nmax is more than the maximum.",                                         // 7
    "Eccentricity given is less than the minimum.",                                     // 8
    "Hardening rate given is less than the minimum.",                                   // 9
    "The number of constants must be larger than zero.",                                // 10
    "Material option has no such sub-option.",                                          // 11
    "Material option does not have an active sub-option of this type.",                 // 12
    "Offset plastic strain at start of failure must be greater than or equal to zero.", // 13
    "Equivalent plastic strain at failure must be greater than zero.",                  // 14
    "Invalid state variable number.",                                                   // 15
    "Void volume fraction at total failure must be greater than zero.",                 // 16
    "Critical void volume fraction must be greater than or equal to zero.",             // 17
    "",                                                                                 // 18
    "Value for n is less than the minimum.",                                            // 19
    "Value for n is greater than the maximum.",                                         // 20
    "The order n of the polynomial strain energy potential\ncan only take the values 1 or 2\nif the TEST "
    "DATA suboption is used.",                                                                    // 21
    "Fraction is greater than the maximum.",                                                      // 22
    "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s).", // 23
    "Beta must be between zero and one inclusive.",                                               // 24
    "Number of properties must be greater than or equal to zero.",                                // 25
    "Invalid hyperelastic strain energy potential type.",                                         // 26
    "Closure value must be greater than zero.",                                                   // 27
    "Relative slope drop must be greater than zero.",                                             // 28
    "Tensile tiffness factor must be greater than zero.",                                         // 29
    "Number of unloading dependencies specified is less than the minimum.",                       // 30
    "At least three rows of loading data are required.",                                          // 31
    "At least two rows of loading data are required.",                                            // 32
    "Loading data should start at 0.",                                                            // 33
    "Gasket contact area may only be defined when gasket thickness behavior has units of force.", // 34
    "invalid flow potential eccentricity in the deviatoric plane.",                               // 35
    "No compression and No tension are mutually exclusive. Please unselect one of them.",         // 36
    "Volumetric preload cannot be used with traction.",                                           // 37
    "Please specify a different set of values for Type, Softening and Mixed Mode Behavior.",      // 38
    "The plastic strain at first yield must be zero.",                                            // 39
    " The static yield stress must be defined.",                                                  // 40
    "The value of beta should be greater than or equal to zero.",                                 // 41
    "The value of m should be greater than or equal to zero.",                                    // 42
    "The value of r should be greater than 1.",                                                   // 43
    "The values of both beta and m cannot be zero at the same time.",                             // 44
    "There should be atleast one test data for TEST DATA INPUT definition",                       // 45
    "Mullins data specified using constants requires all three values.",                          // 46
    "The number of Properties specified does not match the data size.",                           // 47
    "Hyperelastic material option with N=4 requires temperature dependance.",                     // 48
    "Damage stabilization viscosity coefficient must be positive.",                               // 49
    "The value of maximum allowable principal tensile stress should be greater than zero.",       // 50
    "The tensile plastic strain at first yield must be zero.",                                    // 51
    "The absolute plastic strain at first yield must be zero.",                                   // 52
    "",                                                                                           // 53
    "The KAPPA given is less than the minimum.",                                                  // 54
    "The KAPPA given is greater than the maximum.",                                               // 55
    "Table should contain at least two data rows.",                                               // 56
    "First two cells of the first table row should be (0.,0.)",                                   // 57
    "Anisotropic material type is inappropriate for nonlinear BH material.",                      // 58
    "Frequency dependency is not applicable for nonlinear BH material.",                          // 59
    "The volumetric plastic strain at first yield must be zero.",                                 // 60
    "Invalid permeability type.\nCFD models are no longer supported.",                            // 61
    "The value of angle subdivision increment must be positive.",                                 // 62
    "The value of constituent volume fraction must be less than one and greater than zero.",      // 63
    "Constituent table is incomplete.",                                                           // 64
    "The value of isotropization coefficient must be greater than or equal to one",               // 65
    "Aspect ratio must be blank for cylinder-shaped or spherical-shaped inclusions.",             // 66
    "Aspect ratio must be one for spherical-shaped inclusions.",                                  // 67
    "Aspect ratio must be less than one for oblate-shaped or penny-shaped inclusions.",           // 68
    "Aspect ratio must be greater than one for prolate-shaped.",                                  // 69
    "The Transition temperature should be less than the melting temperature.",                    // 70
    "Damage evolution sub-option needs to be specified for use of this damage initiation.",       // 71
    "The material definition for this damage intiation needs use of 'Plastic', 'Drucker Prager' or "
    "'Crushable foam'.",                                                               // 72
    "The failure index for a damage evolution in the list exceeds permissible value.", // 73
    "More than one damage evolutions with same failure index are not allowed.",        // 74
    "Number of damage evolutions in the list exceed permissible count."};              // 75

} // namespace

constexpr cls_MessageTable kmaC_Messages{"kmaC_Assert", texts, static_cast<int>(std::size(texts))};

void kmaC_Assert(bool condition, kmaC_ErrorEnm code)
{
    if (!condition)
        cls_RaiseMessage(kmaC_Messages, code, "QRTVdb/QRTVdbKmaC.m/src/kmaC_assert", __LINE__);
}
