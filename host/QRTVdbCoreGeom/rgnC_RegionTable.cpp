#include "rgnC_RegionTable.h"

#include "dbc_DatabaseConverter.h"
#include "dbc_DatabaseConverterHolder.h"
#include "dbc_OutputDatabase.h"
#include "dbc_Utils.h"
#include "nex_Exceptions.h"
#include "rgnC_Region.h"

namespace
{
[[noreturn]] void RaiseNoUpgrade()
{
    nex_CmdException<atr_String, 2>(atr_String("A region can't be added: no upgrade is under way."), 0)
        .Throw(__FILE__, __LINE__);
}
} // namespace

void rgnC_RegionTable::AddNewRegion(dbc_Row& row, const cow_String& attribute)
{
    dbc_DatabaseConverter* converter =
        omi_Singleton<dbc_DatabaseConverterHolder>::Instance()->GetDatabaseConverter();
    if (!converter)
        RaiseNoUpgrade();
    dbc_TableRfm* regions = converter->GetOutputDatabase().GetOutputTable(rgnC_Region::TypeId());
    omi_Singleton<dbc_Utils>::Instance()->SetObj(*regions, attribute, row, rgnC_Region::TypeId());
}
