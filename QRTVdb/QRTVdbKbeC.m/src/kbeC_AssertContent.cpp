#include "kbeC_AssertContent.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "Unavailable connector components have been specified (CORM: %s).", // 0
    "Table rate options cannot be specified for this behavior (%s).",   // 1
};

} // namespace

constexpr cls_MessageTable kbeC_ContentMessages{"kbeC_AssertContent", texts,
                                                static_cast<int>(std::size(texts))};

void kbeC_AssertContent(bool condition, kbeC_ContentErrorEnm code, const cow_String& name)
{
    if (!condition)
        cls_RaiseMessage(kbeC_ContentMessages, code, name, "QRTVdb/QRTVdbKbeC.m/src/kbeC_AssertContent",
                         __LINE__);
}
