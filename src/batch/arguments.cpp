#include "batch/arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <filesystem>
#include <sstream>

#include "batch/claims.h"
#include "batch/fittings_list.h"
#include "core/constants.h"
#include "core/number_text.h"
#include "core/text_encoding.h"
#include "platform/disk_files.h"
#include "platform/growing_file.h"
#include "printing/printers.h"

namespace korvet::batch {
namespace {

constexpr int LargestPicture = 20000;
constexpr std::size_t LargestList = std::size_t{1} << 26U;
constexpr std::int64_t MostPixels = 200'000'000;
constexpr int MostSurfaces = 32767;
constexpr int MostPoints = 1'000'000'000;

PictureSize ParseSize(const std::string& text) {
    const std::size_t cross = text.find('x');
    if (cross != std::string::npos) {
        const auto width = ParseWholeNumber(text.substr(0, cross), 1, LargestPicture);
        const auto height = ParseWholeNumber(text.substr(cross + 1), 1, LargestPicture);
        if (width && height && std::int64_t{*width} * *height <= MostPixels) {
            return {*width, *height};
        }
    }
    throw UsageError(
        "--size takes WIDTHxHEIGHT in pixels, each from 1 to 20000 and 200 million in all, not \"" + text +
        "\"");
}

std::pair<std::string, std::string> ParseSet(const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw UsageError("--set takes NAME=VALUE, not \"" + text + "\"");
    }
    return {text.substr(0, equals), DecodeText(text.substr(equals + 1))};
}

/// "surface list point surface list point", as a picked dimension would store them.
CDimension ParseDimension(const std::string& text) {
    constexpr std::array Highest = {MostSurfaces, int{ExtentFrameList}, MostPoints};
    std::array<int, 6> numbers = {};
    std::istringstream words(text);
    std::string word;
    std::size_t count = 0;
    bool good = true;
    for (; words >> word; ++count) {
        const auto number =
            count < numbers.size() ? ParseWholeNumber(word, 0, Highest.at(count % 3)) : std::nullopt;
        good = good && number;
        if (number) {
            numbers.at(count) = *number;
        }
    }
    if (!good || count != numbers.size()) {
        throw UsageError(
            "--dimension takes \"surface list point surface list point\" with lists from 0 to 5, not \"" +
            text + "\"");
    }
    return {.SurfaceNo2 = numbers[3],
            .SurfaceNo1 = numbers[0],
            .ListNo2 = numbers[4],
            .ListNo1 = numbers[1],
            .PointNo2 = numbers[5],
            .PointNo1 = numbers[2]};
}

ViewChoice ParseView(const std::string& text) {
    if (text.empty()) {
        return ViewChoice::AsSaved;
    }
    return text == "model" ? ViewChoice::Model : ViewChoice::Pattern;
}

/// The number of a paper by its name.
int ParsePaper(const std::string& name) {
    std::string names;
    for (const Paper& paper : PdfPapers()) {
        if (EqualIgnoringCase(paper.name, name)) {
            return paper.number;
        }
        names += (names.empty() ? "" : ", ") + paper.name;
    }
    throw UsageError("--paper knows no \"" + name + "\"; it takes " + names);
}

std::vector<std::string> ParseSheets(const std::string& text) {
    std::vector<std::string> names;
    std::istringstream list(text);
    std::string name;
    while (std::getline(list, name, ',')) {
        names.emplace_back(Trimmed(name));
    }
    return names;
}

/// No output may fall on another, nor on an input, but for a parameter file that is saved under its own name.
void CheckOutputs(const Arguments& arguments) {
    Claims claims;
    if (!arguments.settings.empty()) {
        claims.Claim(arguments.settings, "the options file", Claims::Reader);
    }
    if (!arguments.meshFile.empty()) {
        claims.Claim(arguments.meshFile, "the mesh file", Claims::Reader);
    }
    for (const std::string& input : arguments.inputs) {
        claims.Claim(input, "the parameter file of " + input, Claims::Reader);
    }
    std::size_t number = 0;
    if (!arguments.fittings.empty()) {
        claims.Claim(arguments.fittings, "the list of fittings", Claims::Reader);
    }
    for (const BatchInput& input : InputsOf(arguments)) {
        ++number;
        if (!input.fault.empty()) {
            continue;  // nothing is written for it but its entry in the JSON
        }
        const std::string of = " of " + input.label;
        const auto claim = [&](const std::string& pattern, const std::string& owner, std::size_t forInput) {
            if (!pattern.empty()) {
                claims.Claim(OutputPath(pattern, input.name), owner, forInput);
            }
        };
        claim(arguments.save, "the parameter file" + of, number);
        claim(arguments.dxf, "the DXF" + of, number);
        claim(arguments.hpgl, "the plot" + of, number);
        claim(arguments.png, "the PNG" + of, number);
        claim(arguments.svg, "the SVG" + of, number);
        claim(arguments.table, "the table" + of, number);
        claim(arguments.pdf, "the PDF" + of, number);
        const bool oneJson = arguments.json.find("{name}") == std::string::npos;
        if (arguments.json != "-" && !arguments.json.empty()) {
            for (const std::string& json : {arguments.json, GrowingFile::PartOf(arguments.json)}) {
                claim(json, oneJson ? "the JSON" : "the JSON" + of, oneJson ? Claims::Whole : number);
            }
        }
    }
}

void CheckTogether(const Arguments& arguments) {
    if (arguments.list) {
        return;
    }
    if (!arguments.fittings.empty()) {
        if (!arguments.inputs.empty() || !arguments.newCategory.empty() || arguments.type != 0 ||
            !arguments.meshFile.empty()) {
            throw UsageError("--fittings takes no parameter file, and no --new, --type and --mesh-file");
        }
        CheckOutputs(arguments);
        return;
    }
    if (arguments.inputs.empty() == arguments.newCategory.empty()) {
        throw UsageError(arguments.inputs.empty() ? "name a parameter file, or a fitting with --new"
                                                  : "--new takes no parameter file");
    }
    if (arguments.newCategory.empty() && (arguments.type != 0 || arguments.sample)) {
        throw UsageError("--type and --sample go with --new: the type of a saved fitting is fixed");
    }
    if (!arguments.meshFile.empty() && (arguments.newCategory.empty() || arguments.sample)) {
        throw UsageError("--mesh-file goes with --new and takes the place of --sample");
    }
    CheckOutputs(arguments);
}

/// The texts that need a look of their own after the line has been taken apart.
struct RawTexts {
    std::vector<std::string> sets;
    std::vector<std::string> dimensions;
    std::string size;
    std::string view;
    std::string paper = "A4";
    std::string units;
    std::string sheets;
};

/// --NAME ticks a box of the export dialog and --no-NAME clears it; both together are refused.
void AddTick(CLI::App& app, const std::string& name, std::optional<bool>& tick, const std::string& what) {
    const auto set = [&tick](bool ticked) { return [&tick, ticked](std::int64_t) { tick = ticked; }; };
    CLI::Option* on = app.add_flag_function("--" + name, set(true), "DXF: " + what);
    CLI::Option* off = app.add_flag_function("--no-" + name, set(false), "DXF: without " + what);
    on->excludes(off);
}

/// The PDF, and what goes with it only.
void AddPaperOptions(CLI::App& app, Arguments& arguments, RawTexts& raw, const CLI::Validator& notEmpty) {
    CLI::Option* const pdf =
        app.add_option("--pdf", arguments.pdf, "the pattern in full size on its sheets")->check(notEmpty);
    app.add_option("--paper", raw.paper, "PDF: A4 by default; a wrong name lists all")->needs(pdf);
    app.add_flag("--landscape", arguments.landscape, "PDF: sheets that lie, not stand")->needs(pdf);
    CLI::Option* const fit =
        app.add_flag("--fit", arguments.fit, "PDF: the view on one sheet instead")->needs(pdf);
    app.add_option("--sheets", raw.sheets, "PDF: A1,B2 ...; all by default")
        ->needs(pdf)
        ->excludes(fit)
        ->check(notEmpty);
    app.add_option("--units", raw.units, "PDF, --complete: mm or inch; the default is what the settings say")
        ->check(CLI::IsMember({"mm", "inch"}));
}

void AddOptions(CLI::App& app, Arguments& arguments, RawTexts& raw) {
    // What a script leaves empty by mistake must not pass for what was left out.
    const CLI::Validator notEmpty([](const std::string& text) { return text.empty() ? "it is empty" : ""; },
                                  "");
    app.add_option("FILE", arguments.inputs, "parameter files (*.Kvt)")->check(notEmpty);
    app.add_option("--fittings", arguments.fittings,
                   "CSV list of fittings instead: name, fitting, type, then NAME=VALUE cells")
        ->check(notEmpty);
    app.add_option("--jobs", arguments.jobs, "inputs that are worked on at the same time, 1 by default")
        ->check(CLI::Range(1, 256));
    app.add_option("--new", arguments.newCategory, "a new window of this category instead of a file")
        ->check(notEmpty);
    app.add_option("--type", arguments.type, "its type, from 1")->check(CLI::Range(1, 99));
    app.add_flag("--sample", arguments.sample, "fill it with the sample sizes of its type");
    app.add_option("--mesh-file", arguments.meshFile, "DXF with the mesh of a new Imported Mesh")
        ->check(notEmpty);
    app.add_option("--select", arguments.select, "the N-th pattern option, from 1")->check(CLI::Range(1, 99));
    app.add_option("--set", raw.sets, "NAME=VALUE: box3=120, segs=48, Thickness=3, FrameRequested=True ...")
        ->allow_extra_args(false);
    app.add_option("--dimension", raw.dimensions,
                   "a dimension on the pattern: \"surface list point surface list point\"")
        ->allow_extra_args(false);
    app.add_option("--view", raw.view, "model or pattern; the default is the view saved in the file")
        ->check(CLI::IsMember({"model", "pattern"}));
    app.add_option("--settings", arguments.settings, "options file; the default is the built-in options")
        ->check(notEmpty);
    app.add_flag("--list", arguments.list, "print the catalogue with windows, types and boxes");
    app.add_option("--json", arguments.json, "surfaces, text block and messages; - is standard output")
        ->check(notEmpty);
    app.add_option("--dxf", arguments.dxf, "DXF of the view")->check(notEmpty);
    app.add_flag("--check", arguments.check,
                 "check the cut file of the pattern: outlines, doubled lines, holes, lengths, accuracy");
    app.add_flag("--complete", arguments.complete, "DXF: with header, layers and units")->needs("--dxf");
    app.add_flag("--polylines", arguments.polylines, "DXF: edges as polylines instead of arcs");
    app.add_flag("--mesh", arguments.mesh, "DXF: surfaces as a mesh");
    AddTick(app, "diagonals", arguments.diagonals, "diagonals");
    AddTick(app, "dimensions", arguments.dimensions, "dimensions and what else is marked out");
    AddTick(app, "label", arguments.label, "the text block");
    app.add_option("--save", arguments.save, "write the parameter file")->check(notEmpty);
    app.add_option("--png", arguments.png, "picture of the view")->check(notEmpty);
    app.add_option("--svg", arguments.svg, "picture of the view")->check(notEmpty);
    app.add_option("--table", arguments.table, "coordinate table of the pattern")->check(notEmpty);
    app.add_option("--size", raw.size, "WIDTHxHEIGHT of a picture in pixels, 800x600 by default")
        ->check(notEmpty);
    AddPaperOptions(app, arguments, raw, notEmpty);
    app.add_option("--hpgl", arguments.hpgl, "plot file of the view, for a pen plotter")->check(notEmpty);
    app.footer(
        "{name} in the name of an output stands for the name of the input, or of the row.\n"
        "Exit status: 0 done, 1 an input was refused or failed, 2 wrong usage.");
}

}  // namespace

std::optional<Arguments> ParseArguments(int argc, const char* const* argv) {
    Arguments arguments;
    RawTexts raw;
    CLI::App app("Korvet Development without a screen: parameter files to patterns, DXF, JSON and pictures.",
                 "korvet-batch");
    app.set_version_flag("--version", "korvet-batch " + std::string(ProgramVersion), "print the version");
    AddOptions(app, arguments, raw);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        app.exit(success);
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what());
    }
    for (const std::string& text : raw.sets) {
        arguments.sets.push_back(ParseSet(text));
    }
    for (const std::string& text : raw.dimensions) {
        arguments.dimensionLines.push_back(ParseDimension(text));
    }
    if (!raw.size.empty()) {
        arguments.size = ParseSize(raw.size);
    }
    arguments.view = ParseView(raw.view);
    arguments.paper = ParsePaper(raw.paper);
    arguments.sheets = ParseSheets(raw.sheets);
    arguments.inches = raw.units == "inch";
    arguments.millimetres = raw.units == "mm";
    if (!raw.units.empty() && arguments.pdf.empty() && !arguments.complete) {
        throw UsageError("--units requires --pdf or --complete");
    }
    if (!arguments.fittings.empty()) {
        arguments.rows =
            ReadFittingsList(DiskFiles().Read(arguments.fittings, LargestList), arguments.fittings);
    }
    CheckTogether(arguments);
    return arguments;
}

std::vector<BatchInput> InputsOf(const Arguments& arguments) {
    std::vector<BatchInput> inputs = arguments.rows;
    for (const std::string& file : arguments.inputs) {
        inputs.push_back({.label = file,
                          .name = std::filesystem::path(file).stem().string(),
                          .file = file,
                          .category = {},
                          .sets = {}});
    }
    if (!arguments.newCategory.empty()) {
        inputs.push_back({.label = arguments.newCategory,
                          .name = arguments.newCategory,
                          .file = {},
                          .category = arguments.newCategory,
                          .type = arguments.type,
                          .sets = {}});
    }
    for (BatchInput& input : inputs) {
        input.select = input.select != 0 ? input.select : arguments.select;
        input.sets.insert(input.sets.begin(), arguments.sets.begin(), arguments.sets.end());
    }
    return inputs;
}

std::string OutputPath(const std::string& pattern, const std::string& name) {
    constexpr std::string_view Mark = "{name}";
    std::string path = pattern;
    for (std::size_t at = path.find(Mark); at != std::string::npos; at = path.find(Mark, at + name.size())) {
        path.replace(at, Mark.size(), name);
    }
    return path;
}

}  // namespace korvet::batch
