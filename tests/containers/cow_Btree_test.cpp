#include "cow_BtreeTestSupport.h"

#include <climits>
#include <cstring>
#include <functional>
#include <rapidcheck/gtest.h>

namespace
{
using Map = cow_Btree<int, int>;
using Handle = Map::Handle;

/// Inserts each positive number as key and as value, and removes the key of each negative one.
template <class K, class V>
void Apply(cow_Btree<K, V>& map, const std::vector<int>& steps)
{
    for (const int step : steps)
    {
        const bool done = step > 0 ? map.InsertUnlessMember(K(step), V(step)) : map.Remove(K(-step));
        ASSERT_TRUE(done) << "step " << step;
    }
}

/// A binary search for `key` by hand.
template <class K, class V>
const typename cow_Btree<K, V>::Handle* NodeOf(const cow_Btree<K, V>& map, const K& key)
{
    const auto* handle = map.Root();
    while (handle != nullptr && !((*handle)->Key() == key))
        handle = key < (*handle)->Key() ? (*handle)->Left() : (*handle)->Right();
    return handle;
}

class BtreeTest : public MapTest
{};

/// The value of type `T` that lies `offset` bytes within the object.
template <class T, class Object>
T FieldAt(const Object& object, std::size_t offset)
{
    T field;
    std::memcpy(&field, reinterpret_cast<const char*>(&object) + offset, sizeof field);
    return field;
}

TEST_F(BtreeTest, LaysRootCountAndNullValue)
{
    static_assert(sizeof(Map) == 16);
    Map map;
    Apply(map, {2, 1, 3});
    map.GetNullValue() = 77;
    EXPECT_EQ(FieldAt<const void*>(map, 0), map.Root());
    EXPECT_EQ(FieldAt<int>(map, 8), 3);
    EXPECT_EQ(FieldAt<int>(map, 12), 77);
}

TEST_F(BtreeTest, LaysValueKeyChildrenAndHeightOfANode)
{
    static_assert(sizeof(cow_Btree<int, double>::Node) == 40);
    cow_Btree<int, double> map;
    Apply(map, {2, 1, 3});
    const auto& node = **map.Root();
    EXPECT_EQ(FieldAt<double>(node, 0), 2.0);
    EXPECT_EQ(FieldAt<int>(node, 8), 2);
    EXPECT_EQ(FieldAt<const void*>(node, 16), node.Left());
    EXPECT_EQ(FieldAt<const void*>(node, 24), node.Right());
    EXPECT_EQ(FieldAt<int>(node, 32), 1);
}

TEST_F(BtreeTest, EmptyMapHasNothing)
{
    Map map;
    EXPECT_EQ(map.Root(), nullptr);
    EXPECT_EQ(map.Count(), 0);
    EXPECT_EQ(map.ConstFind(1), nullptr);
    EXPECT_EQ(map.Find(1), nullptr);
    EXPECT_FALSE(map.Remove(1));
    EXPECT_EQ(map.Root(), nullptr);
}

TEST_F(BtreeTest, SecondInsertOfAKeyKeepsTheValue)
{
    Map map;
    EXPECT_TRUE(map.InsertUnlessMember(7, 70));
    EXPECT_FALSE(map.InsertUnlessMember(7, 71));
    EXPECT_TRUE(map.InsertUnlessMember(8, 80));
    EXPECT_FALSE(map.InsertUnlessMember(8, 81));
    EXPECT_EQ(map.Count(), 2);
    EXPECT_EQ(*map.ConstFind(7), 70);
    EXPECT_EQ(*map.ConstFind(8), 80);
}

TEST_F(BtreeTest, FoundValueCanBeWritten)
{
    Map map;
    Apply(map, {2, 1, 3});
    *map.Find(3) = 30;
    EXPECT_EQ(*map.ConstFind(3), 30);
    EXPECT_EQ(*map.ConstFind(2), 2);
}

TEST_F(BtreeTest, RemovingTheLastKeyLeavesNoRoot)
{
    Map map;
    Apply(map, {4, -4});
    EXPECT_EQ(map.Root(), nullptr);
    EXPECT_EQ(map.Count(), 0);
    Apply(map, {5});
    EXPECT_EQ(Shape(map), "5:0");
}

struct ShapeCase
{
    const char* what;
    std::vector<int> steps;
    const char* shape;
};

std::ostream& operator<<(std::ostream& out, const ShapeCase& one)
{
    return out << one.what;
}

class BtreeShapeTest : public MapTest, public testing::WithParamInterface<ShapeCase>
{};

TEST_P(BtreeShapeTest, IsExact)
{
    Map map;
    Apply(map, GetParam().steps);
    EXPECT_EQ(Shape(map), GetParam().shape);
    EXPECT_EQ(map.Count(), CountNodes(map.Root()));
}

INSTANTIATE_TEST_SUITE_P(
    Insertion, BtreeShapeTest,
    testing::Values(
        ShapeCase{"one", {1}, "1:0"},
        ShapeCase{"three ascending stay a chain", {1, 2, 3}, "1:2(-,2:1(-,3:0))"},
        ShapeCase{"the fourth ascending rotates", {1, 2, 3, 4}, "2:2(1:0,3:1(-,4:0))"},
        ShapeCase{"three descending stay a chain", {4, 3, 2}, "4:2(3:1(2:0,-),-)"},
        ShapeCase{"the fourth descending rotates", {4, 3, 2, 1}, "3:2(2:1(1:0,-),4:0)"},
        ShapeCase{"a zigzag of three stays a chain", {1, 10, 5}, "1:2(-,10:1(5:0,-))"},
        ShapeCase{"an inner grandchild gets a single rotation too, and stays too tall",
                  {1, 10, 5, 7},
                  "10:3(1:2(-,5:1(-,7:0)),-)"},
        ShapeCase{"which the next insert rotates back", {1, 10, 5, 7, 20}, "1:3(-,10:2(5:1(-,7:0),20:0))"},
        ShapeCase{"the mirror image", {10, 1, 5, 3}, "1:3(-,10:2(5:1(3:0,-),-))"},
        ShapeCase{"six ascending", {1, 2, 3, 4, 5, 6}, "3:3(2:1(1:0,-),4:2(-,5:1(-,6:0)))"},
        ShapeCase{"a leaf opposite counts as an absent one", {3, 2, 4, 5, 6}, "4:2(3:1(2:0,-),5:1(-,6:0))"}));

INSTANTIATE_TEST_SUITE_P(
    Removal, BtreeShapeTest,
    testing::Values(
        ShapeCase{"a leaf", {2, 1, 3, -3}, "2:1(1:0,-)"},
        ShapeCase{"a node with a lower child", {3, 2, 4, 1, -2}, "3:1(1:0,4:0)"},
        ShapeCase{"a node with a higher child", {2, 1, 3, 4, -3}, "2:1(1:0,4:0)"},
        ShapeCase{"a root with one child", {1, 2, -1}, "2:0"},
        ShapeCase{"a root whose successor is its right child", {2, 1, 3, 4, -2}, "3:1(1:0,4:0)"},
        ShapeCase{"a root whose successor lies deeper", {2, 1, 4, 3, 5, -2}, "3:2(1:0,4:1(-,5:0))"},
        ShapeCase{
            "a successor with a child", {10, 5, 20, 3, 15, 30, 17, -10}, "15:2(5:1(3:0,-),20:1(17:0,30:0))"},
        ShapeCase{"an inner node with two children", {8, 4, 9, 2, 6, 5, -4}, "8:2(5:1(2:0,6:0),9:0)"},
        ShapeCase{"heights between the node and the successor's parent stay as they were",
                  {10, 5, 30, 3, 20, 15, -10},
                  "15:3(5:1(3:0,-),30:2(20:0,-))"},
        ShapeCase{"and are put right when the next change passes",
                  {10, 5, 30, 3, 20, 15, -10, 40},
                  "15:2(5:1(3:0,-),30:1(20:0,40:0))"},
        ShapeCase{"the other side is rotated up",
                  {4, 2, 6, 1, 3, 5, 7, 8, 9, -1, -3, -2},
                  "7:3(4:2(-,6:1(5:0,-)),8:1(-,9:0))"},
        ShapeCase{"what comes in place of a node is balanced",
                  {5, 6, 7, 9, 1, 3, 2, 4, -7, -1},
                  "5:2(3:1(2:0,4:0),6:1(-,9:0))"}));

TEST_F(BtreeTest, NumbersHaveThePlainOrder)
{
    cow_Btree<unsigned, int> high;
    for (const unsigned key : {0x80000000U, 1U, UINT_MAX, 0U, 0x7FFFFFFFU})
        high.InsertUnlessMember(key, 0);
    EXPECT_EQ(Entries(high), (std::vector<std::pair<unsigned, int>>{
                                 {0U, 0}, {1U, 0}, {0x7FFFFFFFU, 0}, {0x80000000U, 0}, {UINT_MAX, 0}}));
    Map low;
    for (const int key : {0, INT_MAX, INT_MIN, -1, 1})
        low.InsertUnlessMember(key, 0);
    EXPECT_EQ(Entries(low),
              (std::vector<std::pair<int, int>>{{INT_MIN, 0}, {-1, 0}, {0, 0}, {1, 0}, {INT_MAX, 0}}));
}

TEST_F(BtreeTest, CopySharesTheTree)
{
    Map map;
    Apply(map, {2, 1, 3});
    ASSERT_EQ(map.Root()->ShareCount(), 1);
    {
        const Map copy(map);
        EXPECT_EQ(copy.Root(), map.Root());
        EXPECT_EQ(copy.Count(), 3);
        EXPECT_EQ(map.Root()->ShareCount(), 2);
        EXPECT_EQ((*map.Root())->Left()->ShareCount(), 1);
        Map third;
        third = copy;
        EXPECT_EQ(map.Root()->ShareCount(), 3);
    }
    EXPECT_EQ(map.Root()->ShareCount(), 1);
}

TEST_F(BtreeTest, AnEntryTakesANodeAHandleAndACountAndACopyOfTheMapNothing)
{
    const std::size_t blocks = mem_BlocksInUse();
    Map map;
    EXPECT_EQ(mem_BlocksInUse(), blocks);
    for (int key = 1; key <= 20; ++key)
    {
        map.InsertUnlessMember(key, key);
        EXPECT_EQ(mem_BlocksInUse(), blocks + 3 * static_cast<std::size_t>(key));
    }
    const Map copy(map);
    EXPECT_EQ(mem_BlocksInUse(), blocks + 60);
}

TEST_F(BtreeTest, InsertIntoACopyCopiesThePathOnly)
{
    Map map;
    Apply(map, {4, 2, 6, 1, 3, 5, 7});
    const Map old(map);
    const std::string before = Shape(old);
    Apply(map, {8});
    EXPECT_EQ(Shape(old), before);
    EXPECT_EQ(old.Count(), 7);
    EXPECT_EQ(old.ConstFind(8), nullptr);
    EXPECT_NE(map.Root(), old.Root());
    for (const int onPath : {4, 6, 7})
    {
        EXPECT_NE(NodeOf(map, onPath), NodeOf(old, onPath)) << onPath;
        EXPECT_EQ(NodeOf(map, onPath)->ShareCount(), 1) << onPath;
        EXPECT_EQ(NodeOf(old, onPath)->ShareCount(), 1) << onPath;
    }
    for (const int shared : {2, 5})
    {
        EXPECT_EQ(NodeOf(map, shared), NodeOf(old, shared)) << shared;
        EXPECT_EQ(NodeOf(map, shared)->ShareCount(), 2) << shared;
    }
    EXPECT_EQ(NodeOf(map, 1)->ShareCount(), 1) << "shared through its parent";
}

TEST_F(BtreeTest, RemoveInACopyLeavesTheOtherMap)
{
    Map map;
    Apply(map, {4, 2, 6, 1, 3, 5, 7});
    Map copy(map);
    const Handle* root = map.Root();
    const std::string before = Shape(map);
    EXPECT_TRUE(copy.Remove(4));
    EXPECT_EQ(copy.ConstFind(4), nullptr);
    EXPECT_EQ(map.Root(), root);
    EXPECT_EQ(Shape(map), before);
    EXPECT_EQ(*map.ConstFind(4), 4);
    EXPECT_EQ(map.Count(), 7);
    EXPECT_EQ(copy.Count(), 6);
}

TEST_F(BtreeTest, ReplacementHeldByAnotherMapIsCopiedBeforeItIsRotated)
{
    Map map;
    Apply(map, {5, 6, 7, 9, 1, 3, 2, 4, -7});
    ASSERT_EQ(Shape(map), "1:4(-,6:3(5:2(3:1(2:0,4:0),-),9:0))");
    const Map old(map);
    Apply(map, {-1});
    EXPECT_EQ(Shape(map), "5:2(3:1(2:0,4:0),6:1(-,9:0))");
    EXPECT_EQ(Shape(old), "1:4(-,6:3(5:2(3:1(2:0,4:0),-),9:0))");
}

TEST_F(BtreeTest, RemovedNodesOnlyChildStaysShared)
{
    Map map;
    Apply(map, {1, 2});
    const Map old(map);
    Apply(map, {-1});
    EXPECT_EQ(map.Root(), NodeOf(old, 2));
    EXPECT_EQ(map.Root()->ShareCount(), 2);
}

TEST_F(BtreeTest, ConstFindCopiesNothing)
{
    Map map;
    Apply(map, {2, 1, 3});
    const Map copy(map);
    EXPECT_EQ(copy.ConstFind(3), map.ConstFind(3));
    EXPECT_EQ(copy.Root(), map.Root());
}

TEST_F(BtreeTest, FindMakesThePathPrivate)
{
    Map map;
    Apply(map, {2, 1, 3});
    const Map old(map);
    *map.Find(3) = 30;
    EXPECT_EQ(*old.ConstFind(3), 3);
    EXPECT_NE(map.Root(), old.Root());
    EXPECT_EQ(NodeOf(map, 1), NodeOf(old, 1));
}

TEST_F(BtreeTest, FindMakesThePathPrivateEvenForAMissingKey)
{
    Map map;
    Apply(map, {2, 1, 3});
    const Map old(map);
    EXPECT_EQ(map.Find(4), nullptr);
    EXPECT_NE(map.Root(), old.Root());
    EXPECT_NE(NodeOf(map, 3), NodeOf(old, 3));
    EXPECT_EQ(NodeOf(map, 1), NodeOf(old, 1));
}

TEST_F(BtreeTest, ChangesThatChangeNothingCopyThePathAndNoMore)
{
    Map map;
    Apply(map, {2, 1, 3});
    const Map old(map);
    EXPECT_FALSE(map.InsertUnlessMember(3, 30));
    EXPECT_FALSE(map.Remove(0));
    EXPECT_EQ(Shape(map), Shape(old));
    EXPECT_EQ(map.Count(), 3);
    EXPECT_NE(NodeOf(map, 3), NodeOf(old, 3));
    EXPECT_NE(NodeOf(map, 1), NodeOf(old, 1));
}

TEST_F(BtreeTest, AssignmentToItselfChangesNothing)
{
    Map map;
    Apply(map, {2, 1, 3});
    const Map& same = map;
    map = same;
    EXPECT_EQ(Shape(map), "2:1(1:0,3:0)");
    EXPECT_EQ(map.Root()->ShareCount(), 1);
}

TEST_F(BtreeTest, AssignmentReleasesTheOldTree)
{
    {
        cow_Btree<int, Tracked> map;
        Apply(map, {2, 1, 3});
        const cow_Btree<int, Tracked> old(map);
        const std::size_t alive = Alive();
        cow_Btree<int, Tracked> other;
        Apply(other, {9});
        map = other;
        EXPECT_EQ(Shape(map), "9:0");
        EXPECT_EQ(Shape(old), "2:1(1:0,3:0)");
        EXPECT_EQ(Alive(), alive + 2) << "the other's node and null value";
        map = cow_Btree<int, Tracked>();
        EXPECT_EQ(map.Root(), nullptr);
        EXPECT_EQ(map.Count(), 0);
    }
}

struct Nested
{
    cow_Btree<int, cow_ArrayCOW<Nested, cow_Direct<Nested>>> below;
};

TEST_F(BtreeTest, MapCanBeReplacedByOneThatItHolds)
{
    Nested inner;
    inner.below.InsertUnlessMember(1, cow_ArrayCOW<Nested, cow_Direct<Nested>>(Nested()));
    Nested outer;
    outer.below.InsertUnlessMember(5, cow_ArrayCOW<Nested, cow_Direct<Nested>>(inner));
    inner = Nested();
    outer.below = (**outer.below.ConstFind(5)).below;
    EXPECT_EQ(outer.below.Count(), 1);
    EXPECT_NE(outer.below.ConstFind(1), nullptr);
}

TEST_F(BtreeTest, NullValueIsADefaultOne)
{
    Map map;
    EXPECT_EQ(map.GetNullValue(), 0);
    map.GetNullValue() = 5;
    EXPECT_EQ(map.GetNullValue(), 0);
    cow_Btree<int, cow_ArrayCOW<int, cow_Direct<int>>> handles;
    EXPECT_TRUE(handles.GetNullValue().IsNull());
    EXPECT_EQ(handles.GetNullValue().ShareCount(), 1);
    const auto shared = handles.GetNullValue();
    EXPECT_EQ(shared.ShareCount(), 2);
    EXPECT_EQ(handles.GetNullValue().ShareCount(), 1) << "a fresh one";
    EXPECT_EQ(shared.ShareCount(), 1);
}

TEST_F(BtreeTest, NullValueGoesWithACopy)
{
    {
        cow_Btree<int, Tracked> map;
        map.GetNullValue() = Tracked(3);
        const std::size_t alive = Alive();
        const cow_Btree<int, Tracked> copy(map);
        EXPECT_EQ(Alive(), alive + 1);
    }
}

using Shared = cow_ArrayCOW<Tracked, cow_Direct<Tracked>>;

TEST_F(BtreeTest, HandleValuesAreSharedWithTheMap)
{
    {
        cow_Btree<int, Shared> map;
        const Shared value(Tracked(5));
        map.InsertUnlessMember(1, value);
        EXPECT_EQ(value.ShareCount(), 2);
        const cow_Btree<int, Shared> old(map);
        EXPECT_EQ(value.ShareCount(), 2) << "the node is shared, not the value";
        Shared* found = map.Find(1);
        EXPECT_EQ(value.ShareCount(), 3);
        *found->Get() = Tracked(6);
        EXPECT_EQ((**old.ConstFind(1)).Value(), 5);
        EXPECT_EQ((**map.ConstFind(1)).Value(), 6);
        EXPECT_EQ(value.ShareCount(), 2);
    }
}

TEST_F(BtreeTest, KeyMayBeTheRemovedEntrysOwn)
{
    {
        cow_Btree<Tracked, Tracked> map;
        for (int key = 0; key < 50; ++key)
            map.InsertUnlessMember(Tracked(key), Tracked(key));
        while (map.Root() != nullptr)
            EXPECT_TRUE(map.Remove((*map.Root())->Key()));
        EXPECT_EQ(map.Count(), 0);
    }
}

TEST_F(BtreeTest, ValueMayBeTheMapsOwn)
{
    cow_Btree<int, Tracked> map;
    map.InsertUnlessMember(0, Tracked(77));
    const cow_Btree<int, Tracked> old(map);
    for (int key = 1; key < 50; ++key)
        map.InsertUnlessMember(key, *map.ConstFind(key - 1));
    EXPECT_EQ(map.ConstFind(49)->Value(), 77);
}

/// The node operations, on a tree put together by hand.
class NodeTest : public MapTest
{
protected:
    using Node = Map::Node;

    static Handle* NewHandle(const Node& node)
    {
        return new (mem_OperatorNewThrow(sizeof(Handle))) Handle(node);
    }

    static void Delete(Handle* handle)
    {
        std::destroy_at(handle);
        mem_Free(handle);
    }
};

TEST_F(NodeTest, NewNodeIsALeaf)
{
    const Node node(3, 30);
    EXPECT_EQ(node.Key(), 3);
    EXPECT_EQ(node.Value(), 30);
    EXPECT_EQ(node.Height(), 0);
    EXPECT_EQ(node.Left(), nullptr);
    EXPECT_EQ(node.Right(), nullptr);
}

TEST_F(NodeTest, HandleIsASixteenByteBlock)
{
    EXPECT_EQ(sizeof(Handle), 16U);
}

TEST_F(NodeTest, CopySharesBothChildren)
{
    Node node(2, 20);
    node.InsertUnlessMember(1, 10);
    node.InsertUnlessMember(3, 30);
    {
        const Node copy(node);
        EXPECT_EQ(copy.Left(), node.Left());
        EXPECT_EQ(copy.Right(), node.Right());
        EXPECT_EQ(copy.Height(), 1);
        EXPECT_EQ(node.Left()->ShareCount(), 2);
        EXPECT_EQ(node.Right()->ShareCount(), 2);
    }
    EXPECT_EQ(node.Left()->ShareCount(), 1);
}

TEST_F(NodeTest, InsertAndRemoveBalanceBelowTheNodeOnly)
{
    Handle* self = NewHandle(Node(1, 1));
    Node* node = self->Get();
    for (const int key : {2, 3, 4})
        EXPECT_TRUE(node->InsertUnlessMember(key, key));
    EXPECT_FALSE(node->InsertUnlessMember(4, 5));
    EXPECT_EQ(ShapeOf(self), "1:3(-,2:2(-,3:1(-,4:0)))");
    EXPECT_EQ(*node->ConstFind(4), 4);
    EXPECT_EQ(node->ConstFind(5), nullptr);
    EXPECT_EQ(*node->Find(3), 3);
    EXPECT_EQ(node->Find(0), nullptr);
    Handle* top = node->Balance(self);
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(ShapeOf(top), "2:2(1:0,3:1(-,4:0))");
    EXPECT_EQ(top->Get()->Balance(top), nullptr) << "already balanced";
    Node* parent = top->Get();
    EXPECT_FALSE(parent->Remove(9, nullptr));
    EXPECT_TRUE(parent->Remove(3, nullptr)) << "the parent of the removed one is this node";
    EXPECT_EQ(ShapeOf(top), "2:1(1:0,4:0)");
    EXPECT_TRUE(const_cast<Handle*>(parent->Left())->Get()->Remove(1, parent));
    EXPECT_EQ(ShapeOf(top), "2:1(-,4:0)") << "the caller recomputes the parent";
    Delete(top);
}

TEST_F(NodeTest, RemoveNodeReplacesTheSlotOfTheOldNode)
{
    Node parent(2, 2);
    parent.InsertUnlessMember(1, 1);
    parent.InsertUnlessMember(3, 3);
    Node::RemoveNode(&parent, parent.Right()->ConstGet(), NewHandle(Node(4, 4)));
    EXPECT_EQ(ShapeOf(parent.Left()), "1:0");
    EXPECT_EQ(ShapeOf(parent.Right()), "4:0");
    Node::RemoveNode(&parent, parent.Left()->ConstGet(), nullptr);
    EXPECT_EQ(parent.Left(), nullptr);
}

struct PathNode
{
    using Handle = int;
};

TEST_F(BtreeTest, PathGrowsBeyondItsOwnRoom)
{
    cow_BtreePath<PathNode, 2> path;
    PathNode nodes[100];
    int* slots[100] = {};
    for (int level = 0; level < 100; ++level)
        path.Push(&nodes[level], &slots[level]);
    ASSERT_EQ(path.Depth(), 100);
    for (int level = 0; level < 100; ++level)
    {
        EXPECT_EQ(path[level].node, &nodes[level]);
        EXPECT_EQ(path[level].slot, &slots[level]);
    }
}

/// Orders of insertion that make the single rotation work hardest. The depths are those of the algorithm as
/// it is.
TEST_F(BtreeTest, NoOrderOfInsertionGrowsDeep)
{
    constexpr int n = 20000;
    const std::pair<const char*, std::function<int(int)>> orders[] = {
        {"ascending", [](int i) { return i; }},
        {"descending", [](int i) { return n - i; }},
        {"from both ends inwards", [](int i) { return i % 2 == 0 ? i : 2 * n - i; }},
        {"from the middle outwards", [](int i) { return i % 2 == 0 ? n + i : n - i; }},
        {"descending blocks of ascending keys", [](int i) { return -(i / 100) * 1000 + i % 100; }},
    };
    for (const auto& [what, key] : orders)
    {
        Map map;
        for (int i = 0; i < n; ++i)
            ASSERT_TRUE(map.InsertUnlessMember(key(i), i)) << what;
        EXPECT_LE(Depth(map.Root()), 20) << what;
        EXPECT_TRUE(HeightsAreExact(map.Root())) << what;
    }
}

/// Text whose order can be turned round, to see when the order is asked for.
struct Turned
{
    int number = 0;
    static inline int asked = 0;
};
} // namespace

template <>
class cow_KeyOrder<Turned>
{
public:
    static int Compare(const Turned& a, const Turned& b)
    {
        ++Turned::asked;
        return cow_KeyOrder<int>::Compare(a.number, b.number);
    }
};

namespace
{
TEST_F(BtreeTest, OrderIsAskedOnceForEachNodeOnTheWay)
{
    cow_Btree<Turned, int> map;
    for (int number = 1; number <= 7; ++number)
        map.InsertUnlessMember(Turned{number}, number);
    Turned::asked = 0;
    map.ConstFind((*map.Root())->Key());
    EXPECT_EQ(Turned::asked, 1);
    map.Find(Turned{0});
    EXPECT_EQ(Turned::asked, 1 + 3) << "along 4, 2, 1";
}

/// One change of a random sequence.
struct Change
{
    enum Kind
    {
        insert,
        remove,
        find,
        keep,
        assign
    };
    Kind kind;
    int key;
};

std::ostream& operator<<(std::ostream& out, const Change& change)
{
    static const char* const names[] = {"insert", "remove", "find", "keep", "assign"};
    return out << names[change.kind] << ' ' << change.key;
}

rc::Gen<Change> AnyChange()
{
    using namespace rc;
    return gen::construct<Change>(gen::weightedElement<Change::Kind>({{6, Change::insert},
                                                                      {4, Change::remove},
                                                                      {2, Change::find},
                                                                      {1, Change::keep},
                                                                      {1, Change::assign}}),
                                  gen::resize(40, gen::inRange(0, 60)));
}

rc::Gen<std::vector<Change>> AnyChanges()
{
    return rc::gen::withSize(
        [](int size)
        { return rc::gen::resize(size * 6, rc::gen::container<std::vector<Change>>(AnyChange())); });
}

RC_GTEST_FIXTURE_PROP(BtreeTest, ShapeIsThatOfTheRecursiveAlgorithm, ())
{
    const auto changes = *AnyChanges();
    Map map;
    BtreeModel<int, int> model;
    std::vector<Map> copies;
    for (const Change& change : changes)
    {
        if (change.kind == Change::insert)
            RC_ASSERT(map.InsertUnlessMember(change.key, change.key) == model.Insert(change.key, change.key));
        else if (change.kind == Change::remove)
            RC_ASSERT(map.Remove(change.key) == model.Remove(change.key));
        else if (change.kind == Change::keep)
            copies.push_back(map);
        RC_ASSERT(map.Count() == model.Count());
        RC_ASSERT(SameTree(map.Root(), model.Root()));
    }
}

RC_GTEST_FIXTURE_PROP(BtreeTest, ShapeOfLargeMapsIsThatOfTheRecursiveAlgorithm, ())
{
    const auto keys = *rc::gen::resize(2000, rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 3000)));
    Map map;
    BtreeModel<int, int> model;
    for (const int key : keys)
        RC_ASSERT(map.InsertUnlessMember(key, key) == model.Insert(key, key));
    RC_ASSERT(SameTree(map.Root(), model.Root()));
    RC_ASSERT(HeightsAreExact(map.Root()));
    for (std::size_t i = 0; i < keys.size(); i += 2)
        RC_ASSERT(map.Remove(keys[i]) == model.Remove(keys[i]));
    RC_ASSERT(SameTree(map.Root(), model.Root()));
}

RC_GTEST_FIXTURE_PROP(BtreeTest, BehavesAsAStandardMapAndCopiesNeverChange, ())
{
    const auto changes = *AnyChanges();
    {
        using TrackedMap = cow_Btree<Tracked, Tracked>;
        using Standard = std::map<Tracked, Tracked>;
        TrackedMap map;
        Standard standard;
        std::vector<std::pair<TrackedMap, Standard>> kept;
        int number = 1000;
        for (const Change& change : changes)
        {
            ++number;
            switch (change.kind)
            {
            case Change::insert:
                RC_ASSERT(map.InsertUnlessMember(Tracked(change.key), Tracked(number)) ==
                          standard.emplace(change.key, number).second);
                break;
            case Change::remove:
                RC_ASSERT(map.Remove(Tracked(change.key)) == (standard.erase(Tracked(change.key)) == 1));
                break;
            case Change::find:
            {
                const auto expected = standard.find(Tracked(change.key));
                const Tracked* readable = map.ConstFind(Tracked(change.key));
                RC_ASSERT((readable != nullptr) == (expected != standard.end()));
                RC_ASSERT((readable == nullptr || *readable == expected->second));
                if (Tracked* writable = map.Find(Tracked(change.key)))
                {
                    *writable = Tracked(number);
                    expected->second = Tracked(number);
                }
                break;
            }
            case Change::keep:
                kept.emplace_back(map, standard);
                break;
            case Change::assign:
                if (kept.empty())
                    break;
                map = kept[static_cast<std::size_t>(change.key) % kept.size()].first;
                standard = kept[static_cast<std::size_t>(change.key) % kept.size()].second;
                break;
            }
            RC_ASSERT(map.Count() == static_cast<int>(standard.size()));
        }
        kept.emplace_back(map, standard);
        for (const auto& [copy, expected] : kept)
        {
            RC_ASSERT(Entries(copy) == Entries(expected));
            RC_ASSERT(copy.Count() == CountNodes(copy.Root()));
        }
    }
}

/// Runs one change on a map whose tree other maps hold too, with the copy after the N-th failing, for each N
/// until the change succeeds.
class BtreeFailureTest : public MapTest
{
protected:
    using TrackedMap = cow_Btree<Tracked, Tracked>;

    void TearDown() override
    {
        Tracked::FailAfter(-1);
        MapTest::TearDown();
    }

    static TrackedMap Made(const std::vector<int>& steps)
    {
        TrackedMap map;
        Apply(map, steps);
        return map;
    }

    static bool Fails(TrackedMap& map, const std::function<void(TrackedMap&)>& change, int copies)
    {
        Tracked::FailAfter(copies);
        try
        {
            change(map);
        }
        catch (const Tracked::Failure&)
        {
            return true;
        }
        Tracked::FailAfter(-1);
        return false;
    }

    static std::vector<int> KeysOf(const TrackedMap& map)
    {
        std::vector<int> keys;
        for (const auto& [key, value] : Entries(map))
            keys.push_back(key.Value());
        return keys;
    }

    /// Returns how often the change failed.
    static int FailEverywhere(const TrackedMap& original, const std::function<void(TrackedMap&)>& change)
    {
        const std::vector<int> before = KeysOf(original);
        TrackedMap changed(original);
        change(changed);
        const std::vector<int> after = KeysOf(changed);
        const bool exact = HeightsAreExact(original.Root()) && HeightsAreExact(changed.Root());
        for (int copies = 0;; ++copies)
        {
            TrackedMap map(original);
            const bool failed = Fails(map, change, copies);
            EXPECT_EQ(KeysOf(original), before);
            EXPECT_TRUE(KeysOf(map) == before || KeysOf(map) == after) << "after " << copies << " copies";
            EXPECT_EQ(map.Count(), CountNodes(map.Root())) << "after " << copies << " copies";
            EXPECT_TRUE(!exact || HeightsAreExact(map.Root())) << "after " << copies << " copies";
            for (const int key : KeysOf(map))
                EXPECT_EQ(map.ConstFind(Tracked(key))->Value(), key);
            EXPECT_TRUE(map.InsertUnlessMember(Tracked(1000), Tracked(1000)));
            EXPECT_TRUE(map.Remove(Tracked(1000)));
            if (!failed)
                return copies;
        }
    }
};

const std::vector<int> manyKeys = {20, 10, 30, 5, 15, 25, 35, 2, 7, 40, 45};

TEST_F(BtreeFailureTest, InsertLeavesAValidMap)
{
    const int failures = FailEverywhere(Made(manyKeys), [](TrackedMap& map)
                                        { map.InsertUnlessMember(Tracked(50), Tracked(50)); });
    EXPECT_GE(failures, 8) << "three or more nodes copied and one made, each with key and value";
}

TEST_F(BtreeFailureTest, InsertIntoAnEmptyMapLeavesItEmpty)
{
    EXPECT_EQ(FailEverywhere(TrackedMap(),
                             [](TrackedMap& map) { map.InsertUnlessMember(Tracked(50), Tracked(50)); }),
              2);
}

TEST_F(BtreeFailureTest, FindLeavesAValidMap)
{
    EXPECT_EQ(FailEverywhere(Made(manyKeys), [](TrackedMap& map) { map.Find(Tracked(7)); }), 8)
        << "four nodes";
}

TEST_F(BtreeFailureTest, RemovalOfEachKeyLeavesAValidMap)
{
    for (const int key : manyKeys)
        EXPECT_GE(
            FailEverywhere(Made(manyKeys), [key](TrackedMap& map) { EXPECT_TRUE(map.Remove(Tracked(key))); }),
            2)
            << key;
}

TEST_F(BtreeFailureTest, RemovalThatRotatesLeavesAValidMap)
{
    // Removing 1 makes the other side, which is shared, too tall.
    const std::vector<int> steps = {2, 1, 4, 3, 5, 6};
    const int failures =
        FailEverywhere(Made(steps), [](TrackedMap& copy) { EXPECT_TRUE(copy.Remove(Tracked(1))); });
    EXPECT_EQ(failures, 2 * 3) << "the nodes on the way, and the one that is rotated up";
}

TEST_F(BtreeFailureTest, RemovalWhoseReplacementRotatesLeavesExactHeights)
{
    const TrackedMap map = Made({1, 2, 4, 11, 9, 5, 8, 14, 12, 6, 7, 13});
    ASSERT_TRUE(HeightsAreExact(map.Root()));
    const int failures = FailEverywhere(map, [](TrackedMap& copy) { copy.Remove(Tracked(14)); });
    EXPECT_EQ(failures, 2 * 4) << "8 and 14 on the way, 9 in the place of 14, and 11, which is rotated up";
}

RC_GTEST_FIXTURE_PROP(BtreeFailureTest, AnyChangeOfAnyMapLeavesAValidMap, ())
{
    TrackedMap map;
    for (const Change& change : *AnyChanges())
    {
        if (change.kind == Change::remove)
            map.Remove(Tracked(change.key));
        else
            map.InsertUnlessMember(Tracked(change.key), Tracked(change.key));
    }
    const auto last = *AnyChange();
    FailEverywhere(map,
                   [&last](TrackedMap& copy)
                   {
                       if (last.kind == Change::remove)
                           copy.Remove(Tracked(last.key));
                       else
                           copy.InsertUnlessMember(Tracked(last.key), Tracked(last.key));
                   });
    RC_ASSERT(!HasFailure());
}

TEST_F(BtreeFailureTest, CopyAndAssignmentLeaveValidMaps)
{
    const TrackedMap original = Made(manyKeys);
    Tracked::FailAfter(0);
    EXPECT_THROW(TrackedMap copy(original), Tracked::Failure);
    EXPECT_EQ(original.Root()->ShareCount(), 1);
    TrackedMap other;
    Tracked::FailAfter(0);
    EXPECT_THROW(other = original, Tracked::Failure);
    EXPECT_EQ(other.Root(), nullptr);
    EXPECT_EQ(other.Count(), 0);
    EXPECT_EQ(original.Root()->ShareCount(), 1);
}
} // namespace
