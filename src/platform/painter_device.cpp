#include "platform/painter_device.h"

#include <QColor>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <QTextLayout>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace korvet {
namespace {

constexpr int PointsPerInch = 72;
constexpr int LargestFont = 20000;  // pixels
constexpr double ClipMargin = 32;   // pixels, beyond the width of every pen
constexpr double MiddleOfPixel = 0.5;

/// A drawing has one size of texts and one to measure by.
constexpr std::size_t FontsKept = 4;
constexpr std::size_t WidthsKept = 5000;

/// Width of the rim of texts: narrower than the space between two digits.
constexpr double TextRim = 1;  // pixels

/// A line of one pixel along a row or a column of pixels covers them whole: the same picture, but for dots
/// that stay sharp, is drawn many times faster without smoothing. The leaders of a dimension grid are such
/// lines.
bool IsCrisp(const QPolygonF& line, double penWidth) {
    return penWidth == 1 && line.size() == 2 && (line[0].x() == line[1].x() || line[0].y() == line[1].y());
}

bool IsNumber(const std::string& text) {
    return text.find_first_not_of(NumberCharacters) == std::string::npos;
}

QFont MakeFont(int pixels, FontFace face, bool bold) {
    QFont font(face == FontFace::Arial ? QStringLiteral("Arial") : QStringLiteral("Courier New"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// A text as it is drawn: what has no picture, and would make a vector file unreadable, leaves a blank.
QString DrawnText(const std::string& text) {
    constexpr char16_t LastCharacter = 0xFFFD;
    QString drawn = QString::fromStdString(text);
    for (QChar& unit : drawn) {
        if (unit.category() == QChar::Other_Control || unit.unicode() > LastCharacter) {
            unit = QLatin1Char(' ');
        }
    }
    return drawn;
}

void StrokeOutline(QPainter& painter, QPointF start, const QFont& font, const std::string& text, QPen pen) {
    QPainterPath outline;
    outline.addText(start, font, DrawnText(text));
    pen.setJoinStyle(Qt::RoundJoin);
    painter.strokePath(outline, pen);
}

}  // namespace

QColor ColorOf(Color color) {
    return {color & 255, (color >> 8) & 255, (color >> 16) & 255};
}

void PrepareDrawing(QPainter& painter) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

PainterDevice::MeasuredFont::MeasuredFont(int size, FontFace itsFace, bool isBold)
    : pixels(size),
      face(itsFace),
      bold(isBold),
      font(MakeFont(size, itsFace, isBold)),
      metrics(font),
      steps((NumberCharacters.size() + 1) * NumberCharacters.size(),
            std::numeric_limits<double>::quiet_NaN()) {}

PainterDevice::MeasuredFont& PainterDevice::FontOf(int pixels, FontFace face, bool bold) const {
    const int size = std::clamp(pixels, 1, LargestFont);
    const auto found = std::find_if(fonts_.begin(), fonts_.end(), [&](const MeasuredFont& font) {
        return font.pixels == size && font.face == face && font.bold == bold;
    });
    if (found != fonts_.end()) {
        return *found;
    }
    if (fonts_.size() == FontsKept) {
        fonts_.erase(fonts_.begin());
    }
    return fonts_.emplace_back(size, face, bold);
}

double PainterDevice::LogicalDpiY() const {
    return DotsPerInch * PixelRatio();
}

PixelSize PainterDevice::TextExtent(const std::string& text, double points) const {
    const double pixels = std::min(std::fabs(points) * LogicalDpiY() / PointsPerInch, double{LargestFont});
    MeasuredFont& font = FontOf(static_cast<int>(pixels));
    return {IsNumber(text) ? font.WidthOfNumber(text) : font.WidthOf(text), font.metrics.height()};
}

double PainterDevice::MeasuredFont::WidthOf(const std::string& text) {
    if (widths.size() == WidthsKept) {
        widths.clear();
    }
    const auto [width, isNew] = widths.try_emplace(text, 0);
    if (isNew) {
        width->second = metrics.horizontalAdvance(DrawnText(text));
    }
    return width->second;
}

/// How far a character of a number is from the one before it depends on these two alone.
double PainterDevice::MeasuredFont::WidthOfNumber(const std::string& text) {
    double width = 0;
    std::size_t before = NumberCharacters.size();  // none
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t here = NumberCharacters.find(text[i]);
        double& step = steps.at(before * NumberCharacters.size() + here);
        if (std::isnan(step)) {
            step = i == 0 ? WidthOf(text.substr(0, 1))
                          : WidthOf(text.substr(i - 1, 2)) - WidthOf(text.substr(i - 1, 1));
        }
        width += step;
        before = here;
    }
    return width;
}

QPen PainterDevice::PenOf(const Pen& pen) const {
    QPen drawn(ColorOf(pen.ForeColor), std::max(pen.DrawWidth, 1) * PixelRatio());
    if (pen.Style == DrawStyle::Dotted) {
        drawn.setStyle(Qt::DotLine);
        drawn.setCapStyle(Qt::FlatCap);
    } else {
        drawn.setCapStyle(Qt::RoundCap);
        drawn.setJoinStyle(Qt::RoundJoin);
    }
    return drawn;
}

std::vector<ClippedLine> PainterDevice::PartsOnDevice(std::span<const PixelPoint> points) const {
    return ClipLine(points, ScaleSize(), ClipMargin);
}

void PainterDevice::Polyline(const Pen& pen, std::span<const PixelPoint> points) {
    QPainter* painter = Painter();
    if (painter == nullptr) {
        return;
    }
    painter->setPen(PenOf(pen));
    for (const ClippedLine& part : PartsOnDevice(points)) {
        QPolygonF line;
        line.reserve(static_cast<qsizetype>(part.size()));
        for (const ClippedPoint& point : part) {
            line.append(QPointF(point.x + MiddleOfPixel, point.y + MiddleOfPixel));
        }
        painter->setRenderHint(QPainter::Antialiasing, !IsCrisp(line, painter->pen().widthF()));
        painter->drawPolyline(line);
    }
}

/// A text set in letters, which takes longer than to draw them.
const QList<QGlyphRun>& PainterDevice::LettersOf(MeasuredFont& font, const std::string& text) {
    if (font.letters.size() == WidthsKept) {
        font.letters.clear();
    }
    const auto [letters, isNew] = font.letters.try_emplace(text);
    if (isNew) {
        QTextLayout layout(DrawnText(text), font.font);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        letters->second = layout.glyphRuns();
    }
    return letters->second;
}

/// Letters over the same letters in the colour of the ground, a step aside. The steps are along the rows and
/// columns of the picture however the text is turned: a letter that moves by whole pixels is drawn once and
/// used again.
void PainterDevice::DrawRimmed(QPainter& painter, MeasuredFont& font, const std::string& text, Color color,
                               Color ground) const {
    const QList<QGlyphRun>& letters = LettersOf(font, text);
    const QTransform turned = painter.worldTransform();
    const QTransform back =
        QTransform(turned.m11(), turned.m12(), turned.m21(), turned.m22(), 0, 0).inverted();
    const double step = std::round(TextRim * PixelRatio());
    const auto draw = [&](QPointF aside) {
        for (const QGlyphRun& run : letters) {
            painter.drawGlyphRun(back.map(aside * step), run);
        }
    };
    painter.setPen(ColorOf(ground));
    for (const QPointF corner : {QPointF(-1, -1), QPointF(1, -1), QPointF(-1, 1), QPointF(1, 1)}) {
        draw(corner);  // strokes of letters are long enough that these four leave no gap
    }
    painter.setPen(ColorOf(color));
    draw({0, 0});
}

void PainterDevice::TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) {
    QPainter* painter = Painter();
    if (painter == nullptr) {
        return;
    }
    MeasuredFont& drawn =
        FontOf(static_cast<int>(std::min(std::labs(font.lfHeight), long{LargestFont})), font.face, font.bold);
    const QPointF start(0, drawn.metrics.ascent());
    painter->save();
    painter->translate(corner.x, corner.y);
    painter->rotate(-font.lfEscapement / 10.0);
    const bool rimmed = textRim_ && std::labs(font.lfHeight) >= SmallestReadableFont;
    if (rimmed && painter->paintEngine()->type() != QPaintEngine::SVG) {
        DrawRimmed(*painter, drawn, text, color, *textRim_);
    } else {
        if (rimmed) {
            // The text stays a text, so that a program that opens the picture can find and change it.
            StrokeOutline(*painter, start, drawn.font, text, QPen(ColorOf(*textRim_), 2 * TextRim));
        }
        painter->setFont(drawn.font);
        painter->setPen(ColorOf(color));
        painter->drawText(start, DrawnText(text));
    }
    painter->restore();
}

}  // namespace korvet
