#include "QRTVdbKamC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                                                  // 0
    {7, 1, "kamC_BaselineCorrection"},                                // 1
    {7, 1, "kamC_Amplitude"},                                         // 2
    {7, 0x2440002, "kamC_Decay"},                                     // 3
    {7, 0x2440002, "kamC_EquallySpaced"},                             // 4
    {7, 0x2440002, "kamC_Modulated"},                                 // 5
    {7, 0x2440002, "kamC_Periodic"},                                  // 6
    {7, 0x2440002, "kamC_SolutionDependent"},                         // 7
    {7, 0x2440002, "kamC_Tabular"},                                   // 8
    {7, 0x2440002, "kamC_PsdDefinition"},                             // 9
    {7, 0x2440002, "kamC_Spectrum"},                                  // 10
    {7, 0x2440002, "kamC_SmoothStep"},                                // 11
    {7, 0xA0001, "kamC_AmplitudeContainer"},                          // 12
    {7, 1, "kamC_AmplitudeShortcut"},                                 // 13
    {7, 0x244000F, "kamC_AmplitudeInAmplitudeContainerShortcut"},     // 14
    {7, 1, "kamC_AmplitudeIMPLSC"},                                   // 15
    {7, 1, "kamC_AmplitudeContainerShortcut"},                        // 16
    {7, 1, "kamC_AmplitudeContainerIMPLSC"},                          // 17
    {7, 1, "kamC_BaselineCorrectionShortcut"},                        // 18
    {7, 0x2440015, "kamC_BaselineCorrectionInEquallySpacedShortcut"}, // 19
    {7, 0x2440015, "kamC_BaselineCorrectionInTabularShortcut"},       // 20
    {7, 1, "kamC_BaselineCorrectionIMPLSC"},                          // 21
    {7, 0x2440011, "kamC_AmplitudeContainerInModelShortcut"},         // 22
    {7, 0xA000D, "kamC_ACWrapper"},                                   // 23
    {7, 0x2440015, "kamC_BaselineCorrectionInAmplitudeShortcut"},     // 24
    {7, 0x2440002, "kamC_ActuatorAmplitude"},                         // 25
    {7, 0x2440002, "kamC_UserAmplitude"},                             // 26
    {7, 0x2440002, "kamC_SpectrumAmplitude"},                         // 27
    {7, 1, "kamC_CorrelationComponent"},                              // 28
};
static_assert(std::size(entries) == 29);

} // namespace

typ_ArchCompEntry kamC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
