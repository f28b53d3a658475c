#include "QRTOvuBasicUtils.h"

#include "QRTRomCore.h"
#include "cls_MetadataRegistrar.h"
#include "omu_PrimEnumBase.h"
#include "typ_ArchCompTable.h"

#include <gtest/gtest.h>

namespace
{
TEST(QRTOvuBasicUtils, TheFirstAndTheLastCallMoveTheTally)
{
    int below = 0;
    QRTRomCore_initialize(below);
    int tally = 0;
    QRTOvuBasicUtils_initialize(tally);
    QRTOvuBasicUtils_initialize(tally);
    EXPECT_EQ(tally, 1);
    QRTOvuBasicUtils_finalize(tally);
    EXPECT_EQ(tally, 1);
    QRTOvuBasicUtils_finalize(tally);
    EXPECT_EQ(tally, 0);
    QRTRomCore_finalize(below);
    EXPECT_EQ(below, 0);
}

TEST(QRTOvuBasicUtils, EntersItsTypes)
{
    EXPECT_STREQ(typ_ArchCompTable::GetName(omu_PrimEnumBase::TypeId()), "");
    int tally = 0;
    QRTOvuBasicUtils_initialize(tally);
    EXPECT_STREQ(typ_ArchCompTable::GetName(omu_PrimEnumBase::TypeId()), "omu_PrimEnumBase");
    EXPECT_TRUE(typ_ArchCompTable::IsParent(omu_Primitive::TypeId(), omu_PrimEnumBase::TypeId()));
    QRTOvuBasicUtils_finalize(tally);
    EXPECT_STREQ(typ_ArchCompTable::GetName(omu_PrimEnumBase::TypeId()), "");
}

/// The library enters its classes into the registrar that it sees, and this program asks the one that it
/// sees.
TEST(QRTOvuBasicUtils, SharesItsRegistrarWithTheProgram)
{
    int tally = 0;
    QRTOvuBasicUtils_initialize(tally);
    cls_MetadataRegistrar* registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    const cls_ClassMetadata* metadata = registrar->Find(omu_PrimEnumBase::TypeId());
    ASSERT_NE(metadata, nullptr);
    EXPECT_EQ(metadata->Name(), "omu_PrimEnumBase");
    EXPECT_NE(registrar->Find(omu_Primitive::TypeId()), nullptr);
    QRTOvuBasicUtils_finalize(tally);
    EXPECT_EQ(tally, 0);
    EXPECT_EQ(omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(omu_PrimEnumBase::TypeId()), nullptr);
}
} // namespace
