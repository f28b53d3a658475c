#pragma once

#include "cow_BtreeIterator.h"
#include "cow_String.h"

/// One key of a cow_Map and its value.
template <class K, class V>
using cow_MapNode = cow_BtreeNode<K, V>;

template <class K, class V>
class cow_ConstMapIterator;

/// Ordered map of plain values with unique keys, in the order of cow_KeyOrder<K>. A copy shares all nodes; a
/// change copies the few that stand in its way.
template <class K, class V>
class cow_Map
{
public:
    /// Puts `value` under `key`, in place of an earlier one.
    void Insert(const K& key, const V& value)
    {
        if (tree.InsertUnlessMember(key, value))
            return;
        *tree.Find(key) = value;
    }

    /// True when the key was there.
    bool Remove(const K& key) { return tree.ConstFind(key) != nullptr && tree.Remove(key); }

    void Clear() { tree = cow_Btree<K, V>(); }

    bool IsMember(const K& key) const { return tree.ConstFind(key) != nullptr; }

    /// The value under `key`, or null. It stays in place until the map is changed.
    const V* ConstGet(const K& key) const { return tree.ConstFind(key); }

    /// The value under `key` to write, or null. It stays in place until the map is changed or copied.
    V* Get(const K& key) { return IsMember(key) ? tree.Find(key) : nullptr; }

    /// Number of keys.
    int Count() const { return tree.Count(); }
    bool IsEmpty() const { return tree.Count() == 0; }

    /// Equal keys with equal values.
    friend bool operator==(const cow_Map& left, const cow_Map& right)
    {
        if (left.tree.Root() == right.tree.Root())
            return true;
        if (left.Count() != right.Count())
            return false;
        cow_BtreeIterator<K, V> entry(left.tree);
        cow_BtreeIterator<K, V> other(right.tree);
        for (bool more = entry.First() && other.First(); more; more = entry.Next() && other.Next())
        {
            if (cow_KeyOrder<K>::Compare(entry.Key(), other.Key()) != 0 || !(entry.Value() == other.Value()))
                return false;
        }
        return true;
    }

private:
    friend class cow_ConstMapIterator<K, V>;

    cow_Btree<K, V> tree;
};

/// Walks a map in key order. It holds the content that the map had when it was made, whatever becomes of the
/// map. A new iterator stands on the first entry.
template <class K, class V>
class cow_ConstMapIterator
{
public:
    explicit cow_ConstMapIterator(const cow_Map<K, V>& map) : tree(map.tree), position(tree)
    {
        position.First();
    }
    cow_ConstMapIterator(const cow_ConstMapIterator&) = delete;
    cow_ConstMapIterator& operator=(const cow_ConstMapIterator&) = delete;

    /// Goes to the lowest key. This and Next return whether the iterator stands on an entry.
    bool First() { return position.First(); }
    /// Goes to the next higher key; an iterator at the end stays there.
    bool Next() { return position.Next(); }

    bool Valid() const { return !position.IsExhausted(); }

    /// The entry's key. Must not be called at the end, like Value.
    const K& Key() const { return position.Key(); }
    const V& Value() const { return position.Value(); }

private:
    cow_Btree<K, V> tree;
    cow_BtreeIterator<K, V> position;
};
