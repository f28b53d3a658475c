#include "app_MaterialChart.h"

#include "app_Error.h"
#include "app_TableHeadings.h"

#include <string_view>

namespace
{

using Chart = std::optional<app_Chart>;

std::string TextOf(const cls_Value& object, const char* name)
{
    const cls_Value* const value = object.Find(name);
    return value && value->AsText() ? *value->AsText() : "";
}

/// The rows of the object's material table, or null if it has none.
const cls_Value* RowsOf(const cls_Value& object)
{
    const cls_Value* const table = object.Find("table");
    const cls_Value* const rows = table ? table->Find("table") : nullptr;
    return rows && rows->AsArray() && !rows->AsArray()->empty() ? rows : nullptr;
}

std::size_t ColumnsOf(const cls_Value& rows)
{
    const cls_Value::Array* const first = rows.AsArray()->front().AsArray();
    return first ? first->size() : 0;
}

/// Whether a column tells for what the first ones hold.
bool IsKey(const std::string& heading)
{
    return heading == "rate" || heading == "temperature" || heading == "strain range" ||
           heading.rfind("field ", 0) == 0;
}

/// Stress in the first column over strain in the second, apart by what the further columns tell.
app_ChartColumns StressStrainColumns(const cls_Value& object, std::size_t count)
{
    app_ChartColumns columns{1, 0, {}, {}};
    const std::vector<std::string> headings = app_HeadingsOf(object, "table", count);
    for (std::size_t i = 2; i < headings.size(); ++i)
    {
        if (!IsKey(headings[i]))
            continue;
        columns.keys.push_back(i);
        columns.keyNames.push_back(headings[i]);
    }
    return columns;
}

Chart StressStrain(const cls_Value& object, const char* xName, const char* yName)
{
    const cls_Value* const rows = RowsOf(object);
    if (!rows)
        return std::nullopt;
    const app_ChartColumns columns = StressStrainColumns(object, ColumnsOf(*rows));
    app_Chart chart{xName, yName, app_SeriesOfRows(*rows, columns)};
    chart.hasPoints = true;
    chart.isYFromZero = true;
    return chart;
}

/// Whether the table of a plasticity has rows of stress and strain, and not the constants of a law.
bool HasHardeningTable(const cls_Value& plastic)
{
    const std::string hardening = TextOf(plastic, "hardening");
    if (hardening == "COMBINED")
        return TextOf(plastic, "dataType") != "PARAMETERS";
    return hardening == "ISOTROPIC" || hardening == "KINEMATIC" || hardening == "MULTILINEAR_KINEMATIC";
}

Chart Hardening(const cls_Value& plastic)
{
    return StressStrain(plastic, "plastic strain", "yield stress");
}

Chart Plastic(const cls_Value& plastic)
{
    const cls_Value* const rows = HasHardeningTable(plastic) ? RowsOf(plastic) : nullptr;
    if (!rows)
        return std::nullopt;
    const std::size_t count = ColumnsOf(*rows);
    if (count > 2 && app_HeadingsOf(plastic, "table", count).empty())
        throw app_Error("the table of its plasticity has " + std::to_string(count) +
                        " columns, which are not those that its attributes ask for");
    Chart chart = Hardening(plastic);
    chart->isHeldAtEnd = TextOf(plastic, "extrapolation") != "LINEAR";
    return chart;
}

Chart TestData(const cls_Value& data)
{
    return StressStrain(data, "nominal strain", "nominal stress");
}

Chart SimpleShear(const cls_Value& data)
{
    return StressStrain(data, "shear strain", "shear stress");
}

struct TestOption
{
    const char* attribute;
    const char* name;
};

/// Tests that share a pair of axes.
constexpr TestOption testOptions[] = {{"uniaxialTestData", "uniaxial"},
                                      {"biaxialTestData", "biaxial"},
                                      {"planarTestData", "planar"},
                                      {"uniaxialTensionTestData", "uniaxial tension"},
                                      {"uniaxialCompressionTestData", "uniaxial compression"}};

/// The test data of a law of elasticity in one chart.
Chart Tests(const cls_Value& law)
{
    app_Chart all{"nominal strain", "nominal stress", {}, true};
    all.isYFromZero = true;
    for (const TestOption& option : testOptions)
    {
        const cls_Value* const data = law.Find(option.attribute);
        Chart chart = data ? TestData(*data) : std::nullopt;
        if (!chart)
            continue;
        for (app_Series& series : chart->series)
        {
            series.name = option.name + (series.name.empty() ? "" : ", " + series.name);
            all.series.push_back(std::move(series));
        }
    }
    return all.series.empty() ? Chart() : all;
}

/// The first chart that an option of the material has.
Chart Material(const cls_Value& material)
{
    for (const char* name : {"plastic", "hyperelastic", "hyperfoam", "lowDensityFoam"})
    {
        const cls_Value* const option = material.Find(name);
        Chart chart = option ? app_ChartOfMaterial(*option) : std::nullopt;
        if (chart)
            return chart;
    }
    return std::nullopt;
}

struct Drawn
{
    std::string_view className;
    Chart (*chart)(const cls_Value&);
};

constexpr Drawn drawn[] = {{"kmaC_Material", Material},         {"kmaC_Plastic", Plastic},
                           {"kmaC_CycledPlastic", Hardening},   {"kmaC_Hyperelastic", Tests},
                           {"kmaC_Hyperfoam", Tests},           {"kmaC_LowDensityFoam", Tests},
                           {"kmaC_UniaxialTestData", TestData}, {"kmaC_BiaxialTestData", TestData},
                           {"kmaC_PlanarTestData", TestData},   {"kmaC_SimpleShearTestData", SimpleShear}};

} // namespace

std::optional<app_Chart> app_ChartOfMaterial(const cls_Value& object)
{
    const std::string className = TextOf(object, "class");
    for (const Drawn& row : drawn)
    {
        if (row.className == className)
            return row.chart(object);
    }
    return std::nullopt;
}
