#pragma once

#include "cow_COW.h"
#include "cow_List.h"
#include "ovr_Export.h"

#include <utility>
#include <vector>

/// From a number to any count of numbers. A copy shares the content.
class OVR_EXPORT cow_IntMultiMapInt
{
public:
    cow_IntMultiMapInt();
    cow_IntMultiMapInt(const cow_IntMultiMapInt&);
    cow_IntMultiMapInt& operator=(const cow_IntMultiMapInt&);
    ~cow_IntMultiMapInt();

    /// Adds `value` behind the values that `key` has, equal ones included.
    void Insert(int key, int value);

    bool IsMember(int key) const;

    /// The first value that was inserted under `key`, or null. It stays in place until the map is changed.
    const int* ConstGet(int key) const;

    /// All values under `key`, in the order of insertion; none for an unknown key.
    cow_List<int> ConstGetValues(int key) const;

    void Clear();

    /// Number of values under all keys.
    int Count() const;

private:
    using Pair = std::pair<int, int>;

    /// Pairs of key and value. They are put in order of the keys when one is first sought.
    struct Content
    {
        mutable std::vector<Pair> pairs;
        mutable bool isOrdered = true;
    };

    /// The pairs of `key`, first to last.
    std::pair<const Pair*, const Pair*> Range(int key) const;

    cow_COW<Content, cow_Direct<Content>> content;
};
