// A parameter page's sketch laid out: the shape, its dimension lines, and the boxes and labels beside them,
// nothing over anything else. Lengths are pixels here, y downward.
#pragma once

#include <cstddef>
#include <vector>

#include "form/window_table.h"
#include "sketch/solid.h"

namespace korvet {

struct SketchRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

/// Sizes of a page's texts in the font it will be shown in.
struct SketchMetrics {
    SketchXY box;                  ///< width and height of a text box
    std::vector<SketchXY> labels;  ///< of each label, in the order of the page's boxes
    double mostWidth = 1e9;        ///< of the smallest page, as long as the sketch has room in it at all
    double gap = 6;                ///< between neighbours
    double arrow = 8;              ///< length of an arrow head
};

enum class SketchLineKind { Extension, Dimension, Centre };

struct SketchLine {
    SketchLineKind kind = SketchLineKind::Dimension;
    std::vector<SketchXY> points;
    bool arrowAtStart = false;
    bool arrowAtEnd = false;
};

/// One view of the shape on the page: a point (x, y) of the picture stands at originX + x * scale,
/// originY - y * scale.
struct PlacedSolid {
    SolidPicture picture;
    double scale = 1;
    double originX = 0;
    double originY = 0;
};

struct SketchLayout {
    double width = 0;
    double height = 0;
    std::vector<PlacedSolid> solids;
    std::vector<SketchLine> lines;
    std::vector<SketchRect> boxes;   ///< in the order of the page's boxes
    std::vector<SketchRect> labels;  ///< likewise
};

/// What a page's sketch shows, before it has a size: made once per page, laid out at every change of size.
struct PageSketch {
    struct Dimension {
        DimensionKind kind = DimensionKind::Note;
        Side side = Side::Below;
        std::size_t view = 0;
        SketchXY a = {};  ///< where the extension line starts, on the picture of the view
        SketchXY b = {};
        SketchXY vertex = {};
        bool aDrawn = false;  ///< the shape shows the ray to a up to there
        bool bDrawn = false;
        double reach = 1;  ///< of an angle's arc, times the distance from the vertex to a
    };

    struct Construction {
        std::size_t view = 0;
        SketchXY a = {};
        SketchXY b = {};
        bool centre = false;
    };

    std::vector<SolidPicture> pictures;            ///< one per view of the page
    std::vector<std::vector<SolidBounds>> strips;  ///< the same cut into level strips that hold it closely
    std::vector<Dimension> dimensions;             ///< in the order of the page's boxes
    std::vector<Construction> construction;
};

/// The surface of the model, from 1, that the sketches of a window show off: the one that the selected
/// pattern develops. 0 while none is selected, and where patterns have no surface of their own.
std::size_t ShownOffSurface(const WindowTable& table, const OptionGroup& optPatternSelect);

/// All surfaces but `shownOff` (from 1) are pale; 0: none is. Throws std::logic_error for samples that are
/// refused and ListError for a dimension on a line that the model does not have.
PageSketch MakePageSketch(const WindowTable& table, std::size_t page, std::size_t shownOff = 0);

/// Width and height of the smallest page on which the sketch can be read and nothing lies over anything else:
/// the lowest of those that are not wider than the metrics ask for, or else the narrowest there is. The shape
/// has at least four fifths of the size that is easy to read.
SketchXY SmallestSketch(const PageSketch& sketch, const SketchMetrics& metrics);

/// The sketch in a page of width by height pixels, at least SmallestSketch: the shape as large as its boxes
/// leave room for, and smaller than is easy to read only where it has to be.
SketchLayout LayoutSketch(const PageSketch& sketch, const SketchMetrics& metrics, double width,
                          double height);

}  // namespace korvet
