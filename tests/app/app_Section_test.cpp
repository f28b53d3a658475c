#include "app_Section.h"

#include "app_Error.h"
#include "cls_Unset.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace
{

using testing::HasSubstr;

constexpr double pi = std::numbers::pi;
const double root3 = std::sqrt(3.0);

using Numbers = std::vector<std::pair<std::string, double>>;

cls_Value Profile(const std::string& shape, const Numbers& numbers)
{
    cls_Value::Object object{{"class", "kbpC_" + shape + "Profile"}};
    for (const auto& [name, number] : numbers)
        object.emplace_back(name, cls_ValueOfDouble(number));
    return object;
}

cls_Value UniformBox(const Numbers& numbers)
{
    cls_Value profile = Profile("Box", numbers);
    profile.AsObject()->emplace_back("uniformThickness", true);
    return profile;
}

cls_Value Arbitrary(cls_Value::Array rows)
{
    return cls_Value::Object{{"class", "kbpC_ArbitraryProfile"}, {"table", std::move(rows)}};
}

cls_Value Row(double x, double y, double thickness)
{
    return cls_Value::Array{cls_ValueOfDouble(x), cls_ValueOfDouble(y), cls_ValueOfDouble(thickness)};
}

double AreaOf(const app_Section& section)
{
    double area = 0.0;
    for (const app_Outline& part : section.parts)
        area += app_AreaOf(part);
    return area;
}

struct Known
{
    const char* what;
    cls_Value profile;
    double area;
    double width;
    double height;
    std::size_t holes;
};

std::vector<Known> KnownSections()
{
    const double lean = std::hypot(40.0, 10.0) / 40.0;
    return {
        {"rectangle", Profile("Rectangular", {{"a", 30}, {"b", 80}}), 30.0 * 80.0, 30, 80, 0},
        {"circle", Profile("Circular", {{"r", 12}}), pi * 144.0, 24, 24, 0},
        {"pipe", Profile("Pipe", {{"r", 50}, {"t", 4}}), pi * (2500.0 - 2116.0), 100, 100, 1},
        {"hexagon", Profile("Hexagonal", {{"r", 10}, {"t", root3}}), 1.5 * root3 * (100.0 - 64.0), 20,
         10.0 * root3, 1},
        {"box", Profile("Box", {{"a", 100}, {"b", 60}, {"t1", 2}, {"t2", 3}, {"t3", 5}, {"t4", 7}}),
         6000.0 - 93.0 * 50.0, 100, 60, 1},
        {"uniform box", UniformBox({{"a", 100}, {"b", 60}, {"t1", 2}, {"t2", -1}}), 6000.0 - 96.0 * 56.0, 100,
         60, 1},
        {"I",
         Profile("Ibeam",
                 {{"l", 100}, {"h", 200}, {"b1", 100}, {"b2", 80}, {"t1", 10}, {"t2", 8}, {"t3", 6}}),
         100.0 * 10.0 + 80.0 * 8.0 + 182.0 * 6.0, 100, 200, 0},
        {"I without the lower flange", Profile("Ibeam", {{"h", 200}, {"b2", 80}, {"t2", 8}, {"t3", 6}}),
         80.0 * 8.0 + 192.0 * 6.0, 80, 200, 0},
        {"I without the upper flange", Profile("Ibeam", {{"h", 200}, {"b1", 80}, {"t1", 8}, {"t3", 6}}),
         80.0 * 8.0 + 192.0 * 6.0, 80, 200, 0},
        {"I with a negative width",
         Profile("Ibeam", {{"h", 200}, {"b1", 80}, {"b2", -5}, {"t1", 8}, {"t3", 6}}),
         80.0 * 8.0 + 192.0 * 6.0, 80, 200, 0},
        {"channel", Profile("Cbeam", {{"h", 120}, {"b1", 50}, {"b2", 40}, {"t1", 9}, {"t2", 7}, {"t3", 5}}),
         50.0 * 9.0 + 40.0 * 7.0 + 104.0 * 5.0, 50, 120, 0},
        {"channel without the upper flange", Profile("Cbeam", {{"h", 120}, {"b1", 50}, {"t1", 9}, {"t3", 5}}),
         50.0 * 9.0 + 111.0 * 5.0, 50, 120, 0},
        {"hat",
         Profile("Hat", {{"h", 40}, {"b", 100}, {"b1", 60}, {"b2", 20}, {"t1", 3}, {"t2", 2}, {"t3", 4}}),
         60.0 * 3.0 + 2.0 * 20.0 * 2.0 + 2.0 * 37.0 * 4.0, 100, 40, 0},
        {"hat without brims", Profile("Hat", {{"h", 40}, {"b", 60}, {"b1", 60}, {"t1", 3}, {"t3", 4}}),
         60.0 * 3.0 + 2.0 * 37.0 * 4.0, 60, 40, 0},
        // Webs that lean by 10 over a height of 40. Their walls are 4 thick across, and so wider along a
        // level line. The crown lies between the outer faces, the brims reach up their slope.
        {"hat with leaning webs",
         Profile("Hat", {{"h", 40}, {"b", 120}, {"b1", 60}, {"b2", 20}, {"t1", 3}, {"t2", 2}, {"t3", 4}}),
         (60.0 + 61.5) / 2.0 * 3.0 + 2.0 * (20.0 * 2.0 + 0.5 * 2.0 / 2.0) + 2.0 * 37.0 * 4.0 * lean, 120, 40,
         0},
        {"L", Profile("Lbeam", {{"a", 60}, {"b", 90}, {"t1", 6}, {"t2", 8}}), 60.0 * 6.0 + 84.0 * 8.0, 60, 90,
         0},
        {"T", Profile("Tbeam", {{"b", 90}, {"h", 70}, {"l", 50}, {"tf", 7}, {"tw", 5}}),
         90.0 * 7.0 + 63.0 * 5.0, 90, 70, 0},
        {"trapezoid", Profile("Trapezoidal", {{"a", 90}, {"b", 40}, {"c", 50}, {"d", 20}}), 70.0 * 40.0, 90,
         40, 0},
        {"walls between points", Arbitrary({Row(0, 0, 0), Row(40, 0, 2), Row(40, 30, 3)}),
         40.0 * 2.0 + 30.0 * 3.0, 41.5, 31, 0},
    };
}

TEST(Section, HasTheAreaAndTheExtentOfItsShape)
{
    for (const Known& known : KnownSections())
    {
        SCOPED_TRACE(known.what);
        const app_Section section = app_SectionOf(known.profile);
        EXPECT_NEAR(known.area, AreaOf(section), 1e-9 * known.area);
        EXPECT_NEAR(known.width, section.Bounds().Width(), 1e-12 * known.width);
        EXPECT_NEAR(known.height, section.Bounds().Height(), 1e-12 * known.height);
        EXPECT_EQ(known.holes + 1, section.parts.front().size());
    }
}

/// The distance that a measure shows.
double DistanceOf(const app_Measure& measure)
{
    switch (measure.side)
    {
    case app_Side::Left:
    case app_Side::Right:
        return measure.to.y - measure.from.y;
    case app_Side::Below:
    case app_Side::Above:
        return measure.to.x - measure.from.x;
    case app_Side::Here:
        return app_Length(measure.to - measure.from);
    }
    return 0.0;
}

double NumberOf(const cls_Value& profile, const std::string& name)
{
    const cls_Value* const value = profile.Find(name);
    return value ? cls_DoubleOfValue(*value) : 0.0;
}

TEST(Section, IsAsLongFromPointToPointAsItsMeasuresSay)
{
    for (const Known& known : KnownSections())
    {
        SCOPED_TRACE(known.what);
        for (const app_Measure& measure : app_SectionOf(known.profile).measures)
        {
            EXPECT_NEAR(measure.value, DistanceOf(measure), 1e-12 * known.height) << measure.name;
            EXPECT_EQ(NumberOf(known.profile, measure.name), measure.value) << measure.name;
        }
    }
}

struct Named
{
    const char* what;
    cls_Value profile;
    std::vector<std::string> texts;
};

TEST(Section, ShowsEachOfItsDimensions)
{
    const Named rows[] = {
        {"rectangle", Profile("Rectangular", {{"a", 30}, {"b", 80.5}}), {"a = 30", "b = 80.5"}},
        {"pipe", Profile("Pipe", {{"r", 50}, {"t", 0.1 + 0.2}}), {"r = 50", "t = 0.3"}},
        {"uniform box",
         UniformBox({{"a", 100}, {"b", 60}, {"t1", 2}, {"t2", 9}, {"t3", 9}, {"t4", 9}}),
         {"a = 100", "b = 60", "t1 = 2"}},
        {"box",
         Profile("Box", {{"a", 100}, {"b", 60}, {"t1", 2}, {"t2", 3}, {"t3", 5}, {"t4", 7}}),
         {"a = 100", "b = 60", "t1 = 2", "t2 = 3", "t3 = 5", "t4 = 7"}},
        {"I without the lower flange",
         Profile("Ibeam", {{"l", -10}, {"h", 200}, {"b2", 80}, {"t1", 4}, {"t2", 8}, {"t3", 6}}),
         {"h = 200", "l = -10", "t3 = 6", "b2 = 80", "t2 = 8"}},
        {"channel",
         Profile("Cbeam",
                 {{"h", 120}, {"b1", 50}, {"b2", 40}, {"t1", 9}, {"t2", 7}, {"t3", 5}, {"o", 14}, {"l", 60}}),
         {"h = 120", "l = 60", "t3 = 5", "b1 = 50", "t1 = 9", "b2 = 40", "t2 = 7", "o = 14"}},
        {"hat",
         Profile("Hat",
                 {{"h", 40}, {"b", 100}, {"b1", 60}, {"b2", 20}, {"t1", 3}, {"t2", 2}, {"t3", 4}, {"l", 9}}),
         {"h = 40", "l = 9", "b = 100", "b1 = 60", "t1 = 3", "t3 = 4", "b2 = 20", "t2 = 2"}},
        {"T",
         Profile("Tbeam", {{"b", 90}, {"h", 70}, {"l", 50}, {"tf", 7}, {"tw", 5}}),
         {"b = 90", "h = 70", "l = 50", "tf = 7", "tw = 5"}},
        {"trapezoid",
         Profile("Trapezoidal", {{"a", 90}, {"b", 40}, {"c", 50}, {"d", -20}}),
         {"a = 90", "b = 40", "c = 50", "d = -20"}},
    };
    for (const Named& row : rows)
    {
        std::vector<std::string> texts;
        for (const app_Measure& measure : app_SectionOf(row.profile).measures)
            texts.push_back(measure.Text());
        EXPECT_EQ(row.texts, texts) << row.what;
    }
}

struct Bend
{
    const char* what;
    cls_Value profile;
    std::vector<app_Polygon> corners;
};

TEST(Section, ClosesTheOuterCornersBetweenWalls)
{
    const Bend rows[] = {
        {"to the left",
         Arbitrary({Row(0, 0, 0), Row(40, 0, 2), Row(40, 30, 4)}),
         {{{40, 0}, {40, -1}, {42, -1}, {42, 0}}}},
        {"to the right",
         Arbitrary({Row(0, 0, 0), Row(40, 0, 2), Row(40, -30, 4)}),
         {{{40, 0}, {40, 1}, {42, 1}, {42, 0}}}},
        {"straight on", Arbitrary({Row(0, 0, 0), Row(40, 0, 2), Row(90, 0, 4)}), {}},
        {"back", Arbitrary({Row(0, 0, 0), Row(40, 0, 2), Row(10, 0, 4)}), {}},
        {"from no wall", Arbitrary({Row(0, 0, 0), Row(40, 0, 0), Row(40, 30, 4)}), {}},
        {"past a point that stands twice",
         Arbitrary({Row(0, 0, 0), Row(40, 0, 2), Row(40, 0, 2), Row(40, 30, 4)}),
         {}},
    };
    for (const Bend& row : rows)
        EXPECT_EQ(row.corners, app_SectionOf(row.profile).corners) << row.what;
    const app_Section sharp = app_SectionOf(Arbitrary({Row(0, 0, 0), Row(40, 0, 2), Row(0, 4, 2)}));
    ASSERT_EQ(1U, sharp.corners.size());
    EXPECT_EQ(3U, sharp.corners.front().size()) << "a sharp corner is cut off";
}

TEST(Section, HasTheWallsOfABoxWhereTheyBelong)
{
    const app_Section section =
        app_SectionOf(Profile("Box", {{"a", 100}, {"b", 60}, {"t1", 2}, {"t2", 3}, {"t3", 5}, {"t4", 7}}));
    const app_Box room = app_BoundsOf({section.parts.front()[1]});
    EXPECT_EQ((app_Point{5.0, 7.0}), room.Min());
    EXPECT_EQ((app_Point{98.0, 57.0}), room.Max());
}

TEST(Section, HasItsOriginWhereItsAttributesSay)
{
    EXPECT_EQ(
        (app_Point{14.0, 60.0}),
        app_SectionOf(Profile("Cbeam", {{"h", 120}, {"b1", 50}, {"t1", 9}, {"t3", 5}, {"o", 14}, {"l", 60}}))
            .origin);
    EXPECT_EQ((app_Point{0.0, -3.0}),
              app_SectionOf(Profile("Trapezoidal", {{"a", 90}, {"b", 40}, {"c", 50}, {"d", -3}})).origin);
    EXPECT_EQ(std::nullopt, app_SectionOf(Profile("Rectangular", {{"a", 1}, {"b", 2}})).origin);
}

TEST(Section, LeavesOutWallsWithoutThickness)
{
    const app_Section section = app_SectionOf(
        Arbitrary({Row(0, 0, 0), Row(40, 0, 2), Row(0, 30, 0), Row(40, 30, 3), Row(40, 30, 3)}));
    EXPECT_EQ(2U, section.parts.size());
    EXPECT_EQ(5U, section.wallPoints.size());
    EXPECT_NEAR(200.0, AreaOf(section), 1e-9);
}

struct Refused
{
    cls_Value profile;
    const char* message;
};

TEST(Section, IsRefusedWhereThereIsNone)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Refused rows[] = {
        {Profile("Generalized", {{"area", 5}}),
         "a generalized profile has properties of a section but no shape"},
        {Profile("Rectangular", {{"a", 0}, {"b", 2}}), "its a is 0, expected a number greater than 0"},
        {Profile("Rectangular", {{"a", nan}, {"b", 2}}), "its a is nan, which is no length"},
        {Profile("Rectangular", {{"a", infinity}, {"b", 2}}), "its a is inf, which is no length"},
        {Profile("Rectangular", {{"a", cls_UnsetDouble}, {"b", 2}}),
         "its a is 1.79769313e308, which is no length"},
        {Profile("Rectangular", {{"a", 1e-200}, {"b", 2}}), "its a is 1e-200, which is no length"},
        {Profile("Circular", {{"r", -1}}), "its r is -1, expected"},
        {Profile("Pipe", {{"r", 1}, {"t", 1}}), "its t is no less than r"},
        {Profile("Hexagonal", {{"r", 1}, {"t", 0.87}}), "its t is no less than sqrt(3)/2 times r"},
        {Profile("Box", {{"a", 5}, {"b", 9}, {"t1", 3}, {"t2", 1}, {"t3", 2}, {"t4", 1}}),
         "its walls leave no room between them"},
        {Profile("Box", {{"a", 5}, {"b", 9}, {"t1", 1}, {"t2", 1}, {"t3", 1}}), "its t4 is 0"},
        {Profile("Ibeam", {{"h", 9}, {"t3", 1}}), "neither its b1 nor its b2 is greater than 0"},
        {Profile("Ibeam", {{"h", 9}, {"t3", 1}, {"b1", 5}, {"b2", 5}, {"t1", 5}, {"t2", 4}}),
         "its flanges are thicker than it is high"},
        {Profile("Ibeam", {{"h", 9}, {"t3", 1}, {"b1", 5}, {"t1", 1}, {"l", nan}}), "its l is nan"},
        {Profile("Lbeam", {{"a", 5}, {"b", 5}, {"t1", 5}, {"t2", 1}}), "its t1 is no less than b"},
        {Profile("Lbeam", {{"a", 5}, {"b", 5}, {"t1", 1}, {"t2", 5}}), "its t2 is no less than a"},
        {Profile("Tbeam", {{"b", 5}, {"h", 5}, {"tf", 5}, {"tw", 1}}), "its tf is no less than h"},
        {Profile("Tbeam", {{"b", 5}, {"h", 5}, {"tf", 1}, {"tw", 5}}), "its tw is no less than b"},
        {Profile("Hat", {{"h", 5}, {"b", 9}, {"b1", 5}, {"b2", 4.5}, {"t1", 1}, {"t2", 1}, {"t3", 1}}),
         "its brims, each as wide as b2, leave no room within the width over all, b"},
        {Profile("Hat", {{"h", 5}, {"b", 9}, {"b1", 0.5}, {"t1", 1}, {"t3", 1}}),
         "its webs leave no room between them"},
        {Arbitrary({}), "its table has no two points with a wall between them"},
        {Arbitrary({Row(1, 1, 0), Row(2, 2, 0)}), "its table has no two points with a wall between them"},
        {Arbitrary({Row(1, 1, 0), Row(2, nan, 1)}), "row 2 of its table holds nan, which is no length"},
        {Arbitrary({Row(1, 1, 0), Row(2, 2, -1)}),
         "row 2 of its table has the thickness -1, expected 0 or more"},
        {Arbitrary({cls_Value::Array{1.0, 2.0}}),
         "row 1 of its table has 2 columns, expected x, y and thickness"},
        {cls_Value::Object{{"class", "kamC_Decay"}}, "it is no beam profile"},
    };
    for (const Refused& row : rows)
    {
        try
        {
            app_SectionOf(row.profile);
            ADD_FAILURE() << "not refused: " << row.message;
        }
        catch (const app_Error& error)
        {
            EXPECT_THAT(error.what(), HasSubstr(row.message));
        }
    }
}

RC_GTEST_PROP(Section, ofAnyIHasTheAreaOfItsThreeParts, ())
{
    const auto length = [](const char* name, int most) { return *rc::gen::inRange(1, most).as(name) / 8.0; };
    const double t1 = length("t1", 400);
    const double t2 = length("t2", 400);
    const double web = length("web", 4000);
    const double t3 = length("t3", 400);
    const double b1 = t3 + length("b1", 4000);
    const double b2 = t3 + length("b2", 4000);
    const app_Section section = app_SectionOf(
        Profile("Ibeam", {{"h", t1 + web + t2}, {"b1", b1}, {"b2", b2}, {"t1", t1}, {"t2", t2}, {"t3", t3}}));
    const double area = b1 * t1 + b2 * t2 + web * t3;
    RC_ASSERT(std::abs(AreaOf(section) - area) <= 1e-9 * area);
    RC_ASSERT(section.Bounds().Width() == std::max(b1, b2));
}

} // namespace
