#include "cow_IntMultiMapInt.h"

#include <algorithm>

namespace
{
constexpr auto byKey = [](const std::pair<int, int>& left, const std::pair<int, int>& right)
{ return left.first < right.first; };
} // namespace

cow_IntMultiMapInt::cow_IntMultiMapInt() : content(cow_Direct<Content>::New()) {}

cow_IntMultiMapInt::cow_IntMultiMapInt(const cow_IntMultiMapInt&) = default;

cow_IntMultiMapInt& cow_IntMultiMapInt::operator=(const cow_IntMultiMapInt&) = default;

cow_IntMultiMapInt::~cow_IntMultiMapInt() = default;

void cow_IntMultiMapInt::Insert(int key, int value)
{
    Content* own = content.Get();
    if (!own->pairs.empty() && own->pairs.back().first > key)
        own->isOrdered = false;
    own->pairs.emplace_back(key, value);
}

std::pair<const cow_IntMultiMapInt::Pair*, const cow_IntMultiMapInt::Pair*>
cow_IntMultiMapInt::Range(int key) const
{
    std::vector<Pair>& pairs = content->pairs;
    if (!content->isOrdered)
    {
        std::stable_sort(pairs.begin(), pairs.end(), byKey);
        content->isOrdered = true;
    }
    const Pair* begin = pairs.data();
    return std::equal_range(begin, begin + pairs.size(), Pair(key, 0), byKey);
}

bool cow_IntMultiMapInt::IsMember(int key) const
{
    return ConstGet(key) != nullptr;
}

const int* cow_IntMultiMapInt::ConstGet(int key) const
{
    const auto [begin, end] = Range(key);
    return begin == end ? nullptr : &begin->second;
}

cow_List<int> cow_IntMultiMapInt::ConstGetValues(int key) const
{
    cow_List<int> values;
    const auto [begin, end] = Range(key);
    for (const Pair* pair = begin; pair != end; ++pair)
        values.Append(pair->second);
    return values;
}

void cow_IntMultiMapInt::Clear()
{
    *this = cow_IntMultiMapInt();
}

int cow_IntMultiMapInt::Count() const
{
    return static_cast<int>(content->pairs.size());
}
