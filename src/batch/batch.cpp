#include "batch/batch.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>

#include "batch/batch_ui.h"
#include "batch/catalogue_text.h"
#include "batch/in_order.h"
#include "batch/input_run.h"
#include "batch/progress_line.h"
#include "batch/report_output.h"
#include "batch/set_values.h"
#include "core/reason.h"
#include "dialogs/options_file.h"
#include "platform/disk_files.h"
#include "platform/graphics_application.h"
#include "platform/system_clock.h"
#include "platform/system_printers.h"

namespace korvet::batch {
namespace {

/// The date on which the run began: the texts of all its inputs have the same.
class RunClock final : public Clock {
  public:
    [[nodiscard]] std::string ShortDate() const override { return date_; }

  private:
    std::string date_ = SystemClock().ShortDate();
};

/// What all inputs of a run share, none of which they change.
struct Shared {
    const Arguments& arguments;
    COptions options = {};
    RunClock clock = {};
    char decimalMark = SystemDecimalMark();
};

/// The work on one input, with a window, settings and messages of its own.
class InputWork {
  public:
    /// `files` is the thread's own, so that a folder is looked after once.
    InputWork(const Shared& shared, const BatchInput& input, DiskFiles& files)
        : shared_(shared), input_(input), files_(files) {
        SetUpPrinter();
    }

    /// Does the work. Failures are told among the messages.
    void Run() {
        files_.onPartedNames = [this](const std::string& path) { ShowPlain(ui_, PartedNamesText(path)); };
        try {
            ui_.BeginInput(input_.label);
            run_.Run();
            status_ = run_.Succeeded() ? Done : Failed;
        } catch (const UsageError& error) {
            ui_.PrintLine((input_.file.empty() ? "korvet-batch" : input_.label) + ": " + error.what());
            status_ = WrongUsage;
        } catch (const std::exception& error) {
            ui_.PrintAbout(ReasonOf(error));
            status_ = Failed;
        }
        files_.onPartedNames = nullptr;
    }

    [[nodiscard]] std::string Messages() const { return messages_.str(); }
    [[nodiscard]] InputReport Report() const { return run_.Report(); }
    [[nodiscard]] int Status() const { return status_; }
    [[nodiscard]] const std::string& Name() const { return input_.name; }

  private:
    /// The paper of the command line, with the calibration of the settings.
    void SetUpPrinter() {
        const Arguments& arguments = shared_.arguments;
        printDialog_.TakeOptions(options_);
        printDialog_.CurrentPrinterName = PdfPrinter;
        printDialog_.CurrentPaperSize = arguments.paper;
        printDialog_.CurrentOrientation = arguments.landscape ? Landscape : Portrait;
        if (arguments.inches || arguments.millimetres) {
            printDialog_.PrintUnits = arguments.inches ? Inches : Millimetres;
        }
    }

    const Shared& shared_;
    const BatchInput& input_;
    std::ostringstream messages_;
    BatchUi ui_{shared_.arguments, messages_};
    COptions options_ = shared_.options;
    DiskFiles& files_;
    FrameModel frame_;
    PatternSettingsDialog patternSettingsDialog_;
    SystemPrinters printers_{files_};
    CPrintDialog printDialog_{printers_};
    WindowContext context_ = {
        options_,           ui_, files_, shared_.clock, frame_, patternSettingsDialog_, printDialog_,
        shared_.decimalMark};
    InputRun run_{shared_.arguments, context_, ui_, input_};
    int status_ = Failed;
};

/// All inputs of one command line, with what is told of them in their order.
class BatchRun {
  public:
    explicit BatchRun(const Arguments& arguments)
        : arguments_(arguments), shared_{arguments}, inputs_(InputsOf(arguments)) {}

    int Run() {
        for (const auto& [name, value] : arguments_.sets) {
            if (!IsSettableName(name)) {
                throw UsageError("--set knows no " + name);
            }
        }
        if (!ReadOptions()) {
            return Failed;
        }
        if (!arguments_.json.empty()) {
            report_.emplace(arguments_.json, inputs_.size() + (arguments_.fittings.empty() ? 0U : 2U));
            report_->onPartedNames = [this](const std::string& path) { Say(PartedNamesText(path)); };
        }
        if (!arguments_.png.empty() || !arguments_.svg.empty() || !arguments_.pdf.empty()) {
            EnsureGraphicsApplication();  // in this thread, and not in the one that draws first
        }
        std::vector<DiskFiles> files(static_cast<std::size_t>(arguments_.jobs));
        InOrder<InputWork>(
            inputs_.size(), arguments_.jobs,
            [this, &files](std::size_t job, std::size_t i) {
                auto work = std::make_unique<InputWork>(shared_, inputs_[i], files[job]);
                work->Run();
                return work;
            },
            [this](std::size_t i, const InputWork& work) { Tell(i, work); });
        Report([](ReportOutput& report) { report.Finish(); });
        progress_.Clear();
        return status_;
    }

  private:
    /// Options from the file of the command line; without one the built-in options hold.
    bool ReadOptions() {
        if (arguments_.settings.empty()) {
            return true;
        }
        BatchUi ui(arguments_);
        DiskFiles files;
        ui.BeginInput(arguments_.settings);
        shared_.options.IniFileName = arguments_.settings;
        try {
            if (!files.Exists(arguments_.settings)) {
                throw FileError(arguments_.settings + ": there is no such options file");
            }
            ReadOptionsFile(shared_.options, files, ui);
            return true;
        } catch (const std::exception& error) {
            Say(ReasonOf(error));
            return false;
        }
    }

    /// Tells of an input that is done.
    void Tell(std::size_t i, const InputWork& work) {
        const std::string messages = work.Messages();
        if (!messages.empty()) {
            progress_.Clear();
            std::cerr << messages << std::flush;
        }
        TakeStatus(work.Status());
        if (HasPlaceInReport(inputs_[i])) {
            Report([&](ReportOutput& report) { report.Add(work.Name(), work.Report()); });
        }
        progress_.Show(i + 1, inputs_.size(), work.Name());
    }

    /// A row with a fault may have a name that is no file's, or another row's.
    [[nodiscard]] bool HasPlaceInReport(const BatchInput& input) const {
        return input.fault.empty() || arguments_.json.find("{name}") == std::string::npos;
    }

    /// Does a step of the report where one is asked for, and says how it failed.
    template <typename Step>
    void Report(Step step) {
        try {
            if (report_) {
                step(*report_);
            }
        } catch (const std::exception& error) {
            Say(ReasonOf(error));
            TakeStatus(Failed);
        }
    }

    /// A fault of the run itself and not of one input.
    void Say(const std::string& text) {
        progress_.Clear();
        std::cerr << "korvet-batch: " << text << '\n';
    }

    void TakeStatus(int status) { status_ = std::max(status_, status); }

    const Arguments& arguments_;
    Shared shared_;
    std::vector<BatchInput> inputs_;
    ProgressLine progress_;
    std::optional<ReportOutput> report_;  ///< where the command line asks for JSON
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

int RunCommandLine(int argc, const char* const* argv) {
    try {
        const auto arguments = ParseArguments(argc, argv);
        const int status = arguments ? Run(*arguments) : Done;
        std::cout.flush();
        if (!std::cout && status == Done) {
            throw std::runtime_error("the standard output cannot be written");
        }
        return status;
    } catch (const UsageError& error) {
        std::cerr << "korvet-batch: " << error.what() << "\nkorvet-batch --help tells the options.\n";
        return WrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "korvet-batch: " << ReasonOf(error) << '\n';
        return Failed;
    }
}

}  // namespace korvet::batch
