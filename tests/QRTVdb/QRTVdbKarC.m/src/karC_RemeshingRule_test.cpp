#include "RuleTest.h"
#include "atr_Catalogue.h"
#include "karC_RemeshingRule.h"

#include <cmath>
#include <initializer_list>
#include <tuple>

namespace
{

const std::string sizesOutOfOrder = "The minimum element size must be smaller than the maximum element size.";
const std::string noErrorVariable =
    "Invalid variables defined for the remeshing rule. Only error variables may be included in remeshing "
    "rules.";
const std::string orphanMesh =
    "Orphan mesh nodes and elements are not allowed in the region for remeshing rules.";
const std::string oneTarget =
    "Target errors must be specified for both the minimum and maximum base solution values.";
const std::string negativeTarget = "Specified target errors must be equal to or greater than zero.";
const std::string badBias = "The mesh bias must be in the range of zero to 10.";
const std::string badMinimum = "The specified minimum element size must be greater than zero.";
const std::string badMaximum = "The specified maximum element size must be greater than zero.";
const std::string badCoarsening = "The specified coarsening factor must be in the range of zero to 10.";
const std::string badRefinement = "The specified refinement factor must be in the range of zero to 10.";

using Rule = karC_RemeshingRule;
using Sizing = Rule::karC_SizingMethod;
using Limit = Rule::karC_RateLimit;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double least = std::numeric_limits<double>::denorm_min();

cow_List<cow_String> Names(std::initializer_list<const char*> names)
{
    cow_List<cow_String> list;
    for (const char* name : names)
        list.Append(name);
    return list;
}

std::vector<std::string> TextsOf(const cow_List<cow_String>& list)
{
    std::vector<std::string> texts;
    for (const cow_String& text : list)
        texts.emplace_back(text.CString());
    return texts;
}

auto Flagged(int flag)
{
    return [flag](Rule& rule) { rule.region = rgnC_Region("Set-1", flag); };
}

auto Variables(std::initializer_list<const char*> names)
{
    return [list = Names(names)](Rule& rule) { rule.variables = list; };
}

auto Uniform(double target)
{
    return [target](Rule& rule)
    {
        rule.sizingMethod = Sizing::UNIFORM_ERROR;
        rule.errorTarget = target;
    };
}

auto Extremes(double minimum, double maximum, int bias)
{
    return [=](Rule& rule)
    {
        rule.sizingMethod = Sizing::MINIMUM_MAXIMUM;
        rule.minSolutionErrorTarget = minimum;
        rule.maxSolutionErrorTarget = maximum;
        rule.meshBias = bias;
    };
}

auto MinimumSize(double size)
{
    return [size](Rule& rule)
    {
        rule.specifyMinSize = true;
        rule.minElementSize = size;
    };
}

auto MaximumSize(double size)
{
    return [size](Rule& rule)
    {
        rule.specifyMaxSize = true;
        rule.maxElementSize = size;
    };
}

auto Sizes(double minimum, double maximum)
{
    return [=](Rule& rule)
    {
        MinimumSize(minimum)(rule);
        MaximumSize(maximum)(rule);
    };
}

auto Coarsening(Limit limit, int factor)
{
    return [=](Rule& rule)
    {
        rule.coarsening = limit;
        rule.coarseningFactor = factor;
    };
}

auto Refinement(Limit limit, int factor)
{
    return [=](Rule& rule)
    {
        rule.refinement = limit;
        rule.refinementFactor = factor;
    };
}

TEST(karC_RemeshingRule, WantsARegionWithoutOrphanMesh)
{
    CheckRules<Rule>(
        Rule(),
        {
            {"no region", [](Rule& rule) { rule.region = rgnC_Region(); }, passes},
            {"a flag without name", [](Rule& rule) { rule.region = rgnC_Region("", 7); }, passes},
            {"kinds alone", [](Rule& rule) { rule.region = rgnC_Region("Set-1", 0, 1); }, orphanMesh},
            {"flag 0", Flagged(0), orphanMesh},
            {"flag 1", Flagged(1), passes},
            {"flag 2", Flagged(2), orphanMesh},
            {"flag 3", Flagged(3), orphanMesh},
            {"flag 4", Flagged(4), orphanMesh},
            {"flag 5", Flagged(5), orphanMesh},
            {"flag 7", Flagged(7), orphanMesh},
            {"flag 8", Flagged(8), orphanMesh},
            {"flag 9", Flagged(9), passes},
            {"all other bits", Flagged(~6), passes},
            {"all bits", Flagged(-1), orphanMesh},
        });
}

TEST(karC_RemeshingRule, WantsErrorVariablesOnly)
{
    CheckRules<Rule>(
        Rule(),
        {
            {"none", Variables({}), passes},
            {"all",
             Variables({"ENDENERI", "MISESERI", "PEEQERI", "PEERI", "CEERI", "HFLERI", "EFLERI", "EPGERI"}),
             passes},
            {"one twice", Variables({"CEERI", "CEERI"}), passes},
            {"a companion", Variables({"MISESAVG"}), noErrorVariable},
            {"another among them", Variables({"CEERI", "S", "PEERI"}), noErrorVariable},
            {"the empty name", Variables({""}), noErrorVariable},
            {"lower case", Variables({"miseseri"}), noErrorVariable},
            {"a blank behind", Variables({"MISESERI "}), noErrorVariable},
        });
}

TEST(karC_RemeshingRule, WantsTargetsAsTheSizingMethodDoes)
{
    CheckRules<Rule>(Rule(),
                     {
                         {"uniform 0", Uniform(0.0), passes},
                         {"uniform 5", Uniform(5.0), passes},
                         {"uniform just below 0", Uniform(-least), negativeTarget},
                         {"uniform NaN", Uniform(notANumber), negativeTarget},
                         {"uniform infinite", Uniform(infinity), passes},
                         {"uniform with bad extremes and bias",
                          [](Rule& rule)
                          {
                              Extremes(-1.0, 0.0, 0)(rule);
                              rule.sizingMethod = Sizing::UNIFORM_ERROR;
                          },
                          passes},
                         {"extremes both 0", Extremes(0.0, 0.0, 7), passes},
                         {"extremes 0 and -0", Extremes(0.0, -0.0, 7), passes},
                         {"extremes both set", Extremes(1.0, 2.0, 7), passes},
                         {"extremes the wrong way round", Extremes(2.0, 1.0, 7), passes},
                         {"the minimum alone", Extremes(1.0, 0.0, 7), oneTarget},
                         {"the maximum alone", Extremes(0.0, 1.0, 7), oneTarget},
                         {"the least minimum alone", Extremes(least, 0.0, 7), oneTarget},
                         {"a negative minimum alone", Extremes(-1.0, 0.0, 7), oneTarget},
                         {"a negative minimum", Extremes(-1.0, 1.0, 7), negativeTarget},
                         {"a negative maximum", Extremes(1.0, -1.0, 7), negativeTarget},
                         {"a NaN minimum alone", Extremes(notANumber, 0.0, 7), oneTarget},
                         {"a NaN minimum", Extremes(notANumber, 1.0, 7), negativeTarget},
                         {"a NaN maximum", Extremes(1.0, notANumber, 7), negativeTarget},
                         {"bias 0", Extremes(0.0, 0.0, 0), badBias},
                         {"bias 1", Extremes(0.0, 0.0, 1), passes},
                         {"bias 10", Extremes(0.0, 0.0, 10), passes},
                         {"bias 11", Extremes(0.0, 0.0, 11), badBias},
                         {"bias -1", Extremes(0.0, 0.0, -1), badBias},
                         {"targets before bias", Extremes(-1.0, 1.0, 0), negativeTarget},
                         {"extremes with a bad uniform target",
                          [](Rule& rule)
                          {
                              Extremes(1.0, 1.0, 5)(rule);
                              rule.errorTarget = -1.0;
                          },
                          passes},
                         {"DEFAULT with everything bad",
                          [](Rule& rule)
                          {
                              Extremes(-1.0, 0.0, 0)(rule);
                              rule.errorTarget = -1.0;
                              rule.sizingMethod = Sizing::DEFAULT;
                          },
                          passes},
                     });
}

TEST(karC_RemeshingRule, WantsSizesThatArePositiveAndInOrder)
{
    CheckRules<Rule>(Rule(),
                     {
                         {"minimum 1", MinimumSize(1.0), passes},
                         {"the least minimum", MinimumSize(least), passes},
                         {"minimum 0", MinimumSize(0.0), badMinimum},
                         {"minimum -1", MinimumSize(-1.0), badMinimum},
                         {"minimum NaN", MinimumSize(notANumber), badMinimum},
                         {"minimum above a maximum not specified", MinimumSize(1000.0), passes},
                         {"maximum 1", MaximumSize(1.0), passes},
                         {"maximum 0", MaximumSize(0.0), badMaximum},
                         {"maximum -1", MaximumSize(-1.0), badMaximum},
                         {"maximum NaN", MaximumSize(notANumber), badMaximum},
                         {"maximum below a minimum not specified", MaximumSize(0.1), passes},
                         {"both in order", Sizes(1.0, std::nextafter(1.0, 2.0)), passes},
                         {"both the same", Sizes(1.0, 1.0), sizesOutOfOrder},
                         {"both out of order", Sizes(2.0, 1.0), sizesOutOfOrder},
                         {"both NaN", Sizes(notANumber, notANumber), sizesOutOfOrder},
                         {"order before minimum", Sizes(0.0, 0.0), sizesOutOfOrder},
                         {"minimum before maximum", Sizes(-2.0, -1.0), badMinimum},
                         {"neither specified",
                          [](Rule& rule)
                          {
                              rule.minElementSize = -1.0;
                              rule.maxElementSize = -2.0;
                          },
                          passes},
                     });
}

TEST(karC_RemeshingRule, BoundsSpecifiedFactorsFromAbove)
{
    CheckRules<Rule>(Rule(), {
                                 {"coarsening 10", Coarsening(Limit::SPECIFIED_LIMIT, 10), passes},
                                 {"coarsening 11", Coarsening(Limit::SPECIFIED_LIMIT, 11), badCoarsening},
                                 {"coarsening 0", Coarsening(Limit::SPECIFIED_LIMIT, 0), passes},
                                 {"coarsening -1", Coarsening(Limit::SPECIFIED_LIMIT, -1), passes},
                                 {"coarsening 11, by default", Coarsening(Limit::DEFAULT_LIMIT, 11), passes},
                                 {"coarsening 11, not allowed", Coarsening(Limit::NOT_ALLOWED, 11), passes},
                                 {"refinement 10", Refinement(Limit::SPECIFIED_LIMIT, 10), passes},
                                 {"refinement 11", Refinement(Limit::SPECIFIED_LIMIT, 11), badRefinement},
                                 {"refinement -1", Refinement(Limit::SPECIFIED_LIMIT, -1), passes},
                                 {"refinement 11, by default", Refinement(Limit::DEFAULT_LIMIT, 11), passes},
                                 {"refinement 11, not allowed", Refinement(Limit::NOT_ALLOWED, 11), passes},
                             });
}

TEST(karC_RemeshingRule, BreaksTheFirstRuleFirst)
{
    const std::pair<std::function<void(Rule&)>, std::string> steps[] = {
        {Flagged(1), orphanMesh},
        {Variables({}), noErrorVariable},
        {Extremes(-1.0, 1.0, 0), oneTarget},
        {Extremes(1.0, 1.0, 0), negativeTarget},
        {Extremes(1.0, 1.0, 1), badBias},
        {Sizes(-2.0, -1.0), sizesOutOfOrder},
        {[](Rule& rule) { rule.specifyMinSize = false; }, badMinimum},
        {MaximumSize(1.0), badMaximum},
        {Coarsening(Limit::DEFAULT_LIMIT, 11), badCoarsening},
        {Refinement(Limit::DEFAULT_LIMIT, 11), badRefinement},
    };
    Rule rule;
    Flagged(7)(rule);
    Variables({"S"})(rule);
    Extremes(-1.0, 0.0, 0)(rule);
    Sizes(-1.0, -2.0)(rule);
    Coarsening(Limit::SPECIFIED_LIMIT, 11)(rule);
    Refinement(Limit::SPECIFIED_LIMIT, 11)(rule);
    Rule suppressed(rule);
    suppressed.Suppress();
    EXPECT_EQ(passes, Verdict(suppressed));
    suppressed.Resume();
    EXPECT_EQ(orphanMesh, Verdict(suppressed));
    for (const auto& [mend, verdict] : steps)
    {
        EXPECT_EQ(verdict, Verdict(rule));
        mend(rule);
    }
    EXPECT_EQ(passes, Verdict(rule));
}

struct Variable
{
    const char* name;
    const char* description;
    const char* companion;
    const char* base;
    Sizing sizing;
};

constexpr Variable variables[] = {
    {"ENDENERI", "Element energy", "ENDEN", "ELEN", Sizing::UNIFORM_ERROR},
    {"MISESERI", "Mises equivalent stress", "MISESAVG", "S", Sizing::MINIMUM_MAXIMUM},
    {"PEEQERI", "Equivalent plastic strain", "PEEQAVG", "PE", Sizing::MINIMUM_MAXIMUM},
    {"PEERI", "Plastic strain", "PEAVG", "PE", Sizing::MINIMUM_MAXIMUM},
    {"CEERI", "Creep strain", "CEAVG", "CE", Sizing::MINIMUM_MAXIMUM},
    {"HFLERI", "Heat flux", "HFLAVG", "HFL", Sizing::UNIFORM_ERROR},
    {"EFLERI", "Electrical flux", "EFLAVG", "EFL", Sizing::MINIMUM_MAXIMUM},
    {"EPGERI", "Electric potential gradient", "EPGAVG", "EPG", Sizing::MINIMUM_MAXIMUM},
    {"MISESAVG", "", "", "", Sizing::DEFAULT},
    {"hfleri", "", "", "", Sizing::DEFAULT},
    {"", "", "", "", Sizing::DEFAULT},
};

TEST(karC_RemeshingRule, KnowsItsErrorVariables)
{
    Rule rule;
    rule.sizingMethod = Sizing::DEFAULT;
    for (const Variable& variable : variables)
    {
        EXPECT_EQ(Rule::GetVariableDescription(variable.name, 0), variable.description) << variable.name;
        EXPECT_EQ(Rule::GetCompanionVariable(variable.name), variable.companion) << variable.name;
        EXPECT_EQ(Rule::GetBaseVariable(variable.name), variable.base) << variable.name;
        EXPECT_EQ(variable.sizing, rule.SizingMethod(variable.name)) << variable.name;
    }
}

TEST(karC_RemeshingRule, AnswersItsSizingMethodUnlessItIsTheDefault)
{
    for (const Sizing stored : {Sizing::UNIFORM_ERROR, Sizing::MINIMUM_MAXIMUM})
    {
        Rule rule;
        rule.sizingMethod = stored;
        for (const char* name : {"HFLERI", "MISESERI", "S", ""})
            EXPECT_EQ(stored, rule.SizingMethod(name)) << name;
    }
}

/// Translates one label, as long as it lives.
class HeatInGerman final : public atr_Catalogue
{
public:
    HeatInGerman() : before(atr_setCatalogue(this)) {}
    ~HeatInGerman() override { atr_setCatalogue(before); }

    const char* Lookup(const char* text) const override
    {
        return std::string("Heat flux") == text ? "Wärmefluss" : nullptr;
    }

private:
    const atr_Catalogue* before;
};

TEST(karC_RemeshingRule, TranslatesDescriptions)
{
    const HeatInGerman language;
    EXPECT_EQ(Rule::GetVariableDescription("HFLERI", 0), "Wärmefluss");
    EXPECT_EQ(Rule::GetVariableDescription("CEERI", 0), "Creep strain");
}

TEST(karC_RemeshingRule, TellsTheFactorsInForce)
{
    const std::tuple<Limit, int, int> cases[] = {{Limit::DEFAULT_LIMIT, 9, 5},
                                                 {Limit::DEFAULT_LIMIT, 0, 5},
                                                 {Limit::NOT_ALLOWED, 9, 0},
                                                 {Limit::SPECIFIED_LIMIT, 9, 9},
                                                 {Limit::SPECIFIED_LIMIT, -3, -3}};
    for (const auto& [limit, factor, inForce] : cases)
    {
        Rule coarsening;
        Coarsening(limit, factor)(coarsening);
        EXPECT_EQ(inForce, coarsening.CoarseningFactor());
        EXPECT_EQ(5, coarsening.RefinementFactor()) << "the other one's default";
        Rule refinement;
        Refinement(limit, factor)(refinement);
        EXPECT_EQ(inForce, refinement.RefinementFactor());
        EXPECT_EQ(5, refinement.CoarseningFactor()) << "the other one's default";
    }
}

TEST(karC_RemeshingRule, ListsWhatARunMustOutputOnce)
{
    const std::pair<cow_List<cow_String>, std::vector<std::string>> cases[] = {
        {Names({}), {"EVOL"}},
        {Names({"MISESERI"}), {"MISESERI", "MISESAVG", "S", "EVOL"}},
        {Names({"PEEQERI", "PEERI"}), {"PEEQERI", "PEEQAVG", "PE", "PEERI", "PEAVG", "EVOL"}},
        {Names({"CEERI", "CEERI"}), {"CEERI", "CEAVG", "CE", "EVOL"}},
        {Names({"EVOL"}), {"EVOL", ""}},
        {Names({"A", "B"}), {"A", "", "B", "EVOL"}},
    };
    for (const auto& [names, list] : cases)
    {
        Rule rule;
        rule.variables = names;
        EXPECT_EQ(list, TextsOf(rule.GetFullVariableList()));
    }
}

TEST(karC_RemeshingRule, ListsItsRegionByItsFlag)
{
    const std::tuple<int, int, int> cases[] = {{0, 0, 0}, {0, 1, 1}, {0, 2, 1}, {0, 3, 0},  {0, -1, 0},
                                               {1, 0, 1}, {1, 1, 0}, {1, 2, 1}, {-8, 0, 1}, {4, 3, 0}};
    for (const auto& [flag, type, count] : cases)
    {
        Rule rule;
        rule.region = rgnC_Region("Set-1", flag, 3);
        const cow_List<rgnC_Region> regions = rule.Regions(static_cast<rgnC_RegionType>(type));
        ASSERT_EQ(count, regions.Count()) << flag << ' ' << type;
        for (const rgnC_Region& region : regions)
            EXPECT_EQ(rule.region, region);
    }
}

TEST(karC_RemeshingRule, TakesItsDefaultsBackButForWhatItIsFor)
{
    const std::vector<std::string> kept = {"suppress", "region", "variables", "stepName", "description"};
    const cls_Value changed = cls_Value::Object{{"class", "karC_RemeshingRule"},
                                                {"suppress", true},
                                                {"region", cls_Value::Object{{"name", "Set-1"}, {"flag", 1}}},
                                                {"variables", cls_Value::Array{"CEERI"}},
                                                {"stepName", "Step-1"},
                                                {"description", "of the weld"},
                                                {"sizingMethod", "MINIMUM_MAXIMUM"},
                                                {"errorTarget", 1.0},
                                                {"minSolutionErrorTarget", 2.0},
                                                {"maxSolutionErrorTarget", 3.0},
                                                {"specifyMinSize", true},
                                                {"minElementSize", 4.0},
                                                {"specifyMaxSize", true},
                                                {"maxElementSize", 5.0},
                                                {"coarsening", "NOT_ALLOWED"},
                                                {"coarseningFactor", 6},
                                                {"refinement", "SPECIFIED_LIMIT"},
                                                {"refinementFactor", 8},
                                                {"meshBias", 9},
                                                {"outputFrequency", "ALL_INCREMENTS"},
                                                {"elementCountLimit", 10}};
    const cls_AnyObject object = cls_ObjectOfValue(Rule::Description(), changed);
    Rule& rule = *static_cast<Rule*>(object.Get());
    const cls_Value before = Rule::Description().Export(&rule);
    const cls_Uid uid = rule.Uid();
    rule.SetDefaults();
    EXPECT_EQ(uid, rule.Uid());
    const cls_Value after = Rule::Description().Export(&rule);
    const Rule fresh;
    const cls_Value defaults = Rule::Description().Export(&fresh);
    for (const cls_Attribute* attribute : Rule::Description().AllAttributes())
    {
        const char* name = attribute->field.Name().CString();
        const bool isKept = std::find(kept.begin(), kept.end(), name) != kept.end();
        EXPECT_NE(*before.Find(name), *defaults.Find(name)) << name << " was changed";
        EXPECT_EQ(*(isKept ? before : defaults).Find(name), *after.Find(name)) << name;
    }
}

} // namespace
