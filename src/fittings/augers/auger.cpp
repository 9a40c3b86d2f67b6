#include "fittings/augers/auger.h"

#include <cmath>
#include <memory>
#include <string>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "core/triangulation.h"
#include "fittings/makeable.h"
#include "fittings/piece_layout.h"
#include "fittings/ring.h"
#include "fittings/trim.h"

namespace korvet {
namespace {

void RequireInside(double radius) {
    if (radius < 0) {
        throw ArithmeticError("the flight width leaves an inside diameter below 0");
    }
}

/// The radius of a flat ring whose edge is as long as the helix of one turn on this diameter:
///     sqrt((PI diameter)^2 + pitch^2) / (2 PI)
double FlatRadius(double diameter, double pitch) {
    return Hypotenuse(diameter * PI, pitch) / FullTurn;
}

}  // namespace

CAuger::Turns CAuger::CountTurns() const {
    const double turns = Quotient(Length, Pitch);
    if (turns <= WholeTurnWithin) {
        throw ArithmeticError("the length is too short for any part of a turn");
    }
    const double nearest = std::round(turns);
    const bool isWhole = std::fabs(turns - nearest) <= WholeTurnWithin;
    const double whole = isWhole ? nearest : std::trunc(turns);
    if ((isWhole ? whole : whole + 1) * (2.0 * inputs.segs + 1) > MostStations) {
        throw ArithmeticError("so many turns with " + std::to_string(inputs.segs) +
                              " fold lines each are too much: make one of the two numbers smaller");
    }
    return {RoundToInt(whole), isWhole ? 0 : turns - whole};
}

/// The middle of the plate starts half a thickness along the taper:
///     start - (start - end) (Thickness / 2) / Length
CAuger::Edge CAuger::EdgeOf(double startDiameter, double endDiameter) const {
    const double start = startDiameter / 2;
    const double end = endDiameter / 2;
    if (inputs.Dtype != TaperedAuger) {
        return {start, 0};
    }
    const double middle = start - Quotient((start - end) * (Thickness / 2), Length);
    return {middle, Quotient((end - middle) * Pitch, Length)};
}

/// The stations of an edge over a fraction of the turn that starts at `centre`. Angle, radius and height grow
/// by repeated addition.
PointList CAuger::BuildSpiralList(double fraction, const C3DPoint& centre, const Edge& edge) const {
    const int count = 2 * inputs.segs;
    const double radiusStep = edge.growth / count * fraction;
    const double heightStep = Pitch / count * fraction;
    double radius = edge.radius;
    double height = 0;
    auto points = std::make_shared<C3DPoints>();
    points->Reserve(static_cast<std::size_t>(count) + 1);
    for (const Station& station : Ring(0, FullTurn / count * fraction, count + 1)) {
        C3DPoint& point = points->Add(PolarPoint(centre, station.angle, radius));
        point.z += height;
        point.Flag = station.flag;
        radius += radiusStep;
        height += heightStep;
    }
    return points;
}

void CAuger::ConstructModel() {
    const Turns turns = CountTurns();
    Edge inside = EdgeOf(InsideDia1, InsideDia2);
    Edge outside = EdgeOf(OutsideDia1, OutsideDia2);
    RequireInside(inside.radius);
    RequireInside(InsideDia2 / 2);
    results.ModelSurfaceList = CRuleSurfs();
    C3DPoint centre;
    const auto addTurn = [&](double fraction) {
        CRuleSurf turn;
        turn.List1 = BuildSpiralList(fraction, centre, inside);
        turn.List2 = BuildSpiralList(fraction, centre, outside);
        results.ModelSurfaceList.Add(turn);
    };
    for (int i = 0; i < turns.whole; ++i) {
        addTurn(1);
        inside.radius += inside.growth;
        outside.radius += outside.growth;
        centre.z += Pitch;
    }
    if (turns.part > 0) {
        addTurn(turns.part);
    }
    RefuseHalf(inputs, results);
}

void CAuger::LayOutTurns() {
    ConstructModel();
    CTriangulation triangulation;
    C3DPoint place;
    for (const CRuleSurf& turn : results.ModelSurfaceList) {
        triangulation.ModelSurface = turn;
        triangulation.BasePoint = place;
        triangulation.DevelopSurface();
        results.PatternSurfaceList.Add(triangulation.Pattern);
        place = Beside(place, *triangulation.Pattern.List2);
    }
}

CAuger::FlatRing CAuger::PlateOfOneTurn() const {
    const double width = (OutsideDia1 - InsideDia1) / 2;
    if (inputs.Dtype == PlateFromInside) {
        const double inside = FlatRadius(InsideDia1, Pitch);
        return {inside, inside + width};
    }
    const double outside = FlatRadius(OutsideDia1, Pitch);
    return {outside - width, outside};
}

void CAuger::LayOutPlate() {
    const FlatRing flat = PlateOfOneTurn();
    RequireInside(InsideDia1 / 2);
    RequireInside(flat.inside);
    const Ring ring = RuledRing(inputs.JoinAngle, inputs.segs);
    CRuleSurf plate;
    plate.RefPoint = C3DPoint();
    plate.RefPointDisplay = true;
    plate.List1 = CirclePoints(ring, {}, flat.inside);
    plate.List2 = CirclePoints(ring, {}, flat.outside);
    results.PatternSurfaceList.Add(plate);
}

void CAuger::DevelopModel() {
    results.PatternSurfaceList = CRuleSurfs();
    if (inputs.Dtype == PlateFromInside || inputs.Dtype == PlateFromOutside) {
        LayOutPlate();
    } else {
        LayOutTurns();
    }
}

}  // namespace korvet
