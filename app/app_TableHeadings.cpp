#include "app_TableHeadings.h"

#include <algorithm>
#include <string_view>

namespace
{

/// What the columns of one attribute are called where another attribute has one of some texts, or whatever it
/// has.
struct Headings
{
    std::string_view owner;
    std::string_view attribute;
    std::string_view selector;
    std::string_view text;
    /// Separated by bars.
    std::string_view columns;
};

constexpr std::string_view hardeningCurve = "yield stress|plastic strain";
constexpr std::string_view stressStrain = "stress|strain";
constexpr std::string_view stressLateralStrain = "stress|strain|lateral strain";

constexpr Headings known[] = {
    {"kmaC_Elastic", "table", "type", "ISOTROPIC", "Young's modulus|Poisson's ratio"},
    {"kmaC_Elastic", "table", "type", "ENGINEERING_CONSTANTS", "E1|E2|E3|nu12|nu13|nu23|G12|G13|G23"},
    {"kmaC_Elastic", "table", "type", "LAMINA", "E1|E2|nu12|G12|G13|G23"},
    {"kmaC_Elastic", "table", "type", "ORTHOTROPIC", "D1111|D1122|D2222|D1133|D2233|D3333|D1212|D1313|D2323"},
    {"kmaC_Elastic", "table", "type", "TRACTION", "Knn|Kss|Ktt"},
    {"kmaC_Elastic", "table", "type", "SHEAR", "shear modulus"},
    {"kmaC_Hypoelastic", "table", "", "", "Young's modulus|Poisson's ratio|I1|I2|I3"},
    {"kmaC_Plastic", "table", "hardening", "ISOTROPIC", hardeningCurve},
    {"kmaC_Plastic", "table", "hardening", "KINEMATIC", hardeningCurve},
    {"kmaC_Plastic", "table", "hardening", "MULTILINEAR_KINEMATIC", hardeningCurve},
    {"kmaC_Plastic", "table", "dataType", "HALF_CYCLE", hardeningCurve},
    {"kmaC_Plastic", "table", "dataType", "STABILIZED", hardeningCurve},
    {"kmaC_Plastic", "table", "hardening", "JOHNSON_COOK",
     "A|B|n|m|melting temperature|transition temperature"},
    {"kmaC_RateDependent", "table", "type", "POWER_LAW", "multiplier|exponent"},
    {"kmaC_RateDependent", "table", "type", "YIELD_RATIO", "yield ratio|plastic strain rate"},
    {"kmaC_RateDependent", "table", "type", "JOHNSON_COOK", "C|reference rate"},
    {"kmaC_Potential", "table", "", "", "R11|R22|R33|R12|R13|R23"},
    {"kmaC_CycledPlastic", "table", "", "", hardeningCurve},
    {"kmaC_AnnealTemperature", "table", "", "", "anneal temperature"},
    {"kmaC_DeformationPlasticity", "table", "", "",
     "Young's modulus|Poisson's ratio|yield stress|exponent|yield offset"},
    {"kmaC_Hyperelastic", "table", "type", "ARRUDA_BOYCE", "mu|lambda|D"},
    {"kmaC_Hyperelastic", "table", "type", "MOONEY_RIVLIN", "C10|C01|D1"},
    {"kmaC_Hyperelastic", "table", "type", "NEO_HOOKE", "C10|D1"},
    {"kmaC_Hyperelastic", "table", "type", "VAN_DER_WAALS", "mu|lambda|a|beta|D"},
    {"kmaC_Hyperelastic", "table", "type", "YEOH", "C10|C20|C30|D1|D2|D3"},
    {"kmaC_UniaxialTestData", "table", "", "", stressStrain},
    {"kmaC_UniaxialTestData", "table", "lateralNominalStrain", "true", stressLateralStrain},
    {"kmaC_BiaxialTestData", "table", "", "", stressStrain},
    {"kmaC_BiaxialTestData", "table", "lateralNominalStrain", "true", stressLateralStrain},
    {"kmaC_PlanarTestData", "table", "", "", stressStrain},
    {"kmaC_PlanarTestData", "table", "lateralNominalStrain", "true", stressLateralStrain},
    {"kmaC_VolumetricTestData", "table", "", "", "pressure|volume ratio"},
    {"kmaC_SimpleShearTestData", "table", "", "", "shear stress|shear strain"},
    {"kmaC_Viscoelastic", "table", "time", "PRONY", "g|k|relaxation time"},
    {"kmaC_Trs", "table", "definition", "WLF", "reference temperature|C1|C2"},
};

std::vector<std::string> Split(std::string_view columns)
{
    std::vector<std::string> headings;
    while (true)
    {
        const std::size_t bar = columns.find('|');
        headings.emplace_back(columns.substr(0, bar));
        if (bar == std::string_view::npos)
            return headings;
        columns.remove_prefix(bar + 1);
    }
}

bool IsTrue(const cls_Value& owner, const std::string& attribute)
{
    const cls_Value* value = owner.Find(attribute);
    return value && value->AsBool() && *value->AsBool();
}

bool Applies(const Headings& row, const cls_Value& owner)
{
    if (row.selector.empty())
        return true;
    const std::string selector(row.selector);
    const cls_Value* value = owner.Find(selector);
    return row.text == "true" ? IsTrue(owner, selector)
                              : value && value->AsText() && *value->AsText() == row.text;
}

/// What widens a table: the columns of strain ranges, of rates, of temperature and of field variables.
std::vector<std::string> Independents(const cls_Value& owner)
{
    std::vector<std::string> headings;
    if (IsTrue(owner, "strainRangeDependency"))
        headings.emplace_back("strain range");
    if (IsTrue(owner, "rate"))
        headings.emplace_back("rate");
    if (IsTrue(owner, "temperatureDependency"))
        headings.emplace_back("temperature");
    const cls_Value* dependencies = owner.Find("dependencies");
    const std::int64_t count = dependencies && dependencies->AsInteger() ? *dependencies->AsInteger() : 0;
    constexpr std::int64_t mostNamed = 100;
    for (std::int64_t i = 1; i <= std::min(count, mostNamed); ++i)
        headings.push_back("field " + std::to_string(i));
    return headings;
}

} // namespace

std::vector<std::string> app_HeadingsOf(const cls_Value& owner, const std::string& attribute,
                                        std::size_t columns)
{
    const cls_Value* const name = owner.Find("class");
    if (!name || !name->AsText())
        return {};
    const std::vector<std::string> independents = Independents(owner);
    for (const Headings& row : known)
    {
        if (row.owner != *name->AsText() || row.attribute != attribute || !Applies(row, owner))
            continue;
        std::vector<std::string> headings = Split(row.columns);
        headings.insert(headings.end(), independents.begin(), independents.end());
        if (headings.size() == columns)
            return headings;
    }
    return {};
}
