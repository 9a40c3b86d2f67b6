// Typed sizes to mean sizes: a pattern is cut for the mean line of the material.
#pragma once

#include <cstdint>

namespace korvet {

/// The kind of wall that a dimension measures.
enum WallShape : std::int16_t {
    SlopingRoundWall = 0,  ///< radius of a cone; the angle is the half angle of the cone
    RoundWall = 1,         ///< radius of a pipe
    PlainWall = 2,         ///< as RoundWall
    TwoWalls = 3,          ///< overall width across two walls: ovals and rectangles
    PolygonCorner = 4,     ///< corner radius of a regular polygon
    SlopingFlatWall = 5    ///< as SlopingRoundWall: pyramid
};

/// Which line of the material a typed dimension means.
enum MaterialSide : std::int16_t { MeanDimension = 0, InsideDimension = 1, OutsideDimension = 2 };

struct CThickCompensator {
    double Thickness = 0;
    std::int16_t Position = MeanDimension;      ///< a MaterialSide
    std::int16_t Shapetype = SlopingRoundWall;  ///< a WallShape

    /// The mean distance of a typed one, in the user's unit. `angle` (radians) counts for sloping walls only,
    /// `sides` for polygons only. A position of mean gives the distance back exactly; an unknown shape gives
    /// 0. The result may be 0 or negative: the caller tests it.
    [[nodiscard]] double NewDistance(double distance, double angle, int sides) const;
};

}  // namespace korvet
