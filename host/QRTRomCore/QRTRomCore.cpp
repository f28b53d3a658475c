#include "QRTRomCore.h"

#include "QRTRfmInterface.h"
#include "cls_MetadataRegistrar.h"
#include "dbc_DatabaseConverterHolder.h"
#include "dbc_OldClassRegistrar.h"
#include "dbc_Utils.h"
#include "typ_ArchCompTable.h"

#include <iterator>

namespace
{
constexpr unsigned short collectionModuleNumber = 35;

/// The classes under which collections have their rows.
constexpr typ_Entry collectionTypes[] = {
    {0, 1, nullptr},
    {7, 1, "cls_List"},
    {7, 1, "cls_Map"},
};

int initializeCount = 0;
} // namespace

void QRTRomCore_initialize(int& tally)
{
    if (initializeCount++ != 0)
        return;
    ++tally;
    QRTRfmInterface_initialize(tally);
    typ_ArchCompTable::InsertEntry(collectionModuleNumber,
                                   typ_ArchCompEntry(collectionTypes, std::size(collectionTypes)));
}

void QRTRomCore_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    typ_ArchCompTable::RemoveEntry(collectionModuleNumber);
    omi_Singleton<dbc_DatabaseConverterHolder>::Finalize();
    omi_Singleton<dbc_Utils>::Finalize();
    omi_Singleton<dbc_OldClassRegistrar>::Finalize();
    omi_Singleton<cls_MetadataRegistrar>::Finalize();
    QRTRfmInterface_finalize(tally);
}
