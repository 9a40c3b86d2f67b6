// Bends: a press-braked plate, by up to six corners of its edge.
#include "fittings/plates/bends.h"

#include <algorithm>
#include <string>

#include "core/checked.h"
#include "core/math_module.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

enum Box : int {
    PlateWidth = 0,
    X1 = 1,
    Y1 = 2,
    Radius1 = 3,
    X2 = 4,
    Y2 = 5,
    Radius2 = 6,
    X3 = 7,
    Y3 = 8,
    Radius3 = 9,
    X4 = 10,
    Y4 = 11,
    Radius4 = 12,
    X5 = 13,
    Y5 = 14,
    Radius5 = 15,
    X6 = 16,
    Y6 = 17,
    Radius6 = 18
};

constexpr std::size_t MostCorners = 6;
constexpr std::size_t FewestCorners = 2;

/// By this part of it a radius may be above the largest one that fits: it is the same but for rounding.
constexpr double Rounding = 1e-12;

/// The box of a corner, from 1, by that of the first one.
constexpr int BoxOf(Box ofFirst, std::size_t corner) {
    return ofFirst + (X2 - X1) * (static_cast<int>(corner) - 1);
}

C3DPoint TypedCorner(const FittingForm& form, std::size_t corner) {
    return {form.Value(BoxOf(X1, corner)), form.Value(BoxOf(Y1, corner)), form.Value(BoxOf(Radius1, corner)),
            PlainStation};
}

/// The corners up to the last one that has a number other than 0, but at least two. The ends of the plate
/// have no radius, whatever stands in their boxes.
C3DPoints TypedCorners(const FittingForm& form) {
    C3DPoints corners;
    for (std::size_t i = 1; i <= MostCorners; ++i) {
        corners.Add(TypedCorner(form, i));
    }
    const auto isNothing = [](const C3DPoint& corner) {
        return corner.x == 0 && corner.y == 0 && corner.z == 0;
    };
    while (corners.Count() > FewestCorners && isNothing(corners.Last())) {
        corners.Remove(corners.Count());
    }
    corners.Item(1).z = corners.Item(corners.Count()).z = 0;
    return corners;
}

bool AreAllOne(const C3DPoints& corners) {
    const C3DPoint& first = corners.Item(1);
    return std::all_of(corners.begin(), corners.end(),
                       [&](const C3DPoint& corner) { return corner.x == first.x && corner.y == first.y; });
}

/// Length of the leg from a corner to the next one.
double LegFrom(const C3DPoints& corners, std::size_t index) {
    const C3DPoint& a = corners.Item(index);
    const C3DPoint& b = corners.Item(index + 1);
    return Distance2D({a.x, a.y}, {b.x, b.y});
}

/// What the arc of a corner takes of both its legs; nothing at the ends of the plate.
double TangentAt(const C3DPoints& corners, std::size_t index) {
    if (index == 1 || index == corners.Count()) {
        return 0;
    }
    const double angle = InsideAngle(corners, index);
    return angle > 0 ? TangentOfUnitRadius(angle) * corners.Item(index).z : 0;
}

/// The arc of a corner must fit on its legs, beside those of its neighbours. Where the line goes straight on
/// any arc does, and where it doubles back there is none.
Outcome CheckRadius(FittingForm& form, const C3DPoints& corners, std::size_t index) {
    const double angle = InsideAngle(corners, index);
    const double unit = TangentOfUnitRadius(angle);
    if (angle == 0 || unit == 0) {
        return Passed;
    }
    const double room = std::min(LegFrom(corners, index - 1) - TangentAt(corners, index - 1),
                                 LegFrom(corners, index) - TangentAt(corners, index + 1));
    const double largest = std::max(0.0, Quotient(room, unit));
    return form.CheckAtMost(BoxOf(Radius1, index), largest * (1 + Rounding));
}

Outcome CheckRadii(FittingForm& form, const C3DPoints& corners) {
    for (std::size_t i = 2; i < corners.Count(); ++i) {
        if (form.CheckAtLeast(BoxOf(Radius1, i), 0)) {
            return Refused;
        }
    }
    for (std::size_t i = 2; i < corners.Count(); ++i) {
        if (CheckRadius(form, corners, i)) {
            return Refused;
        }
    }
    return Passed;
}

/// The window says so even where nothing is built, in a view of the pattern.
void RequirePlate(const C3DPoints& corners, double plateWidth) {
    if (plateWidth == 0) {
        throw ArithmeticError("a plate without a width has no area");
    }
    for (std::size_t i = 2; i < corners.Count(); ++i) {
        if (InsideAngle(corners, i) == 0) {
            throw ArithmeticError("the line doubles back or stands still at corner " + std::to_string(i));
        }
    }
}

Outcome Build(FittingForm& form, CBends& bends) {
    const C3DPoints corners = TypedCorners(form);
    if (AreAllOne(corners)) {
        return form.RefuseAsNotMakeable(X2, "a plate has at least two corners that differ");
    }
    if (CheckRadii(form, corners)) {
        return Refused;
    }
    RequirePlate(corners, form.Value(PlateWidth));
    bends.PointsList = corners;
    bends.PlateWidth = form.Value(PlateWidth);
    return Passed;
}

// The sketch: a lipped channel, as it stands and from above. Its edge begins below the upper left corner and
// turns right at every corner. An arc has 97 stations there, of which the middle one is named.
constexpr double Width = 400;
constexpr SketchView Views[] = {{.turn = -30, .tilt = 40}, {.turn = 0, .tilt = 90}};
constexpr int OnBody = 0;
constexpr int OnPlan = 1;

constexpr SketchPoint At(double x, double y, double z = 0) {
    return {.dx = x, .dy = y, .dz = z};
}

/// How far a corner lies to the right of the origin, and how far above it in the plan.
constexpr SketchDimension Across(Side side, double x, double y) {
    return LinearSize(side, At(0, y), At(x, y), OnPlan);
}
constexpr SketchDimension Along(Side side, double x, double y) {
    return LinearSize(side, At(x, 0), At(x, y), OnPlan);
}

/// The radius of an arc on the upper edge, about a centre in the plan.
constexpr SketchDimension Arc(Side side, int station, double x, double y) {
    return RadiusSize(side, StationOf(2, station), At(x, y, Width), OnBody);
}

/// An end of the edge, which has no radius; it has boxes as every corner has.
constexpr SketchDimension End(Side side, int station) {
    return RadiusSize(side, StationOf(2, station), StationOf(2, station), OnBody);
}

constexpr BoxEntry Boxes[] = {
    {PlateWidth, "Plate width", "400", LinearSize(Side::Right, StationOf(1, 147), StationOf(2, 147), OnBody)},
    {X1, "X 1", "60", Across(Side::Above, 60, 245)},
    {Y1, "Y 1", "245", Along(Side::Left, 60, 245)},
    {Radius1, "Radius 1", "0", End(Side::Left, 1)},
    {X2, "X 2", "60", Across(Side::Above, 60, 290)},
    {Y2, "Y 2", "290", Along(Side::Left, 60, 290)},
    {Radius2, "Radius 2", "20", Arc(Side::Above, 50, 80, 270)},
    {X3, "X 3", "250", Across(Side::Above, 250, 290)},
    {Y3, "Y 3", "290", Along(Side::Right, 250, 290)},
    {Radius3, "Radius 3", "30", Arc(Side::Above, 147, 220, 260)},
    {X4, "X 4", "250", Across(Side::Below, 250, 40)},
    {Y4, "Y 4", "40", Along(Side::Right, 250, 40)},
    {Radius4, "Radius 4", "25", Arc(Side::Right, 244, 225, 65)},
    {X5, "X 5", "80", Across(Side::Below, 80, 40)},
    {Y5, "Y 5", "40", Along(Side::Left, 80, 40)},
    {Radius5, "Radius 5", "15", Arc(Side::Left, 341, 95, 55)},
    {X6, "X 6", "80", Across(Side::Below, 80, 75)},
    {Y6, "Y 6", "75", Along(Side::Left, 80, 75)},
    {Radius6, "Radius 6", "0", End(Side::Left, 390)}};
constexpr SketchConstruction Lines[] = {CentreLine(At(0, 0), At(250, 0), OnPlan),
                                        CentreLine(At(0, 0), At(0, 290), OnPlan)};
constexpr LabelEntry Labels[] = {{PlateWidth}};

constexpr PageEntry Pages[] = {{Boxes, Labels, Views, Lines}};

}  // namespace

const WindowTable frmBends = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CBends>,
    .buildFitting = BuildAs<CBends, Build>,
    .positionLine = true,
};

}  // namespace korvet
