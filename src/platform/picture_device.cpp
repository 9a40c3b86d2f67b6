#include "platform/picture_device.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>
#include <memory>
#include <system_error>
#include <thread>

#include <png.h>

#include "core/constants.h"
#include "platform/graphics_application.h"

namespace korvet {
namespace {

/// The bytes of a PNG; none without the memory. Lines on an even ground pack well as they are: what the
/// toolkit does to every row first takes longer than all else of a large picture.
std::string PngOf(const QImage& image) {
    png_image png = {};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(image.width());
    png.height = static_cast<png_uint_32>(image.height());
    png.format = PNG_FORMAT_RGB;
    png.flags = PNG_IMAGE_FLAG_FAST;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(png);
    const auto bytes =
        std::make_unique_for_overwrite<char[]>(size);  // of which what is not written takes none
    const auto stride = static_cast<png_int_32>(image.bytesPerLine());
    const bool written =
        png_image_write_to_memory(&png, bytes.get(), &size, 0, image.constBits(), stride, nullptr) != 0;
    return written ? std::string(bytes.get(), size) : std::string();
}

/// The toolkit draws large parts of a picture in threads, and waits for ever where the system gives none.
void RequireThread() {
    try {
        const std::jthread trial([] {});
    } catch (const std::system_error&) {
        throw FileError("the system gives no thread to draw the picture with");
    }
}

}  // namespace

/// What the painter draws on: an image, or the bytes of a vector file.
class PictureDevice::Canvas {
  public:
    Canvas(PictureFormat format, int width, int height) : format_(format), size_(width, height) {
        EnsureGraphicsApplication();
        if (format == PictureFormat::Png) {
            image_ = QImage(size_, QImage::Format_RGB888);
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
            image_.fill(ColorOf(backColor));  // a painter would wait for threads that have no memory
            painter_ = std::make_unique<QPainter>(&image_);
        } else {
            BeginVectors();
            painter_ = std::make_unique<QPainter>(generator_.get());
            painter_->fillRect(QRect(QPoint(0, 0), size_), ColorOf(backColor));
        }
        PrepareDrawing(*painter_);
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
        return exists_ ? PngOf(image_) : std::string();
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
    if (format == PictureFormat::Png) {
        RequireThread();
    }
    Cls(Black);
}

PictureDevice::~PictureDevice() = default;

void PictureDevice::Cls(Color backColor) {
    canvas_->Clear(backColor);
    RimTexts(backColor);
    lines_ = {};
}

void PictureDevice::Polyline(const Pen& pen, std::span<const PixelPoint> points) {
    PainterDevice::Polyline(pen, lines_.Take(pen, points));
}

PixelSize PictureDevice::ScaleSize() const {
    return canvas_->Size();
}

QPainter* PictureDevice::Painter() {
    return canvas_->Painter();
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
