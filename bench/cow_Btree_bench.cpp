// The ordered map against std::map and, where it is installed, QMap: names are
// Btree/<what>/<key>/<side>/<entries>. Compare medians of one run: --benchmark_repetitions=9
// --benchmark_enable_random_interleaving=true.

#include "cow_Btree.h"
#include "cow_BtreeBuilder.h"
#include "cow_BtreeIterator.h"
#include "cow_String.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <malloc.h>
#include <map>
#include <numeric>
#include <random>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>
#ifdef OVR_BENCH_QMAP
#include <QByteArray>
#include <QMap>
#endif

namespace
{
std::string Name(int number)
{
    char text[32];
    std::snprintf(text, sizeof text, "Object-%06d", number);
    return text;
}

template <class K>
K MakeKey(int number)
{
    if constexpr (std::is_same_v<K, int>)
        return number;
    else
        return K(Name(number).c_str());
}

/// What a block of `size` bytes takes up in the slab.
std::size_t BlockBytes(std::size_t size)
{
    return size <= 4 ? 4 : size <= 8 ? 8 : (size + 15) / 16 * 16;
}

template <class K>
struct Ours
{
    using Key = K;
    using Map = cow_Btree<K, int>;
    static constexpr const char* name = "ours";

    static void Insert(Map& map, const K& key, int value) { map.InsertUnlessMember(key, value); }
    static int Find(const Map& map, const K& key)
    {
        const int* value = map.ConstFind(key);
        return value == nullptr ? -1 : *value;
    }
    static void Change(Map& map, const K& key, int value) { *map.Find(key) = value; }
    static void Remove(Map& map, const K& key) { map.Remove(key); }
    static long Walk(const Map& map)
    {
        long sum = 0;
        cow_BtreeIterator<K, int> entry(map);
        for (entry.First(); !entry.IsExhausted(); entry.Next())
            sum += entry.Value();
        return sum;
    }
    static Map BuildOrdered(const std::vector<K>& keys)
    {
        cow_BtreeBuilder<K, int> builder;
        int value = 0;
        for (const K& key : keys)
            builder.Add(key, value++);
        return builder.Build();
    }
    static double BytesPerEntry(const std::vector<K>&)
    {
        double bytes =
            static_cast<double>(BlockBytes(sizeof(typename Map::Node)) +
                                BlockBytes(sizeof(typename Map::Handle)) + BlockBytes(sizeof(int)));
        if constexpr (std::is_same_v<K, cow_String>)
            bytes += static_cast<double>(BlockBytes(sizeof(atr_StringHeader) + Name(0).size() + 1));
        return bytes;
    }
};

template <class Peer>
double HeapBytesPerEntry(const std::vector<typename Peer::Key>& keys)
{
    const std::size_t before = mallinfo2().uordblks;
    const typename Peer::Map map = Peer::BuildOrdered(keys);
    const std::size_t after = mallinfo2().uordblks;
    return static_cast<double>(after - before) / static_cast<double>(keys.size());
}

template <class K>
struct Standard
{
    using Key = K;
    using Map = std::map<K, int>;
    static constexpr const char* name = "map";

    static void Insert(Map& map, const K& key, int value) { map.emplace(key, value); }
    static int Find(const Map& map, const K& key)
    {
        const auto found = map.find(key);
        return found == map.end() ? -1 : found->second;
    }
    static void Change(Map& map, const K& key, int value) { map.find(key)->second = value; }
    static void Remove(Map& map, const K& key) { map.erase(key); }
    static long Walk(const Map& map)
    {
        long sum = 0;
        for (const auto& entry : map)
            sum += entry.second;
        return sum;
    }
    static Map BuildOrdered(const std::vector<K>& keys)
    {
        Map map;
        int value = 0;
        for (const K& key : keys)
            map.emplace_hint(map.end(), key, value++);
        return map;
    }
    static double BytesPerEntry(const std::vector<K>& keys) { return HeapBytesPerEntry<Standard>(keys); }
};

#ifdef OVR_BENCH_QMAP
template <class K>
struct Qt
{
    using Key = K;
    using Map = QMap<K, int>;
    static constexpr const char* name = "qmap";

    static void Insert(Map& map, const K& key, int value) { map.insert(key, value); }
    static int Find(const Map& map, const K& key)
    {
        const auto found = map.constFind(key);
        return found == map.constEnd() ? -1 : found.value();
    }
    static void Change(Map& map, const K& key, int value) { map.find(key).value() = value; }
    static void Remove(Map& map, const K& key) { map.remove(key); }
    static long Walk(const Map& map)
    {
        long sum = 0;
        for (auto entry = map.constBegin(); entry != map.constEnd(); ++entry)
            sum += entry.value();
        return sum;
    }
    static Map BuildOrdered(const std::vector<K>& keys)
    {
        Map map;
        int value = 0;
        for (const K& key : keys)
            map.insert(map.constEnd(), key, value++);
        return map;
    }
    static double BytesPerEntry(const std::vector<K>& keys) { return HeapBytesPerEntry<Qt>(keys); }
};
#endif

/// Keys 0, 2, 4, ... in ascending order, and the same keys (in buffers of their own) twice more, in random
/// orders.
template <class K>
struct Keys
{
    explicit Keys(int entries)
    {
        std::vector<int> numbers(static_cast<std::size_t>(entries));
        std::iota(numbers.begin(), numbers.end(), 0);
        Fill(ordered, numbers, 0);
        std::mt19937 random(20);
        std::shuffle(numbers.begin(), numbers.end(), random);
        Fill(shuffled, numbers, 0);
        std::shuffle(numbers.begin(), numbers.end(), random);
        Fill(sought, numbers, 0);
        Fill(missing, numbers, 1);
    }

    std::vector<K> ordered;
    std::vector<K> shuffled;
    std::vector<K> sought;
    std::vector<K> missing;

private:
    static void Fill(std::vector<K>& keys, const std::vector<int>& numbers, int offset)
    {
        for (const int number : numbers)
            keys.push_back(MakeKey<K>(2 * number + offset));
    }
};

template <class Side>
typename Side::Map Filled(const std::vector<typename Side::Key>& keys)
{
    typename Side::Map map;
    int value = 0;
    for (const auto& key : keys)
        Side::Insert(map, key, value++);
    return map;
}

void CountEntries(benchmark::State& state, std::size_t perIteration)
{
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(perIteration));
}

template <class Side>
void Insert(benchmark::State& state)
{
    const Keys<typename Side::Key> keys(static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        auto map = Filled<Side>(keys.shuffled);
        benchmark::DoNotOptimize(map);
        state.PauseTiming();
        map = typename Side::Map();
        state.ResumeTiming();
    }
    CountEntries(state, keys.shuffled.size());
    state.counters["bytes_per_entry"] = Side::BytesPerEntry(keys.ordered);
}

template <class Side>
void Look(benchmark::State& state, const std::vector<typename Side::Key>& sought,
          const std::vector<typename Side::Key>& inserted)
{
    const auto map = Filled<Side>(inserted);
    for (auto _ : state)
    {
        long sum = 0;
        for (const auto& key : sought)
            sum += Side::Find(map, key);
        benchmark::DoNotOptimize(sum);
    }
    CountEntries(state, sought.size());
}

template <class Side>
void Hit(benchmark::State& state)
{
    const Keys<typename Side::Key> keys(static_cast<int>(state.range(0)));
    Look<Side>(state, keys.sought, keys.shuffled);
}

template <class Side>
void Miss(benchmark::State& state)
{
    const Keys<typename Side::Key> keys(static_cast<int>(state.range(0)));
    Look<Side>(state, keys.missing, keys.shuffled);
}

template <class Side>
void Walk(benchmark::State& state)
{
    const Keys<typename Side::Key> keys(static_cast<int>(state.range(0)));
    const auto map = Filled<Side>(keys.shuffled);
    for (auto _ : state)
        benchmark::DoNotOptimize(Side::Walk(map));
    CountEntries(state, keys.shuffled.size());
}

template <class Side>
void Copy(benchmark::State& state)
{
    const Keys<typename Side::Key> keys(static_cast<int>(state.range(0)));
    const auto map = Filled<Side>(keys.shuffled);
    for (auto _ : state)
    {
        auto copy = map;
        benchmark::DoNotOptimize(copy);
    }
}

template <class Side>
void CopyInsert(benchmark::State& state)
{
    const Keys<typename Side::Key> keys(static_cast<int>(state.range(0)));
    const auto map = Filled<Side>(keys.shuffled);
    std::size_t next = 0;
    for (auto _ : state)
    {
        auto copy = map;
        Side::Insert(copy, keys.missing[next], 1);
        benchmark::DoNotOptimize(copy);
        next = next + 1 == keys.missing.size() ? 0 : next + 1;
    }
}

template <class Side>
void CopyChange(benchmark::State& state)
{
    const Keys<typename Side::Key> keys(static_cast<int>(state.range(0)));
    const auto map = Filled<Side>(keys.shuffled);
    std::size_t next = 0;
    for (auto _ : state)
    {
        auto copy = map;
        Side::Change(copy, keys.sought[next], 1);
        benchmark::DoNotOptimize(copy);
        next = next + 1 == keys.sought.size() ? 0 : next + 1;
    }
}

template <class Side>
void Remove(benchmark::State& state)
{
    const Keys<typename Side::Key> keys(static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        state.PauseTiming();
        auto map = Filled<Side>(keys.shuffled);
        state.ResumeTiming();
        for (const auto& key : keys.sought)
            Side::Remove(map, key);
        benchmark::DoNotOptimize(map);
    }
    CountEntries(state, keys.sought.size());
}

template <class Side>
void BuildOrdered(benchmark::State& state)
{
    const Keys<typename Side::Key> keys(static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        auto map = Side::BuildOrdered(keys.ordered);
        benchmark::DoNotOptimize(map);
        state.PauseTiming();
        map = typename Side::Map();
        state.ResumeTiming();
    }
    CountEntries(state, keys.ordered.size());
}

template <class Side>
void Register(const std::string& key)
{
    const std::pair<const char*, void (*)(benchmark::State&)> all[] = {{"insert", Insert<Side>},
                                                                       {"hit", Hit<Side>},
                                                                       {"miss", Miss<Side>},
                                                                       {"walk", Walk<Side>},
                                                                       {"copy", Copy<Side>},
                                                                       {"copy-insert", CopyInsert<Side>},
                                                                       {"copy-change", CopyChange<Side>},
                                                                       {"remove", Remove<Side>},
                                                                       {"ordered-build", BuildOrdered<Side>}};
    for (const auto& [what, run] : all)
    {
        const std::string name = std::string("Btree/") + what + "/" + key + "/" + Side::name;
        benchmark::RegisterBenchmark(name.c_str(), run)->RangeMultiplier(10)->Range(100, 100000);
    }
}

const bool registered = []
{
    Register<Ours<cow_String>>("text");
    Register<Standard<std::string>>("text");
    Register<Ours<int>>("int");
    Register<Standard<int>>("int");
#ifdef OVR_BENCH_QMAP
    Register<Qt<QByteArray>>("text");
    Register<Qt<int>>("int");
#endif
    return true;
}();
} // namespace
