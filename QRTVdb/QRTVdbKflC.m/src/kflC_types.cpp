#include "QRTVdbKflC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                                        // 0
    {7, 0xA0001, "kflC_FilterContainer"},                   // 1
    {7, 1, "kflC_Filter"},                                  // 2
    {7, 0x3510002, "kflC_ButterworthFilter"},               // 3
    {7, 0x3510002, "kflC_Chebyshev1Filter"},                // 4
    {7, 0x3510002, "kflC_Chebyshev2Filter"},                // 5
    {7, 1, "kflC_FilterShortcut"},                          // 6
    {7, 0x3510008, "kflC_FilterInFilterContainerShortcut"}, // 7
    {7, 1, "kflC_FilterIMPLSC"},                            // 8
    {7, 1, "kflC_FilterContainerShortcut"},                 // 9
    {7, 1, "kflC_FilterContainerIMPLSC"},                   // 10
    {7, 0x351000A, "kflC_FilterContainerInModelShortcut"},  // 11
    {7, 0xA000D, "kflC_FCWrapper"},                         // 12
    {7, 0x3510002, "kflC_OperatorFilter"},                  // 13
};
static_assert(std::size(entries) == 14);

} // namespace

typ_ArchCompEntry kflC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
