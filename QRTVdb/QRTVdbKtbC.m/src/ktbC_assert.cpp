#include "ktbC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    ("Invalid name of parameter table. Parameter table name should be unique in the scope of "
     "model."), // 0
    ("Invalid name of property table. Property table name should be unique in the scope of "
     "model."),                                                                                   // 1
    "Label of the table must be unique.",                                                         // 2
    "Data table cannot be created, expected atleast 1 parameter column to be defined.",           // 3
    "Property table data cannot be created, expected properties to be defined.",                  // 4
    "Property table cannot be created with no properties.",                                       // 5
    "Invalid region, expected body set/element set.",                                             // 6
    "Invalid step name. Step with the given name does not exists.",                               // 7
    "Invalid event series type. Event series type with the given name does not exists in model.", // 8
    "Invalid table collection. Table Collection with the given name does not exists in model.",   // 9
    ("Invalid activation. Element progressive activation with the given name does not exists in "
     "the assembly."), // 10
};

} // namespace

constexpr cls_MessageTable ktbC_Messages{"ktbC_Assert", texts, static_cast<int>(std::size(texts))};

void ktbC_Assert(bool condition, int code)
{
    if (!condition)
        cls_RaiseMessage(ktbC_Messages, code, "QRTVdb/QRTVdbKtbC.m/src/ktbC_assert", __LINE__);
}
