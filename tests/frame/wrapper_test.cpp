#include "DDB_DeepCopyPtr.h"
#include "LibraryEnvironment.h"
#include "kamC_AmplitudeContainer.h"
#include "kamC_Decay.h"
#include "kamC_Tabular.h"
#include "rom_StoreReader.h"
#include "rom_StoreWriter.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

namespace
{

using AmplitudeHandle = cow_ArrayCOW<kamC_Amplitude, cow_Virtual<kamC_Amplitude>>;
using AmplitudeMap = cls_xcBtree<cow_String, AmplitudeHandle, kamC_Amplitude>;
using AmplitudeList = cls_xc1DArrayList<AmplitudeHandle, kamC_Amplitude>;

TEST(Wrapper, TakesANewIdentityWithANewValue)
{
    AmplitudeMap map;
    const cls_Uid first = map.Uid();
    EXPECT_FALSE(first.IsBlank());
    map = cow_Btree<cow_String, AmplitudeHandle>();
    EXPECT_NE(first, map.Uid());

    AmplitudeList list;
    const cls_Uid firstOfList = list.Uid();
    list = cow_List<AmplitudeHandle>();
    EXPECT_NE(firstOfList, list.Uid());
}

TEST(Wrapper, LeavesEverythingAsItIsWhenAssignedToItself)
{
    AmplitudeMap map;
    map.InsertUnlessMember("a", AmplitudeHandle(new kamC_Decay));
    const cls_Uid uid = map.Uid();
    AmplitudeMap& same = map;
    map = same;
    EXPECT_EQ(uid, map.Uid());
    EXPECT_EQ(1, map.Count());
    map = static_cast<const cow_Btree<cow_String, AmplitudeHandle>&>(same);
    EXPECT_EQ(uid, map.Uid());
    EXPECT_EQ(1, map.Count());
}

TEST(Wrapper, KeepsItsIdentityInACopy)
{
    AmplitudeList list;
    list.Append(AmplitudeHandle(new kamC_Decay));
    const AmplitudeList copy(list);
    EXPECT_EQ(list.Uid(), copy.Uid());
    EXPECT_EQ(1, copy.Count());
}

TEST(Repository, KeepsAnEmptyHandleThroughTheStore)
{
    LibraryEnvironment::Require();
    kamC_AmplitudeContainer container;
    EXPECT_TRUE(container.Insert("empty", AmplitudeHandle()));
    EXPECT_TRUE(container.Insert("full", new kamC_Decay));
    const std::unique_ptr<kamC_AmplitudeContainer> read(container.DeepCopy());
    EXPECT_EQ(2, read->Size());
    EXPECT_TRUE(read->IsMember("empty"));
    EXPECT_EQ(nullptr, read->ConstGet("empty"));
    ASSERT_NE(nullptr, read->ConstGet("full"));
    EXPECT_EQ(kamC_Decay::TypeId(), read->ConstGet("full")->DynTypeId());
}

TEST(Repository, KeepsSharingThroughTheStore)
{
    LibraryEnvironment::Require();
    kamC_AmplitudeContainer container;
    const AmplitudeHandle shared(new kamC_Tabular);
    EXPECT_TRUE(container.Insert("one", shared));
    EXPECT_TRUE(container.Insert("two", shared));
    const std::unique_ptr<kamC_AmplitudeContainer> read(container.DeepCopy());
    EXPECT_EQ(read->ConstGet("one"), read->ConstGet("two"));
    EXPECT_NE(container.ConstGet("one"), read->ConstGet("one"));
    EXPECT_EQ(2, read->ConstGetMap().ConstFind("one")->ShareCount());
}

/// The container as a store has it: written to a file under one name and read from it again.
kamC_AmplitudeContainer ThroughAFile(const kamC_AmplitudeContainer& container)
{
    const std::string path = testing::TempDir() + "wrapper_test.ovr";
    rom_StoreWriter writer(path.c_str());
    writer.WriteRoot("amplitudes", kamC_AmplitudeContainer::TypeId(),
                     static_cast<const mdl_Extension*>(&container));
    writer.Finish();
    rom_StoreReader reader(path.c_str());
    const cls_ErasedHandle& root = reader.ReadRoot("amplitudes", kamC_AmplitudeContainer::TypeId());
    const cow_COW<mdl_Extension, cow_Virtual<mdl_Extension>> handle =
        cow_Restored<mdl_Extension, cow_Virtual<mdl_Extension>>(root);
    std::remove(path.c_str());
    return static_cast<const kamC_AmplitudeContainer&>(*handle);
}

double InitialOf(const kamC_AmplitudeContainer& amplitudes, const char* name)
{
    return static_cast<const kamC_Decay*>(amplitudes.ConstGet(name))->initial;
}

cls_Uid UidOf(const kamC_AmplitudeContainer& amplitudes, const char* name)
{
    return static_cast<const kamC_Decay*>(amplitudes.ConstGet(name))->Uid();
}

TEST(Repository, KeepsTwoObjectsOfOneIdentity)
{
    LibraryEnvironment::Require();
    kamC_Decay decay;
    decay.initial = 1.0;
    kamC_AmplitudeContainer container;
    EXPECT_TRUE(container.Insert("one", decay));
    decay.initial = 2.0;
    EXPECT_TRUE(container.Insert("two", decay));
    EXPECT_EQ(UidOf(container, "one"), UidOf(container, "two"));

    const kamC_AmplitudeContainer read = ThroughAFile(container);
    EXPECT_EQ(1.0, InitialOf(read, "one"));
    EXPECT_EQ(2.0, InitialOf(read, "two"));
    EXPECT_NE(UidOf(read, "one"), UidOf(read, "two")) << "the second gets a fresh identity";
    EXPECT_EQ(UidOf(container, "one"), UidOf(read, "one"));

    const std::unique_ptr<kamC_AmplitudeContainer> copy(container.DeepCopy());
    EXPECT_EQ(2.0, InitialOf(*copy, "two"));
    EXPECT_EQ(UidOf(*copy, "one"), UidOf(*copy, "two")) << "a copy keeps identities as they are";
}

TEST(Optional, StaysEmptyThroughTheStore)
{
    LibraryEnvironment::Require();
    kamC_Tabular tabular;
    const std::unique_ptr<kamC_Tabular> without(tabular.DeepCopy());
    EXPECT_TRUE(without->baselineCorrection.IsNull());
    EXPECT_EQ(1, without->baselineCorrection.ShareCount());
    kamC_BaselineCorrection correction;
    correction.intervals.Append(1.5);
    tabular.baselineCorrection = kamC_BaselineCorrectionHandle(correction);
    const std::unique_ptr<kamC_Tabular> with(tabular.DeepCopy());
    ASSERT_FALSE(with->baselineCorrection.IsNull());
    EXPECT_EQ(1, with->baselineCorrection.ShareCount());
    EXPECT_EQ(1.5, with->baselineCorrection->intervals[0]);
    EXPECT_NE(tabular.baselineCorrection.ConstGet(), with->baselineCorrection.ConstGet());
}

} // namespace
