#include "exchange/cut_check.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>
#include <utility>

#include "core/math_module.h"
#include "core/number_text.h"
#include "exchange/cut_distance.h"
#include "exchange/cut_loops.h"
#include "exchange/dxf_annotations.h"

namespace korvet {
namespace {

/// The faults that are told of one by one.
constexpr std::size_t MostFaults = 20;

std::string PlaceText(const C3DPoint& place) {
    return "(" + RoundedText(place.x, 3) + ", " + RoundedText(place.y, 3) + ")";
}

bool IsNear(const C3DPoint& a, const C3DPoint& b) {
    return Distance3D(a, b) <= LargestGap;
}

bool IsFoldOfLap(CutPart part) {
    return part == CutPart::LapFold1 || part == CutPart::LapFold2;
}

/// The list of a surface that a part of its drawing goes along; null where that is a ruling.
const C3DPoints* ListOf(const CRuleSurf& surface, CutPart part) {
    for (const auto& [list, own] : PathsOf(surface)) {
        if (own == part && IsPresent(*list)) {
            return list->get();
        }
    }
    return nullptr;
}

/// Whether the line that ends at the end of a list of n points runs along its last segment.
bool RunsAlongLastSegment(const CutCurve& curve, const C3DPoints& list, std::size_t n) {
    const C3DPoint& a = list.Item(n - 1);
    const C3DPoint& b = list.Item(n);
    return !IsNear(a, b) && ((IsNear(curve.start, a) && IsNear(curve.end, b)) ||
                             (IsNear(curve.start, b) && IsNear(curve.end, a)));
}

/// What the folds of a surface leave to expect.
struct FoldsOfSurface {
    std::size_t repeated = 0;  ///< that lie on the fold before them
    std::size_t points = 0;    ///< that have no length

    explicit FoldsOfSurface(const CRuleSurf& surface) {
        std::size_t before = 0;
        for (std::size_t i = 2; i < StationCount(surface); ++i) {
            const C3DPoint& a = surface.List1->Item(i);
            const C3DPoint& b = surface.List2->Item(i);
            if (!IsRuleStation(a)) {
                continue;
            }
            if (IsNear(a, b)) {
                ++points;
            } else if (before != 0 && IsNear(surface.List1->Item(before), a) &&
                       IsNear(surface.List2->Item(before), b)) {
                ++repeated;
            }
            before = i;
        }
    }
};

/// One check, step by step.
class Checker {
  public:
    Checker(const CRuleSurfs& surfaces, PieceCurves lines, bool arcs)
        : surfaces_(surfaces),
          arcs_(arcs),
          lines_(std::move(lines)),
          outlines_(surfaces.Count()),
          thirdLines_(surfaces.Count()) {
        for (const CRuleSurf& surface : surfaces) {
            folds_.emplace_back(surface);
        }
        TakeLines();
    }

    CutCheck Run() {
        nodes_ = NodesOf(lines_);
        FindDoubled();
        Measure();
        SortOutPieces();
        double area = 0;
        for (std::size_t piece = 1; piece <= surfaces_.Count(); ++piece) {
            if (StationCount(surfaces_.Item(piece)) > 0) {
                area += CheckPiece(piece);
            }
        }
        if (check_.openOutlines == 0) {
            check_.area = area;
        }
        return check_;
    }

  private:
    void Fault(std::size_t piece, const std::string& text) {
        if (check_.faults.size() < MostFaults) {
            check_.faults.push_back("piece " + std::to_string(piece) + ": " + text);
        }
    }

    [[nodiscard]] const PieceCurve& LineOf(const CutStretch& stretch) const { return lines_[stretch.curve]; }

    [[nodiscard]] C3DPoint MiddleOf(const CutStretch& stretch) const {
        return PointAt(ShapeOf(lines_, stretch), 0.5);
    }

    void TakeLines();
    [[nodiscard]] bool IsLastSegmentAgain(std::size_t begin, std::size_t end) const;
    void TakeEntity(std::size_t begin, std::size_t end, std::size_t& taken);
    bool TakePoint(const PieceCurve& line);
    void FindDoubled();
    void TakeDoubled(const CutStretch& stretch, const PieceCurve& other);
    void TakeRepeatedFold(const CutStretch& stretch);
    void Measure();
    void SortOutPieces();
    double CheckPiece(std::size_t piece);
    double CheckThirdLine(std::size_t piece, const std::vector<CutLoop>& outline);
    [[nodiscard]] bool EndOnOutline(std::size_t piece, const std::vector<OpenEnd>& ends) const;

    const CRuleSurfs& surfaces_;
    bool arcs_;
    CutCheck check_;
    std::vector<FoldsOfSurface> folds_;  ///< by piece; counted down as they are found
    PieceCurves lines_;                  ///< without those that are written once more on purpose
    CutNodes nodes_;
    std::vector<std::vector<std::size_t>> outlines_;  ///< stretches by piece
    std::vector<std::vector<std::size_t>> thirdLines_;
    std::set<std::size_t> foldsOnEdges_;  ///< entities
    std::set<std::size_t> repeatedFolds_;
    std::set<std::size_t> sharedCuts_;
    std::set<std::size_t> seams_;
    std::set<std::size_t> doubled_;
};

/// Takes the lines part by part, and of each part entity by entity. Those that stay close up.
void Checker::TakeLines() {
    std::size_t taken = 0;
    for (std::size_t begin = 0; begin < lines_.size();) {
        std::size_t end = begin;
        while (end < lines_.size() && lines_[end].piece == lines_[begin].piece &&
               lines_[end].part == lines_[begin].part) {
            ++end;
        }
        const bool again = IsLastSegmentAgain(begin, end);
        const bool lapped =
            again &&
            ListOf(surfaces_.Item(lines_[begin].piece), lines_[begin].part)->Last().Flag == LapClosure;
        const std::size_t left = again ? end - (lapped ? 2U : 1U) : end;
        for (std::size_t i = begin; i < end;) {
            std::size_t next = i;
            while (next < end && lines_[next].entity == lines_[i].entity) {
                ++next;
            }
            if (i != left) {
                TakeEntity(i, next, taken);
            }
            i = next;
        }
        check_.onPurpose.lastSegments += again ? 1U : 0U;
        begin = end;
    }
    lines_.resize(taken);
}

/// An edge goes out two segments at a time. Where its number of points is even, the last segment is the
/// second half of the last step, and comes once more behind it: before the line to the end of a seam lap.
bool Checker::IsLastSegmentAgain(std::size_t begin, std::size_t end) const {
    const C3DPoints* list = ListOf(surfaces_.Item(lines_[begin].piece), lines_[begin].part);
    if (!arcs_ || list == nullptr || list->Count() <= 2) {
        return false;
    }
    const std::size_t tab = list->Last().Flag == LapClosure ? 1U : 0U;
    const std::size_t n = list->Count() - tab;
    if (n % 2 == 1 || n < 4 || end - begin < 2 + tab) {
        return false;
    }
    const CutCurve& last = lines_[end - tab - 1].curve;
    const CutCurve& before = lines_[end - tab - 2].curve;
    return RunsAlongLastSegment(last, *list, n) &&
           (IsNear(before.start, list->Item(n)) || IsNear(before.end, list->Item(n)));
}

void Checker::TakeEntity(std::size_t begin, std::size_t end, std::size_t& taken) {
    double length = 0;
    for (std::size_t i = begin; i < end; ++i) {
        length += LengthOf(lines_[i].curve);
    }
    if (length > SamePlace) {
        for (std::size_t i = begin; i < end; ++i) {
            lines_[taken++] = lines_[i];
        }
    } else if (TakePoint(lines_[begin])) {
        ++check_.onPurpose.points;
    } else {
        ++check_.zeroLength;
        Fault(lines_[begin].piece, "a line without length at " + PlaceText(lines_[begin].curve.start));
    }
}

/// Whether the surface itself has a point here: a strip may end in one, as a cone does, and so may an edge
/// and a fold.
bool Checker::TakePoint(const PieceCurve& line) {
    const CRuleSurf& surface = surfaces_.Item(line.piece);
    const auto isPoint = [&](std::size_t i) {
        return IsNear(surface.List1->Item(i), surface.List2->Item(i));
    };
    if (line.part == CutPart::FirstEnd || line.part == CutPart::LastEnd) {
        return isPoint(line.part == CutPart::FirstEnd ? 1 : StationCount(surface));
    }
    if (line.part == CutPart::Bend) {
        std::size_t& left = folds_[line.piece - 1].points;
        const bool isPointFold = left > 0;
        left -= isPointFold ? 1U : 0U;
        return isPointFold;
    }
    const C3DPoints* list = ListOf(surface, line.part);
    return list != nullptr && std::all_of(list->begin(), list->end(), [&](const C3DPoint& point) {
               return IsNear(point, list->Item(1));
           });
}

void Checker::FindDoubled() {
    for (const CutStretch& stretch : nodes_.stretches) {
        const CutStretch& first = nodes_.stretches[stretch.same];
        const PieceCurve& other = LineOf(first);
        // Neighbours on a curve may overlap by less than a gap between them may be wide.
        const bool counts =
            LengthOf(ShapeOf(lines_, stretch)) > LargestGap || stretch.IsWhole() || first.IsWhole();
        if (counts && LineOf(stretch).entity != other.entity) {
            TakeDoubled(stretch, other);
        }
    }
    check_.onPurpose.foldsOnEdges = foldsOnEdges_.size();
    check_.onPurpose.sharedCuts = sharedCuts_.size();
    check_.onPurpose.seams = seams_.size();
    check_.doubled = doubled_.size();
}

void Checker::TakeDoubled(const CutStretch& stretch, const PieceCurve& other) {
    const PieceCurve& own = LineOf(stretch);
    const auto isEnd = [](CutPart part) { return part == CutPart::FirstEnd || part == CutPart::LastEnd; };
    if (IsCut(own.part) != IsCut(other.part)) {
        foldsOnEdges_.insert(IsCut(own.part) ? other.entity : own.entity);
    } else if (own.piece != other.piece) {
        sharedCuts_.insert(own.entity);
    } else if (own.part == CutPart::Bend && other.part == CutPart::Bend) {
        TakeRepeatedFold(stretch);
    } else if (isEnd(own.part) && isEnd(other.part) && own.part != other.part) {
        seams_.insert(own.entity);
    } else if (doubled_.insert(own.entity).second) {
        Fault(own.piece, "a doubled line at " + PlaceText(MiddleOf(stretch)));
    }
}

/// Folds lie on one another where stations are repeated, and only as often.
void Checker::TakeRepeatedFold(const CutStretch& stretch) {
    const PieceCurve& own = LineOf(stretch);
    if (!repeatedFolds_.insert(own.entity).second) {
        return;
    }
    std::size_t& left = folds_[own.piece - 1].repeated;
    if (left > 0) {
        --left;
        ++check_.onPurpose.repeatedFolds;
    } else {
        doubled_.insert(own.entity);
        Fault(own.piece, "a doubled fold at " + PlaceText(MiddleOf(stretch)));
    }
}

void Checker::Measure() {
    std::set<std::size_t> folds;
    std::vector<bool> isMeasured(nodes_.stretches.size());
    std::set<std::pair<std::size_t, CutPart>> lapFolds;
    for (const CutStretch& stretch : nodes_.stretches) {
        const PieceCurve& line = LineOf(stretch);
        if (IsCut(line.part)) {
            check_.cutLength += isMeasured[stretch.same] ? 0 : LengthOf(ShapeOf(lines_, stretch));
            isMeasured[stretch.same] = true;
        } else if (IsFoldOfLap(line.part)) {
            lapFolds.insert({line.piece, line.part});
            check_.lapFoldLength += LengthOf(ShapeOf(lines_, stretch));
        } else if (foldsOnEdges_.count(line.entity) + repeatedFolds_.count(line.entity) == 0) {
            folds.insert(line.entity);
        }
    }
    check_.bends = folds.size();
    check_.lapFolds = lapFolds.size();
}

/// Sorts out the stretches that bound each piece and those of its third line. What an edge has twice is taken
/// once; the two sides of a seam stay two.
void Checker::SortOutPieces() {
    std::set<std::tuple<std::size_t, std::size_t, CutPart>> again;  // of the few that lie on another one
    for (std::size_t i = 0; i < nodes_.stretches.size(); ++i) {
        const CutStretch& stretch = nodes_.stretches[i];
        const PieceCurve& line = LineOf(stretch);
        const PieceCurve& first = LineOf(nodes_.stretches[stretch.same]);
        const bool isFirst = stretch.same == i || ((line.piece != first.piece || line.part != first.part) &&
                                                   again.emplace(stretch.same, line.piece, line.part).second);
        if (IsCut(line.part) && isFirst) {
            (IsOutline(line.part) ? outlines_ : thirdLines_)[line.piece - 1].push_back(i);
        }
    }
}

/// The area of the piece without its holes, as far as that can be said.
double Checker::CheckPiece(std::size_t piece) {
    ++check_.pieces;
    const JoinedLoops joined = JoinLoops(lines_, nodes_, outlines_[piece - 1]);
    check_.widestGap = std::max(check_.widestGap, joined.widestGap);
    for (const OpenEnd& end : joined.openEnds) {
        const bool hasNext = std::isfinite(end.toNext);
        Fault(piece, "the outline is open at " + PlaceText(end.place) +
                         (hasNext ? ", " + RoundedText(end.toNext, 4) + " from the next end" : ""));
    }
    check_.openOutlines += joined.openEnds.empty() ? 0U : 1U;
    return AreaOf(joined.loops) - CheckThirdLine(piece, joined.loops);
}

/// Whether no point of the hole lies outside the piece and none of the outline inside the hole.
bool LiesWithin(std::span<const CutLoop> hole, std::span<const CutLoop> outline) {
    const auto all = [](std::span<const CutLoop> loops, bool inside, const LoopRegion& region) {
        return std::all_of(loops.begin(), loops.end(), [&](const CutLoop& loop) {
            return std::all_of(loop.curves.begin(), loop.curves.end(), [&](const CutCurve& curve) {
                return region.Contains(PointAt(curve, 0)) == inside &&
                       region.Contains(PointAt(curve, 0.5)) == inside;
            });
        });
    };
    return all(hole, true, LoopRegion(outline)) && all(outline, false, LoopRegion(hole));
}

/// The area of the holes that the third line makes.
double Checker::CheckThirdLine(std::size_t piece, const std::vector<CutLoop>& outline) {
    const std::vector<std::size_t>& stretches = thirdLines_[piece - 1];
    if (stretches.empty()) {
        return 0;
    }
    const JoinedLoops joined = JoinLoops(lines_, nodes_, stretches);
    check_.widestGap = std::max(check_.widestGap, joined.widestGap);
    if (!joined.openEnds.empty()) {
        if (joined.openEnds.size() == 2 && EndOnOutline(piece, joined.openEnds)) {
            ++check_.onPurpose.openLines;
        } else {
            ++check_.openHoles;
            Fault(piece, "the hole is open at " + PlaceText(joined.openEnds.front().place));
        }
        return 0;
    }
    check_.holes += joined.loops.size();
    if (!outline.empty() && !LiesWithin(joined.loops, outline)) {
        ++check_.holesOutside;
        Fault(piece, "a hole leaves the piece at " + PlaceText(PointOf(joined.loops.front())));
    }
    return AreaOf(joined.loops);
}

bool Checker::EndOnOutline(std::size_t piece, const std::vector<OpenEnd>& ends) const {
    return std::all_of(ends.begin(), ends.end(), [&](const OpenEnd& end) {
        return std::any_of(outlines_[piece - 1].begin(), outlines_[piece - 1].end(), [&](std::size_t i) {
            return DistanceOf(ShapeOf(lines_, nodes_.stretches[i]), end.place) <= LargestGap;
        });
    });
}

}  // namespace

CutCheck CheckCutFile(const CRuleSurfs& surfaces, PieceCurves lines, bool arcs) {
    const double fromPoints = DistanceFromPoints(surfaces, lines);
    CutCheck check = Checker(surfaces, std::move(lines), arcs).Run();
    check.fromPoints = fromPoints;
    return check;
}

}  // namespace korvet
