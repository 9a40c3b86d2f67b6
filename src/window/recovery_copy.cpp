#include "window/recovery_copy.h"

#include <algorithm>
#include <charconv>

#include "core/number_text.h"
#include "window/parameter_file.h"
#include "window/saving.h"

namespace korvet {
namespace {

constexpr std::string_view FirstLine = "Korvet Development recovery copy 1";
constexpr std::string_view LastLine = "End";

/// More views than anybody makes between two saves.
constexpr int MostViews = 1000000;

void AddLine(std::string& text, std::string_view line) {
    text.append(line).append("\n");
}

/// The length stands before a text, which may hold anything.
void AddText(std::string& text, std::string_view value) {
    AddLine(text, std::to_string(value.size()));
    AddLine(text, value);
}

/// Takes the parts of a copy one after the other.
class CopyReader {
  public:
    explicit CopyReader(std::string_view bytes) : rest_(bytes) {}

    std::string_view Line() {
        const std::size_t end = rest_.find('\n');
        if (end == std::string_view::npos) {
            Refuse();
        }
        const std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        return line;
    }

    void Expect(std::string_view line) {
        if (Line() != line) {
            Refuse();
        }
    }

    template <typename T>
    T Whole(T most) {
        const std::string_view line = Line();
        T value = 0;
        const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), value);
        if (error != std::errc() || end != line.data() + line.size() || value < 0 || value > most) {
            Refuse();
        }
        return value;
    }

    double Number() {
        const auto number = ParseNumber(Line());
        if (!number) {
            Refuse();
        }
        return *number;
    }

    std::string Text() {
        const std::size_t length = Whole(rest_.size());
        if (length >= rest_.size() || rest_[length] != '\n') {
            Refuse();
        }
        std::string text(rest_.substr(0, length));
        rest_.remove_prefix(length + 1);
        return text;
    }

    void ExpectEnd() const {
        if (!rest_.empty()) {
            Refuse();
        }
    }

  private:
    [[noreturn]] static void Refuse() { throw ParameterFileError("this is no whole recovery copy"); }

    std::string_view rest_;
};

constexpr double CViewPoint::*Coordinates[] = {&CViewPoint::AroundZ, &CViewPoint::FromXY, &CViewPoint::PanX,
                                               &CViewPoint::PanY, &CViewPoint::ZoomFactor};

CViewPoint ReadView(CopyReader& reader) {
    CViewPoint view;
    for (const auto coordinate : Coordinates) {
        view.*coordinate = reader.Number();
    }
    view.Patternview = reader.Whole(1) == 1;
    return view;
}

}  // namespace

std::string RecoveryCopy::Compose() const {
    std::string text;
    AddLine(text, FirstLine);
    AddText(text, path);
    AddText(text, fingerprint ? std::to_string(*fingerprint) : "");
    AddText(text, textSize);
    AddLine(text, std::to_string(views.size()));
    for (const CViewPoint& view : views) {
        for (const auto coordinate : Coordinates) {
            AddLine(text, ShortestText(view.*coordinate));
        }
        AddLine(text, view.Patternview ? "1" : "0");
    }
    AddText(text, parameters);
    AddLine(text, LastLine);
    return text;
}

RecoveryCopy RecoveryCopy::Parse(std::string_view bytes) {
    CopyReader reader(bytes);
    reader.Expect(FirstLine);
    RecoveryCopy copy;
    copy.path = reader.Text();
    if (const std::string fingerprint = reader.Text(); !fingerprint.empty()) {
        copy.fingerprint = CopyReader(fingerprint + "\n").Whole(~std::uint64_t{0});
    }
    copy.textSize = reader.Text();
    const int views = reader.Whole(MostViews);
    for (int i = 0; i < views; ++i) {
        copy.views.push_back(ReadView(reader));
    }
    copy.parameters = reader.Text();
    reader.Expect(LastLine);
    reader.ExpectEnd();
    return copy;
}

std::string RecoveryCopy::Category() const {
    CKvtFile file;
    file.ParseHeader(parameters);
    return file.Category;
}

RecoveryCopy CopyOf(const CFittingWindow& window, MeshInCopy mesh) {
    CKvtFile file = ParameterFileOf(window);
    if (mesh == MeshInCopy::LeftOut) {
        file.Mesh.reset();
    }
    RecoveryCopy copy;
    if (!HasNoFile(window)) {
        copy.path = window.controls.caption;
    }
    if (window.knownFile && window.knownFile->path == copy.path) {
        copy.fingerprint = window.knownFile->fingerprint;
    }
    copy.textSize = window.controls.txtTextSize.text;
    copy.views.assign(window.views->begin(), window.views->end());
    copy.parameters = file.Compose('.');
    return copy;
}

void Restore(CFittingWindow& window, const RecoveryCopy& copy) {
    CKvtFile file = EmptyFileOf(window);
    file.Parse(copy.parameters, window.Context().options.DefaultSegs);
    TakeParameters(window, file, Filling::AsItStands);
    window.comment1 = file.Comment1;
    window.comment2 = file.Comment2;
    window.controls.txtTextSize.text = copy.textSize;
    window.controls.txtTextSize.textColor = Red;
    for (const CViewPoint& view : copy.views) {
        window.views->Add(view);
    }
    if (!copy.path.empty()) {
        window.controls.caption = copy.path;
    }
    if (copy.fingerprint) {
        window.knownFile = {copy.path, *copy.fingerprint};
    }
    window.saved.reset();
    window.edited = true;
}

}  // namespace korvet
