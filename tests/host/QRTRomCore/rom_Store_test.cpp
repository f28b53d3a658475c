#include "DDB_DeepCopyPtr.h"
#include "rom_StoreException.h"
#include "rom_StoreReader.h"
#include "rom_StoreWriter.h"
#include "tst_Store.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace
{

using Handle = tst_Part::Handle;

std::unique_ptr<tst_Whole> OddWhole()
{
    tst_RequireClasses();
    return std::unique_ptr<tst_Whole>(tst_NewOddWhole());
}

std::unique_ptr<tst_Node> NewNode(int number)
{
    tst_RequireClasses();
    auto node = std::make_unique<tst_Node>();
    node->number = number;
    return node;
}

/// A tree with every kind of collection, absent elements and elements of two classes.
std::unique_ptr<tst_Node> Tree()
{
    std::unique_ptr<tst_Node> root = NewNode(1);
    root->label = "root";
    root->child = Handle(NewNode(2).release());
    root->list = {Handle(tst_NewOddWhole()), Handle(), Handle(NewNode(3).release())};
    root->byName = {
        {"", Handle(NewNode(4).release())}, {"absent", Handle()}, {"odd", Handle(tst_NewOddWhole())}};
    root->byNumber = {
        {-5, Handle(NewNode(5).release())}, {0, Handle()}, {2147483647, Handle(tst_NewOddWhole())}};
    return root;
}

const tst_Node& AsNode(const Handle& handle)
{
    return dynamic_cast<const tst_Node&>(*handle.ConstGet());
}

/// The two implementations of the mementos: a file, and memory.
enum class Through
{
    File,
    Memory
};

class RoundTrip : public testing::TestWithParam<Through>
{
protected:
    Handle Of(const tst_Part& part)
    {
        if (GetParam() == Through::Memory)
            return Handle(static_cast<tst_Part*>(DDB_DeepCopyPtr(&part, part.DynTypeId())));
        tst_Save(folder / "store", part);
        return tst_Load(folder / "store");
    }

    tst_Folder folder;
};

TEST_P(RoundTrip, KeepsEveryBitOfEveryKind)
{
    const std::unique_ptr<tst_Whole> whole = OddWhole();
    EXPECT_EQ(tst_Describe(whole.get()), tst_Describe(Of(*whole).ConstGet()));
}

TEST_P(RoundTrip, KeepsAnEmptyObject)
{
    tst_RequireClasses();
    const tst_Whole whole;
    EXPECT_EQ(tst_Describe(&whole), tst_Describe(Of(whole).ConstGet()));
}

TEST_P(RoundTrip, KeepsATree)
{
    const std::unique_ptr<tst_Node> tree = Tree();
    EXPECT_EQ(tst_Describe(tree.get()), tst_Describe(Of(*tree).ConstGet()));
}

TEST_P(RoundTrip, KeepsSharing)
{
    const std::unique_ptr<tst_Node> root = NewNode(1);
    const Handle shared(tst_NewOddWhole());
    root->child = shared;
    root->list = {shared, Handle(NewNode(2).release()), shared};
    root->byName = {{"shared", shared}};
    const Handle read = Of(*root);
    const tst_Node& node = AsNode(read);
    EXPECT_EQ(node.child.ConstGet(), node.list[0].ConstGet());
    EXPECT_EQ(node.child.ConstGet(), node.list[2].ConstGet());
    EXPECT_EQ(node.child.ConstGet(), node.byName[0].second.ConstGet());
    EXPECT_NE(node.child.ConstGet(), node.list[1].ConstGet());
    EXPECT_EQ(4, node.child.ShareCount()) << "the store kept a share";
    EXPECT_EQ(1, node.list[1].ShareCount());
    EXPECT_NE(node.child.ConstGet(), shared.ConstGet());
}

TEST_P(RoundTrip, GivesEachAbsentObjectACountOfItsOwn)
{
    const std::unique_ptr<tst_Node> root = NewNode(1);
    root->list = {Handle(), Handle()};
    const Handle read = Of(*root);
    const tst_Node& node = AsNode(read);
    EXPECT_TRUE(node.child.IsNull());
    ASSERT_EQ(2u, node.list.size());
    EXPECT_NE(node.list[0].CountBlock(), node.list[1].CountBlock());
    EXPECT_EQ(1, node.list[1].ShareCount());
}

TEST_P(RoundTrip, KeepsTwoObjectsOfOneIdentity)
{
    const std::unique_ptr<tst_Node> root = NewNode(1);
    const Handle original(tst_NewOddWhole());
    root->list.push_back(original);
    for (int i = 0; i < 100; ++i)
    {
        Handle changed(original->Copy());
        changed.Get()->number = i;
        EXPECT_EQ(original->uid, changed->uid);
        root->list.push_back(changed);
    }
    const Handle read = Of(*root);
    const tst_Node& node = AsNode(read);
    ASSERT_EQ(101u, node.list.size());
    EXPECT_EQ(original->number, node.list[0]->number);
    EXPECT_EQ(original->uid, node.list[0]->uid);
    for (int i = 0; i < 100; ++i)
    {
        EXPECT_EQ(i, node.list[static_cast<std::size_t>(i) + 1]->number);
        const bool hasSameUid = original->uid == node.list[static_cast<std::size_t>(i) + 1]->uid;
        EXPECT_EQ(GetParam() == Through::Memory, hasSameUid) << "a file has each identity once";
    }
}

TEST_P(RoundTrip, KeepsNesting)
{
    std::unique_ptr<tst_Node> root = NewNode(0);
    for (int i = 1; i < 60; ++i)
    {
        std::unique_ptr<tst_Node> outer = NewNode(i);
        outer->list = {Handle(), Handle(root.release())};
        root = std::move(outer);
    }
    EXPECT_EQ(tst_Describe(root.get()), tst_Describe(Of(*root).ConstGet()));
}

TEST_P(RoundTrip, KeepsManyRows)
{
    const std::unique_ptr<tst_Node> root = NewNode(0);
    for (int i = 0; i < 3000; ++i)
    {
        std::unique_ptr<tst_Node> node = NewNode(i);
        node->label = std::to_string(i).c_str();
        node->list = {Handle(NewNode(-i).release()), Handle(i % 7 == 0 ? tst_NewOddWhole() : nullptr)};
        root->byNumber.emplace_back(i, Handle(node.release()));
    }
    EXPECT_EQ(tst_Describe(root.get()), tst_Describe(Of(*root).ConstGet()));
}

INSTANTIATE_TEST_SUITE_P(Both, RoundTrip, testing::Values(Through::File, Through::Memory),
                         [](const testing::TestParamInfo<Through>& info)
                         { return info.param == Through::File ? "File" : "Memory"; });

TEST(DeepCopy, SharesNothingWithItsSource)
{
    const std::unique_ptr<tst_Node> tree = Tree();
    const std::string before = tst_Describe(tree.get());
    {
        const Handle copy(static_cast<tst_Part*>(DDB_DeepCopyPtr(tree.get(), tst_Node::TypeId())));
        const auto& node = AsNode(copy);
        EXPECT_EQ(1, tree->child.ShareCount());
        EXPECT_EQ(1, node.child.ShareCount());
        EXPECT_NE(tree->label.CString(), node.label.CString());
        const_cast<tst_Node&>(node).child.Get()->number = 99;
        const_cast<tst_Node&>(node).list.clear();
    }
    EXPECT_EQ(before, tst_Describe(tree.get()));
}

TEST(DeepCopy, RefusesAnUnknownClass)
{
    tst_RequireClasses();
    EXPECT_THROW(DDB_DeepCopyPtr(nullptr, 0xFF0099), rom_StoreException);
}

class Store : public testing::Test
{
protected:
    std::string Path() const { return folder / "store"; }

    tst_Folder folder;
};

TEST_F(Store, SharesAreStoredOnce)
{
    const std::unique_ptr<tst_Node> root = NewNode(1);
    const Handle shared(tst_NewOddWhole());
    root->child = shared;
    root->list = {shared, shared};
    tst_Save(Path(), *root);
    EXPECT_EQ("1", tst_Query(Path(), "SELECT count(*) FROM tst_Whole"));
    EXPECT_EQ("2", tst_Query(Path(), "SELECT count(*) FROM tst_Part"));
}

TEST_F(Store, HoldsNamedObjects)
{
    const std::unique_ptr<tst_Node> first = NewNode(1);
    const std::unique_ptr<tst_Whole> second = OddWhole();
    {
        rom_StoreWriter writer(Path().c_str());
        writer.WriteRoot("first", tst_Node::TypeId(), first.get());
        writer.WriteRoot("second", tst_Whole::TypeId(), second.get());
        writer.WriteRoot("again", tst_Node::TypeId(), first.get());
        writer.Finish();
    }
    rom_StoreReader reader(Path().c_str());
    ASSERT_EQ(3u, reader.Roots().size());
    EXPECT_EQ("second", reader.Roots()[1]);
    const auto take = [&reader](const char* name)
    { return cow_Restored<tst_Part, cow_Virtual<tst_Part>>(reader.ReadRoot(name, tst_Part::TypeId())); };
    const Handle readFirst = take("first");
    EXPECT_EQ(tst_Describe(second.get()), tst_Describe(take("second").ConstGet()));
    EXPECT_EQ(readFirst.ConstGet(), take("again").ConstGet());
    EXPECT_THROW(take("third"), rom_StoreException);
    EXPECT_TRUE(reader.UnknownTables().empty());
}

TEST_F(Store, LeavesNoOtherFile)
{
    tst_Save(Path(), *NewNode(1));
    EXPECT_EQ("store", folder.Names());
    tst_Save(Path(), *NewNode(2));
    EXPECT_EQ("store", folder.Names());
    tst_Load(Path());
    EXPECT_EQ("store", folder.Names());
}

TEST_F(Store, HasWhatTheFormatSays)
{
    tst_Save(Path(), *Tree());
    EXPECT_EQ("1333162579", tst_Query(Path(), "PRAGMA application_id"));
    EXPECT_EQ("1", tst_Query(Path(), "PRAGMA user_version"));
    EXPECT_EQ("16384", tst_Query(Path(), "PRAGMA page_size"));
    EXPECT_EQ("delete", tst_Query(Path(), "PRAGMA journal_mode"));
    EXPECT_EQ("ok", tst_Query(Path(), "PRAGMA integrity_check"));
    EXPECT_EQ("424", tst_Query(Path(), "SELECT Version FROM rom_Class WHERE Name = 'tst_Whole'"));
    EXPECT_EQ("16711681", tst_Query(Path(), "SELECT BaseClassID FROM rom_Class WHERE ClassID = 0xFF0002"));
    EXPECT_EQ("CREATE TABLE \"tst_Part\" (\"OID\" INTEGER PRIMARY KEY, \"##Uid\" BLOB, \"number\" INTEGER, "
              "\"label\" TEXT, \"##Check\" INTEGER)",
              tst_Query(Path(), "SELECT sql FROM sqlite_schema WHERE name = 'tst_Part'"));
    EXPECT_EQ(
        "CREATE TABLE \"tst_Node\" (\"OID\" INTEGER PRIMARY KEY, \"##Uid\" BLOB, \"##BaseClassOID\" INTEGER, "
        "\"child#ClassID\" INTEGER, \"child#OID\" INTEGER, \"list#ClassID\" INTEGER, \"list#OID\" INTEGER, "
        "\"byName#ClassID\" INTEGER, \"byName#OID\" INTEGER, \"byNumber#ClassID\" INTEGER, "
        "\"byNumber#OID\" INTEGER, \"##Check\" INTEGER)",
        tst_Query(Path(), "SELECT sql FROM sqlite_schema WHERE name = 'tst_Node'"));
    EXPECT_EQ("cls_List", tst_Query(Path(), "SELECT Name FROM rom_Class WHERE ClassID = 0x230001"));
    EXPECT_EQ("", tst_Query(Path(), "SELECT Name FROM rom_Class WHERE Name NOT IN ('tst_Part', 'tst_Whole', "
                                    "'tst_Node', 'cls_List', 'cls_Map')"));
}

TEST_F(Store, CanBeWrittenByHand)
{
    tst_RequireClasses();
    tst_Execute(Path(), R"(
        PRAGMA application_id = 1333162579;
        PRAGMA user_version = 1;
        CREATE TABLE rom_Class (ClassID INTEGER PRIMARY KEY, Name TEXT, Version INTEGER, BaseClassID INTEGER,
                                "##Check" INTEGER);
        INSERT INTO rom_Class VALUES (0xFF0001, 'tst_Part', 401, 1, NULL), (0xFF0003, 'tst_Node', 203, 0xFF0001, NULL),
                                     (0x230001, 'cls_List', 203, 1, NULL), (0x230002, 'cls_Map', 203, 1, NULL);
        CREATE TABLE rom_Root (OID INTEGER PRIMARY KEY, Name TEXT, "Target#ClassID" INTEGER, "Target#OID" INTEGER,
                               "##Check" INTEGER);
        INSERT INTO rom_Root VALUES (1, 'model', 0xFF0003, 10, NULL);
        CREATE TABLE tst_Part (OID INTEGER PRIMARY KEY, "##Check" INTEGER, label TEXT, number INTEGER, "##Uid" BLOB);
        INSERT INTO tst_Part VALUES (20, NULL, 'by hand', 7, randomblob(16)), (21, NULL, 'child', 8, randomblob(16));
        CREATE TABLE tst_Node (OID INTEGER PRIMARY KEY, "##Uid" BLOB, "##BaseClassOID" INTEGER,
            "child#ClassID" INTEGER, "child#OID" INTEGER, "list#ClassID" INTEGER, "list#OID" INTEGER,
            "byName#ClassID" INTEGER, "byName#OID" INTEGER, "byNumber#ClassID" INTEGER, "byNumber#OID" INTEGER,
            "##Check" INTEGER);
        INSERT INTO tst_Node VALUES
            (10, randomblob(16), 20, 0xFF0003, 11, 0x230001, 1, 0x230002, 1, 0x230002, 2, NULL),
            (11, randomblob(16), 21, NULL, NULL, 0x230001, 2, 0x230002, 3, 0x230002, 4, NULL);
        CREATE TABLE cls_List (OID INTEGER PRIMARY KEY, "##Uid" BLOB, "Target#Collection" INTEGER,
            "Target#Length" INTEGER, "Target#Columns" INTEGER, "Target#Handle" INTEGER, "##Check" INTEGER);
        INSERT INTO cls_List VALUES (1, randomblob(16), 1, 2, NULL, NULL, NULL), (2, randomblob(16), 1, 0, NULL, NULL, NULL);
        CREATE TABLE cls_Map (OID INTEGER PRIMARY KEY, "##Uid" BLOB, "Target#Collection" INTEGER,
            "Target#Length" INTEGER, "Target#Columns" INTEGER, "Target#Handle" INTEGER, "##Check" INTEGER);
        INSERT INTO cls_Map VALUES (1, randomblob(16), 2, 1, NULL, NULL, NULL), (2, randomblob(16), 3, 0, NULL, NULL, NULL),
            (3, randomblob(16), 2, 0, NULL, NULL, NULL), (4, randomblob(16), 3, 0, NULL, NULL, NULL);
        CREATE TABLE rom_Element (ClassID INTEGER, OID INTEGER, Position INTEGER, Key, Value,
            "Target#ClassID" INTEGER, "Target#OID" INTEGER, "##Check" INTEGER, PRIMARY KEY (ClassID, OID, Position))
            WITHOUT ROWID;
        INSERT INTO rom_Element VALUES (0x230001, 1, 0, NULL, NULL, 0xFF0003, 11, NULL),
            (0x230001, 1, 1, NULL, NULL, 0xFF0001, NULL, NULL), (0x230002, 1, 0, 'key', NULL, 0xFF0003, 11, NULL);
    )");
    const Handle read = tst_Load(Path());
    const tst_Node& node = AsNode(read);
    EXPECT_EQ(7, node.number);
    EXPECT_EQ("by hand", node.label);
    ASSERT_EQ(2u, node.list.size());
    EXPECT_EQ(8, node.list[0]->number);
    EXPECT_TRUE(node.list[1].IsNull());
    ASSERT_EQ(1u, node.byName.size());
    EXPECT_EQ("key", node.byName[0].first);
    EXPECT_EQ(node.child.ConstGet(), node.byName[0].second.ConstGet());
}

// Saving.

TEST_F(Store, ReplacesTheContent)
{
    tst_Save(Path(), *Tree());
    const std::unique_ptr<tst_Whole> whole = OddWhole();
    tst_Save(Path(), *whole);
    EXPECT_EQ(tst_Describe(whole.get()), tst_Describe(tst_Load(Path()).ConstGet()));
    EXPECT_EQ("", tst_Query(Path(), "SELECT name FROM sqlite_schema WHERE name = 'tst_Node'"));
    EXPECT_EQ("ok", tst_Query(Path(), "PRAGMA integrity_check"));
}

TEST_F(Store, KeepsTheOldContentUnlessFinished)
{
    const std::unique_ptr<tst_Node> tree = Tree();
    tst_Save(Path(), *tree);
    {
        rom_StoreWriter writer(Path().c_str());
        writer.WriteRoot("model", tst_Node::TypeId(), NewNode(7).get());
    }
    EXPECT_EQ(tst_Describe(tree.get()), tst_Describe(tst_Load(Path()).ConstGet()));
    EXPECT_EQ("store", folder.Names());
}

TEST_F(Store, IsNotMadeUnlessFinished)
{
    tst_RequireClasses();
    {
        rom_StoreWriter writer(Path().c_str());
        writer.WriteRoot("model", tst_Node::TypeId(), NewNode(7).get());
        EXPECT_FALSE(std::filesystem::exists(Path()));
    }
    EXPECT_EQ("", folder.Names());
}

TEST_F(Store, IsNotMadeOfAnInterruptedObject)
{
    const std::unique_ptr<tst_Node> root = NewNode(1);
    root->list = {Handle(NewNode(2).release()), Handle(NewNode(tst_Node::throwingNumber).release())};
    rom_StoreWriter writer(Path().c_str());
    EXPECT_THROW(writer.WriteRoot("model", tst_Node::TypeId(), root.get()), std::runtime_error);
    const std::unique_ptr<tst_Node> other = NewNode(3);
    EXPECT_THROW(writer.WriteRoot("other", tst_Node::TypeId(), other.get()), rom_StoreException);
    EXPECT_THROW(writer.Finish(), rom_StoreException);
    EXPECT_FALSE(std::filesystem::exists(Path()));
}

TEST_F(Store, RefusesAnIncompleteRow)
{
    tst_RequireClasses();
    const cls_Uid uid = []
    {
        cls_Uid fresh;
        fresh.AllocateUid();
        return fresh;
    }();
    rom_StoreWriter writer(Path().c_str());
    {
        const cls_WriteVisitor visitor(writer.OpenRoot("model"));
        EXPECT_EQ(1, visitor.StartWrite(tst_Part::TypeId(), uid));
        visitor.Memento().PutInt(cls_FieldHandle(0, "number"), 1);
    }
    try
    {
        writer.Finish();
        FAIL() << "an incomplete row was stored";
    }
    catch (const rom_StoreException& error)
    {
        EXPECT_EQ("tst_Part", error.Table());
        EXPECT_EQ(1, error.Row());
        EXPECT_EQ("label", error.Field());
        EXPECT_EQ("The field was not written.", error.Message());
    }
}

TEST_F(Store, RefusesWhatTheClassDoesNotHave)
{
    tst_RequireClasses();
    const cls_FieldHandle number(0, "number");
    const auto put = [this](auto deed)
    {
        cls_Uid uid;
        uid.AllocateUid();
        rom_StoreWriter writer((folder / "refused").c_str());
        {
            const cls_WriteVisitor visitor(writer.OpenRoot("model"));
            visitor.StartWrite(tst_Part::TypeId(), uid);
            EXPECT_THROW(deed(visitor.Memento()), rom_StoreException);
        }
        EXPECT_THROW(writer.Finish(), rom_StoreException);
    };
    put([](cls_MementoWrite& memento) { memento.PutInt(cls_FieldHandle(0, "wrong"), 1); });
    put([](cls_MementoWrite& memento) { memento.PutInt(cls_FieldHandle(9, "wrong"), 1); });
    put([&](cls_MementoWrite& memento) { memento.PutBool(number, true); });
    put([&](cls_MementoWrite& memento) { memento.PutDouble(number, 1); });
    put([&](cls_MementoWrite& memento) { memento.PutText(number, "1"); });
    put([&](cls_MementoWrite& memento) { memento.PutAbsent(number); });
    put([&](cls_MementoWrite& memento) { memento.OpenField(number, nullptr); });
    put([](cls_MementoWrite& memento) { memento.PutInt(cls_FieldHandle(1, "label"), 1); });
    put([](cls_MementoWrite& memento) { memento.OpenBase(tst_Part::TypeId()); });
    put([](cls_MementoWrite& memento) { memento.CheckCollectionType(cls_CollectionListObj); });
    put([](cls_MementoWrite& memento) { memento.PutElementText("text"); });
    put([](cls_MementoWrite& memento) { memento.PutInts(nullptr, 0); });
    put([](cls_MementoWrite& memento) { memento.OpenList(1)->PutAbsent(1); });
}

TEST_F(Store, RefusesAnUndescribedClass)
{
    tst_RequireClasses();
    rom_StoreWriter writer(Path().c_str());
    EXPECT_THROW(writer.WriteRoot("model", 0xFF0099, nullptr), rom_StoreException);
    {
        const cls_WriteVisitor visitor(writer.OpenRoot("model"));
        EXPECT_THROW(visitor.StartWrite(0xFF0099, cls_Uid()), rom_StoreException);
    }
    EXPECT_THROW(writer.Finish(), rom_StoreException);
}

TEST_F(Store, RefusesARowThatIsNeverStarted)
{
    tst_RequireClasses();
    rom_StoreWriter writer(Path().c_str());
    {
        const cls_WriteVisitor visitor(writer.OpenRoot("model"));
    }
    EXPECT_THROW(writer.Finish(), rom_StoreException);
}

TEST_F(Store, ModesSayWhatMayBeThere)
{
    tst_RequireClasses();
    EXPECT_THROW(rom_StoreWriter(Path().c_str(), rom_SaveMode::Replace), rom_StoreException);
    tst_Save(Path(), *NewNode(1));
    EXPECT_THROW(rom_StoreWriter(Path().c_str(), rom_SaveMode::Create), rom_StoreException);
    rom_StoreWriter(Path().c_str(), rom_SaveMode::Replace);
    EXPECT_THROW(rom_StoreWriter((folder / "no/such/folder").c_str()), rom_StoreException);
    EXPECT_EQ(1, tst_Load(Path())->number);
}

TEST_F(Store, CanBeReadWhileItIsReplaced)
{
    tst_Save(Path(), *NewNode(1));
    rom_StoreReader reader(Path().c_str());
    rom_StoreWriter writer(Path().c_str());
    const std::unique_ptr<tst_Node> node = NewNode(2);
    writer.WriteRoot("model", tst_Node::TypeId(), node.get());
    const auto& read =
        cow_Restored<tst_Part, cow_Virtual<tst_Part>>(reader.ReadRoot("model", tst_Part::TypeId()));
    EXPECT_EQ(1, read->number);
}

TEST_F(Store, IsSavedByOneAtATime)
{
    tst_RequireClasses();
    rom_StoreWriter writer(Path().c_str());
    EXPECT_THROW(rom_StoreWriter(Path().c_str(), rom_SaveMode::Create), rom_StoreException);
}

TEST_F(Store, TakesOverWhatAnInterruptedSaveLeft)
{
    tst_RequireClasses();
    tst_WriteFile(folder / "store.saving", std::string(100000, 'x'));
    tst_WriteFile(folder / "store.saving-journal", std::string(100000, 'x'));
    tst_Save(Path(), *NewNode(3));
    EXPECT_EQ(3, tst_Load(Path())->number);
    EXPECT_EQ("store", folder.Names());
}

TEST_F(Store, DoesNotReplaceAFileThatAppearedMeanwhile)
{
    tst_RequireClasses();
    rom_StoreWriter writer(Path().c_str());
    const std::unique_ptr<tst_Node> node = NewNode(2);
    writer.WriteRoot("model", tst_Node::TypeId(), node.get());
    tst_WriteFile(Path(), "mine");
    EXPECT_THROW(writer.Finish(), rom_StoreException);
    EXPECT_EQ("mine", tst_ReadFile(Path()));
}

TEST_F(Store, LeavesNoDescriptorsOpen)
{
    const auto count = []
    {
        int open = 0;
        for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
            ++open;
        return open;
    };
    const int before = count();
    for (int i = 0; i < 3; ++i)
    {
        tst_Save(Path(), *Tree());
        tst_Load(Path());
        rom_StoreWriter(Path().c_str());
        EXPECT_THROW(rom_StoreWriter(Path().c_str(), rom_SaveMode::Create), rom_StoreException);
        rom_StoreWriter((folder / "other").c_str());
    }
    tst_WriteFile(folder / "foreign", "not a store");
    EXPECT_THROW(tst_Load(folder / "foreign"), rom_StoreException);
    EXPECT_THROW(rom_StoreWriter((folder / "foreign").c_str()), rom_StoreException);
    EXPECT_EQ(before, count());
}

} // namespace
