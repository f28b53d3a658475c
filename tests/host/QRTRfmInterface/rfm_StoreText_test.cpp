#include "rfm_StoreText.h"

#include "TemporaryFolder.h"
#include "rfm_CellText.h"
#include "rfm_Database.h"
#include "rfm_Inserter.h"
#include "rfm_Statement.h"
#include "rfm_TableForm.h"
#include "rom_StoreException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <limits>
#include <string>
#include <vector>

#include <sqlite3.h>

namespace
{

using testing::HasSubstr;

std::string TextOf(const std::string& store, const rfm_StoreTextOptions& options = {})
{
    rfm_Database database(store.c_str(), rfm_Access::Read);
    return rfm_StoreText(database, options);
}

void Execute(const std::string& store, const std::string& sql)
{
    sqlite3* connection = nullptr;
    ASSERT_EQ(SQLITE_OK, sqlite3_open(store.c_str(), &connection));
    char* error = nullptr;
    EXPECT_EQ(SQLITE_OK, sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, &error)) << error;
    sqlite3_close(connection);
}

/// All tables of a file, cell by cell, as plain SQLite has them.
std::vector<std::string> RawRows(const std::string& store)
{
    std::vector<std::string> rows;
    const auto collect = [](const std::string& file, const std::string& sql)
    {
        std::vector<std::string> found;
        sqlite3* connection = nullptr;
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(SQLITE_OK, sqlite3_open(file.c_str(), &connection));
        EXPECT_EQ(SQLITE_OK, sqlite3_prepare_v2(connection, sql.c_str(), -1, &statement, nullptr)) << sql;
        while (sqlite3_step(statement) == SQLITE_ROW)
        {
            std::string row;
            for (int i = 0; i < sqlite3_column_count(statement); ++i)
            {
                row += std::to_string(sqlite3_column_type(statement, i)) + ':';
                const double real = sqlite3_column_double(statement, i);
                if (sqlite3_column_type(statement, i) == SQLITE_FLOAT)
                    row += std::to_string(std::bit_cast<std::uint64_t>(real));
                else if (const void* bytes = sqlite3_column_blob(statement, i))
                    row.append(static_cast<const char*>(bytes),
                               static_cast<std::size_t>(sqlite3_column_bytes(statement, i)));
                row += '|';
            }
            found.push_back(row);
        }
        sqlite3_finalize(statement);
        sqlite3_close(connection);
        return found;
    };
    for (const std::string& schema :
         collect(store, "SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name"))
    {
        const std::string name = schema.substr(2, schema.size() - 3);
        rows.push_back(name);
        const std::vector<std::string> found = collect(store, "SELECT * FROM \"" + name + "\"");
        rows.insert(rows.end(), found.begin(), found.end());
    }
    return rows;
}

/// The message with which a text is refused, without the name of the file; empty if it is taken.
std::string Refusal(const std::string& text)
{
    const TemporaryFolder folder;
    try
    {
        rfm_MakeStoreOfText(folder / "made", text, "FILE");
    }
    catch (const rom_StoreException& error)
    {
        EXPECT_TRUE(folder.Names().empty()) << "something is left of what was refused";
        const std::string message = error.what();
        EXPECT_EQ(0u, message.find("FILE:")) << message;
        return message.substr(std::min<std::size_t>(5, message.size()));
    }
    return "";
}

constexpr const char* sample = R"(rom_Root  -- 1 row
  OID  Name     Target
  1    "model"  0x7F0001:1

nobody_Knows: class 0x7F0001, version 4711  -- 3 rows
  OID  count:integer         length:real              name:text            data:object    any:any
  1    -9223372036854775808  1.7976931348623157e+308  "a \"b\" \\ \n\x00"  0x230001:1     1
  2    9223372036854775807   -0.0                     "grüß\xFF"           -              1.0
  7    0                     NaN                      ""                   0x230001:-     x'00ff'

Derived: class 0x7F0002, version -3, base 0x7F0001  -- 1 row
  OID  ##BaseClassOID  x:real
  1    7               Infinity

cls_List: class 0x230001, version 203  -- 1 row
  OID  Target#Collection  Target#Length  Target#Columns  Target#Handle
  1    82                 4              2               1

rom_Element  -- 2 rows
  ClassID   OID  Position  Key   Value  Target
  0x230002  1    0         "a"   -      0x7F0001:1
  0x230002  1    1         17    1.5    -

rfm_Array  -- 3 rows
  Handle  Type  Length  Bytes
  1       4     4       [0, -0.0, 1e-300, NaN(7ff8000000000001)]
  2       1     2       [0, 1]
  3       2     1       [-2147483648]
)";

/// The table that a row is put into where a test is about one value.
std::string Table(const std::string& title, const std::string& row)
{
    return "T: class 0x7F0001, version 1\n  OID " + title + "\n  1 " + row + '\n';
}

TEST(StoreText, ComesBackAsTheSameText)
{
    const TemporaryFolder folder;
    rfm_MakeStoreOfText(folder / "one", sample, "sample");
    const std::string text = TextOf(folder / "one");
    rfm_MakeStoreOfText(folder / "two", text, "text");
    EXPECT_EQ(text, TextOf(folder / "two"));
    EXPECT_EQ(RawRows(folder / "one"), RawRows(folder / "two"));
}

TEST(StoreText, HasTablesByAscendingClass)
{
    const TemporaryFolder folder;
    rfm_MakeStoreOfText(
        folder / "one",
        "B: class 2, version 1\n  OID x:integer\n  1 5\n\nA: class 1, version 1, base 0x2\n  OID\n",
        "sample");
    EXPECT_EQ("A: class 0x1, version 1, base 0x2  -- 0 rows\n  OID\n"
              "\nB: class 0x2, version 1  -- 1 row\n  OID  x:integer\n  1    5\n",
              TextOf(folder / "one"));
}

TEST(StoreText, HoldsWhatAStoreHolds)
{
    const TemporaryFolder folder;
    rfm_MakeStoreOfText(folder / "one", sample, "sample");
    rfm_Database database((folder / "one").c_str(), rfm_Access::Read);
    ASSERT_EQ(3u, database.Tables().size());
    const rfm_TableInfo& table = *database.FindTable(0x7F0001);
    EXPECT_EQ(cow_String("nobody_Knows"), table.name);
    EXPECT_EQ(4711, table.version);
    EXPECT_EQ(1u, table.baseClassId);
    const std::vector<std::pair<const char*, rfm_ColumnKind>> expected = {
        {"##Uid", rfm_ColumnKind::Blob},
        {"count", rfm_ColumnKind::Integer},
        {"length", rfm_ColumnKind::Real},
        {"name", rfm_ColumnKind::Text},
        {"data#ClassID", rfm_ColumnKind::Integer},
        {"data#OID", rfm_ColumnKind::Integer},
        {"any", rfm_ColumnKind::Any}};
    ASSERT_EQ(expected.size(), table.columns.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
    {
        EXPECT_EQ(cow_String(expected[i].first), table.columns[i].name);
        EXPECT_EQ(expected[i].second, table.columns[i].kind) << expected[i].first;
    }
    // The cursor compares the check numbers, so they are there and right.
    rfm_Cursor cursor(database, rfm_TableForm::Of(table));
    ASSERT_TRUE(cursor.Seek(1));
    EXPECT_TRUE(cursor.Check().Is(rfm_CellKind::Integer));
    EXPECT_EQ(std::numeric_limits<std::int64_t>::min(), cursor.Cells()[1].integer);
    EXPECT_EQ(std::string_view("a \"b\" \\ \n\0", 10), cursor.Cells()[3].View());
    ASSERT_TRUE(cursor.Seek(2));
    EXPECT_EQ(std::string_view("gr\xC3\xBC\xC3\x9F\xFF"), cursor.Cells()[3].View());
    ASSERT_TRUE(cursor.Seek(7));
    EXPECT_FALSE(cursor.Next());
    EXPECT_EQ(0x7F0002u, database.Tables()[2].classId);
    EXPECT_EQ(0x7F0001u, database.Tables()[2].baseClassId);
    EXPECT_EQ(-3, database.Tables()[2].version);
    ASSERT_EQ(1u, database.Roots().size());
    double numbers[4];
    ASSERT_EQ(4, database.ArrayDouble(1).Length());
    database.ArrayDouble(1).Read(numbers);
    EXPECT_EQ(0x7FF8000000000001u, std::bit_cast<std::uint64_t>(numbers[3]));
    EXPECT_EQ(std::uint64_t{1} << 63, std::bit_cast<std::uint64_t>(numbers[1]));
}

TEST(StoreText, MakesIdentitiesUpAlwaysAlikeAndAllDifferent)
{
    const TemporaryFolder folder;
    const std::string rows =
        "A: class 1, version 1\n  OID\n  1\n  2\nB: class 2, version 1\n  OID\n  1\n  2\n";
    rfm_MakeStoreOfText(folder / "one", rows, "rows");
    std::vector<std::string> uids;
    {
        rfm_Database database((folder / "one").c_str(), rfm_Access::Read);
        for (const rfm_TableInfo& table : database.Tables())
        {
            rfm_Cursor cursor(database, rfm_TableForm::Of(table));
            for (bool there = cursor.SeekFrom(0); there; there = cursor.Next())
                uids.emplace_back(cursor.Cells()[0].View());
        }
    }
    ASSERT_EQ(4u, uids.size());
    EXPECT_EQ(std::string("text\x01\0\0\0\x02\0\0\0\0\0\0\0", 16), uids[1]);
    std::sort(uids.begin(), uids.end());
    EXPECT_EQ(uids.end(), std::unique(uids.begin(), uids.end()));
}

TEST(StoreText, ShowsIdentitiesThatAreNotMadeUp)
{
    const TemporaryFolder folder;
    const std::string text = "A: class 0x1, version 1  -- 1 row\n  OID  ##Uid  x:integer\n"
                             "  1    x'00112233445566778899aabbccddeeff'  5\n";
    rfm_MakeStoreOfText(folder / "one", text, "rows");
    EXPECT_THAT(TextOf(folder / "one"), HasSubstr("x'00112233445566778899aabbccddeeff'"));
    EXPECT_EQ("A: class 0x1, version 1  -- 1 row\n  OID  x:integer\n  1    5\n",
              TextOf(folder / "one", {.withUids = false}));
}

TEST(StoreText, KeepsTablesWithoutIdentities)
{
    const TemporaryFolder folder;
    const std::string text = "A: class 0x1, version 1, no uids  -- 1 row\n  OID  x:integer\n  1    5\n";
    rfm_MakeStoreOfText(folder / "one", text, "rows");
    EXPECT_EQ(text, TextOf(folder / "one"));
    rfm_Database database((folder / "one").c_str(), rfm_Access::Read);
    EXPECT_EQ(1u, database.Tables()[0].columns.size());
}

TEST(StoreText, KeepsRowsWithoutCheckNumber)
{
    const TemporaryFolder folder;
    const std::string text = "A: class 0x1, version 1, check=-  -- 2 rows\n  OID  x:integer\n"
                             "  1    5          check=-\n  2    6\n";
    rfm_MakeStoreOfText(folder / "one", text, "rows");
    EXPECT_EQ("A: class 0x1, version 1, check=-  -- 2 rows\n  OID  x:integer\n  1    5  check=-\n  2    6\n",
              TextOf(folder / "one"));
    EXPECT_EQ("A: class 0x1, version 1  -- 2 rows\n  OID  x:integer\n  1    5\n  2    6\n",
              TextOf(folder / "one", {.withChecks = false}));
}

TEST(StoreText, LeavesOutColumnsThatHoldNothing)
{
    const TemporaryFolder folder;
    const std::string text = "A: class 0x1, version 1\n  OID  a:text  b:object  c:object  d:integer  e:real\n"
                             "  1    \"-\"     -         0x1:1     -          -\n"
                             "  2    -       -         -         -          0.0\n"
                             "B: class 0x2, version 1\n  OID  a:text\n";
    rfm_MakeStoreOfText(folder / "one", text, "rows");
    EXPECT_EQ("A: class 0x1, version 1  -- 2 rows\n  OID  a:text  c:object  e:real\n"
              "  1    \"-\"     0x1:1     -\n  2    -       -         0.0\n"
              "\nB: class 0x2, version 1  -- 0 rows\n  OID\n",
              TextOf(folder / "one", {.withEmptyColumns = false}));
}

TEST(StoreText, MarksDamagedRowsAndKeepsThem)
{
    const TemporaryFolder folder;
    rfm_MakeStoreOfText(folder / "one", sample, "sample");
    Execute(folder / "one", "UPDATE nobody_Knows SET count = 5 WHERE OID = 7;"
                            "UPDATE rom_Element SET Position = 4 WHERE Position = 1;"
                            "UPDATE rfm_Array SET Length = 3 WHERE Handle = 2;"
                            "UPDATE rom_Root SET Name = 'other'");
    std::string text;
    {
        rfm_Database database((folder / "one").c_str(), rfm_Access::Read);
        EXPECT_EQ(4, rfm_WriteStoreText(database, [&text](std::string_view piece) { text += piece; }));
    }
    EXPECT_THAT(text, HasSubstr("-- damaged: the row does not fit its check number"));
    EXPECT_THAT(text, HasSubstr("x'0001'")) << "bytes that do not fit their length are no list";
    rfm_MakeStoreOfText(folder / "two", text, "text");
    EXPECT_EQ(text, TextOf(folder / "two"));
    EXPECT_EQ(RawRows(folder / "one"), RawRows(folder / "two"));
}

TEST(StoreText, ReadsStoresThatLackTablesOfTheirOwn)
{
    const TemporaryFolder folder;
    rfm_MakeStoreOfText(folder / "one", "A: class 0x1, version 1\n  OID\n  1\n", "rows");
    Execute(folder / "one", "DROP TABLE rom_Element; DROP TABLE rfm_Array");
    EXPECT_EQ("A: class 0x1, version 1  -- 1 row\n  OID\n  1\n", TextOf(folder / "one"));
}

TEST(StoreText, TellsOfPartsThatAreNoneOfAStore)
{
    const TemporaryFolder folder;
    rfm_MakeStoreOfText(folder / "one", "A: class 0x1, version 1\n  OID\n", "rows");
    Execute(folder / "one", "CREATE TABLE notes (t); INSERT INTO notes VALUES ('x')");
    const std::string text = TextOf(folder / "one");
    EXPECT_THAT(text, HasSubstr("-- \"notes\": no part of a store, left out"));
    EXPECT_EQ("", Refusal(text));
}

TEST(StoreText, MayBeWrittenLoosely)
{
    const TemporaryFolder folder;
    rfm_MakeStoreOfText(folder / "one",
                        "-- a comment\r\n\r\nA:class 1,version 0x10,base 2 -- what it is\r\n"
                        "\tOID   ##BaseClassOID x:real   \"odd name\":text r:object s#OID:any\r\n"
                        "\r\n 1 4\t-7 \"\" 0x230001 : 9 - check = - -- a row\r\n   ",
                        "rows");
    EXPECT_EQ("A: class 0x1, version 16, base 0x2  -- 1 row\n"
              "  OID  ##BaseClassOID  x:real  \"odd name\":text  r:object    s#OID:any\n"
              "  1    4               -7.0    \"\"               0x230001:9  -  check=-\n",
              TextOf(folder / "one"));
}

TEST(StoreText, RefusesWhatItCannotRead)
{
    const struct
    {
        std::string text;
        const char* message; ///< line, column, what was expected
    } rows[] = {
        {"  1 2 3\n", "1:3: expected the beginning of a table at the margin, as in kamC_Decay: class "
                      "0x2440003, version 203"},
        {"A\n",
         "1:2: expected a colon and the class of the table, or one of rom_Root, rom_Element and rfm_Array"},
        {"A: klass 1\n", "1:4: expected class"},
        {"A: class -1, version 1\n", "1:10: expected a class id of 32 bits"},
        {"A: class 0x100000000, version 1\n", "1:10: expected a class id of 32 bits"},
        {"A: class 1 version 1\n", "1:12: expected ,"},
        {"A: class 1, version 1.5\n", "1:21: expected a schema version"},
        {"A: class 1, version 1, bass 2\n", "1:24: expected base, no uids or check"},
        {"A: class 1, version 1, check=\"1\"\n", "1:30: expected a check number, or - for none"},
        {"A: class 1, version 1 rows\n", "1:23: expected the end of the line"},
        {"\"\": class 1, version 1\n", "1:1: expected a name"},
        {"A: class 1, version 1\n  OID\nB: class 1, version 1\n",
         "3:10: expected another class: the table of this one stands above"},
        {"rom_Root\n  OID Name Target\nrom_Root\n", "3:1: expected another table: this one stands above"},
        {"rom_Root\n  OID Name\n", "2:11: expected the columns OID Name Target"},
        {"rom_Root\n  OID Name Target\n  1 \"model\"\n",
         "3:12: expected a value for Target, for the columns are OID Name Target"},
        {"A: class 1, version 1\n  x:integer\n", "2:3: expected OID"},
        {Table("x", "1"), "2:8: expected the kind of the column, as in x:integer"},
        {Table("x:number", "1"), "2:9: expected one of integer, real, text, blob, any, object"},
        {Table("x:integer", ""), "3:5: expected a value for x:integer, for the columns are OID x:integer"},
        {Table("x:integer", "1 2"), "3:7: expected the end of the row, for the columns are OID x:integer"},
        {Table("x:integer", "1 check=x"),
         "3:13: expected a value: a number, \"text\", x'00ff' or - for none"},
        {Table("x:integer", "abc"), "3:5: expected a value: a number, \"text\", x'00ff' or - for none"},
        {Table("x:integer", "1.0"), "3:5: expected a whole number"},
        {Table("x:integer", "\" 12\""), "3:5: expected a whole number"},
        {Table("x:integer", "9223372036854775808"), "3:5: expected a whole number of 64 bits"},
        {Table("x:integer", "12a"), "3:5: expected a number"},
        {Table("x:real", "\"1e5\""), "3:5: expected a number"},
        {Table("x:real", "1e999"), "3:5: expected a number that a double can hold"},
        {Table("x:real", "9007199254740993"),
         "3:5: expected a number that a double can hold, with a point or an exponent"},
        {Table("x:real", "NaN(3ff0000000000000)"), "3:8: expected the bits of a NaN"},
        {Table("x:real", "NaN(7ff8)"), "3:13: expected a hexadecimal digit"},
        {Table("x:text", "5"), "3:5: expected a text in quotes"},
        {Table("x:text", "\"grün"), "3:5: the text that begins here has no end: expected \""},
        {Table("x:text", "\"ü\\q\""), "3:7: expected one of \\\" \\\\ \\n \\r \\t \\x00"},
        {Table("x:text", "\"\\x0\""), "3:9: expected a hexadecimal digit"},
        {Table("x:blob", "x'0"), "3:8: expected a hexadecimal digit"},
        {Table("x:blob", "x'00"), "3:5: the bytes that begin here have no end: expected '"},
        {Table("x:object", "5"), "3:6: expected : and the row of the object, as in 0x230001:7"},
        {Table("x:integer", "1") + "  1 1\n",
         "4:3: expected more than in the row before: rows stand in ascending order"},
        {"T: class 1, version 1\n  OID\n  \"a\"\n", "3:3: expected a whole number"},
        {"rom_Element\n  ClassID OID Position Key Value Target\n  1 1 1 - - -\n  1 1 0 - - -\n",
         "4:7: expected more than in the row before: rows stand in ascending order"},
        {"rfm_Array\n  Handle Type Length Bytes\n  1 4 2 [1]\n",
         "3:9: expected as many numbers as the length says; these are 1"},
        {"rfm_Array\n  Handle Type Length Bytes\n  1 3 1 [1]\n",
         "3:9: numbers can be listed for the types 1 (boolean), 2 (integer) and 4 (double) only"},
        {"rfm_Array\n  Handle Type Length Bytes\n  1 1 1 [2]\n", "3:10: expected 0 or 1"},
        {"rfm_Array\n  Handle Type Length Bytes\n  1 2 1 [2147483648]\n",
         "3:10: expected a whole number of 32 bits"},
        {"rfm_Array\n  Handle Type Length Bytes\n  1 4 1 [nan]\n", "3:10: expected a number"},
        {"rfm_Array\n  Handle Type Length Bytes\n  1 4 1 [1", "3:11: expected ,"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.message, Refusal(row.text)) << row.text;
}

TEST(StoreText, RefusesNamesThatSqlCannotHave)
{
    EXPECT_THAT(Refusal("A: class 1, version 1\n  OID x:integer X:integer\n"), HasSubstr("1:1: "));
    EXPECT_THAT(Refusal("a: class 1, version 1\n  OID\nA: class 2, version 1\n  OID\n"), HasSubstr("3:1: "));
    EXPECT_THAT(Refusal("rom_Class: class 1, version 1\n  OID\n"), HasSubstr("1:1: "));
    EXPECT_THAT(Refusal("sqlite_x: class 1, version 1\n  OID\n"), HasSubstr("1:1: "));
}

TEST(StoreText, IsNotReplacedByALaterOne)
{
    const TemporaryFolder folder;
    rfm_MakeStoreOfText(folder / "one", sample, "sample");
    const std::string before = TextOf(folder / "one");
    EXPECT_THROW(rfm_MakeStoreOfText(folder / "one", "", "empty"), rom_StoreException);
    EXPECT_EQ(before, TextOf(folder / "one"));
}

TEST(CellText, KnowsWhatSqlTakesForNumbers)
{
    sqlite3* connection = nullptr;
    ASSERT_EQ(SQLITE_OK, sqlite3_open(":memory:", &connection));
    ASSERT_EQ(SQLITE_OK, sqlite3_exec(connection, "CREATE TABLE t (x INTEGER)", nullptr, nullptr, nullptr));
    for (const char* text : {"",     " ",   "1",   " 1 ",   "+1",
                             "-1",   "--1", "1.",  ".1",    ".",
                             "1.5",  "1e5", "1e",  "1e+",   "1e+5",
                             "0x10", "1 1", "inf", "nan",   "\t\n\v\f\r7",
                             "1a",   "e5",  ".e5", "1_000", "9223372036854775808"})
    {
        sqlite3_stmt* statement = nullptr;
        ASSERT_EQ(SQLITE_OK, sqlite3_prepare_v2(connection, "INSERT INTO t VALUES (?) RETURNING typeof(x)",
                                                -1, &statement, nullptr));
        sqlite3_bind_text(statement, 1, text, -1, SQLITE_STATIC);
        ASSERT_EQ(SQLITE_ROW, sqlite3_step(statement));
        const std::string type = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        sqlite3_finalize(statement);
        EXPECT_EQ(type != "text", rfm_LooksNumeric(text)) << '"' << text << '"';
    }
    sqlite3_close(connection);
}

/// A cell of any kind, owned.
struct AnyCell
{
    int kind;
    std::int64_t integer;
    std::string bytes;

    rfm_Cell Cell() const
    {
        switch (kind)
        {
        case 0:
            return rfm_Cell::Integer(integer);
        case 1:
            return rfm_Cell::Real(std::bit_cast<double>(integer));
        case 2:
            return rfm_Cell::Text(bytes);
        case 3:
            return rfm_Cell::Blob(bytes.data(), bytes.size());
        default:
            return rfm_Cell::Null();
        }
    }
};

rc::Gen<AnyCell> AnyCells()
{
    return rc::gen::map(
        rc::gen::tuple(
            rc::gen::inRange(0, 5),
            rc::gen::oneOf(rc::gen::arbitrary<std::int64_t>(),
                           rc::gen::element<std::int64_t>(
                               0, -1, std::numeric_limits<std::int64_t>::max(),
                               std::bit_cast<std::int64_t>(-0.0),
                               std::bit_cast<std::int64_t>(std::numeric_limits<double>::infinity()),
                               std::bit_cast<std::int64_t>(-std::numeric_limits<double>::infinity()),
                               std::bit_cast<std::int64_t>(std::numeric_limits<double>::quiet_NaN()),
                               std::bit_cast<std::int64_t>(std::numeric_limits<double>::denorm_min()),
                               std::bit_cast<std::int64_t>(1e300), std::bit_cast<std::int64_t>(3.0))),
            rc::gen::container<std::string>(rc::gen::arbitrary<char>())),
        [](const std::tuple<int, std::int64_t, std::string>& parts) {
            return AnyCell{std::get<0>(parts), std::get<1>(parts), std::get<2>(parts)};
        });
}

/// Whatever a store holds, in whichever column, with the right check number, a wrong one or none, comes back.
RC_GTEST_PROP(StoreTextProperty, KeepsEveryRow, ())
{
    const TemporaryFolder folder;
    const rfm_TableInfo table{"t",
                              0x7F0001,
                              1,
                              1,
                              {{"##Uid", rfm_ColumnKind::Blob},
                               {"i", rfm_ColumnKind::Integer},
                               {"r", rfm_ColumnKind::Real},
                               {"t", rfm_ColumnKind::Text},
                               {"a#ClassID", rfm_ColumnKind::Integer},
                               {"a#OID", rfm_ColumnKind::Integer},
                               {"n", rfm_ColumnKind::Any}}};
    const int count = *rc::gen::inRange(0, 6);
    {
        rfm_Database database((folder / "one").c_str(), rfm_Access::Create);
        database.CreateTable(table);
        {
            rfm_Inserter inserter(database, rfm_TableForm::Of(table));
            for (int row = 0; row < count; ++row)
            {
                const auto values =
                    *rc::gen::container<std::vector<AnyCell>>(table.columns.size(), AnyCells());
                std::vector<rfm_Cell> cells;
                for (const AnyCell& value : values)
                    cells.push_back(value.Cell());
                if (*rc::gen::inRange(0, 3) == 0)
                    inserter.Insert(row, cells.data(), rfm_Cell::Null());
                else
                    inserter.Insert(row, cells.data());
            }
            inserter.Flush();
        }
        database.Commit();
    }
    const std::string text = TextOf(folder / "one");
    rfm_MakeStoreOfText(folder / "two", text, "text");
    RC_ASSERT(RawRows(folder / "one") == RawRows(folder / "two"));
    RC_ASSERT(text == TextOf(folder / "two"));
}

/// Text that is cut anywhere, or of which a letter was changed, is taken or refused with its place.
RC_GTEST_PROP(StoreTextProperty, NeverLosesItsWay, ())
{
    std::string text = sample;
    const auto place = *rc::gen::inRange<std::size_t>(0, text.size());
    if (*rc::gen::arbitrary<bool>())
        text.resize(place);
    else
        text[place] = *rc::gen::arbitrary<char>();
    const std::string message = Refusal(text);
    RC_ASSERT(message.empty() || (message[0] >= '1' && message[0] <= '9'));
}

} // namespace
