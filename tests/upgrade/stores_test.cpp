#include "LibraryEnvironment.h"
#include "StoreText.h"
#include "cls_MetadataRegistrar.h"
#include "dbc_DatabaseConverter.h"
#include "dbc_OldClasses.h"
#include "rom_StoreReader.h"
#include "typ_ArchCompTable.h"

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

/// The text of each table of a store, by name, without columns that hold nothing.
using TableTexts = std::map<std::string, std::string>;

TableTexts TableTextsOf(rfm_Database& database)
{
    std::istringstream text(rfm_StoreText(database, {.withUids = false, .withEmptyColumns = false}));
    TableTexts tables;
    std::string name;
    for (std::string line; std::getline(text, line);)
    {
        if (!line.empty() && line[0] != ' ')
            name = line.substr(0, line.find_first_of(": "));
        if (!line.empty())
            tables[name] += line + '\n';
    }
    return tables;
}

/// All tables as one text.
std::string Joined(const TableTexts& tables)
{
    std::string text;
    for (const auto& [name, rows] : tables)
        text += rows + '\n';
    return text;
}

/// Whether there is such a class today; collections have no description.
bool IsThere(unsigned classId)
{
    return classId == cls_ListTypeId || classId == cls_MapTypeId ||
           omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(classId);
}

/// What is to come of a store: the tables that are expected, and its own where none is. Tables of classes
/// that are no more go.
std::string RowsExpectedOf(rfm_Database& old, rfm_Database& expected)
{
    TableTexts tables = TableTextsOf(expected);
    tables.merge(TableTextsOf(old));
    for (const rfm_TableInfo& table : old.Tables())
    {
        if (!expected.FindTable(table.classId) && !IsThere(table.classId))
            tables.erase(table.name.CString());
    }
    return Joined(tables);
}

/// Columns that a store has in its tables and another one lacks in those of the same classes.
std::set<std::string> LackingColumns(rfm_Database& all, rfm_Database& some)
{
    std::set<std::string> lacking;
    for (const rfm_TableInfo& table : all.Tables())
    {
        for (const rfm_Column& column : table.columns)
            lacking.insert(table.name.CString() + std::string(".") + column.name.CString());
    }
    for (const rfm_TableInfo& table : some.Tables())
    {
        for (const rfm_Column& column : table.columns)
            lacking.erase(table.name.CString() + std::string(".") + column.name.CString());
    }
    return lacking;
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
    rfm_Database before(old.c_str(), rfm_Access::Read);
    rfm_Database wanted(expected.c_str(), rfm_Access::Read);
    rfm_Database found(current.c_str(), rfm_Access::Read);
    EXPECT_EQ(RowsExpectedOf(before, wanted), Joined(TableTextsOf(found)));
    EXPECT_EQ(std::set<std::string>(), LackingColumns(wanted, found));
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
    rfm_Database database(current.c_str(), rfm_Access::Read);
    for (const rfm_Root& root : database.Roots())
        EXPECT_NO_THROW(reader.ReadRoot(root.name, root.classId)) << root.name.CString();
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

/// Class and version of each table with rows.
using Versions = std::set<std::pair<unsigned, int>>;

Versions VersionsIn(const std::string& store)
{
    rfm_Database database(store.c_str(), rfm_Access::Read);
    Versions versions;
    for (const rfm_TableInfo& table : database.Tables())
    {
        if (rfm_Cursor(database, rfm_TableForm::Of(table)).SeekFrom(INT64_MIN))
            versions.emplace(table.classId, table.version);
    }
    return versions;
}

TEST(OldStores, AreThereForEveryOldVersion)
{
    LibraryEnvironment::Require();
    Versions stored;
    for (const std::string& name : OldStores())
    {
        const TemporaryFolder folder;
        const std::string store = folder / "old.vdb";
        rfm_MakeStoreOfText(store, ContentOf(stores + name + rowsEnding), name);
        stored.merge(VersionsIn(store));
    }
    dbc_DatabaseConverter converter;
    const dbc_OldClasses classes(converter);
    std::set<std::string> missing;
    for (const dbc_OldClasses::Entry& entry : classes.Entries())
    {
        // Other tests of this program have classes of their own.
        if (!entry.form || !typ_ArchCompTable::IsKnown(entry.form->ClassId()))
            continue;
        if (!stored.contains({entry.form->ClassId(), entry.form->Version()}))
            missing.insert(entry.form->Name().CString() + std::string("_") +
                           std::to_string(entry.form->Version()));
    }
    EXPECT_EQ(std::set<std::string>(), missing);
}

TEST(OldStores, AllHaveWhatIsExpectedOfThem)
{
    EXPECT_GE(OldStores().size(), 7u);
    for (const std::string& name : OldStores())
        EXPECT_TRUE(std::filesystem::exists(stores + name + expectedEnding)) << name;
}

} // namespace
