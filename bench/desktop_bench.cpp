// How long the desktop takes to rebuild and redraw a cone, at one and two device pixels to the pixel, to make
// and show a fitting window, and to draw the sketch of a large model.
//     QT_QPA_PLATFORM=offscreen build/release/bin/desktop_bench
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QtGlobal>

#include "desktop/fitting/fitting_view.h"
#include "desktop/sketch/solid_painter.h"
#include "sketch/sketch_outline.h"
#include "tests/support/pipe_on_bend.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet::desktop {
namespace {

constexpr QSize AreaSize = {1400, 900};

/// Pattern or model of a tilted cone, rebuilt from its boxes and drawn: what Redraw does. `markedOut` has the
/// pattern drawn with all that a fabricator marks out, and the label.
void Redraw(benchmark::State& state, int viewButton, bool markedOut) {
    TestShell shell;
    const auto window = shell.OpenSample("Truncated Right Cone", 2);
    window->settings.segs = static_cast<int>(state.range(0));
    DrawingArea area(*window, nullptr);
    area.resize(AreaSize);
    area.show();  // only what is shown knows its screen at once
    CObjectDisplay& display = window->display;
    display.TrueLengthsRequested = display.DiagonalsRequested = display.CoordGridRequested = markedOut;
    display.CoordTableRequested = display.FrameRequested = markedOut;
    if (markedOut) {
        display.LabelPoint = C3DPoint();
        window->dimensions->Add({1, 1, 2, 1, 3, 1});
    }
    window->ClickView(viewButton);
    window->ZoomExtents();
    if (!window->hasModel) {
        state.SkipWithError("the cone was refused");
    }
    state.SetComplexityN(state.range(0));
    for (auto _ : state) {
        window->Redraw();
    }
}
BENCHMARK_CAPTURE(Redraw, pattern, PatternButton, false)->Arg(24)->Arg(144)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Redraw, model, 0, false)->Arg(24)->Arg(144)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Redraw, marked_out, PatternButton, true)
    ->Arg(24)
    ->Arg(144)
    ->Arg(1440)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

/// From the choice in the menu to the window as it is first painted.
void NewFittingToWindowShown(benchmark::State& state) {
    TestShell shell;
    for (auto _ : state) {
        const auto window = shell.Open("Right Cone");
        FittingView view(*window, nullptr);
        view.resize(AreaSize);
        benchmark::DoNotOptimize(view.grab());
    }
}
BENCHMARK(NewFittingToWindowShown)->Unit(benchmark::kMillisecond);

/// Size of a sketch on the screen, at two device pixels to the pixel.
constexpr QSize SketchSize = {800, 800};

void PaintOn(QImage& image, const SolidPicture& picture) {
    QPainter painter(&image);
    const double scale = SketchSize.width() / (picture.bounds.right - picture.bounds.left);
    const QPointF origin = {-picture.bounds.left * scale, picture.bounds.top * scale};
    PaintSolid(painter, picture, scale, origin, QPalette());
}

/// From the model of a pipe on a bend of 13 pieces to its shaded picture on the screen, by strips: 50 ms for
/// the 2,506 of them.
void SketchOfPipeOnBend(benchmark::State& state) {
    const CRuleSurfs model = PipeOnBend(13, static_cast<int>(state.range(0)) / 14);
    const SketchView view;
    QImage image(SketchSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    for (auto _ : state) {
        const SolidPicture picture = DrawSolid(model, view);
        benchmark::DoNotOptimize(StripsOf(picture));
        PaintOn(image, picture);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(SketchOfPipeOnBend)
    ->Arg(1344)
    ->Arg(2506)
    ->Arg(5012)
    ->Complexity(benchmark::oNLogN)
    ->Unit(benchmark::kMillisecond);

/// Only what is painted again when something had covered the sketch.
void PaintingOfPipeOnBend(benchmark::State& state) {
    const SolidPicture picture = DrawSolid(PipeOnBend(13, 179), SketchView());
    QImage image(SketchSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    for (auto _ : state) {
        PaintOn(image, picture);
    }
}
BENCHMARK(PaintingOfPipeOnBend)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace korvet::desktop

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
