// What is already drawn of a view, and what a further dimension would run into.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "sketch/sketch_plane.h"

namespace korvet {

/// One way to draw a dimension.
struct SketchPlacement {
    SketchRect box = {};
    SketchRect label = {};
    std::vector<SketchLine> lines = {};
    double cost = 0;  ///< of the place that was chosen, as SketchBoard counts it
};

/// The drawing of one view as it grows. Origin is that of the model's picture.
class SketchBoard {
  public:
    /// Starts with the strips of the shape at a scale of pixels per unit. `gap` is kept free between texts,
    /// and nothing is put where the drawing would grow beyond `room`.
    SketchBoard(const std::vector<SolidBounds>& strips, double scale, double gap, SketchXY room);

    void AddLine(const SketchLine& line);

    /// A line that dimension `owner` will need wherever it comes to stand; others had better leave it free.
    void Reserve(const SketchLine& line, std::size_t owner);

    /// How bad it would be to put the texts of dimension `owner` there: infinite when a text would lie over a
    /// text or over the shape, otherwise in pixels of distance that it would be worth to avoid it. A cost of
    /// `limit` or more may come as infinite.
    [[nodiscard]] double CostOfTexts(const SketchPlacement& placement, std::size_t owner, double limit) const;

    /// The same for lines.
    [[nodiscard]] double CostOfLines(const std::vector<SketchLine>& lines) const;

    /// How far the shape reaches in direction `away` between two lines across direction `along`; minus
    /// infinity when it has no part there.
    [[nodiscard]] double ShapeReach(SketchXY away, SketchXY along, double low, double high) const;

    /// Draws it.
    void Put(const SketchPlacement& placement);

    /// Around everything that is drawn.
    [[nodiscard]] const SketchRect& Bounds() const { return bounds_; }

    /// A distance that leads out of the room from anywhere.
    [[nodiscard]] double Reach() const { return room_.x + room_.y; }

    /// Whether it has grown beyond its room.
    [[nodiscard]] bool IsFull() const { return bounds_.width > room_.x || bounds_.height > room_.y; }

    /// What AddLine and Put have drawn.
    [[nodiscard]] std::vector<SketchLine> Lines() const;

  private:
    struct Drawn {
        SketchLine line;
        SketchRect bounds;
        std::optional<std::size_t> owner;  ///< of a line that is only reserved
    };

    [[nodiscard]] bool IsBlocked(const SketchRect& text) const;
    [[nodiscard]] double CostOfText(const SketchRect& text, std::size_t owner) const;
    [[nodiscard]] double CostOfLine(const SketchLine& line) const;

    double gap_;
    SketchXY room_;
    std::vector<SketchRect> shape_;
    SketchRect wholeShape_;
    std::vector<SketchRect> texts_;
    std::vector<Drawn> lines_;
    SketchRect bounds_;
};

}  // namespace korvet
