#pragma once

#include "cow_Btree.h"
#include "cow_BtreeIterator.h"
#include "cow_BtreeModel.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

/// Every test gives back all the memory that it takes.
class MapTest : public testing::Test
{
protected:
    void SetUp() override { blocksBefore = mem_BlocksInUse(); }
    void TearDown() override { EXPECT_EQ(mem_BlocksInUse(), blocksBefore); }

private:
    std::size_t blocksBefore = 0;
};

struct CopyFailure : std::runtime_error
{
    CopyFailure() : std::runtime_error("copy failure of the test") {}
};

/// A number that knows all its living instances and fails to copy when it is told to.
class Tracked
{
public:
    Tracked() { Enter(); }
    Tracked(int aNumber) : number(aNumber) { Enter(); }
    Tracked(const Tracked& other) : number(other.number)
    {
        CountDown();
        Enter();
    }
    Tracked& operator=(const Tracked& other)
    {
        CountDown();
        number = other.number;
        return *this;
    }
    ~Tracked()
    {
        if (Living().erase(this) != 1)
            ADD_FAILURE() << "destroyed, but not alive";
    }

    int Number() const { return number; }

    static std::size_t Alive() { return Living().size(); }
    /// Makes the copy after the next `copies` ones fail; below 0, none.
    static void FailAfter(int copies) { copiesLeft = copies; }
    /// True when a copy has failed since FailAfter.
    static bool HasFailed() { return failed; }
    static void Relax()
    {
        copiesLeft = -1;
        failed = false;
    }

    friend bool operator<(const Tracked& a, const Tracked& b) { return a.number < b.number; }
    friend bool operator==(const Tracked& a, const Tracked& b) { return a.number == b.number; }

private:
    static std::set<const Tracked*>& Living()
    {
        static std::set<const Tracked*> living;
        return living;
    }

    static void CountDown()
    {
        if (copiesLeft < 0)
            return;
        if (copiesLeft-- == 0)
        {
            failed = true;
            throw CopyFailure();
        }
    }

    void Enter() { Living().insert(this); }

    static inline int copiesLeft = -1;
    static inline bool failed = false;
    int number = 0;
};

template <>
class cow_KeyOrder<Tracked>
{
public:
    static int Compare(const Tracked& a, const Tracked& b)
    {
        return cow_KeyOrder<int>::Compare(a.Number(), b.Number());
    }
};

/// A tree as text, for instance `2:1(1:0,3:0)`: key, height, and the two subtrees of a node that has any,
/// with `-` for an absent one.
template <class Handle>
std::string ShapeOf(const Handle* handle)
{
    if (handle == nullptr)
        return "-";
    const auto& node = **handle;
    std::ostringstream text;
    text << node.Key() << ':' << node.Height();
    if (node.Left() != nullptr || node.Right() != nullptr)
        text << '(' << ShapeOf(node.Left()) << ',' << ShapeOf(node.Right()) << ')';
    return text.str();
}

template <class K, class V>
std::string Shape(const cow_Btree<K, V>& map)
{
    return ShapeOf(map.Root());
}

/// True when tree and model have the same keys, values and heights at the same places.
template <class Handle, class ModelNode>
bool SameTree(const Handle* handle, const ModelNode* model)
{
    if (handle == nullptr || model == nullptr)
        return handle == nullptr && model == nullptr;
    const auto& node = **handle;
    return node.Key() == model->key && node.Value() == model->value && node.Height() == model->height &&
           SameTree(node.Left(), model->left.get()) && SameTree(node.Right(), model->right.get());
}

template <class Handle>
int CountNodes(const Handle* handle)
{
    return handle == nullptr ? 0 : 1 + CountNodes((*handle)->Left()) + CountNodes((*handle)->Right());
}

/// Nodes on the longest way down.
template <class Handle>
int Depth(const Handle* handle)
{
    return handle == nullptr ? 0 : 1 + std::max(Depth((*handle)->Left()), Depth((*handle)->Right()));
}

/// True when the height of each node is the larger of its children's plus 1, and 0 without children.
template <class Handle>
bool HeightsAreExact(const Handle* handle)
{
    return handle == nullptr || ((*handle)->Height() == Depth(handle) - 1 &&
                                 HeightsAreExact((*handle)->Left()) && HeightsAreExact((*handle)->Right()));
}

template <class K, class V>
std::vector<std::pair<K, V>> Entries(const cow_Btree<K, V>& map)
{
    std::vector<std::pair<K, V>> entries;
    cow_BtreeIterator<K, V> entry(map);
    for (entry.First(); !entry.IsExhausted(); entry.Next())
        entries.emplace_back(entry.Key(), entry.Value());
    return entries;
}

template <class K, class V>
std::vector<std::pair<K, V>> Entries(const std::map<K, V>& map)
{
    return {map.begin(), map.end()};
}
