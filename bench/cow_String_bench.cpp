// The shared text against std::string in the same run. Names are operation/side/length. A length of 6 lies
// within what std::string keeps without a block, 40 does not.

#include "cow_String.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace
{
std::string Name(benchmark::State& state, char last = 'x')
{
    std::string name(static_cast<std::size_t>(state.range(0)), 'n');
    name.back() = last;
    return name;
}

template <class Text>
void Make(benchmark::State& state)
{
    const std::string name = Name(state);
    for (auto _ : state)
    {
        Text text(name.c_str());
        benchmark::DoNotOptimize(text);
    }
}

template <class Text>
void Copy(benchmark::State& state)
{
    const Text source(Name(state).c_str());
    std::vector<Text> copies(1000);
    for (auto _ : state)
    {
        for (Text& copy : copies)
            copy = source;
        benchmark::DoNotOptimize(copies.data());
    }
    state.SetItemsProcessed(state.iterations() * 1000);
}

template <class Text>
void Equal(benchmark::State& state)
{
    const Text left(Name(state).c_str());
    const Text right(Name(state).c_str());
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(&left);
        benchmark::DoNotOptimize(&right);
        benchmark::DoNotOptimize(left == right);
    }
}

template <class Text>
void Less(benchmark::State& state)
{
    const Text left(Name(state, 'a').c_str());
    const Text right(Name(state, 'b').c_str());
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(&left);
        benchmark::DoNotOptimize(&right);
        benchmark::DoNotOptimize(left < right);
    }
}

template <class Text>
void Append(benchmark::State& state)
{
    const std::string name = Name(state);
    for (auto _ : state)
    {
        Text text;
        for (int i = 0; i < 100; ++i)
            text.append(name.c_str());
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations() * 100);
}

void KeyOrder(benchmark::State& state, bool natural)
{
    const cow_String left(Name(state, '1').c_str());
    const cow_String right(Name(state, '2').c_str());
    atr_setNaturalOrder(natural);
    for (auto _ : state)
        benchmark::DoNotOptimize(cow_KeyOrder<cow_String>::Compare(left, right));
    atr_setNaturalOrder(false);
}

#define BOTH_SIDES(Operation)                                                                                \
    BENCHMARK_TEMPLATE(Operation, std::string)->Name(#Operation "/std_string")->Arg(6)->Arg(40);             \
    BENCHMARK_TEMPLATE(Operation, cow_String)->Name(#Operation "/cow_String")->Arg(6)->Arg(40)

BOTH_SIDES(Make);
BOTH_SIDES(Copy);
BOTH_SIDES(Equal);
BOTH_SIDES(Less);
BOTH_SIDES(Append);
BENCHMARK_CAPTURE(KeyOrder, plain, false)->Arg(6)->Arg(40);
BENCHMARK_CAPTURE(KeyOrder, natural, true)->Arg(6)->Arg(40);
} // namespace
