// What lies where on a picture: which of many areas may meet another, without asking each of them.
#pragma once

#include <cstddef>
#include <vector>

#include "sketch/solid.h"

namespace korvet {

/// A rectangle on a picture that lies as its contents do: the strips of a pipe or cone that stands aslant are
/// long and thin, and upright boxes about them would all overlap.
struct SolidPlace {
    SketchXY middle;
    SketchXY along = {1, 0};  ///< of length 1
    double halfLength = 0;    ///< in that direction
    double halfWidth = 0;     ///< across it

    /// About points, along the longest step from one to the next.
    static SolidPlace About(const std::vector<SketchXY>& points);

    /// Whether the two overlap by more than a border.
    [[nodiscard]] bool Meets(const SolidPlace& other) const;
};

/// Areas in groups of neighbours, and groups of groups: one that does not meet rules out all that it holds.
class PlaceTree {
  public:
    explicit PlaceTree(std::vector<SolidPlace> places);

    [[nodiscard]] const std::vector<SolidPlace>& Places() const { return places_; }

    /// The numbers of all areas that meet one, in ascending order, and how many comparisons it took.
    struct Found {
        std::vector<std::size_t> numbers;
        std::size_t compared = 0;
    };
    [[nodiscard]] Found Meeting(const SolidPlace& place) const;

  private:
    struct Group {
        SolidPlace place;
        std::size_t first = 0;  ///< its members are [first, end) of order_
        std::size_t end = 0;
        std::size_t next = 0;  ///< the group behind all those inside this one
    };

    [[nodiscard]] SolidPlace PlaceOf(std::size_t first, std::size_t end) const;
    void AddGroup(std::size_t first, std::size_t end);

    std::vector<SolidPlace> places_;
    std::vector<std::size_t> order_;  ///< numbers of areas, group by group
    std::vector<Group> groups_;       ///< each before those inside it
};

}  // namespace korvet
