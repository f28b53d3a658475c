// Snapshots of models: what one costs, what a thousand keep, and what a command costs that takes one.
// Names are operation/objects in the model, and for Keep the count of snapshots with one change between each.

#include "QRTVdbAttrEO2.h"
#include "cmd_Session.h"
#include "kamC_AmplitudeContainer.h"
#include "kamC_Decay.h"
#include "mem_Allocation.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

void RequireLibrary()
{
    static int tally = 0;
    if (tally == 0)
        QRTVdbAttrEO2_initialize(tally);
}

std::string NameOf(int number)
{
    return "amplitude of load " + std::to_string(number);
}

ddr_ModelHandle ModelOf(int objects)
{
    RequireLibrary();
    ddr_ModelHandle model(new ddr_Model);
    auto& amplitudes = dynamic_cast<kamC_AmplitudeContainer&>(*model.Get()->GetAmplitudes());
    for (int i = 0; i < objects; ++i)
        amplitudes.Insert(NameOf(i).c_str(), new kamC_Decay);
    return model;
}

/// Writes one attribute of one object, another each time.
void Change(ddr_Model& model, int objects, int step)
{
    auto& amplitudes = dynamic_cast<kamC_AmplitudeContainer&>(*model.GetAmplitudes());
    const int number = static_cast<int>(static_cast<unsigned>(step) * 7919u % static_cast<unsigned>(objects));
    static_cast<kamC_Decay*>(amplitudes.Get(NameOf(number).c_str()))->initial = step;
}

double ResidentBytes()
{
    long pages = 0;
    std::FILE* file = std::fopen("/proc/self/statm", "r");
    const bool isRead = file && std::fscanf(file, "%*s %ld", &pages) == 1;
    if (file)
        std::fclose(file);
    return isRead ? static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) : 0.0;
}

void Snapshot(benchmark::State& state)
{
    const ddr_ModelHandle model = ModelOf(static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        const ddr_ModelHandle snapshot = model->Snapshot();
        benchmark::DoNotOptimize(snapshot.ConstGet());
    }
}

void Restore(benchmark::State& state)
{
    ddr_ModelHandle model = ModelOf(static_cast<int>(state.range(0)));
    const ddr_ModelHandle snapshot = model->Snapshot();
    for (auto _ : state)
    {
        model.Get()->Restore(*snapshot);
        benchmark::ClobberMemory();
    }
}

/// Time is that of the snapshots alone, a change before each not counted; reading the clock around each is.
void SnapshotAfterChange(benchmark::State& state)
{
    using Clock = std::chrono::steady_clock;
    const int objects = static_cast<int>(state.range(0));
    const int count = static_cast<int>(state.range(1));
    ddr_ModelHandle model = ModelOf(objects);
    std::vector<ddr_ModelHandle> snapshots;
    snapshots.reserve(static_cast<std::size_t>(count));
    for (auto _ : state)
    {
        Clock::duration spent{};
        for (int i = 0; i < count; ++i)
        {
            Change(*model.Get(), objects, i);
            const Clock::time_point begin = Clock::now();
            snapshots.push_back(model->Snapshot());
            spent += Clock::now() - begin;
        }
        state.SetIterationTime(std::chrono::duration<double>(spent).count() / count);
        model.Get()->Restore(*snapshots.front());
        snapshots.clear();
    }
}

/// Time is that of one snapshot and one change. The counters tell what each snapshot keeps for itself: blocks
/// of memory, and bytes by the growth of the process (which is coarse, and nothing once freed memory is used
/// again); and, to compare, the blocks of the whole model.
void Keep(benchmark::State& state)
{
    const int objects = static_cast<int>(state.range(0));
    const int count = static_cast<int>(state.range(1));
    const std::size_t blocksBeforeModel = mem_BlocksInUse();
    ddr_ModelHandle model = ModelOf(objects);
    const std::size_t blocksOfModel = mem_BlocksInUse() - blocksBeforeModel;
    double blocks = 0.0;
    double bytes = 0.0;
    for (auto _ : state)
    {
        state.PauseTiming();
        std::vector<ddr_ModelHandle> snapshots;
        snapshots.reserve(static_cast<std::size_t>(count));
        const std::size_t blocksBefore = mem_BlocksInUse();
        const double bytesBefore = ResidentBytes();
        state.ResumeTiming();
        for (int i = 0; i < count; ++i)
        {
            snapshots.push_back(model->Snapshot());
            Change(*model.Get(), objects, i);
        }
        state.PauseTiming();
        blocks = static_cast<double>(mem_BlocksInUse() - blocksBefore);
        bytes = std::max(bytes, ResidentBytes() - bytesBefore);
        model.Get()->Restore(*snapshots.front());
        snapshots.clear();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * count);
    state.counters["blocks/snapshot"] = blocks / count;
    state.counters["bytes/snapshot"] = bytes / count;
    state.counters["blocks/model"] = static_cast<double>(blocksOfModel);
}

/// A whole command: paths and words looked up, the change checked, made and written down, and kept for undo.
void SetValues(benchmark::State& state)
{
    const int objects = static_cast<int>(state.range(0));
    cmd_Session session(ModelOf(objects));
    std::size_t written = 0;
    session.SetJournal([&written](const std::string& line) { written += line.size(); });
    int step = 0;
    for (auto _ : state)
    {
        const cmd_Path path = cmd_Path::OfObject("amplitudes", NameOf(step % objects));
        session.SetValues(path, {{"initial", static_cast<double>(step)}});
        ++step;
    }
    benchmark::DoNotOptimize(written);
}

BENCHMARK(Snapshot)->Arg(100)->Arg(10000);
BENCHMARK(Restore)->Arg(100)->Arg(10000);
BENCHMARK(SnapshotAfterChange)->Args({100, 1000})->Args({10000, 1000})->UseManualTime()->Iterations(20);
BENCHMARK(Keep)
    ->Args({10000, 1})
    ->Args({10000, 100})
    ->Args({10000, 1000})
    ->Args({100000, 1000})
    ->Iterations(3);
BENCHMARK(SetValues)->Arg(10000);

} // namespace
