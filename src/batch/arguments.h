// The command line of korvet-batch.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "core/dimensions.h"

namespace korvet::batch {

/// The command line asks for something that can't be; what() says what. Ends in exit status 2.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

enum class ViewChoice : std::uint8_t { AsSaved, Model, Pattern };

struct PictureSize {
    int width = 800;
    int height = 600;
};

/// One thing to work on: a parameter file, a new window, or a row of a list of fittings.
struct BatchInput {
    std::string label;     ///< what messages call it
    std::string name;      ///< what {name} stands for
    std::string file;      ///< the parameter file; empty for a new window
    std::string category;  ///< of a new window
    int type = 0;          ///< of a new window, from 1; 0 is the type it opens with
    int select = 0;        ///< pattern option, from 1; 0 leaves it
    std::vector<std::pair<std::string, std::string>> sets;  ///< names and values, in their order
    bool isRow = false;                                     ///< what is wrong with it is no wrong usage
    std::string fault = {};                                 ///< why a row can't be worked on; empty if it can
};

struct Arguments {
    std::vector<std::string> inputs;  ///< parameter files
    std::string fittings;             ///< list of fittings instead
    std::vector<BatchInput> rows;     ///< of that list
    int jobs = 1;                     ///< inputs that are worked on at the same time
    std::string newCategory;          ///< a new window instead of a file
    int type = 0;                     ///< of the new window, from 1; 0 is the type it opens with
    bool sample = false;              ///< fill the new window with the sample sizes of its type
    std::string meshFile;             ///< drawing file with the mesh of the new window
    int select = 0;                   ///< pattern option, from 1; 0 leaves it
    std::vector<std::pair<std::string, std::string>> sets;
    ViewChoice view = ViewChoice::AsSaved;
    std::string settings;  ///< options file
    bool list = false;

    std::string json;  ///< "-" is standard output
    std::string dxf;
    std::string hpgl;
    std::string save;
    std::string png;
    std::string svg;
    std::string table;
    std::string pdf;
    PictureSize size;

    int paper = 0;  ///< of the PDF, its number
    bool landscape = false;
    bool inches = false;              ///< a unit of the fitting is an inch, whatever the settings say
    bool millimetres = false;         ///< the same of a millimetre
    bool fit = false;                 ///< the view on one sheet, else the pattern in full size
    std::vector<std::string> sheets;  ///< all when there are none

    std::vector<CDimension> dimensionLines;  ///< to add to the pattern, in their order

    bool check = false;     ///< the cut file of the pattern
    bool complete = false;  ///< boxes of the export dialog to tick
    bool polylines = false;
    bool mesh = false;
    std::optional<bool> diagonals;  ///< to tick or to clear; absent they are as the dialog has them
    std::optional<bool> dimensions;
    std::optional<bool> label;
};

/// Reads the command line. Nothing when it only asked for help, which has then been printed. Throws
/// UsageError.
std::optional<Arguments> ParseArguments(int argc, const char* const* argv);

/// What there is to work on, with what the command line sets for all of it.
std::vector<BatchInput> InputsOf(const Arguments& arguments);

/// The path of an output for one input: `pattern` with each {name} replaced.
std::string OutputPath(const std::string& pattern, const std::string& name);

}  // namespace korvet::batch
