// A save and a read of many amplitudes, and how long the library takes to come up and go down.

#include "QRTVdbAttrEO2.h"
#include "StoreBench.h"
#include "kamC_AmplitudeContainer.h"
#include "kamC_Tabular.h"

#include <cmath>

namespace
{

constexpr int rowsOfTable = 20;

kamC_AmplitudeContainer MakeAmplitudes(int count)
{
    static int tally = 0;
    if (tally == 0)
        QRTVdbAttrEO2_initialize(tally);
    kamC_AmplitudeContainer container;
    for (int i = 0; i < count; ++i)
    {
        auto* tabular = new kamC_Tabular;
        cow_2DArray<double> data(rowsOfTable, 2);
        for (int row = 0; row < rowsOfTable; ++row)
        {
            data.Set(row, 0, 0.1 * row);
            data.Set(row, 1, std::sin(0.1 * row * i));
        }
        tabular->data = data;
        char name[32];
        std::snprintf(name, sizeof name, "Amplitude-%06d", i);
        container.Insert(name, tabular);
    }
    return container;
}

void Lifecycle(benchmark::State& state)
{
    int tally = 0;
    for (auto _ : state)
    {
        QRTVdbAttrEO2_initialize(tally);
        QRTVdbAttrEO2_finalize(tally);
    }
}

BENCHMARK(Lifecycle)->Name("Library/initialize+finalize/all/ours/1")->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteOurs<MakeAmplitudes>)
    ->Name("Store/write/amplitudes/ours")
    ->Arg(1000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(WriteByHand<MakeAmplitudes>)
    ->Name("Store/write/amplitudes/sqlite")
    ->Arg(1000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ReadOurs<MakeAmplitudes>)
    ->Name("Store/read/amplitudes/ours")
    ->Arg(1000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ReadByHand<MakeAmplitudes>)
    ->Name("Store/read/amplitudes/sqlite")
    ->Arg(1000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

} // namespace
