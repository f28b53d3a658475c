#pragma once

#include "cow_Btree.h"

#include <bit>

/// Builds a map from entries that mostly come in ascending order, as a reader delivers them. Keys that do go
/// into a tree of least height without being sought in it, in linear time. From the first key that does not,
/// each one is inserted.
template <class K, class V>
class cow_BtreeBuilder
{
    using Node = cow_BtreeNode<K, V>;
    using Handle = typename Node::Handle;

public:
    cow_BtreeBuilder() = default;
    cow_BtreeBuilder(const cow_BtreeBuilder&) = delete;
    cow_BtreeBuilder& operator=(const cow_BtreeBuilder&) = delete;

    ~cow_BtreeBuilder() { Join(); }

    /// As cow_Btree::InsertUnlessMember: true when the key was new; the first value of a key stays.
    bool Add(const K& key, const V& value)
    {
        if (map.root != nullptr)
            return map.InsertUnlessMember(key, value);
        const int order = last == nullptr ? 1 : cow_KeyOrder<K>::Compare(key, last->key);
        if (order > 0)
        {
            Place(Node::NewHandle(key, value));
            return true;
        }
        if (order == 0)
            return false;
        Join();
        return map.InsertUnlessMember(key, value);
    }

    /// The map of all entries added; leaves the builder empty.
    cow_Btree<K, V> Build()
    {
        Join();
        cow_Btree<K, V> built(map);
        map = cow_Btree<K, V>();
        return built;
    }

private:
    /// Nodes are numbered from 1 on as they come, and the zeros that a number's bits end with are the height
    /// that its node gets: every other one is a leaf, every other one of the rest goes above two leaves, and
    /// so on.
    void Place(Handle* handle)
    {
        const unsigned number = ++length;
        const int height = std::countr_zero(number);
        last = Node::Owned(handle);
        last->left = waiting[height];
        last->height = height;
        rights[height] = &last->right;
        *PlaceOf(number) = handle;
    }

    /// Where the node with this number, the last one so far of its height, hangs: on the higher side of one
    /// that came before, or nowhere until the one comes that it is on the lower side of.
    Handle** PlaceOf(unsigned number)
    {
        const int above = std::countr_zero(number) + 1;
        return (number >> above & 1) != 0 ? rights[above] : &waiting[above];
    }

    /// Makes the nodes into the map's tree. Those that lack nodes on their higher side have the number of the
    /// last one, with any of its last set bits cleared.
    void Join()
    {
        if (length == 0)
            return;
        map.count = static_cast<int>(length);
        for (; length != 0; length &= length - 1)
        {
            Handle* top = *PlaceOf(length);
            map.root = JoinBehind(Node::Owned(top)->left, top, map.root);
        }
        last = nullptr;
    }

    /// A tree of `lower`, which is full, `middle`, which has no children, and `higher`, which is no taller
    /// than `lower` and may be null. Where it is much less tall, both go down the higher side of `lower`,
    /// which gets taller by 1 at most and so stays in balance.
    static Handle* JoinBehind(Handle* lower, Handle* middle, Handle* higher)
    {
        const bool balanced =
            !Node::IsTooMuch(Node::LeanOf(Node::HeightAbove(lower), Node::HeightAbove(higher)));
        Handle* top = balanced ? middle : lower;
        Node* node = Node::Owned(top);
        if (balanced)
        {
            node->left = lower;
            node->right = higher;
        }
        else
            node->right = JoinBehind(node->right, middle, higher);
        node->ComputeHeight();
        return top;
    }

    cow_Btree<K, V> map;
    Handle* waiting[33] = {}; ///< full trees by height + 1; the first is that below a leaf
    Handle** rights[33] = {}; ///< the higher sides of the last nodes by height
    Node* last = nullptr;
    unsigned length = 0;
};
