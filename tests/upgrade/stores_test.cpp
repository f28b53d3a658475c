#include "LibraryEnvironment.h"
#include "StoreText.h"
#include "ddr_Model.h"
#include "rom_StoreReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <vector>

namespace
{

const std::string stores = OVR_SOURCE_DIR "/tests/stores/";
const std::string rowsEnding = ".rows";
const std::string expectedEnding = ".expected.rows";

/// Names of all old stores, found in their folder, so that a new one is tried as soon as it is there.
std::vector<std::string> OldStores()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(stores))
    {
        const std::string file = entry.path().filename().string();
        if (file.ends_with(rowsEnding) && !file.ends_with(expectedEnding))
            names.push_back(file.substr(0, file.size() - rowsEnding.size()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// One old store, made of its text.
class OldStore : public testing::TestWithParam<std::string>
{
protected:
    void SetUp() override { Make(GetParam() + rowsEnding, old); }

    static void Make(const std::string& text, const std::string& store)
    {
        rfm_MakeStoreOfText(store, ContentOf(stores + text), text);
    }

    TemporaryFolder folder;
    std::string old = folder / "old.vdb";
    std::string current = folder / "new.vdb";
};

TEST_P(OldStore, HasTheRowsThatAreExpectedOfIt)
{
    Upgrade(old, current);
    const std::string expected = folder / "expected.vdb";
    Make(GetParam() + expectedEnding, expected);
    EXPECT_EQ(RowsOf(expected), RowsOf(current));
}

TEST_P(OldStore, KeepsTheIdentitiesOfItsRows)
{
    Upgrade(old, current);
    const Uids before = UidsOf(old);
    std::set<std::string> all;
    for (const auto& [row, uid] : UidsOf(current))
    {
        EXPECT_EQ(16u, uid.size()) << row.first << " row " << row.second;
        EXPECT_TRUE(all.insert(uid).second)
            << row.first << " row " << row.second << ": is that of another row";
        const auto found = before.find(row);
        EXPECT_EQ(found == before.end() ? uid : found->second, uid) << row.first << " row " << row.second;
    }
}

TEST_P(OldStore, StaysAsItIs)
{
    const std::string before = ContentOf(old);
    Upgrade(old, current);
    EXPECT_EQ(before, ContentOf(old));
}

TEST_P(OldStore, IsReadAfterwards)
{
    Upgrade(old, current);
    rom_StoreReader reader(current.c_str());
    EXPECT_NO_THROW(reader.ReadRoot("model", ddr_Model::TypeId()));
}

TEST_P(OldStore, IsChangedByNoSecondUpgrade)
{
    Upgrade(old, current);
    EXPECT_TRUE(dbc_Upgrade(current.c_str()).IsCurrent());
    const std::string again = folder / "again.vdb";
    Upgrade(current, again);
    EXPECT_EQ(RowsOf(current), RowsOf(again));
}

INSTANTIATE_TEST_SUITE_P(Stores, OldStore, testing::ValuesIn(OldStores()),
                         [](const testing::TestParamInfo<std::string>& store)
                         {
                             std::string name = store.param;
                             std::replace_if(
                                 name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); },
                                 '_');
                             return name;
                         });

TEST(OldStores, AllHaveWhatIsExpectedOfThem)
{
    EXPECT_GE(OldStores().size(), 7u);
    for (const std::string& name : OldStores())
        EXPECT_TRUE(std::filesystem::exists(stores + name + expectedEnding)) << name;
}

} // namespace
