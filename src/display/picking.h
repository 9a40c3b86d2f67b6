// Points by their numbers: what a click hits, and where the ends of a dimension lie.
#pragma once

#include <optional>

#include "core/dimensions.h"
#include "core/points.h"
#include "core/rule_surf.h"

namespace korvet {

/// A picked point. The numbers are those of a dimension's end: ListNo is a ListNumber, all count from 1 but
/// for ReferencePointList, whose PointNo is 0.
struct CNearestPoint {
    int surfaceNo = 0;
    int ListNo = 0;
    int PointNo = 0;
    C3DPoint ScreenPoint;  ///< as drawn
    C3DPoint TruePoint;    ///< of the real surface
};

/// The ends of a dimension; nothing where the numbers name no point of the surfaces or of the frame.
std::optional<C3DPoint> DimensionPoint1(const CDimension& dimension, const CRuleSurfs& surfaces,
                                        const C3DPoints& extentFrame);
std::optional<C3DPoint> DimensionPoint2(const CDimension& dimension, const CRuleSurfs& surfaces,
                                        const C3DPoints& extentFrame);

/// The drawn point nearest to the click, however far away, by the distance in space: List1, List2, List3
/// (where present) and a displayed RefPoint of each surface in turn, then the points of `extentFrame`. The
/// first of equals stays. A point of the frame keeps the surface number that the search had come to, 1 at
/// first. Nothing when no point is drawn.
std::optional<CNearestPoint> FindClosestPoint(const C3DPoint& click, const CRuleSurfs& screenSurfaces,
                                              const CRuleSurfs& surfaces, const C3DPoints& extentFrame);

/// The number of the dimension whose middle lies nearest to the point, the first of equals; nothing when none
/// has two ends.
std::optional<std::size_t> NearestDimension(const C3DPoint& point, const CDimensions& dimensions,
                                            const CRuleSurfs& surfaces, const C3DPoints& extentFrame);

}  // namespace korvet
