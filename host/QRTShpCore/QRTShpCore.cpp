#include "QRTShpCore.h"

#include "QRTOvuGeom.h"
#include "cls_MetadataRegistrar.h"
#include "dtmC_DatumRef.h"
#include "typ_ArchCompTable.h"

#include <iterator>

namespace
{
constexpr unsigned short moduleNumber = 41;

constexpr typ_Entry types[] = {
    {0, 1, nullptr},
    {7, 1, "dtmC_DatumRef"},
};

int initializeCount = 0;
} // namespace

void QRTShpCore_initialize(int& tally)
{
    if (initializeCount++ != 0)
        return;
    ++tally;
    QRTOvuGeom_initialize(tally);
    typ_ArchCompTable::InsertEntry(moduleNumber, typ_ArchCompEntry(types, std::size(types)));
    omi_Singleton<cls_MetadataRegistrar>::Instance()->initClassMetadata(dtmC_DatumRef::InitializeMetadata);
}

void QRTShpCore_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    QRTOvuGeom_finalize(tally);
}
