// Stores that are not what they should be: each is refused by an exception that names the place, and none
// crashes, hangs or is changed.

#include "rom_StoreException.h"
#include "rom_StoreReader.h"
#include "rom_StoreWriter.h"
#include "tst_Store.h"

#include <gtest/gtest.h>

#include <random>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using Handle = tst_Part::Handle;

/// A node with a child, every kind of collection and a whole: the rows that the cases below damage.
std::unique_ptr<tst_Node> Model()
{
    tst_RequireClasses();
    auto root = std::make_unique<tst_Node>();
    root->number = 1;
    root->label = "root";
    root->child = Handle(tst_NewOddWhole());
    auto inner = std::make_unique<tst_Node>();
    inner->number = 2;
    root->list = {Handle(inner.release()), Handle()};
    root->byName = {{"a", root->child}, {"b", root->list[0]}};
    root->byNumber = {{1, root->child}, {2, root->list[0]}};
    return root;
}

/// Takes the check numbers out, so that what follows is not found by them.
constexpr char withoutChecks[] = R"(
    UPDATE rom_Class SET "##Check" = NULL; UPDATE rom_Root SET "##Check" = NULL;
    UPDATE rom_Element SET "##Check" = NULL; UPDATE rfm_Array SET "##Check" = NULL;
    UPDATE tst_Part SET "##Check" = NULL; UPDATE tst_Whole SET "##Check" = NULL;
    UPDATE tst_Node SET "##Check" = NULL; UPDATE cls_List SET "##Check" = NULL; UPDATE cls_Map SET "##Check" = NULL;
)";

/// The exception with which a file is refused; fails the test if it is not.
rom_StoreException Refusal(const std::string& path)
{
    try
    {
        tst_Load(path);
    }
    catch (const rom_StoreException& error)
    {
        EXPECT_EQ(path, error.StoreFile().CString());
        return error;
    }
    ADD_FAILURE() << "the file was read";
    return rom_StoreException("", "");
}

struct Damage
{
    const char* name;
    const char* sql;
    const char* table;
    std::int64_t row;
    const char* field;
    const char* message; ///< a part of it
};

constexpr std::int64_t noRow = rom_StoreException::NoRow;

// In the store of Model(): tst_Node 1 is the root and 2 its inner node; tst_Whole 1 is the child; tst_Part 1,
// 2 and 3 are the bases of root, child and inner node.
constexpr Damage damages[] = {
    {"MissingTable", "DROP TABLE tst_Part", "tst_Part", noRow, "", "missing"},
    {"MissingCatalogue", "DROP TABLE rom_Class", "rom_Class", noRow, "", "missing"},
    {"MissingRoots", "DROP TABLE rom_Root", "rom_Root", noRow, "", "missing"},
    {"MissingRoot", "DELETE FROM rom_Root", "rom_Root", noRow, "", "no object of the name \"model\""},
    {"MissingElements", "DROP TABLE rom_Element", "rom_Element", noRow, "", "missing"},
    {"MissingArrays", "DROP TABLE rfm_Array", "rfm_Array", noRow, "", "no such table"},
    {"TableNotInCatalogue", "DELETE FROM rom_Class WHERE Name = 'tst_Whole'", "tst_Whole", noRow, "",
     "missing"},
    {"MissingRowOfBase", "DELETE FROM tst_Part WHERE OID = 1", "tst_Node", 1, "##BaseClassOID",
     "no row 1 in table tst_Part"},
    {"MissingRowOfChild", "DELETE FROM tst_Whole", "tst_Node", 1, "child", "no row 1 in table tst_Whole"},
    {"MissingRowOfList", "DELETE FROM cls_List", "tst_Whole", 1, "doubles", "in table cls_List"},
    {"MissingRowOfRoot", "UPDATE rom_Root SET \"Target#OID\" = 77", "", noRow, "",
     "no row 77 in table tst_Node"},
    {"MissingArray", "DELETE FROM rfm_Array", "rfm_Array", 1, "", "no array"},
    {"MissingColumn", "ALTER TABLE tst_Whole DROP COLUMN value", "tst_Whole", noRow, "value",
     "lacks this column"},
    {"MissingCheckColumn", "ALTER TABLE tst_Whole DROP COLUMN \"##Check\"", "tst_Whole", noRow, "##Check",
     "lacks this column"},
    {"RenamedColumn", "ALTER TABLE tst_Node RENAME COLUMN \"child#OID\" TO x", "tst_Node", noRow, "child#OID",
     "lacks this column"},
    {"UnknownColumn", "ALTER TABLE tst_Part ADD COLUMN more INTEGER", "tst_Part", noRow, "more",
     "no such attribute"},
    {"NoValue", "UPDATE tst_Part SET number = NULL WHERE OID = 1", "tst_Part", 1, "number",
     "Expected an integer of 32 bits, found nothing."},
    {"TextForInteger", "UPDATE tst_Part SET number = 'x' WHERE OID = 3", "tst_Part", 3, "number",
     "found a text"},
    {"RealForInteger", "UPDATE tst_Part SET number = 1.5 WHERE OID = 3", "tst_Part", 3, "number",
     "found a real number"},
    {"IntegerTooBig", "UPDATE tst_Part SET number = 2147483648 WHERE OID = 3", "tst_Part", 3, "number",
     "found an integer (2147483648)"},
    {"IntegerTooSmall", "UPDATE tst_Whole SET second = -2147483649", "tst_Whole", 1, "second",
     "(-2147483649)"},
    {"BlobForText", "UPDATE tst_Part SET label = x'00' WHERE OID = 1", "tst_Part", 1, "label",
     "found a blob"},
    {"NullCharacter", "UPDATE tst_Part SET label = CAST(x'410042' AS TEXT) WHERE OID = 1", "tst_Part", 1,
     "label", "null character"},
    {"TextForReal", "UPDATE tst_Whole SET value = 'x'", "tst_Whole", 1, "value", "found a text"},
    {"ShortBlobForReal", "UPDATE tst_Whole SET value = x'00000000000000'", "tst_Whole", 1, "value",
     "found a blob"},
    {"NoBoolean", "UPDATE tst_Whole SET flag = 2", "tst_Whole", 1, "flag",
     "Expected 0 or 1, found an integer (2)"},
    {"EnumerationText", "UPDATE tst_Whole SET colour = 'BLUE'", "tst_Whole", 1, "colour", "no colour: BLUE"},
    {"ShortUid", "UPDATE tst_Whole SET \"##Uid\" = x'00'", "tst_Whole", 1, "##Uid", "16 bytes"},
    {"NoUid", "UPDATE cls_List SET \"##Uid\" = NULL WHERE OID = 2", "cls_List", 2, "##Uid", "16 bytes"},
    {"NoBase", "UPDATE tst_Node SET \"##BaseClassOID\" = NULL WHERE OID = 2", "tst_Node", 2, "##BaseClassOID",
     "Expected the row of the base"},
    {"WrongClass", "UPDATE tst_Node SET \"child#ClassID\" = 0x230001 WHERE OID = 1", "tst_Node", 1, "child",
     "Expected an object of class tst_Part (0xFF0001), found one of class cls_List (0x230001)"},
    {"UnknownClass", "UPDATE tst_Node SET \"child#ClassID\" = 12345 WHERE OID = 1", "tst_Node", 1, "child",
     "unknown class (0x3039)"},
    {"AbstractClass", "UPDATE tst_Node SET \"child#ClassID\" = 0xFF0001 WHERE OID = 1", "tst_Node", 1,
     "child", "No object can be of class tst_Part"},
    {"ClassZero", "UPDATE rom_Root SET \"Target#ClassID\" = 0", "", noRow, "", "unknown class (0x0)"},
    {"HugeClass", "UPDATE tst_Node SET \"child#ClassID\" = 1 << 40 WHERE OID = 1", "tst_Node", 1, "child",
     "class id"},
    {"HalfReference", "UPDATE tst_Node SET \"child#OID\" = NULL WHERE OID = 1", "tst_Node", 1, "child",
     "the row"},
    {"OtherHalfReference", "UPDATE tst_Node SET \"child#ClassID\" = NULL WHERE OID = 1", "tst_Node", 1,
     "child", "the class id"},
    {"CollectionOfAnotherClass", "UPDATE tst_Whole SET \"floats#ClassID\" = 0x230001", "tst_Whole", 1,
     "floats", "Expected an object of class cls_Map (0x230002), found one of class cls_List"},
    {"AbsentCollection", "UPDATE tst_Whole SET \"ints#ClassID\" = NULL, \"ints#OID\" = NULL", "tst_Whole", 1,
     "ints", "Expected an object, found nothing"},
    {"CircleOfOne", "UPDATE tst_Node SET \"child#ClassID\" = 0xFF0003, \"child#OID\" = 1 WHERE OID = 1",
     "tst_Node", 1, "child", "refers to itself"},
    {"CircleOfTwo", "UPDATE tst_Node SET \"child#ClassID\" = 0xFF0003, \"child#OID\" = 1 WHERE OID = 2",
     "tst_Node", 2, "child", "refers to itself"},
    {"CircleInAList", "UPDATE rom_Element SET \"Target#OID\" = 1 WHERE \"Target#ClassID\" = 0xFF0003",
     "cls_List", 9, "[0]", "refers to itself"},
    {"WrongCode", "UPDATE cls_List SET \"Target#Collection\" = 54 WHERE OID = 1", "cls_List", 1,
     "Target#Collection", "Expected a collection of code 52, found 54"},
    {"NoCode", "UPDATE cls_List SET \"Target#Collection\" = NULL WHERE OID = 1", "cls_List", 1,
     "Target#Collection", "the code of a collection"},
    {"ArrayTooShort", "UPDATE cls_List SET \"Target#Length\" = 12 WHERE OID = 1", "cls_List", 1,
     "Target#Handle", "holds 11 numbers; expected 12"},
    {"ArrayOfNegativeLength", "UPDATE cls_List SET \"Target#Length\" = -1 WHERE OID = 1", "cls_List", 1,
     "Target#Length", "found an integer (-1)"},
    {"ArrayOfHugeLength", "UPDATE cls_List SET \"Target#Length\" = 1 << 50 WHERE OID = 1", "cls_List", 1,
     "Target#Length", "the count of numbers"},
    {"ArrayWithoutHandle", "UPDATE cls_List SET \"Target#Handle\" = NULL WHERE OID = 1", "cls_List", 1,
     "Target#Handle", "the handle of an array"},
    {"ColumnsDoNotDivide", "UPDATE cls_List SET \"Target#Columns\" = 4 WHERE \"Target#Collection\" = 82",
     "cls_List", 5, "Target#Columns", "6 numbers do not fill columns of this count (4)"},
    {"NoColumns", "UPDATE cls_List SET \"Target#Columns\" = 0 WHERE \"Target#Collection\" = 82", "cls_List",
     5, "Target#Columns", "do not fill"},
    {"ListOfTwoColumns", "UPDATE cls_List SET \"Target#Columns\" = 2 WHERE \"Target#Collection\" = 54",
     "cls_List", 2, "Target#Columns", "A list has one column."},
    {"BytesTooFew", "UPDATE rfm_Array SET Bytes = substr(Bytes, 2) WHERE Handle = 1", "rfm_Array", 1, "Bytes",
     "do not fit the length"},
    {"BytesAsText", "UPDATE rfm_Array SET Bytes = 'x' WHERE Handle = 1", "rfm_Array", 1, "Bytes",
     "do not fit"},
    {"ArrayOfAnotherType", "UPDATE rfm_Array SET Type = 2 WHERE Handle = 1", "rfm_Array", 1, "Type",
     "another kind"},
    {"ArrayOfUnknownType", "UPDATE rfm_Array SET Type = 3 WHERE Handle = 1", "rfm_Array", 1, "Type",
     "another kind"},
    {"ArrayOfWrongLength", "UPDATE rfm_Array SET Length = 1 << 60 WHERE Handle = 1", "rfm_Array", 1, "Bytes",
     "do not fit the length"},
    {"BooleanInArray", "UPDATE rfm_Array SET Bytes = x'010002' WHERE Type = 1", "rfm_Array", 3, "Bytes",
     "neither 0 nor 1"},
    {"HoleInElements", "DELETE FROM rom_Element WHERE ClassID = 0x230001 AND OID = 4 AND Position = 1",
     "rom_Element", 4, "Position 1", "without holes"},
    {"TooFewElements", "DELETE FROM rom_Element WHERE ClassID = 0x230001 AND OID = 4 AND Position = 3",
     "cls_List", 4, "Target#Length", "fewer elements than it says"},
    {"TooManyTexts", "UPDATE cls_List SET \"Target#Length\" = 3 WHERE OID = 4", "cls_List", 4,
     "Target#Length", "more elements than it says"},
    {"TooManyObjects", "UPDATE cls_List SET \"Target#Length\" = 1 WHERE OID = 9", "cls_List", 9,
     "Target#Length", "more elements than it says"},
    {"TooFewObjects", "UPDATE cls_List SET \"Target#Length\" = 3 WHERE OID = 9", "cls_List", 9,
     "Target#Length", "fewer elements than it says"},
    {"HugeCountOfElements", "UPDATE cls_List SET \"Target#Length\" = 2147483647 WHERE OID = 9", "cls_List", 9,
     "Target#Length", "more elements than the store has room for"},
    {"NumberForTextElement",
     "UPDATE rom_Element SET Value = 1 WHERE ClassID = 0x230001 AND OID = 4 AND Position = 1", "cls_List", 4,
     "[1]", "Expected a text, found an integer (1)"},
    {"TextForNumberElement",
     "UPDATE rom_Element SET Value = 'x' WHERE ClassID = 0x230002 AND OID = 1 AND Position = 0", "cls_Map", 1,
     "[0]", "found a text"},
    {"DoubleForFloat",
     "UPDATE rom_Element SET Value = 0.1 WHERE ClassID = 0x230002 AND OID = 1 AND Position = 0", "cls_Map", 1,
     "[0]", "single precision"},
    {"NumberForTextKey",
     "UPDATE rom_Element SET Key = 1 WHERE ClassID = 0x230002 AND OID = 5 AND Position = 0", "cls_Map", 5,
     "[0]", "Expected a text as the key"},
    {"TextForNumberKey",
     "UPDATE rom_Element SET Key = 'x' WHERE ClassID = 0x230002 AND OID = 6 AND Position = 1", "cls_Map", 6,
     "[1]", "an integer of 32 bits as the key"},
    {"DanglingElement",
     "UPDATE rom_Element SET \"Target#OID\" = 99 WHERE ClassID = 0x230002 AND OID = 5 AND Position = 1",
     "cls_Map", 5, "[1]", "no row 99 in table tst_Node"},
    {"ElementOfAnotherClass",
     "UPDATE rom_Element SET \"Target#ClassID\" = 0x230002 WHERE ClassID = 0x230002 AND OID = 5 AND Position "
     "= 1",
     "cls_Map", 5, "[1]", "Expected an object of class tst_Part"},
    {"NewerTable", "UPDATE rom_Class SET Version = 425 WHERE Name = 'tst_Whole'", "tst_Whole", noRow, "",
     "written by a newer release: it has version 425"},
    {"OlderTable", "UPDATE rom_Class SET Version = 203 WHERE Name = 'tst_Whole'", "tst_Whole", noRow, "",
     "must be upgraded to version 424 first"},
    {"OtherBase", "UPDATE rom_Class SET BaseClassID = 1 WHERE Name = 'tst_Whole'", "tst_Whole", noRow,
     "BaseClassID", "another base"},
    {"OtherName", "UPDATE rom_Class SET Name = 'tst_Node' WHERE Name = 'tst_Whole'", "tst_Node", noRow, "",
     "should have the name tst_Whole"},
    {"NameOfOwnTable", "UPDATE rom_Class SET Name = 'rom_Class' WHERE Name = 'tst_Whole'", "rom_Class",
     0xFF0002, "Name", "the name of a class"},
    {"NoVersion", "UPDATE rom_Class SET Version = NULL WHERE Name = 'tst_Whole'", "rom_Class", 0xFF0002,
     "Version", "schema version"},
    {"RootOfAnotherClass", "UPDATE rom_Root SET \"Target#ClassID\" = 0x230001", "", noRow, "",
     "Expected an object of class tst_Part"},
    {"RootTwice", "INSERT INTO rom_Root VALUES (2, 'model', 0xFF0003, 1, NULL)", "rom_Root", 2, "Name",
     "twice"},
    {"ViewForTable", "ALTER TABLE tst_Part RENAME TO hidden; CREATE VIEW tst_Part AS SELECT * FROM hidden",
     "tst_Part", noRow, "", "not a table of the form"},
    {"GeneratedColumn",
     "ALTER TABLE tst_Part DROP COLUMN number; ALTER TABLE tst_Part ADD COLUMN number AS (OID)", "tst_Part",
     noRow, "number", "not an ordinary one"},
    {"KeyIsNoKey",
     "ALTER TABLE tst_Part RENAME TO old; CREATE TABLE tst_Part AS SELECT * FROM old; DROP TABLE old",
     "tst_Part", noRow, "OID", "INTEGER PRIMARY KEY"},
    {"ElementsWithoutKey",
     "ALTER TABLE rom_Element RENAME TO old; CREATE TABLE rom_Element AS SELECT * FROM old; DROP TABLE old",
     "rom_Element", noRow, "", "not a table of the form"},
    {"WriteAheadLogging", "PRAGMA journal_mode = WAL", "", noRow, "", "write-ahead logging"},
    {"NewerForm", "PRAGMA user_version = 2", "", noRow, "", "needs a newer release: it has form 2"},
    {"NoForm", "PRAGMA user_version = 0", "", noRow, "", "no form number"},
    {"AnotherApplication", "PRAGMA application_id = 7", "", noRow, "", "not a stored model"},
};

class DamagedStore : public testing::TestWithParam<Damage>
{
protected:
    tst_Folder folder;
};

TEST_P(DamagedStore, IsRefusedWithItsPlace)
{
    const std::string path = folder / "store";
    tst_Save(path, *Model());
    tst_Execute(path, withoutChecks);
    EXPECT_NO_THROW(tst_Load(path)) << "sound without check numbers";
    tst_Execute(path, GetParam().sql);
    const std::string before = tst_ReadFile(path);
    const rom_StoreException error = Refusal(path);
    EXPECT_STREQ(GetParam().table, error.Table().CString());
    EXPECT_EQ(GetParam().row, error.Row());
    EXPECT_STREQ(GetParam().field, error.Field().CString());
    EXPECT_NE(std::string::npos, std::string(error.Message().CString()).find(GetParam().message))
        << error.what();
    EXPECT_EQ(before, tst_ReadFile(path));
    EXPECT_EQ("store", folder.Names());
}

INSTANTIATE_TEST_SUITE_P(Each, DamagedStore, testing::ValuesIn(damages),
                         [](const testing::TestParamInfo<Damage>& info) { return info.param.name; });

class BadStore : public testing::Test
{
protected:
    void SetUp() override
    {
        tst_Save(Path(), *Model());
        sound = tst_ReadFile(Path());
        expected = tst_Describe(tst_Load(Path()).ConstGet());
    }

    std::string Path() const { return folder / "store"; }

    enum class Outcome
    {
        Right,
        Refused,
        Wrong
    };

    Outcome Read() const
    {
        try
        {
            return tst_Describe(tst_Load(Path()).ConstGet()) == expected ? Outcome::Right : Outcome::Wrong;
        }
        catch (const rom_StoreException&)
        {
            return Outcome::Refused;
        }
    }

    tst_Folder folder;
    std::string sound;
    std::string expected;
};

TEST_F(BadStore, OfAnyOtherContentIsRefused)
{
    for (const std::string& content :
         {std::string(), std::string("x"), std::string("SQLite format 3"), std::string(100, '\0'),
          std::string(100000, 'x'), "SQLite format 3" + std::string(100000, '\0'),
          "{\"amplitudes\": {}}" + std::string(200, ' ')})
    {
        tst_WriteFile(Path(), content);
        EXPECT_NE(std::string::npos, std::string(Refusal(Path()).what()).find("not a stored model"));
        EXPECT_THROW(rom_StoreWriter(Path().c_str()), rom_StoreException);
        EXPECT_EQ(content, tst_ReadFile(Path()));
    }
    std::filesystem::remove(Path());
    tst_Execute(Path(), "CREATE TABLE foreign_data (x); INSERT INTO foreign_data VALUES (1)");
    EXPECT_NE(std::string::npos, std::string(Refusal(Path()).what()).find("not a stored model"));
    EXPECT_THROW(rom_StoreWriter(Path().c_str()), rom_StoreException);
    EXPECT_EQ("1", tst_Query(Path(), "SELECT x FROM foreign_data"));
}

TEST_F(BadStore, ThatIsNoFileIsRefused)
{
    EXPECT_NE(std::string::npos, std::string(Refusal(folder / ".").what()).find("a folder"));
    EXPECT_THROW(rom_StoreWriter((folder / ".").c_str()), rom_StoreException);
    EXPECT_NE(std::string::npos, std::string(Refusal(folder / "none").what()).find("No such file"));
    EXPECT_NE(std::string::npos, std::string(Refusal("/dev/null").what()).find("no ordinary file"));
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(0, mkfifo(pipe.c_str(), 0600));
    EXPECT_NE(std::string::npos, std::string(Refusal(pipe).what()).find("no ordinary file"));
    EXPECT_THROW(rom_StoreReader(""), rom_StoreException);
    EXPECT_THROW(rom_StoreReader(":memory:"), rom_StoreException);
    EXPECT_THROW(rom_StoreReader("file:store?mode=memory"), rom_StoreException);
    EXPECT_EQ("pipe store", folder.Names());
}

TEST_F(BadStore, CutOffAnywhereIsRefused)
{
    for (std::size_t length = 0; length < sound.size(); length += length < 2000 ? 97 : 4096)
    {
        tst_WriteFile(Path(), sound.substr(0, length));
        EXPECT_NO_FATAL_FAILURE(Refusal(Path())) << "cut off at " << length;
    }
    tst_WriteFile(Path(), sound.substr(0, sound.size() - 1));
    Refusal(Path());
}

TEST_F(BadStore, WithFlippedBitsIsReadRightOrRefused)
{
    std::mt19937 random(1);
    int refused = 0;
    constexpr int rounds = 1000;
    for (int round = 0; round < rounds; ++round)
    {
        std::string damaged = sound;
        // The bytes in use lie at the beginning and the end of each page.
        const int flips = 1 + static_cast<int>(random() % 4);
        for (int flip = 0; flip < flips; ++flip)
        {
            std::size_t at = random() % damaged.size();
            for (int attempt = 0; attempt < 20 && damaged[at] == 0; ++attempt)
                at = random() % damaged.size();
            damaged[at] = static_cast<char>(damaged[at] ^ (1 << random() % 8));
        }
        tst_WriteFile(Path(), damaged);
        const Outcome outcome = Read();
        EXPECT_NE(Outcome::Wrong, outcome) << "round " << round;
        refused += outcome == Outcome::Refused;
    }
    EXPECT_GT(refused, rounds / 2) << "the flips must hit something that is read";
}

TEST_F(BadStore, WithAFlipInAnyByteOfANumberIsRefused)
{
    // The array of the child's doubles, wherever it lies.
    const char first[] = "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x80\0\0\0\0\0\0\xF0\x3F";
    const std::size_t at = sound.find(std::string(first, sizeof first - 1));
    ASSERT_NE(std::string::npos, at);
    for (std::size_t i = 0; i < 88; ++i)
    {
        for (int bit = 0; bit < 8; ++bit)
        {
            std::string damaged = sound;
            damaged[at + i] = static_cast<char>(damaged[at + i] ^ (1 << bit));
            tst_WriteFile(Path(), damaged);
            const rom_StoreException error = Refusal(Path());
            EXPECT_EQ("rfm_Array", error.Table());
            EXPECT_EQ(1, error.Row());
            EXPECT_EQ("##Check", error.Field());
        }
    }
}

TEST_F(BadStore, NestedTooDeeplyIsRefused)
{
    Handle inner(new tst_Node);
    for (int i = 0; i < 500; ++i)
    {
        auto outer = std::make_unique<tst_Node>();
        outer->child = inner;
        inner = Handle(outer.release());
    }
    tst_Save(folder / "deep", *inner);
    EXPECT_NE(std::string::npos,
              std::string(Refusal(folder / "deep").what()).find("more deeply than a model can"));
}

TEST_F(BadStore, ThatGivesOneRowOverAndOverIsRefused)
{
    auto root = std::make_unique<tst_Node>();
    for (int i = 0; i < 3000; ++i)
        root->list.emplace_back(new tst_Whole);
    auto big = std::make_unique<tst_Whole>();
    big->doubles = []
    {
        cow_List<double> list;
        for (int i = 0; i < 200000; ++i)
            list.Append(1.0);
        return list;
    }();
    root->child = Handle(big.release());
    tst_Save(folder / "bomb", *root);
    tst_Execute(folder / "bomb", withoutChecks);
    tst_Execute(folder / "bomb", "UPDATE tst_Whole SET \"doubles#OID\" = (SELECT OID FROM cls_List "
                                 "ORDER BY \"Target#Length\" DESC LIMIT 1)");
    EXPECT_NE(std::string::npos, std::string(Refusal(folder / "bomb").what()).find("over and over"));
}

TEST_F(BadStore, IsNotReplaced)
{
    for (const char* sql :
         {"CREATE TABLE other (x)", "CREATE VIEW other AS SELECT 1",
          "CREATE TRIGGER other AFTER INSERT ON tst_Part BEGIN SELECT 1; END",
          "INSERT INTO rom_Class VALUES (5, 'other', 1, 1, NULL); CREATE TABLE other "
          "(OID INTEGER PRIMARY KEY, \"##Check\" INTEGER)",
          "UPDATE rom_Class SET Version = 203, \"##Check\" = NULL WHERE Name = 'tst_Whole'",
          "UPDATE rom_Class SET Version = 999, \"##Check\" = NULL WHERE Name = 'tst_Whole'"})
    {
        tst_WriteFile(Path(), sound);
        tst_Execute(Path(), sql);
        const std::string before = tst_ReadFile(Path());
        EXPECT_THROW(rom_StoreWriter(Path().c_str()), rom_StoreException) << sql;
        EXPECT_EQ(before, tst_ReadFile(Path())) << sql;
        EXPECT_EQ("store", folder.Names());
    }
}

TEST_F(BadStore, UnknownTablesAreListedAndReadPast)
{
    tst_Execute(Path(), "CREATE TABLE other (x); INSERT INTO rom_Class VALUES (5, 'more', 1, 1, NULL); "
                        "CREATE TABLE more (OID INTEGER PRIMARY KEY, \"##Check\" INTEGER)");
    rom_StoreReader reader(Path().c_str());
    ASSERT_EQ(2u, reader.UnknownTables().size());
    EXPECT_EQ("more", reader.UnknownTables()[0]);
    EXPECT_EQ("other", reader.UnknownTables()[1]);
    EXPECT_EQ(expected, tst_Describe(tst_Load(Path()).ConstGet()));
}

TEST_F(BadStore, ReleasesWhatWasReadBeforeTheError)
{
    tst_Execute(Path(), withoutChecks);
    tst_Execute(Path(), "UPDATE rom_Element SET \"Target#OID\" = 99 WHERE ClassID = 0x230002 AND OID = 6");
    const std::size_t before = mem_BlocksInUse();
    for (int i = 0; i < 10; ++i)
        EXPECT_THROW(tst_Load(Path()), rom_StoreException);
    EXPECT_LE(mem_BlocksInUse(), before + 2) << "objects were left behind";
}

/// Runs `deed` as a user to whom permissions apply; true if it says so.
template <class Deed>
bool AsNobody(Deed deed)
{
    const pid_t child = fork();
    if (child == 0)
    {
        if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
            _exit(2);
        _exit(deed() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST_F(BadStore, WithoutPermissionIsReadButNotReplaced)
{
    ASSERT_EQ(0, chmod((folder / ".").c_str(), 0755));
    ASSERT_EQ(0, chmod(Path().c_str(), 0444));
    EXPECT_TRUE(AsNobody([this] { return tst_Describe(tst_Load(Path()).ConstGet()) == expected; }));
    const auto isRefused = [](const std::string& path)
    {
        try
        {
            rom_StoreWriter writer(path.c_str());
        }
        catch (const rom_StoreException&)
        {
            return true;
        }
        return false;
    };
    EXPECT_TRUE(AsNobody([&] { return isRefused(Path()); }));
    EXPECT_TRUE(AsNobody([&] { return isRefused(folder / "new"); }));
    ASSERT_EQ(0, chmod(Path().c_str(), 0));
    EXPECT_TRUE(AsNobody(
        [this]
        {
            Refusal(Path());
            return !HasFailure();
        }));
}

} // namespace
