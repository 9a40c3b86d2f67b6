// The transition between two sharp rectangles: where its corners stand, which corners its creases join, and
// that what is laid flat is what was bent up.
#include "fittings/transitions/rect_to_rect.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "core/checked.h"
#include "core/math_module.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet::rect_to_rect_test {
namespace {

/// 400 by 300 below 250 by 180, 350 high, the front left corner of the top 70 to the left and 45 to the front
/// of that of the base.
CRectToRect Plain() {
    CRectToRect fitting;
    fitting.BaseLengthX = 400;
    fitting.BaseLengthY = 300;
    fitting.TopLengthX = 250;
    fitting.TopLengthY = 180;
    fitting.TopOffsetX = 70;
    fitting.TopOffsetY = 45;
    fitting.Height = 350;
    return fitting;
}

CRectToRect Tilted(std::int16_t diagonal, double baseTilt, double topTilt) {
    CRectToRect fitting = Plain();
    fitting.Diagonal = diagonal;
    fitting.inputs.Dtype = diagonal;
    fitting.BaseTiltY = baseTilt;
    fitting.TopTiltY = topTilt;
    return fitting;
}

CRectToRect Rotated(double baseTilt, double topTilt, double rotation) {
    CRectToRect fitting = Tilted(RoundACorner, baseTilt, topTilt);
    fitting.TopRotation = rotation;
    return fitting;
}

CRectToRect Below(CRectToRect fitting) {
    fitting.Height = -fitting.Height;
    return fitting;
}

CRectToRect Built(CRectToRect fitting) {
    fitting.ConstructModel();
    return fitting;
}

const C3DPoints& Base(const CRectToRect& fitting) {
    return *fitting.results.ModelSurface.List1;
}
const C3DPoints& Top(const CRectToRect& fitting) {
    return *fitting.results.ModelSurface.List2;
}

void ExpectAt(const C3DPoint& point, double x, double y, double z) {
    EXPECT_NEAR(point.x, x, Near);
    EXPECT_NEAR(point.y, y, Near);
    EXPECT_NEAR(point.z, z, Near);
}

TEST(RectToRectModel, OffsetsGoFromCornerToCorner) {
    const CRectToRect fitting = Built(Plain());
    ASSERT_EQ(Base(fitting).Count(), 5U);
    ASSERT_EQ(Top(fitting).Count(), 5U);
    ExpectAt(Base(fitting).Item(1), -200, -150, 0);
    ExpectAt(Base(fitting).Item(2), 200, -150, 0);
    ExpectAt(Base(fitting).Item(3), 200, 150, 0);
    ExpectAt(Base(fitting).Item(4), -200, 150, 0);
    ExpectAt(Top(fitting).Item(1), -270, -195, 350);
    ExpectAt(Top(fitting).Item(2), -20, -195, 350);
    ExpectAt(Top(fitting).Item(3), -20, -15, 350);
    ExpectAt(Top(fitting).Item(4), -270, -15, 350);
}

TEST(RectToRectModel, OffsetsOfTheLastTypeGoFromCentreToCentre) {
    CRectToRect fitting = Plain();
    fitting.inputs.Dtype = FromCentreToCentre;
    fitting.ConstructModel();
    ExpectAt(Top(fitting).Item(1), -70 - 125, -45 - 90, 350);
    ExpectAt(Top(fitting).Item(3), -70 + 125, -45 + 90, 350);
    ExpectAt(Base(fitting).Item(1), -200, -150, 0);
}

TEST(RectToRectModel, EndsWhereItStartsAndMarksEveryCorner) {
    for (std::int16_t diagonal = 0; diagonal <= 3; ++diagonal) {
        const CRectToRect fitting = Built(Tilted(diagonal, 0.1, -0.2));
        for (const C3DPoints* list : {&Base(fitting), &Top(fitting)}) {
            EXPECT_LT(Distance3D(list->Item(1), list->Last()), Near);
            for (const C3DPoint& point : *list) {
                EXPECT_EQ(point.Flag, CornerRuleStation);
            }
        }
    }
}

/// Numbers of the corners that are joined, base first, one pair after the other; a pair that follows itself
/// is told once.
std::string Joined(std::int16_t diagonal) {
    const CRectToRect plain = Built(Plain());
    CRectToRect fitting = Plain();
    fitting.Diagonal = diagonal;
    fitting.ConstructModel();
    const auto corner = [](const C3DPoint& point, const C3DPoints& corners) {
        for (std::size_t i = 1; i <= 4; ++i) {
            if (Distance3D(point, corners.Item(i)) < Near) {
                return std::to_string(i);
            }
        }
        return std::string("?");
    };
    std::string pairs;
    std::string last;
    for (std::size_t i = 1; i <= Base(fitting).Count(); ++i) {
        const std::string pair =
            corner(Base(fitting).Item(i), Base(plain)) + corner(Top(fitting).Item(i), Top(plain));
        pairs += pair == last ? "" : pair + " ";
        last = pair;
    }
    return pairs;
}

TEST(RectToRectModel, CreasesJoinTheirCorners) {
    EXPECT_EQ(Joined(NoCrease), "11 22 33 44 11 ");
    EXPECT_EQ(Joined(RisingToTheRight), "11 12 22 33 43 44 11 ");
    EXPECT_EQ(Joined(RisingToTheLeft), "11 21 22 33 34 44 11 ");
    EXPECT_EQ(Joined(RoundACorner), "11 12 22 23 33 44 11 ");
}

TEST(RectToRectModel, CreasesRepeatCorners) {
    const std::size_t expected[] = {5, 9, 9, 13};
    for (std::int16_t diagonal = 0; diagonal <= 3; ++diagonal) {
        const CRectToRect fitting = Built(Tilted(diagonal, 0, 0));
        EXPECT_EQ(Base(fitting).Count(), expected[diagonal]);
        EXPECT_EQ(Top(fitting).Count(), expected[diagonal]);
    }
}

TEST(RectToRectModel, TiltsRaiseTheRightSideAboutTheLeftOne) {
    const double a = std::numbers::pi / 6;
    const CRectToRect fitting = Built(Tilted(RisingToTheRight, a, -a));
    ExpectAt(Base(fitting).Item(1), -200, -150, 0);
    ExpectAt(Base(fitting).Item(4), -200 + 400 * std::cos(a), -150, 200);
    ExpectAt(Base(fitting).Item(8), -200, 150, 0);
    ExpectAt(Top(fitting).Item(1), -270, -195, 350);
    ExpectAt(Top(fitting).Item(5), -270 + 250 * std::cos(a), -15, 350 - 125);
}

/// The rotation is that of the top as it was level: about its centre, whatever the tilt has made of it.
TEST(RectToRectModel, RotationTurnsTheTopAboutTheVerticalThroughItsCentre) {
    const CRectToRect level = Built(Rotated(0, 0.3, 0));
    const CRectToRect turned = Built(Rotated(0, 0.3, 0.5));
    for (std::size_t i = 1; i <= 13; ++i) {
        const double x = Top(level).Item(i).x + 70;
        const double y = Top(level).Item(i).y + 45;
        ExpectAt(Top(turned).Item(i), -70 + x * std::cos(0.5) - y * std::sin(0.5),
                 -45 + x * std::sin(0.5) + y * std::cos(0.5), Top(level).Item(i).z);
        EXPECT_TRUE(Same(Base(level).Item(i), Base(turned).Item(i)));
    }
}

TEST(RectToRectModel, TiltsAboutTheOtherAxisHaveNoEffect) {
    CRectToRect fitting = Tilted(RisingToTheRight, 0.1, 0.2);
    const CRectToRect plain = Built(fitting);
    fitting.BaseTiltX = fitting.TopTiltX = 0.7;
    fitting.ConstructModel();
    EXPECT_TRUE(SamePoints(Base(plain), Base(fitting)));
    EXPECT_TRUE(SamePoints(Top(plain), Top(fitting)));
}

// ------------------------------------------------------------------------------------------- the pattern

/// Two rulings that follow each other: from a to b, from c to d.
struct Side {
    C3DPoint a, b, c, d;
};

/// The sides of a surface in the order of the model, of which the pattern has the reverse one.
std::vector<Side> Sides(const CRuleSurf& surface, bool reversed) {
    const std::size_t n = surface.List1->Count();
    const auto at = [&](const PointList& list, std::size_t i) {
        return list->Item(reversed ? n - i + 1 : i);
    };
    std::vector<Side> sides;
    for (std::size_t i = 1; i < n; ++i) {
        sides.push_back(
            {at(surface.List1, i), at(surface.List2, i), at(surface.List1, i + 1), at(surface.List2, i + 1)});
    }
    return sides;
}

bool IsFlat(const Side& side) {
    const double ux = side.b.x - side.a.x, uy = side.b.y - side.a.y, uz = side.b.z - side.a.z;
    const double vx = side.c.x - side.a.x, vy = side.c.y - side.a.y, vz = side.c.z - side.a.z;
    const double wx = side.d.x - side.a.x, wy = side.d.y - side.a.y, wz = side.d.z - side.a.z;
    const double volume = ux * (vy * wz - vz * wy) - uy * (vx * wz - vz * wx) + uz * (vx * wy - vy * wx);
    return std::fabs(volume) < 1e-3;  // of boxes of some 1e7
}

struct Shape {
    std::string name;
    CRectToRect fitting;
    int twisted = 0;  ///< how many of its sides are neither flat nor creased
};

void PrintTo(const Shape& shape, std::ostream* out) {
    *out << shape.name;
}

std::vector<Shape> Shapes() {
    std::vector<Shape> shapes = {{"plain", Plain()}, {"plain, below", Below(Plain())}};
    for (const std::int16_t diagonal : {RisingToTheRight, RisingToTheLeft}) {
        const std::string name = diagonal == RisingToTheRight ? "to the right" : "to the left";
        shapes.push_back({name + ", level", Tilted(diagonal, 0, 0)});
        shapes.push_back({name + ", top tilted", Tilted(diagonal, 0, 0.4)});
        shapes.push_back({name + ", both tilted", Tilted(diagonal, -0.2, 0.6)});
        shapes.push_back({name + ", on edge", Tilted(diagonal, 0, std::numbers::pi / 2)});
        shapes.push_back({name + ", below", Below(Tilted(diagonal, 0.3, -0.5))});
    }
    shapes.push_back({"round a corner, level", Rotated(0, 0, 0)});
    shapes.push_back({"round a corner, tilted alike", Rotated(0.3, 0.3, 0)});
    shapes.push_back({"round a corner, tilted", Rotated(0.1, 0.4, 0), 1});
    shapes.push_back({"round a corner, rotated", Rotated(0, 0, 0.35), 2});
    shapes.push_back({"round a corner, tilted and rotated", Rotated(0.2, -0.3, -0.5), 2});
    shapes.push_back({"round a corner, below", Below(Rotated(0.2, -0.3, 0.5)), 2});
    return shapes;
}

class RectToRectPattern : public testing::TestWithParam<Shape> {
  protected:
    void SetUp() override {
        fitting_ = GetParam().fitting;
        fitting_.DevelopModel();
        model_ = Sides(fitting_.results.ModelSurface, false);
        flat_ = Sides(fitting_.results.PatternSurface, true);
        ASSERT_EQ(model_.size(), flat_.size());
    }

    CRectToRect fitting_;
    std::vector<Side> model_;
    std::vector<Side> flat_;
};

TEST_P(RectToRectPattern, FlatSidesAndTrianglesComeOutAsTheyAre) {
    int twisted = 0;
    for (std::size_t i = 0; i < model_.size(); ++i) {
        if (!IsFlat(model_[i])) {
            ++twisted;
            continue;
        }
        EXPECT_NEAR(Distance3D(flat_[i].a, flat_[i].b), Distance3D(model_[i].a, model_[i].b), 1e-7) << i;
        EXPECT_NEAR(Distance3D(flat_[i].a, flat_[i].c), Distance3D(model_[i].a, model_[i].c), 1e-7) << i;
        EXPECT_NEAR(Distance3D(flat_[i].a, flat_[i].d), Distance3D(model_[i].a, model_[i].d), 1e-7) << i;
        EXPECT_NEAR(Distance3D(flat_[i].b, flat_[i].c), Distance3D(model_[i].b, model_[i].c), 1e-7) << i;
        EXPECT_NEAR(Distance3D(flat_[i].b, flat_[i].d), Distance3D(model_[i].b, model_[i].d), 1e-7) << i;
        EXPECT_NEAR(Distance3D(flat_[i].c, flat_[i].d), Distance3D(model_[i].c, model_[i].d), 1e-7) << i;
    }
    EXPECT_EQ(twisted, GetParam().twisted);
}

TEST_P(RectToRectPattern, TwistedSidesKeepRulingsBaseEdgeAndOneDiagonal) {
    double worst = 0;
    for (std::size_t i = 0; i < model_.size(); ++i) {
        EXPECT_NEAR(Distance3D(flat_[i].a, flat_[i].b), Distance3D(model_[i].a, model_[i].b), 1e-7) << i;
        EXPECT_NEAR(Distance3D(flat_[i].a, flat_[i].c), Distance3D(model_[i].a, model_[i].c), 1e-7) << i;
        EXPECT_NEAR(Distance3D(flat_[i].b, flat_[i].c), Distance3D(model_[i].b, model_[i].c), 1e-7) << i;
        worst = std::max(
            worst, std::fabs(Distance3D(flat_[i].b, flat_[i].d) - Distance3D(model_[i].b, model_[i].d)));
    }
    if (GetParam().twisted > 0) {
        EXPECT_GT(worst, 0.01) << "the edge of the top gives";
    } else {
        EXPECT_LT(worst, 1e-7);
    }
}

/// Every side turns on from the ruling before, so that none lies on its neighbour.
TEST_P(RectToRectPattern, SidesLieBesideEachOther) {
    for (std::size_t i = 0; i < flat_.size(); ++i) {
        const double ux = flat_[i].b.x - flat_[i].a.x, uy = flat_[i].b.y - flat_[i].a.y;
        for (const C3DPoint& p : {flat_[i].c, flat_[i].d}) {
            EXPECT_LT(ux * (p.y - flat_[i].a.y) - uy * (p.x - flat_[i].a.x), 1e-6) << i;
        }
    }
}

TEST_P(RectToRectPattern, IsAFoldLineAtEveryCorner) {
    for (const Side& side : flat_) {
        for (const C3DPoint& p : {side.a, side.b, side.c, side.d}) {
            EXPECT_EQ(p.Flag, CornerRuleStation);
            EXPECT_EQ(p.z, 0);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, RectToRectPattern, testing::ValuesIn(Shapes()));

TEST(RectToRectDevelopment, HasNeitherLapsNorHalf) {
    CRectToRect plain = Plain();
    plain.DevelopModel();
    CRectToRect asked = Plain();
    asked.inputs.JoinType = 1;
    asked.inputs.LapSize0 = asked.inputs.LapSize1 = asked.inputs.LapSize2 = 20;
    asked.inputs.HalfPattern = true;
    asked.inputs.JoinAngle = 1;
    asked.DevelopModel();
    EXPECT_TRUE(SamePoints(*plain.results.PatternSurface.List1, *asked.results.PatternSurface.List1));
    EXPECT_TRUE(SamePoints(*plain.results.PatternSurface.List2, *asked.results.PatternSurface.List2));
    EXPECT_FALSE(asked.results.PatternSurface.LapList1);
    EXPECT_TRUE(asked.results.warnings.empty());
}

/// A top that stands on edge on the front left corner of the base: a sharp throat, into which one of the two
/// creases has no length to go.
CRectToRect SharpThroat(std::int16_t diagonal) {
    CRectToRect fitting = Tilted(diagonal, 0, -std::numbers::pi / 2);
    fitting.TopOffsetX = fitting.TopOffsetY = 0;
    fitting.TopLengthX = fitting.Height;
    fitting.TopLengthY = fitting.BaseLengthY;
    return fitting;
}

TEST(RectToRectDevelopment, ACreaseWithoutLengthHasNoPattern) {
    CRectToRect fitting = SharpThroat(RisingToTheRight);
    EXPECT_NO_THROW(fitting.ConstructModel());
    EXPECT_THROW(fitting.DevelopModel(), ArithmeticError);
}

/// With the other crease it is a quarter bend of a plate as heel and two triangles as cheeks.
TEST(RectToRectDevelopment, ASharpThroatComesOutWithTheOtherCrease) {
    CRectToRect fitting = SharpThroat(RisingToTheLeft);
    fitting.DevelopModel();
    const std::vector<Side> model = Sides(fitting.results.ModelSurface, false);
    const std::vector<Side> flat = Sides(fitting.results.PatternSurface, true);
    for (std::size_t i = 0; i < model.size(); ++i) {
        EXPECT_NEAR(Distance3D(flat[i].a, flat[i].d), Distance3D(model[i].a, model[i].d), 1e-7) << i;
        EXPECT_NEAR(Distance3D(flat[i].b, flat[i].d), Distance3D(model[i].b, model[i].d), 1e-7) << i;
        EXPECT_NEAR(Distance3D(flat[i].b, flat[i].c), Distance3D(model[i].b, model[i].c), 1e-7) << i;
    }
    EXPECT_NEAR(PlanAngle(flat[0].a, flat[0].b) - PlanAngle(flat[0].a, flat[0].c) + 2 * std::numbers::pi,
                std::numbers::pi / 2, 1e-9);
}

}  // namespace
}  // namespace korvet::rect_to_rect_test
