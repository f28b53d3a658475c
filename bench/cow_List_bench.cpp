// cow_List against std::vector and std::deque. Names are operation/element/side/size.

#include "cow_COW.h"
#include "cow_List.h"
#include "cow_ListIter.h"

#include <benchmark/benchmark.h>

#include <deque>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace
{
struct Value
{
    double number = 0.0;
};

using Handle = cow_ArrayCOW<Value, cow_Direct<Value>>;
using SharedValue = std::shared_ptr<Value>;

template <class T>
T Make(int i)
{
    if constexpr (std::is_same_v<T, Handle>)
        return Handle(cow_Direct<Value>::New(Value{double(i)}));
    else if constexpr (std::is_same_v<T, SharedValue>)
        return std::make_shared<Value>(Value{double(i)});
    else
        return T(i);
}

double Number(double element)
{
    return element;
}
double Number(const Handle& element)
{
    return element->number;
}
double Number(const SharedValue& element)
{
    return element->number;
}

// One name for what both sides do.

template <class T>
void Append(cow_List<T>& list, const T& value)
{
    list.Append(value);
}
template <class C, class T>
void Append(C& container, const T& value)
{
    container.push_back(value);
}

template <class T>
void Prepend(cow_List<T>& list, const T& value)
{
    list.Prepend(value);
}
template <class T>
void Prepend(std::deque<T>& container, const T& value)
{
    container.push_front(value);
}
template <class T>
void Prepend(std::vector<T>& container, const T& value)
{
    container.insert(container.begin(), value);
}

template <class T>
void Insert(cow_List<T>& list, int i, const T& value)
{
    list.InsertIndex(i, value);
}
template <class C, class T>
void Insert(C& container, int i, const T& value)
{
    container.insert(container.begin() + i, value);
}

template <class T>
void Erase(cow_List<T>& list, int i)
{
    list.RemoveIndex(i);
}
template <class C>
void Erase(C& container, int i)
{
    container.erase(container.begin() + i);
}

template <class T>
void Write(cow_List<T>& list, int i, const T& value)
{
    *list.Get(i) = value;
}
template <class C, class T>
void Write(C& container, int i, const T& value)
{
    container[static_cast<std::size_t>(i)] = value;
}

template <class T>
const T& At(const cow_List<T>& list, int i)
{
    return list[i];
}
template <class C>
const auto& At(const C& container, int i)
{
    return container[static_cast<std::size_t>(i)];
}

template <class C>
C Built(int n)
{
    C container;
    for (int i = 0; i < n; ++i)
        Append(container, Make<typename C::value_type>(i));
    return container;
}

int Size(const benchmark::State& state)
{
    return static_cast<int>(state.range(0));
}

void SetElements(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

template <class C>
void AppendAll(benchmark::State& state)
{
    const auto value = Make<typename C::value_type>(1);
    const int n = Size(state);
    for (auto _ : state)
    {
        C container;
        for (int i = 0; i < n; ++i)
            Append(container, value);
        benchmark::DoNotOptimize(container);
    }
    SetElements(state);
}

template <class C>
void PrependAll(benchmark::State& state)
{
    const auto value = Make<typename C::value_type>(1);
    const int n = Size(state);
    for (auto _ : state)
    {
        C container;
        for (int i = 0; i < n; ++i)
            Prepend(container, value);
        benchmark::DoNotOptimize(container);
    }
    SetElements(state);
}

template <class C>
void IndexAll(benchmark::State& state)
{
    const C container = Built<C>(Size(state));
    const int n = Size(state);
    for (auto _ : state)
    {
        double sum = 0.0;
        for (int i = 0; i < n; ++i)
            sum += Number(At(container, i));
        benchmark::DoNotOptimize(sum);
    }
    SetElements(state);
}

template <class C>
void IterateAll(benchmark::State& state)
{
    const C container = Built<C>(Size(state));
    for (auto _ : state)
    {
        double sum = 0.0;
        for (const auto& element : container)
            sum += Number(element);
        benchmark::DoNotOptimize(sum);
    }
    SetElements(state);
}

/// The iterator that holds a share.
template <class T>
void IterateShared(benchmark::State& state)
{
    const auto list = Built<cow_List<T>>(Size(state));
    for (auto _ : state)
    {
        double sum = 0.0;
        for (cow_ListIter<T> iter(list); !iter.AtEnd(); iter.Next())
            sum += Number(iter.Element());
        benchmark::DoNotOptimize(sum);
    }
    SetElements(state);
}

template <class C>
void CopyWhole(benchmark::State& state)
{
    const C container = Built<C>(Size(state));
    for (auto _ : state)
    {
        C copy(container);
        benchmark::DoNotOptimize(copy);
    }
}

template <class C>
void CopyWrite(benchmark::State& state, const C& container)
{
    const auto value = Make<typename C::value_type>(1);
    const int middle = Size(state) / 2;
    for (auto _ : state)
    {
        C copy(container);
        Write(copy, middle, value);
        benchmark::DoNotOptimize(copy);
    }
}

template <class C>
void CopyWriteGrown(benchmark::State& state)
{
    CopyWrite(state, Built<C>(Size(state)));
}

/// The list was told its size before it was filled.
template <class C>
void CopyWriteSized(benchmark::State& state)
{
    if constexpr (std::is_same_v<C, cow_List<typename C::value_type>>)
    {
        C list;
        list.Initialize(Size(state));
        list.Concatenate(Built<C>(Size(state)));
        CopyWrite(state, list);
    }
    else
        CopyWriteGrown<C>(state);
}

constexpr int batch = 16;

template <class C>
void InsertMiddle(benchmark::State& state)
{
    C container = Built<C>(Size(state));
    const auto value = Make<typename C::value_type>(1);
    const int middle = Size(state) / 2;
    for (auto _ : state)
    {
        for (int i = 0; i < batch; ++i)
            Insert(container, middle, value);
        state.PauseTiming();
        for (int i = 0; i < batch; ++i)
            Erase(container, middle);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * batch);
}

template <class C>
void EraseMiddle(benchmark::State& state)
{
    C container = Built<C>(Size(state));
    const auto value = Make<typename C::value_type>(1);
    const int middle = Size(state) / 2;
    for (auto _ : state)
    {
        state.PauseTiming();
        for (int i = 0; i < batch; ++i)
            Insert(container, middle, value);
        state.ResumeTiming();
        for (int i = 0; i < batch; ++i)
            Erase(container, middle);
    }
    state.SetItemsProcessed(state.iterations() * batch);
}

template <class C>
void InsertErase(benchmark::State& state)
{
    C container = Built<C>(Size(state));
    const auto value = Make<typename C::value_type>(1);
    const int middle = Size(state) / 2;
    for (auto _ : state)
    {
        Insert(container, middle, value);
        Erase(container, middle);
    }
    state.SetItemsProcessed(state.iterations() * 2);
}

constexpr int sizes[] = {100, 10'000, 1'000'000};
constexpr int quadraticLimit = 10'000;

void Register(const std::string& name, void (*function)(benchmark::State&), int most = 1'000'000)
{
    auto* added = benchmark::RegisterBenchmark(name.c_str(), function);
    for (const int size : sizes)
    {
        if (size <= most)
            added->Arg(size);
    }
}

template <class C>
void RegisterSide(const std::string& element, const std::string& side)
{
    const bool isVector = std::is_same_v<C, std::vector<typename C::value_type>>;
    const std::string ending = "/" + element + "/" + side;
    Register("List/append" + ending, AppendAll<C>);
    Register("List/prepend" + ending, PrependAll<C>, isVector ? quadraticLimit : 1'000'000);
    Register("List/index" + ending, IndexAll<C>);
    Register("List/iterate" + ending, IterateAll<C>);
    Register("List/copy" + ending, CopyWhole<C>);
    Register("List/copy-write" + ending, CopyWriteGrown<C>);
    Register("List/copy-write-sized" + ending, CopyWriteSized<C>);
    Register("List/insert" + ending, InsertMiddle<C>);
    Register("List/erase" + ending, EraseMiddle<C>);
    Register("List/insert-erase" + ending, InsertErase<C>);
}

template <class T, class Peer>
void RegisterElement(const std::string& element)
{
    RegisterSide<cow_List<T>>(element, "ours");
    RegisterSide<std::vector<Peer>>(element, "vector");
    RegisterSide<std::deque<Peer>>(element, "deque");
    Register("List/iterate-shared/" + element + "/ours", IterateShared<T>);
    Register("List/iterate-shared/" + element + "/vector", IterateAll<std::vector<Peer>>);
}

[[maybe_unused]] const bool registered = []
{
    RegisterElement<double, double>("double");
    RegisterElement<Handle, SharedValue>("handle");
    return true;
}();
} // namespace
