// Wrappers of plain values: a value and the identity of its row.

#include "RowRecorder.h"
#include "cls_xpCollections.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

template <class Wrapper>
struct ValueOf;

template <class T>
struct ValueOf<cls_xpScalarList<T>>
{
    using Type = cow_List<T>;
};

template <>
struct ValueOf<cls_xp2DArrayDouble>
{
    using Type = cow_2DArray<double>;
};

template <>
struct ValueOf<cls_xpMapString2Float>
{
    using Type = cow_Map<cow_String, float>;
};

template <>
struct ValueOf<cls_xpMapString2Array2D>
{
    using Type = cow_Map<cow_String, cls_xp2DArrayDouble>;
};

template <class Wrapper>
class cls_xpWrapper : public testing::Test
{};

using Wrappers = testing::Types<cls_xp1DArrayListBool, cls_xp1DArrayListDouble, cls_xp1DArrayListInt,
                                cls_xp1DArrayListString, cls_xp2DArrayDouble, cls_xpMapString2Float,
                                cls_xpMapString2Array2D>;
TYPED_TEST_SUITE(cls_xpWrapper, Wrappers);

TYPED_TEST(cls_xpWrapper, HasAnIdentityThatANewValueReplacesAndACopyKeeps)
{
    using Value = typename ValueOf<TypeParam>::Type;
    TypeParam wrapper;
    EXPECT_FALSE(wrapper.Uid().IsBlank());
    EXPECT_NE(wrapper.Uid(), TypeParam().Uid());
    EXPECT_FALSE(TypeParam(Value()).Uid().IsBlank());

    const cls_Uid first = wrapper.Uid();
    const TypeParam copy(wrapper);
    EXPECT_EQ(first, copy.Uid());
    wrapper = Value();
    EXPECT_NE(first, wrapper.Uid());
    const cls_Uid second = wrapper.Uid();
    wrapper = copy;
    EXPECT_NE(second, wrapper.Uid());
    EXPECT_NE(first, wrapper.Uid()) << "a new value is a new row, whosever value it is";
    EXPECT_EQ(first, copy.Uid());
}

TEST(cls_xpWrappers, AreStoredUnderTheirCodes)
{
    EXPECT_EQ(51, cls_xp1DArrayListBool::Code);
    EXPECT_EQ(52, cls_xp1DArrayListDouble::Code);
    EXPECT_EQ(52, cls_xpListDouble::Code);
    EXPECT_EQ(54, cls_xp1DArrayListInt::Code);
    EXPECT_EQ(54, cls_xpListInt::Code);
    EXPECT_EQ(54, cls_xp1DArrayInt::Code);
    EXPECT_EQ(55, cls_xp1DArrayListString::Code);
    EXPECT_EQ(55, cls_xpListString::Code);
    EXPECT_EQ(63, cls_xpMapString2Float::Code);
    EXPECT_EQ(82, cls_xp2DArrayDouble::Code);
    EXPECT_EQ(112, cls_xpMapString2Array2D::Code);
    EXPECT_EQ(0x230001u, RecordRow(cls_xp1DArrayListDouble())->classId);
    EXPECT_EQ(0x230001u, RecordRow(cls_xp2DArrayDouble())->classId);
    EXPECT_EQ(0x230002u, RecordRow(cls_xpMapString2Float())->classId);
    EXPECT_EQ(0x230002u, RecordRow(cls_xpMapString2Array2D())->classId);
}

TEST(cls_xpWrappers, AreReadWithTheirIdentity)
{
    cow_List<double> values(0.5);
    const cls_xp1DArrayListDouble list(values);
    const std::shared_ptr<RecordedRow> row = RecordRow(list);
    EXPECT_EQ(list.Uid(), row->uid);
    cls_Uid stored;
    const cls_ReadVisitor visitor(new row_recorder::Reader(row));
    const cls_xp1DArrayListDouble read(visitor, &stored);
    EXPECT_EQ(list.Uid(), read.Uid());
    EXPECT_EQ(list.Uid(), stored);
    ASSERT_EQ(1, read.Count());
    EXPECT_EQ(0.5, read[0]);
    EXPECT_EQ(list.Uid(), ReadRow<cls_xp1DArrayListDouble>(row).Uid()) << "whether it is asked for or not";
}

TEST(cls_xp2DArrayDoubleFromCow, WrapsTheArrayUnderAFreshIdentity)
{
    cow_2DArray<double> array(2, 3);
    array.Set(1, 2, 4.5);
    const cls_xp2DArrayDouble wrapper = cls_xp2DArrayDoubleFromCow(array);
    EXPECT_EQ(array.ConstData(), wrapper.ConstData()) << "nothing is copied";
    EXPECT_FALSE(wrapper.Uid().IsBlank());
    EXPECT_NE(wrapper.Uid(), cls_xp2DArrayDoubleFromCow(array).Uid());
}

} // namespace
