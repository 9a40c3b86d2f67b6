#include "batch/batch.h"

#include <iostream>
#include <stdexcept>

#include "batch/batch_ui.h"
#include "batch/catalogue_text.h"
#include "batch/input_run.h"
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
        const std::vector<std::string> inputs = InputsOf(arguments_);
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            ui_.ShowProgress(i + 1, inputs.size(), inputs[i]);
            RunInput(inputs[i]);
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
        if (!arguments_.json.empty()) {
            Report(run.Report(), InputName(arguments_, input));
        }
    }

    /// Keeps the JSON of one input, or writes it at once when each input has a file of its own.
    void Report(const InputReport& report, const std::string& name) {
        if (arguments_.json.find("{name}") != std::string::npos) {
            WriteJson(OutputPath(arguments_.json, name), ReportJson(report) + "\n");
        } else {
            reports_.append(reports_.empty() ? "" : ",\n").append(ReportJson(report));
        }
    }

    void WriteReports() {
        if (!reports_.empty()) {
            const bool several = arguments_.inputs.size() > 1;
            WriteJson(arguments_.json, (several ? "[" : "") + reports_ + (several ? "]" : "") + "\n");
        }
    }

    void WriteJson(const std::string& path, const std::string& text) {
        try {
            if (path == "-") {
                std::cout << text << std::flush;
                if (!std::cout) {
                    throw FileError("the standard output cannot be written");
                }
            } else {
                files_.Write(path, text, Flush::No);
            }
        } catch (const FileError& error) {
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
