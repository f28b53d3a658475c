#pragma once

#include "cow_Btree.h"

#include <bit>
#include <utility>

/// Builds a map from entries that mostly come in ascending order, as a reader delivers them. Keys that do are
/// only chained, and made into a tree of least height at the end, in linear time. From the first key that
/// does not, each one is inserted.
template <class K, class V>
class cow_BtreeBuilder
{
    using Node = cow_BtreeNode<K, V>;
    using Handle = typename Node::Handle;

public:
    cow_BtreeBuilder() = default;
    cow_BtreeBuilder(const cow_BtreeBuilder&) = delete;
    cow_BtreeBuilder& operator=(const cow_BtreeBuilder&) = delete;

    ~cow_BtreeBuilder() { Node::Release(chain); }

    /// As cow_Btree::InsertUnlessMember: true when the key was new; the first value of a key stays.
    bool Add(const K& key, const V& value)
    {
        if (map.root != nullptr)
            return map.InsertUnlessMember(key, value);
        const int order = last == nullptr ? 1 : cow_KeyOrder<K>::Compare(key, last->key);
        if (order > 0)
        {
            Chain(Node::NewHandle(key, value));
            return true;
        }
        if (order == 0)
            return false;
        Arrange();
        return map.InsertUnlessMember(key, value);
    }

    /// The map of all entries added; leaves the builder empty.
    cow_Btree<K, V> Build()
    {
        if (last != nullptr)
            Arrange();
        cow_Btree<K, V> built(map);
        map = cow_Btree<K, V>();
        return built;
    }

private:
    void Chain(Handle* handle)
    {
        *end = handle;
        last = Node::Owned(handle);
        end = &last->right;
        ++length;
    }

    /// Makes the chain into the map's tree.
    void Arrange()
    {
        map.count = std::exchange(length, 0);
        map.root = Take(map.count);
        last = nullptr;
        end = &chain;
    }

    /// A tree of the next `n` nodes of the chain, at least one, its two sides as equal as can be.
    Handle* Take(int n)
    {
        const int lower = n / 2;
        const int higher = n - lower - 1;
        Handle* left = lower == 0 ? nullptr : Take(lower);
        Handle* top = chain;
        Node* node = Node::Owned(top);
        chain = node->right;
        node->left = left;
        node->right = higher == 0 ? nullptr : Take(higher);
        node->height = std::bit_width(static_cast<unsigned>(n)) - 1;
        return top;
    }

    cow_Btree<K, V> map;
    Handle* chain = nullptr;
    Handle** end = &chain;
    Node* last = nullptr;
    int length = 0;
};
