// Lines and texts of a drawing on a painter: the part that screens, pictures and sheets have in common.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QList>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "display/drawing_device.h"
#include "platform/line_clip.h"

class QColor;
class QPainter;
class QPen;

namespace korvet {

/// Logical pixels to the inch, on screens and in pictures.
inline constexpr int DotsPerInch = 96;

/// What numbers consist of. A large pattern has millions of them, and few twice.
inline constexpr std::string_view NumberCharacters = "0123456789.,- ";

/// A colour of the drawing as the toolkit has it.
QColor ColorOf(Color color);

/// The antialiased look that every drawing has.
void PrepareDrawing(QPainter& painter);

/// A device whose pixels a painter paints. Where a logical pixel of the desktop is made of several, there are
/// that many more dots to the inch, and lines are as much wider.
class PainterDevice : public DrawingDevice {
  public:
    [[nodiscard]] PixelSize OuterSize() const override { return NextSize(); }
    [[nodiscard]] double LogicalDpiY() const override;
    [[nodiscard]] PixelSize TextExtent(const std::string& text, double points) const override;
    void Polyline(const Pen& pen, std::span<const PixelPoint> points) override;
    void TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) override;

  protected:
    /// The painter of the picture; null while there is none.
    [[nodiscard]] virtual QPainter* Painter() = 0;

    /// Pixels of the device to a logical pixel.
    [[nodiscard]] virtual double PixelRatio() const { return 1; }

    /// The pen as the painter takes it.
    [[nodiscard]] QPen PenOf(const Pen& pen) const;

    /// What of a line lies on the device or close to it, in its pixels: a painter takes no coordinates of
    /// millions.
    [[nodiscard]] std::vector<ClippedLine> PartsOnDevice(std::span<const PixelPoint> points) const;

    /// From now on every text has a thin rim of this colour under its letters, so that a number that stands
    /// on a line can be read. Without it, as on paper, letters alone are drawn.
    void RimTexts(Color ground) { textRim_ = ground; }

  private:
    /// A font with its metrics and the widths of texts measured in it: to measure takes as long as to draw,
    /// every text is measured several times, and most numbers of a pattern come again.
    struct MeasuredFont {
        MeasuredFont(int pixels, FontFace face, bool bold);

        double WidthOf(const std::string& text);
        double WidthOfNumber(const std::string& text);  ///< of NumberCharacters alone

        int pixels;
        FontFace face;
        bool bold;
        QFont font;
        QFontMetricsF metrics;
        std::unordered_map<std::string, double> widths;
        std::vector<double> steps;  ///< to each of NumberCharacters from each, and from none; NaN: not known
        std::unordered_map<std::string, QList<QGlyphRun>> letters;  ///< of texts that have a rim, set
    };

    [[nodiscard]] MeasuredFont& FontOf(int pixels, FontFace face = FontFace::Arial, bool bold = false) const;

    static const QList<QGlyphRun>& LettersOf(MeasuredFont& font, const std::string& text);
    void DrawRimmed(QPainter& painter, MeasuredFont& font, const std::string& text, Color color,
                    Color ground) const;

    mutable std::vector<MeasuredFont> fonts_;  ///< those used last
    std::optional<Color> textRim_;
};

}  // namespace korvet
