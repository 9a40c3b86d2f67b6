#include "fittings/branches/branch.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/cut_past_end.h"
#include "fittings/pieces.h"
#include "fittings/pipes/right_cylinder.h"
#include "fittings/trim.h"
#include "fittings/unrolled.h"

namespace korvet {
namespace {

/// How far, as a part of the radius squared, a branch as wide as the trunk may reach beyond it by rounding.
constexpr double RoundingBand = 1e-12;

/// Distance from the axis of a circle, of the point of it at height y.
double HalfChord(double radius, double y) {
    const double square = radius * radius - y * y;
    if (square < 0 && square >= -RoundingBand * radius * radius) {
        return 0;
    }
    return SquareRoot(square);
}

/// The straight end of a branch has the corners of its edge on the trunk.
void TakeFlags(C3DPoints& list, const C3DPoints& from) {
    for (std::size_t i = 1; i <= list.Count(); ++i) {
        list.Item(i).Flag = from.Item(i).Flag;
    }
}

}  // namespace

/// The branch's axis meets the trunk's surface where rB sin(beta) = Offset.
CBranch::Cut CBranch::MakeCut(double rA, double rB) const {
    return {rA, rB, ArcSin(Quotient(Offset, rB))};
}

/// A round edge of the branch, from its top on; the heel is half a turn further.
Ring CBranch::Round() const {
    return RuledRing(0, inputs.segs);
}

/// The point of the branch's generator at theta that lies on the trunk, x^2 + y^2 = rB^2. Off the branch's
/// axis it stands u = rA cos(theta) in the plane of the axes and rA sin(theta) square to it, so that
///     y = Offset + rA sin(theta)
///     z = cot(alpha) (rB cos(beta) - x) + u / sin(alpha)
/// with z = 0 where the axis itself meets the trunk, at x = rB cos(beta).
C3DPoint CBranch::IntersectionPoint(double theta, const Cut& cut) const {
    const double u = std::cos(theta) * cut.rA;
    const double y = Offset + std::sin(theta) * cut.rA;
    const double x = HalfChord(cut.rB, y);
    const double cotangent = std::tan(QuarterTurn - AxialAngle);
    const double z = cotangent * (cut.rB - x) + Quotient(u, std::sin(AxialAngle)) -
                     cotangent * (1 - std::cos(cut.beta)) * cut.rB;
    return {x, y, z, PlainStation};
}

PointList CBranch::BuildIntersectionList(const Cut& cut) const {
    auto list = std::make_shared<C3DPoints>();
    list->Reserve(Round().Count());
    const int steps = 2 * inputs.segs;
    const int firstFlank = steps / 4 + 1;
    const int secondFlank = steps * 3 / 4 + 1;
    for (const auto& [i, theta, flag] : Round()) {
        const int corner = i == firstFlank || i == secondFlank ? CornerStation : PlainStation;
        list->Add(IntersectionPoint(theta, cut)).Flag = static_cast<std::int16_t>(flag + corner);
    }
    return list;
}

/// The centre of the free end, told from the point at which the branch's axis meets the trunk: the piece of
/// the axis inside the trunk, rB cos(beta) / sin(alpha), doesn't show.
C3DPoint CBranch::BranchEndCentre(const Cut& cut) const {
    const double sine = std::sin(AxialAngle);
    const double length = LengthPipeA - Quotient(std::cos(cut.beta) * cut.rB, sine);
    return {sine * length, Offset, -std::cos(AxialAngle) * length, PlainStation};
}

/// A circle square to the branch's axis. Its y is that of the edge on the trunk, so that the rules run
/// parallel to the axis.
PointList CBranch::BuildBranchEndList(const C3DPoints& edge, const Cut& cut) const {
    const C3DPoint centre = BranchEndCentre(cut);
    auto list = std::make_shared<C3DPoints>();
    list->Reserve(Round().Count());
    for (const auto& [i, theta, flag] : Round()) {
        const double u = std::cos(theta) * cut.rA;
        list->Add({std::cos(AxialAngle) * u + centre.x + std::cos(cut.beta) * cut.rB,
                   edge.Item(static_cast<std::size_t>(i)).y, std::sin(AxialAngle) * u + centre.z, flag});
    }
    return list;
}

CRuleSurf CBranch::BuildBranchSurface() const {
    const Cut cut = MakeCut(BranchRadiusPipeA, BranchRadiusPipeB);
    CRuleSurf surface;
    surface.List2 = BuildIntersectionList(cut);
    surface.List1 = BuildBranchEndList(*surface.List2, cut);
    if (RefusesShortBranch) {
        RequireCutWithinEnd(*surface.List2, *surface.List1, {std::sin(AxialAngle), 0, -std::cos(AxialAngle)},
                            "the branch pipe length");
    }
    return Trimmed(surface, TrimOf(inputs));
}

/// The axes cross s = rB / tan(alpha) above the point at which the branch's axis meets the trunk, and the
/// trunk's ends are told from there.
CRuleSurf CBranch::BuildTrunkSurface() const {
    const double s = Quotient(TrunkRadiusPipeB, std::tan(AxialAngle));
    CRightCylinder trunk;
    trunk.inputs = PieceInputs(inputs, {.JoinAngle = PI, .laps = NoLaps});
    trunk.BaseRad = TrunkRadiusPipeB;
    SetEnds(trunk, {.CPHeight1 = LengthPipeB - LengthToIP + s, .CPHeight2 = -(LengthToIP - s)});
    trunk.ConstructModel();

    CRuleSurf surface = trunk.results.ModelSurface;
    const PointList hole = BuildIntersectionList(MakeCut(TrunkRadiusPipeA, TrunkRadiusPipeB));
    // The first half of the trunk has y below 0; that is where the second half of the hole lies.
    surface.List3 = inputs.HalfPattern ? SecondHalf(*hole) : hole;
    return surface;
}

void CBranch::ConstructModel() {
    results.ModelSurfaceList = CRuleSurfs();
    results.ModelSurfaceList.Add(BuildBranchSurface());
    results.ModelSurfaceList.Add(BuildTrunkSurface());
    lift_ = results.ModelSurfaceList.Item(2).List2->Item(1).z;
    for (CRuleSurf& surface : results.ModelSurfaceList) {
        surface.Move({0, 0, lift_, PlainStation}, origin_);
    }
}

void CBranch::DevelopModel() {
    results.PatternSurfaceList = CRuleSurfs();
    ConstructModel();
    if (inputs.Miscellaneous == BranchPipePattern) {
        results.PatternSurfaceList.Add(DevelopBranch());
    } else if (inputs.Miscellaneous == TrunkPattern) {
        results.PatternSurfaceList.Add(DevelopTrunk());
    }
}

/// A point of the hole on the plate of length c, whose middle lies at plan angle 0 of the trunk.
C3DPoint CBranch::FlatHolePoint(const C3DPoint& point, double c) const {
    double a = PlanAngle(origin_, point);
    if (a > PI) {
        a -= FullTurn;
    }
    return {c / 2 + (a / FullTurn) * c, point.z, 0, point.Flag};
}

CRuleSurf CBranch::DevelopBranch() const {
    const CRuleSurf& model = results.ModelSurfaceList.Item(1);
    const double c = StretchOut(BranchRadiusPipeA, BranchThickness, TemplateType);
    CRuleSurf pattern = UnrolledRules(model, StraightEdge::List2, c / (2 * inputs.segs));
    TakeFlags(*pattern.List1, *pattern.List2);
    AddLaps(pattern, inputs);
    return pattern;
}

CRuleSurf CBranch::DevelopTrunk() const {
    const CRuleSurf& model = results.ModelSurfaceList.Item(2);
    const double c = StretchOut(TrunkRadiusPipeB, TrunkThickness, TemplateType);
    CRuleSurf pattern = UnrolledRules(model, StraightEdge::List2, c / (2 * inputs.segs));
    pattern.List3 = std::make_shared<C3DPoints>();
    pattern.List3->Reserve(model.List3->Count());
    for (const C3DPoint& point : *model.List3) {
        pattern.List3->Add(FlatHolePoint(point, c));
    }
    pattern.RefPoint = C3DPoint{pattern.List3->Item(1).x, -lift_, 0, PlainStation};
    pattern.RefPointDisplay = true;
    AddLaps(pattern, inputs);
    return pattern;
}

}  // namespace korvet
