#include "RuleTest.h"
#include "VirtualSlot.h"
#include "klcC_LoadCase.h"

namespace
{

const std::string badFactor = "A scale factor cannot be zero or blank.";

constexpr float least = std::numeric_limits<float>::denorm_min();

using Factors = cls_xpMapString2Float klcC_LoadCase::*;

/// A load case with a sound entry in each of its maps.
klcC_LoadCase Valid()
{
    klcC_LoadCase loadCase;
    for (const Factors factors :
         {&klcC_LoadCase::boundaryConditions, &klcC_LoadCase::loads, &klcC_LoadCase::fields})
        (loadCase.*factors).Insert("middle", 1.0F);
    return loadCase;
}

/// What is said to a factor under a name, which decides where it stands among the others.
std::vector<RuleRow<klcC_LoadCase>> FactorRows(Factors factors)
{
    const auto put = [factors](const char* name, float factor)
    { return [=](klcC_LoadCase& loadCase) { (loadCase.*factors).Insert(name, factor); }; };
    return {
        {"0 in first place", put("a", 0.0F), badFactor},
        {"0 in last place", put("z", 0.0F), badFactor},
        {"0 under an empty name", put("", 0.0F), badFactor},
        {"-0", put("z", -0.0F), badFactor},
        {"the least factor", put("z", least), passes},
        {"the least negative factor", put("z", -least), passes},
        {"a number too small for a float", put("z", static_cast<float>(1e-50)), badFactor},
        {"NaN", put("z", std::numeric_limits<float>::quiet_NaN()), passes},
        {"infinity", put("z", std::numeric_limits<float>::infinity()), passes},
        {"NaN before 0",
         [factors](klcC_LoadCase& loadCase)
         {
             (loadCase.*factors).Insert("a", std::numeric_limits<float>::quiet_NaN());
             (loadCase.*factors).Insert("b", 0.0F);
         },
         badFactor},
        {"0 in a suppressed load case",
         [factors](klcC_LoadCase& loadCase)
         {
             (loadCase.*factors).Insert("z", 0.0F);
             loadCase.Suppress();
         },
         badFactor},
        {"nothing at all", [factors](klcC_LoadCase& loadCase) { (loadCase.*factors).Clear(); }, passes},
    };
}

TEST(klcC_LoadCase, RefusesAFactorOfZeroWhereverItStands)
{
    CheckRules(Valid(), FactorRows(&klcC_LoadCase::boundaryConditions));
    CheckRules(Valid(), FactorRows(&klcC_LoadCase::loads));
    CheckRules(Valid(), FactorRows(&klcC_LoadCase::fields));
}

TEST(klcC_LoadCase, PassesAsNew)
{
    EXPECT_EQ(passes, Verdict(klcC_LoadCase()));
}

TEST(klcC_LoadCase, IsSuppressedAndResumed)
{
    klcC_LoadCase loadCase;
    EXPECT_FALSE(loadCase.suppress);
    loadCase.Suppress();
    loadCase.Suppress();
    EXPECT_TRUE(loadCase.suppress);
    loadCase.Resume();
    EXPECT_FALSE(loadCase.suppress);
}

TEST(klcC_LoadCase, HasItsVirtualOperationsInOrder)
{
    // Two slots of the destructor come first.
    EXPECT_EQ(2u, VirtualSlotOf(&klcC_LoadCase::Copy));
    EXPECT_EQ(3u, VirtualSlotOf(&klcC_LoadCase::AssertValid));
    EXPECT_EQ(4u, VirtualSlotOf(&klcC_LoadCase::DynTypeId));
    EXPECT_EQ(5u, VirtualSlotOf(&klcC_LoadCase::DBWrite));
}

TEST(klcC_LoadCase, SharesItsMapsWithACopyUntilOneChanges)
{
    const klcC_LoadCase loadCase = Valid();
    const std::unique_ptr<klcC_LoadCase> copy(loadCase.Copy());
    EXPECT_EQ(loadCase.loads.ConstGet("middle"), copy->loads.ConstGet("middle")) << "the same storage";
    copy->loads.Insert("middle", 2.0F);
    EXPECT_EQ(1.0F, *loadCase.loads.ConstGet("middle"));
    EXPECT_EQ(2.0F, *copy->loads.ConstGet("middle"));
}

} // namespace
