#include "ktbC_assert.h"

#include "ModuleTest.h"

namespace
{

TEST(ktbC_Assert, ThrowsTheMessageOfItsCode)
{
    CheckMessages(ktbC_Assert, "QRTVdb/QRTVdbKtbC.m/src/ktbC_assert",
                  {
                      ("Invalid name of parameter table. Parameter table name should be unique in the scope "
                       "of model."),
                      ("Invalid name of property table. Property table name should be unique in the scope of "
                       "model."),
                      "Label of the table must be unique.",
                      "Data table cannot be created, expected atleast 1 parameter column to be defined.",
                      "Property table data cannot be created, expected properties to be defined.",
                      "Property table cannot be created with no properties.",
                      "Invalid region, expected body set/element set.",
                      "Invalid step name. Step with the given name does not exists.",
                      ("Invalid event series type. Event series type with the given name does not exists in "
                       "model."),
                      ("Invalid table collection. Table Collection with the given name does not exists in "
                       "model."),
                      ("Invalid activation. Element progressive activation with the given name does not "
                       "exists in the assembly."),
                  });
}

} // namespace
