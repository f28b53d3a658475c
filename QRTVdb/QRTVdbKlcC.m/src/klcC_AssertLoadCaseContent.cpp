#include "klcC_AssertLoadCaseContent.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "The load \"%s\" is suppressed or does not exist.",               // 0
    "The boundary condition \"%s\" is suppressed or does not exist.", // 1
    "The field \"%s\" is suppressed or does not exist.",              // 2
    "The load \"%s\" is suppressed or does not exist.\n\n"
    "Available loads may be viewed by clicking the Add... button.", // 3
    "The boundary condition \"%s\" is suppressed or does not exist.\n\n"
    "Available boundary conditions may be viewed by clicking the Add... button.", // 4
    "The field \"%s\" is suppressed or does not exist.\n\n"
    "Available fields may be viewed by clicking the Add... button.", // 5
};

} // namespace

constexpr cls_MessageTable klcC_CompoundMessages{"klcC_AssertLoadCaseContent", texts,
                                                 static_cast<int>(std::size(texts))};

void klcC_AssertLoadCaseContent(bool condition, klcC_CompoundErrorEnm code, const cow_String& name)
{
    if (!condition)
        cls_RaiseMessage(klcC_CompoundMessages, code, name,
                         "QRTVdb/QRTVdbKlcC.m/src/klcC_AssertLoadCaseContent", __LINE__);
}
