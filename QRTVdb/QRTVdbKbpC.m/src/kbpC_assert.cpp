#include "kbpC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "Area must be greater than zero.",                                                   // 0
    "The value of I11 must be greater than zero.",                                       // 1
    "When the value of I22 is zero, the value of I12 must also be zero.",                // 2
    "The value of I22  must be greater than or equal to zero.",                          // 3
    "Unable to copy unknown profile type.",                                              // 4
    "The polar moment of inertia, J, must be non-negative.",                             // 5
    "The value of I12 must satisfy the inequality:\n -(I11+I22)/2 < I12 <= (I11+I22)/2", // 6
    "The height must be greater than zero.",                                             // 7
    "The width must be greater than zero.",                                              // 8
    "The radius must be greater than zero.",                                             // 9
    "The thickness must be greater than zero.",                                          // 10
    "All thicknesses must be greater than zero.",                                        // 11
    "Two connected segments cannot have zero thickness.",                                // 12
    "Thickness 1 + Thickness 3 must be less than the width.",                            // 13
    "Thickness 2 + Thickness 4 must be less than the height.",                           // 14
    "The thickness must be less than half the width.",                                   // 15
    "The thickness must be less than half the height.",                                  // 16
    "The thickness must be less than the radius.",                                       // 17
    "The web thickness (t3) must be greater than zero.",                                 // 18
    "At least one flange must have a width greater than zero.",                          // 19
    "Thickness one (t1) must be greater than zero.",                                     // 20
    "Thickness two (t2) must be greater than zero.",                                     // 21
    "The thickness must be less than sqrt(3)/2 times the radius.",                       // 22
    "The dimension a must be greater than zero.",                                        // 23
    "The dimension b must be greater than zero.",                                        // 24
    "The dimension c must be greater than zero.",                                        // 25
    "The dimension h must be greater than zero.",                                        // 26
    "The thickness t must be greater than zero.",                                        // 27
    "The thickness t1 must be greater than zero.",                                       // 28
    "The thickness t2 must be greater than zero.",                                       // 29
    "The thickness tf must be greater than zero.",                                       // 30
    "The thickness tw must be greater than zero.",                                       // 31
    "The thickness t1 must be less than b.",                                             // 32
    "The thickness t1 must be less than h.",                                             // 33
    "The thickness t2 must be less than a.",                                             // 34
    "The thickness t2 must be less than b.",                                             // 35
    "The thickness tf must be less than h.",                                             // 36
    "The thickness tw must be less than b.",                                             // 37
    "Number of points is not equal to the number of segments + 1",                       // 38
    "The thickness t3 must be less than b1 and b2",                                      // 39
    "Thickness 1 + Thickness 2 must be less than the height.",                           // 40
    "The thickness t3 must be less than half b1"};                                       // 41

} // namespace

constexpr cls_MessageTable kbpC_Messages{"kbpC_Assert", texts, static_cast<int>(std::size(texts))};

void kbpC_Assert(bool condition, kbpC_ErrorEnm code)
{
    if (!condition)
        cls_RaiseMessage(kbpC_Messages, code, "QRTVdb/QRTVdbKbpC.m/src/kbpC_assert", __LINE__);
}
