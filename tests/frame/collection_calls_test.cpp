// Collections of objects, and optional objects, as a store sees them: the calls that writing and reading one
// makes, in their order.

#include "MementoMocks.h"
#include "tst_EveryKind.h"

#include <gtest/gtest.h>

#include <string>

/// Has an object held directly and one of a polymorphic root; either may be absent.
class tst_TwoOptions : public mem_AllocationOperators
{
    CLS_CONCRETE_ROOT(tst_TwoOptions, 0x7F000007, 203)
    CLS_ATTRIBUTE(tst_LeafHandle, leaf)
    CLS_ATTRIBUTE(tst_BranchHandle, branch)
    CLS_END
};

CLS_IMPLEMENT(tst_TwoOptions)

namespace
{

using testing::InSequence;
using testing::Ref;
using testing::Return;
using testing::ReturnRef;
using testing::StrictMock;
using testing::TestWithParam;

tst_BranchElement Twig(int number)
{
    auto* twig = new tst_Twig;
    twig->number = number;
    return tst_BranchElement(twig);
}

/// What the parts of a collection's writing answer; the calls must not depend on the first.
struct Answers
{
    bool isWrittenAlready;
    bool hasMore;
};

class CollectionWriting : public TestWithParam<Answers>
{
protected:
    /// The row is begun under the identity and noted as that form of collection.
    void ExpectStart(unsigned typeId, const cls_Uid& uid, int code)
    {
        EXPECT_CALL(memento, StartWrite(typeId, Ref(uid)))
            .WillOnce(Return(GetParam().isWrittenAlready ? 0 : 1));
        EXPECT_CALL(memento, CheckCollectionType(static_cast<cls_CollectionType>(code)));
    }

    /// The element writes its own row.
    void ExpectElement()
    {
        EXPECT_CALL(element, StartWrite(tst_Twig::TypeId(), testing::_)).WillOnce(Return(0));
        EXPECT_CALL(element, Close());
    }

    template <class Writer>
    void ExpectEnd(Writer& writer)
    {
        EXPECT_CALL(writer, HasMore()).WillOnce(Return(GetParam().hasMore));
        EXPECT_CALL(writer, Close()).Times(GetParam().hasMore ? 1 : 0);
        EXPECT_CALL(memento, Close());
    }

    StrictMock<WriteMementoMock> memento;
    StrictMock<WriteMementoMock> element;
};

INSTANTIATE_TEST_SUITE_P(Any, CollectionWriting,
                         testing::Values(Answers{false, false}, Answers{false, true}, Answers{true, true}));

TEST_P(CollectionWriting, OfAListGoesElementByElement)
{
    tst_BranchList list;
    list.Append(tst_BranchElement());
    list.Append(Twig(1));
    StrictMock<WriteListMock> writer;
    {
        const InSequence inOrder;
        ExpectStart(0x230001, list.Uid(), 1);
        EXPECT_CALL(memento, OpenList(1)).WillOnce(Return(&writer));
        EXPECT_CALL(writer, PutAbsent(tst_Branch::TypeId()));
        EXPECT_CALL(writer, OpenElement()).WillOnce(Return(&element));
        ExpectElement();
        ExpectEnd(writer);
    }
    list.DBWrite(cls_WriteVisitor(&memento));
}

TEST_P(CollectionWriting, OfAMapByTextGoesInTheOrderOfItsKeys)
{
    tst_BranchesByName map;
    map.InsertUnlessMember("b", tst_BranchElement());
    map.InsertUnlessMember("a", Twig(1));
    StrictMock<WriteMapMock<cls_WriteMapString2Obj, const cow_String&>> writer;
    {
        const InSequence inOrder;
        ExpectStart(0x230002, map.Uid(), 2);
        EXPECT_CALL(memento, OpenMapString2Obj()).WillOnce(Return(&writer));
        EXPECT_CALL(writer, OpenElement(cow_String("a"))).WillOnce(Return(&element));
        ExpectElement();
        EXPECT_CALL(writer, PutAbsent(tst_Branch::TypeId(), cow_String("b")));
        ExpectEnd(writer);
    }
    map.DBWrite(cls_WriteVisitor(&memento));
}

TEST_P(CollectionWriting, OfAMapByNumberGoesInTheOrderOfItsKeys)
{
    tst_BranchesByNumber map;
    map.InsertUnlessMember(7, tst_BranchElement());
    map.InsertUnlessMember(-7, Twig(1));
    StrictMock<WriteMapMock<cls_WriteMapInt2Obj, int>> writer;
    {
        const InSequence inOrder;
        ExpectStart(0x230002, map.Uid(), 3);
        EXPECT_CALL(memento, OpenMapInt2Obj()).WillOnce(Return(&writer));
        EXPECT_CALL(writer, OpenElement(-7)).WillOnce(Return(&element));
        ExpectElement();
        EXPECT_CALL(writer, PutAbsent(tst_Branch::TypeId(), 7));
        ExpectEnd(writer);
    }
    map.DBWrite(cls_WriteVisitor(&memento));
}

class CollectionReading : public testing::Test
{
protected:
    CollectionReading() { uid.AllocateUid(); }

    void ExpectStart(int code)
    {
        EXPECT_CALL(memento, GetUid()).WillOnce(Return(uid));
        EXPECT_CALL(memento, CheckCollectionType(static_cast<cls_CollectionType>(code)));
    }

    template <class Reader>
    void ExpectObject(Reader& reader, const tst_BranchElement& object)
    {
        EXPECT_CALL(reader, HasRow()).WillOnce(Return(true));
        EXPECT_CALL(reader, ReadObject(tst_Branch::TypeId())).WillOnce(ReturnRef(cow_Erased(object)));
    }

    template <class Reader>
    void ExpectEnd(Reader& reader)
    {
        EXPECT_CALL(reader, HasRow()).WillOnce(Return(false));
        EXPECT_CALL(reader, Close());
        EXPECT_CALL(memento, Close());
    }

    cls_Uid uid;
    const tst_BranchElement twig = Twig(5);
    const tst_BranchElement nothing;
    StrictMock<ReadMementoMock> memento;
};

TEST_F(CollectionReading, OfAListBeginsWithItsLength)
{
    StrictMock<ReadListMock> reader;
    {
        const InSequence inOrder;
        ExpectStart(1);
        EXPECT_CALL(memento, OpenList()).WillOnce(Return(&reader));
        EXPECT_CALL(reader, Length()).WillOnce(Return(2));
        ExpectObject(reader, twig);
        ExpectObject(reader, nothing);
        ExpectEnd(reader);
    }
    const tst_BranchList list{cls_ReadVisitor(&memento)};
    EXPECT_EQ(list.Uid(), uid);
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(list[0].ConstGet(), twig.ConstGet()) << "the stored handle is shared";
    EXPECT_TRUE(list[1].IsNull());
}

TEST_F(CollectionReading, OfAMapTakesTheObjectBeforeItsKey)
{
    StrictMock<ReadMapMock<cls_ReadMapString2Obj, cow_String>> reader;
    {
        const InSequence inOrder;
        ExpectStart(2);
        EXPECT_CALL(memento, OpenMapString2Obj()).WillOnce(Return(&reader));
        ExpectObject(reader, twig);
        EXPECT_CALL(reader, ReadKey()).WillOnce(Return("b"));
        ExpectObject(reader, nothing);
        EXPECT_CALL(reader, ReadKey()).WillOnce(Return("a"));
        ExpectEnd(reader);
    }
    const tst_BranchesByName map{cls_ReadVisitor(&memento)};
    EXPECT_EQ(map.Uid(), uid);
    ASSERT_EQ(map.Count(), 2);
    EXPECT_EQ(map.ConstFind("b")->ConstGet(), twig.ConstGet());
    EXPECT_TRUE(map.ConstFind("a")->IsNull());
}

TEST_F(CollectionReading, OfAMapByNumberTakesTheObjectBeforeItsKey)
{
    StrictMock<ReadMapMock<cls_ReadMapInt2Obj, int>> reader;
    {
        const InSequence inOrder;
        ExpectStart(3);
        EXPECT_CALL(memento, OpenMapInt2Obj()).WillOnce(Return(&reader));
        ExpectObject(reader, twig);
        EXPECT_CALL(reader, ReadKey()).WillOnce(Return(-3));
        ExpectEnd(reader);
    }
    const tst_BranchesByNumber map{cls_ReadVisitor(&memento)};
    EXPECT_EQ(map.Uid(), uid);
    ASSERT_NE(map.ConstFind(-3), nullptr);
    EXPECT_EQ(map.ConstFind(-3)->ConstGet(), twig.ConstGet());
}

/// The field of this name.
testing::Matcher<const cls_FieldHandle&> Field(const char* name)
{
    const auto nameOf = [](const cls_FieldHandle& field) { return std::string(field.Name().CString()); };
    return testing::ResultOf(nameOf, name);
}

TEST(OptionalObjects, AreWrittenWithTheirHandleOrAsAbsent)
{
    tst_TwoOptions object;
    object.leaf = tst_LeafHandle(tst_Leaf());
    StrictMock<WriteMementoMock> memento;
    StrictMock<WriteMementoMock> leaf;
    {
        const InSequence inOrder;
        EXPECT_CALL(memento, StartWrite(tst_TwoOptions::TypeId(), testing::_)).WillOnce(Return(1));
        EXPECT_CALL(memento, OpenField(Field("leaf"), &cow_Erased(object.leaf))).WillOnce(Return(&leaf));
        EXPECT_CALL(leaf, StartWrite(tst_Leaf::TypeId(), testing::_)).WillOnce(Return(0));
        EXPECT_CALL(leaf, Close());
        EXPECT_CALL(memento, PutAbsent(Field("branch")));
        EXPECT_CALL(memento, Close());
    }
    object.DBWrite(cls_WriteVisitor(&memento));
}

TEST(OptionalObjects, ShareTheHandleThatIsReadAndStayEmptyWithoutOne)
{
    const tst_LeafHandle leaf{tst_Leaf()};
    const tst_BranchHandle nothing;
    StrictMock<ReadMementoMock> memento;
    {
        const InSequence inOrder;
        EXPECT_CALL(memento, GetObject(Field("leaf"), tst_Leaf::TypeId()))
            .WillOnce(ReturnRef(cow_Erased(leaf)));
        EXPECT_CALL(memento, GetObject(Field("branch"), tst_Branch::TypeId()))
            .WillOnce(ReturnRef(cow_Erased(nothing)));
        EXPECT_CALL(memento, GetUid()).WillOnce(Return(cls_Uid()));
        EXPECT_CALL(memento, Close());
    }
    const tst_TwoOptions object{cls_ReadVisitor(&memento)};
    EXPECT_EQ(object.leaf.ConstGet(), leaf.ConstGet());
    EXPECT_EQ(leaf.ShareCount(), 2);
    EXPECT_TRUE(object.branch.IsNull());
}

/// A wrapper, and the plain value that it wraps.
template <class W, class V>
struct Wrapping
{
    using Wrapper = W;
    using Value = V;
};

template <class T>
class CollectionIdentity : public testing::Test
{};

using Wrappings = testing::Types<Wrapping<tst_BranchList, cow_List<tst_BranchElement>>,
                                 Wrapping<cls_xoList<tst_Leaf>, cow_List<tst_Leaf>>,
                                 Wrapping<cls_xo1DArrayList<rgnC_RegionPair>, cow_List<rgnC_RegionPair>>,
                                 Wrapping<tst_BranchesByName, cow_Btree<cow_String, tst_BranchElement>>,
                                 Wrapping<tst_BranchesByNumber, cow_Btree<int, tst_BranchElement>>>;
TYPED_TEST_SUITE(CollectionIdentity, Wrappings);

TYPED_TEST(CollectionIdentity, IsNewWithANewValueAndStaysWithItsOwn)
{
    using Value = typename TypeParam::Value;
    typename TypeParam::Wrapper wrapper;
    const cls_Uid first = wrapper.Uid();
    EXPECT_FALSE(first.IsBlank());
    const typename TypeParam::Wrapper copy(wrapper);
    EXPECT_EQ(copy.Uid(), first);

    auto& same = wrapper;
    wrapper = same;
    wrapper = static_cast<const Value&>(same);
    EXPECT_EQ(wrapper.Uid(), first) << "assigned to itself";

    wrapper = Value();
    const cls_Uid second = wrapper.Uid();
    EXPECT_NE(second, first) << "assigned a plain value";
    wrapper = copy;
    EXPECT_NE(wrapper.Uid(), second) << "assigned another wrapper";
    EXPECT_NE(wrapper.Uid(), first);
}

} // namespace
