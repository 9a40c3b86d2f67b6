#include "window/plotting.h"

#include "core/reason.h"
#include "core/text_encoding.h"
#include "exchange/hpgl.h"
#include "exchange/mesh_dxf.h"
#include "window/plotter_line.h"
#include "window/transfer.h"

namespace korvet {
namespace {

CHPGL PlotOf(const CFittingWindow& window, const std::string& plotFile) {
    CHPGL plot;
    plot.SurfaceList = window.display.Surfaces;
    plot.PrintUnits = window.Context().printDialog.PrintUnits;
    plot.FileName = plotFile;
    return plot;
}

}  // namespace

std::string WritePlotBatch(const WindowContext& context, const std::string& plotFile) {
    std::string batchFile = context.transfer->PathOf("Plot.bat");
    context.files.Write(batchFile, EncodeText(PlotBatch(plotFile)), Flush::No);
    return batchFile;
}

Outcome SendPlot(WindowContext& context, const std::string& plotFile) {
    const PlotJob job = {.plot = context.files.Read(plotFile, LargestDrawing),
                         .batchFile = WritePlotBatch(context, plotFile)};
    const PlotSent sent = context.plotter->Send(job, [&](std::size_t taken, std::size_t whole) {
        return context.ui.GoesOn({"Sending the plot", taken, whole, true});
    });
    (void)context.ui.GoesOn({{}, job.plot.size(), job.plot.size()});  // takes the progress away
    if (sent.end == PlotSent::End::Failed) {
        ShowPlain(context.ui, "The plot could not be sent. It is in the file " + Printable(plotFile),
                  Printable(sent.reason));
    }
    return RefusedIf(sent.end != PlotSent::End::All);
}

Outcome ExportHPGL(CFittingWindow& window, const std::string& plotFile) {
    WindowContext& context = window.Context();
    try {
        if (!PlotOf(window, plotFile).TransferTempFile(context.files, TransferFile(context)) ||
            SendPlot(context, plotFile)) {
            return Refused;
        }
    } catch (const std::exception& error) {
        ShowPlain(context.ui, "Error in ExportHPGL " + Printable(ReasonOf(error)));
        return Refused;
    }
    ShowPlain(context.ui, "File sent");
    return Passed;
}

Outcome PlotDrawing(CFittingWindow& window, CDXF drawing, const std::string& plotFile) {
    WindowContext& context = window.Context();
    if (context.transfer == nullptr || context.plotter == nullptr) {
        PlotOf(window, plotFile).WritePlot(context.files, [&drawing](const EntitySink& take) {
            drawing.EntitiesTo(take);
        });
        return Passed;
    }
    const auto held = HoldTransferPlace(context);
    if (!held) {
        return Refused;
    }
    drawing.FileName = TransferFile(context);
    drawing.WriteDXF(context.files);
    return ExportHPGL(window, plotFile);
}

}  // namespace korvet
