#include "dialogs/options_file.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "core/checked.h"
#include "core/constants.h"
#include "core/number_text.h"
#include "core/text_encoding.h"
#include "form/layer_name.h"
#include "form/messages.h"
#include "form/outcome.h"

namespace korvet {
namespace {

constexpr std::size_t SizeLimit = std::size_t{64} * 1024;
constexpr int MaxDecimals = 5;

/// In the order of their lines.
constexpr std::array Layers = {&COptions::DXFTextLayer, &COptions::DXFFoldLayer, &COptions::DXFCutLayer,
                               &COptions::DXFBorderLayer, &COptions::DXFDimensionLayer};

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
    [[noreturn]] void Refuse(const std::string& why) const { throw OptionsFileError(Told(why)); }

    /// What is to be said of the line that was read last, with its file and number.
    [[nodiscard]] std::string Told(const std::string& what) const {
        return file_ + ", line " + std::to_string(next_) + ": \"" +
               Printable(Excerpt(Trimmed(lines_[next_ - 1]))) + "\" " + what;
    }

  private:
    std::vector<std::string_view> lines_;
    std::string file_;
    std::size_t next_ = 0;
};

std::string BytesOf(const COptions& options, const FileStore& files) {
    return files.Read(options.IniFileName, SizeLimit);
}

std::string_view FirstLine(std::string_view text) {
    return Trimmed(text.substr(0, text.find('\n')));
}

/// The name of a layer, or the one that it has in a new program, with a message.
std::string LayerName(LineReader& reader, const std::string& otherwise, MessageBoxes& boxes) {
    std::string name = reader.TrimmedText();
    if (IsLayerName(name)) {
        return name;
    }
    ShowPlain(boxes, reader.Told("cannot be the name of a layer: " + otherwise + " is used"),
              std::string(NoLayerName));
    return otherwise;
}

/// Lines 2 to 17: segments, numbers, language, colours and layers.
void ReadDrawingOptions(LineReader& reader, COptions& options, MessageBoxes& boxes) {
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
    const COptions start;
    for (const auto layer : Layers) {
        options.*layer = LayerName(reader, start.*layer, boxes);
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

/// Reads all lines of a file. Throws OptionsFileError; `options` then stays as it is.
void ReadLines(const std::string& bytes, COptions& options, MessageBoxes& boxes) {
    const std::string text = DecodeText(bytes);
    LineReader reader(text, options.IniFileName);
    if (Trimmed(reader.Text()) != SettingsVersion) {
        reader.Refuse(std::string("is not the version of this program's options files, ") + SettingsVersion);
    }
    COptions read = options;
    ReadDrawingOptions(reader, read, boxes);
    ReadOutputOptions(reader, read);
    options = read;
}

/// Whatever is said of what is read only to see whether it can be read.
class Silence : public MessageBoxes {
  public:
    Answer Show(const MessageBox& /*message*/) override { return Answer::Ok; }
};

/// Whether the bytes are a whole file of this version.
bool CanBeRead(const std::string& bytes, COptions options) {
    Silence silence;
    try {
        ReadLines(bytes, options, silence);
        return true;
    } catch (const OptionsFileError&) {
        return false;
    }
}

/// All lines of the current values.
std::string IniText(const COptions& options, char decimalMark) {
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
    for (const auto layer : Layers) {
        writer.Text(options.*layer);
    }
    for (const double value :
         {options.DXFTextSize, FormerSetting18, FormerSetting19, static_cast<double>(options.PolyMode),
          static_cast<double>(options.PrintOrientation), options.PrintScale,
          static_cast<double>(options.PrintUnits), options.PrintXCalibration, options.PrintYCalibration}) {
        writer.Number(value);
    }
    return writer.Contents();
}

/// Keeps the bytes of the file beside it, under a name that nothing has yet.
void Keep(const COptions& options, FileStore& files, const std::string& bytes, const std::string& suffix) {
    const std::string path = options.IniFileName + suffix;
    std::string kept = path;
    for (int number = 2; !files.Create(kept, bytes); ++number) {
        kept = path + std::to_string(number);
    }
}

/// Keeps the bytes and puts the current values in the place of the file, unless another program has been at
/// it meanwhile: what it holds then is newer than what was examined.
void Replace(const COptions& options, FileStore& files, const std::string& examined,
             const std::string& suffix, char decimalMark) {
    Keep(options, files, examined, suffix);
    if (BytesOf(options, files) == examined) {
        WriteIniFile(options, files, decimalMark);
    }
}

/// Makes sure that there is a file, and that none is left which an earlier version of this program has
/// written. Refuses, with a box, when that can't be done.
Outcome MakeIniFile(const COptions& options, FileStore& files, MessageBoxes& boxes, char decimalMark) {
    const bool exists = files.Exists(options.IniFileName);
    const std::string bytes = exists ? BytesOf(options, files) : "";
    const bool isOld = exists && FirstLine(bytes) != SettingsVersion && MayBeOptionsFile(bytes);
    if (isOld) {
        ShowPlain(boxes, GetMessage(IniFileUpdated, options.Language));
    }
    try {
        if (isOld) {
            Replace(options, files, bytes, ".bak", decimalMark);
        } else if (!exists) {
            (void)CreateIniFile(options, files, decimalMark);
        }
    } catch (const FileError& error) {
        ShowPlain(boxes, error.what());
        return Refused;
    }
    return Passed;
}

}  // namespace

bool MayBeOptionsFile(std::string_view bytes) {
    constexpr std::size_t LongestVersion = 8;
    const std::string_view line = FirstLine(bytes);
    const std::size_t point = line.find('.');
    const auto isDigit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
    const auto isSign = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '.'; };
    return line.size() <= LongestVersion && point != 0 && point < line.size() - 1 &&
           std::all_of(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(point), isDigit) &&
           std::all_of(line.begin(), line.end(), isSign);
}

void WriteIniFile(const COptions& options, FileStore& files, char decimalMark) {
    const std::string text = IniText(options, decimalMark);
    try {
        COptions again = options;
        Silence silence;
        if (text.size() > SizeLimit) {
            throw OptionsFileError("it is larger than " + std::to_string(SizeLimit) + " bytes");
        }
        ReadLines(text, again, silence);
    } catch (const OptionsFileError& error) {
        throw FileError(options.IniFileName +
                        " cannot be written, as it could not be read again: " + error.what());
    }
    files.Write(options.IniFileName, text, Flush::Yes);
}

bool CreateIniFile(const COptions& options, FileStore& files, char decimalMark) {
    return files.Create(options.IniFileName, IniText(options, decimalMark));
}

void ReadOptionsFile(COptions& options, const FileStore& files, MessageBoxes& boxes) {
    ReadLines(BytesOf(options, files), options, boxes);
}

void ReadIniFile(COptions& options, FileStore& files, MessageBoxes& boxes, char decimalMark) {
    if (options.IniFileName.empty()) {
        return;
    }
    if (MakeIniFile(options, files, boxes, decimalMark) == Passed) {
        ReadOptionsFile(options, files, boxes);
    }
}

void SaveIniFile(const COptions& options, FileStore& files, char decimalMark) {
    if (options.IniFileName.empty()) {
        throw FileError("there is no folder that the settings can be kept in");
    }
    if (files.Exists(options.IniFileName)) {
        const std::string bytes = BytesOf(options, files);
        if (!CanBeRead(bytes, options)) {
            Keep(options, files, bytes, ".bak");
        }
    }
    WriteIniFile(options, files, decimalMark);
}

void SetIniFileAside(const COptions& options, FileStore& files, char decimalMark) {
    Replace(options, files, BytesOf(options, files), ".bad", decimalMark);
}

}  // namespace korvet
