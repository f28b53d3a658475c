// Handles against a hand-written pointer whose count lies in the object, and small blocks against malloc.
// Names are operation/element/side/size.

#include "cow_COW.h"
#include "mem_Allocation.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <memory>
#include <vector>

namespace
{
struct Value
{
    double number = 0.0;
};

/// What one would write by hand: one pointer, the count beside the value.
class Intrusive
{
public:
    explicit Intrusive(double number) : object(new Counted{1, {number}}) {}
    Intrusive(const Intrusive& other) : object(other.object) { ++object->count; }
    Intrusive& operator=(const Intrusive& other)
    {
        Intrusive taken(other);
        std::swap(object, taken.object);
        return *this;
    }
    ~Intrusive()
    {
        if (object->count-- == 1)
            delete object;
    }

private:
    struct Counted
    {
        int count;
        Value value;
    };

    Counted* object;
};

using Handle = cow_COW<Value, cow_Direct<Value>>;
using SharedValue = std::shared_ptr<Value>;

template <class H>
H Make(double number)
{
    if constexpr (std::is_same_v<H, Handle>)
        return Handle(cow_Direct<Value>::New(Value{number}));
    else if constexpr (std::is_same_v<H, SharedValue>)
        return std::make_shared<Value>(Value{number});
    else
        return H(number);
}

template <class H>
std::vector<H> MakeAll(std::int64_t n)
{
    std::vector<H> handles;
    handles.reserve(static_cast<std::size_t>(n));
    for (std::int64_t i = 0; i < n; ++i)
        handles.push_back(Make<H>(double(i)));
    return handles;
}

/// Copies a handle on each of n values, then releases the copies.
template <class H>
void CopyRelease(benchmark::State& state)
{
    const std::vector<H> handles = MakeAll<H>(state.range(0));
    std::allocator<H> allocator;
    H* copies = allocator.allocate(handles.size());
    for (auto _ : state)
    {
        std::uninitialized_copy(handles.begin(), handles.end(), copies);
        benchmark::ClobberMemory();
        std::destroy_n(copies, handles.size());
        benchmark::ClobberMemory();
    }
    allocator.deallocate(copies, handles.size());
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// Makes a value with its handle and releases it.
template <class H>
void MakeRelease(benchmark::State& state)
{
    for (auto _ : state)
    {
        H handle = Make<H>(1.0);
        benchmark::DoNotOptimize(handle);
    }
}

struct Slab
{
    static void* New(std::size_t size) { return mem_OperatorNewTinyThrow(size); }
    static void Free(void* block) { mem_Free(block); }
};

struct Heap
{
    static void* New(std::size_t size) { return std::malloc(size); }
    static void Free(void* block) { std::free(block); }
};

/// Takes 1,000 blocks of the size, then gives them back.
template <class Memory>
void TakeGive(benchmark::State& state)
{
    const auto size = static_cast<std::size_t>(state.range(0));
    std::vector<void*> blocks(1'000);
    for (auto _ : state)
    {
        for (void*& block : blocks)
            block = Memory::New(size);
        benchmark::ClobberMemory();
        for (void* block : blocks)
            Memory::Free(block);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(blocks.size()));
}

BENCHMARK(CopyRelease<Handle>)->Name("COW/copy-release/value/ours")->Arg(1)->Arg(100)->Arg(10'000);
BENCHMARK(CopyRelease<Intrusive>)->Name("COW/copy-release/value/intrusive")->Arg(1)->Arg(100)->Arg(10'000);
BENCHMARK(CopyRelease<SharedValue>)->Name("COW/copy-release/value/shared_ptr")->Arg(1)->Arg(100)->Arg(10'000);
BENCHMARK(MakeRelease<Handle>)->Name("COW/make-release/value/ours");
BENCHMARK(MakeRelease<Intrusive>)->Name("COW/make-release/value/intrusive");
BENCHMARK(MakeRelease<SharedValue>)->Name("COW/make-release/value/shared_ptr");
BENCHMARK(TakeGive<Slab>)->Name("Memory/take-give/block/ours")->Arg(4)->Arg(16)->Arg(64)->Arg(128);
BENCHMARK(TakeGive<Heap>)->Name("Memory/take-give/block/malloc")->Arg(4)->Arg(16)->Arg(64)->Arg(128);
} // namespace
