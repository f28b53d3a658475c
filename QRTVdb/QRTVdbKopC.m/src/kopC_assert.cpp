#include "kopC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "The specified design response cannot be used with the constraint", // 0
    "Unable to copy unknown optimization task",                         // 1
    "Design response name cannot be empty",                             // 2
    "The objective list must contain at least 1 unsuppressed entry.",   // 3
    ("For a condition-based Optimization Task, only 1 entry is allowed in the \nobjective list "
     "when the target is MINIMIZE or MAXIMIZE. \n\nSuppress the other entries, or change the "
     "target, or use a \nCombined-Term Design Response, or use a general Optimization Task."), // 4
    "Identifier must be specified.",                                                           // 5
    "Operation cannot be AVERAGE for a design response.",                                      // 6
    "The deviation reference value must be greater than zero.",                                // 7
    "The size restriction must be either minimum or maximum.",                                 // 8
    "When using the point technique you must specify a region that contains a vertex.",        // 9
    "The draw angle must be greater than or equal to zero degrees and less than 45 degrees.",  // 10
    "The undercut tolerance must be greater than or equal to zero.",                           // 11
    "The geometric tolerances must be greater than zero.",                                     // 12
    "Factor cannot be zero when using divide.",                                                // 13
    "Reference factor must be specified.",                                                     // 14
    "The controller algorithm is required.",                                                   // 15
    "The angle must be greater than 2 and less than 360 degrees.",                             // 16
    "The translation cannot be zero.",                                                         // 17
    "The number of terms and weights must be equal.",                                          // 18
    "The number of terms and types must be equal.",                                            // 19
    "The low cut-off value must be greater than or equal to zero.",                            // 20
    "The high cut-off must be greater than or equal to the low-cut off.",                      // 21
    "At least 1 term must be specified.",                                                      // 22
    "At least 2 terms must be specified.",                                                     // 23
    "1 term must be specified.",                                                               // 24
    "No more than 2 terms may be specified.",                                                  // 25
    "No more than 4 terms may be specified.",                                                  // 26
    "No more than 10 terms may be specified.",                                                 // 27
    "The number of terms is less than the minimum allowed.",                                   // 28
    "The number of terms is greater than the maximum allowed.",                                // 29
    "Lower mode must be greater than zero.",                                                   // 30
    "Upper mode must be greater than zero.",                                                   // 31
    "The lower mode must be less than or equal to the upper mode.",                            // 32
    "Curvature smoothing edge length must be greater than or equal to zero.",                  // 33
    "Tolerance must be greater than or equal to zero.",                                        // 34
    "The angle must be greater than or equal to zero and less than 360 degrees.",              // 35
    "Cannot specify main point for this geometric restriction.",                               // 36
    "Cannot specify main point when using free-form definition.",                              // 37
    "Cylindrical and spherical coordinate systems are not allowed.",                           // 38
    "Initial density must be greater than zero.",                                              // 39
    "Minimum density must be greater than zero.",                                              // 40
    "Maximum density must be greater than zero.",                                              // 41
    "Maximum density must be less than or equal to one.",                                      // 42
    "Density move limit must be greater than zero.",                                           // 43
    "Filter radius must be greater than zero.",                                                // 44
    "Penalty factor for material interpolation must be greater than zero.",                    // 45
    "Number of fulfilled criteria must be 1 or 2.",                                            // 46
    "Objective function delta criteria must be greater than or equal to zero.",                // 47
    "Element density delta criteria must be greater than or equal to zero.",                   // 48
    "Criteria design cycle number must be greater than two.",                                  // 49
    "Soft deletion edge length must be greater than or equal to zero.",                        // 50
    "Multiple processor setting is only valid with sensitivity.",                              // 51
    "Minimum thickness must be greater than zero.",                                            // 52
    "Maximum thickness must be greater than zero.",                                            // 53
    "Minimum width must be greater than zero.",                                                // 54
    "Maximum width must be greater than zero.",                                                // 55
    "Maximum thickness must be greater than or equal to the minimum thickness.",               // 56
    "Distance must be greater than or equal to zero.",                                         // 57
    "Member size must be greater than zero.",                                                  // 58
    "Growth value must be greater than or equal to zero.",                                     // 59
    "Shrink value size must be greater than or equal to zero.",                                // 60
    "Either growth or shrink value must be specified.",                                        // 61
    "Step size cannot be dynamic when using deleted volume technique.",                        // 62
    "Deleted volume technique is required when step size is not dynamic.",                     // 63
    "Number of design cycles must be greater than or equal to 10.",                            // 64
    "Number of tracked modes must be greater than or equal to zero.",                          // 65
    "Frequency spectrum weight must be greater than or equal to zero.",                        // 66
    "The number of values settings cannot be used with a design response.",                    // 67
    "Deviation from variable is not yet supported.",                                           // 68
    ("Initial density must be greater than or equal to the minimum and less than or equal to "
     "the maximum."),                                                                        // 69
    "Minimum density must be less than or equal to the maximum.",                            // 70
    "Number of smoothing element layers must be greater than zero.",                         // 71
    "Number of free node layers must be greater than or equal to zero.",                     // 72
    "Feature recognition angle must be greater than or equal to zero.",                      // 73
    "Tri minimum angle must be greater than or equal to zero and less than or equal to 59.", // 74
    "Tri maximum angle must be greater than or equal to 61 and less than or equal to 180.",  // 75
    "Tri minimum angle must be greater than or equal to zero and less than or equal to 89.", // 76
    "Quad minimum angle must be greater than or equal to 91 and less than or equal to 180.", // 77
    "Quad taper must be greater than or equal to zero.",                                     // 78
    "Quad skew must be greater than or equal to zero.",                                      // 79
    ("Tet minimum aspect ratio must be greater than or equal to 0.00177 and less than or equal "
     "to 1.3."), // 80
    ("Tet maximum aspect ratio must be greater than or equal to 1.36 and less than or equal to "
     "999."),                                                           // 81
    "Tet aspect ratio must be greater than or equal to zero.",          // 82
    "Tet skew must be greater than or equal to zero.",                  // 83
    "reportQualityViolation must be set if haltUponViolation is used.", // 84
    "Load case name must not be empty.",                                // 85
    "If step is ALL then individual load cases cannot be specified.",   // 86
    "The identifier cannot be used with step and load case settings.",  // 87
    ("For condition-based Topology Optimization Tasks, the member size restriction can only be "
     "minimum."),                                                                              // 88
    "Vector length must be greater than zero.",                                                // 89
    "The operation value must be specified.",                                                  // 90
    "The sum operation cannot be used with the given identifier.",                             // 91
    "The minimum operation cannot used be with the given identifier.",                         // 92
    "The maximum operation cannot be used with the given identifier.",                         // 93
    "U1, U2, U3 values cannot be used unless movementRestriction is DIRECTION_AND_MAGNITUDE.", // 94
    "A smoothing region must be specified.",                                                   // 95
    "A smoothing layer region must be specified.",                                             // 96
    ("The driving region must be small, not exceeding 500 nodes, when operation is set to "
     "MINIMUM or MAXIMUM."), // 97
    ("The region must be small, not exceeding 500 nodes, when used with the selected variable "
     "and operation is set to MINIMUM or MAXIMUM.  Whole model is not permitted."), // 98
    ("When specifying a nodal region with the selected variable and operation is set to MINIMUM "
     "or MAXIMUM, the region must be small, not exceeding 500 nodes.  Whole model is also "
     "permitted."),                                   // 99
    "Reference value variable is not yet supported.", // 100
    ("The draft angle must be greater than or equal to zero degrees and less than or equal to "
     "20 degrees."),                                  // 101
    "Draft angle cannot be specified with stamping.", // 102
    ("For the specified soft deletion method threshold value must be greater than or equal to "
     "zero."),                                                                        // 103
    "For the specified soft deletion method threshold value must be less than zero.", // 104
    ("For this type of Task, reference values must all be non-default values or they must all "
     "be DEFAULT."),                                                              // 105
    "For this type of Task, reference values must be the default value.",         // 106
    "Cylindrical or spherical Csys is not allowed for the selected variable.",    // 107
    "The selected region does not contain any elements.",                         // 108
    "Node based regions are not allowed for selected design response.",           // 109
    "Whole model must be selected for Energy stiffness measure design response.", // 110
    "Thickness move limit must be greater than zero.",                            // 111
    ("At least one of the thickness restriction values need to be specified to create thickness "
     "control restriction."),                                                              // 112
    "Element thickness delta criteria must be greater than or equal to zero.",             // 113
    "Only shell regions are allowed for sizing task.",                                     // 114
    "Local Stop conditions are valid only for Shape optimization.",                        // 115
    "Only shell elements/regions are allowed for bead task.",                              // 116
    "Bead width must be greater than zero.",                                               // 117
    "Bead min stress must be greater than zero.",                                          // 118
    "Bead max membrane stress must be greater than zero.",                                 // 119
    "Curve smooth must be greater than zero.",                                             // 120
    "Node smooth must be greater than zero.",                                              // 121
    "Bead iteration must be greater than zero.",                                           // 122
    "Bead perturbation must be greater than zero.",                                        // 123
    "The Design Response must contain at least one Step/Loadcase from the current model.", // 124
    "At least one step / load case needs to be specified.",                                // 125
    "At least one direction needs to be specified to create fixed region restriction.",    // 126
    ("The relative value for constraints based on Volume or weight design responses in topology "
     "task should be greater than 0 or less than 1."),                                      // 127
    "Shell Layer Value other than 'NONE' should be provided for the given design response", // 128
    "Shell Layer Value provided is invalid for the given design response.",                 // 129
    "Ovaris sensitivities are currently supported only for general optimization.",          // 130
    "Group Operator is currently supported only for general optimization.",                 // 131
    "The overhang angle must be greater than zero degrees.",                                // 132
    "The overhang radius must be greater than zero.",                                       // 133
    "The filter radius must be greater than zero.",                                         // 134
    "The rib thickness must be greater than zero.",                                         // 135
    "The rib distance must be greater than zero.",                                          // 136
    "The specified geometric restriction cannot be used with this type of Task",            // 137
};

} // namespace

constexpr cls_MessageTable kopC_Messages{"kopC_Assert", texts, static_cast<int>(std::size(texts))};

void kopC_Assert(bool condition, kopC_ErrorEnm code)
{
    if (!condition)
        cls_RaiseMessage(kopC_Messages, code, "QRTVdb/QRTVdbKopC.m/src/kopC_assert", __LINE__);
}
