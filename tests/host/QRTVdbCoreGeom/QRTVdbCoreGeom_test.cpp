#include "QRTVdbCoreGeom.h"

#include "QRTShpCore.h"
#include "cls_MetadataRegistrar.h"
#include "ddr_Model.h"
#include "dtmC_DatumRef.h"
#include "gsl_ModelSegment.h"
#include "mdl_PropertyTable.h"
#include "mdl_Repository.h"
#include "rgnC_RegionPair.h"
#include "typ_ArchCompTable.h"

#include <gtest/gtest.h>

namespace
{
struct HostClass
{
    unsigned classId;
    const char* name;
};

const HostClass hostClasses[] = {
    {0x280001, "gsl_Dot"},     {0x280002, "gsl_ModelSegment"}, {0x290001, "dtmC_DatumRef"},
    {0x2A0001, "rgnC_Region"}, {0x2A0002, "rgnC_RegionPair"},  {0xA0003, "mdl_PropertyTable"},
    {0xA0002, "ddr_Model"},
};

/// Brings the library up for a test.
class QRTVdbCoreGeomTest : public testing::Test
{
protected:
    QRTVdbCoreGeomTest() { QRTVdbCoreGeom_initialize(tally); }
    ~QRTVdbCoreGeomTest() override { QRTVdbCoreGeom_finalize(tally); }

    int tally = 0;
};

TEST(QRTVdbCoreGeom, TallyMovesOnTheFirstInitializeAndTheLastFinalize)
{
    int tally = 0;
    QRTVdbCoreGeom_initialize(tally);
    const int up = tally;
    EXPECT_GT(up, 0);
    QRTVdbCoreGeom_initialize(tally);
    EXPECT_EQ(tally, up);
    QRTVdbCoreGeom_finalize(tally);
    EXPECT_EQ(tally, up);
    QRTVdbCoreGeom_finalize(tally);
    EXPECT_EQ(tally, 0);
}

TEST(QRTVdbCoreGeom, AddsOneToWhatStandsUpAlready)
{
    int tally = 0;
    QRTShpCore_initialize(tally);
    const int below = tally;
    QRTVdbCoreGeom_initialize(tally);
    EXPECT_EQ(tally, below + 1);
    QRTVdbCoreGeom_finalize(tally);
    EXPECT_EQ(tally, below);
    QRTShpCore_finalize(tally);
    EXPECT_EQ(tally, 0);
}

TEST_F(QRTVdbCoreGeomTest, EveryClassHasItsNameInTheTypeTable)
{
    for (const HostClass& each : hostClasses)
        EXPECT_STREQ(typ_ArchCompTable::GetName(each.classId), each.name);
    EXPECT_TRUE(typ_ArchCompTable::IsParent(mdl_Extension::TypeId(), mdl_Repository::TypeId()));
}

TEST_F(QRTVdbCoreGeomTest, EveryClassIsDescribedAndCanBeBuilt)
{
    for (const HostClass& each : hostClasses)
    {
        const cls_ClassMetadata* metadata =
            omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(each.classId);
        ASSERT_NE(metadata, nullptr) << each.name;
        EXPECT_EQ(metadata->Name(), each.name);
        EXPECT_EQ(metadata->ClassId(), each.classId) << each.name;
        EXPECT_EQ(metadata->BaseClassId(), cls_RootId) << each.name;
        EXPECT_TRUE(metadata->IsConcrete()) << each.name;
        EXPECT_NE(metadata->Dtor(), nullptr) << each.name;
    }
}

TEST_F(QRTVdbCoreGeomTest, TheBasesOfContainersAreDescribed)
{
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    const cls_ClassMetadata* extension = registrar.Find(mdl_Extension::TypeId());
    const cls_ClassMetadata* repository = registrar.Find(mdl_Repository::TypeId());
    ASSERT_NE(extension, nullptr);
    ASSERT_NE(repository, nullptr);
    EXPECT_EQ(repository->BaseClassId(), extension->ClassId());
    EXPECT_FALSE(extension->IsConcrete());
    EXPECT_FALSE(repository->IsConcrete());
}

TEST_F(QRTVdbCoreGeomTest, ClassesAgreeWithTheirIds)
{
    EXPECT_EQ(gsl_Dot::TypeId(), 0x280001u);
    EXPECT_EQ(gsl_ModelSegment::TypeId(), 0x280002u);
    EXPECT_EQ(dtmC_DatumRef::TypeId(), 0x290001u);
    EXPECT_EQ(rgnC_Region::TypeId(), 0x2A0001u);
    EXPECT_EQ(rgnC_RegionPair::TypeId(), 0x2A0002u);
    EXPECT_EQ(mdl_PropertyTable::TypeId(), 0xA0003u);
    EXPECT_EQ(ddr_Model::TypeId(), 0xA0002u);
}

TEST_F(QRTVdbCoreGeomTest, TheModelDescribesItsSlotsInStoredOrder)
{
    const cls_ClassMetadata* metadata =
        omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(ddr_Model::TypeId());
    ASSERT_NE(metadata, nullptr);
    ASSERT_EQ(metadata->Attributes().size(), ddr_Model::SlotCount);
    int index = 0;
    for (const cls_AttributeMetadata& attribute : metadata->Attributes())
    {
        EXPECT_EQ(attribute.field.Index(), index);
        EXPECT_EQ(attribute.field.Name(), ddr_Model::Slots()[static_cast<std::size_t>(index)]);
        EXPECT_EQ(attribute.type, cls_TypeObject);
        EXPECT_EQ(attribute.typeId, mdl_Extension::TypeId());
        EXPECT_EQ(attribute.collectionType, cls_CollectionNone);
        ++index;
    }
}
} // namespace
