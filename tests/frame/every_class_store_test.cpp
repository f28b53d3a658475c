// What a store file does with objects of every class.

#include "EveryClass.h"
#include "TemporaryFolder.h"
#include "rfm_Cursor.h"
#include "rfm_Database.h"
#include "rom_StoreReader.h"
#include "rom_StoreWriter.h"

#include <limits>
#include <map>

namespace
{

class EveryStoredClass : public EveryConcreteClass
{
protected:
    static constexpr std::uint32_t storedSeeds = 3;

    void Save(const std::vector<const void*>& objects) const
    {
        rom_StoreWriter writer(path.c_str());
        for (std::size_t i = 0; i < objects.size(); ++i)
            writer.WriteRoot(RootName(i), description.Id(), objects[i]);
        writer.Finish();
    }

    static cow_String RootName(std::size_t position)
    {
        return ("object " + std::to_string(position)).c_str();
    }

    const void* Read(rom_StoreReader& reader, std::size_t position) const
    {
        return cow_ErasedReferent(reader.ReadRoot(RootName(position), description.Id()));
    }

    /// Count of rows in each table of the store.
    std::map<std::string, int> RowCounts() const
    {
        rfm_Database database(path.c_str(), rfm_Access::Read);
        std::map<std::string, int> counts;
        for (const rfm_TableInfo& table : database.Tables())
        {
            rfm_Cursor cursor(database, rfm_TableForm::Of(table));
            int& count = counts[table.name.CString()];
            for (bool there = cursor.SeekFrom(std::numeric_limits<std::int64_t>::min()); there;
                 there = cursor.Next())
                ++count;
        }
        return counts;
    }

    TemporaryFolder folder;
    std::string path = folder / "store";
};

TEST_P(EveryStoredClass, IsReadBackAsItWasWritten)
{
    for (std::uint32_t seed = 0; seed < storedSeeds; ++seed)
    {
        cls_Value value;
        const cls_AnyObject object = RandomObject(seed, value);
        Save({object.Get()});
        rom_StoreReader reader(path.c_str());
        const void* read = Read(reader, 0);
        ASSERT_NE(nullptr, read);
        EXPECT_EQ(value, description.Export(read)) << "seed " << seed;
        EXPECT_EQ(UidsOf(description, object.Get()), UidsOf(description, read)) << "seed " << seed;
    }
}

TEST_P(EveryStoredClass, IsWrittenOnceWhenItIsVisitedTwice)
{
    cls_Value value;
    const cls_AnyObject object = RandomObject(7, value);
    Save({object.Get()});
    const std::map<std::string, int> once = RowCounts();
    Save({object.Get(), object.Get()});
    EXPECT_EQ(once, RowCounts());
    rom_StoreReader reader(path.c_str());
    const void* first = Read(reader, 0);
    EXPECT_EQ(first, Read(reader, 1)) << "one row gives one object";
}

TEST_P(EveryStoredClass, IsKeptBesideADifferentObjectOfTheSameIdentity)
{
    cls_Value value;
    const cls_AnyObject object = RandomObject(3, value);
    const cls_AnyObject changed(description, description.Info().copy(object.Get()));
    const cls_Value otherValue = RandomValue(4).ObjectOf(description);
    description.Import(changed.Get(), otherValue);
    ASSERT_EQ(UidsOf(description, object.Get()), UidsOf(description, changed.Get()));

    Save({object.Get(), changed.Get()});
    rom_StoreReader reader(path.c_str());
    const void* first = Read(reader, 0);
    EXPECT_EQ(value, description.Export(first));
    const std::vector<cls_Uid> uids = UidsOf(description, first);
    const void* second = Read(reader, 1);
    EXPECT_EQ(otherValue, description.Export(second));
    EXPECT_NE(first, second);
    EXPECT_EQ(UidsOf(description, object.Get()), uids);
    const std::vector<cls_Uid> otherUids = UidsOf(description, second);
    for (std::size_t layer = 0; layer < uids.size(); ++layer)
        EXPECT_NE(uids[layer], otherUids[layer]) << "layer " << layer;
}

INSTANTIATE_TEST_SUITE_P(Library, EveryStoredClass, testing::ValuesIn(EveryClasses(true)), EveryClassName);

} // namespace
