#include "exchange/dxf_arcs.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "core/number_text.h"

namespace korvet {
namespace {

constexpr double StraightTurn = 1e-08;
constexpr double CentreTolerance = 0.0001;

/// An entity that passes a station of the edge at more than this misses it.
constexpr double StationTolerance = 0.001;

double RoundedDistance(const C3DPoint& a, const C3DPoint& b) {
    return RoundPlaces(Distance3D(a, b), DxfPlaces);
}

double RoundedBearing(const C3DPoint& a, const C3DPoint& b) {
    return RoundPlaces(PlanAngle(a, b), DxfPlaces);
}

/// Change of bearing at p2, from 0; a full turn counts as none.
double TurnAt(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3) {
    const double turn = AbsValue(PlanAngle(p2, p3) - PlanAngle(p1, p2));
    return RoundPlaces(turn, DxfPlaces) == RoundPlaces(FullTurn, DxfPlaces) ? 0 : turn;
}

bool TurnsLeft(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3) {
    return (p2.x - p1.x) * (p3.y - p2.y) > (p2.y - p1.y) * (p3.x - p2.x);
}

/// Whether the shorter way round the centre from p1 to p2 is counter-clockwise.
bool RunsCounterClockwise(const C3DPoint& centre, const C3DPoint& p1, const C3DPoint& p2) {
    const double u = PlanAngle(centre, p2) - PlanAngle(centre, p1);
    return AbsValue(u) >= PI ? u < 0 : u > 0;
}

bool IsCentre(const C3DPoint& centre, const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3) {
    const auto [nearest, farthest] =
        std::minmax({Distance3D(centre, p1), Distance3D(centre, p2), Distance3D(centre, p3)});
    return farthest - nearest <= CentreTolerance;
}

/// The part of the circle through a triple that is drawn, as WriteArc takes it: counter-clockwise.
struct Arc {
    C3DPoint centre;
    C3DPoint start;
    C3DPoint end;
    bool forward = true;  ///< whether the edge runs from start to end, too
};

/// What the rounding of its angles does to an arc. On a radius above some 1e05 units a step of their last
/// place is longer than a gap may be wide.
struct AngleSteps {
    double startGap = 0;    ///< length missing at the start; negative where the arc begins before it
    double endGap = 0;      ///< the same at the end
    bool areEqual = false;  ///< readers take that for a full circle

    explicit AngleSteps(const Arc& arc) {
        const double start = RadToDeg(PlanAngle(arc.centre, arc.start));
        const double end = RadToDeg(PlanAngle(arc.centre, arc.end));
        const double writtenStart = RoundPlaces(start, DxfPlaces);
        const double writtenEnd = RoundPlaces(end, DxfPlaces);
        const double radius = Distance3D(arc.centre, arc.start);
        startGap = radius * DegToRad(writtenStart - start);
        endGap = radius * DegToRad(end - writtenEnd);
        areEqual = std::fmod(writtenEnd - writtenStart + 360, 360) == 0;
    }
};

/// The part of the circle through p1, p2, p3 that runs from s to e; nothing where it would miss its points.
std::optional<Arc> ArcOver(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3, const C3DPoint& s,
                           const C3DPoint& e) {
    try {
        const C3DPoint centre = ThreePointCentre(p1, p2, p3);
        const bool forward = RunsCounterClockwise(centre, p1, p2);
        if (IsCentre(centre, p1, p2, p3) && forward == TurnsLeft(p1, p2, p3)) {
            return Arc{centre, forward ? s : e, forward ? e : s, forward};
        }
    } catch (const ArithmeticError&) {
        // No circle: the points lie on one another but for a rounding.
    }
    return std::nullopt;
}

/// Writes the entities of one edge, in its direction.
class EdgeWalk {
  public:
    EdgeWalk(DxfStream& out, std::string_view layer) : out_(out), layer_(layer) {}

    void Line(const C3DPoint& a, const C3DPoint& b) {
        out_.WriteLine(a, b, layer_);
        gapBehind_ = 0;
    }

    void TripleArc(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3, ArcPart part);

    /// The first n points of the list, n being at least 3.
    void Curve(const C3DPoints& list, std::size_t n);

  private:
    bool TryArc(const Arc& arc);
    void LineOver(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3);
    void FirstSegment(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3);
    void LastSegment(const C3DPoint& a, const C3DPoint& b, const C3DPoint& c);
    void TwoSegments(const C3DPoint& a, const C3DPoint& b, const C3DPoint& c, const C3DPoint& d,
                     const C3DPoint* e);

    /// The segment p2 to p3 as part of the arc through the triple, or a LINE p2 to `to`.
    void ArcOrLineTo(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3, const C3DPoint& to) {
        if (ClassifyTriple(p1, p2, p3) == Triple::Smooth) {
            TripleArc(p1, p2, p3, ArcPart::Second);
        } else {
            Line(p2, to);
        }
    }

    /// The segment p1 to p2 as part of the arc through the triple, or a LINE `from` to p2. Where the list
    /// ends before a p3 nothing is smooth.
    void ArcOrLineFrom(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint* p3, const C3DPoint& from) {
        if (p3 != nullptr && ClassifyTriple(p1, p2, *p3) == Triple::Smooth) {
            TripleArc(p1, p2, *p3, ArcPart::First);
        } else {
            Line(from, p2);
        }
    }

    DxfStream& out_;
    std::string_view layer_;
    double gapBehind_ =
        0;  ///< by which the last entity, as written, ends before its end, or behind it if negative
};

/// Writes the arc unless it would miss an end or leave a gap to the entity before it, or run over either, by
/// more than a station may be missed by.
bool EdgeWalk::TryArc(const Arc& arc) {
    const AngleSteps steps(arc);
    const double gapBefore = arc.forward ? steps.startGap : steps.endGap;
    const double gapBehind = arc.forward ? steps.endGap : steps.startGap;
    const double widest =
        std::max({AbsValue(gapBefore), AbsValue(gapBehind), AbsValue(gapBehind_ + gapBefore)});
    if (steps.areEqual || widest > StationTolerance) {
        return false;
    }
    out_.WriteArc(arc.start, arc.end, arc.centre, layer_);
    gapBehind_ = gapBehind;
    return true;
}

void EdgeWalk::TripleArc(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3, ArcPart part) {
    const bool straight = TurnAt(p1, p2, p3) <= StraightTurn;
    if (straight && part == ArcPart::Whole) {
        LineOver(p1, p2, p3);
        return;
    }
    const C3DPoint& s = part == ArcPart::Second ? p2 : p1;
    const C3DPoint& e = part == ArcPart::First ? p2 : p3;
    const auto arc = straight ? std::nullopt : ArcOver(p1, p2, p3, s, e);
    if (arc && TryArc(*arc)) {
        return;
    }
    if (part != ArcPart::Second) {
        Line(p1, p2);
    }
    if (part != ArcPart::First) {
        Line(p2, p3);
    }
}

/// One LINE over two segments that are as good as straight; two LINEs where it would miss the point between.
void EdgeWalk::LineOver(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3) {
    const double area = (p2.x - p1.x) * (p3.y - p1.y) - (p2.y - p1.y) * (p3.x - p1.x);
    if (AbsValue(area) <= StationTolerance * Distance3D(p1, p3)) {
        Line(p1, p3);
    } else {
        Line(p1, p2);
        Line(p2, p3);
    }
}

void EdgeWalk::Curve(const C3DPoints& list, std::size_t n) {
    FirstSegment(list.Item(1), list.Item(2), list.Item(3));
    for (std::size_t i = 3; i <= n - 1; i += 2) {
        const C3DPoint* next = i + 2 <= n ? &list.Item(i + 2) : nullptr;
        TwoSegments(list.Item(i - 2), list.Item(i - 1), list.Item(i), list.Item(i + 1), next);
    }
    LastSegment(list.Item(n - 2), list.Item(n - 1), list.Item(n));
}

void EdgeWalk::FirstSegment(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3) {
    const Triple kind = ClassifyTriple(p1, p2, p3);
    if (kind == Triple::Smooth) {
        TripleArc(p1, p2, p3, ArcPart::First);
    } else if (kind != Triple::AllCoincide && kind != Triple::FirstPairCoincides) {
        Line(p1, p2);
    }
}

void EdgeWalk::LastSegment(const C3DPoint& a, const C3DPoint& b, const C3DPoint& c) {
    const Triple kind = ClassifyTriple(a, b, c);
    if (kind == Triple::Smooth) {
        TripleArc(a, b, c, ArcPart::Second);
    } else if (kind != Triple::AllCoincide && kind != Triple::SecondPairCoincides) {
        Line(b, c);
    }
}

/// The segments b to c and c to d. a lies before them, and e behind them where the list goes on.
void EdgeWalk::TwoSegments(const C3DPoint& a, const C3DPoint& b, const C3DPoint& c, const C3DPoint& d,
                           const C3DPoint* e) {
    switch (ClassifyTriple(b, c, d)) {
        case Triple::Smooth:
            TripleArc(b, c, d, ArcPart::Whole);
            break;
        case Triple::AllCoincide:
            break;
        case Triple::FirstPairCoincides:
            ArcOrLineFrom(c, d, e, b);
            break;
        case Triple::SecondPairCoincides:
            ArcOrLineTo(a, b, c, d);
            break;
        case Triple::Straight:
            LineOver(b, c, d);
            break;
        case Triple::DoublesBack:
            Line(b, c);
            Line(c, d);
            break;
        case Triple::Corner:
            ArcOrLineTo(a, b, c, c);
            ArcOrLineFrom(c, d, e, c);
            break;
    }
}

}  // namespace

Triple ClassifyTriple(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3) {
    const double d12 = RoundedDistance(p1, p2);
    const double d23 = RoundedDistance(p2, p3);
    const double d13 = RoundedDistance(p1, p3);
    if (d12 + d23 + d13 == 0) {
        return Triple::AllCoincide;
    }
    if (d12 == 0) {
        return Triple::FirstPairCoincides;
    }
    if (d23 == 0) {
        return Triple::SecondPairCoincides;
    }
    if (d12 + d23 == d13) {
        return Triple::Straight;
    }
    if (RoundedBearing(p2, p1) == RoundedBearing(p2, p3)) {
        return Triple::DoublesBack;
    }
    return p2.Flag == CornerStation || p2.Flag == CornerRuleStation ? Triple::Corner : Triple::Smooth;
}

C3DPoint ThreePointCentre(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3) {
    // The inscribed angle g at p2 stands over the chord p1 to p3, whose central angle is w = 2 (PI - g);
    // then r = (a / 2) / sin(w / 2).
    double a = Distance3D(p1, p3);
    double b = Distance3D(p1, p2);
    double c = Distance3D(p2, p3);
    const double g = TriangleAngle(a, b, c);
    double w = (PI - g) + (PI - g);
    if (w == 0) {
        w = 1e-05;
    }
    const double r = RoundPlaces(Quotient(a / 2, std::sin(w / 2)), 10);
    const double h = RoundPlaces(ArcCos(Quotient(a / 2, r)) + PlanAngle(p1, p3), 10);

    // One centre lies on each side of the chord; the right one is as far from p2 as from p1.
    const C3DPoint left = PolarPoint(p1, h, r);
    const C3DPoint right = PolarPoint(p3, h + PI, r);
    const auto miss = [&](const C3DPoint& centre) {
        return AbsValue(Distance3D(centre, p2) - Distance3D(centre, p1));
    };
    return miss(left) <= miss(right) ? left : right;
}

void WriteTripleArc(DxfStream& out, const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3,
                    std::string_view layer, ArcPart part) {
    EdgeWalk(out, layer).TripleArc(p1, p2, p3, part);
}

void WriteArcPath(DxfStream& out, const C3DPoints& list, std::string_view layer) {
    if (list.Count() < 2) {
        return;
    }
    EdgeWalk walk(out, layer);
    const bool lapped = list.Last().Flag == LapClosure;
    const std::size_t n = list.Count() - (lapped ? 1 : 0);
    if (n == 2) {
        walk.Line(list.Item(1), list.Item(2));
    } else if (n > 2) {
        walk.Curve(list, n);
    }
    if (lapped) {
        walk.Line(list.Item(n), list.Last());
    }
}

}  // namespace korvet
