#include "cls_ObjectCollections.h"

#include <charconv>

int cls_detail::MapForm<int>::Key(const std::string& text)
{
    int key = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, key);
    if (error != std::errc() || stop != end)
        throw cls_ValueError("['" + text + "']", "expected an integer of 32 bits as the name");
    return key;
}
