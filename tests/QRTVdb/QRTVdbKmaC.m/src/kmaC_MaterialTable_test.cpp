#include "MaterialSupport.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

using Rows = std::vector<std::vector<double>>;

kmaC_MaterialTable TableOfRows(const Rows& rows)
{
    kmaC_MaterialTable table(static_cast<int>(rows.size()),
                             rows.empty() ? 0 : static_cast<int>(rows.front().size()));
    for (std::size_t r = 0; r < rows.size(); ++r)
    {
        for (std::size_t c = 0; c < rows[r].size(); ++c)
            table.table.Set(static_cast<int>(r), static_cast<int>(c), rows[r][c]);
    }
    return table;
}

Rows RowsOf(const kmaC_MaterialTable& table)
{
    Rows rows;
    for (int r = 0; r < table.Rows(); ++r)
    {
        rows.emplace_back();
        for (int c = 0; c < table.Columns(); ++c)
            rows.back().push_back(table.Value(r, c));
    }
    return rows;
}

TEST(kmaC_MaterialTable, IsEmptyByDefault)
{
    const kmaC_MaterialTable table;
    EXPECT_EQ(0, table.Rows());
    EXPECT_EQ(0, table.Columns());
    EXPECT_FALSE(table.allowEmptyFirstRow);
    EXPECT_FALSE(table.Uid().IsBlank());
    EXPECT_EQ(kmaC_MaterialTable::TypeId(), table.DynTypeId());
    EXPECT_EQ(0x2380058u, table.DynTypeId());
}

TEST(kmaC_MaterialTable, TakesAShapeOrAnArray)
{
    const kmaC_MaterialTable shaped(2, 3);
    EXPECT_EQ(2, shaped.Rows());
    EXPECT_EQ(3, shaped.Columns());
    EXPECT_EQ(0.0, shaped.Value(1, 2));
    cow_2DArray<double> array(1, 2);
    array.Set(0, 1, 5.0);
    const kmaC_MaterialTable taken(array);
    EXPECT_EQ(5.0, taken.Value(0, 1));
    EXPECT_FALSE(taken.Uid().IsBlank());
    EXPECT_FALSE(shaped.Uid().IsBlank());
    EXPECT_NE(taken.Uid(), shaped.Uid());
}

struct BlankRow
{
    const char* input;
    kmaC_MaterialTable table;
    bool allowEmptyFirstRow;
    std::string verdict;
};

TEST(kmaC_MaterialTable, RefusesABlankRow)
{
    const BlankRow rows[] = {
        {"no rows", kmaC_MaterialTable(), false, passes},
        {"rows and no columns", kmaC_MaterialTable(3, 0), false, passes},
        {"no zero", TableOf({{1, 2}, {3, 4}}), false, passes},
        {"one zero in each row", TableOf({{0, 2}, {3, 0}}), false, passes},
        {"only a blank row", TableOf({{0, 0}}), false, blankRow},
        {"only a blank row, allowed", TableOf({{0, 0}}), true, passes},
        {"two blank rows, the first allowed", TableOf({{0, 0}, {0, 0}}), true, blankRow},
        {"a second row that is blank", TableOf({{1, 2}, {0, 0}}), false, blankRow},
        {"a second row that is blank, the first allowed", TableOf({{1, 2}, {0, 0}}), true, blankRow},
        {"a last row that is blank", TableOf({{1}, {2}, {0}}), false, blankRow},
        {"zeros and a NaN", TableOf({{0, notANumber, 0}}), false, passes},
        {"negative zeros", TableOf({{-0.0, -0.0}}), false, blankRow},
        {"the least number", TableOf({{0, 5e-324}}), false, passes},
    };
    for (const BlankRow& row : rows)
    {
        kmaC_MaterialTable table(row.table);
        table.allowEmptyFirstRow = row.allowEmptyFirstRow;
        EXPECT_EQ(row.verdict, Verdict(table)) << row.input;
    }
}

TEST(kmaC_MaterialTable, IsEqualByShapeAndNumbers)
{
    const kmaC_MaterialTable table = TableOf({{1, 2}, {3, 4}});
    kmaC_MaterialTable flagged = TableOf({{1, 2}, {3, 4}});
    flagged.allowEmptyFirstRow = true;
    EXPECT_TRUE(table == flagged) << "the flag takes no part";
    EXPECT_FALSE(table != flagged);
    EXPECT_TRUE(table != TableOf({{1, 2, 3, 4}}));
    EXPECT_TRUE(table != TableOf({{1, 2}, {3, 5}}));
    EXPECT_TRUE(table != TableOf({{1, 2}}));
    EXPECT_TRUE(TableOf({{0.0}}) == TableOf({{-0.0}}));
    const kmaC_MaterialTable withNaN = TableOf({{1, notANumber}});
    EXPECT_TRUE(withNaN != withNaN) << "a NaN equals nothing";
    EXPECT_TRUE(kmaC_MaterialTable() == kmaC_MaterialTable());
    EXPECT_TRUE(kmaC_MaterialTable() != kmaC_MaterialTable(2, 0));
}

struct SortRow
{
    const char* input;
    int keyCount;
    Rows before;
    Rows after;
};

TEST(kmaC_MaterialTable, SortsByItsLastColumns)
{
    const SortRow rows[] = {
        {"no key", 0, {{2, 2}, {1, 1}}, {{2, 2}, {1, 1}}},
        {"one key", 1, {{1, 2}, {9, 1}}, {{9, 1}, {1, 2}}},
        {"equal keys keep their order", 1, {{3, 1}, {2, 1}, {1, 0}}, {{1, 0}, {3, 1}, {2, 1}}},
        {"the last column weighs most",
         2,
         {{0, 1, 2}, {0, 9, 1}, {0, 3, 1}, {0, 0, 2}},
         {{0, 3, 1}, {0, 9, 1}, {0, 0, 2}, {0, 1, 2}}},
        {"as many keys as columns", 2, {{2, 1}, {1, 1}}, {{1, 1}, {2, 1}}},
        {"more keys than columns", 7, {{2, 1}, {1, 1}}, {{1, 1}, {2, 1}}},
        {"a negative count", -1, {{2, 2}, {1, 1}}, {{2, 2}, {1, 1}}},
        {"infinities",
         1,
         {{std::numeric_limits<double>::infinity()}, {0}, {-std::numeric_limits<double>::infinity()}},
         {{-std::numeric_limits<double>::infinity()}, {0}, {std::numeric_limits<double>::infinity()}}},
        {"no rows", 1, {}, {}},
    };
    for (const SortRow& row : rows)
    {
        kmaC_MaterialTable table = TableOfRows(row.before);
        table.Sort(row.keyCount);
        EXPECT_EQ(row.after, RowsOf(table)) << row.input;
    }
}

TEST(kmaC_MaterialTable, StopsTheWalkOfASortAtANaN)
{
    // 1 does not pass the NaN, and so not what stands before it.
    kmaC_MaterialTable table = TableOf({{5, 3}, {6, notANumber}, {7, 1}, {8, 0}});
    table.Sort(1);
    EXPECT_EQ(5, table.Value(0, 0));
    EXPECT_EQ(6, table.Value(1, 0));
    EXPECT_EQ(8, table.Value(2, 0));
    EXPECT_EQ(7, table.Value(3, 0));
    EXPECT_TRUE(std::isnan(table.Value(1, 1)));
}

/// The sort as the data model's rows have it: each row walks back past the greater ones.
void SortRowByRow(Rows& rows, int keyCount)
{
    const auto isGreater = [keyCount](const std::vector<double>& left, const std::vector<double>& right)
    {
        for (int i = 0; i < keyCount; ++i)
        {
            const std::size_t column = left.size() - 1 - static_cast<std::size_t>(i);
            if (left[column] > right[column])
                return true;
            if (!(left[column] == right[column]))
                return false;
        }
        return false;
    };
    for (std::size_t i = 1; i < rows.size(); ++i)
    {
        const std::vector<double> held = rows[i];
        std::size_t place = i;
        for (; place > 0 && isGreater(rows[place - 1], held); --place)
            rows[place] = rows[place - 1];
        rows[place] = held;
    }
}

RC_GTEST_PROP(kmaC_MaterialTable, SortsAsByInsertion, ())
{
    const auto columns = *rc::gen::inRange(1, 4);
    const auto number = rc::gen::weightedOneOf<double>(
        {{9, rc::gen::map(rc::gen::inRange(-2, 3), [](int n) { return static_cast<double>(n); })},
         {*rc::gen::inRange(0, 2), rc::gen::just(notANumber)}});
    Rows rows = *rc::gen::container<Rows>(
        rc::gen::container<std::vector<double>>(static_cast<std::size_t>(columns), number));
    const int keyCount = *rc::gen::inRange(1, columns + 1);
    kmaC_MaterialTable table = TableOfRows(rows);
    table.Sort(keyCount);
    SortRowByRow(rows, keyCount);
    RC_ASSERT(TableOfRows(rows).table.IdenticalTo(table.table));
}

TEST(kmaC_MaterialTable, SortsManyRowsInTime)
{
    const int count = 200000;
    kmaC_MaterialTable table(count, 2);
    for (int row = 0; row < count; ++row)
        table.table.Set(row, 1, count - row);
    table.Sort(1);
    EXPECT_EQ(1.0, table.Value(0, 1));
    EXPECT_EQ(count, table.Value(count - 1, 1));
}

std::string Refusal(kmaC_MaterialTable& table, const cls_Value& value)
{
    try
    {
        cls_ImportRecord(table, value);
    }
    catch (const cls_ValueError& error)
    {
        return error.what();
    }
    return "taken";
}

TEST(kmaC_MaterialTable, IsExchangedAsRowsAndFlag)
{
    using Array = cls_Value::Array;
    using Object = cls_Value::Object;
    const cls_Value exported = cls_ExportRecord(TableOf({{1, 2}}));
    EXPECT_EQ(exported, cls_Value(Object{{"table", Array{Array{1.0, 2.0}}}, {"allowEmptyFirstRow", false}}));
    kmaC_MaterialTable table = kmaC_MaterialTable::WithEmptyFirstRow();
    EXPECT_EQ("taken", Refusal(table, Array{Array{3, 4.5}}));
    EXPECT_EQ((Rows{{3, 4.5}}), RowsOf(table));
    EXPECT_TRUE(table.allowEmptyFirstRow) << "plain rows leave the flag alone";
    EXPECT_EQ("taken", Refusal(table, Object{{"allowEmptyFirstRow", false}}));
    EXPECT_EQ((Rows{{3, 4.5}}), RowsOf(table)) << "what is left out stays as it is";
    EXPECT_FALSE(table.allowEmptyFirstRow);
    const kmaC_MaterialTable before(table);
    EXPECT_EQ("expected rows of numbers, or an object with \"table\", found 5", Refusal(table, 5));
    EXPECT_EQ("[1]: expected an array of 1, as in the first row, found an array of 2",
              Refusal(table, Array{Array{1}, Array{1, 2}}));
    EXPECT_EQ("allowEmptyFirstRow: expected true or false, found 1",
              Refusal(table, Object{{"table", Array{Array{9}}}, {"allowEmptyFirstRow", 1}}));
    EXPECT_TRUE(before == table) << "a refused value leaves the table as it was";
}

} // namespace
