// How long every fitting takes from its sample sizes to model and pattern, type by type and pattern by
// pattern, and how that grows with the segments.
//     build/release/bin/fitting_bench
#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>

#include "frame/catalogue.h"
#include "sketch/sample_model.h"

namespace korvet {
namespace {

void ModelAndPattern(benchmark::State& state, const WindowTable& table, std::size_t page,
                     std::size_t pattern) {
    const FittingHandle fitting = SampleFitting(table, page);
    fitting.Inputs().segs = static_cast<int>(state.range(0));
    if (!table.patternSelect.empty()) {
        fitting.Inputs().Miscellaneous = static_cast<std::int16_t>(pattern + 1);
    }
    fitting.DevelopModel();
    const FittingResults& made = fitting.Results();
    const bool developed = made.PatternSurface.List1 || made.PatternSurfaceList.Count() > 0;
    for (auto _ : state) {
        developed ? fitting.DevelopModel() : fitting.ConstructModel();  // some are a model alone
        benchmark::ClobberMemory();
    }
    state.SetComplexityN(state.range(0));
}

void RegisterWindow(const CatalogueRow& row) {
    const WindowTable& table = *row.table;
    const std::size_t patterns = std::max<std::size_t>(1, table.patternSelect.size());
    for (std::size_t page = 0; page < table.pages.size(); ++page) {
        for (std::size_t pattern = 0; pattern < patterns; ++pattern) {
            std::string name = std::string(row.category) + "/Type " + std::to_string(page + 1);
            if (!table.patternSelect.empty()) {
                name.append("/").append(table.patternSelect[pattern]);
            }
            benchmark::RegisterBenchmark(name.c_str(), ModelAndPattern, table, page, pattern)
                ->Arg(24)
                ->Arg(144)
                ->Arg(10000)
                ->Arg(100000)
                ->Complexity(benchmark::oN)
                ->Unit(benchmark::kMicrosecond);
        }
    }
}

}  // namespace
}  // namespace korvet

int main(int argc, char** argv) {
    for (const korvet::CatalogueRow& row : korvet::Catalogue) {
        korvet::RegisterWindow(row);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
