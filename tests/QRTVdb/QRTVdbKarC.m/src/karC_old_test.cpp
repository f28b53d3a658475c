#include "LibraryEnvironment.h"
#include "OldVersionTest.h"
#include "karC_old.h"

namespace
{

using Fields = MemoryRow::Fields;

constexpr auto none = MemoryRow::none;
constexpr std::int64_t zero = 0;

TEST(Upgrade, RuleTakesADescriptionFrom802)
{
    const Fields added = {{"description", ""}};
    TryConversion(Upgrade_karC_RemeshingRule_802, {{"the old form", {{"stepName", "Step-1"}}, added},
                                                   {"no value", {{"description", none}}, added},
                                                   {"the new form", {{"description", "of the weld"}}, {}},
                                                   {"the new form, empty", {{"description", ""}}, {}}});
}

TEST(Upgrade, RuleTakesZerosFrom837WhereItHasNoValue)
{
    const Fields zeros = {{"sizingMethod", "DEFAULT"},
                          {"errorTarget", 0.0},
                          {"minSolutionErrorTarget", 0.0},
                          {"maxSolutionErrorTarget", 0.0},
                          {"specifyMinSize", false},
                          {"minElementSize", 0.0},
                          {"specifyMaxSize", false},
                          {"maxElementSize", 0.0},
                          {"coarsening", "DEFAULT_LIMIT"},
                          {"coarseningFactor", zero},
                          {"refinement", "DEFAULT_LIMIT"},
                          {"refinementFactor", zero},
                          {"meshBias", zero},
                          {"outputFrequency", "LAST_INCREMENT"}};
    std::vector<ConversionRow> lines = {{"the old form", {{"description", "of the weld"}}, zeros},
                                        {"all values", zeros, {}}};
    for (const auto& [name, value] : zeros)
    {
        Fields others = zeros;
        others.erase(name);
        lines.push_back({name.c_str(), {{name, value}}, others});
        lines.push_back({name.c_str(), {{name, none}}, zeros});
    }
    TryConversion(Upgrade_karC_RemeshingRule_837, lines);
}

TEST(Upgrade, RuleSpellsItsSizingMethodRightFrom856)
{
    const char* const name = "sizingMethod";
    TryConversion(Upgrade_karC_RemeshingRule_856,
                  {{"misspelled", {{name, "MINIMUM_MAXIUM"}}, {{name, "MINIMUM_MAXIMUM"}}},
                   {"spelled right", {{name, "MINIMUM_MAXIMUM"}}, {}},
                   {"misspelled in lower case", {{name, "minimum_maxium"}}, {}},
                   {"another", {{name, "UNIFORM_ERROR"}}, {}},
                   {"an empty text", {{name, ""}}, {}},
                   {"no value", {{name, none}}, {}},
                   {"no field", {{"meshBias", zero}}, {}}});
}

TEST(Upgrade, RuleHasNoLimitOfElementsFrom866)
{
    const Fields added = {{"elementCountLimit", std::int64_t{2147483647}}};
    TryConversion(
        Upgrade_karC_RemeshingRule_866,
        {{"the old form", {{"meshBias", zero}}, added},
         {"a limit that is there is not asked for", {{"elementCountLimit", std::int64_t{7}}}, added}});
}

TEST(OldVersions, AreThoseOfTheRuleInOrder)
{
    const std::string of802 =
        ": 0 suppress 13 1 region 15/0x2A0001/0 2 variables 15/0x230001/55 3 stepName 11";
    const std::string of837 = of802 + " 4 description 11";
    const std::string of856 =
        of837 +
        " 5 sizingMethod 14 6 errorTarget 10 7 minSolutionErrorTarget 10 8 maxSolutionErrorTarget 10 "
        "9 specifyMinSize 13 10 minElementSize 10 11 specifyMaxSize 13 12 maxElementSize 10 13 coarsening 14 "
        "14 coarseningFactor 5 15 refinement 14 16 refinementFactor 5 17 meshBias 5 18 outputFrequency 14";
    const auto line = [](const char* version, const char* next, const std::string& attributes)
    {
        return std::string("karC_RemeshingRule ") + version + " (0x3570002, base 0x1, mask 1) to " + next +
               " by Upgrade_karC_RemeshingRule_" + version + attributes;
    };
    EXPECT_EQ((std::vector<std::string>{line("802", "837", of802), line("837", "856", of837),
                                        line("856", "866", of856), line("866", "1407", of856)}),
              OldVersionsOf(855));
}

} // namespace
