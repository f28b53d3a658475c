#include "kflC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {"The limit value must be positive.",                                 // 0
                                 "Limit requires that operation is specified.",                       // 1
                                 "Halt requires that limit is specified..",                           // 2
                                 "Cutoff frequency must be greater than 0.",                          // 3
                                 "Order must be a positive value less than or equal to 20.",          // 4
                                 "Ripple factor must be greater than 0.",                             // 5
                                 "Ripple factor must be greater than 0 and less than or equal to 1.", // 6
                                 "Unknown filter type.",                                              // 7
                                 "Unable to copy unknown filter",                                     // 8
                                 "A system-defined filter is already named \"Antialiasing.\"",        // 9
                                 "The cutoffFrequency value is not used by the operator filter.",     // 10
                                 "The order value is not used by the operator filter.",               // 11
                                 "The operator filter requires an operation value.",                  // 12
                                 "Invariant requires an operation value."};                           // 13

} // namespace

constexpr cls_MessageTable kflC_Messages{"kflC_Assert", texts, static_cast<int>(std::size(texts)), true};

void kflC_Assert(bool condition, int code)
{
    if (!condition)
        cls_RaiseMessage(kflC_Messages, code, "QRTVdb/QRTVdbKflC.m/src/kflC_assert", __LINE__);
}
