#include "kmaC_old.h"

#include "LibraryEnvironment.h"
#include "MemoryDatabase.h"
#include "OldVersionTest.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace
{

constexpr auto none = MemoryRow::none;
constexpr std::int64_t zero = 0;
constexpr std::int64_t one = 1;

TEST(Upgrade, AnnealTemperatureGetsItsSwitchBackAsANumber)
{
    TryConversion(Upgrade_kmaC_AnnealTemperature_307_452,
                  {{"the old form", {{"dependencies", one}}, {{"temperatureDependency", zero}}},
                   {"the new form", {{"temperatureDependency", one}}, {}},
                   {"no value in the new field",
                    {{"temperatureDependency", none}},
                    {{"temperatureDependency", zero}}}});
}

TEST(Upgrade, HyperelasticBeginsItsVolumetricResponseAnew)
{
    TryConversion(Upgrade_kmaC_Hyperelastic_324_328,
                  {{"a text", {{"volumetricResponse", "POISSON_RATIO"}}, {{"volumetricResponse", "DEFAULT"}}},
                   {"none", {}, {{"volumetricResponse", "DEFAULT"}}}});
}

TEST(Upgrade, RegularizationRenamesItsRate)
{
    TryConversion(Upgrade_kmaC_Regularization_203_404,
                  {{"the old form", {{"rate", "LINEAR"}}, {{"strainRateRegularization", "LINEAR"}}},
                   {"the new form", {{"strainRateRegularization", "LINEAR"}}, {}},
                   {"both", {{"rate", "LINEAR"}, {"strainRateRegularization", "LOGARITHMIC"}}, {}},
                   {"no value in the old field", {{"rate", none}}, {}},
                   {"neither field", {{"rtol", 0.03}}, {}}});
}

TEST(Upgrade, PlasticityWithoutATableOfInterestTakesDefaults)
{
    TryConversion(
        Upgrade_kmaC_Plastic_203_419,
        {{"isotropic", {{"hardening", "ISOTROPIC"}}, {{"strainRangeDependency", false}, {"gamma", 0.0}}},
         {"the new form", {{"strainRangeDependency", true}, {"gamma", 5.0}}, {}},
         {"a range and no gamma", {{"strainRangeDependency", true}, {"gamma", none}}, {{"gamma", 0.0}}},
         {"a half cycle",
          {{"hardening", "COMBINED"}, {"dataType", "HALF_CYCLE"}},
          {{"strainRangeDependency", false}, {"gamma", 0.0}}}});
    TryConversion(Upgrade_kmaC_Plastic_419_1107,
                  {{"isotropic", {{"hardening", "ISOTROPIC"}, {"gamma", 5.0}}, {{"numBackstresses", one}}},
                   {"the new form", {{"hardening", "ISOTROPIC"}, {"numBackstresses", std::int64_t{3}}}, {}}});
}

constexpr unsigned elasticId = 0x238001E;
constexpr unsigned eosId = 0x2380020;
constexpr unsigned eosShearId = 0x2380060;
constexpr unsigned viscosityId = 0x2380090;

MemoryRow::Fields Merged(MemoryRow::Fields fields, const MemoryRow::Fields& more)
{
    for (const auto& [name, value] : more)
        fields[name] = value;
    return fields;
}

/// A store of one equation of state with a shear, and of tables for what that may become.
class EosShear : public testing::Test
{
protected:
    EosShear()
    {
        databases.input[eosId].Insert(
            4, {{"eosShear#ClassID", std::int64_t{eosShearId}}, {"eosShear#OID", std::int64_t{6}}});
        databases.output.emplace(elasticId, MemoryTable(Merged(common, ofElasticity)));
        databases.output.emplace(
            viscosityId,
            MemoryTable(Merged(common, {{"trs#ClassID", none}, {"trs#OID", none}, {"type", none}})));
        databases.output.at(elasticId).Insert(2, {{"type", "ISOTROPIC"}});
    }

    /// What the material gets of a shear of these fields.
    MemoryRow::Fields Convert(const MemoryRow::Fields& shear)
    {
        databases.input[eosShearId].Insert(6, shear);
        const MemoryRow input({{"eos#ClassID", std::int64_t{eosId}}, {"eos#OID", std::int64_t{4}}});
        MemoryRow output;
        EXPECT_EQ(nullptr, Upgrade_kmaC_Material_1436_1449(input, output, 0));
        return output.All();
    }

    MemoryRow::Fields common = {{"##BaseClassOID", none},
                                {"temperatureDependency", none},
                                {"dependencies", none},
                                {"table#ClassID", none},
                                {"table#OID", none}};
    MemoryRow::Fields ofElasticity = {
        {"type", none}, {"moduli", none}, {"noCompression", none}, {"noTension", none}};
    MemoryRow::Fields shear = {{"##BaseClassOID", std::int64_t{11}},
                               {"temperatureDependency", true},
                               {"dependencies", std::int64_t{2}},
                               {"table#ClassID", std::int64_t{0x2380058}},
                               {"table#OID", std::int64_t{13}}};
    MemoryRow::Fields trs = {{"trs#ClassID", std::int64_t{0x2380050}}, {"trs#OID", std::int64_t{17}}};
    MemoryDatabases databases;
};

TEST_F(EosShear, BecomesViscosityWhereItIsViscous)
{
    EXPECT_EQ((MemoryRow::Fields{{"viscosity#ClassID", std::int64_t{viscosityId}}, {"viscosity#OID", one}}),
              Convert(Merged(Merged(shear, trs), {{"type", "VISCOUS"}})));
    EXPECT_EQ(
        (std::map<std::int64_t, MemoryRow::Fields>{{1, Merged(Merged(shear, trs), {{"type", "NEWTONIAN"}})}}),
        databases.output.at(viscosityId).All());
    EXPECT_EQ(1, databases.output.at(elasticId).RowCount());
}

TEST_F(EosShear, MayHaveNoShiftOfTime)
{
    Convert(Merged(shear, {{"type", "VISCOUS"}, {"trs#ClassID", none}, {"trs#OID", none}}));
    EXPECT_EQ((std::map<std::int64_t, MemoryRow::Fields>{
                  {1, Merged(shear, {{"type", "NEWTONIAN"}, {"trs#ClassID", none}, {"trs#OID", none}})}}),
              databases.output.at(viscosityId).All());
}

TEST_F(EosShear, BecomesElasticityWhereItIsAnythingElse)
{
    for (const char* type : {"ELASTIC", "viscous", ""})
    {
        const std::int64_t made = databases.output.at(elasticId).RowCount() + 2;
        EXPECT_EQ((MemoryRow::Fields{{"elastic#ClassID", std::int64_t{elasticId}}, {"elastic#OID", made}}),
                  Convert(Merged(Merged(shear, trs), {{"type", type}})))
            << type;
        EXPECT_EQ(
            Merged(
                shear,
                {{"type", "SHEAR"}, {"moduli", "LONG_TERM"}, {"noCompression", false}, {"noTension", false}}),
            databases.output.at(elasticId).All().at(made))
            << type << ": elasticity has no shift of time";
    }
    EXPECT_EQ(0, databases.output.at(viscosityId).RowCount());
}

TEST_F(EosShear, IsLeftAloneWhereThereIsNone)
{
    const struct
    {
        const char* input;
        MemoryRow::Fields material;
    } rows[] = {
        {"no equation of state", {}},
        {"an equation of state that is absent", {{"eos#ClassID", none}, {"eos#OID", none}}},
        {"an equation of state without shear",
         {{"eos#ClassID", std::int64_t{eosId}}, {"eos#OID", std::int64_t{5}}}},
        {"a shear that is not there", {{"eos#ClassID", std::int64_t{eosId}}, {"eos#OID", std::int64_t{4}}}},
    };
    databases.input.at(eosId).Insert(5, {{"eosShear#ClassID", none}, {"eosShear#OID", none}});
    for (const auto& row : rows)
        TryConversion(Upgrade_kmaC_Material_1436_1449, {{row.input, row.material, {}}});
    databases.input.clear();
    for (const auto& row : rows)
        TryConversion(Upgrade_kmaC_Material_1436_1449, {{row.input, row.material, {}}});
}

struct Form
{
    unsigned mask;
    std::set<std::string> attributes;
};

/// The registered old versions of a class, by version.
std::map<int, Form> FormsOf(unsigned classId)
{
    LibraryEnvironment::Require();
    dbc_DatabaseConverter converter;
    const dbc_OldClasses classes(converter);
    std::map<int, Form> forms;
    for (const dbc_OldClasses::Entry& entry : classes.Entries())
    {
        if (!entry.form || entry.form->ClassId() != classId)
            continue;
        Form& form = forms[entry.form->Version()];
        form.mask = entry.mask;
        for (const cls_AttributeMetadata& attribute : entry.form->Attributes())
            form.attributes.insert(std::string(attribute.field.Name().View()));
    }
    return forms;
}

using Names = std::set<std::string>;

struct MaterialStep
{
    int version;
    unsigned mask;
    /// Attributes that the form before did not have, and those that only that one had.
    Names added;
    Names removed;
};

Names Without(const Names& names, const Names& others)
{
    Names left;
    std::set_difference(names.begin(), names.end(), others.begin(), others.end(),
                        std::inserter(left, left.end()));
    return left;
}

TEST(OldVersions, OfTheMaterialDifferAsTold)
{
    const MaterialStep steps[] = {
        {203, 4, {}, {}},
        {212, 4, {}, {}},
        {301, 5, {}, {}},
        {849,
         5,
         {"fluidLeakoff", "gapFlow"},
         {"fluidBulkModulus", "fluidDensity", "fluidExpansion", "jointedMaterial"}},
        {850, 5, {}, {}},
        {869,
         5,
         {"ductileDamageInitiation", "fldDamageInitiation", "flsdDamageInitiation",
          "johnsonCookDamageInitiation", "maxeDamageInitiation", "maxsDamageInitiation", "mkDamageInitiation",
          "msfldDamageInitiation", "quadeDamageInitiation", "quadsDamageInitiation", "shearDamageInitiation",
          "hashinDamageInitiation"},
         {}},
        {1053, 5, {"description", "materialIdentifier"}, {}},
        {1106, 5, {"mullinsEffect"}, {}},
        {1352, 5, {"maxpeDamageInitiation", "maxpsDamageInitiation"}, {}},
        {1400, 5, {"lowDensityFoam"}, {}},
        {1411, 5, {"viscosity"}, {}},
        {1436, 5, {}, {}},
        {1449, 5, {"shear"}, {}},
        {1628, 5, {"magneticPermeability"}, {}},
        {1853, 5, {"softRockPlasticity"}, {}},
        {1857, 5, {"superElasticity"}, {}},
        {1901, 5, {"meanFieldHomogenization"}, {}},
        {2102, 5, {"gapConductance", "gapConvection", "gapRadiation"}, {}},
        {2210, 5, {"crushStress", "crushStressVelocityFactor"}, {}},
        {2218, 5, {}, {"crushStressVelocityFactor"}},
        {2300, 5, {"plasticityCorrection"}, {}},
    };
    const std::map<int, Form> forms = FormsOf(0x2380001);
    ASSERT_EQ(std::size(steps), forms.size());
    Names before = forms.at(203).attributes;
    for (const MaterialStep& step : steps)
    {
        ASSERT_TRUE(forms.contains(step.version)) << step.version;
        const Form& form = forms.at(step.version);
        EXPECT_EQ(step.mask, form.mask) << step.version;
        EXPECT_EQ(step.added, Without(form.attributes, before)) << step.version;
        EXPECT_EQ(step.removed, Without(before, form.attributes)) << step.version;
        before = form.attributes;
    }
    EXPECT_EQ(82u, before.size()) << "all but the two slots of version 2305";
}

TEST(OldVersions, OfTheOptionsAreThoseTold)
{
    const struct
    {
        const char* name;
        unsigned classId;
        std::vector<int> early;
        std::vector<int> late;
    } rows[] = {
        {"AnnealTemperature", 0x2380071, {203, 307}, {452}},
        {"BiaxialTestData", 0x2380006, {203}, {}},
        {"Creep", 0x2380012, {}, {203}},
        {"Hyperelastic", 0x238002E, {203, 324, 328}, {850, 864}},
        {"Hyperfoam", 0x238002F, {203}, {850}},
        {"PlanarTestData", 0x238003B, {203}, {}},
        {"Plastic", 0x238003C, {203}, {419, 1107, 2002, 2008}},
        {"Regularization", 0x2380062, {203}, {}},
        {"UniaxialTestData", 0x2380051, {203}, {}},
        {"Viscoelastic", 0x2380055, {}, {203, 855}},
        {"Viscous", 0x2380070, {203}, {438}},
        {"VolumetricTestData", 0x2380057, {203, 324}, {}},
    };
    for (const auto& row : rows)
    {
        std::vector<int> early;
        std::vector<int> late;
        for (const auto& [version, form] : FormsOf(row.classId))
            (form.mask == 4 ? early : late).push_back(version);
        EXPECT_EQ(row.early, early) << row.name;
        EXPECT_EQ(row.late, late) << row.name;
    }
}

} // namespace
