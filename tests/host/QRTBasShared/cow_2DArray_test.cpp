#include "cow_2DArray.h"

#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <rapidcheck/gtest.h>

namespace
{
using Array = cow_2DArray<double>;

Array Numbered(int rows, int columns)
{
    Array array(rows, columns);
    if (array.Data() != nullptr)
        std::iota(array.Data(), array.Data() + rows * columns, 1.0);
    return array;
}

TEST(cow_2DArray, IsEmptyByDefault)
{
    Array array;
    EXPECT_EQ(array.Rows(), 0);
    EXPECT_EQ(array.Columns(), 0);
    EXPECT_EQ(array.ConstData(), nullptr);
    EXPECT_EQ(array.Data(), nullptr);
    EXPECT_EQ(array.ShareCount(), 0);
    EXPECT_TRUE(array == Array(0, 0));
    EXPECT_TRUE(array.IdenticalTo(Array(0, 0)));
}

TEST(cow_2DArray, StartsWithZeros)
{
    const Array array(3, 4);
    EXPECT_EQ(array.Rows(), 3);
    EXPECT_EQ(array.Columns(), 4);
    for (int row = 0; row < 3; ++row)
    {
        for (int column = 0; column < 4; ++column)
        {
            EXPECT_EQ(array.ConstGet(row, column), 0.0);
            EXPECT_FALSE(std::signbit(array.ConstGet(row, column)));
        }
    }
}

TEST(cow_2DArray, KeepsTheSizeOfAnArrayWithoutValues)
{
    const Array flat(0, 3);
    EXPECT_EQ(flat.Rows(), 0);
    EXPECT_EQ(flat.Columns(), 3);
    EXPECT_EQ(flat.ConstData(), nullptr);
    EXPECT_FALSE(flat == Array(3, 0));
    EXPECT_FALSE(flat == Array());
    EXPECT_TRUE(flat == Array(0, 3));
    EXPECT_TRUE(flat.IdenticalTo(Array(0, 3)));
}

TEST(cow_2DArray, HoldsRowsOneBehindTheOther)
{
    const Array array = Numbered(2, 3);
    EXPECT_EQ(array.ConstGet(0, 2), 3.0);
    EXPECT_EQ(array.ConstGet(1, 0), 4.0);
    EXPECT_EQ(array.ConstData() + 5, &array.ConstGet(1, 2));
}

TEST(cow_2DArray, CopiesShareUntilOneChanges)
{
    Array first = Numbered(2, 2);
    const Array second(first);
    EXPECT_EQ(first.ShareCount(), 2);
    EXPECT_EQ(first.ConstData(), second.ConstData());
    first.Set(1, 1, 9.0);
    EXPECT_EQ(first.ConstGet(1, 1), 9.0);
    EXPECT_EQ(first.ConstGet(0, 0), 1.0);
    EXPECT_EQ(second.ConstGet(1, 1), 4.0);
    EXPECT_EQ(second.ShareCount(), 1);
    const double* place = first.ConstData();
    first.Get(0, 1) = 8.0;
    EXPECT_EQ(first.ConstData(), place);
    Array third(first);
    EXPECT_NE(third.Data(), first.ConstData());
    EXPECT_EQ(third.ConstGet(0, 1), 8.0);
}

TEST(cow_2DArray, ComparesByValue)
{
    Array left = Numbered(2, 2);
    Array right = Numbered(2, 2);
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left == Numbered(1, 4));
    EXPECT_FALSE(left == Numbered(4, 1));
    right.Set(1, 0, 0.0);
    EXPECT_TRUE(left != right);
    left.Set(1, 0, -0.0);
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left.IdenticalTo(right));
    left.Set(0, 0, std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(left == left);
    const Array copy(left);
    EXPECT_TRUE(left.IdenticalTo(copy));
    left.Set(1, 1, left.ConstGet(1, 1));
    EXPECT_NE(left.ConstData(), copy.ConstData());
    EXPECT_TRUE(left.IdenticalTo(copy));
}

TEST(cow_2DArray, HoldsOtherNumbers)
{
    cow_2DArray<int> array(1, 2);
    array.Set(0, 1, INT_MIN);
    EXPECT_EQ(array.ConstGet(0, 0), 0);
    EXPECT_EQ(array.ConstGet(0, 1), INT_MIN);
}

TEST(cow_2DArray, ASizeThatMemoryCannotHoldThrows)
{
    EXPECT_THROW(Array(INT_MAX, INT_MAX), std::bad_alloc);
    const Array array;
    EXPECT_EQ(array.Rows(), 0);
}

TEST(cow_2DArrayDeathTest, ABadIndexAborts)
{
    const Array array(2, 3);
    EXPECT_DEATH(array.ConstGet(2, 0), "");
    EXPECT_DEATH(array.ConstGet(0, 3), "");
    EXPECT_DEATH(array.ConstGet(-1, 0), "");
    EXPECT_DEATH(array.ConstGet(0, -1), "");
    EXPECT_DEATH(Array().ConstGet(0, 0), "");
    EXPECT_DEATH(Array(0, 3).Get(0, 0), "");
    EXPECT_DEATH(Array(-1, 2), "");
    EXPECT_DEATH(Array(2, -1), "");
}

RC_GTEST_PROP(cow_2DArray, CopiesKeepTheirValues, ())
{
    const int rows = *rc::gen::inRange(1, 6);
    const int columns = *rc::gen::inRange(1, 6);
    Array array(rows, columns);
    std::vector<double> model(static_cast<std::size_t>(rows * columns), 0.0);
    std::vector<Array> copies;
    std::vector<std::vector<double>> models;
    const auto changes = *rc::gen::container<std::vector<std::pair<int, double>>>(
        rc::gen::pair(rc::gen::inRange(0, rows * columns), rc::gen::arbitrary<double>()));
    for (const auto& [index, value] : changes)
    {
        copies.push_back(array);
        models.push_back(model);
        array.Set(index / columns, index % columns, value);
        model[static_cast<std::size_t>(index)] = value;
    }
    copies.push_back(array);
    models.push_back(model);
    for (std::size_t i = 0; i < copies.size(); ++i)
        RC_ASSERT(std::equal(models[i].begin(), models[i].end(), copies[i].ConstData()));
}
} // namespace
