#include "kbpC_assert.h"

#include "ModuleTest.h"
#include "Parentheses.h"

namespace
{

constexpr const char* source = "QRTVdb/QRTVdbKbpC.m/src/kbpC_assert";

TEST(kbpC_Assert, ThrowsTheTextOfTheCode)
{
    CheckMessages(kbpC_Assert, source,
                  {"Area must be greater than zero.",
                   "The value of I11 must be greater than zero.",
                   "When the value of I22 is zero, the value of I12 must also be zero.",
                   "The value of I22  must be greater than or equal to zero.",
                   "Unable to copy unknown profile type.",
                   "The polar moment of inertia, J, must be non-negative.",
                   "The value of I12 must satisfy the inequality:\n -(I11+I22)/2 < I12 <= (I11+I22)/2",
                   "The height must be greater than zero.",
                   "The width must be greater than zero.",
                   "The radius must be greater than zero.",
                   "The thickness must be greater than zero.",
                   "All thicknesses must be greater than zero.",
                   "Two connected segments cannot have zero thickness.",
                   "Thickness 1 + Thickness 3 must be less than the width.",
                   "Thickness 2 + Thickness 4 must be less than the height.",
                   "The thickness must be less than half the width.",
                   "The thickness must be less than half the height.",
                   "The thickness must be less than the radius.",
                   "The web thickness (t3) must be greater than zero.",
                   "At least one flange must have a width greater than zero.",
                   "Thickness one (t1) must be greater than zero.",
                   "Thickness two (t2) must be greater than zero.",
                   "The thickness must be less than sqrt(3)/2 times the radius.",
                   "The dimension a must be greater than zero.",
                   "The dimension b must be greater than zero.",
                   "The dimension c must be greater than zero.",
                   "The dimension h must be greater than zero.",
                   "The thickness t must be greater than zero.",
                   "The thickness t1 must be greater than zero.",
                   "The thickness t2 must be greater than zero.",
                   "The thickness tf must be greater than zero.",
                   "The thickness tw must be greater than zero.",
                   "The thickness t1 must be less than b.",
                   "The thickness t1 must be less than h.",
                   "The thickness t2 must be less than a.",
                   "The thickness t2 must be less than b.",
                   "The thickness tf must be less than h.",
                   "The thickness tw must be less than b.",
                   "Number of points is not equal to the number of segments + 1",
                   "The thickness t3 must be less than b1 and b2",
                   "Thickness 1 + Thickness 2 must be less than the height.",
                   "The thickness t3 must be less than half b1"});
}

TEST(kbpC_Assert, DoesNotTranslateItsTexts)
{
    const Parentheses language;
    EXPECT_EQ("Area must be greater than zero.", MessageOf(source, [] { kbpC_Assert(false, kbpC_BadArea); }));
}

} // namespace
