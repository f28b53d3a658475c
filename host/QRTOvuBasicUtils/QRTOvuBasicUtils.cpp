#include "QRTOvuBasicUtils.h"

#include "QRTRomCore.h"
#include "cls_MetadataRegistrar.h"
#include "omu_PrimEnumBase.h"
#include "typ_ArchCompTable.h"

#include <iterator>

namespace
{
constexpr unsigned short moduleNumber = 11;

constexpr typ_Entry types[] = {
    {0, 1, nullptr},
    {7, 1, "omu_Primitive"},
    {7, 0xB0001, "omu_PrimString"},
    {7, 0xB0001, "omu_PrimEnumBase"},
};

int initializeCount = 0;
} // namespace

void QRTOvuBasicUtils_initialize(int& tally)
{
    if (initializeCount++ != 0)
        return;
    ++tally;
    QRTRomCore_initialize(tally);
    typ_ArchCompTable::InsertEntry(moduleNumber, typ_ArchCompEntry(types, std::size(types)));
    omi_Singleton<cls_MetadataRegistrar>::Instance()->initClassMetadata(omu_Primitive::InitializeMetadata);
    omi_Singleton<cls_MetadataRegistrar>::Instance()->initClassMetadata(omu_PrimEnumBase::InitializeMetadata);
}

void QRTOvuBasicUtils_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    typ_ArchCompTable::RemoveEntry(moduleNumber);
    QRTRomCore_finalize(tally);
}
