#include "display/extent_frame.h"

#include <algorithm>
#include <optional>

namespace korvet {
namespace {

void TakeIn(std::optional<Bounds>& bounds, const C3DPoint& point) {
    TakeIn(bounds, point.x, point.y);
}

}  // namespace

const C3DPoints& PointsOf(const PointList& list) {
    static const C3DPoints none;
    return list ? *list : none;
}

C3DPoints BuildExtentFrame(const CRuleSurfs& surfaces, const CRuleSurfs& screenSurfaces) {
    std::optional<Bounds> box;
    if (surfaces.Count() > 0 && PointsOf(surfaces.Item(1).List1).Count() > 0) {
        TakeIn(box, surfaces.Item(1).List1->Item(1));
    }
    for (const CRuleSurf& surface : screenSurfaces) {
        const C3DPoints& list1 = PointsOf(surface.List1);
        const C3DPoints& list2 = PointsOf(surface.List2);
        for (std::size_t i = 1; i <= std::min(list1.Count(), list2.Count()); ++i) {
            TakeIn(box, list1.Item(i));
            TakeIn(box, list2.Item(i));
        }
    }
    C3DPoints frame;
    if (box) {
        frame.Add({box->minX, box->minY, 0, PlainStation});
        frame.Add({box->maxX, box->minY, 0, PlainStation});
        frame.Add({box->maxX, box->maxY, 0, PlainStation});
        frame.Add({box->minX, box->maxY, 0, PlainStation});
        frame.Add({box->minX, box->minY, 0, PlainStation});
    }
    return frame;
}

std::optional<Bounds> BoundsOf(const CRuleSurf& surface) {
    std::optional<Bounds> bounds;
    for (const PointList* list :
         {&surface.List1, &surface.List2, &surface.List3, &surface.LapList1, &surface.LapList2}) {
        for (const C3DPoint& point : PointsOf(*list)) {
            TakeIn(bounds, point);
        }
    }
    return bounds;
}

std::optional<Bounds> BoundsOfAll(const CRuleSurfs& surfaces) {
    std::optional<Bounds> bounds;
    for (const CRuleSurf& surface : surfaces) {
        if (const auto box = BoundsOf(surface)) {
            TakeIn(bounds, box->minX, box->minY);
            TakeIn(bounds, box->maxX, box->maxY);
        }
    }
    return bounds;
}

}  // namespace korvet
