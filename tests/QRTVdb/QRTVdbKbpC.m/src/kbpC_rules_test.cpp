#include "RuleTest.h"
#include "kbpC_ArbitraryProfile.h"
#include "kbpC_BoxProfile.h"
#include "kbpC_CbeamProfile.h"
#include "kbpC_CircularProfile.h"
#include "kbpC_GeneralizedProfile.h"
#include "kbpC_HatProfile.h"
#include "kbpC_HexagonalProfile.h"
#include "kbpC_IbeamProfile.h"
#include "kbpC_LbeamProfile.h"
#include "kbpC_PipeProfile.h"
#include "kbpC_RectangularProfile.h"
#include "kbpC_TbeamProfile.h"
#include "kbpC_TrapezoidalProfile.h"

#include <cmath>
#include <limits>

namespace
{

const std::string badArea = "Area must be greater than zero.";
const std::string badI11 = "The value of I11 must be greater than zero.";
const std::string i12WithoutI22 = "When the value of I22 is zero, the value of I12 must also be zero.";
const std::string negativeJ = "The polar moment of inertia, J, must be non-negative.";
const std::string badI12 =
    "The value of I12 must satisfy the inequality:\n -(I11+I22)/2 < I12 <= (I11+I22)/2";
const std::string badHeight = "The height must be greater than zero.";
const std::string badWidth = "The width must be greater than zero.";
const std::string badRadius = "The radius must be greater than zero.";
const std::string badThickness = "The thickness must be greater than zero.";
const std::string badThicknesses = "All thicknesses must be greater than zero.";
const std::string zeroSegments = "Two connected segments cannot have zero thickness.";
const std::string wallsFillWidth = "Thickness 1 + Thickness 3 must be less than the width.";
const std::string wallsFillHeight = "Thickness 2 + Thickness 4 must be less than the height.";
const std::string wallFillsHalfWidth = "The thickness must be less than half the width.";
const std::string wallFillsHalfHeight = "The thickness must be less than half the height.";
const std::string wallFillsRadius = "The thickness must be less than the radius.";
const std::string badWeb = "The web thickness (t3) must be greater than zero.";
const std::string noFlange = "At least one flange must have a width greater than zero.";
const std::string badFirst = "Thickness one (t1) must be greater than zero.";
const std::string badSecond = "Thickness two (t2) must be greater than zero.";
const std::string wallFillsHexagon = "The thickness must be less than sqrt(3)/2 times the radius.";
const std::string badA = "The dimension a must be greater than zero.";
const std::string badB = "The dimension b must be greater than zero.";
const std::string badC = "The dimension c must be greater than zero.";
const std::string badH = "The dimension h must be greater than zero.";
const std::string badT = "The thickness t must be greater than zero.";
const std::string badT1 = "The thickness t1 must be greater than zero.";
const std::string badT2 = "The thickness t2 must be greater than zero.";
const std::string badTf = "The thickness tf must be greater than zero.";
const std::string badTw = "The thickness tw must be greater than zero.";
const std::string t1FillsB = "The thickness t1 must be less than b.";
const std::string t2FillsA = "The thickness t2 must be less than a.";
const std::string tfFillsH = "The thickness tf must be less than h.";
const std::string twFillsB = "The thickness tw must be less than b.";
const std::string t3FillsFlange = "The thickness t3 must be less than b1 and b2";
const std::string flangesFillHeight = "Thickness 1 + Thickness 2 must be less than the height.";
const std::string t3FillsHalfB1 = "The thickness t3 must be less than half b1";

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double least = std::numeric_limits<double>::denorm_min();

double Above(double value)
{
    return std::nextafter(value, infinity);
}

double Below(double value)
{
    return std::nextafter(value, -infinity);
}

/// Sets a dimension.
template <class T>
std::function<void(T&)> With(double T::*dimension, double value)
{
    return [=](T& profile) { profile.*dimension = value; };
}

/// Sets several dimensions.
template <class T>
std::function<void(T&)> With(double T::*first, double value, double T::*second, double other)
{
    return [=](T& profile)
    {
        profile.*first = value;
        profile.*second = other;
    };
}

/// A dimension that must be positive.
template <class T>
void CheckPositive(const T& valid, double T::*dimension, const std::string& message)
{
    SCOPED_TRACE(message);
    CheckRules(valid, {{"0", With(dimension, 0.0), message},
                       {"-0", With(dimension, -0.0), message},
                       {"just below 0", With(dimension, -least), message},
                       {"minus infinity", With(dimension, -infinity), message},
                       {"NaN", With(dimension, notANumber), message}});
}

/// A dimension that must be less than `bound`, which the others of `valid` make.
template <class T>
void CheckBelow(const T& valid, double T::*dimension, double bound, const std::string& message)
{
    SCOPED_TRACE(message);
    CheckRules(valid, {{"just below", With(dimension, Below(bound)), passes},
                       {"at the bound", With(dimension, bound), message},
                       {"just above", With(dimension, Above(bound)), message}});
}

/// What a profile is refused with, and what mends that.
template <class T>
struct Mending
{
    std::string verdict;
    std::function<void(T&)> mend;
};

/// Mends a profile that breaks many rules, one after the other, until it passes: rules are asked in order.
template <class T>
void CheckOrder(const std::vector<Mending<T>>& steps)
{
    T profile;
    for (const Mending<T>& step : steps)
    {
        EXPECT_EQ(step.verdict, Verdict(profile));
        step.mend(profile);
    }
    EXPECT_EQ(passes, Verdict(profile));
}

TEST(kbpC_CircularProfile, HasItsRule)
{
    kbpC_CircularProfile valid;
    valid.r = least;
    CheckPositive(valid, &kbpC_CircularProfile::r, badRadius);
    EXPECT_EQ(badRadius, Verdict(kbpC_CircularProfile()));
}

TEST(kbpC_RectangularProfile, HasItsRules)
{
    using T = kbpC_RectangularProfile;
    T valid;
    valid.a = least;
    valid.b = least;
    CheckPositive(valid, &T::a, badA);
    CheckPositive(valid, &T::b, badB);
    CheckOrder<T>({{badA, With(&T::a, 1.0)}, {badB, With(&T::b, 1.0)}});
}

TEST(kbpC_TrapezoidalProfile, HasItsRulesAndAsksNothingOfD)
{
    using T = kbpC_TrapezoidalProfile;
    T valid;
    valid.a = least;
    valid.b = least;
    valid.c = least;
    CheckPositive(valid, &T::a, badA);
    CheckPositive(valid, &T::b, badB);
    CheckPositive(valid, &T::c, badC);
    CheckRules(valid,
               {{"d negative", With(&T::d, -1.0), passes}, {"d NaN", With(&T::d, notANumber), passes}});
    CheckOrder<T>({{badA, With(&T::a, 1.0)}, {badB, With(&T::b, 1.0)}, {badC, With(&T::c, 1.0)}});
}

TEST(kbpC_PipeProfile, HasItsRules)
{
    using T = kbpC_PipeProfile;
    T valid;
    valid.r = 2.0;
    valid.t = least;
    CheckPositive(valid, &T::r, badRadius);
    CheckPositive(valid, &T::t, badThickness);
    CheckBelow(valid, &T::t, 2.0, wallFillsRadius);
    CheckOrder<T>({{badRadius, With(&T::r, 1.0)},
                   {badThickness, With(&T::t, 1.0)},
                   {wallFillsRadius, With(&T::t, 0.5)}});
}

TEST(kbpC_HexagonalProfile, HasItsRules)
{
    using T = kbpC_HexagonalProfile;
    T valid;
    valid.r = 1.0;
    valid.t = least;
    CheckPositive(valid, &T::r, badRadius);
    CheckPositive(valid, &T::t, badT);
    CheckBelow(valid, &T::t, 0.866, wallFillsHexagon);
    CheckOrder<T>(
        {{badRadius, With(&T::r, 1.0)}, {badT, With(&T::t, 1.0)}, {wallFillsHexagon, With(&T::t, 0.5)}});
}

TEST(kbpC_HexagonalProfile, TakesTheDigitsForTheRoot)
{
    using T = kbpC_HexagonalProfile;
    T valid;
    valid.r = 1.0;
    valid.t = 0.8659;
    CheckRules(valid, {{"less than the root, more than its digits", With(&T::t, 0.86601), wallFillsHexagon},
                       {"more than the root", With(&T::t, 0.8661), wallFillsHexagon}});
}

TEST(kbpC_LbeamProfile, HasItsRules)
{
    using T = kbpC_LbeamProfile;
    T valid;
    valid.a = 3.0;
    valid.b = 2.0;
    valid.t1 = least;
    valid.t2 = least;
    CheckPositive(valid, &T::a, badA);
    CheckPositive(valid, &T::b, badB);
    CheckPositive(valid, &T::t1, badT1);
    CheckPositive(valid, &T::t2, badT2);
    CheckBelow(valid, &T::t1, 2.0, t1FillsB);
    CheckBelow(valid, &T::t2, 3.0, t2FillsA);
    CheckOrder<T>({{badA, With(&T::a, 1.0)},
                   {badB, With(&T::b, 1.0)},
                   {badT1, With(&T::t1, 1.0)},
                   {badT2, With(&T::t2, 1.0)},
                   {t1FillsB, With(&T::t1, 0.5)},
                   {t2FillsA, With(&T::t2, 0.5)}});
}

TEST(kbpC_TbeamProfile, HasItsRulesAndAsksNothingOfL)
{
    using T = kbpC_TbeamProfile;
    T valid;
    valid.b = 3.0;
    valid.h = 2.0;
    valid.tf = least;
    valid.tw = least;
    CheckPositive(valid, &T::b, badB);
    CheckPositive(valid, &T::h, badH);
    CheckPositive(valid, &T::tw, badTw);
    CheckPositive(valid, &T::tf, badTf);
    CheckBelow(valid, &T::tf, 2.0, tfFillsH);
    CheckBelow(valid, &T::tw, 3.0, twFillsB);
    CheckRules(valid,
               {{"l negative", With(&T::l, -1.0), passes}, {"l NaN", With(&T::l, notANumber), passes}});
    CheckOrder<T>({{badB, With(&T::b, 1.0)},
                   {badH, With(&T::h, 1.0)},
                   {badTw, With(&T::tw, 1.0)},
                   {badTf, With(&T::tf, 1.0)},
                   {tfFillsH, With(&T::tf, 0.5)},
                   {twFillsB, With(&T::tw, 0.5)}});
}

kbpC_BoxProfile ValidBox()
{
    kbpC_BoxProfile box;
    box.a = 4.0;
    box.b = 2.0;
    box.t1 = 0.5;
    box.t2 = 0.25;
    box.t3 = 0.75;
    box.t4 = 0.125;
    return box;
}

TEST(kbpC_BoxProfile, HasItsRulesWithWallsOfTheirOwn)
{
    using T = kbpC_BoxProfile;
    const T valid = ValidBox();
    CheckPositive(valid, &T::b, badHeight);
    CheckPositive(valid, &T::a, badWidth);
    CheckPositive(valid, &T::t1, badThicknesses);
    CheckPositive(valid, &T::t2, badThicknesses);
    CheckPositive(valid, &T::t3, badThicknesses);
    CheckPositive(valid, &T::t4, badThicknesses);
    CheckBelow(valid, &T::t1, 3.25, wallsFillWidth);
    CheckBelow(valid, &T::t3, 3.5, wallsFillWidth);
    CheckBelow(valid, &T::t2, 1.875, wallsFillHeight);
    CheckBelow(valid, &T::t4, 1.75, wallsFillHeight);
    CheckOrder<T>({{badHeight, With(&T::b, 1.0)},
                   {badWidth, With(&T::a, 1.0)},
                   {badThicknesses, With(&T::t1, 1.0)},
                   {badThicknesses, With(&T::t2, 1.0)},
                   {badThicknesses, With(&T::t3, 1.0)},
                   {badThicknesses, With(&T::t4, 1.0)},
                   {wallsFillWidth, With(&T::t1, 0.25, &T::t3, 0.25)},
                   {wallsFillHeight, With(&T::t2, 0.25, &T::t4, 0.25)}});
}

TEST(kbpC_BoxProfile, HasItsRulesWithUniformWalls)
{
    using T = kbpC_BoxProfile;
    T valid = ValidBox();
    valid.uniformThickness = true;
    valid.t2 = 0.0;
    valid.t3 = -1.0;
    valid.t4 = notANumber;
    CheckPositive(valid, &T::b, badHeight);
    CheckPositive(valid, &T::a, badWidth);
    CheckPositive(valid, &T::t1, badThickness);
    CheckBelow(valid, &T::t1, 1.0, wallFillsHalfHeight);
    T wide(valid);
    wide.b = 8.0;
    CheckBelow(wide, &T::t1, 2.0, wallFillsHalfWidth);
    CheckOrder<T>({{badHeight, [](T& box) { box.uniformThickness = true; }},
                   {badHeight, With(&T::b, 1.0)},
                   {badWidth, With(&T::a, 2.0)},
                   {badThickness, With(&T::t1, 1.0)},
                   {wallFillsHalfWidth, With(&T::a, 3.0)},
                   {wallFillsHalfHeight, With(&T::t1, 0.25)}});
}

/// Height, web and both flanges, with room for them.
template <class T>
T ValidFlanges()
{
    T profile;
    profile.h = 8.0;
    profile.b1 = 4.0;
    profile.b2 = 3.0;
    profile.t1 = 0.5;
    profile.t2 = 0.25;
    profile.t3 = 0.125;
    return profile;
}

/// The rules that an I, a channel and a hat share.
template <class T>
void CheckFlanges()
{
    const T valid = ValidFlanges<T>();
    CheckPositive(valid, &T::h, badHeight);
    CheckPositive(valid, &T::t3, badWeb);
    CheckPositive(valid, &T::t1, badThicknesses);
    CheckPositive(valid, &T::t2, badThicknesses);
    CheckRules(valid, {{"no flanges", With(&T::b1, 0.0, &T::b2, 0.0), noFlange},
                       {"negative flanges", With(&T::b1, -1.0, &T::b2, -least), noFlange},
                       {"flanges of no number", With(&T::b1, notANumber, &T::b2, notANumber), noFlange},
                       {"l negative", With(&T::l, -1.0), passes},
                       {"l NaN", With(&T::l, notANumber), passes}});

    T second(valid);
    second.b1 = 0.0;
    CheckPositive(second, &T::h, badHeight);
    CheckPositive(second, &T::t3, badWeb);
    CheckPositive(second, &T::t2, badSecond);
    CheckRules(second, {{"t1 0", With(&T::t1, 0.0), passes},
                        {"t1 NaN", With(&T::t1, notANumber), passes},
                        {"b1 negative", With(&T::b1, -1.0, &T::t1, -1.0), passes},
                        {"b1 NaN", With(&T::b1, notANumber, &T::t1, -1.0), passes},
                        {"t2 without bound", With(&T::t2, infinity), passes},
                        {"t3 without bound", With(&T::t3, infinity), passes}});

    T first(valid);
    first.b2 = 0.0;
    CheckPositive(first, &T::h, badHeight);
    CheckPositive(first, &T::t3, badWeb);
    CheckPositive(first, &T::t1, badFirst);
    CheckRules(first, {{"t2 0", With(&T::t2, 0.0), passes},
                       {"t2 NaN", With(&T::t2, notANumber), passes},
                       {"b2 negative", With(&T::b2, -1.0, &T::t2, -1.0), passes},
                       {"b2 NaN", With(&T::b2, notANumber, &T::t2, -1.0), passes},
                       {"t1 without bound", With(&T::t1, infinity), passes},
                       {"t3 without bound", With(&T::t3, infinity), passes}});

    CheckOrder<T>({{badHeight, With(&T::h, 8.0)},
                   {badWeb, With(&T::t3, 0.125)},
                   {noFlange, With(&T::b1, 4.0)},
                   {badFirst, With(&T::b2, 3.0)},
                   {badThicknesses, With(&T::t1, 0.5)},
                   {badThicknesses, With(&T::b1, 0.0)},
                   {badSecond, With(&T::t2, 0.25)}});
}

TEST(kbpC_IbeamProfile, HasTheRulesOfFlanges)
{
    CheckFlanges<kbpC_IbeamProfile>();
}

TEST(kbpC_IbeamProfile, AsksNothingMoreOfTwoFlanges)
{
    using T = kbpC_IbeamProfile;
    CheckRules(ValidFlanges<T>(), {{"flanges fill the height", With(&T::t1, 6.0, &T::t2, 6.0), passes},
                                   {"the web fills the flanges", With(&T::t3, 9.0), passes},
                                   {"the least thicknesses", With(&T::t1, least, &T::t2, least), passes},
                                   {"the least web", With(&T::t3, least), passes}});
}

/// What a channel and a hat ask of two flanges beside.
template <class T>
void CheckFlangesFit()
{
    const T valid = ValidFlanges<T>();
    CheckRules(valid,
               {{"both fill the height", With(&T::t1, 4.0, &T::t2, 4.0), flangesFillHeight},
                {"both more than fill the height", With(&T::t1, 5.0, &T::t2, 4.0), flangesFillHeight},
                {"both almost fill the height", With(&T::t1, Below(4.0), &T::t2, Below(4.0)), passes},
                {"the first fills half the height", With(&T::t1, 4.0, &T::t2, 0.5), wallFillsHalfHeight},
                {"the first just fills less", With(&T::t1, Below(4.0), &T::t2, 0.5), passes},
                {"the second fills half the height", With(&T::t1, 0.5, &T::t2, 4.0), wallFillsHalfHeight},
                {"the second just fills less", With(&T::t1, 0.5, &T::t2, Below(4.0)), passes},
                {"the first fills more than half", With(&T::t1, 5.0, &T::t2, 0.5), wallFillsHalfHeight},
                {"the second fills more than half", With(&T::t1, 0.5, &T::t2, 5.0), wallFillsHalfHeight}});
}

TEST(kbpC_CbeamProfile, HasTheRulesOfFlanges)
{
    CheckFlanges<kbpC_CbeamProfile>();
    CheckFlangesFit<kbpC_CbeamProfile>();
}

TEST(kbpC_CbeamProfile, HasFlangesThatReachBeyondTheWeb)
{
    using T = kbpC_CbeamProfile;
    const T valid = ValidFlanges<T>();
    CheckBelow(valid, &T::t3, 3.0, t3FillsFlange);
    CheckRules(valid, {{"the first is the smaller", With(&T::b1, 1.0, &T::t3, 1.0), t3FillsFlange},
                       {"the first is just larger", With(&T::b1, Above(1.0), &T::t3, 1.0), passes},
                       {"o negative", With(&T::o, -1.0), passes},
                       {"o NaN", With(&T::o, notANumber), passes},
                       {"t1 and t2 before", With(&T::t1, 4.0, &T::t3, 9.0), wallFillsHalfHeight}});
}

TEST(kbpC_HatProfile, HasTheRulesOfFlanges)
{
    CheckFlanges<kbpC_HatProfile>();
    CheckFlangesFit<kbpC_HatProfile>();
}

TEST(kbpC_HatProfile, HasAFirstFlangeThatSpansItsWebs)
{
    using T = kbpC_HatProfile;
    const T valid = ValidFlanges<T>();
    CheckBelow(valid, &T::t3, 2.0, t3FillsHalfB1);
    CheckRules(valid, {{"the second is less than the web", With(&T::b2, least, &T::t3, 1.0), passes},
                       {"b negative", With(&T::b, -1.0), passes},
                       {"b NaN", With(&T::b, notANumber), passes},
                       {"t1 and t2 before", With(&T::t1, 4.0, &T::t3, 9.0), wallFillsHalfHeight}});
}

kbpC_GeneralizedProfile ValidSection()
{
    kbpC_GeneralizedProfile section;
    section.area = 1.0;
    section.i11 = 3.0;
    section.i22 = 1.0;
    return section;
}

TEST(kbpC_GeneralizedProfile, HasItsRules)
{
    using T = kbpC_GeneralizedProfile;
    const T valid = ValidSection();
    CheckPositive(valid, &T::area, badArea);
    CheckPositive(valid, &T::i11, badI11);
    CheckRules(valid, {{"the least area", With(&T::area, least), passes},
                       {"j 0", With(&T::j, 0.0), passes},
                       {"j -0", With(&T::j, -0.0), passes},
                       {"j just below 0", With(&T::j, -least), negativeJ},
                       {"j NaN", With(&T::j, notANumber), negativeJ},
                       {"gammaO", With(&T::gammaO, notANumber), passes},
                       {"gammaW", With(&T::gammaW, -1.0), passes}});
    CheckOrder<T>({{badArea, With(&T::area, 1.0)},
                   {badI11, With(&T::i11, 3.0)},
                   {passes, With(&T::i12, 2.5, &T::j, -1.0)},
                   {i12WithoutI22, With(&T::i22, 1.0)},
                   {badI12, With(&T::i12, 2.0)},
                   {negativeJ, With(&T::j, 1.0)}});
}

TEST(kbpC_GeneralizedProfile, BoundsItsProductOfInertiaOnOneSideMore)
{
    using T = kbpC_GeneralizedProfile;
    CheckRules(ValidSection(), {{"half", With(&T::i12, 2.0), passes},
                                {"just above half", With(&T::i12, Above(2.0)), badI12},
                                {"minus half", With(&T::i12, -2.0), badI12},
                                {"just above minus half", With(&T::i12, Above(-2.0)), passes},
                                {"NaN", With(&T::i12, notANumber), badI12},
                                {"infinity", With(&T::i12, infinity), badI12}});
}

TEST(kbpC_GeneralizedProfile, WantsNoProductOfInertiaWithoutASecondMoment)
{
    using T = kbpC_GeneralizedProfile;
    T valid = ValidSection();
    valid.i22 = 0.0;
    CheckRules(valid, {{"i12 -0", With(&T::i12, -0.0), passes},
                       {"i12 1", With(&T::i12, 1.0), i12WithoutI22},
                       {"the least i12", With(&T::i12, least), i12WithoutI22},
                       {"i12 NaN", With(&T::i12, notANumber), i12WithoutI22},
                       {"i22 -0, i12 1", With(&T::i22, -0.0, &T::i12, 1.0), i12WithoutI22},
                       {"the least i22, i12 1", With(&T::i22, least, &T::i12, 1.0), passes}});
}

TEST(kbpC_GeneralizedProfile, PassesWithANegativeSecondMoment)
{
    using T = kbpC_GeneralizedProfile;
    CheckRules(ValidSection(), {{"i22 -1", With(&T::i22, -1.0), passes},
                                {"i22 -1, i12 far off", With(&T::i22, -1.0, &T::i12, 1e9), passes},
                                {"i22 -1, i12 NaN", With(&T::i22, -1.0, &T::i12, notANumber), passes},
                                {"i22 just below 0", With(&T::i22, -least, &T::i12, 1.0), passes},
                                {"i22 NaN", With(&T::i22, notANumber, &T::i12, 1.0), passes},
                                {"i22 -1, j negative", With(&T::i22, -1.0, &T::j, -1.0), negativeJ}});
}

/// A profile of points on a line, with these thicknesses from the first row on.
kbpC_ArbitraryProfile Segments(const std::vector<double>& thicknesses)
{
    kbpC_ArbitraryProfile profile;
    cow_2DArray<double> table(static_cast<int>(thicknesses.size()), 3);
    for (int row = 0; row < table.Rows(); ++row)
    {
        table.Set(row, 0, row);
        table.Set(row, 2, thicknesses[static_cast<std::size_t>(row)]);
    }
    profile.table = table;
    return profile;
}

TEST(kbpC_ArbitraryProfile, HasItsRules)
{
    const struct
    {
        std::vector<double> thicknesses;
        std::string verdict;
    } rows[] = {
        {{}, passes},
        {{-1.0}, passes},
        {{notANumber}, passes},
        {{-1.0, 0.0}, passes},
        {{0.0, -0.0}, passes},
        {{0.0, -least}, badThicknesses},
        {{0.0, notANumber}, badThicknesses},
        {{0.0, infinity}, passes},
        {{-1.0, 1.0, 1.0}, passes},
        {{0.0, 1.0, -1.0}, badThicknesses},
        {{0.0, 0.0, 1.0, 0.0}, passes},
        {{0.0, 1.0, 0.0, 0.0}, zeroSegments},
        {{0.0, 0.0, 0.0}, zeroSegments},
        {{0.0, 0.0, -0.0}, zeroSegments},
        {{0.0, 0.0, least}, passes},
        {{0.0, 0.0}, passes},
        {{0.0, 0.0, 0.0, -1.0}, badThicknesses},
        {{0.0, 0.0, 0.0, notANumber}, badThicknesses},
        {{0.0, 1.0, 1.0, 0.0, 0.0, 1.0}, zeroSegments},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.verdict, Verdict(Segments(row.thicknesses))) << testing::PrintToString(row.thicknesses);
}

TEST(kbpC_ArbitraryProfile, AsksNothingOfCoordinates)
{
    kbpC_ArbitraryProfile profile = Segments({0.0, 1.0, 1.0});
    profile.table.Set(1, 0, notANumber);
    profile.table.Set(2, 1, infinity);
    EXPECT_EQ(passes, Verdict(profile));
}

TEST(kbpC_ArbitraryProfile, HasNothingToAskOfATableWithoutThicknesses)
{
    kbpC_ArbitraryProfile profile;
    profile.table = cow_2DArray<double>(3, 2);
    EXPECT_EQ(passes, Verdict(profile));
    profile.table = cow_2DArray<double>(3, 0);
    EXPECT_EQ(passes, Verdict(profile));
    profile.table = cow_2DArray<double>(3, 4);
    EXPECT_EQ(zeroSegments, Verdict(profile));
}

} // namespace
