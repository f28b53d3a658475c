#include "QRTVdbKbpC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                                                  // 0
    {7, 1, "kbpC_BeamProfile"},                                       // 1
    {7, 0x2640001, "kbpC_GeneralizedProfile"},                        // 2
    {7, 0x2640001, "kbpC_CircularProfile"},                           // 3
    {7, 0x2640001, "kbpC_HexagonalProfile"},                          // 4
    {7, 0x2640001, "kbpC_PipeProfile"},                               // 5
    {7, 0x2640001, "kbpC_IbeamProfile"},                              // 6
    {7, 0x2640001, "kbpC_BoxProfile"},                                // 7
    {7, 0xA0001, "kbpC_BeamProfileContainer"},                        // 8
    {7, 0x2640001, "kbpC_ArbitraryProfile"},                          // 9
    {7, 0x2640001, "kbpC_RectangularProfile"},                        // 10
    {7, 0x2640001, "kbpC_LbeamProfile"},                              // 11
    {7, 0x2640001, "kbpC_TbeamProfile"},                              // 12
    {7, 0x2640001, "kbpC_TrapezoidalProfile"},                        // 13
    {7, 1, "kbpC_BeamProfileContainerShortcut"},                      // 14
    {7, 1, "kbpC_BeamProfileContainerIMPLSC"},                        // 15
    {7, 1, "kbpC_BeamProfileShortcut"},                               // 16
    {7, 0x2640012, "kbpC_BeamProfileInBeamProfileContainerShortcut"}, // 17
    {7, 1, "kbpC_BeamProfileIMPLSC"},                                 // 18
    {7, 0x264000F, "kbpC_BeamProfileContainerInModelShortcut"},       // 19
    {7, 0xA000D, "kbpC_BPCWrapper"},                                  // 20
    {7, 0x2640001, "kbpC_CbeamProfile"},                              // 21
    {7, 0x2640001, "kbpC_HatProfile"},                                // 22
};
static_assert(std::size(entries) == 23);

} // namespace

typ_ArchCompEntry kbpC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
