#include "QRTVdbKefC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                            // 0
    {7, 0xA000D, "kefC_EngineeringFeatures"},   // 1
    {7, 1, "kefC_Inertia"},                     // 2
    {7, 0xA0001, "kefC_InertiaContainer"},      // 3
    {7, 0x34C0002, "kefC_PointMassInertia"},    // 4
    {7, 0x34C0002, "kefC_HeatCapacitance"},     // 5
    {7, 1, "kefC_Crack"},                       // 6
    {7, 0xA0001, "kefC_CrackContainer"},        // 7
    {7, 0x34C0006, "kefC_ContourIntegral"},     // 8
    {7, 1, "kefC_Spring"},                      // 9
    {7, 0x34C0009, "kefC_SpringToGround"},      // 10
    {7, 0x34C0009, "kefC_TwoPointSpring"},      // 11
    {7, 0xA0001, "kefC_SpringContainer"},       // 12
    {7, 0x34C0002, "kefC_NonstructuralMass"},   // 13
    {7, 1, "kefC_Fastener"},                    // 14
    {7, 0xA0001, "kefC_FastenerContainer"},     // 15
    {7, 0x34C000E, "kefC_PointFastener"},       // 16
    {7, 0x34C000E, "kefC_DiscreteFastener"},    // 17
    {7, 0x34C0006, "kefC_XFEMCrack"},           // 18
    {7, 0x34C000E, "kefC_AssembledFastener"},   // 19
    {7, 0x34C0006, "kefC_DebondVCCT"},          // 20
    {7, 1, "kefC_Imperfection"},                // 21
    {7, 0xA0001, "kefC_ImperfectionContainer"}, // 22
    {7, 0x34C0015, "kefC_FileImperfection"},    // 23
    {7, 0x34C0015, "kefC_InputImperfection"},   // 24
    {7, 0x34C0015, "kefC_DataImperfection"},    // 25
};
static_assert(std::size(entries) == 26);

} // namespace

typ_ArchCompEntry kefC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
