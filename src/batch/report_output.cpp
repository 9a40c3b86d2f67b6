#include "batch/report_output.h"

#include <iostream>

#include "batch/arguments.h"

namespace korvet::batch {

ReportOutput::ReportOutput(std::string pattern, std::size_t inputs)
    : pattern_(std::move(pattern)),
      aFileEach_(pattern_.find("{name}") != std::string::npos),
      several_(inputs > 1) {}

void ReportOutput::Add(const std::string& name, const InputReport& report) {
    if (aFileEach_) {
        AddFile(name, report);
    } else if (!failed_) {
        try {
            AddEntry(report);
        } catch (...) {
            failed_ = true;
            file_.reset();
            throw;
        }
    }
}

void ReportOutput::AddFile(const std::string& name, const InputReport& report) const {
    const std::string path = OutputPath(pattern_, name);
    GrowingFile file(path);
    WriteReport(report, [&file](std::string_view text) { file.Append(text); });
    file.Append("\n");
    Place(file, path);
}

void ReportOutput::Place(GrowingFile& file, const std::string& path) const {
    file.Place();
    if (file.PartsNames() && onPartedNames) {
        onPartedNames(path);
    }
}

void ReportOutput::Begin() {
    if (pattern_ != "-") {
        file_.emplace(pattern_);
    }
    Put(several_ ? "[" : "");
    begun_ = true;
}

void ReportOutput::AddEntry(const InputReport& report) {
    if (begun_) {
        Put(",\n");
    } else {
        Begin();
    }
    WriteReport(report, [this](std::string_view text) { Put(text); });
    Flush();
}

void ReportOutput::Put(std::string_view text) {
    if (file_) {
        file_->Append(text);
    } else {
        std::cout << text;
    }
}

void ReportOutput::Flush() {
    if (!file_ && !std::cout.flush()) {
        throw FileError("the standard output cannot be written");
    }
}

void ReportOutput::Finish() {
    if (aFileEach_ || failed_) {
        return;
    }
    if (!begun_) {
        Begin();  // a list without rows
    }
    Put(several_ ? "]\n" : "\n");
    Flush();
    if (file_) {
        Place(*file_, pattern_);
    }
}

}  // namespace korvet::batch
