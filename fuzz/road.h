// What the fuzz targets of the batch program share: a folder, a run, and a complaint.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "batch/batch.h"

namespace korvet::fuzz {

namespace fs = std::filesystem;

[[noreturn]] inline void Complain(const std::string& what) {
    std::cerr << "the road ends: " << what << std::endl;
    std::abort();
}

inline void Require(bool holds, const char* what) {
    if (!holds) {
        Complain(what);
    }
}

/// A folder of this process, which goes away with it.
class Folder {
  public:
    Folder() {
        std::string name = (fs::temp_directory_path() / "korvet-road-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~Folder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] std::string File(const std::string& name) const { return (path_ / name).string(); }

    /// The bytes of a file, which then goes away; nothing when there is none.
    [[nodiscard]] std::string Take(const std::string& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        std::error_code ignored;
        fs::remove(path_ / name, ignored);
        return bytes;
    }

    void Put(const std::string& name, const std::string& bytes) const {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
    }

  private:
    fs::path path_;
};

/// Whether the program said these words of its own: a message quotes its input, and a fuzzer soon writes
/// there what it sees a text compared with.
inline bool SaysByItself(const std::string& text, const char* words, const std::string& input) {
    return text.find(words) != std::string::npos && input.find(words) == std::string::npos;
}

/// Runs a command line in silence; its exit status. What it said stands in `text`.
inline int RunInSilence(const std::vector<std::string>& words, std::string& text) {
    std::vector<const char*> arguments = {"korvet-batch"};
    for (const std::string& word : words) {
        arguments.push_back(word.c_str());
    }
    std::ostringstream said;
    std::streambuf* const before = std::cerr.rdbuf(said.rdbuf());
    const int status = korvet::batch::RunCommandLine(static_cast<int>(arguments.size()), arguments.data());
    std::cerr.rdbuf(before);
    Require(status == korvet::batch::Done || status == korvet::batch::Failed, "another exit status");
    text = said.str();
    return status;
}

/// The same for a program that is to tell why it refuses.
inline int RunInSilence(const std::vector<std::string>& words) {
    std::string text;
    const int status = RunInSilence(words, text);
    Require(status == korvet::batch::Done || !text.empty(), "refused without a word");
    return status;
}

}  // namespace korvet::fuzz
