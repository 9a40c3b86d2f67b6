#include "dialogs/options_file.h"

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "core/checked.h"
#include "core/constants.h"
#include "core/number_text.h"
#include "core/text_encoding.h"
#include "form/messages.h"
#include "form/outcome.h"

namespace korvet {
namespace {

constexpr std::size_t SizeLimit = std::size_t{64} * 1024;
constexpr int MaxDecimals = 5;

/// Two lines of settings that no longer exist. They keep their places, since a line's number is its key.
constexpr double FormerSetting18 = 200.0;
constexpr double FormerSetting19 = 150.0;

class LineWriter {
  public:
    explicit LineWriter(char decimalMark) : decimalMark_(decimalMark) {}

    void Text(std::string_view text) { contents_ += OnOneLine(text) + "\r\n"; }

    void Number(double value) {
        const std::string digits = NumberText(value, decimalMark_);
        contents_ += (digits.front() == '-' ? "" : " ") + digits + " \r\n";
    }

    [[nodiscard]] const std::string& Contents() const { return contents_; }

  private:
    char decimalMark_;
    std::string contents_;
};

/// The lines of a text without their ends. What follows the last line end is a line when it is not empty.
std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        lines.push_back(line);
    }
    return lines;
}

/// Hands out the lines one by one, and says where it stopped when one can't be used.
class LineReader {
  public:
    LineReader(std::string_view text, std::string file) : lines_(LinesOf(text)), file_(std::move(file)) {}

    [[nodiscard]] bool AtEnd() const { return next_ == lines_.size(); }

    std::string Text() {
        if (AtEnd()) {
            throw OptionsFileError(file_ + ", line " + std::to_string(next_ + 1) +
                                   ": the file ends before it");
        }
        return std::string(lines_[next_++]);
    }

    std::string TrimmedText() { return std::string(Trimmed(Text())); }

    /// The line that was read last, when it is a number.
    [[nodiscard]] std::optional<double> LastAsNumber() const { return ParseFileNumber(lines_[next_ - 1]); }

    double Number() {
        Text();
        const auto value = LastAsNumber();
        if (!value) {
            Refuse("is not a number");
        }
        return *value;
    }

    /// A factor or a text height that is divided by or drawn with.
    double PositiveNumber() {
        const double value = Number();
        if (!(value > 0)) {
            Refuse("must be greater than 0");
        }
        return value;
    }

    /// A text height: texts are drawn in single precision.
    double Single(double value) const {
        if (std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
            Refuse("is too large");
        }
        return value;
    }

    /// The value of a line as an integer of type T, halves to even.
    template <typename T>
    T Integer(double value) const {
        const double rounded = std::nearbyint(value);
        if (rounded < std::numeric_limits<T>::min() || rounded > std::numeric_limits<T>::max()) {
            Refuse("is too large");
        }
        return static_cast<T>(rounded);
    }

    template <typename T>
    T Integer() {
        return Integer<T>(Number());
    }

    int Segs() {
        const double value = Number();
        if (value < MinSegs || value > MaxSegs || value != std::trunc(value)) {
            Refuse("must be a whole number from 1 to 100000");
        }
        return static_cast<int>(value);
    }

    std::int16_t Decimals() {
        const auto value = Integer<std::int16_t>();
        if (value < 0 || value > MaxDecimals) {
            Refuse("must lie between 0 and 5");
        }
        return value;
    }

    /// Throws the error about the line that was read last.
    [[noreturn]] void Refuse(const char* why) const {
        throw OptionsFileError(file_ + ", line " + std::to_string(next_) + ": \"" +
                               std::string(Trimmed(lines_[next_ - 1])) + "\" " + why);
    }

  private:
    std::vector<std::string_view> lines_;
    std::string file_;
    std::size_t next_ = 0;
};

std::string ReadText(const COptions& options, const FileStore& files) {
    return DecodeText(files.Read(options.IniFileName, SizeLimit));
}

bool IsThisVersion(std::string_view text) {
    return Trimmed(text.substr(0, text.find('\n'))) == SettingsVersion;
}

/// Makes sure that there is a file of this version. Refuses when it could not be made.
Outcome CheckIniFile(const COptions& options, FileStore& files, MessageBoxes& boxes, char decimalMark) {
    const bool exists = files.Exists(options.IniFileName);
    if (exists && IsThisVersion(ReadText(options, files))) {
        return Passed;
    }
    if (exists) {
        ShowPlain(boxes, GetMessage(IniFileUpdated, options.Language));
    }
    try {
        if (exists) {
            files.Write(options.IniFileName + ".bak", files.Read(options.IniFileName, SizeLimit), Flush::Yes);
        }
        WriteIniFile(options, files, decimalMark);
    } catch (const FileError& error) {
        ShowPlain(boxes, error.what());
        return Refused;
    }
    return Passed;
}

/// Lines 2 to 17: segments, numbers, language, colours and layers.
void ReadDrawingOptions(LineReader& reader, COptions& options) {
    options.DefaultSegs = reader.Segs();
    options.Decimals = reader.Decimals();
    options.Language = reader.TrimmedText();
    options.DisplayTextSize = reader.Single(reader.Number());
    DisplayColors& colors = options.Colors;
    for (Color* color :
         {&colors.DisplayFoldColor, &colors.DisplayCutColor, &colors.DisplayTextColor,
          &colors.DisplayBackColor, &colors.DisplayDimensionColor, &colors.DisplayBorderColor}) {
        *color = reader.Integer<Color>();
    }
    for (std::string* layer : {&options.DXFTextLayer, &options.DXFFoldLayer, &options.DXFCutLayer,
                               &options.DXFBorderLayer, &options.DXFDimensionLayer}) {
        *layer = reader.TrimmedText();
    }
    options.DXFTextSize = reader.Single(reader.PositiveNumber());
}

/// Lines 18 to 25.
void ReadOutputOptions(LineReader& reader, COptions& options) {
    reader.Text();
    reader.Text();
    // Files that end after line 19, or have a word in line 20, are older than the setting. The line at hand
    // is then still line 19; the lines behind it fail in any case.
    if (!reader.AtEnd()) {
        reader.Text();
    }
    if (const auto polyMode = reader.LastAsNumber()) {
        options.PolyMode = reader.Integer<std::int16_t>(*polyMode);
    }
    options.PrintOrientation = reader.Integer<std::int16_t>();
    options.PrintScale = reader.Number();
    options.PrintUnits = reader.Integer<std::int16_t>();
    options.PrintXCalibration = reader.PositiveNumber();
    options.PrintYCalibration = reader.PositiveNumber();
}

}  // namespace

void WriteIniFile(const COptions& options, FileStore& files, char decimalMark) {
    const DisplayColors& colors = options.Colors;
    LineWriter writer(decimalMark);
    writer.Text(SettingsVersion);
    writer.Number(options.DefaultSegs);
    writer.Number(options.Decimals);
    writer.Text(options.Language);
    writer.Number(options.DisplayTextSize);
    for (const Color color :
         {colors.DisplayFoldColor, colors.DisplayCutColor, colors.DisplayTextColor, colors.DisplayBackColor,
          colors.DisplayDimensionColor, colors.DisplayBorderColor}) {
        writer.Number(color);
    }
    for (const std::string* layer : {&options.DXFTextLayer, &options.DXFFoldLayer, &options.DXFCutLayer,
                                     &options.DXFBorderLayer, &options.DXFDimensionLayer}) {
        writer.Text(*layer);
    }
    for (const double value :
         {options.DXFTextSize, FormerSetting18, FormerSetting19, static_cast<double>(options.PolyMode),
          static_cast<double>(options.PrintOrientation), options.PrintScale,
          static_cast<double>(options.PrintUnits), options.PrintXCalibration, options.PrintYCalibration}) {
        writer.Number(value);
    }
    files.Write(options.IniFileName, writer.Contents(), Flush::Yes);
}

void ReadIniFile(COptions& options, FileStore& files, MessageBoxes& boxes, char decimalMark) {
    if (CheckIniFile(options, files, boxes, decimalMark)) {
        return;
    }
    const std::string text = ReadText(options, files);
    LineReader reader(text, options.IniFileName);
    reader.Text();
    COptions read = options;
    ReadDrawingOptions(reader, read);
    ReadOutputOptions(reader, read);
    options = read;
}

}  // namespace korvet
