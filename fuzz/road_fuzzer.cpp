// Any bytes on the whole road of korvet-batch: a file on the disk, opened, made, and written as JSON,
// drawing, picture and parameter file. An input is refused with a message, or everything that comes out can
// be read: JSON and SVG that keep their grammar, a drawing of whole pairs with finite numbers, a parameter
// file that opens to the same one.
#include <QXmlStreamReader>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "batch/batch.h"

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Complain(const std::string& what) {
    std::cerr << "the road ends: " << what << std::endl;
    std::abort();
}

void Require(bool holds, const char* what) {
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

/// Runs a command line in silence; its exit status.
int RunInSilence(const std::vector<std::string>& words) {
    std::vector<const char*> arguments = {"korvet-batch"};
    for (const std::string& word : words) {
        arguments.push_back(word.c_str());
    }
    std::ostringstream said;
    std::streambuf* const before = std::cerr.rdbuf(said.rdbuf());
    const int status = korvet::batch::RunCommandLine(static_cast<int>(arguments.size()), arguments.data());
    std::cerr.rdbuf(before);
    Require(status == korvet::batch::Done || status == korvet::batch::Failed, "another exit status");
    Require(status == korvet::batch::Done || !said.str().empty(), "refused without a word");
    return status;
}

/// Groups of a code and a value, a line each; every number among them is finite.
void CheckDrawing(const std::string& bytes) {
    std::istringstream lines(bytes);
    std::string code;
    std::string value;
    std::string last;
    while (std::getline(lines, code)) {
        Require(static_cast<bool>(std::getline(lines, value)), "a group of the drawing without its value");
        const int number = std::atoi(code.c_str());
        if (number >= 10 && number < 60) {
            char* end = nullptr;
            Require(std::isfinite(std::strtod(value.c_str(), &end)) && end != value.c_str(),
                    "a coordinate of the drawing that is none");
        }
        last = value;
    }
    Require(last.starts_with("EOF"), "a drawing without an end");
}

void CheckPicture(const std::string& bytes) {
    QXmlStreamReader reader(QByteArray::fromStdString(bytes));
    while (!reader.atEnd()) {
        reader.readNext();
    }
    Require(!reader.hasError(), "a picture that is no XML");
}

void CheckReport(const std::string& bytes, bool isRefused) {
    const auto report = nlohmann::json::parse(bytes, nullptr, false);
    Require(!report.is_discarded(), "a report that is no JSON");
    Require(report.at("refused").get<bool>() == isRefused || isRefused, "a report of another outcome");
    Require(!report.at("refused").get<bool>() || !report.at("messages").empty(), "refused without a reason");
}

/// What was saved opens, and is saved as the same bytes.
void CheckSaved(const Folder& folder, const std::string& bytes) {
    folder.Put("saved.Kvt", bytes);
    if (RunInSilence({folder.File("saved.Kvt"), "--save", folder.File("again.Kvt")}) == korvet::batch::Done) {
        Require(folder.Take("again.Kvt") == bytes, "a parameter file that changes when it is saved again");
    }
}

void Travel(const std::string& bytes) {
    static const Folder folder;
    folder.Put("in.Kvt", bytes);
    const bool isRefused = RunInSilence({folder.File("in.Kvt"), "--json", folder.File("out.json"), "--dxf",
                                         folder.File("out.dxf"), "--svg", folder.File("out.svg"), "--save",
                                         folder.File("out.Kvt")}) != korvet::batch::Done;
    CheckReport(folder.Take("out.json"), isRefused);
    const std::string drawing = folder.Take("out.dxf");
    const std::string picture = folder.Take("out.svg");
    const std::string saved = folder.Take("out.Kvt");
    Require(isRefused || !(drawing.empty() || picture.empty() || saved.empty()), "done, without an output");
    if (!drawing.empty()) {
        CheckDrawing(drawing);
    }
    if (!picture.empty()) {
        CheckPicture(picture);
    }
    if (!saved.empty()) {
        CheckSaved(folder, saved);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Travel(std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
