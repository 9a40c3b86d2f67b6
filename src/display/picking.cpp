#include "display/picking.h"

#include <limits>

#include "core/math_module.h"
#include "display/extent_frame.h"

namespace korvet {
namespace {

/// One end of a dimension, or a picked point, by its numbers.
struct PointNumbers {
    int surfaceNo;
    int listNo;
    int pointNo;
};

std::optional<C3DPoint> ItemOf(const C3DPoints& list, int number) {
    if (number < 1 || static_cast<std::size_t>(number) > list.Count()) {
        return std::nullopt;
    }
    return list.Item(static_cast<std::size_t>(number));
}

std::optional<C3DPoint> PointOfSurface(const CRuleSurf& surface, int listNo, int pointNo) {
    switch (listNo) {
        case ReferencePointList:
            return pointNo == 0 ? surface.RefPoint : std::nullopt;
        case FirstEdgeList:
            return ItemOf(PointsOf(surface.List1), pointNo);
        case SecondEdgeList:
            return ItemOf(PointsOf(surface.List2), pointNo);
        case ThirdLineList:
            return ItemOf(PointsOf(surface.List3), pointNo);
        default:
            return std::nullopt;
    }
}

std::optional<C3DPoint> NumberedPoint(const PointNumbers& numbers, const CRuleSurfs& surfaces,
                                      const C3DPoints& extentFrame) {
    if (numbers.listNo == ExtentFrameList) {
        return ItemOf(extentFrame, numbers.pointNo);
    }
    if (numbers.surfaceNo < 1 || static_cast<std::size_t>(numbers.surfaceNo) > surfaces.Count()) {
        return std::nullopt;
    }
    const CRuleSurf& surface = surfaces.Item(static_cast<std::size_t>(numbers.surfaceNo));
    return PointOfSurface(surface, numbers.listNo, numbers.pointNo);
}

/// The running best of a search.
struct Search {
    C3DPoint click;
    double distance = std::numeric_limits<double>::infinity();
    PointNumbers best = {1, FirstEdgeList, 0};

    void Offer(const C3DPoint& point, const PointNumbers& numbers) {
        const double d = Distance3D(click, point);
        if (d < distance) {
            distance = d;
            best = numbers;
        }
    }

    void OfferAll(const C3DPoints& points, int surfaceNo, int listNo) {
        int pointNo = 0;
        for (const C3DPoint& point : points) {
            Offer(point, {surfaceNo, listNo, ++pointNo});
        }
    }
};

}  // namespace

std::optional<C3DPoint> DimensionPoint1(const CDimension& dimension, const CRuleSurfs& surfaces,
                                        const C3DPoints& extentFrame) {
    return NumberedPoint({dimension.SurfaceNo1, dimension.ListNo1, dimension.PointNo1}, surfaces,
                         extentFrame);
}

std::optional<C3DPoint> DimensionPoint2(const CDimension& dimension, const CRuleSurfs& surfaces,
                                        const C3DPoints& extentFrame) {
    return NumberedPoint({dimension.SurfaceNo2, dimension.ListNo2, dimension.PointNo2}, surfaces,
                         extentFrame);
}

std::optional<CNearestPoint> FindClosestPoint(const C3DPoint& click, const CRuleSurfs& screenSurfaces,
                                              const CRuleSurfs& surfaces, const C3DPoints& extentFrame) {
    Search search{.click = click};
    int surfaceNo = 0;
    for (const CRuleSurf& surface : screenSurfaces) {
        ++surfaceNo;
        search.OfferAll(PointsOf(surface.List1), surfaceNo, FirstEdgeList);
        search.OfferAll(PointsOf(surface.List2), surfaceNo, SecondEdgeList);
        if (IsPresent(surface.List3)) {
            search.OfferAll(*surface.List3, surfaceNo, ThirdLineList);
        }
        if (surface.RefPointDisplay && surface.RefPoint) {
            search.Offer(*surface.RefPoint, {surfaceNo, ReferencePointList, 0});
        }
    }
    search.OfferAll(extentFrame, search.best.surfaceNo, ExtentFrameList);

    const std::optional<C3DPoint> drawn = NumberedPoint(search.best, screenSurfaces, extentFrame);
    const std::optional<C3DPoint> real = NumberedPoint(search.best, surfaces, extentFrame);
    if (!drawn || !real) {
        return std::nullopt;
    }
    return CNearestPoint{search.best.surfaceNo, search.best.listNo, search.best.pointNo, *drawn, *real};
}

std::optional<std::size_t> NearestDimension(const C3DPoint& point, const CDimensions& dimensions,
                                            const CRuleSurfs& surfaces, const C3DPoints& extentFrame) {
    std::optional<std::size_t> nearest;
    double best = 0;
    for (std::size_t i = 1; i <= dimensions.Count(); ++i) {
        const std::optional<C3DPoint> end1 = DimensionPoint1(dimensions.Item(i), surfaces, extentFrame);
        const std::optional<C3DPoint> end2 = DimensionPoint2(dimensions.Item(i), surfaces, extentFrame);
        if (!end1 || !end2) {
            continue;
        }
        const double distance = Distance3D(point, MidPoint(*end1, *end2));
        if (!nearest || distance < best) {
            nearest = i;
            best = distance;
        }
    }
    return nearest;
}

}  // namespace korvet
