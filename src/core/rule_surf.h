// The one geometric object of the program: a strip between two edges, ruled item by item.
#pragma once

#include <memory>
#include <optional>

#include "core/dimensions.h"
#include "core/points.h"

namespace korvet {

/// Axis of a rotation. On the second one the angle runs from x to z, against the right-hand rule: fittings
/// pass their signs to suit it.
enum class Axis { X = 1, Y = 2, Z = 3 };

/// A strip between List1 and List2, which have equal counts: item i of List1 is ruled to item i of List2, and
/// a crease is a repeated item. Lists are shared between surfaces on purpose; Move and Rotate put new lists
/// in the place of the old ones, so that another holder of an old list keeps its points. An absent list is
/// null.
struct CRuleSurf {
    bool RefPointDisplay = false;                ///< the display draws RefPoint
    std::optional<C3DPoint> RefPoint;            ///< apex of a cone, first point of a development
    std::shared_ptr<CDimensions> DimensionList;  ///< dimensions that belong to this surface
    PointList LapList1;                          ///< fold line of the lap on the List1 side
    PointList LapList2;                          ///< fold line of the lap on the List2 side
    PointList List3;                             ///< a further line on the surface; takes no part in rulings
    PointList List2;
    PointList List1;

    /// Moves lists and RefPoint by the vector from `from` to `to`. What is absent stays absent.
    void Move(const C3DPoint& from, const C3DPoint& to);

    /// A new list with every point of `list` moved by the vector from `from` to `to`, flags kept.
    [[nodiscard]] static PointList MoveList(const C3DPoints& list, const C3DPoint& from, const C3DPoint& to);

    /// Rotates lists and RefPoint about the axis through `centre`; angle in radians. What is absent stays
    /// absent.
    void Rotate(Axis axis, const C3DPoint& centre, double angle);

    /// Rotates one list: 1 to 3 are List1 to List3, 4 and 5 are LapList1 and LapList2, another number does
    /// nothing, and so does an absent list.
    void RotateList(int listNumber, Axis axis, const C3DPoint& centre, double angle);
};

/// One-based collection of surfaces.
class CRuleSurfs {
  public:
    /// Appends a new surface that shares List1 to List3, LapList1, LapList2 of `surface` and takes over its
    /// reference point; DimensionList is left behind. Returns the stored surface.
    CRuleSurf& Add(const CRuleSurf& surface);

    [[nodiscard]] CRuleSurf& Item(std::size_t index) { return surfaces_.Item(index); }
    [[nodiscard]] const CRuleSurf& Item(std::size_t index) const { return surfaces_.Item(index); }
    [[nodiscard]] std::size_t Count() const { return surfaces_.Count(); }
    void Remove(std::size_t index) { surfaces_.Remove(index); }

    auto begin() { return surfaces_.begin(); }
    auto end() { return surfaces_.end(); }
    auto begin() const { return surfaces_.begin(); }
    auto end() const { return surfaces_.end(); }

  private:
    OneBasedList<CRuleSurf> surfaces_;
};

/// The stations that a half or a quarter pattern keeps, as a new surface of copies. With n the count of
/// List1: stations 1 to n / 2 + 1 (n / 4 + 1 with `quarter`), or with `fromEnd` stations n down to that
/// number, so that the new surface runs backwards from the seam. List3 and the lap lists are carried where
/// present (more than one point) and indexed by the same station; RefPoint, RefPointDisplay and DimensionList
/// are not. Throws ListError when a list is missing or shorter than List1.
CRuleSurf TrimSurface(const CRuleSurf& surface, bool quarter, bool fromEnd);

/// The largest size and coordinate that a fitting may have, in the user's unit: a coordinate of this size
/// still has the digits for a thousandth.
inline constexpr double LargestSize = 1e9;

/// Throws ArithmeticError when a coordinate of the surface is no number or above LargestSize in magnitude.
void RequireWithinReach(const CRuleSurf& surface);

}  // namespace korvet
