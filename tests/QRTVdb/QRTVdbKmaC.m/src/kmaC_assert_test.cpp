#include "kmaC_assert.h"

#include "MessageTest.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

std::string Message(int code)
{
    return MessageOf("QRTVdb/QRTVdbKmaC.m/src/kmaC_assert", [code] { kmaC_Assert(false, code); });
}

TEST(kmaC_Assert, ReturnsOnTrueWhateverTheCode)
{
    for (const int code : {0, 18, 53, 75, 76, -1})
        EXPECT_NO_THROW(kmaC_Assert(true, code));
}

TEST(kmaC_Assert, ThrowsTheTextOfTheCode)
{
    const char* const texts[] = {
        "Number of dependencies specified is less than the minimum.",
        "Detonation energy should be non-negative.",
        "The number of table columns does not match the specified options for eos ignition and growth gas "
        "specific data.",
        "Delete number is less than the minimum.",
        "The poisson's ratio given is less than the minimum.",
        "The poisson's ratio given is greater than the maximum.",
        "Value for nmax is less than the minimum.",
        "Value for nmax is more than the maximum.",
        "Eccentricity given is less than the minimum.",
        "Hardening rate given is less than the minimum.",
        "The number of constants must be larger than zero.",
        "Material option has no such sub-option.",
        "Material option does not have an active sub-option of this type.",
        "Offset plastic strain at start of failure must be greater than or equal to zero.",
        "Equivalent plastic strain at failure must be greater than zero.",
        "Invalid state variable number.",
        "Void volume fraction at total failure must be greater than zero.",
        "Critical void volume fraction must be greater than or equal to zero.",
        "",
        "Value for n is less than the minimum.",
        "Value for n is greater than the maximum.",
        "The order n of the polynomial strain energy potential\ncan only take the values 1 or 2\nif the TEST "
        "DATA suboption is used.",
        "Fraction is greater than the maximum.",
        "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s).",
        "Beta must be between zero and one inclusive.",
        "Number of properties must be greater than or equal to zero.",
        "Invalid hyperelastic strain energy potential type.",
        "Closure value must be greater than zero.",
        "Relative slope drop must be greater than zero.",
        "Tensile tiffness factor must be greater than zero.",
        "Number of unloading dependencies specified is less than the minimum.",
        "At least three rows of loading data are required.",
        "At least two rows of loading data are required.",
        "Loading data should start at 0.",
        "Gasket contact area may only be defined when gasket thickness behavior has units of force.",
        "invalid flow potential eccentricity in the deviatoric plane.",
        "No compression and No tension are mutually exclusive. Please unselect one of them.",
        "Volumetric preload cannot be used with traction.",
        "Please specify a different set of values for Type, Softening and Mixed Mode Behavior.",
        "The plastic strain at first yield must be zero.",
        " The static yield stress must be defined.",
        "The value of beta should be greater than or equal to zero.",
        "The value of m should be greater than or equal to zero.",
        "The value of r should be greater than 1.",
        "The values of both beta and m cannot be zero at the same time.",
        "There should be atleast one test data for TEST DATA INPUT definition",
        "Mullins data specified using constants requires all three values.",
        "The number of Properties specified does not match the data size.",
        "Hyperelastic material option with N=4 requires temperature dependance.",
        "Damage stabilization viscosity coefficient must be positive.",
        "The value of maximum allowable principal tensile stress should be greater than zero.",
        "The tensile plastic strain at first yield must be zero.",
        "The absolute plastic strain at first yield must be zero.",
        "",
        "The KAPPA given is less than the minimum.",
        "The KAPPA given is greater than the maximum.",
        "Table should contain at least two data rows.",
        "First two cells of the first table row should be (0.,0.)",
        "Anisotropic material type is inappropriate for nonlinear BH material.",
        "Frequency dependency is not applicable for nonlinear BH material.",
        "The volumetric plastic strain at first yield must be zero.",
        "Invalid permeability type.\nCFD models are no longer supported.",
        "The value of angle subdivision increment must be positive.",
        "The value of constituent volume fraction must be less than one and greater than zero.",
        "Constituent table is incomplete.",
        "The value of isotropization coefficient must be greater than or equal to one",
        "Aspect ratio must be blank for cylinder-shaped or spherical-shaped inclusions.",
        "Aspect ratio must be one for spherical-shaped inclusions.",
        "Aspect ratio must be less than one for oblate-shaped or penny-shaped inclusions.",
        "Aspect ratio must be greater than one for prolate-shaped.",
        "The Transition temperature should be less than the melting temperature.",
        "Damage evolution sub-option needs to be specified for use of this damage initiation.",
        "The material definition for this damage intiation needs use of 'Plastic', 'Drucker Prager' or "
        "'Crushable foam'.",
        "The failure index for a damage evolution in the list exceeds permissible value.",
        "More than one damage evolutions with same failure index are not allowed.",
        "Number of damage evolutions in the list exceed permissible count."};
    ASSERT_EQ(76u, std::size(texts));
    for (int code = 0; code < 76; ++code)
        EXPECT_EQ(texts[code], Message(code)) << code;
}

TEST(kmaC_Assert, ThrowsAnEmptyTextForAnUnknownCode)
{
    for (const int code : {-1, 76, 99, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ("", Message(code)) << code;
}

} // namespace
