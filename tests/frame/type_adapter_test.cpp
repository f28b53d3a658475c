// What the metadata of a class does with its objects, and what an object does in the host's hands.

#include "LibraryEnvironment.h"
#include "RowRecorder.h"
#include "VirtualSlot.h"
#include "kamC_Decay.h"
#include "kamC_Tabular.h"
#include "mem_Allocation.h"
#include "nex_Exceptions.h"

#include <gtest/gtest.h>

namespace
{

const cls_ClassMetadata& MetadataOf(unsigned classId)
{
    return *omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(classId);
}

/// The message with which `act` refuses a command's value.
template <class Act>
std::string Refusal(Act act)
{
    try
    {
        act();
    }
    catch (const nex_CmdException<atr_String, 2>& exception)
    {
        return exception.what();
    }
    return "nothing thrown";
}

TEST(cls_TypeAdapter, HasItsVirtualOperationsInOrder)
{
    // Two slots of the destructor come first.
    EXPECT_EQ(2u, VirtualSlotOf(&cls_ClassMetadata::DBWrite));
    EXPECT_EQ(3u, VirtualSlotOf(&cls_ClassMetadata::Delete));
    EXPECT_EQ(4u, VirtualSlotOf(&cls_ClassMetadata::DeleteCow));
    EXPECT_EQ(5u, VirtualSlotOf(&cls_ClassMetadata::Ctor));
}

TEST(cls_TypeAdapter, BuildsWritesAndDeletesObjects)
{
    const cls_ClassMetadata& metadata = MetadataOf(kamC_Decay::TypeId());
    kamC_Decay decay;
    decay.decayTime = 2.5;
    const std::shared_ptr<RecordedRow> row = RecordRow(decay);
    const std::size_t blocks = mem_BlocksInUse();
    void* built = nullptr;
    {
        const cls_ReadVisitor visitor(new row_recorder::Reader(row));
        built = metadata.Ctor(visitor);
    }
    ASSERT_NE(nullptr, built);
    EXPECT_GT(mem_BlocksInUse(), blocks);
    EXPECT_EQ(2.5, static_cast<kamC_Decay*>(static_cast<kamC_Amplitude*>(built))->decayTime);

    const auto written = std::make_shared<RecordedRow>();
    {
        const cls_WriteVisitor visitor(new row_recorder::Writer(written, false));
        metadata.DBWrite(built, visitor);
    }
    EXPECT_EQ(kamC_Decay::TypeId(), written->classId);
    EXPECT_EQ(row->uid, written->uid);
    EXPECT_EQ(row->fields.size(), written->fields.size());
    metadata.Delete(built);
    EXPECT_EQ(blocks, mem_BlocksInUse());
}

TEST(cls_TypeAdapter, DeletesNothingOnNull)
{
    const std::size_t blocks = mem_BlocksInUse();
    MetadataOf(kamC_Decay::TypeId()).Delete(nullptr);
    MetadataOf(kamC_Amplitude::TypeId()).Delete(nullptr);
    EXPECT_EQ(blocks, mem_BlocksInUse());
}

TEST(cls_TypeAdapter, DoesNotBuildAnAbstractClass)
{
    const cls_ReadVisitor visitor(new row_recorder::Reader(RecordRow(kamC_Decay())->base));
    EXPECT_EQ(nullptr, MetadataOf(kamC_Amplitude::TypeId()).Ctor(visitor));
}

TEST(cls_TypeAdapter, GivesTheStorageBackWhenTheRecordIsRefused)
{
    const std::shared_ptr<RecordedRow> row = RecordRow(kamC_Tabular());
    row->base->fields.at(0).value = std::string("step");
    const std::size_t blocks = mem_BlocksInUse();
    EXPECT_EQ("omu_PrimEnum(const cow_String&) - str not allowed: step  Permissible: STEP, TOTAL",
              Refusal(
                  [&]
                  {
                      const cls_ReadVisitor visitor(new row_recorder::Reader(row));
                      MetadataOf(kamC_Tabular::TypeId()).Ctor(visitor);
                  }));
    EXPECT_EQ(blocks, mem_BlocksInUse());
}

TEST(PersistentClass, WritesItsBaseUnderAClassAndAnIdentityOfItsOwn)
{
    const kamC_Decay decay;
    const std::shared_ptr<RecordedRow> row = RecordRow(decay);
    EXPECT_EQ(kamC_Decay::TypeId(), row->classId);
    EXPECT_EQ(decay.Uid(), row->uid);
    ASSERT_NE(nullptr, row->base);
    EXPECT_EQ(kamC_Amplitude::TypeId(), row->base->classId);
    EXPECT_EQ(static_cast<const kamC_Amplitude&>(decay).Uid(), row->base->uid);
    EXPECT_NE(row->uid, row->base->uid);
}

TEST(PersistentClass, WritesNothingOfARowThatIsWritten)
{
    const std::shared_ptr<RecordedRow> row = RecordRow(kamC_Decay(), true);
    EXPECT_EQ(kamC_Decay::TypeId(), row->classId) << "the row was asked for";
    EXPECT_TRUE(row->fields.empty());
    EXPECT_EQ(nullptr, row->base);
}

TEST(PersistentClass, IsAskedForItsEnumerationsWhenItIsWrittenAndNotWhenTheyAreSet)
{
    kamC_Decay decay;
    decay.timeSpan = static_cast<kamC_Amplitude::TimeSpanEnm>(7);
    EXPECT_EQ("omu_PrimEnum(ENUMTYPE) - Enum value not allowed: 7  Permissible: STEP, TOTAL",
              Refusal([&] { RecordRow(decay); }));
}

} // namespace
