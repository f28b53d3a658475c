#include "kfdC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "An expression must be supplied.",                                   // 0
    "Unable to copy unknown field.",                                     // 1
    "Invalid reference to a coordinate system for an analytical field.", // 2
    ("Missing or invalid parameter names in expression for a rectangular or global "
     "system.\nValid parameter names are X, Y, and Z."), // 3
    ("Missing or invalid parameter names in expression for a cylindrical coordinate "
     "system.\nValid parameter names are R, Th, and Z."), // 4
    ("Missing or invalid parameter names in expression for a spherical coordinate "
     "system.\nValid parameter names are R, Th, and P."),                           // 5
    "An unknown error has occured in Python while evaluating an analytical field.", // 6
    "Invalid width value specified for the discrete field.",                        // 7
    "Invalid width value specified for the discrete field data row.",               // 8
    "Could not allocate sufficient memory for discrete field data.",                // 9
    "Discrete field width value does not match the associated TYPE parameter.",     // 10
    "Datatable data is not divisible by width in discrete field.",                  // 11
    "Datatable data length does not match width * domain length.",                  // 12
    "Length of defaultValues does not match dataWidth in discrete field.",          // 13
    "Discrete Fields are currently supported on Node or Elements only.",            // 14
    ("Length of defaultValues must be six for discrete field for Prescribed Condition Fields "
     "with a DOF."), // 15
    ("Length of defaultValues must be one for discrete field for Prescribed Condition Fields "
     "without a DOF."), // 16
    ("The data width must be one for discrete field for Prescribed Condition Fields without a "
     "DOF."),                                                                                    // 17
    "The data width must be two for discrete field for Prescribed Condition Fields with a DOF.", // 18
    ("Discrete Fields that define part level orientations may not contain any part instance "
     "information as part of the element ID."),                                                  // 19
    "Given discrete field does not exist.",                                                      // 20
    "Discrete fields may not contain part instance information when applied at the part level.", // 21
    "Relative search tolerance values should be greater than zero.",                             // 22
    "Unknown grid point plane with the passed in key value.",                                    // 23
    "Invalid source point data definition for GRID format.",                                     // 24
    "Invalid source point data definition for XYZ format.",                                      // 25
    "The section assignment refers to an incompatible element type.",                            // 26
};

} // namespace

constexpr cls_MessageTable kfdC_Messages{"kfdC_Assert", texts, static_cast<int>(std::size(texts))};

void kfdC_Assert(bool condition, kfdC_ErrorEnm code)
{
    if (!condition)
        cls_RaiseMessage(kfdC_Messages, code, "QRTVdb/QRTVdbKfdC.m/src/kfdC_assert", __LINE__);
}
