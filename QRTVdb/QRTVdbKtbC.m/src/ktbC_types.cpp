#include "QRTVdbKtbC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                                                                              // 0
    {7, 1, "ktbC_TableCollection"},                                                               // 1
    {7, 0xA0001, "ktbC_TableCollectionContainer"},                                                // 2
    {7, 1, "ktbC_TableCollectionShortcut"},                                                       // 3
    {7, 0x3040005, "ktbC_TableCollectionInTableCollectionContainerShortcut"},                     // 4
    {7, 1, "ktbC_TableCollectionIMPLSC"},                                                         // 5
    {7, 1, "ktbC_TableCollectionContainerShortcut"},                                              // 6
    {7, 1, "ktbC_TableCollectionContainerIMPLSC"},                                                // 7
    {7, 0x3040007, "ktbC_TableCollectionContainerInModelShortcut"},                               // 8
    {7, 0xA000D, "ktbC_TCCWrapper"},                                                              // 9
    {7, 0xA0001, "ktbC_ParameterTableContainer"},                                                 // 10
    {7, 1, "ktbC_ParameterTable"},                                                                // 11
    {7, 1, "ktbC_ParameterColumn"},                                                               // 12
    {7, 0xA0001, "ktbC_ParameterColumnContainer"},                                                // 13
    {7, 1, "ktbC_ParameterColumnShortcut"},                                                       // 14
    {7, 0x3040010, "ktbC_ParameterColumnInParameterColumnContainerShortcut"},                     // 15
    {7, 1, "ktbC_ParameterColumnIMPLSC"},                                                         // 16
    {7, 1, "ktbC_ParameterColumnContainerShortcut"},                                              // 17
    {7, 1, "ktbC_ParameterColumnContainerIMPLSC"},                                                // 18
    {7, 1, "ktbC_CompositeColTable"},                                                             // 19
    {7, 0xA0001, "ktbC_CompositeColTableContainer"},                                              // 20
    {7, 1, "ktbC_ParameterTableShortcut"},                                                        // 21
    {7, 0x3040017, "ktbC_ParameterTableInParameterTableContainerShortcut"},                       // 22
    {7, 1, "ktbC_ParameterTableIMPLSC"},                                                          // 23
    {7, 1, "ktbC_ParameterTableContainerShortcut"},                                               // 24
    {7, 1, "ktbC_ParameterTableContainerIMPLSC"},                                                 // 25
    {7, 1, "ktbC_DataColumn"},                                                                    // 26
    {7, 0xA0001, "ktbC_DataColumnContainer"},                                                     // 27
    {7, 0x3040019, "ktbC_ParameterTableContainerInTableCollectionShortcut"},                      // 28
    {7, 0x3040012, "ktbC_ParameterColumnContainerInParameterTableShortcut"},                      // 29
    {7, 1, "ktbC_PropertyTableShortcut"},                                                         // 30
    {7, 0x3040020, "ktbC_PropertyTableInPropertyTableContainerShortcut"},                         // 31
    {7, 1, "ktbC_PropertyTableIMPLSC"},                                                           // 32
    {7, 1, "ktbC_PropertyTableContainerShortcut"},                                                // 33
    {7, 1, "ktbC_PropertyTableContainerIMPLSC"},                                                  // 34
    {7, 0x3040022, "ktbC_PropertyTableContainerInTableCollectionShortcut"},                       // 35
    {7, 1, "ktbC_ElemProgressiveActivationIMPLSC"},                                               // 36
    {7, 1, "ktbC_PropertyTable"},                                                                 // 37
    {7, 0xA0001, "ktbC_PropertyTableContainer"},                                                  // 38
    {7, 1, "ktbC_PropertyTableData"},                                                             // 39
    {7, 0xA0001, "ktbC_PropertyTableDataContainer"},                                              // 40
    {7, 1, "ktbC_ElemProgressiveActivationContainerShortcut"},                                    // 41
    {7, 1, "ktbC_ElemProgressiveActivationContainerIMPLSC"},                                      // 42
    {0, 1, nullptr},                                                                              // 43
    {0, 1, nullptr},                                                                              // 44
    {0, 1, nullptr},                                                                              // 45
    {7, 1, "ktbC_EventSeriesType"},                                                               // 46
    {7, 0xA0001, "ktbC_EventSeriesTypeContainer"},                                                // 47
    {7, 1, "ktbC_EventSeriesTypeShortcut"},                                                       // 48
    {7, 0x3040032, "ktbC_EventSeriesTypeInEventSeriesTypeContainerShortcut"},                     // 49
    {7, 1, "ktbC_EventSeriesTypeIMPLSC"},                                                         // 50
    {7, 1, "ktbC_EventSeriesTypeContainerShortcut"},                                              // 51
    {7, 1, "ktbC_EventSeriesTypeContainerIMPLSC"},                                                // 52
    {7, 0x3040034, "ktbC_EventSeriesTypeContainerInModelShortcut"},                               // 53
    {7, 0xA000D, "ktbC_ESTCWrapper"},                                                             // 54
    {7, 1, "ktbC_EventSeries"},                                                                   // 55
    {7, 0xA0001, "ktbC_EventSeriesContainer"},                                                    // 56
    {7, 1, "ktbC_EventSeriesShortcut"},                                                           // 57
    {7, 0x304003B, "ktbC_EventSeriesInEventSeriesContainerShortcut"},                             // 58
    {7, 1, "ktbC_EventSeriesIMPLSC"},                                                             // 59
    {7, 1, "ktbC_EventSeriesContainerShortcut"},                                                  // 60
    {7, 1, "ktbC_EventSeriesContainerIMPLSC"},                                                    // 61
    {7, 0x304003D, "ktbC_EventSeriesContainerInModelShortcut"},                                   // 62
    {7, 0xA000D, "ktbC_ESCWrapper"},                                                              // 63
    {7, 1, "ktbC_ActivateElem"},                                                                  // 64
    {7, 0xA0001, "ktbC_ActivateElemContainer"},                                                   // 65
    {7, 1, "ktbC_ActivateElemShortcut"},                                                          // 66
    {7, 0x3040044, "ktbC_ActivateElemInActivateElemContainerShortcut"},                           // 67
    {7, 1, "ktbC_ActivateElemIMPLSC"},                                                            // 68
    {7, 1, "ktbC_ActivateElemContainerShortcut"},                                                 // 69
    {7, 1, "ktbC_ActivateElemContainerIMPLSC"},                                                   // 70
    {7, 1, "ktbC_ElemProgressiveActivation"},                                                     // 71
    {7, 0xA0001, "ktbC_ElemProgressiveActivationContainer"},                                      // 72
    {7, 1, "ktbC_ElemProgressiveActivationShortcut"},                                             // 73
    {7, 0x3040024, "ktbC_ElemProgressiveActivationInElemProgressiveActivationContainerShortcut"}, // 74
};
static_assert(std::size(entries) == 75);

} // namespace

typ_ArchCompEntry ktbC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
