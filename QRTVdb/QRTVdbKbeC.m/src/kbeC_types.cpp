#include "QRTVdbKbeC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                                                                     // 0
    {7, 0x2A80009, "kbeC_Elasticity"},                                                   // 1
    {7, 0x2A80009, "kbeC_Damping"},                                                      // 2
    {7, 0x2A80008, "kbeC_Stops"},                                                        // 3
    {7, 0x2A8000A, "kbeC_Lock"},                                                         // 4
    {7, 0x2A8000A, "kbeC_Failure"},                                                      // 5
    {7, 0x2A80009, "kbeC_Friction"},                                                     // 6
    {7, 0xA0001, "kbeC_BehaviorOptionContainer"},                                        // 7
    {7, 1, "kbeC_ConnectorBehaviorOption"},                                              // 8
    {7, 0x2A80008, "kbeC_Tabular"},                                                      // 9
    {7, 0x2A80008, "kbeC_MotionDiscontinuity"},                                          // 10
    {7, 1, "kbeC_ContactForce"},                                                         // 11
    {7, 0xA0001, "kbeC_ContactForceList"},                                               // 12
    {7, 1, "kbeC_TangentialBehavior"},                                                   // 13
    {7, 0x2A80008, "kbeC_Plasticity"},                                                   // 14
    {7, 0x2A80008, "kbeC_Damage"},                                                       // 15
    {7, 1, "kbeC_ConnectorBehaviorOptionIMPLSC"},                                        // 16
    {7, 0x2A80010, "kbeC_BehaviorOptionInBehaviorOptionContainerShortcut"},              // 17
    {7, 1, "kbeC_BehaviorOptionShortcut"},                                               // 18
    {7, 1, "kbeC_BehaviorOptionContainerShortcut"},                                      // 19
    {7, 1, "kbeC_BehaviorOptionContainerIMPLSC"},                                        // 20
    {7, 0xA0001, "kbeC_PotentialContainer"},                                             // 21
    {7, 1, "kbeC_Potential"},                                                            // 22
    {7, 0x2A80008, "kbeC_ConnectorElasticity"},                                          // 23
    {7, 0x2A80008, "kbeC_ConnectorDamping"},                                             // 24
    {7, 0x2A80008, "kbeC_ConnectorStop"},                                                // 25
    {7, 0x2A80008, "kbeC_ConnectorLock"},                                                // 26
    {7, 0x2A80008, "kbeC_ConnectorFailure"},                                             // 27
    {7, 0x2A80008, "kbeC_ConnectorFriction"},                                            // 28
    {7, 0x2A80008, "kbeC_ConnectorPlasticity"},                                          // 29
    {7, 0x2A80008, "kbeC_ConnectorDamage"},                                              // 30
    {7, 1, "kbeC_ConnectorPotential"},                                                   // 31
    {7, 1, "kbeC_ConnectorPotentialShortcut"},                                           // 32
    {7, 1, "kbeC_ConnectorPotentialListShortcut"},                                       // 33
    {7, 0x2A8002C, "kbeC_ConnectorPotentialInConnectorPotentialListShortcut"},           // 34
    {7, 1, "kbeC_ConnectorPotentialListIMPLSC"},                                         // 35
    {7, 0x2A80023, "kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut"},    // 36
    {7, 0x2A80023, "kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut"},     // 37
    {7, 1, "kbeC_TangentialBehaviorShortcut"},                                           // 38
    {7, 1, "kbeC_TangentialBehaviorIMPLSC"},                                             // 39
    {7, 0x2A80027, "kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut"},          // 40
    {7, 0xA0001, "kbeC_ConnectorBehaviorOptionList"},                                    // 41
    {7, 1, "kbeC_ConnectorBehaviorOptionListShortcut"},                                  // 42
    {7, 0x2A80010, "kbeC_ConnectorBehaviorOptionInConnectorBehaviorOptionListShortcut"}, // 43
    {7, 1, "kbeC_ConnectorPotentialIMPLSC"},                                             // 44
    {7, 1, "kbeC_CDCTerm"},                                                              // 45
    {7, 1, "kbeC_DerivedComponent"},                                                     // 46
    {7, 1, "kbeC_DerivedComponentShortcut"},                                             // 47
    {7, 1, "kbeC_DerivedComponentIMPLSC"},                                               // 48
    {7, 0x2A80030, "kbeC_DerivedComponentInConnectorPotentialShortcut"},                 // 49
    {7, 0x2A80030, "kbeC_DerivedComponentInConnectorBehaviorOptionShortcut"},            // 50
    {7, 1, "kbeC_CDCTermIMPLSC"},                                                        // 51
    {7, 0x2A80033, "kbeC_CDCTermInCDCTermListShortcut"},                                 // 52
    {7, 1, "kbeC_CDCTermShortcut"},                                                      // 53
    {7, 1, "kbeC_CDCTermListShortcut"},                                                  // 54
    {7, 1, "kbeC_CDCTermListIMPLSC"},                                                    // 55
    {7, 0x2A80037, "kbeC_CdcTermsListInDerivedComponentShortcut"},                       // 56
    {7, 1, "kbeC_ConnectorBehaviorOptionListIMPLSC"},                                    // 57
    {7, 0x2A80010, "kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut"},       // 58
    {7, 1, "kbeC_ConnectorBehaviorOptionShortcut"},                                      // 59
    {7, 0x2A80023, "kbeC_ConnectorPotentialsListInConnectorBehaviorOptionShortcut"},     // 60
    {7, 0x2A80040, "kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut"},            // 61
    {7, 1, "kbeC_ConnectorOptions"},                                                     // 62
    {7, 1, "kbeC_ConnectorOptionsShortcut"},                                             // 63
    {7, 1, "kbeC_ConnectorOptionsIMPLSC"},                                               // 64
    {7, 0x2A80040, "kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut"},            // 65
    {7, 0x2A80040, "kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut"},           // 66
    {7, 0x2A80040, "kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut"},            // 67
    {7, 0x2A80040, "kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut"},            // 68
    {7, 0x2A80040, "kbeC_ConnectorOptionsInCDCTermShortcut"},                            // 69
    {0, 1, nullptr},                                                                     // 70
    {0, 1, nullptr},                                                                     // 71
    {0, 1, nullptr},                                                                     // 72
};
static_assert(std::size(entries) == 73);

} // namespace

typ_ArchCompEntry kbeC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
