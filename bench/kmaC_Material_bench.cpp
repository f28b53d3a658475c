// A save and a read of materials with five behaviours each, and what a material costs by itself.

#include "QRTVdbAttrEO2.h"
#include "StoreBench.h"
#include "kmaC_MaterialContainer.h"

namespace
{

kmaC_MaterialTable TableOf(int rows, int columns, double first)
{
    kmaC_MaterialTable table(rows, columns);
    for (int row = 0; row < rows; ++row)
    {
        table.table.Set(row, 0, first + row);
        for (int column = 1; column < columns; ++column)
            table.table.Set(row, column, 0.1 * row * column);
    }
    return table;
}

template <class T>
kmaC_Option<T> OptionWith(int rows, int columns, double first)
{
    auto* option = new T;
    option->table = TableOf(rows, columns, first);
    return kmaC_Option<T>(option);
}

/// A metal at high temperatures: elasticity, a hardening curve, creep, deformation plasticity and
/// viscoelasticity.
kmaC_Material* NewMaterial(int number)
{
    auto* material = new kmaC_Material;
    material->elastic = OptionWith<kmaC_Elastic>(3, 3, 210000.0 + number);
    material->plastic = OptionWith<kmaC_Plastic>(8, 2, 200.0 + number);
    material->creep = OptionWith<kmaC_Creep>(2, 4, 1e-20 * number);
    material->deformationPlasticity = OptionWith<kmaC_DeformationPlasticity>(1, 5, 1000.0 + number);
    material->viscoelastic = OptionWith<kmaC_Viscoelastic>(4, 3, 0.1 * number);
    return material;
}

kmaC_MaterialContainer MakeMaterials(int count)
{
    static int tally = 0;
    if (tally == 0)
        QRTVdbAttrEO2_initialize(tally);
    kmaC_MaterialContainer container;
    for (int i = 0; i < count; ++i)
    {
        char name[32];
        std::snprintf(name, sizeof name, "Material-%06d", i);
        container.Insert(name, NewMaterial(i));
    }
    return container;
}

void MakeEmpty(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(kmaC_Option<kmaC_Material>(new kmaC_Material));
}

void CopyHandle(benchmark::State& state)
{
    const kmaC_Option<kmaC_Material> material(NewMaterial(1));
    for (auto _ : state)
        benchmark::DoNotOptimize(kmaC_Option<kmaC_Material>(material));
}

void CopyAndWrite(benchmark::State& state)
{
    const kmaC_Option<kmaC_Material> material(NewMaterial(1));
    for (auto _ : state)
    {
        kmaC_Option<kmaC_Material> copy(material);
        copy.Get()->materialIdentifier = "changed";
        benchmark::DoNotOptimize(copy);
    }
}

BENCHMARK(MakeEmpty)->Name("Material/make/empty/ours/1");
BENCHMARK(CopyHandle)->Name("Material/copy/five behaviours/ours/1");
BENCHMARK(CopyAndWrite)->Name("Material/copy and write/five behaviours/ours/1");
BENCHMARK(WriteOurs<MakeMaterials>)
    ->Name("Store/write/materials/ours")
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(WriteByHand<MakeMaterials>)
    ->Name("Store/write/materials/sqlite")
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ReadOurs<MakeMaterials>)
    ->Name("Store/read/materials/ours")
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ReadByHand<MakeMaterials>)
    ->Name("Store/read/materials/sqlite")
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);

} // namespace
