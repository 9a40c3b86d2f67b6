// Any bytes on the whole road of korvet-batch: a file on the disk, opened, made, and written as JSON,
// drawing, picture and parameter file. An input is refused with a message, or everything that comes out can
// be read: JSON and SVG that keep their grammar, a drawing of whole pairs with finite numbers, a parameter
// file that opens to the same one.
#include <QXmlStreamReader>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "fuzz/road.h"

namespace {

using namespace korvet::fuzz;

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

/// What was saved opens, and is saved as the same bytes, unless its fitting is refused.
void CheckSaved(const Folder& folder, const std::string& bytes) {
    folder.Put("saved.Kvt", bytes);
    std::string text;
    const int status = RunInSilence({folder.File("saved.Kvt"), "--save", folder.File("again.Kvt")}, text);
    Require(!SaysByItself(text, "Error loading parameter file", bytes),
            "a parameter file that cannot be read again");
    if (status == korvet::batch::Done) {
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
