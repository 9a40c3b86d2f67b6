// A sheet of paper to draw on.
#pragma once

#include "platform/painter_device.h"

namespace korvet {

/// Dots of a sheet to the inch: the ends of a line come to lie within two thousandths of a millimetre.
inline constexpr int PaperDotsPerInch = 7200;

/// The printable part of a sheet. Widths of pens count in dots of 300 to the inch, as wide as an ordinary
/// printer can draw them.
class PaperDevice final : public PainterDevice {
  public:
    /// `size` in dots of PaperDotsPerInch, as the painter counts too. Without a painter it only measures.
    PaperDevice(QPainter* painter, PixelSize size) : painter_(painter), size_(size) {}

    void Cls(Color /*backColor*/) override {}  // paper has its colour
    [[nodiscard]] PixelSize ScaleSize() const override { return size_; }
    [[nodiscard]] double LogicalDpiY() const override { return PaperDotsPerInch; }

  protected:
    [[nodiscard]] QPainter* Painter() override { return painter_; }
    [[nodiscard]] double PixelRatio() const override { return PaperDotsPerInch / 300.0; }

    /// A dot is too small to have a middle, and whole numbers halve the file of a large fitting.
    [[nodiscard]] double PlaceInPixel() const override { return 0; }

  private:
    QPainter* painter_;
    PixelSize size_;
};

}  // namespace korvet
