#include "RuleTest.h"
#include "kamC_ActuatorAmplitude.h"
#include "kamC_CorrelationComponent.h"
#include "kamC_Decay.h"
#include "kamC_EquallySpaced.h"
#include "kamC_Modulated.h"
#include "kamC_Periodic.h"
#include "kamC_PsdDefinition.h"
#include "kamC_SmoothStep.h"
#include "kamC_SolutionDependent.h"
#include "kamC_Spectrum.h"
#include "kamC_SpectrumAmplitude.h"
#include "kamC_Tabular.h"
#include "kamC_UserAmplitude.h"

#include <cmath>
#include <initializer_list>

namespace
{

const std::string badTimes = "Invalid time values, expected monotonically increasing numbers.";
const std::string badSmooth = "Invalid smoothing parameter, expected a value between 0.0 and 0.5.";
const std::string badInterval = "Invalid fixed interval, expected a positive number.";
const std::string manyColumns = "Number of columns must be less or equal to 2.";
const std::string fewRows = "The Time-Amplitude table should have at least two rows of data.";
const std::string badGravity = "Invalid reference gravity acceleration, expected a non-negative value.";
const std::string badPower = "Invalid reference power value, expected non-negative number.";
const std::string notThreeColumns = "Tabular data must have three columns.";
const std::string badCorrection =
    "Invalid baseline correction values, expected non-negative\nmonotonically increasing numbers.";
const std::string badBounds = "Invalid logical relation of initial, minimum and maximum amplitudes.";
const std::string noCoefficients =
    "At least one set of fourier coefficients must be specified for periodic amplitude.";
const std::string userWithDb = "A user subroutine cannot be specified with DB.";
const std::string badBand = "Frequency band numbers must be between 1 and 15 when using DB.";
const std::string movingNoise = "Moving noise correlation is not yet supported.";
const std::string noPsd = "A PSD definition is required.";
const std::string dataWithUser = "The data parameter cannot be specified with USER.";
const std::string noData = "At least one value must be specified with the data parameter.";
const std::string muchData = "Data cannot have a length of more than 2 with CORRELATED and UNCORRELATED.";

using Row = std::initializer_list<double>;

cow_2DArray<double> Table(std::initializer_list<Row> rows)
{
    cow_2DArray<double> table(static_cast<int>(rows.size()), static_cast<int>(rows.begin()->size()));
    int r = 0;
    for (const Row& row : rows)
    {
        int c = 0;
        for (const double value : row)
            table.Set(r, c++, value);
        ++r;
    }
    return table;
}

cow_List<double> List(std::initializer_list<double> values)
{
    cow_List<double> list;
    for (const double value : values)
        list.Append(value);
    return list;
}

kamC_BaselineCorrectionHandle Correction(std::initializer_list<double> intervals)
{
    kamC_BaselineCorrection correction;
    correction.intervals = List(intervals);
    return kamC_BaselineCorrectionHandle(correction);
}

const double above = std::nextafter(0.5, 1.0);
const double below = -std::numeric_limits<double>::denorm_min();

// Rules that all amplitudes with smoothing, a time table or a baseline correction share.

template <class T>
std::vector<RuleRow<T>> SmoothRows()
{
    return {
        {"smooth 0.0", [](T& a) { a.smooth = 0.0; }, passes},
        {"smooth 0.5", [](T& a) { a.smooth = 0.5; }, passes},
        {"smooth not set", [](T& a) { a.smooth = 1.7976931348623157e308; }, passes},
        {"smooth just above 0.5", [](T& a) { a.smooth = above; }, badSmooth},
        {"smooth 0.6", [](T& a) { a.smooth = 0.6; }, badSmooth},
        {"smooth just below 0.0", [](T& a) { a.smooth = below; }, badSmooth},
        {"smooth just below the marker", [](T& a) { a.smooth = std::nextafter(cls_UnsetDouble, 0.0); },
         badSmooth},
        {"smooth infinite", [](T& a) { a.smooth = std::numeric_limits<double>::infinity(); }, badSmooth},
        {"smooth NaN", [](T& a) { a.smooth = notANumber; }, badSmooth},
    };
}

template <class T>
std::vector<RuleRow<T>> TimeTableRows()
{
    return {
        {"three columns",
         [](T& a) {
             a.data = Table({{0, 0, 0}, {1, 1, 1}});
         },
         manyColumns},
        {"three columns and one row",
         [](T& a) {
             a.data = Table({{0, 0, 0}});
         },
         manyColumns},
        {"one row",
         [](T& a) {
             a.data = Table({{0, 0}});
         },
         fewRows},
        {"no rows", [](T& a) { a.data = cow_2DArray<double>(); }, fewRows},
        {"one column",
         [](T& a) {
             a.data = Table({{0}, {1}});
         },
         passes},
        {"equal times",
         [](T& a) {
             a.data = Table({{0, 0}, {1, 1}, {1, 2}, {2, 3}});
         },
         passes},
        {"decreasing times",
         [](T& a) {
             a.data = Table({{0, 0}, {2, 1}, {1, 2}});
         },
         badTimes},
        {"decreasing by the least",
         [](T& a) {
             a.data = Table({{0.5, 0}, {std::nextafter(0.5, 0.0), 1}});
         },
         badTimes},
        {"negative times",
         [](T& a) {
             a.data = Table({{-2, 0}, {-1, 1}});
         },
         passes},
        {"a NaN time",
         [](T& a) {
             a.data = Table({{0, 0}, {notANumber, 1}});
         },
         badTimes},
        {"a NaN amplitude",
         [](T& a) {
             a.data = Table({{0, 0}, {1, notANumber}});
         },
         passes},
    };
}

template <class T>
std::vector<RuleRow<T>> CorrectionRows()
{
    return {
        {"an empty correction", [](T& a) { a.baselineCorrection = Correction({}); }, passes},
        {"a good correction",
         [](T& a) {
             a.baselineCorrection = Correction({0, 1});
         },
         passes},
        {"a bad correction",
         [](T& a) {
             a.baselineCorrection = Correction({0, 1, 1});
         },
         badCorrection},
    };
}

kamC_Tabular GoodTabular()
{
    kamC_Tabular tabular;
    tabular.data = Table({{0, 0}, {1, 1}});
    return tabular;
}

TEST(kamC_Tabular, SmoothsFromZeroToAHalfOrNotAtAll)
{
    CheckRules(GoodTabular(), SmoothRows<kamC_Tabular>());
}

TEST(kamC_Tabular, HasATimeTable)
{
    CheckRules(GoodTabular(), TimeTableRows<kamC_Tabular>());
}

TEST(kamC_Tabular, ChecksItsBaselineCorrection)
{
    CheckRules(GoodTabular(), CorrectionRows<kamC_Tabular>());
}

TEST(kamC_Tabular, ReportsTheFirstBrokenRule)
{
    CheckRules<kamC_Tabular>(GoodTabular(),
                             {
                                 {"smoothing before columns",
                                  [](auto& a)
                                  {
                                      a.smooth = 2.0;
                                      a.data = Table({{0, 0, 0}});
                                  },
                                  badSmooth},
                                 {"columns before rows",
                                  [](auto& a) {
                                      a.data = Table({{0, 0, 0}});
                                  },
                                  manyColumns},
                                 {"times before the correction",
                                  [](auto& a)
                                  {
                                      a.data = Table({{1, 0}, {0, 0}});
                                      a.baselineCorrection = Correction({-1});
                                  },
                                  badTimes},
                             });
}

kamC_EquallySpaced GoodEquallySpaced()
{
    kamC_EquallySpaced spaced;
    spaced.fixedInterval = 0.1;
    spaced.data = List({0, 1});
    return spaced;
}

TEST(kamC_EquallySpaced, SmoothsFromZeroToAHalfOrNotAtAll)
{
    CheckRules(GoodEquallySpaced(), SmoothRows<kamC_EquallySpaced>());
}

TEST(kamC_EquallySpaced, ChecksItsBaselineCorrection)
{
    CheckRules(GoodEquallySpaced(), CorrectionRows<kamC_EquallySpaced>());
}

TEST(kamC_EquallySpaced, HasAPositiveIntervalAndTwoValues)
{
    CheckRules<kamC_EquallySpaced>(
        GoodEquallySpaced(),
        {
            {"least interval", [](auto& a) { a.fixedInterval = std::numeric_limits<double>::denorm_min(); },
             passes},
            {"no interval", [](auto& a) { a.fixedInterval = 0.0; }, badInterval},
            {"negative interval", [](auto& a) { a.fixedInterval = -1.0; }, badInterval},
            {"NaN interval", [](auto& a) { a.fixedInterval = notANumber; }, badInterval},
            {"one value", [](auto& a) { a.data = List({1}); }, fewRows},
            {"no value", [](auto& a) { a.data = cow_List<double>(); }, fewRows},
            {"smoothing before interval",
             [](auto& a)
             {
                 a.smooth = 2.0;
                 a.fixedInterval = 0.0;
             },
             badSmooth},
            {"interval before data",
             [](auto& a)
             {
                 a.fixedInterval = 0.0;
                 a.data = List({1});
             },
             badInterval},
            {"data before correction",
             [](auto& a)
             {
                 a.data = List({1});
                 a.baselineCorrection = Correction({-1});
             },
             fewRows},
        });
}

TEST(kamC_SmoothStep, HasATimeTable)
{
    kamC_SmoothStep step;
    step.data = Table({{0, 0}, {1, 1}});
    CheckRules(step, TimeTableRows<kamC_SmoothStep>());
}

TEST(kamC_Periodic, HasCoefficientsInAtMostTwoColumns)
{
    kamC_Periodic periodic;
    periodic.data = Table({{1, 0}});
    CheckRules<kamC_Periodic>(
        periodic,
        {
            {"no rows", [](auto& a) { a.data = cow_2DArray<double>(); }, noCoefficients},
            {"no rows of three", [](auto& a) { a.data = cow_2DArray<double>(0, 3); }, noCoefficients},
            {"one column", [](auto& a) { a.data = Table({{1}}); }, passes},
            {"three columns",
             [](auto& a) {
                 a.data = Table({{1, 0, 0}});
             },
             manyColumns},
            {"no frequency",
             [](auto& a)
             {
                 a.frequency = -1.0;
                 a.start = notANumber;
             },
             passes},
        });
}

TEST(kamC_SolutionDependent, StartsWithinItsBounds)
{
    CheckRules<kamC_SolutionDependent>(
        kamC_SolutionDependent(),
        {
            {"at the minimum", [](auto& a) { a.initial = 0.1; }, passes},
            {"at the maximum", [](auto& a) { a.initial = 1000.0; }, passes},
            {"below the minimum", [](auto& a) { a.initial = std::nextafter(0.1, 0.0); }, badBounds},
            {"above the maximum", [](auto& a) { a.initial = std::nextafter(1000.0, 2000.0); }, badBounds},
            {"NaN", [](auto& a) { a.initial = notANumber; }, badBounds},
            {"NaN minimum", [](auto& a) { a.minimum = notANumber; }, badBounds},
            {"NaN maximum", [](auto& a) { a.maximum = notANumber; }, badBounds},
        });
}

TEST(kamC_PsdDefinition, ChecksGravityPowerUserAndBands)
{
    kamC_PsdDefinition psd;
    psd.table = Table({{1, 0, 20}});
    using Type = kamC_PsdDefinition::PsdTypeEnm;
    CheckRules<kamC_PsdDefinition>(
        psd,
        {
            {"no gravity", [](auto& a) { a.g = 0.0; }, passes},
            {"negative gravity", [](auto& a) { a.g = below; }, badGravity},
            {"NaN gravity", [](auto& a) { a.g = notANumber; }, badGravity},
            {"negative power", [](auto& a) { a.dbReference = below; }, badPower},
            {"NaN power", [](auto& a) { a.dbReference = notANumber; }, badPower},
            {"gravity before power",
             [](auto& a)
             {
                 a.g = -1;
                 a.dbReference = -1;
             },
             badGravity},
            {"power before user",
             [](auto& a)
             {
                 a.dbReference = -1;
                 a.user = true;
                 a.type = Type::DB;
             },
             badPower},
            {"user with DB",
             [](auto& a)
             {
                 a.user = true;
                 a.type = Type::DB;
             },
             userWithDb},
            {"user without a table",
             [](auto& a)
             {
                 a.user = true;
                 a.table = cow_2DArray<double>();
             },
             passes},
            {"no table", [](auto& a) { a.table = cow_2DArray<double>(); }, notThreeColumns},
            {"two columns",
             [](auto& a) {
                 a.table = Table({{1, 0}});
             },
             notThreeColumns},
            {"four columns",
             [](auto& a) {
                 a.table = Table({{1, 0, 1, 1}});
             },
             notThreeColumns},
            {"no rows of three, DB",
             [](auto& a)
             {
                 a.type = Type::DB;
                 a.table = cow_2DArray<double>(0, 3);
             },
             passes},
            {"bands at the bounds",
             [](auto& a)
             {
                 a.type = Type::DB;
                 a.table = Table({{0, 0, 1}, {0, 0, 15}});
             },
             passes},
            {"a band of no integer",
             [](auto& a)
             {
                 a.type = Type::DB;
                 a.table = Table({{0, 0, 1.5}});
             },
             passes},
            {"band 0.5",
             [](auto& a)
             {
                 a.type = Type::DB;
                 a.table = Table({{0, 0, 0.5}});
             },
             badBand},
            {"band just below 1",
             [](auto& a)
             {
                 a.type = Type::DB;
                 a.table = Table({{0, 0, std::nextafter(1.0, 0.0)}});
             },
             badBand},
            {"band just above 15",
             [](auto& a)
             {
                 a.type = Type::DB;
                 a.table = Table({{0, 0, 2}, {0, 0, std::nextafter(15.0, 16.0)}});
             },
             badBand},
            {"NaN band",
             [](auto& a)
             {
                 a.type = Type::DB;
                 a.table = Table({{0, 0, notANumber}});
             },
             badBand},
            {"a frequency past 15 with BASE", [](auto& a) { a.type = Type::BASE; }, passes},
        });
}

TEST(kamC_Spectrum, HasThreeColumns)
{
    kamC_Spectrum spectrum;
    spectrum.table = Table({{1, 2, 3}});
    CheckRules<kamC_Spectrum>(
        spectrum,
        {
            {"negative gravity", [](auto& a) { a.g = below; }, badGravity},
            {"NaN gravity", [](auto& a) { a.g = notANumber; }, badGravity},
            {"no table", [](auto& a) { a.table = cow_2DArray<double>(); }, notThreeColumns},
            {"two columns",
             [](auto& a) {
                 a.table = Table({{1, 2}});
             },
             notThreeColumns},
            {"four columns",
             [](auto& a) {
                 a.table = Table({{1, 2, 3, 4}});
             },
             notThreeColumns},
            {"gravity before columns",
             [](auto& a)
             {
                 a.g = -1;
                 a.table = Table({{1}});
             },
             badGravity},
        });
}

TEST(kamC_SpectrumAmplitude, ChecksGravityOnlyAsItsUnit)
{
    using Units = kamC_SpectrumAmplitude::SpecificationUnitsEnm;
    CheckRules<kamC_SpectrumAmplitude>(
        kamC_SpectrumAmplitude(),
        {
            {"negative, other unit", [](auto& a) { a.gravity = -1.0; }, passes},
            {"negative",
             [](auto& a)
             {
                 a.specificationUnits = Units::GRAVITY;
                 a.gravity = below;
             },
             badGravity},
            {"zero",
             [](auto& a)
             {
                 a.specificationUnits = Units::GRAVITY;
                 a.gravity = 0.0;
             },
             passes},
            {"NaN",
             [](auto& a)
             {
                 a.specificationUnits = Units::GRAVITY;
                 a.gravity = notANumber;
             },
             badGravity},
        });
}

TEST(kamC_BaselineCorrection, HasIncreasingTimesFromZeroOn)
{
    CheckRules<kamC_BaselineCorrection>(
        kamC_BaselineCorrection(),
        {
            {"zero", [](auto& a) { a.intervals = List({0.0}); }, passes},
            {"negative zero", [](auto& a) { a.intervals = List({-0.0}); }, passes},
            {"just below zero", [](auto& a) { a.intervals = List({below}); }, badCorrection},
            {"-1",
             [](auto& a) {
                 a.intervals = List({-1, 1});
             },
             badCorrection},
            {"NaN", [](auto& a) { a.intervals = List({notANumber}); }, badCorrection},
            {"increasing by the least",
             [](auto& a) {
                 a.intervals = List({1.0, std::nextafter(1.0, 2.0)});
             },
             passes},
            {"equal",
             [](auto& a) {
                 a.intervals = List({0, 1, 1});
             },
             badCorrection},
            {"decreasing",
             [](auto& a) {
                 a.intervals = List({0, 2, 1});
             },
             badCorrection},
            {"NaN behind",
             [](auto& a) {
                 a.intervals = List({0, notANumber});
             },
             badCorrection},
        });
}

TEST(kamC_CorrelationComponent, ChecksApproachNameAndData)
{
    using Approach = kamC_CorrelationComponent::CorrelationApproachEnm;
    kamC_CorrelationComponent component;
    component.psd = "white";
    component.dataList = List({1});
    CheckRules<kamC_CorrelationComponent>(
        component,
        {
            {"two values",
             [](auto& a) {
                 a.dataList = List({1, 2});
             },
             passes},
            {"three values",
             [](auto& a) {
                 a.dataList = List({1, 2, 3});
             },
             muchData},
            {"no value", [](auto& a) { a.dataList = cow_List<double>(); }, noData},
            {"uncorrelated, two values",
             [](auto& a)
             {
                 a.approach = Approach::UNCORRELATED;
                 a.dataList = List({1, 2});
             },
             passes},
            {"uncorrelated, three values",
             [](auto& a)
             {
                 a.approach = Approach::UNCORRELATED;
                 a.dataList = List({1, 2, 3});
             },
             muchData},
            {"uncorrelated, no value",
             [](auto& a)
             {
                 a.approach = Approach::UNCORRELATED;
                 a.dataList = cow_List<double>();
             },
             noData},
            {"user with a value", [](auto& a) { a.approach = Approach::USER; }, dataWithUser},
            {"user",
             [](auto& a)
             {
                 a.approach = Approach::USER;
                 a.dataList = cow_List<double>();
             },
             passes},
            {"moving noise", [](auto& a) { a.approach = Approach::MOVING_NOISE; }, movingNoise},
            {"moving noise, four values",
             [](auto& a)
             {
                 a.approach = Approach::MOVING_NOISE;
                 a.dataList = List({1, 2, 3, 4});
             },
             movingNoise},
            {"no name", [](auto& a) { a.psd = ""; }, noPsd},
            {"moving noise before name",
             [](auto& a)
             {
                 a.approach = Approach::MOVING_NOISE;
                 a.psd = "";
             },
             movingNoise},
            {"name before data",
             [](auto& a)
             {
                 a.psd = "";
                 a.dataList = cow_List<double>();
             },
             noPsd},
            {"an approach outside the table", [](auto& a) { a.approach = static_cast<Approach>(7); }, passes},
        });
}

template <class T>
class kamC_WithoutRules : public testing::Test
{};

using ClassesWithoutRules =
    testing::Types<kamC_Decay, kamC_Modulated, kamC_ActuatorAmplitude, kamC_UserAmplitude>;
TYPED_TEST_SUITE(kamC_WithoutRules, ClassesWithoutRules);

TYPED_TEST(kamC_WithoutRules, PassWhateverTheyHold)
{
    TypeParam object;
    EXPECT_EQ(passes, Verdict(object));
    if constexpr (requires { object.start; })
        object.start = notANumber;
    if constexpr (requires { object.numVariables; })
        object.numVariables = -1;
    EXPECT_EQ(passes, Verdict(object));
}

} // namespace
