#include "QRTVdbKlcC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                                       // 0
    {7, 1, "klcC_LoadCase"},                               // 1
    {7, 0xA0001, "klcC_LoadCaseCont"},                     // 2
    {7, 1, "klcC_LoadCaseIMPLSC"},                         // 3
    {7, 1, "klcC_LoadCaseShortcut"},                       // 4
    {7, 0x2DC0003, "klcC_LoadCaseInLoadCaseContShortcut"}, // 5
    {7, 1, "klcC_LoadCaseContIMPLSC"},                     // 6
    {7, 1, "klcC_LoadCaseContShortcut"},                   // 7
};
static_assert(std::size(entries) == 8);

} // namespace

typ_ArchCompEntry klcC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
