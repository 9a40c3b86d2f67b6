#include "batch/arguments.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <set>

#include "core/number_text.h"

namespace korvet::batch {
namespace {

constexpr int LargestPicture = 20000;

PictureSize ParseSize(const std::string& text) {
    const std::size_t cross = text.find('x');
    if (cross != std::string::npos) {
        const auto width = ParseWholeNumber(text.substr(0, cross), 1, LargestPicture);
        const auto height = ParseWholeNumber(text.substr(cross + 1), 1, LargestPicture);
        if (width && height) {
            return {*width, *height};
        }
    }
    throw UsageError("--size takes WIDTHxHEIGHT in pixels, each from 1 to 20000, not \"" + text + "\"");
}

std::pair<std::string, std::string> ParseSet(const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw UsageError("--set takes NAME=VALUE, not \"" + text + "\"");
    }
    return {text.substr(0, equals), text.substr(equals + 1)};
}

ViewChoice ParseView(const std::string& text) {
    if (text.empty()) {
        return ViewChoice::AsSaved;
    }
    return text == "model" ? ViewChoice::Model : ViewChoice::Pattern;
}

/// Two inputs must not write one file.
void CheckOutputs(const Arguments& arguments) {
    if (arguments.inputs.size() < 2) {
        return;
    }
    const bool separateJson = arguments.json.find("{name}") != std::string::npos;
    for (const std::string* output : {&arguments.dxf, &arguments.save, &arguments.png, &arguments.svg,
                                      separateJson ? &arguments.json : nullptr}) {
        if (output == nullptr || output->empty()) {
            continue;
        }
        std::set<std::string> paths;
        for (const std::string& input : arguments.inputs) {
            const std::string path = OutputPath(*output, InputName(arguments, input));
            if (!paths.insert(path).second) {
                throw UsageError("\"" + path +
                                 "\" would be written for more than one input: put {name} into the " +
                                 "name of the output, and give each input a name of its own");
            }
        }
    }
}

void CheckTogether(const Arguments& arguments) {
    if (arguments.list) {
        return;
    }
    if (arguments.inputs.empty() == arguments.newCategory.empty()) {
        throw UsageError(arguments.inputs.empty() ? "name a parameter file, or a fitting with --new"
                                                  : "--new takes no parameter file");
    }
    if (arguments.newCategory.empty() && (arguments.type != 0 || arguments.sample)) {
        throw UsageError("--type and --sample go with --new: the type of a saved fitting is fixed");
    }
    CheckOutputs(arguments);
}

/// Outputs of later versions: named, so that they are refused in plain words.
struct LaterOutputs {
    std::string hpgl;
    std::string pdf;
    std::string table;

    void Refuse() const {
        for (const auto& [value, name] : {std::pair{&hpgl, "--hpgl"}, {&pdf, "--pdf"}, {&table, "--table"}}) {
            if (!value->empty()) {
                throw UsageError(std::string(name) + " is not built yet");
            }
        }
    }
};

/// The texts that need a look of their own after the line has been taken apart.
struct RawTexts {
    std::vector<std::string> sets;
    std::string size;
    std::string view;
};

void AddOptions(CLI::App& app, Arguments& arguments, RawTexts& raw, LaterOutputs& later) {
    app.add_option("FILE", arguments.inputs, "parameter files (*.Kvt)");
    app.add_option("--new", arguments.newCategory, "a new window of this category instead of a file");
    app.add_option("--type", arguments.type, "its type, from 1")->check(CLI::Range(1, 99));
    app.add_flag("--sample", arguments.sample, "fill it with the sample sizes of its type");
    app.add_option("--select", arguments.select, "the N-th pattern option, from 1")->check(CLI::Range(1, 99));
    app.add_option("--set", raw.sets, "NAME=VALUE: box3=120, segs=48, Thickness=3, FrameRequested=True ...")
        ->allow_extra_args(false);
    app.add_option("--view", raw.view, "model or pattern; the default is the view saved in the file")
        ->check(CLI::IsMember({"model", "pattern"}));
    app.add_option("--settings", arguments.settings, "options file; the default is the built-in options");
    app.add_flag("--list", arguments.list, "print the catalogue with windows, types and boxes");
    app.add_option("--json", arguments.json, "surfaces, text block and messages; - is standard output");
    app.add_option("--dxf", arguments.dxf, "DXF of the view");
    app.add_flag("--polylines", arguments.polylines, "DXF: edges as polylines instead of arcs");
    app.add_flag("--mesh", arguments.mesh, "DXF: surfaces as a mesh");
    app.add_flag("--diagonals", arguments.diagonals, "DXF: diagonals");
    app.add_flag("--dimensions", arguments.dimensions, "DXF: dimensions and what else is marked out");
    app.add_flag("--label", arguments.label, "DXF: the text block");
    app.add_option("--save", arguments.save, "write the parameter file");
    app.add_option("--png", arguments.png, "picture of the view");
    app.add_option("--svg", arguments.svg, "picture of the view");
    app.add_option("--size", raw.size, "WIDTHxHEIGHT of a picture in pixels, 800x600 by default");
    app.add_option("--hpgl", later.hpgl, "plot file (not built yet)");
    app.add_option("--pdf", later.pdf, "full-size sheets (not built yet)");
    app.add_option("--table", later.table, "coordinate table (not built yet)");
    app.footer(
        "{name} in the name of an output stands for the name of the input.\n"
        "Exit status: 0 done, 1 an input was refused or failed, 2 wrong usage.");
}

}  // namespace

std::optional<Arguments> ParseArguments(int argc, const char* const* argv) {
    Arguments arguments;
    RawTexts raw;
    LaterOutputs later;
    CLI::App app("Korvet Development without a screen: parameter files to patterns, DXF, JSON and pictures.",
                 "korvet-batch");
    AddOptions(app, arguments, raw, later);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        app.exit(success);
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what());
    }
    later.Refuse();
    for (const std::string& text : raw.sets) {
        arguments.sets.push_back(ParseSet(text));
    }
    if (!raw.size.empty()) {
        arguments.size = ParseSize(raw.size);
    }
    arguments.view = ParseView(raw.view);
    CheckTogether(arguments);
    return arguments;
}

std::string OutputPath(const std::string& pattern, const std::string& name) {
    constexpr std::string_view Mark = "{name}";
    std::string path = pattern;
    for (std::size_t at = path.find(Mark); at != std::string::npos; at = path.find(Mark, at + name.size())) {
        path.replace(at, Mark.size(), name);
    }
    return path;
}

std::string InputName(const Arguments& arguments, const std::string& input) {
    return arguments.newCategory.empty() ? std::filesystem::path(input).stem().string()
                                         : arguments.newCategory;
}

}  // namespace korvet::batch
