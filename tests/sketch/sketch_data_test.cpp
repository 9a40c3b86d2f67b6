// Every dimension line of every parameter page measures on the model exactly what its box holds.
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <string>

#include "core/checked.h"
#include "core/math_module.h"
#include "frame/catalogue.h"
#include "sketch/sample_model.h"
#include "sketch/sketch_points.h"
#include "sketch/solid.h"

namespace korvet {
namespace {

struct CheckedBox {
    const WindowTable* table;
    std::size_t page;
    const BoxEntry* box;
    CRuleSurfs model;
    std::string name;
};

/// All boxes of all windows that are built, each with the model of its page.
std::vector<CheckedBox> AllBoxes() {
    std::vector<CheckedBox> boxes;
    for (const CatalogueRow& row : Catalogue) {
        for (std::size_t page = 0; row.table && page < row.table->pages.size(); ++page) {
            const CRuleSurfs model = SampleModel(*row.table, page);
            for (const BoxEntry& box : row.table->pages[page].boxes) {
                boxes.push_back({row.table, page, &box, model,
                                 std::string(row.category) + ", type " + std::to_string(page + 1) + ", " +
                                     std::string(box.label)});
            }
        }
    }
    return boxes;
}

double Sample(const BoxEntry& box) {
    double value = 0;
    const auto [end, error] =
        std::from_chars(box.sample.data(), box.sample.data() + box.sample.size(), value);
    EXPECT_TRUE(error == std::errc() && end == box.sample.data() + box.sample.size()) << box.label;
    return value;
}

/// In degrees, or in radians where the label of the box says so.
double AngleAsTyped(const BoxEntry& box, double radians) {
    return box.label.find("(radians)") != std::string_view::npos ? radians : radians * 180 / std::numbers::pi;
}

double AngleAt(const C3DPoint& vertex, const C3DPoint& a, const C3DPoint& b) {
    const double ax = a.x - vertex.x;
    const double ay = a.y - vertex.y;
    const double az = a.z - vertex.z;
    const double bx = b.x - vertex.x;
    const double by = b.y - vertex.y;
    const double bz = b.z - vertex.z;
    const double across = std::hypot(ay * bz - az * by, az * bx - ax * bz, ax * by - ay * bx);
    return std::atan2(across, ax * bx + ay * by + az * bz);
}

TEST(SketchData, ThereAreTheEightPagesOfTheCones) {
    const auto boxes = AllBoxes();
    EXPECT_GE(boxes.size(), 36U);  // 9 and 27
}

TEST(SketchData, EveryLineIsAsLongAsItsBoxSays) {
    for (const CheckedBox& checked : AllBoxes()) {
        const SketchDimension& d = checked.box->dimension;
        const C3DPoint a = SketchPointInSpace(checked.model, d.a);
        const C3DPoint b = SketchPointInSpace(checked.model, d.b);
        const double sample = std::abs(Sample(*checked.box));
        switch (d.kind) {
            case DimensionKind::Linear:
            case DimensionKind::Aligned:
            case DimensionKind::Radius:
                EXPECT_NEAR(Distance3D(a, b), sample, 1e-6 * sample) << checked.name;
                break;
            case DimensionKind::Angle:
                EXPECT_NEAR(
                    AngleAsTyped(*checked.box, AngleAt(SketchPointInSpace(checked.model, d.vertex), a, b)),
                    sample, 1e-6 * sample)
                    << checked.name;
                break;
            case DimensionKind::Note:  // a count has no length
                EXPECT_TRUE(checked.box->label.starts_with("Number of")) << checked.name;
        }
    }
}

/// A page shows a length that is measured level or upright at its true direction.
TEST(SketchData, LinearDimensionsAreLevelOrUprightOnTheirView) {
    for (const CheckedBox& checked : AllBoxes()) {
        const SketchDimension& d = checked.box->dimension;
        if (d.kind != DimensionKind::Linear) {
            continue;
        }
        const SketchView& view = checked.table->pages[checked.page].views[static_cast<std::size_t>(d.view)];
        const SketchXY a = ProjectOnSketch(SketchPointInSpace(checked.model, d.a), view);
        const SketchXY b = ProjectOnSketch(SketchPointInSpace(checked.model, d.b), view);
        const bool upright = d.side == Side::Left || d.side == Side::Right;
        EXPECT_NEAR(upright ? a.x : a.y, upright ? b.x : b.y, 1e-6 * Sample(*checked.box)) << checked.name;
    }
}

TEST(SketchData, ArcsStandAtADistanceFromTheirVertex) {
    for (const CheckedBox& checked : AllBoxes()) {
        if (checked.box->dimension.kind == DimensionKind::Angle) {
            EXPECT_GT(checked.box->dimension.reach, 0.1) << checked.name;
            EXPECT_LT(checked.box->dimension.reach, 2) << checked.name;
        }
    }
}

/// A wall drawn on to a virtual apex or base lies in the line of the wall: of 3 points on one generator of a
/// cone about z, radius and height go together.
TEST(SketchData, ThinLinesOfTheConesContinueTheWall) {
    for (const CatalogueRow& row : Catalogue) {
        if (!row.table || row.category.find("Right Cone") == std::string_view::npos) {
            continue;
        }
        for (std::size_t page = 0; page < row.table->pages.size(); ++page) {
            const CRuleSurfs model = SampleModel(*row.table, page);
            for (const SketchConstruction& line : row.table->pages[page].construction) {
                if (line.centre || line.a.list == 0) {
                    continue;
                }
                const C3DPoint from = SketchPointInSpace(model, line.a);
                const C3DPoint to = SketchPointInSpace(model, line.b);
                const CRuleSurf& wall = model.Item(1);
                const C3DPoint top = wall.List1->Item(1);
                const C3DPoint bottom = wall.List2->Item(1);
                const double slope =
                    (std::hypot(bottom.x, bottom.y) - std::hypot(top.x, top.y)) / (top.z - bottom.z);
                EXPECT_NEAR(std::hypot(from.x, from.y) - std::hypot(to.x, to.y), slope * (to.z - from.z),
                            1e-4)
                    << row.category << ", type " << page + 1;
            }
        }
    }
}

TEST(SketchPoints, AreFoundByTheirCoordinates) {
    CRuleSurf surface;
    surface.List2 = std::make_shared<C3DPoints>();
    for (const C3DPoint& point :
         {C3DPoint{1, 9, 3, 0}, C3DPoint{5, 2, 8, 0}, C3DPoint{3, 4, -6, 0}, C3DPoint{5, 7, 0, 0}}) {
        surface.List2->Add(point);
    }
    CRuleSurfs model;
    model.Add(surface);
    const auto at = [&](Spot spot) {
        return SketchPointInSpace(model, {.list = 2, .spot = spot, .dz = 100});
    };
    EXPECT_EQ(at(Spot::MinX).y, 9);
    EXPECT_EQ(at(Spot::MaxX).y, 2);  // the first of two
    EXPECT_EQ(at(Spot::MinY).x, 5);
    EXPECT_EQ(at(Spot::MaxY).x, 1);
    EXPECT_EQ(at(Spot::MinZ).z, 94);
    EXPECT_EQ(at(Spot::MaxZ).z, 108);
    EXPECT_EQ(at(Spot::Centre).x, 3);
    EXPECT_EQ(at(Spot::Centre).y, 5.5);
    EXPECT_EQ(at(Spot::Centre).z, 101);
    const C3DPoint origin = SketchPointInSpace(model, {.dx = 1, .dy = 2, .dz = 3});
    EXPECT_EQ(origin.x, 1);
    EXPECT_EQ(origin.y, 2);
    EXPECT_EQ(origin.z, 3);
}

TEST(SketchPoints, RefuseALineThatIsNotThere) {
    CRuleSurfs model;
    model.Add(CRuleSurf{});
    EXPECT_THROW(SketchPointInSpace(model, {.list = 1}), ListError);
    EXPECT_THROW(SketchPointInSpace(model, {.list = 4}), ListError);
    EXPECT_THROW(SketchPointInSpace(model, {.list = 1, .surface = 2}), ListError);
    EXPECT_THROW(SketchPointInSpace(model, {.list = 1, .surface = 0}), ListError);
}

}  // namespace
}  // namespace korvet
