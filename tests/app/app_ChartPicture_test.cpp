#include "app_ChartPicture.h"

#include "Svg.h"
#include "app_AmplitudeChart.h"
#include "app_Error.h"
#include "app_MaterialChart.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

cls_Value Table(const std::vector<std::vector<double>>& rows)
{
    cls_Value::Array table;
    for (const std::vector<double>& row : rows)
    {
        cls_Value::Array cells;
        for (const double number : row)
            cells.push_back(cls_ValueOfDouble(number));
        table.emplace_back(std::move(cells));
    }
    return table;
}

cls_Value Material(const std::string& name, const std::vector<std::vector<double>>& rows,
                   cls_Value::Object attributes)
{
    attributes.insert(attributes.begin(), {"class", name});
    attributes.emplace_back("table",
                            cls_Value::Object{{"table", Table(rows)}, {"allowEmptyFirstRow", false}});
    return attributes;
}

std::vector<XmlElement> Drawn(const app_Chart& chart)
{
    app_Svg svg;
    app_DrawChart(svg, chart);
    svg.Heading("object", "kind");
    std::vector<XmlElement> elements = ExpectPicture(svg.Document("object"));
    ExpectTextsApart(elements);
    return elements;
}

/// The polylines but for the frame, which is the last.
std::vector<XmlElement> CurvesOf(const std::vector<XmlElement>& elements)
{
    std::vector<XmlElement> curves = Named(elements, "polyline");
    curves.pop_back();
    return curves;
}

std::vector<std::string> NamesOf(const app_Chart& chart)
{
    std::vector<std::string> names;
    for (const app_Series& series : chart.series)
        names.push_back(series.name);
    return names;
}

TEST(ChartPicture, HasItsPointsWhereTheAxesSay)
{
    const app_Chart chart{"time", "amplitude", {{"", {0, 2.5, 10}, {-1, 0, 1}}}, true};
    const std::vector<XmlElement> elements = Drawn(chart);
    EXPECT_THAT(PointsOf(CurvesOf(elements).at(0)),
                ElementsAre(app_Point{0, 360}, app_Point{160, 180}, app_Point{640, 0}));
    EXPECT_EQ(3U, Named(elements, "circle").size());
    EXPECT_EQ(160.0, Named(elements, "circle").at(1).Number("cx"));
    EXPECT_EQ(180.0, Named(elements, "circle").at(1).Number("cy"));
    EXPECT_THAT(TextsOf(elements),
                testing::IsSupersetOf({"0", "10", "-1", "1", "time", "amplitude", "object"}));
    EXPECT_EQ(0.0, TextsReading(elements, "5").at(0).Number("x") - 320.0);
}

TEST(ChartPicture, HasALogarithmicAxisWhereNumbersSpanDecades)
{
    app_Chart chart{"frequency", "density", {{"", {1, 10, 1000}, {5, 6, 7}}}};
    EXPECT_EQ(app_Axis::Scale::Linear, app_ChartFrame(chart).X().Kind());
    chart.mayBeLogarithmic = true;
    const app_ChartFrame frame(chart);
    EXPECT_EQ(app_Axis::Scale::Logarithmic, frame.X().Kind());
    EXPECT_EQ(app_Axis::Scale::Linear, frame.Y().Kind());
    EXPECT_NEAR(app_ChartFrame::Width / 3.0, frame.At(10, 5).x, 1e-9);
    chart.series.front().x.front() = 0.0;
    EXPECT_EQ(app_Axis::Scale::Linear, app_ChartFrame(chart).X().Kind()) << "zero has no logarithm";
}

TEST(ChartPicture, KeepsItsTextsApartWhateverTheNumbers)
{
    for (const auto& [low, high] : {std::pair{-1e300, 1e300},
                                    {0.0, 1e-300},
                                    {1e7 + 0.5, 1e7 + 0.7},
                                    {-3.3e9, -2.9e9},
                                    {0.0, 0.0},
                                    {5.0, 5.0},
                                    {0.00012345, 0.00012346}})
    {
        SCOPED_TRACE(low);
        Drawn({"time", "amplitude", {{"", {low, high}, {low, high}}}, true});
    }
}

RC_GTEST_PROP(ChartPicture, isWholeWhateverTheNumbers, ())
{
    const auto number = []
    {
        return *rc::gen::inRange(-99, 100) * std::pow(10.0, *rc::gen::inRange(-320, 298)) *
               *rc::gen::element(1.0, 1.0, 0.0);
    };
    app_Chart chart{"x",
                    "y",
                    {},
                    *rc::gen::arbitrary<bool>(),
                    *rc::gen::arbitrary<bool>(),
                    *rc::gen::arbitrary<bool>(),
                    *rc::gen::arbitrary<bool>()};
    const int count = *rc::gen::inRange(1, 4);
    for (int i = 0; i < count; ++i)
    {
        app_Series series{"curve", {}, {}};
        for (int k = *rc::gen::inRange(1, 5); k > 0; --k)
        {
            series.x.push_back(number());
            series.y.push_back(number());
        }
        chart.series.push_back(std::move(series));
    }
    Drawn(chart);
    const app_ChartFrame frame(chart);
    for (const app_Series& series : chart.series)
    {
        for (std::size_t i = 0; i < series.x.size(); ++i)
        {
            const app_Point at = frame.At(series.x[i], series.y[i]);
            RC_ASSERT(at.x >= -0.01 && at.x <= app_ChartFrame::Width + 0.01);
            RC_ASSERT(at.y >= -0.01 && at.y <= app_ChartFrame::Height + 0.01);
        }
    }
}

TEST(ChartPicture, NamesManyCurvesAndThenCountsThem)
{
    app_Chart chart{"x", "y", {}};
    for (int i = 0; i < 25; ++i)
        chart.series.push_back({"curve " + std::to_string(i), {0, 1}, {0, i + 1.0}});
    const std::vector<XmlElement> elements = Drawn(chart);
    EXPECT_EQ(25U, CurvesOf(elements).size());
    EXPECT_THAT(TextsOf(elements), testing::IsSupersetOf({"curve 0", "curve 17", "and 7 more"}));
    EXPECT_THAT(TextsOf(elements), testing::Not(Contains("curve 18")));
}

TEST(ChartPicture, HasNoMorePointsThanCanBeSeen)
{
    app_Series series;
    for (int i = 0; i < 100000; ++i)
    {
        series.x.push_back(i / 100000.0);
        series.y.push_back(i % 2 == 0 ? 0.5 : 0.4);
    }
    series.y[77777] = 1.0;
    series.y[22222] = -1.0;
    const app_Chart chart{"x", "y", {series}, true};
    const std::vector<app_Point> points = PointsOf(CurvesOf(Drawn(chart)).at(0));
    EXPECT_LE(points.size(), 4U * 641U);
    EXPECT_GE(points.size(), 3U * 640U);
    const app_ChartFrame frame(chart);
    for (const std::size_t extreme : {77777U, 22222U})
    {
        const app_Point at = frame.At(series.x[extreme], series.y[extreme]);
        EXPECT_TRUE(std::any_of(points.begin(), points.end(),
                                [at](app_Point point) { return app_Length(point - at) < 0.01; }))
            << extreme;
    }
    EXPECT_TRUE(
        std::is_sorted(points.begin(), points.end(), [](app_Point a, app_Point b) { return a.x < b.x; }));
}

TEST(ChartPicture, HoldsTheLastValueOnToTheEnd)
{
    app_Chart chart{"x", "y", {{"", {0}, {250}}}, true};
    chart.isHeldAtEnd = true;
    chart.isYFromZero = true;
    const app_Point at = app_ChartFrame(chart).At(0, 250);
    EXPECT_EQ(0.0, at.x) << "a single place lies at the left end";
    std::vector<XmlElement> lines = Named(Drawn(chart), "line");
    std::erase_if(lines,
                  [](const XmlElement& line) { return line.attributes.count("stroke-dasharray") == 0; });
    ASSERT_EQ(1U, lines.size());
    EXPECT_EQ(0.0, BoxOf(lines[0]).Min().x);
    EXPECT_EQ(640.0, BoxOf(lines[0]).Max().x);
    EXPECT_NEAR(at.y, BoxOf(lines[0]).Min().y, 0.01);
}

TEST(ChartPicture, MarksASinglePoint)
{
    const std::vector<XmlElement> elements = Drawn({"x", "y", {{"", {1}, {250}}}});
    EXPECT_TRUE(CurvesOf(elements).empty());
    EXPECT_EQ(1U, Named(elements, "circle").size());
}

cls_Value Amplitude(const std::string& name, cls_Value::Object attributes)
{
    attributes.insert(attributes.begin(), {"class", "kamC_" + name});
    return attributes;
}

TEST(AmplitudeChart, TakesTablesAsTheyAre)
{
    const auto chart = app_ChartOfAmplitude(
        Amplitude("Tabular", {{"timeSpan", "TOTAL"}, {"data", Table({{0, 1}, {2, 5}})}}));
    ASSERT_TRUE(chart);
    EXPECT_EQ("Total Time", chart->xName);
    EXPECT_EQ((std::vector<double>{0, 2}), chart->series.at(0).x);
    EXPECT_EQ((std::vector<double>{1, 5}), chart->series.at(0).y);
    const auto spaced = app_ChartOfAmplitude(
        Amplitude("EquallySpaced",
                  {{"begin", 1.0}, {"fixedInterval", 0.5}, {"data", cls_Value::Array{3.0, 4.0, 5.0}}}));
    EXPECT_EQ("Step Time", spaced->xName);
    EXPECT_EQ((std::vector<double>{1, 1.5, 2}), spaced->series.at(0).x);
}

/// The greatest difference between the samples of a chart and a function.
template <class Function>
double Deviation(const app_Chart& chart, Function function)
{
    double deviation = 0.0;
    for (std::size_t i = 0; i < chart.series.at(0).x.size(); ++i)
        deviation = std::max(deviation, std::abs(chart.series[0].y[i] - function(chart.series[0].x[i])));
    return deviation;
}

TEST(AmplitudeChart, SamplesTheLaws)
{
    const auto decay = app_ChartOfAmplitude(
        Amplitude("Decay", {{"initial", 2.0}, {"maximum", 3.0}, {"start", 1.0}, {"decayTime", 4.0}}));
    EXPECT_LT(Deviation(*decay, [](double t) { return 2.0 + 3.0 * std::exp(-(t - 1.0) / 4.0); }), 1e-12);
    const auto beat = app_ChartOfAmplitude(Amplitude(
        "Modulated",
        {{"initial", 1.0}, {"magnitude", 2.0}, {"start", 0.0}, {"frequency1", 3.0}, {"frequency2", 40.0}}));
    EXPECT_LT(Deviation(*beat, [](double t) { return 1.0 + 2.0 * std::sin(3.0 * t) * std::sin(40.0 * t); }),
              1e-12);
    const auto wave = app_ChartOfAmplitude(
        Amplitude("Periodic", {{"frequency", 5.0}, {"a_0", 1.0}, {"data", Table({{2, 3}, {0, 4}})}}));
    EXPECT_LT(Deviation(*wave,
                        [](double t) {
                            return 1.0 + 2.0 * std::cos(5.0 * t) + 3.0 * std::sin(5.0 * t) +
                                   4.0 * std::sin(10.0 * t);
                        }),
              1e-12);
    const auto step =
        app_ChartOfAmplitude(Amplitude("SmoothStep", {{"data", Table({{0, 0}, {1, 2}, {3, 2}})}}));
    EXPECT_LT(Deviation(*step, [](double t)
                        { return t >= 1 ? 2.0 : 2.0 * t * t * t * (10.0 - 15.0 * t + 6.0 * t * t); }),
              1e-12);
}

TEST(AmplitudeChart, SamplesFastOscillationsDenselyEnough)
{
    for (const double fast : {10.0, 100.0, 1e4, 1e9})
    {
        const auto beat = app_ChartOfAmplitude(
            Amplitude("Modulated", {{"magnitude", 1.0}, {"frequency1", 1.0}, {"frequency2", fast}}));
        const std::vector<double>& x = beat->series.at(0).x;
        EXPECT_LE((x[1] - x[0]) * fast, 2.0 * std::numbers::pi / 20.0) << fast;
    }
    std::vector<std::vector<double>> terms(60, {1.0, 0.0});
    const auto wave =
        app_ChartOfAmplitude(Amplitude("Periodic", {{"frequency", 1.0}, {"data", Table(terms)}}));
    const std::vector<double>& x = wave->series.at(0).x;
    EXPECT_LE((x[1] - x[0]) * 60.0, 2.0 * std::numbers::pi / 20.0);
}

TEST(AmplitudeChart, IsNoneForNumbersThatMakeNoCurve)
{
    for (const cls_Value& object :
         {Amplitude("Decay", {{"decayTime", 0.0}}), Amplitude("Decay", {{"decayTime", "NaN"}}),
          Amplitude("Modulated", {{"frequency1", 0.0}, {"frequency2", 0.0}}),
          Amplitude("Modulated", {{"frequency1", -1.0}, {"frequency2", 5.0}}),
          Amplitude("Modulated", {{"frequency1", "Infinity"}, {"frequency2", 5.0}}),
          Amplitude("Modulated", {{"frequency1", "NaN"}, {"frequency2", "NaN"}}),
          Amplitude("Periodic", {{"frequency", 0.0}, {"data", Table({{1, 2}})}}),
          Amplitude("Tabular", {{"data", Table({{1}})}}),
          Amplitude("PsdDefinition", {{"table", Table({{1, 2}})}}), Amplitude("SolutionDependent", {}),
          Amplitude("ActuatorAmplitude", {}), cls_Value()})
        EXPECT_FALSE(app_ChartOfAmplitude(object)) << object.Summary();
}

TEST(AmplitudeChart, HasACurveForEachDamping)
{
    const auto chart = app_ChartOfAmplitude(
        Amplitude("Spectrum", {{"type", "VELOCITY"},
                               {"table", Table({{5, 1, 0.02}, {3, 1, 0.05}, {6, 2, 0.02}, {4, 2, 0.05}})}}));
    ASSERT_TRUE(chart);
    EXPECT_EQ("frequency", chart->xName);
    EXPECT_EQ("velocity", chart->yName);
    EXPECT_THAT(NamesOf(*chart), ElementsAre("damping 0.02", "damping 0.05"));
    EXPECT_EQ((std::vector<double>{1, 2}), chart->series.at(1).x);
    EXPECT_EQ((std::vector<double>{3, 4}), chart->series.at(1).y);
    const auto inG = app_ChartOfAmplitude(Amplitude(
        "SpectrumAmplitude", {{"specificationUnits", "GRAVITY"}, {"data", Table({{5, 1}, {6, 2}})}}));
    EXPECT_EQ("acceleration in g", inG->yName);
    EXPECT_THAT(NamesOf(*inG), ElementsAre(""));
}

TEST(AmplitudeChart, ShowsTheImaginaryPartOfADensityIfThereIsOne)
{
    const auto real = app_ChartOfAmplitude(
        Amplitude("PsdDefinition", {{"type", "FORCE"}, {"table", Table({{5, 0, 1}, {6, 0, 2}})}}));
    EXPECT_THAT(NamesOf(*real), ElementsAre(""));
    EXPECT_EQ("power spectral density (force)", real->yName);
    const auto both = app_ChartOfAmplitude(
        Amplitude("PsdDefinition", {{"type", "DB"}, {"table", Table({{5, 0, 1}, {6, 1, 2}})}}));
    EXPECT_THAT(NamesOf(*both), ElementsAre("real part", "imaginary part"));
    EXPECT_EQ((std::vector<double>{0, 1}), both->series.at(1).y);
    EXPECT_EQ("frequency band", both->xName);
}

TEST(MaterialChart, HasACurveForEachTemperatureRateAndFieldValue)
{
    const cls_Value plastic =
        Material("kmaC_Plastic", {{300, 0, 0, 20}, {400, 0.1, 0, 20}, {330, 0, 5, 20}, {200, 0, 0, 400}},
                 {{"hardening", "ISOTROPIC"}, {"rate", true}, {"temperatureDependency", true}});
    const auto chart = app_ChartOfMaterial(plastic);
    ASSERT_TRUE(chart);
    EXPECT_EQ("plastic strain", chart->xName);
    EXPECT_TRUE(chart->isHeldAtEnd);
    EXPECT_FALSE(app_ChartOfMaterial(Material("kmaC_Plastic", {{300, 0}},
                                              {{"hardening", "ISOTROPIC"}, {"extrapolation", "LINEAR"}}))
                     ->isHeldAtEnd);
    EXPECT_EQ("yield stress", chart->yName);
    EXPECT_THAT(NamesOf(*chart),
                ElementsAre("rate 0, temperature 20", "rate 5, temperature 20", "rate 0, temperature 400"));
    EXPECT_EQ((std::vector<double>{0, 0.1}), chart->series.at(0).x);
    EXPECT_EQ((std::vector<double>{300, 400}), chart->series.at(0).y);
    EXPECT_EQ(0.0, app_ChartFrame(*chart).Y().Ticks().front()) << "stresses are compared from zero on";
    Drawn(*chart);
    EXPECT_THAT(NamesOf(*app_ChartOfMaterial(
                    Material("kmaC_Plastic", {{300, 0, 1, 2}, {300, 0, 1, 3}},
                             {{"hardening", "COMBINED"}, {"dataType", "HALF_CYCLE"}, {"dependencies", 2}}))),
                ElementsAre("field 1 1, field 2 2", "field 1 1, field 2 3"));
    EXPECT_THAT(
        NamesOf(*app_ChartOfMaterial(Material(
            "kmaC_Plastic", {{300, 0, 0.01}, {310, 0, 0.02}},
            {{"hardening", "COMBINED"}, {"dataType", "STABILIZED"}, {"strainRangeDependency", true}}))),
        ElementsAre("strain range 0.01", "strain range 0.02"));
}

TEST(MaterialChart, IsNoneForLawsByConstants)
{
    for (const char* hardening : {"JOHNSON_COOK", "USER"})
        EXPECT_FALSE(app_ChartOfMaterial(Material("kmaC_Plastic", {{1, 2}}, {{"hardening", hardening}})));
    EXPECT_FALSE(app_ChartOfMaterial(
        Material("kmaC_Plastic", {{1, 2}}, {{"hardening", "COMBINED"}, {"dataType", "PARAMETERS"}})));
    EXPECT_FALSE(app_ChartOfMaterial(Material("kmaC_Plastic", {}, {{"hardening", "ISOTROPIC"}})));
    EXPECT_FALSE(app_ChartOfMaterial(cls_Value::Object{{"class", "kmaC_Elastic"}}));
}

TEST(MaterialChart, RefusesATableThatDoesNotFitItsAttributes)
{
    const std::pair<cls_Value, const char*> rows[] = {
        {Material("kmaC_Plastic", {{300, 0, 20}}, {{"hardening", "ISOTROPIC"}}),
         "the table of its plasticity has 3 columns, which are not those that its attributes ask for"},
        {Material("kmaC_Plastic", {{300}}, {{"hardening", "ISOTROPIC"}}),
         "row 1 of its table has 1 columns, expected at least 2"}};
    for (const auto& [object, message] : rows)
    {
        try
        {
            app_ChartOfMaterial(object);
            ADD_FAILURE() << message;
        }
        catch (const app_Error& error)
        {
            EXPECT_THAT(error.what(), HasSubstr(message));
        }
    }
}

TEST(MaterialChart, ShowsTheTestDataOfALawTogether)
{
    const cls_Value law =
        cls_Value::Object{{"class", "kmaC_Hyperelastic"},
                          {"uniaxialTestData", Material("kmaC_UniaxialTestData", {{0, 0}, {1, 0.5}}, {})},
                          {"biaxialTestData", Material("kmaC_BiaxialTestData", {{0, 0, 0}, {2, 0.5, -0.2}},
                                                       {{"lateralNominalStrain", true}})},
                          {"planarTestData", cls_Value()}};
    const auto chart = app_ChartOfMaterial(
        cls_Value::Object{{"class", "kmaC_Material"}, {"plastic", cls_Value()}, {"hyperelastic", law}});
    ASSERT_TRUE(chart);
    EXPECT_THAT(NamesOf(*chart), ElementsAre("uniaxial", "biaxial"));
    EXPECT_EQ((std::vector<double>{0, 2}), chart->series.at(1).y);
    EXPECT_EQ("nominal strain", chart->xName);
}

} // namespace
