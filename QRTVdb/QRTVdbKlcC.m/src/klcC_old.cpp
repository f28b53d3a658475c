#include "klcC_old.h"

#include "dbc_DeclaredVersion.h"
#include "dbc_NewFields.h"

namespace
{

constexpr unsigned oldClassMask = 5;

} // namespace

void* Upgrade_klcC_LoadCase_302_1323(const dbc_Row&, dbc_Row& output, int)
{
    static const dbc_NewField added[] = {{"suppress", false}};
    dbc_PutNew(output, added);
    return nullptr;
}

DBC_OLD_CLASS(klcC_LoadCase, 302, dbc_Root(0x2DC0001),
              dbc_Step(1323, DBC_FUNCTION(Upgrade_klcC_LoadCase_302_1323)),
              dbc_Collection("boundaryConditions", cls_CollectionMapString2Float),
              dbc_Collection("fields", cls_CollectionMapString2Float),
              dbc_Collection("loads", cls_CollectionMapString2Float), dbc_Bool("includeActiveBaseStateBC"))

void klcC_RegisterOldClasses()
{
    dbc_RegisterOldClasses<klcC_LoadCase_302>(oldClassMask);
}
