#pragma once

#include "cow_BtreeIterator.h"
#include "cow_List.h"

/// The content of a map as lists.
template <class K, class V>
class cow_BtreeUtils
{
public:
    /// All keys in ascending order.
    static cow_List<K> cow_Keys(const cow_Btree<K, V>& map)
    {
        cow_List<K> keys;
        cow_BtreeIterator<K, V> entry(map);
        for (entry.First(); !entry.IsExhausted(); entry.Next())
            keys.Append(entry.Key());
        return keys;
    }

    /// All values in the order of their keys.
    static cow_List<V> cow_Values(const cow_Btree<K, V>& map)
    {
        cow_List<V> values;
        cow_BtreeIterator<K, V> entry(map);
        for (entry.First(); !entry.IsExhausted(); entry.Next())
            values.Append(entry.Value());
        return values;
    }
};
