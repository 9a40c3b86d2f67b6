#include "printing/table_pages.h"

#include <string>

#include "core/checked.h"

namespace korvet {
namespace {

constexpr double TitlePoints = 14;
constexpr double LinePoints = 12;
constexpr double PointsToAnInch = 72;
constexpr double MarginInches = 0.1968503937007874;

/// The text of the next line, which is taken off `rest`.
std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

/// Lines one below the other, sheet by sheet.
class LinePrinter {
  public:
    explicit LinePrinter(PrintJob& job) : job_(job) {}

    void Print(std::string_view line, double points, FontFace face, bool bold) {
        if (sheet_ == nullptr) {
            NewSheet();
        }
        double height = HeightOf(points);
        if (y_ > Margin() && y_ + height > sheet_->ScaleSize().height - Margin()) {
            NewSheet();
            height = HeightOf(points);
        }
        const int pixels = RoundToInt(points * sheet_->LogicalDpiY() / PointsToAnInch);
        sheet_->TextOut(" " + std::string(line), {RoundToInt(Margin()), RoundToInt(y_)},
                        {-pixels, 0, face, bold}, Black);
        y_ += height;
    }

  private:
    void NewSheet() {
        sheet_ = &job_.NewPage();
        y_ = Margin();
    }

    [[nodiscard]] double Margin() const { return MarginInches * sheet_->LogicalDpiY(); }
    [[nodiscard]] double HeightOf(double points) const { return sheet_->TextExtent("1", points).height; }

    PrintJob& job_;
    DrawingDevice* sheet_ = nullptr;
    double y_ = 0;  ///< of the next line, pixels
};

}  // namespace

void PrintLines(PrintJob& job, std::string_view text) {
    LinePrinter printer(job);
    std::string_view rest = text;
    printer.Print(TakeLine(rest), TitlePoints, FontFace::Arial, true);
    while (!rest.empty()) {
        printer.Print(TakeLine(rest), LinePoints, FontFace::CourierNew, false);
    }
}

}  // namespace korvet
