#pragma once

#include "cow_BtreeNode.h"

#include <utility>

/// Ordered map with unique keys, in the order of cow_KeyOrder<K>: a height-balanced binary search tree with
/// one key to a node. A copy of a map shares all nodes, at the cost of one increment; a change copies the
/// nodes on the way to it that other maps hold too. Maps belong to one thread at a time, together with all
/// their copies.
///
/// When copying a key or a value throws, the map keeps its content and stays in order; a node copied before
/// that may stay private. There is one exception: if the copy was needed to balance the tree after a key went
/// in or out, the change is kept, and the tree is only less balanced.
template <class K, class V>
class cow_Btree
{
public:
    using Node = cow_BtreeNode<K, V>;
    using Handle = typename Node::Handle;

    cow_Btree() : nullValue() {}

    /// Shares the tree.
    cow_Btree(const cow_Btree& other) : root(other.root), count(other.count), nullValue(other.nullValue)
    {
        Node::Share(root);
    }

    /// Shares the other's tree and releases its own.
    cow_Btree& operator=(const cow_Btree& other)
    {
        if (this == &other)
            return *this;
        nullValue = other.nullValue;
        // Releasing can destroy the value that `other` is part of, so it comes last.
        Handle* old = std::exchange(root, other.root);
        count = other.count;
        Node::Share(root);
        Node::Release(old);
        return *this;
    }

    ~cow_Btree() { Node::Release(root); }

    /// Number of keys.
    int Count() const { return count; }

    /// The top of the tree, or null for an empty map.
    const Handle* Root() const { return root; }

    /// The value under `key`, or null. It stays in place until the map is changed.
    const V* ConstFind(const K& key) const { return root == nullptr ? nullptr : (*root)->ConstFind(key); }

    /// The value under `key` to write, or null. Every node on the way there becomes private to this map,
    /// found or not.
    V* Find(const K& key) { return root == nullptr ? nullptr : Node::Writable(root)->Find(key); }

    /// True when the key was new; the value of a key that is there stays as it is.
    bool InsertUnlessMember(const K& key, const V& value)
    {
        if (root == nullptr)
        {
            root = Node::NewHandle(key, value);
            count = 1;
            return true;
        }
        if (!Node::Writable(root)->Insert(key, value, count))
            return false;
        Node::BalanceSlot(root);
        return true;
    }

    /// True when the key was there.
    bool Remove(const K& key)
    {
        if (root == nullptr)
            return false;
        if (!RemoveBelowScratch(key))
            return false;
        if (root != nullptr)
            Node::BalanceSlot(root);
        return true;
    }

    /// The value that a key without an entry stands for: always a default one, whatever was done to it
    /// before.
    V& GetNullValue()
    {
        nullValue = V();
        return nullValue;
    }

private:
    friend class cow_BtreeBuilder<K, V>;

    /// The parent that the root lacks, for the time of a removal.
    class Scratch
    {
    public:
        explicit Scratch(Handle*& aRoot) : root(aRoot) { node.left = root; }
        Scratch(const Scratch&) = delete;
        Scratch& operator=(const Scratch&) = delete;
        ~Scratch() { root = std::exchange(node.left, nullptr); }

        Node node;

    private:
        Handle*& root;
    };

    bool RemoveBelowScratch(const K& key)
    {
        Scratch scratch(root);
        return Node::Writable(scratch.node.left)->Erase(key, &scratch.node, count);
    }

    Handle* root = nullptr;
    int count = 0;
    V nullValue;
};
