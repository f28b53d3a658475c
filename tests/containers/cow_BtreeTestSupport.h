#pragma once

#include "cow_Btree.h"
#include "cow_BtreeIterator.h"
#include "cow_BtreeModel.h"
#include "cow_Tracked.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <vector>

/// Every test gives back all the memory that it takes, and destroys each element once.
class MapTest : public testing::Test
{
protected:
    void SetUp() override { blocksBefore = mem_BlocksInUse(); }
    void TearDown() override
    {
        EXPECT_EQ(mem_BlocksInUse(), blocksBefore);
        EXPECT_TRUE(tracked.IsClean());
    }

    /// The tracked elements that are alive.
    std::size_t Alive() const { return tracked.Live(); }

private:
    std::size_t blocksBefore = 0;
    TrackedScope tracked;
};

inline bool operator<(const Tracked& a, const Tracked& b)
{
    return a.Value() < b.Value();
}

template <>
class cow_KeyOrder<Tracked>
{
public:
    static int Compare(const Tracked& a, const Tracked& b)
    {
        return cow_KeyOrder<int>::Compare(a.Value(), b.Value());
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
