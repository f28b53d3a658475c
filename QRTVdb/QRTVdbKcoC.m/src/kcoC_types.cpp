#include "QRTVdbKcoC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                                                // 0
    {7, 1, "kcoC_Constraint"},                                      // 1
    {7, 0x2D00001, "kcoC_Equation"},                                // 2
    {7, 1, "kcoC_EquationTerm"},                                    // 3
    {7, 0x2D00001, "kcoC_Tie"},                                     // 4
    {7, 0x2D00001, "kcoC_RigidBody"},                               // 5
    {7, 0xA0001, "kcoC_ConstraintContainer"},                       // 6
    {7, 1, "kcoC_ConstraintShortcut"},                              // 7
    {7, 0x2D00009, "kcoC_ConstraintInConstraintContainerShortcut"}, // 8
    {7, 1, "kcoC_ConstraintIMPLSC"},                                // 9
    {7, 1, "kcoC_ConstraintContainerShortcut"},                     // 10
    {7, 1, "kcoC_ConstraintContainerIMPLSC"},                       // 11
    {7, 0x2D00001, "kcoC_EmbeddedRegion"},                          // 12
    {7, 0x2D00001, "kcoC_Coupling"},                                // 13
    {7, 0x2D00001, "kcoC_DisplayBody"},                             // 14
    {7, 0x2D00001, "kcoC_DdbDisplayBody"},                          // 15
    {7, 0x2D00001, "kcoC_ShellSolidCoupling"},                      // 16
    {7, 0x2D0000B, "kcoC_ConstraintContainerInModelShortcut"},      // 17
    {7, 0xA000D, "kcoC_CCWrapper"},                                 // 18
    {7, 0x2D00001, "kcoC_MPC"},                                     // 19
    {7, 0x2D00001, "kcoC_AdjustPoints"},                            // 20
};
static_assert(std::size(entries) == 21);

} // namespace

typ_ArchCompEntry kcoC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
