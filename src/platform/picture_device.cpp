#include "platform/picture_device.h"

#include <QBuffer>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <QSvgGenerator>
#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <stdexcept>

#include "core/constants.h"
#include "platform/line_clip.h"

namespace korvet {
namespace {

constexpr int DotsPerInch = 96;
constexpr int PointsPerInch = 72;
constexpr int LargestFont = 20000;  // pixels
constexpr double ClipMargin = 32;   // pixels, beyond the width of every pen

/// Fonts live in a graphics application. A program without one gets one that needs no screen, and keeps it to
/// its end.
void EnsureGraphicsApplication() {
    if (QCoreApplication::instance() != nullptr) {
        if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) {
            throw std::logic_error("a program that makes pictures needs a graphics application");
        }
        return;
    }
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#endif
    static int argumentCount = 1;
    static char programName[] = "korvet";
    static char* arguments[] = {programName, nullptr};
    // What it says of a missing desktop at its start is no concern of a program that only makes pictures.
    const auto handler = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static const QGuiApplication application(argumentCount, arguments);
    qInstallMessageHandler(handler);
    std::setlocale(LC_NUMERIC, "C");  // the application has taken over the user's decimal mark
}

QColor ColorOf(Color color) {
    return {color & 255, (color >> 8) & 255, (color >> 16) & 255};
}

QPen PenOf(const Pen& pen) {
    QPen drawn(ColorOf(pen.ForeColor), std::max(pen.DrawWidth, 1));
    if (pen.Style == DrawStyle::Dotted) {
        drawn.setStyle(Qt::DotLine);
        drawn.setCapStyle(Qt::FlatCap);
    } else {
        drawn.setCapStyle(Qt::RoundCap);
        drawn.setJoinStyle(Qt::RoundJoin);
    }
    return drawn;
}

QFont FontOf(int pixels) {
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(std::clamp(pixels, 1, LargestFont));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

/// What the painter draws on: an image, or the bytes of a vector file.
class PictureDevice::Canvas {
  public:
    Canvas(PictureFormat format, int width, int height) : format_(format), size_(width, height) {
        EnsureGraphicsApplication();
        if (format == PictureFormat::Png) {
            image_ = QImage(size_, QImage::Format_RGB32);
            exists_ = !image_.isNull();
        } else {
            exists_ = width > 0 && height > 0;
        }
    }

    /// Begins the picture anew.
    void Clear(Color backColor) {
        if (!exists_) {
            return;
        }
        End();
        if (format_ == PictureFormat::Png) {
            painter_ = std::make_unique<QPainter>(&image_);
        } else {
            BeginVectors();
            painter_ = std::make_unique<QPainter>(generator_.get());
        }
        painter_->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter_->fillRect(QRect(QPoint(0, 0), size_), ColorOf(backColor));
    }

    /// The painter of the picture; null when there is no picture or it has ended.
    [[nodiscard]] QPainter* Painter() const { return painter_.get(); }

    [[nodiscard]] PixelSize Size() const {
        if (!exists_) {
            return {};
        }
        return {static_cast<double>(size_.width()), static_cast<double>(size_.height())};
    }

    std::string Bytes() {
        End();
        if (format_ == PictureFormat::Svg) {
            return buffer_ ? buffer_->data().toStdString() : std::string();
        }
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        return exists_ && image_.save(&file, "PNG") ? file.data().toStdString() : std::string();
    }

  private:
    void BeginVectors() {
        buffer_ = std::make_unique<QBuffer>();
        generator_ = std::make_unique<QSvgGenerator>();
        generator_->setOutputDevice(buffer_.get());
        generator_->setSize(size_);
        generator_->setViewBox(QRect(QPoint(0, 0), size_));
        generator_->setResolution(DotsPerInch);
        generator_->setTitle(QString::fromUtf8(ProductTitle.data(), ProductTitle.size()));
        generator_->setDescription(QString());
    }

    void End() { painter_.reset(); }

    PictureFormat format_;
    QSize size_;
    bool exists_ = false;
    QImage image_;
    std::unique_ptr<QBuffer> buffer_;
    std::unique_ptr<QSvgGenerator> generator_;
    std::unique_ptr<QPainter> painter_;  // last, so that it ends first
};

PictureDevice::PictureDevice(PictureFormat format, int width, int height)
    : canvas_(std::make_unique<Canvas>(format, width, height)) {
    canvas_->Clear(Black);
}

PictureDevice::~PictureDevice() = default;

void PictureDevice::Cls(Color backColor) {
    canvas_->Clear(backColor);
}

PixelSize PictureDevice::ScaleSize() const {
    return canvas_->Size();
}

double PictureDevice::LogicalDpiY() const {
    return DotsPerInch;
}

PixelSize PictureDevice::TextExtent(const std::string& text, double points) const {
    const double pixels = std::min(std::fabs(points) * DotsPerInch / PointsPerInch, double{LargestFont});
    const QFontMetricsF metrics(FontOf(static_cast<int>(pixels)));
    return {metrics.horizontalAdvance(QString::fromStdString(text)), metrics.height()};
}

void PictureDevice::Polyline(const Pen& pen, std::span<const PixelPoint> points) {
    QPainter* painter = canvas_->Painter();
    if (painter == nullptr) {
        return;
    }
    painter->setPen(PenOf(pen));
    for (const std::vector<ClippedPoint>& part : ClipLine(points, ScaleSize(), ClipMargin)) {
        QPolygonF line;
        for (const ClippedPoint& point : part) {
            line.append(QPointF(point.x + 0.5, point.y + 0.5));  // the middle of the pixel
        }
        painter->drawPolyline(line);
    }
}

void PictureDevice::TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) {
    QPainter* painter = canvas_->Painter();
    if (painter == nullptr) {
        return;
    }
    const QFont drawn = FontOf(static_cast<int>(std::min(std::labs(font.lfHeight), long{LargestFont})));
    painter->save();
    painter->setFont(drawn);
    painter->setPen(ColorOf(color));
    painter->translate(corner.x, corner.y);
    painter->rotate(-font.lfEscapement / 10.0);
    painter->drawText(QPointF(0, QFontMetricsF(drawn).ascent()), QString::fromStdString(text));
    painter->restore();
}

std::string PictureDevice::Bytes() {
    std::string bytes = canvas_->Bytes();
    if (bytes.empty()) {
        throw FileError("there is no memory for a picture of this size");
    }
    return bytes;
}

void PictureDevice::Save(const std::string& path, FileStore& files) {
    files.Write(path, Bytes(), Flush::No);
}

}  // namespace korvet
