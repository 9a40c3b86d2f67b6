// What a drawing file holds of the pieces that are cut from it, as a reader of the file finds it.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "core/rule_surf.h"
#include "exchange/cut_curve.h"

namespace korvet {

/// What a line of a surface is to the piece.
enum class CutPart : std::uint8_t {
    FirstEnd,  ///< the ruling at which the strip begins: cut
    LastEnd,   ///< the ruling at which it ends: cut
    Edge1,     ///< List1: cut
    Edge2,     ///< List2: cut
    Line3,     ///< List3, mostly a hole: cut
    Bend,      ///< a ruled station between the ends: folded
    LapFold1,  ///< LapList1: folded, though it lies on the layer of the cuts
    LapFold2   ///< LapList2: the same
};

/// Whether a part bounds its piece.
constexpr bool IsOutline(CutPart part) {
    return part == CutPart::FirstEnd || part == CutPart::LastEnd || part == CutPart::Edge1 ||
           part == CutPart::Edge2;
}

constexpr bool IsCut(CutPart part) {
    return IsOutline(part) || part == CutPart::Line3;
}

/// The lists of a surface that are paths of a drawing, in the order in which they go out.
inline std::array<std::pair<const PointList*, CutPart>, 5> PathsOf(const CRuleSurf& surface) {
    return {{{&surface.List1, CutPart::Edge1},
             {&surface.List2, CutPart::Edge2},
             {&surface.List3, CutPart::Line3},
             {&surface.LapList1, CutPart::LapFold1},
             {&surface.LapList2, CutPart::LapFold2}}};
}

/// A stretch of the text of a drawing file, and what its entities are.
struct DxfPart {
    std::size_t piece = 0;  ///< number of the surface, from 1
    CutPart part = CutPart::FirstEnd;
    std::size_t begin = 0;  ///< byte of the text
    std::size_t end = 0;    ///< the byte behind it
};

/// A line, an arc, or a stretch of a polyline.
struct PieceCurve {
    CutCurve curve;
    std::size_t piece = 0;
    CutPart part = CutPart::FirstEnd;
    std::size_t entity = 0;  ///< number of the entity in the file, from 0
};

using PieceCurves = std::vector<PieceCurve>;

/// The lines, arcs and polylines in the parts of a drawing file, in their order. A polyline gives a curve for
/// each two vertices. An arc between equal angles is a circle, as readers take it. Throws FileError when an
/// entity lacks a number.
PieceCurves ReadPieceCurves(std::string_view text, const std::vector<DxfPart>& parts);

}  // namespace korvet
