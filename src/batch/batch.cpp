#include "batch/batch.h"

#include <iostream>
#include <memory>

#include "batch/batch_ui.h"
#include "batch/catalogue_text.h"
#include "batch/json_text.h"
#include "batch/set_values.h"
#include "core/constants.h"
#include "platform/disk_files.h"
#include "platform/picture_device.h"
#include "platform/system_clock.h"
#include "shell/new_fitting.h"
#include "shell/options_file.h"
#include "shell/views.h"

namespace korvet::batch {
namespace {

class BatchRun {
  public:
    explicit BatchRun(const Arguments& arguments) : arguments_(arguments), ui_(arguments) {}

    int Run() {
        for (const auto& [name, value] : arguments_.sets) {
            if (!IsSettableName(name)) {
                throw UsageError("--set knows no " + name);
            }
        }
        if (!ReadOptions()) {
            return Refused;
        }
        const std::vector<std::string> inputs =
            arguments_.newCategory.empty() ? arguments_.inputs : std::vector<std::string>{""};
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            ui_.ShowProgress(i + 1, inputs.size(), inputs[i]);
            Report(RunGuarded(inputs[i]), i);
        }
        WriteReports();
        ui_.ClearProgress();
        return status_;
    }

  private:
    /// Options from the file of the command line; without one the built-in options hold.
    bool ReadOptions() {
        if (arguments_.settings.empty()) {
            return true;
        }
        ui_.BeginInput(arguments_.settings);
        options_.IniFileName = arguments_.settings;
        try {
            // A mistyped name must not make a new file.
            if (!files_.Exists(options_.IniFileName)) {
                throw FileError(options_.IniFileName + ": there is no such options file");
            }
            ReadIniFile(options_, files_, ui_, context_.decimalMark);
            return true;
        } catch (const std::exception& error) {
            ui_.PrintLine(std::string("korvet-batch: ") + error.what());
            return false;
        }
    }

    /// One input, with whatever goes wrong in it kept from the others.
    InputReport RunGuarded(const std::string& input) {
        InputReport report;
        report.file = input;
        ui_.BeginInput(input.empty() ? arguments_.newCategory : input);
        window_.reset();
        try {
            RunInput(report);
        } catch (const UsageError& error) {
            report.refused = true;
            ui_.PrintLine((input.empty() ? "korvet-batch" : input) + ": " + error.what());
            status_ = WrongUsage;
        } catch (const std::exception& error) {
            report.refused = true;
            ShowPlain(ui_, error.what());
        }
        report.window = window_.get();
        report.messages = ui_.Messages();
        if (report.refused) {
            report.model = report.pattern = "[]";
            Fail();
        }
        return report;
    }

    void Fail() { status_ = status_ == WrongUsage ? WrongUsage : Refused; }

    void RunInput(InputReport& report) {
        report.refused = true;
        if (!OpenWindow(report) || !SetValues() || !BuildForReport(report)) {
            return;
        }
        ui_.BeginOutputs();
        ChooseView();
        if (!window_->hasModel) {
            return;
        }
        report.refused = false;
        if (!WriteOutputs(InputName(arguments_, report.file))) {
            Fail();
        }
    }

    /// The window of a parameter file, filled from it, or a new one.
    bool OpenWindow(InputReport& report) {
        const bool isFile = !report.file.empty();
        report.category = isFile ? CategoryOf(report.file) : arguments_.newCategory;
        if (report.category.empty()) {
            return false;
        }
        const CatalogueRow* row = FindCategory(report.category);
        if (row == nullptr) {
            if (!isFile) {
                throw UsageError("there is no fitting \"" + report.category +
                                 "\"; --list prints the catalogue");
            }
            ShowPlain(ui_, "There is no fitting \"" + report.category + "\"");
            return false;
        }
        window_ = NewFitting(context_, report.category, nullptr);
        if (!window_) {
            return false;
        }
        return isFile ? window_->FillFromFile(report.file) : PrepareNewWindow();
    }

    /// The category in the header of a file; empty, with a message, when it has none.
    std::string CategoryOf(const std::string& path) {
        CKvtFile file;
        file.FileName = path;
        try {
            file.ReadHeader(files_);
            if (file.Category.empty()) {
                throw ParameterFileError("line 2: the fitting is missing");
            }
        } catch (const ForeignProductError& error) {
            ShowPlain(ui_, context_.Message(NotAValidFile), error.what());
            return {};
        } catch (const std::exception& error) {
            ShowPlain(ui_, context_.Message(ErrorLoading), error.what());
            return {};
        }
        return file.Category;
    }

    bool PrepareNewWindow() {
        const int types = static_cast<int>(window_->Table().pages.size());
        if (arguments_.type > types) {
            throw UsageError(arguments_.newCategory + " has " + std::to_string(types) + " types");
        }
        while (arguments_.type != 0 && window_->dtype != arguments_.type - 1) {
            window_->ClickPoint(window_->dtype < arguments_.type - 1 ? 0 : 1);
        }
        if (arguments_.sample) {
            for (const BoxEntry& box :
                 window_->Table().pages[static_cast<std::size_t>(window_->dtype)].boxes) {
                window_->ChangeBox(static_cast<std::size_t>(box.index), std::string(box.sample));
            }
        }
        return true;
    }

    bool SetValues() {
        if (arguments_.select != 0) {
            const auto index = static_cast<std::size_t>(arguments_.select - 1);
            if (index >= window_->controls.optPatternSelect.captions.size()) {
                throw UsageError(std::string(window_->Row().category) + " has no pattern option " +
                                 std::to_string(arguments_.select));
            }
            window_->SelectPattern(index);
        }
        bool good = true;
        for (const auto& [name, value] : arguments_.sets) {
            good = SetValue(*window_, name, value) && good;
        }
        return good;
    }

    /// Model and pattern of a fresh fitting for the JSON output. False when the build refuses.
    bool BuildForReport(InputReport& report) {
        if (arguments_.json.empty()) {
            return true;
        }
        if (!window_->BuildFitting()) {
            return false;
        }
        window_->ApplySettings();
        const FittingHandle& fitting = *window_->fitting;
        const FittingResults& results = fitting.Results();
        const bool many = window_->Table().multiple;
        fitting.ConstructModel();
        report.model = SurfacesJson(many ? results.ModelSurfaceList : OneSurface(results.ModelSurface));
        fitting.DevelopModel();
        report.pattern = SurfacesJson(many ? results.PatternSurfaceList : OneSurface(results.PatternSurface));
        window_->ShowWarnings(results.warnings);
        return true;
    }

    static CRuleSurfs OneSurface(const CRuleSurf& surface) {
        CRuleSurfs surfaces;
        if (surface.List1) {
            surfaces.Add(surface);
        }
        return surfaces;
    }

    /// Builds in the view of the file, or the one that the command line asks for; a new window shows its
    /// pattern.
    void ChooseView() {
        const bool hasView = window_->views->Count() > 0;
        const bool wantsPattern =
            arguments_.view == ViewChoice::Pattern || (arguments_.view == ViewChoice::AsSaved && !hasView);
        const bool keepsView = hasView && (arguments_.view == ViewChoice::AsSaved ||
                                           InPatternView(*window_->views) == wantsPattern);
        if (keepsView) {
            window_->UpdateFitting();
        } else {
            window_->ClickView(wantsPattern ? PatternButton : 0);
        }
    }

    bool WriteOutputs(const std::string& name) {
        bool written = true;
        if (!arguments_.save.empty()) {
            written = window_->SaveFile(OutputPath(arguments_.save, name)) && written;
        }
        if (!arguments_.dxf.empty()) {
            written = window_->Export(OutputPath(arguments_.dxf, name), ExportMode::Dxf) && written;
        }
        if (!arguments_.png.empty()) {
            written = WritePicture(OutputPath(arguments_.png, name), PictureFormat::Png) && written;
        }
        if (!arguments_.svg.empty()) {
            written = WritePicture(OutputPath(arguments_.svg, name), PictureFormat::Svg) && written;
        }
        return written;
    }

    /// Draws the view as an opened window shows it: zoomed to the extents.
    bool WritePicture(const std::string& path, PictureFormat format) {
        PictureDevice picture(format, arguments_.size.width, arguments_.size.height);
        window_->display.DisplayDevice = &picture;
        window_->UpdateFitting();
        window_->ZoomExtents();
        window_->display.DisplayDevice = nullptr;
        try {
            picture.Save(path, files_);
        } catch (const FileError& error) {
            ShowPlain(ui_, error.what());
            return false;
        }
        return window_->hasModel;
    }

    /// Keeps the JSON of one input, or writes it at once when each input has a file of its own.
    void Report(const InputReport& report, std::size_t index) {
        if (arguments_.json.empty()) {
            return;
        }
        if (arguments_.json.find("{name}") != std::string::npos) {
            WriteJson(OutputPath(arguments_.json, InputName(arguments_, report.file)),
                      ReportJson(report) + "\n");
        } else {
            reports_.append(index > 0 ? ",\n" : "").append(ReportJson(report));
        }
    }

    void WriteReports() {
        if (!reports_.empty()) {
            const bool several = arguments_.inputs.size() > 1;
            WriteJson(arguments_.json, (several ? "[" : "") + reports_ + (several ? "]" : "") + "\n");
        }
    }

    void WriteJson(const std::string& path, const std::string& text) {
        if (path == "-") {
            std::cout << text << std::flush;
            if (!std::cout) {
                ui_.PrintLine("korvet-batch: the standard output could not be written");
                Fail();
            }
            return;
        }
        try {
            files_.Write(path, text, Flush::No);
        } catch (const FileError& error) {
            ui_.PrintLine(std::string("korvet-batch: ") + error.what());
            Fail();
        }
    }

    const Arguments& arguments_;
    BatchUi ui_;
    COptions options_;
    DiskFiles files_;
    SystemClock clock_;
    FrameModel frame_;
    PatternSettingsDialog patternSettingsDialog_;
    ShellContext context_ = {options_, ui_, files_, clock_, frame_, patternSettingsDialog_};
    std::unique_ptr<CFittingWindow> window_;
    std::string reports_;
    int status_ = Done;
};

}  // namespace

int Run(const Arguments& arguments) {
    if (arguments.list) {
        std::cout << CatalogueText();
        return Done;
    }
    return BatchRun(arguments).Run();
}

}  // namespace korvet::batch
