#include "QRTVdbCoreGeom.h"

#include "QRTShpCore.h"
#include "cls_MetadataRegistrar.h"
#include "ddr_Model.h"
#include "ddr_ModelShortcut.h"
#include "mdl_PropertyTable.h"
#include "mdl_Repository.h"
#include "rgnC_RegionPair.h"
#include "typ_ArchCompTable.h"

#include <iterator>

namespace
{
constexpr unsigned short modelModuleNumber = 10;

/// The rows without a name are free.
constexpr typ_Entry modelTypes[] = {
    {0, 1, nullptr},
    {7, 0xA000D, "mdl_Repository"},
    {7, 1, "ddr_Model"},
    {7, 1, "mdl_PropertyTable"},
    {7, 1, "ddr_ModelShortcut"},
    {0, 1, nullptr},
    {0, 1, nullptr},
    {0, 1, nullptr},
    {0, 1, nullptr},
    {0, 1, nullptr},
    {0, 1, nullptr},
    {0, 1, nullptr},
    {0, 1, nullptr},
    {7, 1, "mdl_Extension"},
};

constexpr unsigned short regionModuleNumber = 42;

constexpr typ_Entry regionTypes[] = {
    {0, 1, nullptr},
    {7, 1, "rgnC_Region"},
    {7, 1, "rgnC_RegionPair"},
};

int initializeCount = 0;
} // namespace

void QRTVdbCoreGeom_initialize(int& tally)
{
    if (initializeCount++ != 0)
        return;
    ++tally;
    QRTShpCore_initialize(tally);
    typ_ArchCompTable::InsertEntry(modelModuleNumber, typ_ArchCompEntry(modelTypes, std::size(modelTypes)));
    typ_ArchCompTable::InsertEntry(regionModuleNumber,
                                   typ_ArchCompEntry(regionTypes, std::size(regionTypes)));
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(mdl_Extension::InitializeMetadata);
    registrar.initClassMetadata(mdl_Repository::InitializeMetadata);
    registrar.initClassMetadata(rgnC_Region::InitializeMetadata);
    registrar.initClassMetadata(rgnC_RegionPair::InitializeMetadata);
    registrar.initClassMetadata(mdl_PropertyTable::InitializeMetadata);
    registrar.initClassMetadata(ddr_Model::InitializeMetadata);
    registrar.initClassMetadata(ddr_Shortcut<ddr_Model>::InitializeMetadata);
}

void QRTVdbCoreGeom_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    QRTShpCore_finalize(tally);
}
