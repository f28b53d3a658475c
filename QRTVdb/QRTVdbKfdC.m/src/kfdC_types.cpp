#include "QRTVdbKfdC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                               // 0
    {7, 1, "kfdC_Field"},                          // 1
    {7, 0xA0001, "kfdC_AnalyticalFieldContainer"}, // 2
    {7, 0x35A0001, "kfdC_AnalyticalField"},        // 3
    {7, 0x35A0003, "kfdC_ExpressionField"},        // 4
    {7, 0xA0001, "kfdC_DiscreteFieldContainer"},   // 5
    {7, 0x35A0001, "kfdC_DiscreteField"},          // 6
    {7, 1, "kfdC_DataTable"},                      // 7
    {7, 0x35A0003, "kfdC_MappedField"},            // 8
    {7, 1, "kfdC_VdbMeshRegionData"},              // 9
};
static_assert(std::size(entries) == 10);

} // namespace

typ_ArchCompEntry kfdC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
