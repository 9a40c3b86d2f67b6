#include "window/saving.h"

#include <filesystem>

#include "core/constants.h"
#include "core/reason.h"
#include "core/text_encoding.h"
#include "window/export_fitting.h"
#include "window/parameter_file.h"

namespace korvet {
namespace {

/// What is wrong with a file, behind its name; the errors of the disk begin with it themselves.
std::string FaultOf(const std::string& path, const std::exception& error) {
    const std::string fault = ReasonOf(error);
    const bool isNamed = dynamic_cast<const FileError*>(&error) != nullptr && fault.starts_with(path);
    return Printable(isNamed ? fault : path + ": " + fault);
}

/// Asks before a file is replaced that is no longer as the window has read or written it.
Outcome ConfirmOverwrite(const CFittingWindow& window, const std::string& path) {
    const WindowContext& context = window.Context();
    const std::optional<KnownFile>& known = window.knownFile;
    if (!known || known->path != path || !context.files.Exists(path) ||
        FingerprintOfFile(context.files, path) == known->fingerprint) {
        return Passed;
    }
    const Answer answer = context.ui.Show(
        {.text = Printable(path) + " has been changed by another program. Do you want to replace it?",
         .style = YesNoWarningBox,
         .title = std::string(ProductTitle)});
    return RefusedIf(answer != Answer::Yes);
}

/// Offers the name of the window's file, or of its fitting before it has one.
std::optional<std::string> ChooseName(const CFittingWindow& window, const std::string& title,
                                      const std::string& filter, const std::string& ending) {
    FileChoice choice = {.title = title, .filter = filter, .save = true};
    choice.name = window.category;
    if (!HasNoFile(window)) {
        const std::filesystem::path file = window.controls.caption;
        choice.name = file.stem().string();
        choice.folder = file.parent_path().string();
    }
    choice.name += ending;
    return window.Context().ui.ChooseFile(choice);
}

}  // namespace

bool HasNoFile(const CFittingWindow& window) {
    return window.controls.caption.starts_with(NewWindowCaption);
}

void ShowForeignProduct(WindowContext& context, const std::string& path, const std::exception& error) {
    ShowPlain(context.ui, context.Message(NotAValidFile), FaultOf(path, error));
}

void ShowHeaderError(MessageBoxes& boxes, const std::string& path, const std::exception& error) {
    ShowPlain(boxes, "Error in CKVTFile:ReadHeader  " + Printable(ReasonOf(error)), Printable(path));
}

void ShowLoadError(WindowContext& context, const std::string& path, const std::exception& error) {
    if (dynamic_cast<const ForeignProductError*>(&error) != nullptr) {
        ShowForeignProduct(context, path, error);
    }
    if (dynamic_cast<const HeaderError*>(&error) != nullptr) {
        ShowHeaderError(context.ui, path, error);
    }
    ShowPlain(context.ui, context.Message(ErrorLoading), FaultOf(path, error));
}

void ShowLoadNotes(WindowContext& context, const CKvtFile& file) {
    if (file.IsOfLaterVersion()) {
        ShowPlain(context.ui,
                  "This file is of the later version " + Printable(Excerpt(file.Version)) +
                      ": what this program does not know of it is left out",
                  Printable(file.FileName));
    }
    if (file.BranchMissing) {
        ShowPlain(context.ui,
                  "The thicknesses and the join of the branch are not in this file: the settings of a new "
                  "window are used");
    }
}

Outcome SaveFitting(CFittingWindow& window, const std::string& path) {
    WindowContext& context = window.Context();
    if (ConfirmOverwrite(window, path)) {
        return Refused;
    }
    CKvtFile file = ParameterFileOf(window);
    file.FileName = path;
    try {
        file.SaveFile(context.files, context.decimalMark);
    } catch (const std::exception& error) {
        ShowPlain(context.ui, ReasonOf(error));
        return Refused;
    }
    window.controls.caption = path;
    window.knownFile = {path, file.Fingerprint};
    CountAsSaved(window);
    return Passed;
}

CKvtFile LoadFitting(CFittingWindow& window, const std::string& path) {
    WindowContext& context = window.Context();
    CKvtFile file = EmptyFileOf(window);
    file.FileName = path;
    try {
        file.LoadFile(context.files, context.options.DefaultSegs);
    } catch (const ParameterFileError&) {
        // What stood before the fault is kept, so that it need not be typed again.
        FillControls(window, file.Controls, Filling::AsTyped);
        throw;
    }
    TakeParameters(window, file, Filling::AsTyped);
    window.views->Add(file.ViewPoint);
    context.patternSettingsDialog = PatternSettingsDialog();  // it closes with the settings it showed
    window.controls.caption = path;
    window.knownFile = {path, file.Fingerprint};
    return file;
}

std::optional<std::string> ChooseSaveName(const CFittingWindow& window) {
    return ChooseName(window, "SaveAs", std::string(ProductTitle) + " Files (*.Kvt)|*.Kvt", ".Kvt");
}

std::optional<std::string> ChooseDrawingName(const CFittingWindow& window) {
    const std::string piece = DrawnPiece(window);
    return ChooseName(window, "Export DXF", "Drawing eXchange File (*.DXF)|*.DXF",
                      (piece.empty() ? "" : " " + piece) + ".DXF");
}

Outcome ConfirmSave(CFittingWindow& window) {
    if (!HasChanges(window)) {
        return Passed;
    }
    WindowContext& context = window.Context();
    const Answer answer =
        context.ui.Show({.text = context.Message(SaveParameterFile) + " for " + window.controls.caption,
                         .style = YesNoCancelBox,
                         .title = std::string(ProductTitle)});
    if (answer != Answer::Yes) {
        return RefusedIf(answer == Answer::Cancel);
    }
    // What was not written must not be thrown away with its window.
    if (window.RequireBuild()) {
        return Refused;
    }
    const std::optional<std::string> path =
        HasNoFile(window) ? ChooseSaveName(window) : window.controls.caption;
    return path ? SaveFitting(window, *path) : Refused;
}

}  // namespace korvet
