#include "mdl_PropertyTable.h"

#include "nex_Exceptions.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>
#include <vector>

namespace
{
constexpr double blank = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

using Row = std::vector<double>;
using Rows = std::vector<Row>;

mdl_PropertyTable Table(const Rows& rows)
{
    cow_2DArray<double> data(static_cast<int>(rows.size()),
                             rows.empty() ? 0 : static_cast<int>(rows[0].size()));
    for (int row = 0; row < data.Rows(); ++row)
    {
        for (int column = 0; column < data.Columns(); ++column)
            data.Set(row, column, rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
    }
    return mdl_PropertyTable(data);
}

mdl_PropertyTable Sorted(const Rows& rows, int keyCount)
{
    mdl_PropertyTable table = Table(rows);
    table.Sort(keyCount);
    return table;
}

bool Identical(const mdl_PropertyTable& left, const mdl_PropertyTable& right)
{
    return left.ConstGetData().IdenticalTo(right.ConstGetData());
}

TEST(mdl_PropertyTable, AnEmptyOneHasNoRowsAndNoColumns)
{
    const mdl_PropertyTable empty;
    EXPECT_EQ(empty.Rows(), 0);
    EXPECT_EQ(empty.Columns(), 0);
    empty.AssertValid();
}

TEST(mdl_PropertyTable, SharesTheArrayThatItIsMadeFrom)
{
    cow_2DArray<double> data(2, 3);
    data.Set(1, 2, 7.0);
    const mdl_PropertyTable table(data);
    EXPECT_EQ(table.ConstGetData().ConstData(), data.ConstData());
    data.Set(1, 2, 8.0);
    EXPECT_EQ(table.Value(1, 2), 7.0);
    EXPECT_EQ(table.Rows(), 2);
    EXPECT_EQ(table.Columns(), 3);
}

TEST(mdl_PropertyTable, ACopyKeepsItsDataWhenTheOtherChanges)
{
    mdl_PropertyTable table = Table({{1.0}});
    const mdl_PropertyTable copy(table);
    table.SetData(cow_2DArray<double>(2, 1));
    EXPECT_EQ(table.Rows(), 2);
    EXPECT_EQ(copy, Table({{1.0}}));
}

TEST(mdl_PropertyTable, EqualityLooksAtShapeAndNumbers)
{
    EXPECT_EQ(mdl_PropertyTable(), mdl_PropertyTable());
    EXPECT_EQ(Table({{1.0, 2.0}}), Table({{1.0, 2.0}}));
    EXPECT_EQ(Table({{0.0}}), Table({{-0.0}}));
    EXPECT_NE(Table({{1.0, 2.0}}), Table({{1.0, 3.0}}));
    EXPECT_NE(Table({{1.0, 2.0}}), Table({{1.0}, {2.0}}));
    EXPECT_NE(Table({{1.0}}), mdl_PropertyTable());
}

TEST(mdl_PropertyTable, ABlankCellIsEqualToNothing)
{
    const mdl_PropertyTable table = Table({{1.0, blank}});
    EXPECT_FALSE(table == table);
    EXPECT_TRUE(table != table);
}

TEST(mdl_PropertyTable, IsValidWithoutBlankCells)
{
    for (const Rows& rows : {Rows{}, Rows{{}}, Rows{{0.0}}, Rows{{0.0, 0.0}, {0.0, 0.0}},
                             Rows{{-1e36, 1e36, infinity, -infinity}}})
        Table(rows).AssertValid();
}

TEST(mdl_PropertyTable, ABlankCellIsNamedByRowAndColumn)
{
    struct Case
    {
        Rows rows;
        const char* text;
    };
    const Case cases[] = {
        {{{blank}}, "Row 1, column 1 of the table holds no number."},
        {{{1.0, 2.0, 3.0}, {4.0, 5.0, -blank}}, "Row 2, column 3 of the table holds no number."},
        {{{1.0, 2.0}, {blank, 5.0}, {blank, blank}}, "Row 2, column 1 of the table holds no number."},
    };
    for (const Case& each : cases)
    {
        try
        {
            Table(each.rows).AssertValid();
            ADD_FAILURE() << "nothing thrown, expected: " << each.text;
        }
        catch (const nex_PrimException<atr_String, 1>& error)
        {
            EXPECT_STREQ(error.what(), each.text);
        }
    }
}

TEST(mdl_PropertyTable, SortsByTheLastColumns)
{
    const Rows rows{{1.0, 5.0}, {2.0, 4.0}, {3.0, 6.0}};
    EXPECT_EQ(Sorted(rows, 1), Table({{2.0, 4.0}, {1.0, 5.0}, {3.0, 6.0}}));
}

TEST(mdl_PropertyTable, TheLastColumnWeighsMost)
{
    // Force, displacement, temperature: one curve after the other, each by ascending displacement.
    const Rows rows{{1.0, 0.2, 20.0}, {2.0, 0.1, 100.0}, {3.0, 0.1, 20.0}, {4.0, 0.0, 100.0}};
    EXPECT_EQ(Sorted(rows, 2),
              Table({{3.0, 0.1, 20.0}, {1.0, 0.2, 20.0}, {4.0, 0.0, 100.0}, {2.0, 0.1, 100.0}}));
}

TEST(mdl_PropertyTable, RowsWithEqualKeysKeepTheirOrder)
{
    const Rows rows{{9.0, 1.0}, {3.0, 0.0}, {7.0, 1.0}, {1.0, -0.0}, {8.0, 1.0}};
    EXPECT_EQ(Sorted(rows, 1), Table({{3.0, 0.0}, {1.0, 0.0}, {9.0, 1.0}, {7.0, 1.0}, {8.0, 1.0}}));
}

TEST(mdl_PropertyTable, BlankKeysComeLast)
{
    const Rows rows{{1.0, blank}, {2.0, infinity}, {3.0, -blank}, {4.0, -infinity}};
    EXPECT_TRUE(
        Identical(Sorted(rows, 1), Table({{4.0, -infinity}, {2.0, infinity}, {1.0, blank}, {3.0, -blank}})));
}

TEST(mdl_PropertyTable, ACountBelowOneSortsNothing)
{
    const Rows rows{{2.0, 2.0}, {1.0, 1.0}};
    for (const int keyCount : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_EQ(Sorted(rows, keyCount), Table(rows)) << keyCount;
}

TEST(mdl_PropertyTable, ACountAboveTheColumnsSortsByAllOfThem)
{
    const Rows rows{{2.0, 2.0}, {1.0, 2.0}, {3.0, 1.0}};
    for (const int keyCount : {2, 3, std::numeric_limits<int>::max()})
        EXPECT_EQ(Sorted(rows, keyCount), Table({{3.0, 1.0}, {1.0, 2.0}, {2.0, 2.0}})) << keyCount;
}

TEST(mdl_PropertyTable, SortingNothingIsFine)
{
    EXPECT_EQ(Sorted({}, 3), mdl_PropertyTable());
    EXPECT_EQ(Sorted({{}, {}}, 3), Table({{}, {}}));
}

TEST(mdl_PropertyTable, ATableInOrderKeepsItsData)
{
    mdl_PropertyTable table = Table({{1.0}, {1.0}, {2.0}, {blank}});
    const mdl_PropertyTable copy(table);
    table.Sort(1);
    EXPECT_EQ(table.ConstGetData().ConstData(), copy.ConstGetData().ConstData());
}

TEST(mdl_PropertyTable, SortingLeavesTheSharersAlone)
{
    mdl_PropertyTable table = Table({{2.0}, {1.0}});
    const mdl_PropertyTable copy(table);
    table.Sort(1);
    EXPECT_EQ(copy, Table({{2.0}, {1.0}}));
    EXPECT_EQ(table, Table({{1.0}, {2.0}}));
}

/// Whether the row may not stand before the other, told by its own rule for the last `keyCount` numbers.
bool IsAfter(const Row& row, const Row& other, std::size_t keyCount)
{
    for (std::size_t key = 0; key < keyCount; ++key)
    {
        const double left = row[row.size() - 1 - key];
        const double right = other[other.size() - 1 - key];
        if (std::isnan(left) != std::isnan(right))
            return std::isnan(left);
        if (!std::isnan(left) && left != right)
            return left > right;
    }
    return false;
}

/// Sorts by swapping neighbours, which keeps equal rows in order.
Rows SortedByNeighbours(Rows rows, std::size_t keyCount)
{
    for (std::size_t end = rows.size(); end > 1; --end)
    {
        for (std::size_t i = 1; i < end; ++i)
        {
            if (IsAfter(rows[i - 1], rows[i], keyCount))
                std::swap(rows[i - 1], rows[i]);
        }
    }
    return rows;
}

RC_GTEST_PROP(mdl_PropertyTable, SortsAsSwappingNeighboursDoes, ())
{
    const auto columns = *rc::gen::inRange<std::size_t>(1, 5);
    const auto keyCount = *rc::gen::inRange<std::size_t>(0, columns + 1);
    const auto number = rc::gen::element(-infinity, -1.0, -0.0, 0.0, 1.0, 2.0, infinity, blank);
    const Rows rows = *rc::gen::container<Rows>(rc::gen::container<Row>(columns, number));
    RC_ASSERT(Identical(Sorted(rows, static_cast<int>(keyCount)), Table(SortedByNeighbours(rows, keyCount))));
}
} // namespace
