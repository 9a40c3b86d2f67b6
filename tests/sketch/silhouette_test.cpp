// The outline of a shape is drawn whole: wherever a scanning line leaves the walls for the ground, there is a
// line of the picture.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "frame/catalogue.h"
#include "sketch/sample_model.h"
#include "sketch/solid.h"
#include "tests/sketch/solid_reading.h"

namespace korvet {
namespace {

constexpr int ScanLines = 61;

/// Gaps between walls narrower than this share of the size are none, and a line as near as this is there.
constexpr double Gap = 1e-4;
constexpr double Near = 1e-4;

SketchXY Swapped(const SketchXY& p) {
    return {p.y, p.x};
}

/// The picture lying on its side, so that upright lines become level ones.
SolidPicture OnItsSide(SolidPicture picture) {
    for (SolidFace& face : picture.faces) {
        std::transform(face.corners.begin(), face.corners.end(), face.corners.begin(), Swapped);
    }
    for (SolidEdge& edge : picture.edges) {
        std::transform(edge.points.begin(), edge.points.end(), edge.points.begin(), Swapped);
    }
    const SolidBounds b = picture.bounds;
    picture.bounds = {b.bottom, b.left, b.top, b.right};
    return picture;
}

/// Where the walls begin and end along the level line at y.
std::vector<std::pair<double, double>> WallsAlong(const SolidPicture& picture, double y, double gap) {
    std::vector<std::pair<double, double>> spans;
    for (const SolidFace& face : picture.faces) {
        std::vector<double> crossed;
        for (std::size_t i = 0; i < face.corners.size(); ++i) {
            const SketchXY& a = face.corners[i];
            const SketchXY& b = face.corners[(i + 1) % face.corners.size()];
            if ((a.y < y) != (b.y < y)) {
                crossed.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
            }
        }
        if (crossed.size() >= 2) {
            const auto [low, high] = std::minmax_element(crossed.begin(), crossed.end());
            spans.emplace_back(*low, *high);
        }
    }
    std::sort(spans.begin(), spans.end());
    std::vector<std::pair<double, double>> walls;
    for (const auto& span : spans) {
        if (!walls.empty() && span.first <= walls.back().second + gap) {
            walls.back().second = std::max(walls.back().second, span.second);
        } else {
            walls.push_back(span);
        }
    }
    return walls;
}

double Distance(const SketchXY& p, const SketchXY& a, const SketchXY& b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double length = dx * dx + dy * dy;
    const double t = length > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length, 0.0, 1.0) : 0.0;
    return std::hypot(a.x + t * dx - p.x, a.y + t * dy - p.y);
}

/// Whether a line of the picture passes by as near as that.
bool HasLineAt(const SolidPicture& picture, const SketchXY& p, double near) {
    return std::ranges::any_of(picture.edges, [&](const SolidEdge& edge) {
        for (std::size_t i = 0; i + 1 < edge.points.size() && edge.outline; ++i) {
            if (Distance(p, edge.points[i], edge.points[i + 1]) <= near) {
                return true;
            }
        }
        return false;
    });
}

struct Outline {
    int places = 0;
    int bare = 0;
};

void AddLevel(const SolidPicture& picture, Outline& outline) {
    const SolidBounds& b = picture.bounds;
    const double size = std::max(b.right - b.left, b.top - b.bottom);
    for (int i = 0; i < ScanLines; ++i) {
        const double y = b.bottom + (i + 0.4142) / ScanLines * (b.top - b.bottom);
        for (const auto& [left, right] : WallsAlong(picture, y, Gap * size)) {
            for (const double x : {left, right}) {
                ++outline.places;
                outline.bare += HasLineAt(picture, {x, y}, Near * size) ? 0 : 1;
            }
        }
    }
}

Outline OutlineOf(const SolidPicture& picture) {
    Outline outline;
    AddLevel(picture, outline);
    AddLevel(OnItsSide(picture), outline);
    return outline;
}

/// Where lines of the picture cross the level line at y, from left to right.
std::vector<double> LinesAlong(const SolidPicture& picture, double y) {
    std::vector<double> crossed;
    for (const SolidEdge& edge : picture.edges) {
        for (std::size_t i = 0; i + 1 < edge.points.size() && edge.outline; ++i) {
            const SketchXY& a = edge.points[i];
            const SketchXY& b = edge.points[i + 1];
            if ((a.y < y) != (b.y < y)) {
                crossed.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
            }
        }
    }
    std::sort(crossed.begin(), crossed.end());
    return crossed;
}

// Straight lines between two rings, one turned against the other, are a hyperboloid. From the side it ends
// where the square of its half width is that of the rings less 2 t (1 - t) (1 - cos of the turn), with t the
// share of the height. Of a wall in triangles the outermost lines are the diagonals, which turn by a step
// less than the rules; the triangles face to and fro between the two.
TEST(Silhouette, OfATwistedWallIsOneLineOnEachSide) {
    constexpr int Steps = 96;
    constexpr int Turned = 20;  // steps
    constexpr double Height = 3;
    std::vector<C3DPoint> upper;
    std::vector<C3DPoint> lower;
    for (int i = 0; i <= Steps; ++i) {
        const double low = 2 * std::numbers::pi * i / Steps;
        const double high = 2 * std::numbers::pi * (i + Turned) / Steps;
        lower.push_back({std::cos(low), std::sin(low), 0, 0});
        upper.push_back({std::cos(high), std::sin(high), Height, 0});
    }
    const SolidPicture picture = DrawSolid(Model({Strip(upper, lower)}), {.turn = 0, .tilt = 0});
    const double turn = 2 * std::numbers::pi * (Turned - 1) / Steps;
    for (const double share : {0.08, 0.2, 0.37, 0.5, 0.71, 0.93}) {
        const double wide = std::sqrt(1 - 2 * share * (1 - share) * (1 - std::cos(turn)));
        const std::vector<double> lines = LinesAlong(picture, share * Height);
        ASSERT_EQ(lines.size(), 2U) << share;
        EXPECT_NEAR(lines[0], -wide, 2e-3);
        EXPECT_NEAR(lines[1], wide, 2e-3);
    }
}

TEST(Silhouette, IsDrawnWholeForEveryFitting) {
    for (const CatalogueRow& row : Catalogue) {
        for (auto page = static_cast<std::size_t>(row.table->firstDtype); page < row.table->pages.size();
             ++page) {
            const CRuleSurfs model = SampleModel(*row.table, page);
            for (const SketchView view : {SketchView{35, 25}, SketchView{0, 0}, SketchView{0, 90}}) {
                const Outline outline = OutlineOf(DrawSolid(model, view));
                EXPECT_EQ(outline.bare, 0)
                    << row.category << " page " << page << " turned by " << view.turn << ", from "
                    << view.tilt << ": " << outline.bare << " of " << outline.places;
            }
        }
    }
}

}  // namespace
}  // namespace korvet
