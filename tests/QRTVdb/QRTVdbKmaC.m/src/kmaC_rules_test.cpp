#include "MaterialSupport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

const std::string shortNmax = "Value for nmax is less than the minimum.";
const std::string longNmax = "Value for nmax is more than the maximum.";
const std::string lowRatio = "The poisson's ratio given is less than the minimum.";
const std::string highRatio = "The poisson's ratio given is greater than the maximum.";
const std::string lowOrder = "Value for n is less than the minimum.";
const std::string highOrder = "Value for n is greater than the maximum.";
const std::string badBeta = "Beta must be between zero and one inclusive.";
const std::string fewProperties = "Number of properties must be greater than or equal to zero.";
const std::string bothExcluded =
    "No compression and No tension are mutually exclusive. Please unselect one of them.";
const std::string volumetricTraction = "Volumetric preload cannot be used with traction.";
const std::string firstYield = "The plastic strain at first yield must be zero.";
const std::string lowStressLimit =
    "The value of maximum allowable principal tensile stress should be greater than zero.";
const std::string incompleteTable = "Constituent table is incomplete.";
const std::string tensileFailureRefused =
    " Error: Tensile Failure suboption can be used only for the Isotropic or Johnson-Cook Hardening type in "
    "Plastic. ";
const std::string emptyMessage = "";

const double justBelowZero = -std::numeric_limits<double>::denorm_min();
const double infinite = std::numeric_limits<double>::infinity();

// Rules that many options share.

template <class T>
std::vector<RuleRow<T>> DependencyRows()
{
    return {
        {"no field variables", [](T& o) { o.dependencies = 0; }, passes},
        {"many field variables", [](T& o) { o.dependencies = std::numeric_limits<int>::max(); }, passes},
        {"minus one field variable", [](T& o) { o.dependencies = -1; }, fewDependencies},
        {"least count of field variables", [](T& o) { o.dependencies = std::numeric_limits<int>::min(); },
         fewDependencies},
    };
}

template <class T>
std::vector<RuleRow<T>> TableRows()
{
    return {
        {"empty table", [](T& o) { o.table = kmaC_MaterialTable(); }, passes},
        {"blank table",
         [](T& o)
         {
             o.table = BlankTable();
             o.table.allowEmptyFirstRow = false;
         },
         blankRow},
        {"blank first row that is allowed",
         [](T& o)
         {
             o.table = BlankTable();
             o.table.allowEmptyFirstRow = true;
         },
         passes},
    };
}

template <class T>
class WithDependentTable : public testing::Test
{};

using DependentTables = testing::Types<kmaC_FailStress, kmaC_FailStrain, kmaC_Potential, kmaC_RateDependent,
                                       kmaC_CyclicHardening, kmaC_AnnealTemperature, kmaC_TensileFailure,
                                       kmaC_PlasticityCorrection, kmaC_FoamHardening>;
TYPED_TEST_SUITE(WithDependentTable, DependentTables);

TYPED_TEST(WithDependentTable, ChecksDependenciesThenTable)
{
    CheckRules(TypeParam(), DependencyRows<TypeParam>());
    CheckRules(TypeParam(), TableRows<TypeParam>());
    CheckRules(TypeParam(), {{"both",
                              [](TypeParam& o)
                              {
                                  o.dependencies = -1;
                                  o.table = BlankTable();
                              },
                              fewDependencies}});
}

template <class T>
class WithTableAlone : public testing::Test
{};

using TablesAlone =
    testing::Types<kmaC_CycledPlastic, kmaC_DeformationPlasticity, kmaC_CombinedTestData, kmaC_Hysteresis>;
TYPED_TEST_SUITE(WithTableAlone, TablesAlone);

TYPED_TEST(WithTableAlone, ChecksTheTable)
{
    CheckRules(TypeParam(), TableRows<TypeParam>());
}

template <class T>
class WithoutRules : public testing::Test
{};

using NoRules =
    testing::Types<kmaC_Hypoelastic, kmaC_Trs, kmaC_ShearTestData, kmaC_SimpleShearTestData,
                   kmaC_UniaxialTestData, kmaC_BiaxialTestData, kmaC_PlanarTestData, kmaC_VolumetricTestData>;
TYPED_TEST_SUITE(WithoutRules, NoRules);

TYPED_TEST(WithoutRules, DoesNotScanItsTable)
{
    TypeParam option;
    option.table = BlankTable();
    if constexpr (requires { option.dependencies; })
        option.dependencies = -1;
    EXPECT_EQ(passes, Verdict(option));
}

TEST(kmaC_Ornl, ChecksNothing)
{
    kmaC_Ornl option;
    option.a = notANumber;
    option.h = -1.0;
    EXPECT_EQ(passes, Verdict(option));
}

TEST(kmaC_Regularization, ChecksNothing)
{
    kmaC_Regularization option;
    option.rtol = notANumber;
    EXPECT_EQ(passes, Verdict(option));
}

TEST(kmaC_Shear, ChecksDependenciesAlone)
{
    CheckRules(kmaC_Shear(), DependencyRows<kmaC_Shear>());
    CheckRules(kmaC_Shear(), {{"blank table", [](auto& o) { o.table = BlankTable(); }, passes}});
}

TEST(kmaC_Elastic, ChecksItsRulesInOrder)
{
    using T = kmaC_Elastic;
    CheckRules(T(), DependencyRows<T>());
    CheckRules(T(), TableRows<T>());
    const auto exclude = [](T& o)
    {
        o.noCompression = true;
        o.noTension = true;
    };
    CheckRules<T>(T(),
                  {
                      {"no compression", [](T& o) { o.noCompression = true; }, passes},
                      {"no tension", [](T& o) { o.noTension = true; }, passes},
                      {"neither", exclude, bothExcluded},
                      {"neither, and negative dependencies",
                       [exclude](T& o)
                       {
                           exclude(o);
                           o.dependencies = -1;
                       },
                       bothExcluded},
                      {"negative dependencies, and a broken sub-option",
                       [](T& o)
                       {
                           o.dependencies = -1;
                           o.failStrain = WithBlankTable<kmaC_FailStrain>();
                       },
                       fewDependencies},
                      {"failStrain before failStress",
                       [](T& o)
                       {
                           o.failStrain = WithBlankTable<kmaC_FailStrain>();
                           o.failStress = WithNegativeDependencies<kmaC_FailStress>();
                       },
                       blankRow},
                      {"failStress before the table",
                       [](T& o)
                       {
                           o.failStress = WithNegativeDependencies<kmaC_FailStress>();
                           o.table = BlankTable();
                       },
                       fewDependencies},
                  });
    for (int type = 0; type <= 10; ++type)
    {
        T option;
        option.type = static_cast<T::TypeEnm>(type);
        option.moduli = T::ModuliEnm::INSTANTANEOUS;
        EXPECT_EQ(passes, Verdict(option)) << "neither type nor moduli is tested";
    }
}

using Hyperelastic = kmaC_Hyperelastic;

Hyperelastic OfType(Hyperelastic::TypeEnm type, bool testData)
{
    Hyperelastic option;
    option.type = type;
    option.testData = testData;
    return option;
}

struct OrderRow
{
    Hyperelastic::TypeEnm type;
    bool testData;
    int n;
    std::string verdict;
};

TEST(kmaC_Hyperelastic, BoundsTheOrderOfSomePotentials)
{
    using enum Hyperelastic::TypeEnm;
    const OrderRow rows[] = {
        {OGDEN, true, 0, lowOrder},
        {OGDEN, true, 1, passes},
        {OGDEN, true, 6, passes},
        {OGDEN, true, 7, highOrder},
        {OGDEN, false, 0, lowOrder},
        {OGDEN, false, 6, passes},
        {OGDEN, false, 7, highOrder},
        {POLYNOMIAL, true, 0, lowOrder},
        {POLYNOMIAL, true, 1, passes},
        {POLYNOMIAL, true, 2, passes},
        {POLYNOMIAL, true, 3, highOrder},
        {POLYNOMIAL, false, 0, lowOrder},
        {POLYNOMIAL, false, 6, passes},
        {POLYNOMIAL, false, 7, highOrder},
        {REDUCED_POLYNOMIAL, true, 0, lowOrder},
        {REDUCED_POLYNOMIAL, true, 6, passes},
        {REDUCED_POLYNOMIAL, true, 7, highOrder},
        {REDUCED_POLYNOMIAL, false, 7, highOrder},
        {ARRUDA_BOYCE, true, 0, passes},
        {MARLOW, true, 99, passes},
        {MOONEY_RIVLIN, true, -1, passes},
        {NEO_HOOKE, false, 0, passes},
        {USER, false, 0, passes},
        {VAN_DER_WAALS, true, 0, passes},
        {YEOH, true, 0, passes},
        {UNKNOWN, true, 0, passes},
        {VALANIS_LANDEL, true, 0, passes},
    };
    for (const OrderRow& row : rows)
    {
        Hyperelastic option = OfType(row.type, row.testData);
        option.n = row.n;
        EXPECT_EQ(row.verdict, Verdict(option))
            << "type " << static_cast<int>(row.type) << ", test data " << row.testData << ", n " << row.n;
        option.materialType = Hyperelastic::MaterialTypeEnm::ANISOTROPIC;
        EXPECT_EQ(passes, Verdict(option)) << "the order matters to isotropic materials alone";
    }
}

TEST(kmaC_Hyperelastic, ChecksItsTestDataInOrder)
{
    using T = Hyperelastic;
    // Of its sub-options the hysteresis alone has rules.
    CheckRules<T>(
        T(),
        {
            {"hysteresis", [](T& o) { o.hysteresis = WithBlankTable<kmaC_Hysteresis>(); }, blankRow},
            {"test data that are not scanned",
             [](T& o)
             {
                 o.biaxialTestData = WithBlankTable<kmaC_BiaxialTestData>();
                 o.planarTestData = WithBlankTable<kmaC_PlanarTestData>();
                 o.uniaxialTestData = WithBlankTable<kmaC_UniaxialTestData>();
                 o.volumetricTestData = WithBlankTable<kmaC_VolumetricTestData>();
             },
             passes},
            {"order before hysteresis",
             [](T& o)
             {
                 o.type = T::TypeEnm::OGDEN;
                 o.n = 7;
                 o.hysteresis = WithBlankTable<kmaC_Hysteresis>();
             },
             highOrder},
            {"hysteresis before beta",
             [](T& o)
             {
                 o.type = T::TypeEnm::VAN_DER_WAALS;
                 o.beta = 2.0;
                 o.hysteresis = WithBlankTable<kmaC_Hysteresis>();
             },
             blankRow},
            {"hysteresis before properties",
             [](T& o)
             {
                 o.type = T::TypeEnm::USER;
                 o.properties = -1;
                 o.hysteresis = WithBlankTable<kmaC_Hysteresis>();
             },
             blankRow},
            {"hysteresis of an anisotropic material",
             [](T& o)
             {
                 o.materialType = T::MaterialTypeEnm::ANISOTROPIC;
                 o.hysteresis = WithBlankTable<kmaC_Hysteresis>();
             },
             passes},
        });
}

TEST(kmaC_Hyperelastic, BoundsBetaOfFittedVanDerWaals)
{
    using T = Hyperelastic;
    CheckRules<T>(OfType(T::TypeEnm::VAN_DER_WAALS, true),
                  {
                      {"beta not set", [](T& o) { o.beta = cls_UnsetDouble; }, passes},
                      {"beta 0", [](T& o) { o.beta = 0.0; }, passes},
                      {"beta 1", [](T& o) { o.beta = 1.0; }, passes},
                      {"beta just below 0", [](T& o) { o.beta = justBelowZero; }, badBeta},
                      {"beta just above 1", [](T& o) { o.beta = std::nextafter(1.0, 2.0); }, badBeta},
                      {"beta infinite", [](T& o) { o.beta = infinite; }, badBeta},
                      {"beta NaN", [](T& o) { o.beta = notANumber; }, badBeta},
                      {"beta 2 without test data",
                       [](T& o)
                       {
                           o.beta = 2.0;
                           o.testData = false;
                       },
                       passes},
                      {"beta 2 of another potential",
                       [](T& o)
                       {
                           o.beta = 2.0;
                           o.type = T::TypeEnm::YEOH;
                       },
                       passes},
                  });
}

TEST(kmaC_Hyperelastic, ChecksPropertiesAndTable)
{
    using T = Hyperelastic;
    CheckRules(OfType(T::TypeEnm::UNKNOWN, false), TableRows<T>());
    CheckRules<T>(OfType(T::TypeEnm::USER, false),
                  {
                      {"no properties", [](T& o) { o.properties = 0; }, passes},
                      {"negative properties", [](T& o) { o.properties = -1; }, fewProperties},
                      {"negative properties with test data",
                       [](T& o)
                       {
                           o.properties = -1;
                           o.testData = true;
                       },
                       fewProperties},
                      {"negative properties of another potential",
                       [](T& o)
                       {
                           o.properties = -1;
                           o.type = T::TypeEnm::YEOH;
                       },
                       passes},
                      {"properties before table",
                       [](T& o)
                       {
                           o.properties = -1;
                           o.table = BlankTable();
                       },
                       fewProperties},
                      {"blank table with test data",
                       [](T& o)
                       {
                           o.testData = true;
                           o.table = BlankTable();
                       },
                       passes},
                  });
}

TEST(kmaC_Hyperelastic, ChecksAnisotropicMaterials)
{
    using T = Hyperelastic;
    using enum T::AnisotropicTypeEnm;
    T valid;
    valid.materialType = T::MaterialTypeEnm::ANISOTROPIC;
    CheckRules(valid, TableRows<T>());
    CheckRules<T>(
        valid,
        {
            {"Holzapfel without directions", [](T& o) { o.anisotropicType = HOLZAPFEL; }, emptyMessage},
            {"Holzapfel with minus one direction",
             [](T& o)
             {
                 o.anisotropicType = HOLZAPFEL;
                 o.localDirections = -1;
             },
             emptyMessage},
            {"Holzapfel with one direction",
             [](T& o)
             {
                 o.anisotropicType = HOLZAPFEL;
                 o.localDirections = 1;
             },
             passes},
            {"directions before table",
             [](T& o)
             {
                 o.anisotropicType = HOLZAPFEL;
                 o.table = BlankTable();
             },
             emptyMessage},
            {"Holzapfel with a blank table",
             [](T& o)
             {
                 o.anisotropicType = HOLZAPFEL;
                 o.localDirections = 2;
                 o.table = BlankTable();
             },
             blankRow},
            {"Fung with a blank table, test data or not",
             [](T& o)
             {
                 o.anisotropicType = FUNG_ORTHOTROPIC;
                 o.testData = true;
                 o.table = BlankTable();
             },
             blankRow},
            {"user-defined without properties",
             [](T& o)
             {
                 o.anisotropicType = USER_DEFINED;
                 o.table = BlankTable();
             },
             passes},
            {"user-defined with negative properties",
             [](T& o)
             {
                 o.anisotropicType = USER_DEFINED;
                 o.properties = -1;
                 o.table = BlankTable();
             },
             passes},
            {"user-defined with properties",
             [](T& o)
             {
                 o.anisotropicType = USER_DEFINED;
                 o.properties = 1;
                 o.table = BlankTable();
             },
             blankRow},
            {"directions of no consequence",
             [](T& o)
             {
                 o.anisotropicType = FUNG_ANISOTROPIC;
                 o.localDirections = -1;
             },
             passes},
        });
    T isotropic;
    isotropic.anisotropicType = HOLZAPFEL;
    EXPECT_EQ(passes, Verdict(isotropic));
}

TEST(kmaC_Hyperfoam, ChecksItsRulesInOrder)
{
    using T = kmaC_Hyperfoam;
    CheckRules(T(), TableRows<T>());
    CheckRules<T>(T(),
                  {
                      {"order 0", [](T& o) { o.n = 0; }, lowOrder},
                      {"order 1", [](T& o) { o.n = 1; }, passes},
                      {"order 6", [](T& o) { o.n = 6; }, passes},
                      {"order 7", [](T& o) { o.n = 7; }, highOrder},
                      {"ratio 0", [](T& o) { o.poisson = 0.0; }, passes},
                      {"ratio -0.0", [](T& o) { o.poisson = -0.0; }, passes},
                      {"ratio 0.5", [](T& o) { o.poisson = 0.5; }, passes},
                      {"ratio not set", [](T& o) { o.poisson = cls_UnsetDouble; }, passes},
                      {"ratio just below 0", [](T& o) { o.poisson = justBelowZero; }, lowRatio},
                      {"ratio just above 0.5", [](T& o) { o.poisson = std::nextafter(0.5, 1.0); }, highRatio},
                      {"ratio infinite", [](T& o) { o.poisson = infinite; }, highRatio},
                      {"ratio minus infinite", [](T& o) { o.poisson = -infinite; }, lowRatio},
                      {"ratio NaN", [](T& o) { o.poisson = notANumber; }, lowRatio},
                      {"order before ratio",
                       [](T& o)
                       {
                           o.n = 7;
                           o.poisson = -1.0;
                       },
                       highOrder},
                      {"ratio before table",
                       [](T& o)
                       {
                           o.poisson = 1.0;
                           o.table = BlankTable();
                       },
                       highRatio},
                      {"blank table with test data",
                       [](T& o)
                       {
                           o.testData = true;
                           o.table = BlankTable();
                           o.biaxialTestData = WithBlankTable<kmaC_BiaxialTestData>();
                           o.planarTestData = WithBlankTable<kmaC_PlanarTestData>();
                           o.simpleShearTestData = WithBlankTable<kmaC_SimpleShearTestData>();
                           o.uniaxialTestData = WithBlankTable<kmaC_UniaxialTestData>();
                           o.volumetricTestData = WithBlankTable<kmaC_VolumetricTestData>();
                       },
                       passes},
                  });
}

TEST(kmaC_LowDensityFoam, BoundsTheStress)
{
    using T = kmaC_LowDensityFoam;
    CheckRules<T>(
        T(),
        {
            {"stress not set", [](T& o) { o.maxAllowablePrincipalStress = cls_UnsetDouble; }, passes},
            {"stress above 0", [](T& o) { o.maxAllowablePrincipalStress = 5e-324; }, passes},
            {"stress infinite", [](T& o) { o.maxAllowablePrincipalStress = infinite; }, passes},
            {"stress 0", [](T& o) { o.maxAllowablePrincipalStress = 0.0; }, lowStressLimit},
            {"stress just below 0", [](T& o) { o.maxAllowablePrincipalStress = justBelowZero; },
             lowStressLimit},
            {"stress NaN", [](T& o) { o.maxAllowablePrincipalStress = notANumber; }, lowStressLimit},
            {"test data that are not scanned",
             [](T& o)
             {
                 o.uniaxialTensionTestData = WithBlankTable<kmaC_UniaxialTestData>();
                 o.uniaxialCompressionTestData = WithNegativeDependencies<kmaC_UniaxialTestData>();
             },
             passes},
        });
}

using Plastic = kmaC_Plastic;

Plastic ValidPlastic()
{
    Plastic option;
    option.table = TableOf({{200.0, 0.0}, {300.0, 0.1}});
    return option;
}

TEST(kmaC_Plastic, ChecksDependenciesThenSubOptionsInOrder)
{
    using T = Plastic;
    CheckRules(ValidPlastic(), DependencyRows<T>());
    CheckRules<T>(ValidPlastic(),
                  {
                      {"dependencies before sub-options",
                       [](T& o)
                       {
                           o.dependencies = -1;
                           o.rateDependent = WithBlankTable<kmaC_RateDependent>();
                       },
                       fewDependencies},
                      {"rateDependent before potential",
                       [](T& o)
                       {
                           o.rateDependent = WithBlankTable<kmaC_RateDependent>();
                           o.potential = WithNegativeDependencies<kmaC_Potential>();
                       },
                       blankRow},
                      {"potential before cyclicHardening",
                       [](T& o)
                       {
                           o.potential = WithNegativeDependencies<kmaC_Potential>();
                           o.cyclicHardening = WithBlankTable<kmaC_CyclicHardening>();
                       },
                       fewDependencies},
                      {"cyclicHardening before cycledPlastic",
                       [](T& o)
                       {
                           o.cyclicHardening = WithNegativeDependencies<kmaC_CyclicHardening>();
                           o.cycledPlastic = WithBlankTable<kmaC_CycledPlastic>();
                       },
                       fewDependencies},
                      {"cycledPlastic before annealTemperature",
                       [](T& o)
                       {
                           o.cycledPlastic = WithBlankTable<kmaC_CycledPlastic>();
                           o.annealTemperature = WithNegativeDependencies<kmaC_AnnealTemperature>();
                       },
                       blankRow},
                      {"annealTemperature before tensileFailure",
                       [](T& o)
                       {
                           o.annealTemperature = WithNegativeDependencies<kmaC_AnnealTemperature>();
                           o.tensileFailure = WithBlankTable<kmaC_TensileFailure>();
                       },
                       fewDependencies},
                      {"annealTemperature before the hardening that tensileFailure takes",
                       [](T& o)
                       {
                           o.annealTemperature = WithNegativeDependencies<kmaC_AnnealTemperature>();
                           o.hardening = T::HardeningEnm::KINEMATIC;
                           o.tensileFailure = kmaC_Option<kmaC_TensileFailure>(new kmaC_TensileFailure);
                       },
                       fewDependencies},
                      {"the hardening that tensileFailure takes before the table",
                       [](T& o)
                       {
                           o.hardening = T::HardeningEnm::KINEMATIC;
                           o.tensileFailure = kmaC_Option<kmaC_TensileFailure>(new kmaC_TensileFailure);
                           o.table = BlankTable();
                       },
                       tensileFailureRefused},
                      {"tensileFailure before the table",
                       [](T& o)
                       {
                           o.tensileFailure = WithNegativeDependencies<kmaC_TensileFailure>();
                           o.table = BlankTable();
                       },
                       fewDependencies},
                      {"ornl, which has no rules",
                       [](T& o)
                       {
                           kmaC_Ornl ornl;
                           ornl.a = notANumber;
                           o.ornl = kmaC_Option<kmaC_Ornl>(ornl);
                       },
                       passes},
                      {"sub-options before table",
                       [](T& o)
                       {
                           o.annealTemperature = WithNegativeDependencies<kmaC_AnnealTemperature>();
                           o.table = BlankTable();
                       },
                       fewDependencies},
                  });
}

TEST(kmaC_Plastic, TakesTensileFailureWithSomeHardenings)
{
    using enum Plastic::HardeningEnm;
    for (const Plastic::HardeningEnm hardening :
         {ISOTROPIC, KINEMATIC, MULTILINEAR_KINEMATIC, COMBINED, JOHNSON_COOK, USER})
    {
        const bool isTaken = hardening == ISOTROPIC || hardening == JOHNSON_COOK;
        Plastic option = ValidPlastic();
        option.hardening = hardening;
        EXPECT_EQ(passes, Verdict(option));
        option.tensileFailure = kmaC_Option<kmaC_TensileFailure>(new kmaC_TensileFailure);
        EXPECT_EQ(isTaken ? passes : tensileFailureRefused, Verdict(option)) << static_cast<int>(hardening);
        option.tensileFailure = WithNegativeDependencies<kmaC_TensileFailure>();
        EXPECT_EQ(isTaken ? fewDependencies : tensileFailureRefused, Verdict(option))
            << static_cast<int>(hardening);
    }
}

TEST(kmaC_Plastic, NamesThePlaceOfTheRefusedTensileFailure)
{
    Plastic option = ValidPlastic();
    option.hardening = Plastic::HardeningEnm::KINEMATIC;
    option.tensileFailure = kmaC_Option<kmaC_TensileFailure>(new kmaC_TensileFailure);
    try
    {
        option.AssertValid();
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const nex_PrimException<atr_String, 1>& exception)
    {
        EXPECT_STREQ("QRTVdb/QRTVdbKmaC.m/src/kmaC_Plastic", exception.File());
    }
}

struct FirstYieldRow
{
    Plastic::HardeningEnm hardening;
    Plastic::DataTypeEnm dataType;
    bool isAsked;
};

TEST(kmaC_Plastic, BeginsAtFirstYield)
{
    using enum Plastic::HardeningEnm;
    using enum Plastic::DataTypeEnm;
    const FirstYieldRow rows[] = {
        {ISOTROPIC, HALF_CYCLE, true}, {ISOTROPIC, PARAMETERS, true},
        {KINEMATIC, PARAMETERS, true}, {MULTILINEAR_KINEMATIC, PARAMETERS, true},
        {COMBINED, HALF_CYCLE, true},  {COMBINED, STABILIZED, true},
        {COMBINED, PARAMETERS, false}, {JOHNSON_COOK, HALF_CYCLE, false},
        {USER, HALF_CYCLE, false},
    };
    for (const FirstYieldRow& row : rows)
    {
        const auto verdict = [&row](kmaC_MaterialTable table)
        {
            Plastic option;
            option.hardening = row.hardening;
            option.dataType = row.dataType;
            option.table = table;
            return Verdict(option);
        };
        const std::string expected = row.isAsked ? firstYield : passes;
        const int number = static_cast<int>(row.hardening) * 10 + static_cast<int>(row.dataType);
        EXPECT_EQ(passes, verdict(kmaC_MaterialTable())) << number;
        EXPECT_EQ(passes, verdict(TableOf({{200.0, 0.0}, {300.0, 0.1}}))) << number;
        EXPECT_EQ(passes, verdict(TableOf({{200.0, -0.0}}))) << number;
        EXPECT_EQ(expected, verdict(TableOf({{200.0, 0.01}}))) << number;
        EXPECT_EQ(expected, verdict(TableOf({{200.0, justBelowZero}}))) << number;
        EXPECT_EQ(expected, verdict(TableOf({{200.0, notANumber}}))) << number;
        EXPECT_EQ(passes, verdict(TableOf({{200.0}}))) << number;
    }
}

TEST(kmaC_Plastic, ChecksTheTableButForUserHardening)
{
    using T = Plastic;
    CheckRules(T(), TableRows<T>());
    CheckRules<T>(T(), {{"user hardening",
                         [](T& o)
                         {
                             o.hardening = T::HardeningEnm::USER;
                             o.table = BlankTable();
                         },
                         passes},
                        {"user hardening and negative dependencies",
                         [](T& o)
                         {
                             o.hardening = T::HardeningEnm::USER;
                             o.dependencies = -1;
                         },
                         fewDependencies},
                        {"blank row before first yield",
                         [](T& o) {
                             o.table = TableOf({{200.0, 0.1}, {0.0, 0.0}});
                         },
                         blankRow}});
}

TEST(kmaC_Plastic, NeedsAColumnOfRates)
{
    using T = Plastic;
    T valid = ValidPlastic();
    valid.rate = true;
    valid.table = TableOf({{200.0, 0.0, 0.0}});
    CheckRules<T>(valid,
                  {
                      {"two columns",
                       [](T& o) {
                           o.table = TableOf({{200.0, 0.0}});
                       },
                       incompleteTable},
                      {"one column", [](T& o) { o.table = TableOf({{200.0}}); }, incompleteTable},
                      {"three columns and no row", [](T& o) { o.table = kmaC_MaterialTable(0, 3); }, passes},
                      {"an empty table", [](T& o) { o.table = kmaC_MaterialTable(); }, incompleteTable},
                      {"two columns and another hardening",
                       [](T& o)
                       {
                           o.table = TableOf({{200.0, 0.0}});
                           o.hardening = T::HardeningEnm::KINEMATIC;
                       },
                       passes},
                      {"first yield before columns",
                       [](T& o) {
                           o.table = TableOf({{200.0, 0.1}});
                       },
                       firstYield},
                  });
}

TEST(kmaC_Foam, ChecksItsRulesInOrder)
{
    using T = kmaC_Foam;
    CheckRules(T(), DependencyRows<T>());
    CheckRules(T(), TableRows<T>());
    CheckRules<T>(T(),
                  {
                      {"dependencies before foamHardening",
                       [](T& o)
                       {
                           o.dependencies = -1;
                           o.foamHardening = WithBlankTable<kmaC_FoamHardening>();
                       },
                       fewDependencies},
                      {"foamHardening before rateDependent",
                       [](T& o)
                       {
                           o.foamHardening = WithBlankTable<kmaC_FoamHardening>();
                           o.rateDependent = WithNegativeDependencies<kmaC_RateDependent>();
                       },
                       blankRow},
                      {"rateDependent before table",
                       [](T& o)
                       {
                           o.rateDependent = WithNegativeDependencies<kmaC_RateDependent>();
                           o.table = BlankTable();
                       },
                       fewDependencies},
                  });
}

TEST(kmaC_Creep, ChecksItsRulesInOrder)
{
    using T = kmaC_Creep;
    CheckRules(T(), DependencyRows<T>());
    CheckRules(T(), TableRows<T>());
    CheckRules<T>(T(),
                  {
                      {"dependencies before potential",
                       [](T& o)
                       {
                           o.dependencies = -1;
                           o.potential = WithBlankTable<kmaC_Potential>();
                       },
                       fewDependencies},
                      {"potential before table",
                       [](T& o)
                       {
                           o.potential = WithNegativeDependencies<kmaC_Potential>();
                           o.table = BlankTable();
                       },
                       fewDependencies},
                      {"ornl, which has no rules",
                       [](T& o)
                       {
                           kmaC_Ornl ornl;
                           ornl.a = -1.0;
                           o.ornl = kmaC_Option<kmaC_Ornl>(ornl);
                       },
                       passes},
                  });
}

TEST(kmaC_Viscous, ChecksTheTableBeforeThePotential)
{
    using T = kmaC_Viscous;
    CheckRules(T(), DependencyRows<T>());
    CheckRules(T(), TableRows<T>());
    CheckRules<T>(T(),
                  {
                      {"dependencies before table",
                       [](T& o)
                       {
                           o.dependencies = -1;
                           o.table = BlankTable();
                       },
                       fewDependencies},
                      {"table before potential",
                       [](T& o)
                       {
                           o.potential = WithNegativeDependencies<kmaC_Potential>();
                           o.table = BlankTable();
                       },
                       blankRow},
                      {"potential", [](T& o) { o.potential = WithNegativeDependencies<kmaC_Potential>(); },
                       fewDependencies},
                  });
}

TEST(kmaC_Viscoelastic, ChecksItsRulesInOrder)
{
    using T = kmaC_Viscoelastic;
    CheckRules(T(), TableRows<T>());
    const auto useVolumetricTraction = [](T& o)
    {
        o.type = T::TypeEnm::TRACTION;
        o.preload = T::PreloadEnm::VOLUMETRIC;
    };
    CheckRules<T>(T(),
                  {
                      {"nmax least", [](T& o) { o.nmax = std::numeric_limits<int>::min(); }, shortNmax},
                      {"nmax 0", [](T& o) { o.nmax = 0; }, shortNmax},
                      {"nmax 1", [](T& o) { o.nmax = 1; }, passes},
                      {"nmax 13", [](T& o) { o.nmax = 13; }, passes},
                      {"nmax 14", [](T& o) { o.nmax = 14; }, longNmax},
                      {"volumetric preload of a traction", useVolumetricTraction, volumetricTraction},
                      {"volumetric preload of a traction with nmax 0",
                       [useVolumetricTraction](T& o)
                       {
                           useVolumetricTraction(o);
                           o.nmax = 0;
                       },
                       shortNmax},
                      {"another preload of a traction",
                       [](T& o)
                       {
                           o.type = T::TypeEnm::TRACTION;
                           o.preload = T::PreloadEnm::UNIAXIAL_VOLUMETRIC;
                       },
                       passes},
                      {"volumetric preload of another type",
                       [](T& o)
                       {
                           o.type = T::TypeEnm::ORTHOTROPIC;
                           o.preload = T::PreloadEnm::VOLUMETRIC;
                       },
                       passes},
                      {"nmax before preload",
                       [useVolumetricTraction](T& o)
                       {
                           useVolumetricTraction(o);
                           o.nmax = 14;
                       },
                       longNmax},
                      {"preload before sub-options",
                       [useVolumetricTraction](T& o)
                       {
                           useVolumetricTraction(o);
                           o.combinedTestData = WithBlankTable<kmaC_CombinedTestData>();
                       },
                       volumetricTraction},
                      {"combined test data",
                       [](T& o) { o.combinedTestData = WithBlankTable<kmaC_CombinedTestData>(); }, blankRow},
                      {"other test data, which are not scanned",
                       [](T& o)
                       {
                           o.shearTestData = WithBlankTable<kmaC_ShearTestData>();
                           o.trs = WithBlankTable<kmaC_Trs>();
                           o.volumetricTestData = WithBlankTable<kmaC_VolumetricTestData>();
                       },
                       passes},
                      {"volumetric table, which is not scanned",
                       [](T& o)
                       {
                           o.volumetricTable = TableOf({{1.0}, {0.0}});
                           o.volumetricTable.allowEmptyFirstRow = false;
                       },
                       passes},
                  });
}

TEST(kmaC_Viscoelastic, AllowsAnEmptyFirstRowByDefault)
{
    const kmaC_Viscoelastic option;
    EXPECT_TRUE(option.table.allowEmptyFirstRow);
    EXPECT_TRUE(option.volumetricTable.allowEmptyFirstRow);
    EXPECT_NE(option.table.Uid(), option.volumetricTable.Uid());
}

} // namespace
