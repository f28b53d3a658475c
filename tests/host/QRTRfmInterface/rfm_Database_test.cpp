#include "rfm_Check.h"
#include "rfm_Cursor.h"
#include "rfm_Database.h"
#include "rfm_Inserter.h"
#include "rfm_NewFile.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

namespace
{

rfm_TableInfo Numbers()
{
    return {"numbers",
            0xFF0001,
            7,
            1,
            {{"i", rfm_ColumnKind::Integer},
             {"r", rfm_ColumnKind::Real},
             {"t", rfm_ColumnKind::Text},
             {"b", rfm_ColumnKind::Blob}}};
}

class Database : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "ovr-rfm-XXXXXX").string();
        ASSERT_NE(nullptr, mkdtemp(pattern.data()));
        folder = pattern;
        path = (folder / "it's \"a\" file").c_str();
    }

    void TearDown() override { std::filesystem::remove_all(folder); }

    /// A store with `count` rows, the keys of which are `step` apart.
    void MakeRows(int count, int step)
    {
        rfm_Database database(path, rfm_Access::Create);
        database.CreateTable(Numbers());
        {
            rfm_Inserter inserter(database, rfm_TableForm::Of(Numbers()));
            for (int i = 1; i <= count; ++i)
            {
                const std::string text = "row " + std::to_string(i);
                const rfm_Cell cells[] = {rfm_Cell::Integer(i), rfm_Cell::Real(i / 2.0), rfm_Cell::Text(text),
                                          rfm_Cell::Null()};
                inserter.Insert(std::int64_t{i} * step, cells);
            }
            inserter.Flush();
        }
        database.Commit();
    }

    std::filesystem::path folder;
    cow_String path;
};

TEST(Check, IsTheDocumentedNumber)
{
    // Reckoned by hand from the description of the file.
    std::uint64_t state = 0x9E3779B97F4A7C15u ^ 0xFF0001u;
    const auto add = [&state](std::uint64_t word)
    {
        state = (state ^ word) * 0x9FB21C651E98DF25u;
        state ^= state >> 32;
    };
    add(5);
    state += std::uint64_t{1} << 56;
    add(static_cast<std::uint64_t>(-3));
    state += std::uint64_t{2} << 56;
    add(0x3FF8000000000000u);
    add((std::uint64_t{3} << 56) | 9);
    add(0x6867666564636261u);
    add(0x69u);
    add((std::uint64_t{4} << 56) | 1);
    add(0xFFu);
    add(std::uint64_t{5} << 56);
    add((std::uint64_t{4} << 56) | 8);
    add(std::uint64_t{1} << 63);

    rfm_Check check(0xFF0001, 5);
    check.Add(rfm_Cell::Integer(-3));
    check.Add(rfm_Cell::Real(1.5));
    check.Add(rfm_Cell::Text("abcdefghi"));
    check.Add(rfm_Cell::Blob("\xFF", 1));
    check.Add(rfm_Cell::Null());
    check.Add(rfm_Cell::Real(-0.0));
    EXPECT_EQ(static_cast<std::int64_t>(state), check.Number());
}

TEST(Check, DiffersForEveryBit)
{
    const std::string text = "some text of a length";
    const auto number = [](unsigned seed, std::int64_t key, const std::string& bytes)
    {
        rfm_Check check(seed, key);
        check.Add(rfm_Cell::Text(bytes));
        return check.Number();
    };
    const std::int64_t sound = number(1, 2, text);
    EXPECT_NE(sound, number(3, 2, text));
    EXPECT_NE(sound, number(1, 3, text));
    for (std::size_t bit = 0; bit < text.size() * 8; ++bit)
    {
        std::string flipped = text;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << bit % 8));
        EXPECT_NE(sound, number(1, 2, flipped));
    }
}

TEST_F(Database, GivesRowsInAnyOrder)
{
    constexpr int count = 1000;
    MakeRows(count, 3);
    rfm_Database database(path, rfm_Access::Read);
    rfm_Cursor cursor(database, rfm_TableForm::Of(Numbers()));
    for (const int row : {1, 2, 3, 500, 499, 500, 1000, 1, 1})
    {
        ASSERT_TRUE(cursor.Seek(row * 3)) << row;
        EXPECT_EQ(row * 3, cursor.Key());
        EXPECT_EQ(row, cursor.Cells()[0].integer);
        EXPECT_EQ(row / 2.0, cursor.Cells()[1].real);
        EXPECT_EQ("row " + std::to_string(row), cursor.Cells()[2].View());
        EXPECT_TRUE(cursor.Cells()[3].IsNull());
    }
    for (const int missing : {0, 4, 5, 3001, -1})
        EXPECT_FALSE(cursor.Seek(missing)) << missing;
    EXPECT_TRUE(cursor.Seek(6)) << "a search in vain does no harm";
    int found = 0;
    for (bool there = cursor.SeekFrom(0); there; there = cursor.Next())
        EXPECT_EQ(++found, cursor.Cells()[0].integer);
    EXPECT_EQ(count, found);
}

TEST_F(Database, StepsToTheNextKey)
{
    MakeRows(100, 1);
    rfm_Database database(path, rfm_Access::Read);
    rfm_Cursor cursor(database, rfm_TableForm::Of(Numbers()));
    EXPECT_FALSE(cursor.IsNext(1));
    for (int row = 1; row <= 100; ++row)
    {
        EXPECT_EQ(row > 1, cursor.IsNext(row));
        ASSERT_TRUE(cursor.Seek(row));
        EXPECT_EQ(row, cursor.Cells()[0].integer);
    }
    EXPECT_FALSE(cursor.Seek(101));
}

TEST_F(Database, TellsItsTables)
{
    MakeRows(1, 1);
    rfm_Database database(path, rfm_Access::Read);
    ASSERT_EQ(1u, database.Tables().size());
    const rfm_TableInfo* table = database.FindTable(0xFF0001);
    ASSERT_NE(nullptr, table);
    EXPECT_EQ("numbers", table->name);
    EXPECT_EQ(7, table->version);
    EXPECT_EQ(1u, table->baseClassId);
    ASSERT_EQ(4u, table->columns.size());
    EXPECT_EQ("t", table->columns[2].name);
    EXPECT_EQ(rfm_ColumnKind::Text, table->columns[2].kind);
    EXPECT_EQ(nullptr, database.FindTable(0xFF0000));
    EXPECT_EQ(nullptr, database.FindTable(0xFF0002));
    EXPECT_TRUE(database.ForeignParts().empty());
    EXPECT_TRUE(database.Roots().empty());
}

TEST_F(Database, KeepsArraysBitForBit)
{
    const double signalling = std::bit_cast<double>(std::uint64_t{0x7FF0000000000001});
    const std::vector<double> values = {0.0, -0.0, signalling, -std::numeric_limits<double>::infinity(),
                                        5e-324};
    const std::vector<double> many(50000, 1.5);
    std::int64_t handle = 0;
    std::int64_t manyHandle = 0;
    {
        rfm_Database database(path, rfm_Access::Create);
        rfm_Array<double, rfm_TypeDouble> array = database.ArrayDouble(0);
        EXPECT_EQ(0, array.Length());
        array.Write(values.data(), static_cast<std::int64_t>(values.size()));
        handle = array.Handle();
        array.Write(many.data(), static_cast<std::int64_t>(many.size()));
        manyHandle = array.Handle();
        database.Commit();
    }
    EXPECT_NE(handle, manyHandle);
    rfm_Database database(path, rfm_Access::Read);
    const auto array = database.ArrayDouble(handle);
    ASSERT_EQ(5, array.Length());
    EXPECT_EQ(1, array.FieldCount());
    std::vector<double> read(values.size());
    array.Read(read.data());
    EXPECT_EQ(0, std::memcmp(values.data(), read.data(), sizeof(double) * values.size()));
    EXPECT_EQ(50000, database.ArrayDouble(manyHandle).Length());
    EXPECT_THROW(database.ArrayDouble(99).Length(), rom_StoreException);
}

TEST_F(Database, PutsRowsOfAnySizeIn)
{
    const std::vector<std::size_t> sizes = {0, 1, 32767, 32768, 32769, 1000000, 3, 20000, 20000, 5};
    {
        rfm_Database database(path, rfm_Access::Create);
        database.CreateTable(Numbers());
        {
            rfm_Inserter inserter(database, rfm_TableForm::Of(Numbers()));
            for (std::size_t i = 0; i < sizes.size(); ++i)
            {
                const std::string blob(sizes[i], static_cast<char>('a' + i));
                const rfm_Cell cells[] = {rfm_Cell::Integer(0), rfm_Cell::Real(std::nan("")),
                                          rfm_Cell::Text(""), rfm_Cell::Blob(blob.data(), blob.size())};
                inserter.Insert(static_cast<std::int64_t>(i), cells);
            }
            inserter.Flush();
        }
        database.Commit();
    }
    rfm_Database database(path, rfm_Access::Read);
    rfm_Cursor cursor(database, rfm_TableForm::Of(Numbers()));
    for (std::size_t i = 0; i < sizes.size(); ++i)
    {
        ASSERT_TRUE(cursor.Seek(static_cast<std::int64_t>(i)));
        EXPECT_EQ(std::string(sizes[i], static_cast<char>('a' + i)), cursor.Cells()[3].View());
        EXPECT_TRUE(cursor.Cells()[1].Is(rfm_CellKind::Blob)) << "NaN needs its bits";
        EXPECT_TRUE(cursor.Cells()[2].Is(rfm_CellKind::Text));
    }
}

TEST_F(Database, IsGoneUnlessCommitted)
{
    {
        rfm_Database database(path, rfm_Access::Create);
        database.CreateTable(Numbers());
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(Database, CanNotWriteWhereItReads)
{
    MakeRows(1, 1);
    rfm_Database database(path, rfm_Access::Read);
    rfm_TableInfo other = Numbers();
    other.name = "other";
    EXPECT_THROW(database.CreateTable(other), rom_StoreException);
}

TEST_F(Database, IsEmptyAfterItsContentIsRemoved)
{
    MakeRows(10, 1);
    {
        rfm_Database database(path, rfm_Access::Replace);
        database.RemoveContent();
        EXPECT_TRUE(database.Tables().empty());
    }
    {
        rfm_Database database(path, rfm_Access::Read);
        EXPECT_EQ(1u, database.Tables().size()) << "not committed";
    }
    {
        rfm_Database database(path, rfm_Access::Replace);
        database.RemoveContent();
        database.Commit();
    }
    rfm_Database database(path, rfm_Access::Read);
    EXPECT_TRUE(database.Tables().empty());
}

TEST_F(Database, NamesItsFileAndTable)
{
    MakeRows(1, 1);
    rfm_Database database(path, rfm_Access::Read);
    rfm_TableForm form = rfm_TableForm::Of(Numbers());
    form.columns[0].name = "none";
    try
    {
        rfm_Cursor cursor(database, form);
        FAIL() << "a column that is not there was read";
    }
    catch (const rom_StoreException& error)
    {
        EXPECT_EQ(path, error.StoreFile());
        EXPECT_EQ("numbers", error.Table());
        EXPECT_NE(std::string::npos, std::string(error.what()).find("none"));
    }
}

TEST(Quoting, DoublesQuotes)
{
    EXPECT_EQ("\"plain\"", rfm_Quoted("plain"));
    EXPECT_EQ("\"a\"\"b\"", rfm_Quoted("a\"b"));
}

} // namespace
