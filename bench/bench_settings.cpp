// The settings reader and the page texts sit on the start-up path: keep them cheap.
#include "documents/PageText.h"
#include "services/DetailsFile.h"

#include <benchmark/benchmark.h>

static void BM_ParseSavedDetails(benchmark::State& state)
{
    const QString text = DetailsFile::saveText(DetailsFile::designValues());
    for (auto _ : state)
        benchmark::DoNotOptimize(DetailsFile::parse(text));
}
BENCHMARK(BM_ParseSavedDetails);

static void BM_StartupPage(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(PageText::startupPage());
}
BENCHMARK(BM_StartupPage);

BENCHMARK_MAIN();
