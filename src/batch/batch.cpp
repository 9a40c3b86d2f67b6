#include "batch/batch.h"

#include <iostream>
#include <optional>
#include <stdexcept>

#include "batch/batch_ui.h"
#include "batch/catalogue_text.h"
#include "batch/input_run.h"
#include "batch/report_output.h"
#include "batch/set_values.h"
#include "dialogs/options_file.h"
#include "platform/disk_files.h"
#include "platform/system_clock.h"
#include "platform/system_printers.h"

namespace korvet::batch {
namespace {

/// All inputs of one command line, one after the other, with what they share.
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
            return Failed;
        }
        SetUpPrinter();
        files_.onPartedNames = [this](const std::string& path) { ShowPlain(ui_, PartedNamesText(path)); };
        const std::vector<std::string> inputs = InputsOf(arguments_);
        if (!arguments_.json.empty()) {
            report_.emplace(arguments_.json, inputs.size());
        }
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            ui_.ShowProgress(i + 1, inputs.size(), inputs[i]);
            RunInput(inputs[i]);
        }
        Report([](ReportOutput& report) { report.Finish(); });
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
            if (!files_.Exists(options_.IniFileName)) {
                throw FileError(options_.IniFileName + ": there is no such options file");
            }
            ReadOptionsFile(options_, files_, ui_);
            return true;
        } catch (const std::exception& error) {
            Say(error.what());
            return false;
        }
    }

    /// The paper of the command line, with the calibration of the settings.
    void SetUpPrinter() {
        printDialog_.TakeOptions(options_);
        printDialog_.CurrentPrinterName = PdfPrinter;
        printDialog_.CurrentPaperSize = arguments_.paper;
        printDialog_.CurrentOrientation = arguments_.landscape ? Landscape : Portrait;
        if (arguments_.inches || arguments_.millimetres) {
            printDialog_.PrintUnits = arguments_.inches ? Inches : Millimetres;
        }
    }

    void RunInput(const std::string& input) {
        ui_.BeginInput(input.empty() ? arguments_.newCategory : input);
        InputRun run(arguments_, context_, ui_, input);
        try {
            run.Run();
        } catch (const UsageError& error) {
            ui_.PrintLine((input.empty() ? "korvet-batch" : input) + ": " + error.what());
            status_ = WrongUsage;
        }
        if (!run.Succeeded()) {
            Fail();
        }
        Report([&](ReportOutput& report) { report.Add(InputName(arguments_, input), run.Report()); });
    }

    /// Does a step of the report where one is asked for, and says how it failed.
    template <typename Step>
    void Report(Step step) {
        try {
            if (report_) {
                step(*report_);
            }
        } catch (const std::exception& error) {
            Say(error.what());
            Fail();
        }
    }

    /// A fault of the run itself and not of one input.
    void Say(const std::string& text) { ui_.PrintLine("korvet-batch: " + text); }

    void Fail() { status_ = status_ == WrongUsage ? WrongUsage : Failed; }

    const Arguments& arguments_;
    BatchUi ui_;
    COptions options_;
    DiskFiles files_;
    SystemClock clock_;
    FrameModel frame_;
    PatternSettingsDialog patternSettingsDialog_;
    SystemPrinters printers_;
    CPrintDialog printDialog_{printers_};
    WindowContext context_ = {
        options_, ui_, files_, clock_, frame_, patternSettingsDialog_, printDialog_, SystemDecimalMark()};
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
        std::cerr << "korvet-batch: " << error.what() << '\n';
        return Failed;
    }
}

}  // namespace korvet::batch
