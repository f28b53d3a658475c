#include "QRTVdbKopC.h"

#include <iterator>

namespace
{

constexpr typ_Entry entries[] = {
    {0, 1, nullptr},                                                                    // 0
    {7, 1, "kopC_BaseOptimization"},                                                    // 1
    {0, 1, nullptr},                                                                    // 2
    {0, 1, nullptr},                                                                    // 3
    {7, 0x3A40001, "kopC_Task"},                                                        // 4
    {7, 1, "kopC_TaskShortcut"},                                                        // 5
    {7, 1, "kopC_TaskIMPLSC"},                                                          // 6
    {7, 0x3A40004, "kopC_NucleonTask"},                                                 // 7
    {7, 0x3A40007, "kopC_TopologyTask"},                                                // 8
    {7, 0x3A40007, "kopC_ShapeTask"},                                                   // 9
    {7, 0xA0001, "kopC_TaskContainer"},                                                 // 10
    {7, 0x3A40006, "kopC_TaskInTaskContainerShortcut"},                                 // 11
    {7, 1, "kopC_TaskContainerShortcut"},                                               // 12
    {7, 1, "kopC_TaskContainerIMPLSC"},                                                 // 13
    {7, 0x3A4000D, "kopC_TaskContainerInModelShortcut"},                                // 14
    {7, 0x3A40001, "kopC_ObjectiveFunction"},                                           // 15
    {7, 1, "kopC_ObjectiveFunctionShortcut"},                                           // 16
    {7, 1, "kopC_ObjectiveFunctionIMPLSC"},                                             // 17
    {7, 0x3A4000F, "kopC_NucleonObjectiveFunction"},                                    // 18
    {7, 0xA0001, "kopC_ObjectiveFunctionContainer"},                                    // 19
    {7, 0x3A40011, "kopC_ObjectiveFunctionInObjectiveFunctionContainerShortcut"},       // 20
    {7, 1, "kopC_ObjectiveFunctionContainerShortcut"},                                  // 21
    {7, 1, "kopC_ObjectiveFunctionContainerIMPLSC"},                                    // 22
    {7, 0x3A40016, "kopC_ObjectiveFunctionContainerInTaskShortcut"},                    // 23
    {7, 1, "kopC_Objective"},                                                           // 24
    {7, 0x3A40001, "kopC_Constraint"},                                                  // 25
    {7, 1, "kopC_ConstraintShortcut"},                                                  // 26
    {7, 1, "kopC_ConstraintIMPLSC"},                                                    // 27
    {7, 0x3A40019, "kopC_NucleonConstraint"},                                           // 28
    {7, 0xA0001, "kopC_ConstraintContainer"},                                           // 29
    {7, 0x3A4001B, "kopC_ConstraintInConstraintContainerShortcut"},                     // 30
    {7, 1, "kopC_ConstraintContainerShortcut"},                                         // 31
    {7, 1, "kopC_ConstraintContainerIMPLSC"},                                           // 32
    {7, 0x3A40020, "kopC_ConstraintContainerInTaskShortcut"},                           // 33
    {7, 0x3A40001, "kopC_GeometricRestriction"},                                        // 34
    {7, 1, "kopC_GeometricRestrictionShortcut"},                                        // 35
    {7, 1, "kopC_GeometricRestrictionIMPLSC"},                                          // 36
    {7, 0x3A40022, "kopC_NucleonGeometricRestriction"},                                 // 37
    {7, 0xA0001, "kopC_GeometricRestrictionContainer"},                                 // 38
    {7, 0x3A40024, "kopC_GeometricRestrictionInGeometricRestrictionContainerShortcut"}, // 39
    {7, 1, "kopC_GeometricRestrictionContainerShortcut"},                               // 40
    {7, 1, "kopC_GeometricRestrictionContainerIMPLSC"},                                 // 41
    {7, 0x3A40029, "kopC_GeometricRestrictionContainerInTaskShortcut"},                 // 42
    {7, 0x3A40001, "kopC_StopCondition"},                                               // 43
    {7, 1, "kopC_StopConditionShortcut"},                                               // 44
    {7, 1, "kopC_StopConditionIMPLSC"},                                                 // 45
    {7, 0x3A4002B, "kopC_NucleonStopCondition"},                                        // 46
    {7, 0x3A4002E, "kopC_LocalStopCondition"},                                          // 47
    {7, 0xA0001, "kopC_StopConditionContainer"},                                        // 48
    {7, 0x3A4002D, "kopC_StopConditionInStopConditionContainerShortcut"},               // 49
    {7, 1, "kopC_StopConditionContainerShortcut"},                                      // 50
    {7, 1, "kopC_StopConditionContainerIMPLSC"},                                        // 51
    {7, 0x3A40033, "kopC_StopConditionContainerInTaskShortcut"},                        // 52
    {7, 0x3A40040, "kopC_DesignResponse"},                                              // 53
    {7, 1, "kopC_DesignResponseShortcut"},                                              // 54
    {7, 1, "kopC_DesignResponseIMPLSC"},                                                // 55
    {7, 0x3A40035, "kopC_NucleonDesignResponse"},                                       // 56
    {7, 0xA0001, "kopC_DesignResponseContainer"},                                       // 57
    {7, 0x3A40037, "kopC_DesignResponseInDesignResponseContainerShortcut"},             // 58
    {7, 1, "kopC_DesignResponseContainerShortcut"},                                     // 59
    {7, 1, "kopC_DesignResponseContainerIMPLSC"},                                       // 60
    {7, 0x3A4003C, "kopC_DesignResponseContainerInTaskShortcut"},                       // 61
    {7, 0x3A40038, "kopC_SingleTermDesignResponse"},                                    // 62
    {7, 0x3A40038, "kopC_CombinedTermDesignResponse"},                                  // 63
    {7, 0x3A40001, "kopC_BaseVariable"},                                                // 64
    {0, 1, nullptr},                                                                    // 65
    {0, 1, nullptr},                                                                    // 66
    {7, 0x3A40001, "kopC_Variable"},                                                    // 67
    {7, 1, "kopC_VariableShortcut"},                                                    // 68
    {7, 1, "kopC_VariableIMPLSC"},                                                      // 69
    {7, 0x3A40043, "kopC_NucleonVariable"},                                             // 70
    {7, 0xA0001, "kopC_VariableContainer"},                                             // 71
    {7, 0x3A40045, "kopC_VariableInVariableContainerShortcut"},                         // 72
    {7, 1, "kopC_VariableContainerShortcut"},                                           // 73
    {7, 1, "kopC_VariableContainerIMPLSC"},                                             // 74
    {7, 0x3A4004A, "kopC_VariableContainerInTaskShortcut"},                             // 75
    {0, 1, nullptr},                                                                    // 76
    {0, 1, nullptr},                                                                    // 77
    {7, 0x3A40025, "kopC_FrozenArea"},                                                  // 78
    {7, 0x3A40025, "kopC_TopologyMemberSize"},                                          // 79
    {7, 0x3A40001, "kopC_Request"},                                                     // 80
    {7, 0x3A40050, "kopC_SingleTermRequest"},                                           // 81
    {7, 0x3A40050, "kopC_CombinedTermRequest"},                                         // 82
    {7, 0x3A40025, "kopC_ShapeMemberSize"},                                             // 83
    {7, 0x3A40025, "kopC_TopologyDemoldControl"},                                       // 84
    {7, 0x3A40025, "kopC_StampControl"},                                                // 85
    {7, 0x3A40025, "kopC_TopologyRotationalSymmetry"},                                  // 86
    {7, 0x3A40025, "kopC_TopologyCyclicSymmetry"},                                      // 87
    {7, 0x3A40025, "kopC_TopologyPlanarSymmetry"},                                      // 88
    {7, 1, "kopC_StepOption"},                                                          // 89
    {7, 0x3A40025, "kopC_DrillControl"},                                                // 90
    {7, 0x3A40025, "kopC_TurnControl"},                                                 // 91
    {7, 0x3A40025, "kopC_ShapeDemoldControl"},                                          // 92
    {7, 0x3A40025, "kopC_LoadFixation"},                                                // 93
    {7, 0x3A40025, "kopC_FixedRegion"},                                                 // 94
    {7, 0x3A40025, "kopC_Growth"},                                                      // 95
    {7, 0x3A40025, "kopC_ShapeRotationalSymmetry"},                                     // 96
    {7, 0x3A40025, "kopC_ShapePlanarSymmetry"},                                         // 97
    {7, 0x3A40025, "kopC_PenetrationCheck"},                                            // 98
    {7, 0x3A40025, "kopC_CheckSlide"},                                                  // 99
    {7, 0x3A40025, "kopC_TopologyPointSymmetry"},                                       // 100
    {7, 0x3A40025, "kopC_ShapePointSymmetry"},                                          // 101
    {7, 0x3A40025, "kopC_ShapeVector"},                                                 // 102
    {7, 0x3A40025, "kopC_ShapeDirection"},                                              // 103
    {7, 0x3A40025, "kopC_ShapeLength"},                                                 // 104
    {7, 0x3A40007, "kopC_SizingTask"},                                                  // 105
    {7, 0x3A40025, "kopC_SizingFrozenArea"},                                            // 106
    {7, 0x3A40025, "kopC_SizingClusterAreas"},                                          // 107
    {7, 0x3A40025, "kopC_SizingRotationalSymmetry"},                                    // 108
    {7, 0x3A40025, "kopC_SizingCyclicSymmetry"},                                        // 109
    {7, 0x3A40025, "kopC_SizingPlanarSymmetry"},                                        // 110
    {7, 0x3A40025, "kopC_SizingPointSymmetry"},                                         // 111
    {7, 0x3A40025, "kopC_SizingMemberSize"},                                            // 112
    {7, 0x3A40025, "kopC_SizingThickControl"},                                          // 113
    {7, 0x3A40025, "kopC_BeadFixedRegion"},                                             // 114
    {7, 0x3A40025, "kopC_BeadGrowth"},                                                  // 115
    {7, 0x3A40025, "kopC_BeadPenetrationCheck"},                                        // 116
    {7, 0x3A40025, "kopC_BeadPlanarSymmetry"},                                          // 117
    {7, 0x3A40025, "kopC_BeadPointSymmetry"},                                           // 118
    {7, 0x3A40025, "kopC_BeadRotationalSymmetry"},                                      // 119
    {7, 0x3A40007, "kopC_BeadTask"},                                                    // 120
    {7, 0x3A40025, "kopC_TopologyOverhangControl"},                                     // 121
    {7, 0x3A40025, "kopC_TopologyClusterAreas"},                                        // 122
    {7, 0x3A40025, "kopC_TopologyMillingControl"},                                      // 123
    {7, 0x3A40025, "kopC_BeadFilter"},                                                  // 124
    {7, 0x3A40025, "kopC_TopologyRibDesign"},                                           // 125
};
static_assert(std::size(entries) == 126);

} // namespace

typ_ArchCompEntry kopC_ArchEntry()
{
    return typ_ArchCompEntry(entries, std::size(entries));
}
