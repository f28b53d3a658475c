#include "cls_ObjectCollections.h"

#include "nex_Exceptions.h"
#include "typ_ArchCompTable.h"

#include <charconv>

void cls_detail::RaiseForeignElement(unsigned classId)
{
    const std::string message =
        std::string("an element that is no object of class ") + typ_ArchCompTable::GetName(classId);
    nex_PrimException<atr_String, 1>(atr_String(message.c_str()), 0).Throw(__FILE__, __LINE__);
}

int cls_detail::MapForm<int>::Key(const std::string& text)
{
    int key = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, key);
    if (error != std::errc() || stop != end)
        throw cls_ValueError("['" + text + "']", "expected an integer of 32 bits as the name");
    return key;
}
