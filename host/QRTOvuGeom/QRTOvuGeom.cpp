#include "QRTOvuGeom.h"

#include "QRTOvuBasicUtils.h"
#include "cls_MetadataRegistrar.h"
#include "gsl_ModelSegment.h"
#include "typ_ArchCompTable.h"

#include <iterator>

namespace
{
constexpr unsigned short moduleNumber = 40;

constexpr typ_Entry types[] = {
    {0, 1, nullptr},
    {7, 1, "gsl_Dot"},
    {7, 1, "gsl_ModelSegment"},
};

int initializeCount = 0;
} // namespace

void QRTOvuGeom_initialize(int& tally)
{
    if (initializeCount++ != 0)
        return;
    ++tally;
    QRTOvuBasicUtils_initialize(tally);
    typ_ArchCompTable::InsertEntry(moduleNumber, typ_ArchCompEntry(types, std::size(types)));
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(gsl_Dot::InitializeMetadata);
    registrar.initClassMetadata(gsl_ModelSegment::InitializeMetadata);
}

void QRTOvuGeom_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    QRTOvuBasicUtils_finalize(tally);
}
