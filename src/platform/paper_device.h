// A sheet of paper to draw on.
#pragma once

#include <QPainterPath>
#include <cstddef>
#include <memory>

#include "platform/lines_once.h"
#include "platform/painter_device.h"

namespace korvet {

/// Dots of a sheet to the inch: the ends of a line come to lie within two thousandths of a millimetre.
inline constexpr int PaperDotsPerInch = 7200;

/// The printable part of a sheet. Widths of pens count in dots of 300 to the inch, as wide as an ordinary
/// printer can draw them. Lines wait to be drawn many at a time, which a large fitting needs: the sheet is
/// whole when it has been finished.
class PaperDevice final : public PainterDevice {
  public:
    /// `size` in dots of PaperDotsPerInch, as the painter counts too. Without a painter it only measures.
    PaperDevice(QPainter* painter, PixelSize size) : painter_(painter), size_(size) {}

    /// Draws the lines that wait, before the painter goes on to the next sheet. It may run out of memory, as
    /// a destructor may not.
    void Finish();

    void Cls(Color /*backColor*/) override {}  // paper has its colour
    [[nodiscard]] PixelSize ScaleSize() const override { return size_; }
    [[nodiscard]] double LogicalDpiY() const override { return PaperDotsPerInch; }
    void Polyline(const Pen& pen, std::span<const PixelPoint> points) override;
    void TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) override;

  protected:
    [[nodiscard]] QPainter* Painter() override { return painter_; }
    [[nodiscard]] double PixelRatio() const override { return PaperDotsPerInch / 300.0; }

  private:
    QPainter* painter_;
    PixelSize size_;
    LinesOnce lines_;
    QPainterPath waiting_;  ///< lines to be drawn with pen_
    Pen pen_;
};

/// Memory for the end of a document that is given up because there is no more. Its painter packs what was
/// drawn before it goes, and throws from its destructor when it cannot, which would end the program. It is to
/// stand behind the painter, so that it is let go first.
class EndingReserve {
    /// Twice the ten million bytes that the toolkit packs at a time, and some for the rest.
    static constexpr std::size_t Bytes = std::size_t{32} * 1024 * 1024;

    std::unique_ptr<std::byte[]> memory_ = std::make_unique_for_overwrite<std::byte[]>(Bytes);
};

}  // namespace korvet
