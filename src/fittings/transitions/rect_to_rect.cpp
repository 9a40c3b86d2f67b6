#include "fittings/transitions/rect_to_rect.h"

#include "core/checked.h"
#include "core/math_module.h"
#include "core/triangulation.h"

namespace korvet {
namespace {

/// A rule shorter than this counts as none when a surface is laid flat.
constexpr double NoLength = 1e-8;

/// The corners of a level rectangle, the first one again behind the last.
PointList RectangleAbout(const C3DPoint& centre, double lengthX, double lengthY) {
    const double left = centre.x - lengthX / 2;
    const double front = centre.y - lengthY / 2;
    auto corners = std::make_shared<C3DPoints>();
    corners->Add({left, front, centre.z, CornerRuleStation});
    corners->Add({left + lengthX, front, centre.z, CornerRuleStation});
    corners->Add({left + lengthX, front + lengthY, centre.z, CornerRuleStation});
    corners->Add({left, front + lengthY, centre.z, CornerRuleStation});
    corners->Add({left, front, centre.z, CornerRuleStation});
    return corners;
}

/// A new list in which items i and j stand three times each.
PointList WithRepeated(const C3DPoints& list, std::size_t i, std::size_t j) {
    auto repeated = std::make_shared<C3DPoints>();
    for (std::size_t k = 1; k <= list.Count(); ++k) {
        const int times = k == i || k == j ? 3 : 1;
        for (int n = 0; n < times; ++n) {
            repeated->Add(list.Item(k));
        }
    }
    return repeated;
}

/// Turns a list, 1 or 2, about the line along y through its first corner.
void TiltAboutFirstCorner(CRuleSurf& surface, int listNumber, double angle) {
    if (angle != 0) {
        const C3DPoint corner = (listNumber == 1 ? surface.List1 : surface.List2)->Item(1);
        surface.RotateList(listNumber, Axis::Y, corner, angle);
    }
}

/// Both ends of every rule must be apart: what turns about a point has no direction to turn from.
void RequireRules(const CRuleSurf& surface) {
    for (std::size_t i = 1; i <= surface.List1->Count(); ++i) {
        if (Distance3D(surface.List1->Item(i), surface.List2->Item(i)) < NoLength) {
            throw ArithmeticError(
                "a corner of the top lies on the corner of the base to which its fold line goes");
        }
    }
}

}  // namespace

/// A corner that is repeated in one list faces neighbours in the other: the rules fan from it over the side
/// between them, and the one to the far neighbour, which comes more than once, is the crease.
void CRectToRect::Crease(CRuleSurf& surface) const {
    PointList& base = surface.List1;
    PointList& top = surface.List2;
    switch (Diagonal) {
        case RisingToTheRight:
            base = WithRepeated(*base, 1, 4);
            top = WithRepeated(*top, 2, 3);
            break;
        case RisingToTheLeft:
            base = WithRepeated(*base, 2, 3);
            top = WithRepeated(*top, 1, 4);
            break;
        case RoundACorner:
            // The second corner of the base then stands seven times, and so does the third one of the top.
            base = WithRepeated(*WithRepeated(*base, 1, 2), 5, 6);
            top = WithRepeated(*WithRepeated(*top, 2, 3), 6, 7);
            break;
        default:
            break;
    }
}

void CRectToRect::ConstructModel() {
    C3DPoint centre = {-TopOffsetX, -TopOffsetY, Height, PlainStation};
    if (inputs.Dtype != FromCentreToCentre) {
        centre.x += (TopLengthX - BaseLengthX) / 2;
        centre.y += (TopLengthY - BaseLengthY) / 2;
    }
    CRuleSurf surface;
    surface.List1 = RectangleAbout({}, BaseLengthX, BaseLengthY);
    surface.List2 = RectangleAbout(centre, TopLengthX, TopLengthY);
    Crease(surface);
    TiltAboutFirstCorner(surface, 2, TopTiltY);
    TiltAboutFirstCorner(surface, 1, BaseTiltY);
    surface.RotateList(2, Axis::Z, centre, TopRotation);
    results.ModelSurface = surface;
}

void CRectToRect::DevelopModel() {
    ConstructModel();
    RequireRules(results.ModelSurface);
    results.PatternSurface = Unfolded(results.ModelSurface);
}

}  // namespace korvet
