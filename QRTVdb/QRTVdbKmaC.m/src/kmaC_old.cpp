#include "kmaC_old.h"

#include "dbc_DatabaseConverter.h"
#include "dbc_DatabaseConverterHolder.h"
#include "dbc_DeclaredVersion.h"
#include "dbc_Fields.h"
#include "dbc_InputDatabase.h"
#include "dbc_NewFields.h"
#include "dbc_OutputDatabase.h"
#include "dbc_Utils.h"

#include <algorithm>
#include <climits>

namespace
{

constexpr unsigned earlyMask = 4;
constexpr unsigned lateMask = 5;

constexpr unsigned materialId = 0x2380001;
constexpr unsigned optionId = 0x2380002;
constexpr unsigned elasticId = 0x238001E;
constexpr unsigned eosId = 0x2380020;
constexpr unsigned tableId = 0x2380058;
constexpr unsigned eosShearId = 0x2380060;
constexpr unsigned viscosityId = 0x2380090;

constexpr auto material2305 = dbc_Attributes(
    dbc_Object(0, "acousticMedium", 0x2380004), dbc_Object(1, "brittleCracking", 0x2380007),
    dbc_Object(2, "capPlasticity", 0x238000C), dbc_Object(3, "castIronPlasticity", 0x2380074),
    dbc_Object(4, "clayPlasticity", 0x238000E), dbc_Object(5, "concrete", 0x2380010),
    dbc_Object(6, "concreteDamagedPlasticity", 0x2380077), dbc_Object(7, "conductivity", 0x2380011),
    dbc_Object(8, "creep", 0x2380012), dbc_Object(9, "foam", 0x238002A),
    dbc_Object(10, "ductileDamageInitiation", 0x2380085), dbc_Object(11, "fldDamageInitiation", 0x2380085),
    dbc_Object(12, "flsdDamageInitiation", 0x2380085),
    dbc_Object(13, "johnsonCookDamageInitiation", 0x2380085),
    dbc_Object(14, "maxeDamageInitiation", 0x2380085), dbc_Object(15, "maxsDamageInitiation", 0x2380085),
    dbc_Object(16, "maxpeDamageInitiation", 0x2380085), dbc_Object(17, "maxpsDamageInitiation", 0x2380085),
    dbc_Object(18, "mkDamageInitiation", 0x2380085), dbc_Object(19, "msfldDamageInitiation", 0x2380085),
    dbc_Object(20, "quadeDamageInitiation", 0x2380085), dbc_Object(21, "quadsDamageInitiation", 0x2380085),
    dbc_Object(22, "shearDamageInitiation", 0x2380085), dbc_Object(23, "hashinDamageInitiation", 0x2380085),
    dbc_Object(24, "damping", 0x2380015), dbc_Object(25, "deformationPlasticity", 0x2380016),
    dbc_Object(26, "density", 0x2380017), dbc_Object(27, "depvar", 0x2380018),
    dbc_Object(28, "dielectric", 0x2380019), dbc_Object(29, "diffusivity", 0x238001A),
    dbc_Object(30, "druckerPrager", 0x238001B), dbc_Object(31, "elastic", 0x238001E),
    dbc_Object(32, "electricalConductivity", 0x238001F), dbc_Object(33, "eos", 0x2380020),
    dbc_Object(34, "expansion", 0x2380021), dbc_Object(35, "fluidLeakoff", 0x2380083),
    dbc_Object(36, "gapFlow", 0x2380084), dbc_Object(40, "thicknessBehavior", 0x238005D),
    dbc_Object(41, "transShearElastic", 0x238005C), dbc_Object(42, "membraneElastic", 0x238005B),
    dbc_Object(43, "gel", 0x238002C), dbc_Object(44, "heatGeneration", 0x238002D),
    dbc_Object(45, "hyperelastic", 0x238002E), dbc_Object(46, "hyperfoam", 0x238002F),
    dbc_Object(47, "hypoelastic", 0x2380030), dbc_Object(48, "inelasticHeatFraction", 0x2380031),
    dbc_Object(49, "jouleHeatFraction", 0x2380034), dbc_Object(50, "latentHeat", 0x2380036),
    dbc_Object(51, "lowDensityFoam", 0x238008F), dbc_Object(52, "magneticPermeability", 0x2380093),
    dbc_Object(53, "mohrCoulomb", 0x2380075), dbc_Object(54, "moistureSwelling", 0x2380037),
    dbc_Object(55, "mullinsEffect", 0x2380082), dbc_Object(56, "permeability", 0x2380039),
    dbc_Object(57, "piezoelectric", 0x238003A), dbc_Object(58, "plastic", 0x238003C),
    dbc_Object(59, "poreFluidExpansion", 0x238003D), dbc_Object(60, "porousBulkModuli", 0x238003E),
    dbc_Object(61, "porousElastic", 0x238003F), dbc_Object(62, "porousMetalPlasticity", 0x2380041),
    dbc_Object(63, "regularization", 0x2380062), dbc_Object(64, "shear", 0x2380092),
    dbc_Object(65, "solubility", 0x2380049), dbc_Object(66, "sorption", 0x238004A),
    dbc_Object(67, "specificHeat", 0x238004B), dbc_Object(68, "swelling", 0x238004C),
    dbc_Object(69, "userDefinedField", 0x2380052), dbc_Object(70, "userMaterial", 0x2380053),
    dbc_Object(71, "userOutputVariables", 0x2380054), dbc_Object(72, "viscoelastic", 0x2380055),
    dbc_Object(73, "viscosity", 0x2380090), dbc_Object(74, "viscous", 0x2380070), dbc_Text(75, "description"),
    dbc_Text(76, "materialIdentifier"), dbc_Object(77, "softRockPlasticity", 0x2380096),
    dbc_Object(78, "superElasticity", 0x2380099), dbc_Object(79, "meanFieldHomogenization", 0x238009C),
    dbc_Object(37, "gapConductance", 0x23800AA), dbc_Object(38, "gapConvection", 0x23800AB),
    dbc_Object(39, "gapRadiation", 0x23800AC), dbc_Object(80, "crushStress", 0x23800AD),
    dbc_Object(81, "plasticityCorrection", 0x23800AF), dbc_Object(82, "laRC05DamageInitiation", 0x2380085),
    dbc_Object(83, "hosfordCoulombDamageInitiation", 0x2380085));
constexpr auto material2300 =
    dbc_Without(material2305, "laRC05DamageInitiation", "hosfordCoulombDamageInitiation");
constexpr auto material2218 = dbc_Without(material2300, "plasticityCorrection");
constexpr auto material2210 =
    dbc_Attributes(material2218, dbc_Object("crushStressVelocityFactor", 0x23800AE));
constexpr auto material2102 = dbc_Without(material2218, "crushStress");
constexpr auto material1901 = dbc_Without(material2102, "gapConductance", "gapConvection", "gapRadiation");
constexpr auto material1857 = dbc_Without(material1901, "meanFieldHomogenization");
constexpr auto material1853 = dbc_Without(material1857, "superElasticity");
constexpr auto material1628 = dbc_Without(material1853, "softRockPlasticity");
constexpr auto material1449 = dbc_Without(material1628, "magneticPermeability");
constexpr auto material1411 = dbc_Without(material1449, "shear");
constexpr auto material1400 = dbc_Without(material1411, "viscosity");
constexpr auto material1352 = dbc_Without(material1400, "lowDensityFoam");
constexpr auto material1106 = dbc_Without(material1352, "maxpeDamageInitiation", "maxpsDamageInitiation");
constexpr auto material1053 = dbc_Without(material1106, "mullinsEffect");
constexpr auto material869 = dbc_Without(material1053, "description", "materialIdentifier");
constexpr auto material849 =
    dbc_Without(material869, "ductileDamageInitiation", "fldDamageInitiation", "flsdDamageInitiation",
                "johnsonCookDamageInitiation", "maxeDamageInitiation", "maxsDamageInitiation",
                "mkDamageInitiation", "msfldDamageInitiation", "quadeDamageInitiation",
                "quadsDamageInitiation", "shearDamageInitiation", "hashinDamageInitiation");
constexpr auto material203 =
    dbc_Attributes(dbc_Without(material849, "fluidLeakoff", "gapFlow"),
                   dbc_Object("fluidBulkModulus", 0x2380027), dbc_Object("fluidDensity", 0x2380028),
                   dbc_Object("fluidExpansion", 0x2380029), dbc_Object("jointedMaterial", 0x2380033));

constexpr auto dependentTable =
    dbc_Attributes(dbc_Bool("temperatureDependency"), dbc_Int("dependencies"), dbc_Object("table", tableId));

constexpr auto hyperfoam203 = dbc_Attributes(
    dbc_Bool("testData"), dbc_Double("poisson"), dbc_Int("n"), dbc_Bool("temperatureDependency"),
    dbc_Enum("moduli"), dbc_Object("table", tableId), dbc_Object("biaxialTestData", 0x2380006),
    dbc_Object("volumetricTestData", 0x2380057), dbc_Object("planarTestData", 0x238003B),
    dbc_Object("simpleShearTestData", 0x2380048), dbc_Object("uniaxialTestData", 0x2380051));

constexpr auto hyperelastic864 = dbc_Attributes(
    dbc_Enum("type"), dbc_Enum("moduliTimeScale"), dbc_Bool("temperatureDependency"), dbc_Int("n"),
    dbc_Double("beta"), dbc_Bool("testData"), dbc_Bool("compressible"), dbc_Int("properties"),
    dbc_Enum("deviatoricResponse"), dbc_Enum("volumetricResponse"), dbc_Double("poissonRatio"),
    dbc_Object("table", tableId), dbc_Object("biaxialTestData", 0x2380006),
    dbc_Object("planarTestData", 0x238003B), dbc_Object("uniaxialTestData", 0x2380051),
    dbc_Object("volumetricTestData", 0x2380057), dbc_Object("hysteresis", 0x238005F));

constexpr auto plastic203 =
    dbc_Attributes(dbc_Enum("hardening"), dbc_Bool("rate"), dbc_Enum("dataType"), dependentTable,
                   dbc_Object("rateDependent", 0x2380043), dbc_Object("potential", 0x2380042),
                   dbc_Object("cyclicHardening", 0x2380014), dbc_Object("ornl", 0x2380038),
                   dbc_Object("cycledPlastic", 0x2380013), dbc_Object("annealTemperature", 0x2380071));

constexpr auto plastic1107 =
    dbc_Attributes(plastic203, dbc_Bool("strainRangeDependency"), dbc_Int("numBackstresses"),
                   dbc_Object("tensileFailure", 0x23800A9));

/// The numbers of a table, row by row.
struct Numbers
{
    std::vector<double> values;
    int columns = 0;
    bool allowEmptyFirstRow = false;
};

dbc_DatabaseConverter& Converter()
{
    return *omi_Singleton<dbc_DatabaseConverterHolder>::Instance()->GetDatabaseConverter();
}

/// The row of class `classId` whose number a field holds; null if there is none.
const dbc_Row* TargetOf(const dbc_Row& row, const rfm_FieldHandle& number, unsigned classId)
{
    const dbc_Table* table = Converter().GetInputDatabase().GetInputTable(classId);
    return table && dbc_Has(row, number) ? table->Find(row.GetInt(number)) : nullptr;
}

/// The row of an option's table, or null.
const dbc_Row* TableOf(const dbc_Row& option)
{
    static const rfm_FieldHandle table = dbc_Field("table#OID");
    return TargetOf(option, table, tableId);
}

/// With how many columns a table is stored, be it without rows.
int ColumnsOf(const dbc_Row& table)
{
    static const rfm_FieldHandle numbers = dbc_Field("table#OID");
    static const rfm_FieldHandle columns = dbc_Field("Target#Columns");
    const dbc_Row* list = TargetOf(table, numbers, cls_ListTypeId);
    // A conversion adds one column.
    return list ? static_cast<int>(std::clamp<std::int64_t>(list->GetInt(columns), 0, INT_MAX - 1)) : 0;
}

/// The numbers of the table of an option; none where there is no table.
Numbers ReadTable(const dbc_Row& option)
{
    static const rfm_FieldHandle flag = dbc_Field("allowEmptyFirstRow");
    const dbc_Row* table = TableOf(option);
    if (!table)
        return {};
    Numbers numbers;
    numbers.allowEmptyFirstRow = dbc_Has(*table, flag) && table->GetBool(flag);
    numbers.values = omi_Singleton<dbc_Utils>::Instance()->GetAttributeArrayDoubleFromInputDatabase(
        *table, "table", numbers.columns);
    numbers.columns = ColumnsOf(*table);
    return numbers;
}

/// Gives an option a new table.
void PutTable(dbc_Row& option, const Numbers& numbers)
{
    static const rfm_FieldHandle flag = dbc_Field("allowEmptyFirstRow");
    dbc_Utils& utils = *omi_Singleton<dbc_Utils>::Instance();
    dbc_Table& tables = *Converter().GetOutputDatabase().GetOutputTable(tableId);
    dbc_Row& table = tables.Edit(utils.SetObj(tables, "table", option, tableId));
    utils.SetNewAttributeArrayDoubleInOutputDatabase(table, "table", numbers.values, numbers.columns);
    table.PutBool(flag, numbers.allowEmptyFirstRow);
    tables.Commit(table);
}

/// Position of the column that is moved out of the table and back.
constexpr int gammaColumn = 2;

/// The table without that column.
Numbers WithoutGamma(const Numbers& numbers)
{
    Numbers fewer = numbers;
    fewer.values.clear();
    fewer.columns = numbers.columns - 1;
    for (std::size_t i = 0; i < numbers.values.size(); ++i)
    {
        if (static_cast<int>(i % static_cast<std::size_t>(numbers.columns)) != gammaColumn)
            fewer.values.push_back(numbers.values[i]);
    }
    return fewer;
}

/// The table with the same value in that column of every row.
Numbers WithGamma(const Numbers& numbers, double gamma)
{
    Numbers more = numbers;
    more.values.clear();
    more.columns = numbers.columns + 1;
    for (std::size_t i = 0; i < numbers.values.size(); ++i)
    {
        more.values.push_back(numbers.values[i]);
        if (static_cast<int>(i % static_cast<std::size_t>(numbers.columns)) == gammaColumn - 1)
            more.values.push_back(gamma);
    }
    return more;
}

/// Whether the plasticity has combined hardening by data of this kind.
bool IsCombined(const dbc_Row& plastic, const char* data)
{
    static const rfm_FieldHandle hardening = dbc_Field("hardening");
    static const rfm_FieldHandle dataType = dbc_Field("dataType");
    return dbc_Has(plastic, hardening) && dbc_Has(plastic, dataType) &&
           plastic.GetText(hardening) == "COMBINED" && plastic.GetText(dataType) == data;
}

/// Whether a table has more columns than the switches of its plasticity account for.
bool IsWiderThanUsual(const dbc_Row& plastic, const dbc_Row& table)
{
    static const rfm_FieldHandle temperature = dbc_Field("temperatureDependency");
    static const rfm_FieldHandle dependencies = dbc_Field("dependencies");
    const bool hasTemperature = dbc_Has(plastic, temperature) && plastic.GetBool(temperature);
    const std::int64_t others = dbc_Has(plastic, dependencies) ? plastic.GetInt(dependencies) : 0;
    return ColumnsOf(table) - (hasTemperature ? 3 : 2) > others;
}

void SetStrainRange(const dbc_Row& input, dbc_Row& output)
{
    static const rfm_FieldHandle range = dbc_Field("strainRangeDependency");
    if (dbc_Has(input, range))
        return;
    const dbc_Row* table = IsCombined(input, "STABILIZED") ? TableOf(input) : nullptr;
    output.PutBool(range, table && IsWiderThanUsual(input, *table));
}

void TakeGamma(const dbc_Row& input, dbc_Row& output)
{
    static const rfm_FieldHandle gamma = dbc_Field("gamma");
    if (dbc_Has(input, gamma))
        return;
    output.PutDouble(gamma, 0.0);
    if (!IsCombined(input, "PARAMETERS"))
        return;
    const Numbers numbers = ReadTable(input);
    if (numbers.columns <= gammaColumn)
        return;
    if (numbers.values.size() > gammaColumn)
        output.PutDouble(gamma, numbers.values[gammaColumn]);
    PutTable(output, WithoutGamma(numbers));
}

/// The shear of a material's equation of state, or null.
const dbc_Row* EosShearOf(const dbc_Row& material)
{
    static const rfm_FieldHandle equation = dbc_Field("eos#OID");
    static const rfm_FieldHandle shear = dbc_Field("eosShear#OID");
    const dbc_Row* eos = TargetOf(material, equation, eosId);
    return eos ? TargetOf(*eos, shear, eosShearId) : nullptr;
}

/// Puts a new option into a slot of a material: what the shear of an equation of state holds, and `others`.
void PutShear(const dbc_Row& shear, dbc_Row& material, const char* slot, unsigned classId,
              std::span<const dbc_NewField> others)
{
    static const rfm_FieldHandle numbers[] = {dbc_Field("##BaseClassOID"), dbc_Field("dependencies"),
                                              dbc_Field("table#ClassID"),  dbc_Field("table#OID"),
                                              dbc_Field("trs#ClassID"),    dbc_Field("trs#OID")};
    static const rfm_FieldHandle temperature = dbc_Field("temperatureDependency");
    dbc_Table& options = *Converter().GetOutputDatabase().GetOutputTable(classId);
    dbc_Row& option =
        options.Edit(omi_Singleton<dbc_Utils>::Instance()->SetObj(options, slot, material, classId));
    for (const rfm_FieldHandle& number : numbers)
    {
        if (dbc_Has(shear, number) && option.HasField(number))
            option.PutInt(number, shear.GetInt(number));
    }
    if (dbc_Has(shear, temperature))
        option.PutBool(temperature, shear.GetBool(temperature));
    dbc_PutNew(option, others);
    options.Commit(option);
}

} // namespace

void* Upgrade_kmaC_AnnealTemperature_307_452(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle temperature = dbc_Field("temperatureDependency");
    if (!dbc_Has(input, temperature))
        output.PutInt(temperature, 0);
    return nullptr;
}

void* Upgrade_kmaC_Hyperelastic_324_328(const dbc_Row&, dbc_Row& output, int)
{
    static const rfm_FieldHandle response = dbc_Field("volumetricResponse");
    output.PutText(response, "DEFAULT");
    return nullptr;
}

void* Upgrade_kmaC_Material_1436_1449(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle type = dbc_Field("type");
    static const dbc_NewField ofViscosity[] = {{"type", "NEWTONIAN"}};
    static const dbc_NewField ofElasticity[] = {
        {"type", "SHEAR"}, {"moduli", "LONG_TERM"}, {"noCompression", false}, {"noTension", false}};
    const dbc_Row* shear = EosShearOf(input);
    if (!shear)
        return nullptr;
    if (dbc_Has(*shear, type) && shear->GetText(type) == "VISCOUS")
        PutShear(*shear, output, "viscosity", viscosityId, ofViscosity);
    else
        PutShear(*shear, output, "elastic", elasticId, ofElasticity);
    return nullptr;
}

void* Upgrade_kmaC_Plastic_203_419(const dbc_Row& input, dbc_Row& output, int)
{
    SetStrainRange(input, output);
    TakeGamma(input, output);
    return nullptr;
}

void* Upgrade_kmaC_Plastic_419_1107(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle gamma = dbc_Field("gamma");
    static const rfm_FieldHandle backstresses = dbc_Field("numBackstresses");
    if (!dbc_Has(input, backstresses))
        output.PutInt(backstresses, 1);
    if (!IsCombined(input, "PARAMETERS"))
        return nullptr;
    const Numbers numbers = ReadTable(input);
    if (numbers.columns >= gammaColumn)
        PutTable(output, WithGamma(numbers, dbc_Has(input, gamma) ? input.GetDouble(gamma) : 0.0));
    return nullptr;
}

void* Upgrade_kmaC_Regularization_203_404(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle rate = dbc_Field("rate");
    static const rfm_FieldHandle regularization = dbc_Field("strainRateRegularization");
    if (!dbc_Has(input, regularization) && dbc_Has(input, rate))
        output.PutText(regularization, input.GetText(rate));
    return nullptr;
}

DBC_OLD_CLASS(kmaC_Material, 203, dbc_Root(materialId), dbc_Step(212), material203)
DBC_OLD_CLASS(kmaC_Material, 212, dbc_Root(materialId), dbc_Step(301), material203)
DBC_OLD_CLASS(kmaC_Material, 301, dbc_Root(materialId), dbc_Step(849), material203)
DBC_OLD_CLASS(kmaC_Material, 849, dbc_Root(materialId), dbc_Step(850), material849)
DBC_OLD_CLASS(kmaC_Material, 850, dbc_Root(materialId), dbc_Step(869), material849)
DBC_OLD_CLASS(kmaC_Material, 869, dbc_Root(materialId), dbc_Step(1053), material869)
DBC_OLD_CLASS(kmaC_Material, 1053, dbc_Root(materialId), dbc_Step(1106), material1053)
DBC_OLD_CLASS(kmaC_Material, 1106, dbc_Root(materialId), dbc_Step(1352), material1106)
DBC_OLD_CLASS(kmaC_Material, 1352, dbc_Root(materialId), dbc_Step(1400), material1352)
DBC_OLD_CLASS(kmaC_Material, 1400, dbc_Root(materialId), dbc_Step(1411), material1400)
DBC_OLD_CLASS(kmaC_Material, 1411, dbc_Root(materialId), dbc_Step(1436), material1411)
DBC_OLD_CLASS(kmaC_Material, 1436, dbc_Root(materialId),
              dbc_Step(1449, DBC_FUNCTION(Upgrade_kmaC_Material_1436_1449)), material1411)
DBC_OLD_CLASS(kmaC_Material, 1449, dbc_Root(materialId), dbc_Step(1628), material1449)
DBC_OLD_CLASS(kmaC_Material, 1628, dbc_Root(materialId), dbc_Step(1853), material1628)
DBC_OLD_CLASS(kmaC_Material, 1853, dbc_Root(materialId), dbc_Step(1857), material1853)
DBC_OLD_CLASS(kmaC_Material, 1857, dbc_Root(materialId), dbc_Step(1901), material1857)
DBC_OLD_CLASS(kmaC_Material, 1901, dbc_Root(materialId), dbc_Step(2102), material1901)
DBC_OLD_CLASS(kmaC_Material, 2102, dbc_Root(materialId), dbc_Step(2210), material2102)
DBC_OLD_CLASS(kmaC_Material, 2210, dbc_Root(materialId), dbc_Step(2218), material2210)
DBC_OLD_CLASS(kmaC_Material, 2218, dbc_Root(materialId), dbc_Step(2300), material2218)
DBC_OLD_CLASS(kmaC_Material, 2300, dbc_Root(materialId), dbc_Step(2305), material2300)

DBC_OLD_CLASS(kmaC_AnnealTemperature, 203, dbc_Derived(0x2380071, optionId), dbc_Step(307),
              dbc_Bool("temperatureDependency"), dbc_Int("dependencies"), dbc_Object("table", tableId))

DBC_OLD_CLASS(kmaC_AnnealTemperature, 307, dbc_Derived(0x2380071, optionId),
              dbc_Step(452, DBC_FUNCTION(Upgrade_kmaC_AnnealTemperature_307_452)), dbc_Int("dependencies"),
              dbc_Object("table", tableId))

DBC_OLD_CLASS(kmaC_AnnealTemperature, 452, dbc_Derived(0x2380071, optionId), dbc_Step(813),
              dbc_Int("temperatureDependency"), dbc_Int("dependencies"), dbc_Object("table", tableId))

DBC_OLD_CLASS(kmaC_BiaxialTestData, 203, dbc_Derived(0x2380006, optionId), dbc_Step(324),
              dbc_Object("table", tableId))

DBC_OLD_CLASS(kmaC_PlanarTestData, 203, dbc_Derived(0x238003B, optionId), dbc_Step(324),
              dbc_Object("table", tableId))

DBC_OLD_CLASS(kmaC_UniaxialTestData, 203, dbc_Derived(0x2380051, optionId), dbc_Step(324),
              dbc_Object("table", tableId))

DBC_OLD_CLASS(kmaC_VolumetricTestData, 203, dbc_Derived(0x2380057, optionId), dbc_Step(324),
              dbc_Double("volinf"), dbc_Object("table", tableId))

DBC_OLD_CLASS(kmaC_VolumetricTestData, 324, dbc_Derived(0x2380057, optionId), dbc_Step(325),
              dbc_Double("volinf"), dbc_Bool("lateralNominalStrain"), dependentTable)

DBC_OLD_CLASS(kmaC_Creep, 203, dbc_Derived(0x2380012, optionId), dbc_Step(2008), dbc_Enum("law"),
              dependentTable, dbc_Object("ornl", 0x2380038), dbc_Object("potential", 0x2380042))

DBC_OLD_CLASS(kmaC_Viscous, 203, dbc_Derived(0x2380070, optionId), dbc_Step(438), dbc_Enum("law"),
              dependentTable)

DBC_OLD_CLASS(kmaC_Viscous, 438, dbc_Derived(0x2380070, optionId), dbc_Step(2008), dbc_Enum("law"),
              dependentTable, dbc_Object("potential", 0x2380042))

DBC_OLD_CLASS(kmaC_Regularization, 203, dbc_Derived(0x2380062, optionId),
              dbc_Step(404, DBC_FUNCTION(Upgrade_kmaC_Regularization_203_404)), dbc_Double("rtol"),
              dbc_Enum("rate"))

DBC_OLD_CLASS(kmaC_Viscoelastic, 203, dbc_Derived(0x2380055, optionId), dbc_Step(855), dbc_Enum("domain"),
              dbc_Enum("frequency"), dbc_Enum("time"), dbc_Double("errtol"), dbc_Int("nmax"),
              dbc_Object("table", tableId), dbc_Object("combinedTestData", 0x238000F),
              dbc_Object("shearTestData", 0x2380047), dbc_Object("trs", 0x2380050),
              dbc_Object("volumetricTestData", 0x2380057))

DBC_OLD_CLASS(kmaC_Viscoelastic, 855, dbc_Derived(0x2380055, optionId), dbc_Step(876), dbc_Enum("domain"),
              dbc_Enum("frequency"), dbc_Enum("type"), dbc_Enum("preload"), dbc_Enum("time"),
              dbc_Double("errtol"), dbc_Int("nmax"), dbc_Object("table", tableId),
              dbc_Object("combinedTestData", 0x238000F), dbc_Object("shearTestData", 0x2380047),
              dbc_Object("trs", 0x2380050), dbc_Object("volumetricTestData", 0x2380057))

DBC_OLD_CLASS(kmaC_Hyperfoam, 203, dbc_Derived(0x238002F, optionId), dbc_Step(850), hyperfoam203)

DBC_OLD_CLASS(kmaC_Hyperfoam, 850, dbc_Derived(0x238002F, optionId), dbc_Step(864), hyperfoam203,
              dbc_Object("mullinsEffect", 0x2380082))

DBC_OLD_CLASS(kmaC_Hyperelastic, 203, dbc_Derived(0x238002E, optionId), dbc_Step(324),
              dbc_Without(hyperelastic864, "deviatoricResponse", "volumetricResponse", "poissonRatio"))

DBC_OLD_CLASS(kmaC_Hyperelastic, 324, dbc_Derived(0x238002E, optionId),
              dbc_Step(328, DBC_FUNCTION(Upgrade_kmaC_Hyperelastic_324_328)), hyperelastic864)

DBC_OLD_CLASS(kmaC_Hyperelastic, 328, dbc_Derived(0x238002E, optionId), dbc_Step(850), hyperelastic864)

DBC_OLD_CLASS(kmaC_Hyperelastic, 850, dbc_Derived(0x238002E, optionId), dbc_Step(864), hyperelastic864,
              dbc_Object("mullinsEffect", 0x2380082))

DBC_OLD_CLASS(kmaC_Hyperelastic, 864, dbc_Derived(0x238002E, optionId), dbc_Step(1565), hyperelastic864)

DBC_OLD_CLASS(kmaC_Plastic, 203, dbc_Derived(0x238003C, optionId),
              dbc_Step(419, DBC_FUNCTION(Upgrade_kmaC_Plastic_203_419)), plastic203)

DBC_OLD_CLASS(kmaC_Plastic, 419, dbc_Derived(0x238003C, optionId),
              dbc_Step(1107, DBC_FUNCTION(Upgrade_kmaC_Plastic_419_1107)), plastic203,
              dbc_Bool("strainRangeDependency"), dbc_Double("gamma"))

DBC_OLD_CLASS(kmaC_Plastic, 1107, dbc_Derived(0x238003C, optionId), dbc_Step(2002), plastic1107)

DBC_OLD_CLASS(kmaC_Plastic, 2002, dbc_Derived(0x238003C, optionId), dbc_Step(2008), plastic1107)

DBC_OLD_CLASS(kmaC_Plastic, 2008, dbc_Derived(0x238003C, optionId), dbc_Step(2217), plastic1107,
              dbc_Int("properties"), dbc_Double("scaleStress"), dbc_Bool("staticRecovery"))

void kmaC_RegisterOldClasses()
{
    dbc_RegisterOldClasses<kmaC_AnnealTemperature_203, kmaC_AnnealTemperature_307, kmaC_BiaxialTestData_203,
                           kmaC_Hyperelastic_203, kmaC_Hyperelastic_324, kmaC_Hyperelastic_328,
                           kmaC_Hyperfoam_203, kmaC_Material_203, kmaC_Material_212, kmaC_PlanarTestData_203,
                           kmaC_Plastic_203, kmaC_Regularization_203, kmaC_UniaxialTestData_203,
                           kmaC_Viscous_203, kmaC_VolumetricTestData_203, kmaC_VolumetricTestData_324>(
        earlyMask);
    dbc_RegisterOldClasses<kmaC_AnnealTemperature_452, kmaC_Creep_203, kmaC_Hyperelastic_850,
                           kmaC_Hyperelastic_864, kmaC_Hyperfoam_850, kmaC_Material_301, kmaC_Material_849,
                           kmaC_Material_850, kmaC_Material_869, kmaC_Material_1053, kmaC_Material_1106,
                           kmaC_Material_1352, kmaC_Material_1400, kmaC_Material_1411, kmaC_Material_1436,
                           kmaC_Material_1449, kmaC_Material_1628, kmaC_Material_1853, kmaC_Material_1857,
                           kmaC_Material_1901, kmaC_Material_2102, kmaC_Material_2210, kmaC_Material_2218,
                           kmaC_Material_2300, kmaC_Plastic_419, kmaC_Plastic_1107, kmaC_Plastic_2002,
                           kmaC_Plastic_2008, kmaC_Viscoelastic_203, kmaC_Viscoelastic_855, kmaC_Viscous_438>(
        lateMask);
}
