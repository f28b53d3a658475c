#include "app_SectionPicture.h"

#include "Svg.h"
#include "app_DimensionLines.h"
#include "app_Error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace
{

using testing::IsSupersetOf;

cls_Value Profile(const std::string& shape, const std::vector<std::pair<std::string, double>>& numbers)
{
    cls_Value::Object object{{"class", "kbpC_" + shape + "Profile"}};
    for (const auto& [name, number] : numbers)
        object.emplace_back(name, number);
    return object;
}

std::vector<XmlElement> Drawn(const cls_Value& profile)
{
    app_Svg svg;
    app_DrawSection(svg, app_SectionOf(profile));
    svg.Heading("profiles['p']", "profile");
    return ExpectPicture(svg.Document("profiles['p']"));
}

cls_Value Girder()
{
    return Profile("Ibeam",
                   {{"l", 150}, {"h", 300}, {"b1", 150}, {"b2", 100}, {"t1", 12}, {"t2", 10}, {"t3", 7.1}});
}

/// The path of the section itself: the first that is drawn.
XmlElement ShapeIn(const std::vector<XmlElement>& elements)
{
    return Named(elements, "path").at(0);
}

TEST(SectionPicture, HasOneScaleInBothDirections)
{
    for (const auto& [a, b] : {std::pair{100.0, 10.0}, {10.0, 100.0}, {0.003, 0.002}, {1e9, 3e9}})
    {
        const app_Box box = BoxOf(ShapeIn(Drawn(Profile("Rectangular", {{"a", a}, {"b", b}}))));
        EXPECT_NEAR(a / b, box.Width() / box.Height(), 0.001 * a / b);
        EXPECT_TRUE(std::abs(box.Width() - app_SectionFrame::Width) < 0.01 ||
                    std::abs(box.Height() - app_SectionFrame::Height) < 0.01)
            << "it is as large as fits";
    }
}

TEST(SectionPicture, HasItsCornersWhereTheSectionHasThem)
{
    const app_Section section = app_SectionOf(Girder());
    const app_SectionFrame frame(section);
    EXPECT_DOUBLE_EQ(380.0 / 300.0, frame.Scale());
    EXPECT_EQ((app_Point{0.0, 380.0}), frame.At(app_Point{-75.0, 0.0}));
    const auto& corners = std::get<app_Polygon>(section.parts.at(0).at(0));
    const std::vector<app_Point> drawn = PointsOf(ShapeIn(Drawn(Girder())));
    ASSERT_EQ(corners.size(), drawn.size());
    for (std::size_t i = 0; i < drawn.size(); ++i)
        EXPECT_LT(app_Length(frame.At(corners[i]) - drawn[i]), 0.01);
}

TEST(SectionPicture, NamesEachDimensionWithItsValue)
{
    const std::vector<XmlElement> elements = Drawn(Girder());
    EXPECT_THAT(TextsOf(elements), IsSupersetOf({"h = 300", "l = 150", "b1 = 150", "b2 = 100", "t1 = 12",
                                                 "t2 = 10", "t3 = 7.1"}));
}

TEST(SectionPicture, KeepsItsTextsApartAndOffTheSection)
{
    const cls_Value rows[] = {
        Girder(),
        Profile("Box", {{"a", 200}, {"b", 100}, {"t1", 5}, {"t2", 8}, {"t3", 10}, {"t4", 12}}),
        Profile("Box", {{"a", 1}, {"b", 100}, {"t1", 0.25}, {"t2", 8}, {"t3", 0.125}, {"t4", 12}}),
        Profile("Pipe", {{"r", 57.15}, {"t", 6.3}}),
        Profile("Rectangular", {{"a", 120}, {"b", 0.001}}),
        Profile("Hexagonal", {{"r", 20}, {"t", 3}}),
        Profile("Lbeam", {{"a", 80}, {"b", 120}, {"t1", 10}, {"t2", 8}}),
        Profile("Tbeam", {{"b", 100}, {"h", 120}, {"l", 80}, {"tf", 11}, {"tw", 8}}),
        Profile("Cbeam", {{"l", 100},
                          {"h", 200},
                          {"b1", 75},
                          {"b2", 70},
                          {"t1", 11.5},
                          {"t2", 10},
                          {"t3", 8.5},
                          {"o", 20.1}}),
        Profile(
            "Hat",
            {{"l", 30}, {"h", 60}, {"b", 160}, {"b1", 70}, {"b2", 35}, {"t1", 2}, {"t2", 2}, {"t3", 1.5}}),
    };
    for (const cls_Value& profile : rows)
    {
        SCOPED_TRACE(profile.Summary());
        const std::vector<XmlElement> elements = Drawn(profile);
        ExpectTextsApart(elements);
    }
}

TEST(SectionPicture, ListsThePointsOfASectionGivenByThem)
{
    const auto row = [](double x, double y, double t) { return cls_Value::Array{x, y, t}; };
    cls_Value::Array rows{row(-50, 0, 9), row(-50, -15, 2.5), row(60, -15, 0), row(60, 185, 3.5)};
    const auto profile = [](cls_Value::Array table) {
        return cls_Value::Object{{"class", "kbpC_ArbitraryProfile"}, {"table", std::move(table)}};
    };
    const std::vector<XmlElement> elements = Drawn(profile(rows));
    EXPECT_THAT(TextsOf(elements),
                IsSupersetOf({"point", "thickness", "-50", "-15", "2.5", "0", "3.5", "185"}));
    EXPECT_TRUE(TextsReading(elements, "9").empty()) << "no wall ends at the first point";
    EXPECT_EQ(2U, TextsReading(elements, "4").size()) << "at the point and in the table";
    ExpectTextsApart(elements);
    for (int i = 0; i < 100; ++i)
        rows.emplace_back(row(i % 10, i, 0.5));
    EXPECT_THAT(TextsOf(Drawn(profile(rows))), testing::Contains("and 74 more"));
}

std::vector<XmlElement> DrawnLines(const std::vector<app_DimensionLine>& lines)
{
    app_Svg svg;
    svg.Area({app_Polygon{{0, 0}, {200, 0}, {200, 100}, {0, 100}}}, "#cccccc", {"", 0.0});
    app_DrawDimensionLines(svg, lines);
    std::vector<XmlElement> elements = ExpectPicture(svg.Document("lines"));
    ExpectTextsApart(elements);
    return elements;
}

/// Within a property: draws the profile, unless it is refused for what it is.
void ExpectWholeOrRefused(const cls_Value& profile)
{
    try
    {
        Drawn(profile);
    }
    catch (const app_Error& error)
    {
        RC_TAG(std::string("refused"));
        const std::string message = error.what();
        RC_ASSERT(message.rfind("its ", 0) == 0 || message.rfind("neither its ", 0) == 0 ||
                  message.rfind("row ", 0) == 0);
    }
}

RC_GTEST_PROP(SectionPicture, isWholeOrRefusedWhateverTheNumbers, ())
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<std::vector<std::string>> shapes = {
        {"Box", "a", "b", "t1", "t2", "t3", "t4"},
        {"Cbeam", "l", "h", "b1", "b2", "t1", "t2", "t3", "o"},
        {"Circular", "r"},
        {"Hat", "l", "h", "b", "b1", "b2", "t1", "t2", "t3"},
        {"Hexagonal", "r", "t"},
        {"Ibeam", "l", "h", "b1", "b2", "t1", "t2", "t3"},
        {"Lbeam", "a", "b", "t1", "t2"},
        {"Pipe", "r", "t"},
        {"Rectangular", "a", "b"},
        {"Tbeam", "b", "h", "l", "tf", "tw"},
        {"Trapezoidal", "a", "b", "c", "d"}};
    const std::vector<std::string>& shape = *rc::gen::elementOf(shapes);
    // Mostly sizes that fit each other, for thicknesses smaller ones; sometimes anything.
    cls_Value::Object object{{"class", "kbpC_" + shape.front() + "Profile"}};
    for (std::size_t i = 1; i < shape.size(); ++i)
    {
        const double most = shape[i][0] == 't' ? 3.0 : 20.0;
        const double fitting = *rc::gen::inRange(1, 100) / 100.0 * most;
        const double strange =
            *rc::gen::element(0.0, -1.0, 1e-3, 1e-140, 1e140, 1e300, nan, infinity, -infinity);
        object.emplace_back(shape[i], cls_ValueOfDouble(*rc::gen::inRange(0, 12) == 0 ? strange : fitting));
    }
    ExpectWholeOrRefused(object);
}

RC_GTEST_PROP(SectionPicture, isWholeOrRefusedWhateverThePoints, ())
{
    const auto number = [](int most)
    {
        const double strange =
            *rc::gen::element(-1.0, 1e-140, 1e140, std::numeric_limits<double>::quiet_NaN());
        return cls_ValueOfDouble(*rc::gen::inRange(0, 40) == 0 ? strange : *rc::gen::inRange(0, most) / 2.0);
    };
    cls_Value::Array rows;
    for (int i = *rc::gen::inRange(0, 8); i > 0; --i)
        rows.push_back(cls_Value::Array{number(8), number(8), number(3)});
    ExpectWholeOrRefused(cls_Value::Object{{"class", "kbpC_ArbitraryProfile"}, {"table", std::move(rows)}});
}

struct Side
{
    app_Side side;
    double x; ///< The direction in which the line lies outside, or 0.
    double y;
};

TEST(DimensionLines, LieOnTheirSideOfWhatIsDrawn)
{
    for (const Side& row : {Side{app_Side::Left, -1, 0}, Side{app_Side::Right, 1, 0},
                            Side{app_Side::Above, 0, -1}, Side{app_Side::Below, 0, 1}})
    {
        const std::vector<XmlElement> elements = DrawnLines({{"a = 1", {0, 0}, {200, 100}, row.side}});
        const app_Point text = BoxOf(Named(elements, "text").at(0)).Middle() - app_Point{100, 50};
        if (row.x != 0.0)
            EXPECT_GT(text.x * row.x, 100.0);
        else
            EXPECT_GT(text.y * row.y, 50.0);
        EXPECT_EQ(3U, Named(elements, "path").size()) << "the area and two arrows";
        EXPECT_EQ(3U, Named(elements, "line").size()) << "the line and two that lead to it";
    }
}

TEST(DimensionLines, ShareARowOnlyIfTheyDoNotMeet)
{
    const auto heightOf = [](const std::vector<XmlElement>& elements, const std::string& text)
    { return BoxOf(TextsReading(elements, text).at(0)).Middle().y; };
    const std::vector<XmlElement> apart = DrawnLines(
        {{"left", {0, 100}, {90, 100}, app_Side::Below}, {"right", {110, 100}, {200, 100}, app_Side::Below}});
    EXPECT_EQ(heightOf(apart, "left"), heightOf(apart, "right"));
    const std::vector<XmlElement> over = DrawnLines(
        {{"whole", {0, 100}, {200, 100}, app_Side::Below}, {"half", {0, 100}, {100, 100}, app_Side::Below}});
    EXPECT_LT(heightOf(over, "half"), heightOf(over, "whole")) << "the short one lies next to the section";
}

TEST(DimensionLines, HaveATextThatDoesNotFitBeyondTheirOuterEnd)
{
    const std::vector<XmlElement> elements = DrawnLines({{"t3 = 1.25", {0, 0}, {6, 0}, app_Side::Above},
                                                         {"t1 = 1.25", {190, 0}, {200, 0}, app_Side::Above},
                                                         {"a = 125", {50, 0}, {150, 0}, app_Side::Above}});
    EXPECT_LT(BoxOf(TextsReading(elements, "t3 = 1.25").at(0)).Max().x, -18.0);
    EXPECT_GT(BoxOf(TextsReading(elements, "t1 = 1.25").at(0)).Min().x, 200.0 + 18.0);
    EXPECT_NEAR(100.0, BoxOf(TextsReading(elements, "a = 125").at(0)).Middle().x, 0.01);
}

TEST(DimensionLines, AreLeftOutWithoutLength)
{
    for (const app_Side side : {app_Side::Left, app_Side::Below, app_Side::Here})
        EXPECT_TRUE(Named(DrawnLines({{"o = 0", {3, 3}, {3, 3}, side}}), "text").empty());
}

TEST(DimensionLines, HaveTheArrowsOfAShortOneOutside)
{
    for (const auto& [length, reach] : {std::pair{6.0, 6.0 + 2 * 18.0}, {60.0, 60.0}})
    {
        const std::vector<XmlElement> elements =
            DrawnLines({{"t", {20, 50}, {20 + length, 50}, app_Side::Here}});
        EXPECT_EQ(reach, BoxOf(Named(elements, "line").at(0)).Width());
        const app_Box arrow = BoxOf(Named(elements, "path").at(1));
        EXPECT_EQ(length < 28.0 ? 20.0 : 29.0, arrow.Max().x);
    }
}

} // namespace
