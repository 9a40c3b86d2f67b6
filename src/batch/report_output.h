// Where the JSON of a run goes: entry by entry, as the inputs are done.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "batch/json_text.h"
#include "platform/growing_file.h"

namespace korvet::batch {

class ReportOutput {
  public:
    /// For `inputs` inputs. `pattern` is a file, "-" for the standard output, or a pattern with {name} for a
    /// file for each input.
    ReportOutput(std::string pattern, std::size_t inputs);

    /// Writes the entry of one input, whose name stands for {name}, and hands it to the system whole. Throws
    /// FileError; what would follow in the same file is then left out, and the file is not made.
    void Add(const std::string& name, const InputReport& report);

    /// Ends the report, an empty one too; a file takes its place only now. Throws FileError.
    void Finish();

    /// Called behind the replacement of a file that had further names (hard links).
    std::function<void(const std::string& path)> onPartedNames;

  private:
    void AddFile(const std::string& name, const InputReport& report) const;
    void Place(GrowingFile& file, const std::string& path) const;
    void Begin();
    void AddEntry(const InputReport& report);
    void Put(std::string_view text);
    void Flush();

    std::string pattern_;
    bool aFileEach_;
    bool several_;
    bool begun_ = false;
    bool failed_ = false;
    std::optional<GrowingFile> file_;  ///< unless it is the standard output
};

}  // namespace korvet::batch
