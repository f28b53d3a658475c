#include "LibraryEnvironment.h"
#include "OldVersionTest.h"
#include "kflC_old.h"

namespace
{

constexpr auto none = MemoryRow::none;
constexpr std::int64_t two = 2;

TEST(Upgrade, FilterTakesAnOrderTo821)
{
    TryConversion(
        Upgrade_kflC_Filter_503_821,
        {{"the old form", {{"cutoffFrequency", 1.5}}, {{"order", two}}},
         {"an order that is there is not asked for", {{"order", std::int64_t{7}}}, {{"order", two}}}});
}

TEST(Upgrade, FilterTakesLimitHaltAndOperationTo1351WhereItHasNone)
{
    TryConversion(Upgrade_kflC_Filter_821_1351,
                  {{"the old form",
                    {{"cutoffFrequency", 1.5}, {"order", two}},
                    {{"limit", 0.0}, {"halt", false}, {"operation", "NONE"}}},
                   {"no values",
                    {{"limit", none}, {"halt", none}, {"operation", none}},
                    {{"limit", 0.0}, {"halt", false}, {"operation", "NONE"}}},
                   {"a limit alone", {{"limit", 3.0}}, {{"halt", false}, {"operation", "NONE"}}},
                   {"a halt alone", {{"halt", true}}, {{"limit", 0.0}, {"operation", "NONE"}}},
                   {"an operation alone", {{"operation", "ABS"}}, {{"limit", 0.0}, {"halt", false}}},
                   {"the new form", {{"limit", 3.0}, {"halt", true}, {"operation", "ABS"}}, {}}});
}

TEST(Upgrade, FilterTakesAnInvariantTo1412)
{
    TryConversion(
        Upgrade_kflC_Filter_1351_1412,
        {{"the old form", {{"operation", "ABS"}}, {{"invariant", "NONE"}}},
         {"an invariant that is there is not asked for", {{"invariant", "FIRST"}}, {{"invariant", "NONE"}}}});
}

TEST(OldVersions, AreThoseOfTheFilterInOrder)
{
    EXPECT_EQ((std::vector<std::string>{
                  "kflC_Filter 208 (0x3510002, base 0x1, mask 5) to 503: 0 cutoffFrequency 10 1 order 5",
                  "kflC_Filter 503 (0x3510002, base 0x1, mask 5) to 821 by Upgrade_kflC_Filter_503_821: "
                  "0 cutoffFrequency 10",
                  "kflC_Filter 821 (0x3510002, base 0x1, mask 5) to 1351 by Upgrade_kflC_Filter_821_1351: "
                  "0 cutoffFrequency 10 1 order 5",
                  "kflC_Filter 1351 (0x3510002, base 0x1, mask 5) to 1412 by Upgrade_kflC_Filter_1351_1412: "
                  "0 cutoffFrequency 10 1 order 5 2 operation 14 3 halt 13 4 limit 10"}),
              OldVersionsOf(849));
}

} // namespace
