#include "QRTVdbCoreGeom.h"
#include "RowRecorder.h"
#include "TestContainer.h"
#include "mdl_PropertyTable.h"
#include "nex_Exceptions.h"
#include "rgnC_RegionPair.h"

#include <gtest/gtest.h>
#include <limits>

namespace
{
constexpr double blank = std::numeric_limits<double>::quiet_NaN();

/// Brings the library up for a test, and leaves no registration behind.
class RecordTest : public testing::Test
{
protected:
    RecordTest()
    {
        QRTVdbCoreGeom_initialize(tally);
        DescribeTestContainers();
    }

    ~RecordTest() override
    {
        ddr_Model::UnRegisterAmplitudeContainer();
        ddr_Model::UnRegisterFilterContainer();
        QRTVdbCoreGeom_finalize(tally);
    }

    int tally = 0;
};

const RecordedRow& Nested(const RecordedRow& row, std::size_t field)
{
    return *std::get<std::shared_ptr<RecordedRow>>(row.fields.at(field).value);
}

cow_2DArray<double> SomeData()
{
    cow_2DArray<double> data(2, 3);
    data.Set(0, 1, -0.0);
    data.Set(1, 0, blank);
    data.Set(1, 2, std::numeric_limits<double>::infinity());
    return data;
}

TEST_F(RecordTest, ARegionComesBackAsItWas)
{
    for (const rgnC_Region& region :
         {rgnC_Region(), rgnC_Region("Set-1"), rgnC_Region("Surf-1", -1, std::numeric_limits<int>::max())})
    {
        const auto row = RecordRow(region);
        EXPECT_EQ(row->classId, rgnC_Region::TypeId());
        EXPECT_EQ(CompareWithDescription(*row), "");
        const rgnC_Region stored = ReadRow<rgnC_Region>(row);
        EXPECT_EQ(stored, region);
        EXPECT_EQ(RecordRow(stored)->uid, row->uid);
    }
}

TEST_F(RecordTest, APairComesBackAsItWas)
{
    const rgnC_RegionPair pair(rgnC_Region("Set-1", 1, 2), rgnC_Region("Set-2", 3, 4), false, true);
    const auto row = RecordRow(pair);
    EXPECT_EQ(row->classId, rgnC_RegionPair::TypeId());
    EXPECT_EQ(CompareWithDescription(*row), "");
    const rgnC_RegionPair stored = ReadRow<rgnC_RegionPair>(row);
    EXPECT_EQ(stored, pair);
    EXPECT_EQ(RecordRow(stored)->uid, row->uid);
}

TEST_F(RecordTest, TheEndsOfAPairHaveRowsOfTheirOwn)
{
    const rgnC_Region region("Set-1");
    const auto row = RecordRow(rgnC_RegionPair(region, region));
    EXPECT_EQ(Nested(*row, 0).classId, rgnC_Region::TypeId());
    EXPECT_EQ(Nested(*row, 0).uid, RecordRow(region)->uid);
    EXPECT_EQ(Nested(*row, 1).uid, RecordRow(region)->uid);
    EXPECT_NE(row->uid, RecordRow(region)->uid);
}

TEST_F(RecordTest, APropertyTableComesBackAsItWas)
{
    for (const cow_2DArray<double>& data : {cow_2DArray<double>(), SomeData()})
    {
        const mdl_PropertyTable table(data);
        const auto row = RecordRow(table);
        EXPECT_EQ(row->classId, mdl_PropertyTable::TypeId());
        EXPECT_EQ(CompareWithDescription(*row), "");
        const mdl_PropertyTable stored = ReadRow<mdl_PropertyTable>(row);
        EXPECT_TRUE(stored.ConstGetData().IdenticalTo(data));
        EXPECT_EQ(RecordRow(stored)->uid, row->uid);
        EXPECT_EQ(Nested(*RecordRow(stored), 0).uid, Nested(*row, 0).uid);
    }
}

TEST_F(RecordTest, NewContentOfAPropertyTableTakesANewRow)
{
    mdl_PropertyTable table(SomeData());
    const auto before = RecordRow(table);
    table.SetData(cow_2DArray<double>(1, 1));
    const auto after = RecordRow(table);
    EXPECT_EQ(after->uid, before->uid);
    EXPECT_NE(Nested(*after, 0).uid, Nested(*before, 0).uid);
}

TEST_F(RecordTest, SortingTakesANewRowOnlyIfItMovesSomething)
{
    cow_2DArray<double> data(2, 1);
    data.Set(0, 0, 1.0);
    mdl_PropertyTable table(data);
    const auto before = RecordRow(table);
    table.Sort(0);
    EXPECT_EQ(Nested(*RecordRow(table), 0).uid, Nested(*before, 0).uid);
    table.Sort(1);
    EXPECT_NE(Nested(*RecordRow(table), 0).uid, Nested(*before, 0).uid);
}

TEST_F(RecordTest, WhatIsWrittenIsNotWrittenAgain)
{
    EXPECT_TRUE(RecordRow(rgnC_Region("Set-1"), true)->fields.empty());
    EXPECT_TRUE(RecordRow(rgnC_RegionPair(), true)->fields.empty());
    EXPECT_TRUE(RecordRow(mdl_PropertyTable(SomeData()), true)->fields.empty());
    EXPECT_TRUE(RecordRow(ddr_Model(), true)->fields.empty());
}

TEST_F(RecordTest, AModelComesBackWithItsContainers)
{
    ddr_Model::RegisterAmplitudeContainer(TestContainer(3));
    ddr_Model::RegisterFilterContainer(TestContainer(4));
    const ddr_Model model;
    const auto row = RecordRow(model);
    EXPECT_EQ(row->classId, ddr_Model::TypeId());
    EXPECT_EQ(CompareWithDescription(*row), "");
    const ddr_Model stored = ReadRow<ddr_Model>(row);
    EXPECT_EQ(stored.ConstGetAmplitudes()->Size(), 3);
    EXPECT_EQ(stored.ConstGetFilters()->Size(), 4);
    EXPECT_EQ(stored.ConstGetMaterials(), nullptr);
    EXPECT_NE(stored.ConstGetAmplitudes(), model.ConstGetAmplitudes());
    EXPECT_EQ(RecordRow(stored)->uid, row->uid);
}

TEST_F(RecordTest, ASlotThatIsAbsentTakesTheContainerRegisteredNow)
{
    const auto row = RecordRow(ddr_Model());
    ddr_Model::RegisterFilterContainer(TestContainer(4));
    const ddr_Model stored = ReadRow<ddr_Model>(row);
    EXPECT_EQ(stored.ConstGetAmplitudes(), nullptr);
    ASSERT_NE(stored.ConstGetFilters(), nullptr);
    EXPECT_EQ(stored.ConstGetFilters(), ddr_Model().ConstGetFilters());
}

TEST_F(RecordTest, AStoredContainerStaysWhereNothingIsRegistered)
{
    ddr_Model::RegisterFilterContainer(TestContainer(4));
    const auto row = RecordRow(ddr_Model());
    ddr_Model::UnRegisterFilterContainer();
    EXPECT_EQ(ReadRow<ddr_Model>(row).ConstGetFilters()->Size(), 4);
}

TEST_F(RecordTest, AStoredContainerOfADerivedClassIsTaken)
{
    ddr_Model::RegisterFilterContainer(OtherContainer(4));
    const auto row = RecordRow(ddr_Model());
    ddr_Model::RegisterFilterContainer(TestContainer(0));
    EXPECT_EQ(ReadRow<ddr_Model>(row).ConstGetFilters()->Size(), 4);
}

TEST_F(RecordTest, AStoredContainerOfAnotherClassIsRefused)
{
    ddr_Model::RegisterFilterContainer(TestContainer(4));
    const auto row = RecordRow(ddr_Model());
    ddr_Model::RegisterFilterContainer(OtherContainer(0));
    try
    {
        ReadRow<ddr_Model>(row);
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const nex_CmdException<atr_String, 2>& error)
    {
        EXPECT_STREQ(error.what(),
                     "Expected an object of class OtherContainer (0x7FFF0003), found one of class "
                     "TestContainer (0x7FFF0002).");
    }
}
} // namespace
