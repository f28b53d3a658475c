#include "RuleTest.h"
#include "kadC_AdptMeshCtrl.h"
#include "kadC_AdptMeshDomain.h"

#include <cmath>

namespace
{

const std::string badFrequency = "Frequency value must be greater than zero.";
const std::string badInitialSweeps = "Initial remeshing sweeps must be greater than zero.";
const std::string badSweeps = "Sweeps per increment must be greater than zero.";
const std::string badInitialAngle =
    "Initial feature angle must be greater than or equal to zero and less than or equal to 180.";
const std::string badTransitionAngle =
    "Transition feature angle must be greater than or equal to zero and less than or equal to 180.";
const std::string badVolumetric = "Volumetric smoothing weight must be greater than or equal to zero.";
const std::string badLaplacian = "Laplacian smoothing weight must be greater than or equal to zero.";
const std::string badEquipotential = "Equipotential smoothing weight must be greater than or equal to zero.";
const std::string badConstraintAngle =
    "Mesh constraint angle must be greater than or equal to zero and less than or equal to 180.";
const std::string badRefinement = "Curvature refinement must be greater than or equal to zero.";
const std::string badProjection =
    "Original configuration projection weight must be greater than or equal to zero.";

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double least = std::numeric_limits<double>::denorm_min();

using Control = kadC_AdptMeshCtrl;
using Number = double Control::*;

RuleRow<Control> Row(const char* input, Number member, double value, const std::string& verdict)
{
    return {input, [=](Control& control) { control.*member = value; }, verdict};
}

std::vector<RuleRow<Control>> AngleRows(Number angle, const std::string& bad)
{
    return {
        Row("angle 0", angle, 0.0, passes),
        Row("angle -0", angle, -0.0, passes),
        Row("angle just below 0", angle, -least, bad),
        Row("angle 180", angle, 180.0, passes),
        Row("angle just above 180", angle, std::nextafter(180.0, 181.0), bad),
        Row("angle 180.5", angle, 180.5, bad),
        Row("angle infinite", angle, infinity, bad),
        Row("angle not set", angle, cls_UnsetDouble, bad),
        Row("angle NaN", angle, notANumber, bad),
    };
}

std::vector<RuleRow<Control>> WeightRows(Number weight, const std::string& bad)
{
    return {
        Row("weight 0", weight, 0.0, passes),
        Row("weight -0", weight, -0.0, passes),
        Row("weight just below 0", weight, -least, bad),
        Row("weight -1", weight, -1.0, bad),
        Row("weight infinite", weight, infinity, passes),
        Row("weight not set", weight, cls_UnsetDouble, passes),
        Row("weight NaN", weight, notANumber, bad),
    };
}

/// The rules in their order.
struct Rule
{
    Number member;
    std::string bad;
    std::vector<RuleRow<Control>> (*rows)(Number member, const std::string& bad);
};

const std::vector<Rule>& Rules()
{
    static const std::vector<Rule> rules = {
        {&Control::initialFeatureAngle, badInitialAngle, AngleRows},
        {&Control::transitionFeatureAngle, badTransitionAngle, AngleRows},
        {&Control::volumetricSmoothingWeight, badVolumetric, WeightRows},
        {&Control::standardVolumetricSmoothingWeight, badVolumetric, WeightRows},
        {&Control::laplacianSmoothingWeight, badLaplacian, WeightRows},
        {&Control::equipotentialSmoothingWeight, badEquipotential, WeightRows},
        {&Control::originalConfigurationProjectionWeight, badProjection, WeightRows},
        {&Control::meshConstraintAngle, badConstraintAngle, AngleRows},
        {&Control::curvatureRefinement, badRefinement, WeightRows},
    };
    return rules;
}

TEST(kadC_AdptMeshCtrl, HasItsRules)
{
    for (const Rule& rule : Rules())
        CheckRules(Control(), rule.rows(rule.member, rule.bad));
}

TEST(kadC_AdptMeshCtrl, BreaksTheFirstRuleFirst)
{
    Control control;
    for (const Rule& rule : Rules())
        control.*rule.member = -1.0;
    for (const Rule& rule : Rules())
    {
        EXPECT_EQ(rule.bad, Verdict(control));
        control.*rule.member = 1.0;
    }
    EXPECT_EQ(passes, Verdict(control));
}

TEST(kadC_AdptMeshCtrl, AsksNothingOfTheSumOfItsWeights)
{
    Control control;
    control.volumetricSmoothingWeight = 1.0;
    control.laplacianSmoothingWeight = 1.0;
    control.equipotentialSmoothingWeight = 1.0;
    EXPECT_EQ(passes, Verdict(control));
}

TEST(kadC_AdptMeshDomain, HasItsRules)
{
    using Domain = kadC_AdptMeshDomain;
    const auto row = [](const char* input, int Domain::*member, int value, const std::string& verdict) {
        return RuleRow<Domain>{input, [=](Domain& domain) { domain.*member = value; }, verdict};
    };
    CheckRules(Domain(),
               {
                   row("frequency 1", &Domain::frequency, 1, passes),
                   row("frequency 0", &Domain::frequency, 0, badFrequency),
                   row("frequency -1", &Domain::frequency, -1, badFrequency),
                   row("frequency not set", &Domain::frequency, cls_UnsetInt, passes),
                   row("no initial sweeps", &Domain::initialRemeshingSweeps, 0, passes),
                   row("initial sweeps -1", &Domain::initialRemeshingSweeps, -1, badInitialSweeps),
                   row("initial sweeps not set", &Domain::initialRemeshingSweeps, 2147483647, passes),
                   row("least initial sweeps", &Domain::initialRemeshingSweeps,
                       std::numeric_limits<int>::min(), badInitialSweeps),
                   row("sweeps 1", &Domain::sweepsPerIncrement, 1, passes),
                   row("no sweeps", &Domain::sweepsPerIncrement, 0, badSweeps),
                   row("sweeps -1", &Domain::sweepsPerIncrement, -1, badSweeps),
                   {"frequency before initial sweeps",
                    [](Domain& domain)
                    {
                        domain.frequency = 0;
                        domain.initialRemeshingSweeps = -1;
                    },
                    badFrequency},
                   {"initial sweeps before sweeps",
                    [](Domain& domain)
                    {
                        domain.initialRemeshingSweeps = -1;
                        domain.sweepsPerIncrement = 0;
                    },
                    badInitialSweeps},
                   {"neither region nor control is asked for",
                    [](Domain& domain)
                    {
                        domain.region = rgnC_Region();
                        domain.controls = "";
                    },
                    passes},
               });
}

} // namespace
