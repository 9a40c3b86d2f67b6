// A drawing that is kept before it is shown.
#pragma once

#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "display/bounds.h"
#include "display/drawing_device.h"

namespace korvet {

/// Takes a drawing down, to be played on its device once all of it is known to be good, and to be measured
/// before. It measures texts as the device does and is as large as the device's next picture.
class DrawingRecord final : public DrawingDevice {
  public:
    /// `device` must outlive the record.
    explicit DrawingRecord(const DrawingDevice& device) : device_(&device) {}

    /// Repeats on a device all lines in their order, and then all texts, so that no line runs over a text
    /// that was drawn before it. A text that would lie on the same one is left out, and where letters are too
    /// small to be read one that would lie on as many others: a grid has thousands of both. Clearing and
    /// pages are the caller's matter.
    void PlayOn(DrawingDevice& device) const;

    /// The box about all lines and the boxes of all texts, in pixels; nothing when there are none.
    [[nodiscard]] std::optional<Bounds> Extent() const;

    /// Forgets all lines and texts.
    void Clear();

    void Cls(Color /*backColor*/) override { Clear(); }
    [[nodiscard]] PixelSize ScaleSize() const override { return device_->NextSize(); }
    [[nodiscard]] PixelSize OuterSize() const override { return device_->OuterSize(); }
    [[nodiscard]] double LogicalDpiY() const override { return device_->LogicalDpiY(); }
    [[nodiscard]] PixelSize TextExtent(const std::string& text, double points) const override {
        return device_->TextExtent(text, points);
    }
    void Polyline(const Pen& pen, std::span<const PixelPoint> points) override;
    void TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) override;

  private:
    struct Line {
        Pen pen;
        std::size_t count;  ///< its points are the next in points_
    };
    struct Text {
        std::string text;
        PixelPoint corner;
        TextFont font;
        Color color;
    };
    struct HashOfText {
        std::size_t operator()(const Text& text) const;
    };
    struct LooksTheSame {
        bool operator()(const Text& a, const Text& b) const;
    };

    const DrawingDevice* device_;
    std::vector<Line> lines_;
    std::unordered_set<Text, HashOfText, LooksTheSame> texts_;
    std::vector<const Text*> textsInOrder_;
    std::vector<PixelPoint> points_;  ///< of all lines, in one block
};

}  // namespace korvet
