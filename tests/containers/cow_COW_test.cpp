#include "cow_COW.h"

#include "cow_Tracked.h"
#include "mem_AllocationOperators.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <type_traits>
#include <vector>

namespace
{
/// A polymorphic root and a class derived from it; both count their deletions.
class Shape : public mem_AllocationOperators
{
public:
    explicit Shape(int s) : sides(s) {}
    Shape(const Shape&) = default;
    virtual ~Shape() { ++deleted; }
    virtual Shape* Copy() const { return new Shape(*this); }
    virtual const char* Name() const { return "shape"; }

    int sides;
    static inline int deleted = 0;
};

class Square : public Shape
{
public:
    Square() : Shape(4) {}
    ~Square() override { ++deletedSquares; }
    Square* Copy() const override { return new Square(*this); }
    const char* Name() const override { return "square"; }

    static inline int deletedSquares = 0;
};

using Handle = cow_COW<Tracked, cow_Direct<Tracked>>;
using Element = cow_ArrayCOW<Tracked, cow_Direct<Tracked>>;
using ShapeHandle = cow_COW<Shape, cow_Virtual<Shape>>;

Handle NewHandle(int value)
{
    return Handle(cow_Direct<Tracked>::New(value));
}

/// Every test leaves no block and no tracked object behind.
class cow_COWTest : public testing::Test
{
protected:
    void TearDown() override
    {
        Tracked::FailAfter(-1);
        EXPECT_EQ(mem_BlocksInUse(), blocksBefore);
        EXPECT_TRUE(tracked.IsClean());
    }

    std::size_t blocksBefore = mem_BlocksInUse();
    TrackedScope tracked;
};

TEST_F(cow_COWTest, LaysCountBeforeReferentAndNothingElse)
{
    static_assert(sizeof(Handle) == 16 && sizeof(Element) == 16 && sizeof(cow_CountedHld<Tracked>) == 16);
    static_assert(std::is_base_of_v<cow_CountedHld<Tracked>, Handle>);
    const Handle handle = NewHandle(1);
    const void* fields[2];
    std::memcpy(fields, static_cast<const void*>(&handle), sizeof fields);
    EXPECT_EQ(fields[0], handle.CountBlock());
    EXPECT_EQ(fields[1], handle.ConstGet());
}

TEST_F(cow_COWTest, TakesOwnershipOfAPointer)
{
    Tracked* value = cow_Direct<Tracked>::New(3);
    const Handle handle(value);
    EXPECT_EQ(handle.ConstGet(), value);
    EXPECT_EQ(handle.ShareCount(), 1);
    EXPECT_FALSE(handle.IsNull());
    EXPECT_EQ(handle->Value(), 3);
    EXPECT_EQ((*handle).Value(), 3);
}

TEST_F(cow_COWTest, TakesNullAsAnAbsentValue)
{
    const Handle handle(nullptr);
    EXPECT_TRUE(handle.IsNull());
    EXPECT_EQ(handle.ConstGet(), nullptr);
    EXPECT_EQ(handle.ShareCount(), 1);
    const Handle copy(handle);
    EXPECT_TRUE(copy.IsNull());
    EXPECT_EQ(copy.ShareCount(), 2);
    EXPECT_EQ(copy.CountBlock(), handle.CountBlock());
}

TEST_F(cow_COWTest, CopiesAValue)
{
    const Tracked value(5);
    const Handle handle(value);
    EXPECT_NE(handle.ConstGet(), &value);
    EXPECT_EQ(handle->Value(), 5);
    EXPECT_EQ(handle.ShareCount(), 1);
}

TEST_F(cow_COWTest, DefaultElementHoldsNullWithACountOfOne)
{
    const Element element;
    EXPECT_TRUE(element.IsNull());
    EXPECT_EQ(element.ShareCount(), 1);
    EXPECT_EQ(tracked.Live(), 0u);
}

TEST_F(cow_COWTest, ElementSharesTheValueOfAHandle)
{
    const Handle handle = NewHandle(1);
    const Element element(handle);
    EXPECT_EQ(element.ConstGet(), handle.ConstGet());
    EXPECT_EQ(handle.ShareCount(), 2);
    const Handle back(element);
    EXPECT_EQ(handle.ShareCount(), 3);
}

TEST_F(cow_COWTest, CopySharesAndLastReleaseDeletes)
{
    auto first = std::make_unique<Handle>(NewHandle(1));
    auto second = std::make_unique<Handle>(*first);
    EXPECT_EQ(first->CountBlock(), second->CountBlock());
    EXPECT_EQ(first->ShareCount(), 2);
    first.reset();
    EXPECT_EQ(second->ShareCount(), 1);
    EXPECT_EQ(tracked.Live(), 1u);
    second.reset();
    EXPECT_EQ(tracked.Live(), 0u);
}

TEST_F(cow_COWTest, CopyAllocatesNothing)
{
    const Handle handle = NewHandle(1);
    const std::size_t before = mem_BlocksInUse();
    const Handle copy(handle);
    EXPECT_EQ(mem_BlocksInUse(), before);
}

TEST_F(cow_COWTest, AssignmentReleasesTheOldValue)
{
    Handle target = NewHandle(1);
    const Handle source = NewHandle(2);
    target = source;
    EXPECT_EQ(tracked.Live(), 1u);
    EXPECT_EQ(target.ConstGet(), source.ConstGet());
    EXPECT_EQ(source.ShareCount(), 2);
}

TEST_F(cow_COWTest, SelfAssignmentDoesNothing)
{
    Handle handle = NewHandle(1);
    const Tracked* value = handle.ConstGet();
    const Handle& same = handle;
    handle = same;
    EXPECT_EQ(handle.ConstGet(), value);
    EXPECT_EQ(handle.ShareCount(), 1);
}

TEST_F(cow_COWTest, AssignmentBetweenSharersKeepsTheCount)
{
    Handle first = NewHandle(1);
    const Handle second(first);
    first = second;
    EXPECT_EQ(first.ShareCount(), 2);
}

/// A value that holds a handle on the next one.
struct Link
{
    explicit Link(const cow_COW<Link, cow_Direct<Link>>& n) : next(n) {}
    cow_COW<Link, cow_Direct<Link>> next;
    Tracked payload;
};

TEST_F(cow_COWTest, AssignmentFromInsideTheReleasedValue)
{
    using LinkHandle = cow_COW<Link, cow_Direct<Link>>;
    LinkHandle list;
    for (int i = 0; i < 3; ++i)
        list = LinkHandle(cow_Direct<Link>::New(list));
    for (std::size_t left = 3; left > 0; --left)
    {
        EXPECT_EQ(tracked.Live(), left);
        list = list->next;
    }
    EXPECT_TRUE(list.IsNull());
}

TEST_F(cow_COWTest, GetOnASoleHandleGivesTheSameObjectWithoutAllocation)
{
    Handle handle = NewHandle(1);
    const Tracked* value = handle.ConstGet();
    const std::size_t before = mem_BlocksInUse();
    Tracked::FailAfter(0);
    EXPECT_EQ(handle.Get(), value);
    EXPECT_EQ(mem_BlocksInUse(), before);
}

TEST_F(cow_COWTest, GetOnASharedHandleLeavesTheOthersTheOldObject)
{
    Handle first = NewHandle(1);
    const Handle second(first);
    const Tracked* old = first.ConstGet();
    *first.Get() = Tracked(2);
    EXPECT_NE(first.ConstGet(), old);
    EXPECT_EQ(first->Value(), 2);
    EXPECT_EQ(first.ShareCount(), 1);
    EXPECT_EQ(second.ConstGet(), old);
    EXPECT_EQ(second->Value(), 1);
    EXPECT_EQ(second.ShareCount(), 1);
    EXPECT_NE(first.CountBlock(), second.CountBlock());
}

TEST_F(cow_COWTest, GetThatFailsToCopyLeavesTheHandle)
{
    Handle first = NewHandle(1);
    const Handle second(first);
    const Tracked* old = first.ConstGet();
    const std::size_t before = mem_BlocksInUse();
    Tracked::FailAfter(0);
    EXPECT_THROW(first.Get(), Tracked::Failure);
    EXPECT_EQ(first.ConstGet(), old);
    EXPECT_EQ(first.CountBlock(), second.CountBlock());
    EXPECT_EQ(first.ShareCount(), 2);
    EXPECT_EQ(mem_BlocksInUse(), before);
}

TEST_F(cow_COWTest, CopyOfAValueThatFailsLeavesNothing)
{
    const Tracked value(1);
    Tracked::FailAfter(0);
    EXPECT_THROW(Handle{value}, Tracked::Failure);
}

/// A value whose copy lets go of another handle.
struct Releasing
{
    Releasing() = default;
    Releasing(const Releasing&) { other.reset(); }

    Tracked payload;
    static inline std::unique_ptr<cow_COW<Releasing, cow_Direct<Releasing>>> other;
};

TEST_F(cow_COWTest, GetWhoseCopyReleasesTheOtherShareKeepsTheCountBlock)
{
    using ReleasingHandle = cow_COW<Releasing, cow_Direct<Releasing>>;
    ReleasingHandle handle(cow_Direct<Releasing>::New());
    Releasing::other = std::make_unique<ReleasingHandle>(handle);
    const int* countBlock = handle.CountBlock();
    const Releasing* old = handle.ConstGet();
    const Releasing* written = handle.Get();
    EXPECT_NE(written, old);
    EXPECT_EQ(handle.ConstGet(), written);
    EXPECT_EQ(handle.CountBlock(), countBlock);
    EXPECT_EQ(handle.ShareCount(), 1);
    EXPECT_EQ(tracked.Live(), 1u);
}

TEST_F(cow_COWTest, VirtualPolicyCopiesAndDeletesByDynamicType)
{
    Shape::deleted = Square::deletedSquares = 0;
    {
        ShapeHandle first(new Square);
        const ShapeHandle second(first);
        first.Get()->sides = 5;
        EXPECT_STREQ(first->Name(), "square");
        EXPECT_EQ(first->sides, 5);
        EXPECT_EQ(second->sides, 4);
        EXPECT_EQ(Shape::deleted, 0);
    }
    EXPECT_EQ(Square::deletedSquares, 2);
    EXPECT_EQ(Shape::deleted, 2);
}

TEST_F(cow_COWTest, DeleteReferentLeavesAnAbsentValue)
{
    Handle handle = NewHandle(1);
    handle.DeleteReferent();
    EXPECT_TRUE(handle.IsNull());
    EXPECT_EQ(handle.ShareCount(), 1);
    handle.DeleteReferent();
    EXPECT_EQ(tracked.Live(), 0u);
}

TEST_F(cow_COWTest, HolderOnTheHeapIsReleasedWithoutItsType)
{
    struct Case
    {
        bool holdsValue;
        bool isShared;
    };
    for (const Case c : {Case{true, false}, Case{true, true}, Case{false, false}, Case{false, true}})
    {
        auto* holder = cow_NewHolder(c.holdsValue ? cow_Direct<Tracked>::New(1) : nullptr);
        auto* erased = const_cast<cow_ErasedCOW*>(&cow_Erased(*holder));
        const auto& restored = cow_Restored<Tracked, cow_Direct<Tracked>>(*erased);
        auto other = c.isShared ? std::make_unique<Handle>(restored) : nullptr;
        cow_DeleteHolder<Tracked>(erased);
        EXPECT_EQ(tracked.Live(), c.holdsValue && c.isShared ? 1u : 0u);
        if (other)
        {
            EXPECT_EQ(other->ShareCount(), 1);
        }
        other.reset();
        EXPECT_EQ(mem_BlocksInUse(), blocksBefore);
    }
    cow_DeleteHolder<Tracked>(nullptr);
}

TEST_F(cow_COWTest, HolderOfARootDeletesThroughTheVirtualDestructor)
{
    Shape::deleted = Square::deletedSquares = 0;
    auto* holder = cow_NewHolder<Shape>(new Square);
    EXPECT_EQ(holder->ShareCount(), 1);
    cow_DeleteHolder<Shape>(const_cast<cow_ErasedCOW*>(&cow_Erased(*holder)));
    EXPECT_EQ(Square::deletedSquares, 1);
}

TEST_F(cow_COWTest, HolderDeletesItsValueThenItsCount)
{
    auto* holder = cow_NewHolder(cow_Direct<Tracked>::New(1));
    ASSERT_TRUE(holder->Release());
    holder->Delete();
    EXPECT_EQ(tracked.Live(), 0u);
    EXPECT_TRUE(holder->IsNull());
    EXPECT_EQ(holder->CountBlock(), nullptr);
    mem_Free(holder);
}

TEST_F(cow_COWTest, ErasedHandleTellsItsValueAndComesBack)
{
    const ShapeHandle handle(new Square);
    const cow_ErasedCOW& erased = cow_Erased(handle);
    EXPECT_EQ(cow_ErasedReferent(erased), handle.ConstGet());
    const ShapeHandle back(cow_Restored<Shape, cow_Virtual<Shape>>(erased));
    EXPECT_EQ(back.ConstGet(), handle.ConstGet());
    EXPECT_EQ(handle.ShareCount(), 2);
    EXPECT_EQ(cow_ErasedReferent(cow_Erased(ShapeHandle())), nullptr);
}

TEST_F(cow_COWTest, HandlesLiveInStandardContainers)
{
    std::vector<Element> elements(4, Element(NewHandle(7)));
    EXPECT_EQ(elements[0].ShareCount(), 4);
    elements.erase(elements.begin());
    elements.resize(2);
    EXPECT_EQ(elements[0].ShareCount(), 2);
    EXPECT_EQ(tracked.Live(), 1u);
}
} // namespace
