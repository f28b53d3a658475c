#include "LibraryEnvironment.h"
#include "kamC_AmplitudeContainer.h"
#include "kamC_SpectrumAmplitude.h"
#include "kamC_Tabular.h"
#include "kamC_UserAmplitude.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

using Array = cls_Value::Array;
using Object = cls_Value::Object;

/// Path and message of the refusal of `value` as an object of class `T`, or "taken".
template <class T>
std::string Refusal(const cls_Value& value)
{
    T object;
    try
    {
        T::Description().Import(static_cast<typename T::cls_RootClass*>(&object), value);
    }
    catch (const cls_ValueError& error)
    {
        EXPECT_EQ(error.Path().empty() ? error.Message() : error.Path() + ": " + error.Message(),
                  error.what());
        return error.what();
    }
    return "taken";
}

template <class T>
std::string RefusalOf(const char* attribute, const cls_Value& value)
{
    return Refusal<T>(Object{{attribute, value}});
}

TEST(Import, NamesThePlaceAndWhatWasExpected)
{
    struct Row
    {
        std::string refusal;
        std::string expected;
    };
    const cls_Value ragged = Array{Array{1, 2}, Array{3}};
    const cls_Value deep = Array{Array{1, 2}, Array{3, "x"}};
    const Row rows[] = {
        {Refusal<kamC_Tabular>(5), "expected an object, found 5"},
        {RefusalOf<kamC_Tabular>("smooth", "much"), "smooth: expected a number, found \"much\""},
        {RefusalOf<kamC_Tabular>("smooth", true), "smooth: expected a number, found true"},
        {RefusalOf<kamC_Tabular>("smooth", cls_Value()), "smooth: expected a number, found null"},
        {RefusalOf<kamC_Tabular>("timeSpan", "step"),
         "timeSpan: expected one of STEP, TOTAL, found \"step\""},
        {RefusalOf<kamC_Tabular>("timeSpan", 1.5), "timeSpan: expected one of STEP, TOTAL, found 1.5"},
        {RefusalOf<kamC_Tabular>("data", 1), "data: expected an array, found 1"},
        {RefusalOf<kamC_Tabular>("data", Array{1}), "data[0]: expected an array, found 1"},
        {RefusalOf<kamC_Tabular>("data", ragged),
         "data[1]: expected an array of 2, as in the first row, found an array of 1"},
        {RefusalOf<kamC_Tabular>("data", deep), "data[1][1]: expected a number, found \"x\""},
        {RefusalOf<kamC_Tabular>("baselineCorrection", 3), "baselineCorrection: expected an object, found 3"},
        {RefusalOf<kamC_Tabular>("baselineCorrection", Object{{"intervals", Array{0, "x"}}}),
         "baselineCorrection.intervals[1]: expected a number, found \"x\""},
        {RefusalOf<kamC_Tabular>("baselineCorrection", Object{{"class", "kamC_Decay"}}),
         "baselineCorrection.class: expected a kamC_BaselineCorrection, found the class kamC_Decay"},
        {RefusalOf<kamC_Tabular>("baselineCorrection", Object{{"class", "kamC_None"}}),
         "baselineCorrection.class: no class has the name \"kamC_None\""},
        {RefusalOf<kamC_UserAmplitude>("numVariables", 2147483648.0),
         "numVariables: expected an integer of 32 bits, found 2147483648"},
        {RefusalOf<kamC_UserAmplitude>("numVariables", std::int64_t{2147483648}),
         "numVariables: expected an integer of 32 bits, found 2147483648"},
        {RefusalOf<kamC_UserAmplitude>("numVariables", std::int64_t{2147483647}), "taken"},
        {RefusalOf<kamC_SpectrumAmplitude>("criticalDamping", 0),
         "criticalDamping: expected true or false, found 0"},
        {RefusalOf<kamC_SpectrumAmplitude>("amplitude", 0), "amplitude: expected a text, found 0"},
        {RefusalOf<kamC_SpectrumAmplitude>("amplitude", std::string("a\0b", 3)),
         "amplitude: expected a text without null characters"},
        {RefusalOf<kamC_SpectrumAmplitude>("noSuch", 0),
         "noSuch: the class kamC_SpectrumAmplitude has no such attribute"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.expected, row.refusal);
}

TEST(Import, TakesSpecialNumbersAsTexts)
{
    kamC_Tabular tabular;
    kamC_Tabular::Description().Import(
        static_cast<kamC_Amplitude*>(&tabular),
        Object{{"data", Array{Array{"NaN", "Infinity"}, Array{"-Infinity", 2}}}});
    EXPECT_TRUE(std::isnan(tabular.data.ConstGet(0, 0)));
    EXPECT_EQ(std::numeric_limits<double>::infinity(), tabular.data.ConstGet(0, 1));
    EXPECT_EQ(-std::numeric_limits<double>::infinity(), tabular.data.ConstGet(1, 0));
    EXPECT_EQ(2.0, tabular.data.ConstGet(1, 1));
}

TEST(Import, TakesANumberForAnEnumerationValueOutsideItsTable)
{
    kamC_Tabular tabular;
    const cls_Description& description = kamC_Tabular::Description();
    description.Import(static_cast<kamC_Amplitude*>(&tabular), Object{{"timeSpan", 7}});
    EXPECT_EQ(7, static_cast<int>(tabular.timeSpan));
    const cls_Value exported = description.Export(static_cast<const kamC_Amplitude*>(&tabular));
    ASSERT_NE(nullptr, exported.Find("timeSpan"));
    EXPECT_EQ(cls_Value(7), *exported.Find("timeSpan"));
}

TEST(Import, LeavesTheMemberAloneWhenItRefuses)
{
    kamC_Tabular tabular;
    tabular.data = cow_2DArray<double>(3, 2);
    EXPECT_THROW(kamC_Tabular::Description().Import(static_cast<kamC_Amplitude*>(&tabular),
                                                    Object{{"data", Array{Array{1}, Array{"x"}}}}),
                 cls_ValueError);
    EXPECT_EQ(3, tabular.data.Rows());
    EXPECT_EQ(2, tabular.data.Columns());
}

TEST(Import, GivesACollectionANewIdentity)
{
    kamC_Tabular tabular;
    const cls_Uid before = tabular.data.Uid();
    kamC_Tabular::Description().Import(static_cast<kamC_Amplitude*>(&tabular),
                                       Object{{"data", Array{cls_Value(Array{0, 1})}}});
    EXPECT_NE(before, tabular.data.Uid());
}

TEST(ObjectOfValue, NeedsAClassWhereSeveralCanStand)
{
    LibraryEnvironment::Require();
    const auto refusal = [](const cls_Description& root, const cls_Value& value) -> std::string
    {
        try
        {
            cls_ObjectOfValue(root, value);
        }
        catch (const cls_ValueError& error)
        {
            return error.what();
        }
        return "taken";
    };
    const cls_Description& amplitude = kamC_Amplitude::Description();
    EXPECT_EQ("class: expected the name of a class derived from kamC_Amplitude",
              refusal(amplitude, Object{}));
    EXPECT_EQ("class: the class kamC_Amplitude is abstract: no object can be of it alone",
              refusal(amplitude, Object{{"class", "kamC_Amplitude"}}));
    EXPECT_EQ("class: expected a kamC_Amplitude, found the class kamC_BaselineCorrection",
              refusal(amplitude, Object{{"class", "kamC_BaselineCorrection"}}));
    EXPECT_EQ("expected an object, found null", refusal(amplitude, cls_Value()));
    EXPECT_EQ("taken", refusal(amplitude, Object{{"class", "kamC_Decay"}}));
    EXPECT_EQ("taken", refusal(kamC_BaselineCorrection::Description(), Object{}));
}

TEST(Repository, ExportsObjectsByNameInOrder)
{
    kamC_AmplitudeContainer container;
    EXPECT_TRUE(container.Insert("ramp", new kamC_Tabular));
    EXPECT_TRUE(container.Insert("a user's", new kamC_UserAmplitude));
    const cls_Value value =
        kamC_AmplitudeContainer::Description().Export(static_cast<const mdl_Extension*>(&container));
    const cls_Value* map = value.Find("map");
    ASSERT_NE(nullptr, map);
    ASSERT_EQ(2u, map->AsObject()->size());
    EXPECT_EQ("a user's", map->AsObject()->front().first);
    EXPECT_EQ("ramp", map->AsObject()->back().first);

    kamC_AmplitudeContainer taken;
    kamC_AmplitudeContainer::Description().Import(static_cast<mdl_Extension*>(&taken), value);
    EXPECT_EQ(value,
              kamC_AmplitudeContainer::Description().Export(static_cast<const mdl_Extension*>(&taken)));
}

TEST(Value, SummarizesInShort)
{
    EXPECT_EQ("null", cls_Value().Summary());
    EXPECT_EQ("false", cls_Value(false).Summary());
    EXPECT_EQ("-3", cls_Value(-3).Summary());
    EXPECT_EQ("0.10000000000000001", cls_Value(0.1).Summary());
    EXPECT_EQ("\"" + std::string(40, 'x') + "...\"", cls_Value(std::string(41, 'x')).Summary());
    EXPECT_EQ("an array of 2", cls_Value(Array{1, 2}).Summary());
    EXPECT_EQ("an object of 1 members", cls_Value(Object{{"a", 1}}).Summary());
}

} // namespace
