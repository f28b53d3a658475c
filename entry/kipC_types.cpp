#include "QRTVdbKipC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr}, // 0
};
static_assert(std::size(entries) == 1);

} // namespace

typ_ArchCompEntry kipC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
