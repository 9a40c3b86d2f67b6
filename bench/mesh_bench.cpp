// How long a mesh takes from the text of its drawing to a surface, and from there to its pattern; both must
// grow no faster than its vertices.
//     build/release/bin/mesh_bench
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "core/triangulation.h"
#include "exchange/dxf.h"
#include "exchange/mesh_dxf.h"

namespace korvet {
namespace {

/// A wavy band of that many vertices in two rows.
CRuleSurf Band(std::int64_t vertices) {
    CRuleSurf band;
    band.List1 = std::make_shared<C3DPoints>();
    band.List2 = std::make_shared<C3DPoints>();
    for (std::int64_t i = 0; i < vertices / 2; ++i) {
        const double x = static_cast<double>(i) / 10;
        band.List1->Add({x, 100 + std::sin(x / 50), 20 * std::sin(x / 100), CornerRuleStation});
        band.List2->Add({x + std::cos(x / 70), 0, 20 * std::cos(x / 90), CornerRuleStation});
    }
    return band;
}

void ReadMesh(benchmark::State& state) {
    CDXF dxf;
    dxf.SurfaceList.Add(Band(state.range(0)));
    dxf.AcadPolygonMesh = true;
    dxf.FoldLayer = "FoldLayer";
    const std::string text = dxf.Text();
    for (auto _ : state) {
        if (!ReadDxfMesh(text).surface) {
            state.SkipWithError("no mesh was read");
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ReadMesh)
    ->Arg(1000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

void UnfoldMesh(benchmark::State& state) {
    const CRuleSurf band = Band(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Unfolded(band).List1->Count());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(UnfoldMesh)
    ->Arg(1000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace korvet
