// Pictures of a drawing as files: PNG and SVG.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/file_store.h"
#include "platform/lines_once.h"
#include "platform/painter_device.h"

namespace korvet {

enum class PictureFormat { Png, Svg };

/// A drawing surface of whole pixels, 96 to the inch, that becomes a file. Nothing of the picture needs a
/// screen. A surface too large for the memory counts as one of no size, and saving it fails.
class PictureDevice final : public PainterDevice {
  public:
    /// Width and height in pixels. The first picture of a program without a graphics application starts one
    /// of its own, for the fonts.
    PictureDevice(PictureFormat format, int width, int height);
    ~PictureDevice() override;

    void Cls(Color backColor) override;

    /// Lines that lie on one another are drawn once.
    void Polyline(const Pen& pen, std::span<const PixelPoint> points) override;
    [[nodiscard]] PixelSize ScaleSize() const override;

    /// The picture as the bytes of a file. That ends it: drawing goes on with the next Cls. Throws FileError
    /// when there is no picture.
    [[nodiscard]] std::string Bytes();

    /// Writes Bytes to a file. Throws FileError.
    void Save(const std::string& path, FileStore& files);

  protected:
    [[nodiscard]] QPainter* Painter() override;

  private:
    class Canvas;
    std::unique_ptr<Canvas> canvas_;
    LinesOnce lines_;
};

}  // namespace korvet
