#include "QRTVdbKarC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                                                      // 0
    {7, 0xA0001, "karC_RemeshingRuleContainer"},                          // 1
    {7, 1, "karC_RemeshingRule"},                                         // 2
    {7, 1, "karC_RemeshingRuleShortcut"},                                 // 3
    {7, 0x3570005, "karC_RemeshingRuleInRemeshingRuleContainerShortcut"}, // 4
    {7, 1, "karC_RemeshingRuleIMPLSC"},                                   // 5
};
static_assert(std::size(entries) == 6);

} // namespace

typ_ArchCompEntry karC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
