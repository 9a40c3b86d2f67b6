// How long a right cone takes from its sizes to model, pattern and DXF, and how that grows with the segments.
//     build/release/bin/cone_bench
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "core/math_module.h"
#include "exchange/dxf.h"
#include "fittings/cones/right_cone.h"

namespace korvet {
namespace {

CRightCone TiltedCone(std::int64_t segs) {
    CRightCone cone;
    cone.BaseRad = 150;
    cone.ConeAngle = std::atan(150.0 / 400);
    cone.CPHeight1 = 200;
    cone.CPAngle1 = DegToRad(25);
    cone.inputs.segs = static_cast<int>(segs);
    return cone;
}

void ModelAndPattern(benchmark::State& state) {
    CRightCone cone = TiltedCone(state.range(0));
    for (auto _ : state) {
        cone.DevelopModel();
        benchmark::DoNotOptimize(cone.results.PatternSurface.List1->Count());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ModelAndPattern)->Arg(24)->Arg(144)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity();

void PatternWithLaps(benchmark::State& state) {
    CRightCone cone = TiltedCone(state.range(0));
    cone.inputs.JoinType = 1;
    cone.inputs.LapSize0 = cone.inputs.LapSize1 = cone.inputs.LapSize2 = 10;
    for (auto _ : state) {
        cone.DevelopModel();
        benchmark::DoNotOptimize(cone.results.PatternSurface.LapList1->Count());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(PatternWithLaps)->Arg(24)->Arg(144)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity();

void PatternToDxf(benchmark::State& state) {
    CRightCone cone = TiltedCone(state.range(0));
    cone.DevelopModel();
    CDXF dxf;
    dxf.SurfaceList.Add(cone.results.PatternSurface);
    dxf.Pattern = true;
    dxf.OutlinesRequested = dxf.BendLinesRequested = true;
    dxf.CutLayer = "CutLayer";
    dxf.FoldLayer = "FoldLayer";
    for (auto _ : state) {
        benchmark::DoNotOptimize(dxf.Text());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(PatternToDxf)->Arg(24)->Arg(144)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity();

}  // namespace
}  // namespace korvet
