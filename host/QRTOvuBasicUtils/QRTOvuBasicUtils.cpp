#include "QRTOvuBasicUtils.h"

#include "QRTRomCore.h"
#include "cls_MetadataRegistrar.h"
#include "omu_PrimBool.h"
#include "omu_PrimDouble.h"
#include "omu_PrimEnumBase.h"
#include "omu_PrimInt.h"
#include "omu_PrimList.h"
#include "omu_PrimNone.h"
#include "omu_PrimString.h"
#include "omu_PrimTuple.h"
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
    {7, 0xB0001, "omu_PrimNone"},
    {7, 0xB0001, "omu_PrimBool"},
    {7, 0xB0001, "omu_PrimInt"},
    {7, 0xB0001, "omu_PrimDouble"},
    {7, 0xB0001, "omu_PrimSequence"},
    {7, 0xB0008, "omu_PrimTuple"},
    {7, 0xB0008, "omu_PrimList"},
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
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(omu_Primitive::InitializeMetadata);
    registrar.initClassMetadata(omu_PrimString::InitializeMetadata);
    registrar.initClassMetadata(omu_PrimEnumBase::InitializeMetadata);
    registrar.initClassMetadata(omu_PrimNone::InitializeMetadata);
    registrar.initClassMetadata(omu_PrimBool::InitializeMetadata);
    registrar.initClassMetadata(omu_PrimInt::InitializeMetadata);
    registrar.initClassMetadata(omu_PrimDouble::InitializeMetadata);
    registrar.initClassMetadata(omu_PrimSequence::InitializeMetadata);
    registrar.initClassMetadata(omu_PrimTuple::InitializeMetadata);
    registrar.initClassMetadata(omu_PrimList::InitializeMetadata);
}

void QRTOvuBasicUtils_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    typ_ArchCompTable::RemoveEntry(moduleNumber);
    QRTRomCore_finalize(tally);
}
