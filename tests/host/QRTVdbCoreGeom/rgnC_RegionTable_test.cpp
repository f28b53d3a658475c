#include "rgnC_RegionTable.h"

#include "MemoryRow.h"
#include "QRTVdbCoreGeom.h"
#include "TemporaryFolder.h"
#include "cls_MetadataRegistrar.h"
#include "dbc_DatabaseConverter.h"
#include "dbc_OldClassRegistrar.h"
#include "dbc_Upgrade.h"
#include "nex_Exceptions.h"
#include "rfm_Cursor.h"
#include "rfm_Database.h"
#include "rfm_Inserter.h"
#include "rgnC_Region.h"
#include "rom_ClassPlan.h"

#include <gtest/gtest.h>

namespace
{
constexpr unsigned coupledId = 0xFD0021;
constexpr int oldVersion = 203;
constexpr int newVersion = 205;

void Describe(cls_ClassMetadata& metadata)
{
    metadata.AddAttribute(cls_FieldHandle(0, "number"), cls_TypeInt, cls_RootId, cls_CollectionNone);
    if (metadata.Version() == newVersion)
        metadata.AddAttribute(cls_FieldHandle(1, "nodes"), cls_TypeObject, rgnC_Region::TypeId(),
                              cls_CollectionNone);
}

void* AddNodes(const dbc_Row&, dbc_Row& output, int)
{
    rgnC_RegionTable::AddNewRegion(output, "nodes");
    return nullptr;
}

class OldCoupled final : public dbc_OldClassVersion
{
public:
    void InitializeMetadata(cls_ClassRegistrar& registrar) override
    {
        Describe(*registrar.CreateClassMD("tst_Coupled", coupledId, oldVersion, nullptr, cls_RootId));
    }
    void SchemaChanges(dbc_DatabaseConverter& converter) override
    {
        converter.GetConverter(newVersion)
            .Upgrade("tst_Coupled", coupledId, oldVersion)
            .BindConversionFunction(AddNodes, "AddNodes");
    }
};

/// A release with a class that has regions now, as long as it lives.
class Release
{
public:
    Release()
    {
        QRTVdbCoreGeom_initialize(tally);
        omi_Singleton<cls_MetadataRegistrar>::Instance()->initClassMetadata(
            [](cls_ClassRegistrar& registrar) {
                Describe(*registrar.CreateClassMD("tst_Coupled", coupledId, newVersion, nullptr, cls_RootId));
            });
        omi_Singleton<dbc_OldClassRegistrar>::Instance()->Register(
            cow_NewHolder<dbc_OldClassVersion>(new OldCoupled), 4);
    }
    Release(const Release&) = delete;
    Release& operator=(const Release&) = delete;
    ~Release()
    {
        omi_Singleton<dbc_OldClassRegistrar>::Finalize();
        const auto& classes = omi_Singleton<cls_MetadataRegistrar>::Instance()->Classes();
        const_cast<cls_ClassRegistrar&>(classes).DeleteClass("tst_Coupled", coupledId);
        QRTVdbCoreGeom_finalize(tally);
    }

private:
    int tally = 0;
};

/// An old store with so many rows.
void MakeOldStore(const std::string& path, std::int64_t rows)
{
    cls_ClassMetadata metadata("tst_Coupled", coupledId, oldVersion, nullptr, cls_RootId);
    Describe(metadata);
    const std::unique_ptr<rom_ClassPlan> plan = rom_ClassPlan::Of(metadata);
    rfm_Database database(path.c_str(), rfm_Access::Create);
    database.CreateTable(plan->Table());
    {
        rfm_Inserter inserter(database, rfm_TableForm::Of(plan->Table()));
        for (std::int64_t oid = 1; oid <= rows; ++oid)
        {
            const rfm_Cell cells[] = {rfm_Cell::Blob("0123456789abcdef", 16), rfm_Cell::Integer(oid)};
            inserter.Insert(oid, cells);
        }
        inserter.Flush();
    }
    database.Commit();
}

TEST(rgnC_RegionTable, EachRowGetsAnEmptyRegionOfItsOwn)
{
    const TemporaryFolder folder;
    const Release release;
    MakeOldStore(folder / "old", 3);
    dbc_Upgrade((folder / "old").c_str()).Run((folder / "new").c_str());
    rfm_Database store((folder / "new").c_str(), rfm_Access::Read);
    rfm_Cursor coupled(store, rfm_TableForm::Of(*store.FindTable(coupledId)));
    rfm_Cursor regions(store, rfm_TableForm::Of(*store.FindTable(rgnC_Region::TypeId())));
    for (std::int64_t oid = 1; oid <= 3; ++oid)
    {
        ASSERT_TRUE(coupled.Seek(oid));
        EXPECT_EQ(rgnC_Region::TypeId(), coupled.Cells()[2].integer);
        ASSERT_TRUE(regions.Seek(coupled.Cells()[3].integer));
        EXPECT_EQ(oid, regions.Key());
        EXPECT_EQ("", regions.Cells()[1].View());
        EXPECT_EQ(0, regions.Cells()[2].integer);
        EXPECT_EQ(0, regions.Cells()[3].integer);
    }
    EXPECT_FALSE(regions.Next());
}

TEST(rgnC_RegionTable, NeedsAnUpgrade)
{
    using Refusal = nex_CmdException<atr_String, 2>;
    MemoryRow row;
    EXPECT_THROW(rgnC_RegionTable::AddNewRegion(row, "nodes"), Refusal);
    EXPECT_TRUE(row.All().empty());
}
} // namespace
