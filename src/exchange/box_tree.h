// Boxes that are found by their place: what lies about a point or a line without asking all of them.
#pragma once

#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

#include "display/bounds.h"

namespace korvet {

/// The distance from the point to the box, 0 inside.
double DistanceOf(const Bounds& box, double x, double y);

/// A tree over boxes that do not change. An item is the number of its box, from 0.
class BoxTree {
  public:
    explicit BoxTree(std::vector<Bounds> boxes);

    /// Hands every item to `visit` whose box, and the boxes of the tree above it, `reaches` says true of.
    template <typename Reaches, typename Visit>
    void Find(Reaches reaches, Visit visit) const {
        std::vector<std::size_t> open(branches_.empty() ? 0 : 1, 0);
        while (!open.empty()) {
            const Branch& branch = branches_[open.back()];
            const std::size_t self = open.back();
            open.pop_back();
            if (!reaches(branch.box)) {
                continue;
            }
            if (branch.second != 0) {
                open.push_back(branch.second);
                open.push_back(self + 1);
                continue;
            }
            for (std::size_t i = branch.begin; i < branch.end; ++i) {
                if (reaches(boxes_[items_[i]])) {
                    visit(items_[i]);
                }
            }
        }
    }

    /// The least distance of an item from the point, by the distance that `distance` tells of an item, which
    /// is no less than that of its box; infinite when there is none, and when none is nearer than `limit`.
    template <typename Distance>
    [[nodiscard]] double Nearest(double x, double y, Distance distance,
                                 double limit = std::numeric_limits<double>::infinity()) const {
        double least = limit;
        bool found = false;
        NearestIn(0, x, y, distance, least, found);
        return found ? least : std::numeric_limits<double>::infinity();
    }

  private:
    struct Branch {
        Bounds box;
        std::size_t begin = 0;  ///< of items_
        std::size_t end = 0;
        std::size_t second = 0;  ///< second branch below; the first follows this one. 0 at a leaf
    };

    std::size_t Grow(std::size_t begin, std::size_t end);

    template <typename Distance>
    void NearestIn(std::size_t self, double x, double y, Distance& distance, double& least,
                   bool& found) const {
        if (branches_.empty() || DistanceOf(branches_[self].box, x, y) > least) {
            return;
        }
        const Branch& branch = branches_[self];
        if (branch.second == 0) {
            for (std::size_t i = branch.begin; i < branch.end; ++i) {
                const double own = distance(items_[i]);
                if (own <= least) {
                    least = own;
                    found = true;
                }
            }
            return;
        }
        std::size_t nearer = self + 1;
        std::size_t farther = branch.second;
        if (DistanceOf(branches_[farther].box, x, y) < DistanceOf(branches_[nearer].box, x, y)) {
            std::swap(nearer, farther);
        }
        NearestIn(nearer, x, y, distance, least, found);
        NearestIn(farther, x, y, distance, least, found);
    }

    std::vector<Bounds> boxes_;
    std::vector<std::size_t> items_;
    std::vector<Branch> branches_;
};

}  // namespace korvet
