#include "kflC_old.h"

#include "dbc_DeclaredVersion.h"
#include "dbc_NewFields.h"

namespace
{

constexpr unsigned oldClassMask = 5;

constexpr dbc_OldIdentity filter = dbc_Root(0x3510002);
constexpr auto cutoffAndOrder = dbc_Attributes(dbc_Double("cutoffFrequency"), dbc_Int("order"));

} // namespace

void* Upgrade_kflC_Filter_503_821(const dbc_Row&, dbc_Row& output, int)
{
    static const dbc_NewField added[] = {{"order", 2}};
    dbc_PutNew(output, added);
    return nullptr;
}

void* Upgrade_kflC_Filter_821_1351(const dbc_Row& input, dbc_Row& output, int)
{
    static const dbc_NewField added[] = {{"limit", 0.0}, {"halt", false}, {"operation", "NONE"}};
    dbc_PutMissing(input, output, added);
    return nullptr;
}

void* Upgrade_kflC_Filter_1351_1412(const dbc_Row&, dbc_Row& output, int)
{
    static const dbc_NewField added[] = {{"invariant", "NONE"}};
    dbc_PutNew(output, added);
    return nullptr;
}

DBC_OLD_CLASS(kflC_Filter, 208, filter, dbc_Step(503), cutoffAndOrder)

DBC_OLD_CLASS(kflC_Filter, 503, filter, dbc_Step(821, DBC_FUNCTION(Upgrade_kflC_Filter_503_821)),
              dbc_Double("cutoffFrequency"))

DBC_OLD_CLASS(kflC_Filter, 821, filter, dbc_Step(1351, DBC_FUNCTION(Upgrade_kflC_Filter_821_1351)),
              cutoffAndOrder)

DBC_OLD_CLASS(kflC_Filter, 1351, filter, dbc_Step(1412, DBC_FUNCTION(Upgrade_kflC_Filter_1351_1412)),
              cutoffAndOrder, dbc_Enum(2, "operation"), dbc_Bool(3, "halt"), dbc_Double(4, "limit"))

void kflC_RegisterOldClasses()
{
    dbc_RegisterOldClasses<kflC_Filter_208, kflC_Filter_503, kflC_Filter_821, kflC_Filter_1351>(oldClassMask);
}
