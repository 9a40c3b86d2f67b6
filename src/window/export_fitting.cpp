#include "window/export_fitting.h"

#include <algorithm>

#include "core/constants.h"
#include "core/reason.h"
#include "dialogs/small_dialogs.h"
#include "exchange/dxf.h"
#include "window/auto_cad.h"
#include "window/check_export.h"
#include "window/plotter_line.h"
#include "window/plotting.h"
#include "window/transfer.h"
#include "window/views.h"
#include "window/watched_work.h"

namespace korvet {
namespace {

/// How far an export came, for the message when it fails.
enum ExportStep : int {
    AtStart = 1,
    ObjectsMade,
    DialogLoaded,
    ViewExamined,
    DiagonalsOffered,
    DimensionsOffered,
    LabelOffered
};

/// The port of the plotter, where the user has a choice.
void OfferPort(const WindowContext& context, DxfOptionsDialog& dialog) {
    const auto port = context.plotter != nullptr ? context.plotter->Port() : std::nullopt;
    dialog.choosesPort = port.has_value();
    if (port) {
        dialog.cmbPlotterPort.list = context.plotter->Ports();
        dialog.cmbPlotterPort.edit.text = port->name;
        dialog.optHandshake.selected = static_cast<std::size_t>(port->handshake);
    }
}

void TakePort(const WindowContext& context, const DxfOptionsDialog& dialog) {
    if (dialog.choosesPort) {
        context.plotter->SetPort({dialog.cmbPlotterPort.edit.text,
                                  static_cast<Handshake>(dialog.optHandshake.selected.value_or(0))});
    }
}

/// Fills the dialog for the view that is shown: boxes are offered for what the display shows.
void FillDialog(const CFittingWindow& window, ExportMode mode, DxfOptionsDialog& dialog, ExportStep& step) {
    const WindowContext& context = window.Context();
    const CObjectDisplay& display = window.display;
    const bool plotter = mode == ExportMode::Plotter;  // takes neither polylines nor text
    dialog.optPolyMode.selected = context.options.PolyMode == 1 && !plotter ? 1 : 0;
    dialog.optPolyMode.enabled = !plotter;
    dialog.toPlotter = plotter;
    if (plotter) {
        OfferPort(context, dialog);
    }
    step = DialogLoaded;
    dialog.chkComplete.enabled = mode == ExportMode::Dxf;
    dialog.chkComplete.checked = dialog.chkComplete.enabled && context.frame.completeDrawings;
    const bool pattern = InPatternView(*window.views);
    step = ViewExamined;
    dialog.chkSurfaceMesh.enabled = !pattern;
    dialog.lblExportType = context.Message(pattern ? ExportingPattern : ExportingModel);
    const std::string piece = DrawnPiece(window);
    dialog.lblExportType += piece.empty() ? "" : ": " + piece;
    if (!pattern) {
        return;
    }
    dialog.Offer(DxfOptionsDialog::Diagonals, display.DiagonalsRequested);
    step = DiagonalsOffered;
    dialog.Offer(
        DxfOptionsDialog::Dimensions,
        !plotter && (window.dimensions->Count() > 0 || display.TrueLengthsRequested ||
                     display.CoordGridRequested || display.CoordTableRequested || display.FrameRequested));
    step = DimensionsOffered;
    dialog.Offer(DxfOptionsDialog::Label, !plotter && display.LabelPoint.has_value());
    step = LabelOffered;
}

/// The layers by their names in the options, as they look on the screen.
DxfHeading HeadingOf(const WindowContext& context) {
    const COptions& options = context.options;
    const DisplayColors& colors = options.Colors;
    return {context.printDialog.PrintUnits != Millimetres,
            {{options.DXFCutLayer, colors.DisplayCutColor},
             {options.DXFFoldLayer, colors.DisplayFoldColor},
             {options.DXFTextLayer, colors.DisplayTextColor},
             {options.DXFDimensionLayer, colors.DisplayDimensionColor},
             {options.DXFBorderLayer, colors.DisplayBorderColor}}};
}

CDXF DxfOf(const CFittingWindow& window, const DxfOptionsDialog& dialog, const std::string& path) {
    const CObjectDisplay& display = window.display;
    const COptions& options = window.Context().options;
    const auto ticked = [&](std::size_t index) { return dialog.chkDXFOutput.at(index).checked; };
    CDXF dxf;
    dxf.SurfaceList = display.Surfaces;
    dxf.Pattern = InPatternView(*window.views);
    dxf.FileName = path;
    dxf.OutlinesRequested = ticked(DxfOptionsDialog::Outlines);
    dxf.BendLinesRequested = ticked(DxfOptionsDialog::BendLines);
    dxf.DiagonalsRequested = ticked(DxfOptionsDialog::Diagonals);
    dxf.DimensionsRequested = ticked(DxfOptionsDialog::Dimensions);
    dxf.LabelRequested = ticked(DxfOptionsDialog::Label);
    dxf.PolyMode = dialog.optPolyMode.IsOn(1) ? 1 : 0;
    dxf.AcadPolygonMesh = dialog.chkSurfaceMesh.checked;
    dxf.CutLayer = options.DXFCutLayer;
    dxf.TextLayer = options.DXFTextLayer;
    dxf.FoldLayer = options.DXFFoldLayer;
    dxf.DimensionLayer = options.DXFDimensionLayer;
    dxf.BorderLayer = options.DXFBorderLayer;
    dxf.TextSize = options.DXFTextSize;
    dxf.Decimals = options.Decimals;
    if (dialog.chkComplete.checked) {
        dxf.Heading = HeadingOf(window.Context());
    }
    if (dxf.DimensionsRequested) {
        // Whenever dimensions go out, diagonals follow the display and not their own box.
        dxf.TrueLengthsRequested = display.TrueLengthsRequested;
        dxf.CoordinatesRequested = display.CoordGridRequested;
        dxf.DiagonalsRequested = display.DiagonalsRequested;
        dxf.FrameRequested = display.FrameRequested;
        dxf.DimensionList = *window.dimensions;
    }
    if (dxf.LabelRequested) {
        dxf.LabelList = *window.labels;
        dxf.LabelPoint = display.LabelPoint;
    }
    return dxf;
}

/// What the check of a drawing that was written tells, a line each; the export stands whatever becomes of it.
std::string CheckText(const CFittingWindow& window, const CDXF& drawing) {
    constexpr std::size_t MostChecked = 200'000;  // beyond it the check would take longer than the export
    std::size_t stations = 0;
    for (const CRuleSurf& surface : drawing.SurfaceList) {
        stations += surface.List1 ? surface.List1->Count() : 0;
    }
    if (stations > MostChecked) {
        return "The file is too large to be checked.";
    }
    std::string text;
    try {
        if (const auto check = CheckExport(window, drawing)) {
            for (const std::string& line : CheckLines(*check, window.Context().decimalMark)) {
                text.append(text.empty() ? "" : "\n").append(line);
            }
        }
    } catch (const std::exception& error) {
        text = std::string("The file could not be checked: ") + ReasonOf(error);
    }
    return text;
}

void WriteWatched(WindowContext& context, const CDXF& drawing) {
    const WatchedWork watched(context);
    drawing.WriteDXF(context.files);
}

/// By the link that the command has connected, through the transfer file.
Outcome DrawInCad(CFittingWindow& window, const CDXF& drawing) {
    WindowContext& context = window.Context();
    const auto held = HoldTransferPlace(context);
    if (!held) {
        return Refused;
    }
    WriteWatched(context, drawing);
    return TransferToAcad(context);
}

/// The export itself; the step it has come to stands in `step` when it throws.
Outcome RunExport(CFittingWindow& window, const std::string& path, ExportMode mode, ExportStep& step) {
    WindowContext& context = window.Context();
    DxfOptionsDialog dialog;
    dialog.caption = "Exporting " + path;
    step = ObjectsMade;
    FillDialog(window, mode, dialog, step);
    context.ui.RunModal(dialog);
    if (dialog.lblStatus != "OK") {
        return Refused;
    }
    if (mode == ExportMode::Plotter) {
        TakePort(context, dialog);
        return PlotDrawing(window, DxfOf(window, dialog, path), path);
    }
    if (mode == ExportMode::CadLink) {
        return DrawInCad(window, DxfOf(window, dialog, path));
    }
    context.frame.completeDrawings = dialog.chkComplete.checked;
    const CDXF drawing = DxfOf(window, dialog, path);
    WriteWatched(context, drawing);
    context.ui.Show({context.Message(DxfSaved) + path, InformationBox, std::string(ProductTitle),
                     dialog.tellsCheck ? CheckText(window, drawing) : "", std::nullopt});
    return Passed;
}

}  // namespace

/// By what the fitting was last displayed with: another piece may have been chosen since.
std::string DrawnPiece(const CFittingWindow& window) {
    const bool ofPieces = !window.Table().patternSurface.empty();
    if (!ofPieces || !window.hasModel || !InPatternView(*window.views)) {
        return {};
    }
    const auto number = static_cast<std::size_t>(window.fitting->Inputs().Miscellaneous);
    return window.controls.options.optPatternSelect.captions.at(number - 1);
}

Outcome ConfirmExportOfOldSizes(const CFittingWindow& window) {
    const std::vector<TextBox>& boxes = window.controls.txtParameter;
    const bool old = window.hasModel && std::any_of(boxes.begin(), boxes.end(),
                                                    [](const TextBox& box) { return box.textColor == Red; });
    if (!old) {
        return Passed;
    }
    const Answer answer = window.Context().ui.Show(
        {.text = "The sizes in red have been changed since this was drawn, and the file will not have them. "
                 "Do you want to export what is drawn?",
         .style = YesNoWarningBox,
         .title = std::string(ProductTitle)});
    return RefusedIf(answer != Answer::Yes);
}

std::optional<ExportCheck> CheckPattern(const CFittingWindow& window, bool polylines) {
    DxfOptionsDialog dialog;
    dialog.optPolyMode.selected = polylines ? 1 : 0;
    return CheckExport(window, DxfOf(window, dialog, {}));
}

Outcome ExportFitting(CFittingWindow& window, const std::string& path, ExportMode mode) {
    WindowContext& context = window.Context();
    const HourglassWhile working(window.controls);
    ExportStep step = AtStart;
    try {
        return RunExport(window, path, mode, step);
    } catch (const WorkCancelled&) {
        return Refused;  // the old file is whole
    } catch (const std::exception& error) {
        ShowPlain(context.ui, context.Message(DxfProblem) + " " + std::to_string(step), ReasonOf(error));
        return Refused;
    }
}

}  // namespace korvet
