#pragma once

#include <type_traits>

/// The order of a map's keys. Numbers have their plain order; a key class of another kind specializes this
/// beside itself. Its specialization may have a `Fetch(key)` too, which starts to load what a key that is
/// soon compared has elsewhere.
template <class K>
class cow_KeyOrder
{
    static_assert(std::is_integral_v<K>, "a key class needs a cow_KeyOrder of its own");

public:
    /// Below, equal to or above 0 as `a` sorts before, with or after `b`.
    static int Compare(K a, K b) { return static_cast<int>(a > b) - static_cast<int>(a < b); }
};
