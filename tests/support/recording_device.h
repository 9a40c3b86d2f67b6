// A drawing device that writes down every call, for tests. Its letters all have one width and one height.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "display/drawing_device.h"

namespace korvet {

class RecordingDevice final : public DrawingDevice {
  public:
    enum class Kind { Cls, Polyline, TextOut };

    /// One call; the members that its kind does not have stay empty.
    struct Call {
        Kind kind = Kind::Cls;
        Color color = 0;                      ///< Cls: back colour; TextOut: text colour
        Pen pen = {};                         ///< Polyline
        std::vector<PixelPoint> points = {};  ///< Polyline: the points; TextOut: the corner
        std::string text = {};                ///< TextOut
        TextFont font = {};                   ///< TextOut
    };

    RecordingDevice() = default;
    RecordingDevice(double width, double height) : scaleSize{width, height}, outerSize{width, height} {}

    PixelSize scaleSize = {400, 200};
    PixelSize outerSize = {400, 200};
    std::optional<PixelSize> nextSize;  ///< the window was resized since its picture was drawn
    double dpi = 96;
    PixelSize letter = {8, 16};  ///< pixels of a letter of 10 points; other sizes in proportion
    std::vector<Call> calls;

    void Cls(Color backColor) override { calls.push_back({.kind = Kind::Cls, .color = backColor}); }
    [[nodiscard]] PixelSize ScaleSize() const override { return scaleSize; }
    [[nodiscard]] PixelSize NextSize() const override { return nextSize.value_or(scaleSize); }
    [[nodiscard]] PixelSize OuterSize() const override { return outerSize; }
    [[nodiscard]] double LogicalDpiY() const override { return dpi; }

    [[nodiscard]] PixelSize TextExtent(const std::string& text, double points) const override {
        return {static_cast<double>(text.size()) * letter.width * points / 10, letter.height * points / 10};
    }

    void Polyline(const Pen& pen, std::span<const PixelPoint> points) override {
        calls.push_back({.kind = Kind::Polyline, .pen = pen, .points = {points.begin(), points.end()}});
    }

    void TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) override {
        calls.push_back(
            {.kind = Kind::TextOut, .color = color, .points = {corner}, .text = text, .font = font});
    }

    /// The calls of one kind, in their order.
    [[nodiscard]] std::vector<Call> Of(Kind kind) const {
        std::vector<Call> found;
        for (const Call& call : calls) {
            if (call.kind == kind) {
                found.push_back(call);
            }
        }
        return found;
    }

    [[nodiscard]] std::vector<Call> Lines() const { return Of(Kind::Polyline); }
    [[nodiscard]] std::vector<Call> Texts() const { return Of(Kind::TextOut); }

    /// The strings of the texts, in their order.
    [[nodiscard]] std::vector<std::string> Strings() const {
        std::vector<std::string> strings;
        for (const Call& call : Texts()) {
            strings.push_back(call.text);
        }
        return strings;
    }

    [[nodiscard]] std::size_t Count(Kind kind) const { return Of(kind).size(); }
};

}  // namespace korvet
