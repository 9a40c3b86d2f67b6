#include "fittings/transitions/transition.h"

#include <array>
#include <memory>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "core/triangulation.h"
#include "fittings/lap_room.h"
#include "fittings/ring.h"
#include "fittings/trim.h"

namespace korvet {
namespace {

/// Points of one corner: a quarter of the stations of a full turn, and one more to close it. An odd number of
/// segments does not divide into quarters; its corners then stop short of the quarter turn or overrun it.
int PointsPerCorner(int segs) {
    return RoundToInt(2.0 * segs / 4 + 1);
}

/// Adds the stations of one corner: a quarter of an ellipse with semi-axes rad1 along x and rad2 along y.
void AddCorner(C3DPoints& list, const C3DPoint& centre, double rad1, double rad2, double start, int segs) {
    const int last = PointsPerCorner(segs);
    for (const Station& station : Ring(start, RuledRing(start, segs).Step(), last)) {
        const int corner = station.index == 1 || station.index == last ? CornerStation : PlainStation;
        list.Add(PolarPoint(centre, station.angle, EllipseRadius(rad1, rad2, station.angle))).Flag =
            static_cast<std::int16_t>(station.flag + corner);
    }
}

void AddRuleStation(C3DPoints& list, const C3DPoint& point) {
    list.Add(point).Flag = RuleStation;
}

/// The start of a section on its +x side: moved along the side by the Y offset, so that the seam leans less,
/// unless that would leave the straight part of the side. The top's centre has moved by the offset itself, so
/// its start lies at twice the offset.
C3DPoint FindSectionStartPoint(const C3DPoint& centre, double lengthX, double offsetY,
                               const C3DPoint& corner1, const C3DPoint& corner4) {
    C3DPoint start = {centre.x + lengthX / 2, centre.y + offsetY, centre.z, PlainStation};
    if (start.y >= corner1.y || start.y <= corner4.y) {
        start.y = centre.y;
    }
    return start;
}

}  // namespace

C3DPoints CTransition::BuildSectionList(const Section& section) const {
    const auto& [centre, lengthX, lengthY, offsetY, rad1, rad2] = section;
    const double dx = lengthX / 2 - rad1;
    const double dy = lengthY / 2 - rad2;
    const std::array<C3DPoint, 4> corners = {C3DPoint{centre.x + dx, centre.y + dy, centre.z, PlainStation},
                                             C3DPoint{centre.x - dx, centre.y + dy, centre.z, PlainStation},
                                             C3DPoint{centre.x - dx, centre.y - dy, centre.z, PlainStation},
                                             C3DPoint{centre.x + dx, centre.y - dy, centre.z, PlainStation}};
    const C3DPoint start = FindSectionStartPoint(centre, lengthX, offsetY, corners[0], corners[3]);

    C3DPoints list;
    list.Reserve(4 * static_cast<std::size_t>(PointsPerCorner(inputs.segs)) + 3);
    AddRuleStation(list, start);
    AddCorner(list, corners[0], rad1, rad2, 0, inputs.segs);
    AddCorner(list, corners[1], rad1, rad2, QuarterTurn, inputs.segs);
    if (IsHalved()) {
        const double opposite = PlanAngle(centre, start) + PI;
        AddRuleStation(list, PolarPoint(centre, opposite, Distance3D(centre, start)));
    }
    AddCorner(list, corners[2], rad1, rad2, 2 * QuarterTurn, inputs.segs);
    AddCorner(list, corners[3], rad1, rad2, 3 * QuarterTurn, inputs.segs);
    AddRuleStation(list, start);
    return list;
}

void CTransition::ConstructModel() {
    const C3DPoint baseCentre;
    const C3DPoint topCentre = {TopOffsetX, TopOffsetY, Height, PlainStation};
    CRuleSurf surface;
    surface.List2 = std::make_shared<C3DPoints>(
        BuildSectionList({baseCentre, BaseLengthX, BaseLengthY, 0, BaseRad1, BaseRad2}));
    surface.List1 = std::make_shared<C3DPoints>(
        BuildSectionList({topCentre, TopLengthX, TopLengthY, TopOffsetY, TopRad1, TopRad2}));

    const auto tilt = [&](int list, Axis axis, const C3DPoint& centre, double angle) {
        if (angle != 0) {
            surface.RotateList(list, axis, centre, angle);
        }
    };
    tilt(1, Axis::X, topCentre, TopTiltX);
    tilt(2, Axis::X, baseCentre, BaseTiltX);
    tilt(1, Axis::Y, topCentre, TopTiltY);
    tilt(2, Axis::Y, baseCentre, BaseTiltY);
    results.ModelSurface = Trimmed(surface, IsHalved() ? Trim::Half : Trim::Whole);
}

void CTransition::DevelopModel() {
    ConstructModel();
    CRuleSurf pattern = Unfolded(results.ModelSurface);
    if (AddLaps(pattern, inputs) && SeamGapIsBelow(pattern, inputs.LapSize1)) {
        results.warnings.push_back({SeamLapTooLarge, true});
    }
    results.PatternSurface = pattern;
}

}  // namespace korvet
