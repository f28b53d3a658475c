#include "QRTVdbKadC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                                                        // 0
    {7, 1, "kadC_AdptMeshCtrl"},                                            // 1
    {7, 1, "kadC_AdptMeshDomain"},                                          // 2
    {7, 0xA0001, "kadC_AdptMeshCtrlContainer"},                             // 3
    {7, 1, "kadC_AdptMeshCtrlShortcut"},                                    // 4
    {7, 0x2680006, "kadC_AdptMeshCtrlInAdptMeshCtrlContainerShortcut"},     // 5
    {7, 1, "kadC_AdptMeshCtrlIMPLSC"},                                      // 6
    {7, 1, "kadC_AdptMeshCtrlContainerShortcut"},                           // 7
    {7, 1, "kadC_AdptMeshCtrlContainerIMPLSC"},                             // 8
    {7, 0x2680008, "kadC_AdptMeshCtrlContainerInModelShortcut"},            // 9
    {7, 0xA000D, "kadC_AMCCWrapper"},                                       // 10
    {7, 0xA0001, "kadC_AdptMeshDomainContainer"},                           // 11
    {7, 1, "kadC_AdptMeshDomainShortcut"},                                  // 12
    {7, 0x268000E, "kadC_AdptMeshDomainInAdptMeshDomainContainerShortcut"}, // 13
    {7, 1, "kadC_AdptMeshDomainIMPLSC"},                                    // 14
    {7, 1, "kadC_AdptMeshDomainContainerShortcut"},                         // 15
    {7, 1, "kadC_AdptMeshDomainContainerIMPLSC"},                           // 16
};
static_assert(std::size(entries) == 17);

} // namespace

typ_ArchCompEntry kadC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
