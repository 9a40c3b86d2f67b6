// The order of painting, held to all pairs of faces, and what it costs.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>
#include <vector>

#include "sketch/solid_mesh.h"
#include "tests/sketch/solid_reading.h"
#include "tests/support/pipe_on_bend.h"

namespace korvet {
namespace {

double Turn(const SketchXY& a, const SketchXY& b, const SketchXY& p) {
    return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

std::vector<SketchXY> OutlineOf(const SolidMesh& mesh, std::size_t face) {
    std::vector<SketchXY> outline;
    for (const std::size_t corner : mesh.faces[face].corners) {
        outline.push_back(OnPicture(mesh.vertices[corner]));
    }
    if (mesh.faces[face].normal.depth < 0) {
        std::reverse(outline.begin(), outline.end());
    }
    return outline;
}

bool IsWithin(const std::vector<SketchXY>& outline, const SketchXY& p) {
    for (std::size_t i = 0; i < outline.size(); ++i) {
        if (Turn(outline[i], outline[(i + 1) % outline.size()], p) <= 0) {
            return false;
        }
    }
    return true;
}

/// The corners of what two outlines have in common: those of one within the other, and where sides cross.
std::vector<SketchXY> CommonCorners(const std::vector<SketchXY>& a, const std::vector<SketchXY>& b) {
    std::vector<SketchXY> corners;
    std::copy_if(a.begin(), a.end(), std::back_inserter(corners), [&](auto& p) { return IsWithin(b, p); });
    std::copy_if(b.begin(), b.end(), std::back_inserter(corners), [&](auto& p) { return IsWithin(a, p); });
    for (std::size_t i = 0; i < a.size(); ++i) {
        for (std::size_t k = 0; k < b.size(); ++k) {
            const SketchXY& p = a[i];
            const SketchXY& q = a[(i + 1) % a.size()];
            const SketchXY& r = b[k];
            const SketchXY& s = b[(k + 1) % b.size()];
            const double atP = Turn(r, s, p);
            const double atQ = Turn(r, s, q);
            if (atP * atQ < 0 && Turn(p, q, r) * Turn(p, q, s) < 0) {
                const double share = atP / (atP - atQ);
                corners.push_back({p.x + share * (q.x - p.x), p.y + share * (q.y - p.y)});
            }
        }
    }
    return corners;
}

SketchXY MiddleOf(const std::vector<SketchXY>& points) {
    SketchXY middle;
    for (const SketchXY& point : points) {
        middle.x += point.x / static_cast<double>(points.size());
        middle.y += point.y / static_cast<double>(points.size());
    }
    return middle;
}

/// Twice the area between the corners of a convex outline, given in any order.
double DoubledArea(std::vector<SketchXY> corners) {
    const SketchXY middle = MiddleOf(corners);
    const auto angle = [&](const SketchXY& p) { return std::atan2(p.y - middle.y, p.x - middle.x); };
    std::sort(corners.begin(), corners.end(), [&](auto& p, auto& q) { return angle(p) < angle(q); });
    double sum = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        sum += Turn(middle, corners[i], corners[(i + 1) % corners.size()]);
    }
    return sum;
}

/// Shares of the size squared: what faces must have in common at least so that one covers the other.
constexpr double Touching = 1e-9;
constexpr double Plain = 1e-6;

/// By how much face a lies before face b in the middle of what they have in common; nothing when that is less
/// than a share of the size squared.
std::optional<double> StepBetween(const SolidMesh& mesh, std::size_t a, std::size_t b, double share) {
    const std::vector<SketchXY> corners = CommonCorners(OutlineOf(mesh, a), OutlineOf(mesh, b));
    if (corners.size() < 3 || DoubledArea(corners) <= share * mesh.size * mesh.size) {
        return std::nullopt;
    }
    const SketchXY middle = MiddleOf(corners);
    return DepthAt(mesh, mesh.faces[a], middle) - DepthAt(mesh, mesh.faces[b], middle);
}

double MiddleDepth(const SolidMesh& mesh, std::size_t face) {
    double sum = 0;
    for (const std::size_t corner : mesh.faces[face].corners) {
        sum += mesh.vertices[corner].depth;
    }
    return sum / static_cast<double>(mesh.faces[face].corners.size());
}

/// The order by asking every pair: always the farthest face that covers none of those still to come; where
/// all of them cover each other in turn, the farthest.
std::vector<std::size_t> OrderByAllPairs(const SolidMesh& mesh) {
    std::vector<std::size_t> left(mesh.faces.size());
    for (std::size_t i = 0; i < left.size(); ++i) {
        left[i] = i;
    }
    std::sort(left.begin(), left.end(),
              [&](std::size_t a, std::size_t b) { return MiddleDepth(mesh, a) < MiddleDepth(mesh, b); });
    std::vector<std::vector<bool>> covers(left.size(), std::vector<bool>(left.size(), false));
    for (std::size_t a = 0; a < left.size(); ++a) {
        for (std::size_t b = 0; b < left.size(); ++b) {
            covers[a][b] = a != b && StepBetween(mesh, a, b, Touching).value_or(0) > 0;
        }
    }
    std::vector<std::size_t> order;
    while (!left.empty()) {
        const auto coversNone = [&](std::size_t face) {
            return std::none_of(left.begin(), left.end(),
                                [&](std::size_t other) { return covers[face][other]; });
        };
        auto next = std::find_if(left.begin(), left.end(), coversNone);
        next = next == left.end() ? left.begin() : next;
        order.push_back(*next);
        left.erase(next);
    }
    return order;
}

/// Triangles here and there in a cube, through each other too; `large` is how wide they are at most.
SolidMesh RandomTriangles(unsigned seed, int count, double large) {
    std::mt19937 generator(seed);
    std::uniform_real_distribution<double> anywhere(-1, 1);
    CRuleSurfs model;
    for (int i = 0; i < count; ++i) {
        const C3DPoint at = {anywhere(generator), anywhere(generator), anywhere(generator), 0};
        const auto near = [&] {
            return C3DPoint{at.x + large * anywhere(generator), at.y + large * anywhere(generator),
                            at.z + large * anywhere(generator), 0};
        };
        const C3DPoint apex = near();
        model.Add(Strip({apex, apex}, {near(), near()}));
    }
    return MakeSolidMesh(model, {.turn = 20, .tilt = 30});
}

PaintingOrder OrderOf(const SolidMesh& mesh) {
    return PaintersOrder(mesh, SeenFaces(mesh));
}

TEST(PaintersOrder, IsThatOfAllPairsForTrianglesThroughEachOther) {
    for (const double large : {0.1, 0.5, 1.5}) {
        for (unsigned seed = 1; seed <= 8; ++seed) {
            const SolidMesh mesh = RandomTriangles(seed, 60, large);
            ASSERT_EQ(mesh.faces.size(), 60U);
            EXPECT_EQ(OrderOf(mesh).faces, OrderByAllPairs(mesh)) << "size " << large << ", seed " << seed;
        }
    }
}

// Three bars each of which covers the next: there is no right order, but each comes once.
TEST(PaintersOrder, BreaksARing) {
    std::vector<CRuleSurf> bars;
    for (int i = 0; i < 3; ++i) {
        const double t = 2 * std::numbers::pi / 3 * i;
        const auto turned = [&](double x, double y, double z) {
            return C3DPoint{x * std::cos(t) - z * std::sin(t), y, x * std::sin(t) + z * std::cos(t), 0};
        };
        bars.push_back(
            Strip({turned(-2, 1, -0.8), turned(2, -1, -0.8)}, {turned(-2, 1, -1), turned(2, -1, -1)}));
    }
    const SolidMesh mesh = MakeSolidMesh(Model(bars), {.turn = 0, .tilt = 0});
    int before = 0;
    int behind = 0;
    for (std::size_t a = 0; a < 3; ++a) {
        (StepBetween(mesh, a, (a + 1) % 3, Plain).value() > 0 ? before : behind) += 1;
    }
    EXPECT_EQ(std::max(before, behind), 3) << "no ring";
    std::vector<std::size_t> order = OrderOf(mesh).faces;
    std::sort(order.begin(), order.end());
    EXPECT_EQ(order, (std::vector<std::size_t>{0, 1, 2}));
}

TEST(PaintersOrder, WhatCoversAnotherStripOfAPipeOnABendComesLater) {
    for (const SketchView& view : {SketchView{}, SketchView{.turn = 35, .tilt = 40}}) {
        const SolidMesh mesh = MakeSolidMesh(PipeOnBend(13, 20), view);
        const std::vector<std::size_t> order = OrderOf(mesh).faces;
        std::vector<std::size_t> rank(mesh.faces.size(), order.size());
        for (std::size_t i = 0; i < order.size(); ++i) {
            rank[order[i]] = i;
        }
        int pairs = 0;
        for (std::size_t a = 0; a < mesh.faces.size(); ++a) {
            for (std::size_t b = 0; b < mesh.faces.size(); ++b) {
                const bool seen = !mesh.faces[a].OnEdge() && !mesh.faces[b].OnEdge();
                const auto step = a != b && seen ? StepBetween(mesh, a, b, Plain) : std::nullopt;
                if (step && *step > 1e-4 * mesh.size) {
                    ++pairs;
                    EXPECT_GT(rank[a], rank[b]);
                }
            }
        }
        EXPECT_GT(pairs, 200);
    }
}

/// Comparisons for a model of a number of strips and for one of twice as many.
template <typename MakeModel>
void ExpectCostsLittleMoreThanDouble(MakeModel makeModel) {
    const auto compared = [&](int strips) {
        return static_cast<double>(OrderOf(MakeSolidMesh(makeModel(strips), SketchView())).compared);
    };
    constexpr int Strips = 1250;
    const double once = compared(Strips);
    const double twice = compared(2 * Strips);
    EXPECT_GT(once, Strips);
    EXPECT_LT(twice, 2.8 * once);  // four times as many when each is compared with each
    EXPECT_LT(twice, 2 * Strips * 200);
}

TEST(PaintersOrder, CostsLittleMoreForTwiceTheStripsOfABend) {
    ExpectCostsLittleMoreThanDouble([](int strips) { return PipeOnBend(13, strips / 14); });
}

/// The long strips of a cone, whose upright boxes nearly all overlap when it leans.
TEST(PaintersOrder, CostsLittleMoreForTwiceTheStripsOfALeaningCone) {
    for (const double lean : {0.0, 25.0}) {
        for (const double base : {100.0, 200.0}) {
            ExpectCostsLittleMoreThanDouble([&](int strips) {
                std::vector<C3DPoint> rings[] = {Ring(100, 300, strips), Ring(base, 0, strips)};
                const double t = lean * std::numbers::pi / 180;
                for (std::vector<C3DPoint>& ring : rings) {
                    for (C3DPoint& p : ring) {
                        p = {p.x * std::cos(t) + p.z * std::sin(t), p.y,
                             p.z * std::cos(t) - p.x * std::sin(t), 0};
                    }
                }
                return Model({Strip(rings[0], rings[1])});
            });
        }
    }
}

SolidPlace Anywhere(std::mt19937& generator) {
    std::uniform_real_distribution<double> random(0, 1);
    const double t = 2 * std::numbers::pi * random(generator);
    return {{10 * random(generator), 10 * random(generator)},
            {std::cos(t), std::sin(t)},
            random(generator),
            0.2 * random(generator)};
}

std::vector<SketchXY> CornersOf(const SolidPlace& place) {
    std::vector<SketchXY> corners;
    for (const auto& [u, v] : {SketchXY{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}) {
        const double length = u * place.halfLength;
        const double width = v * place.halfWidth;
        corners.push_back({place.middle.x + length * place.along.x - width * place.along.y,
                           place.middle.y + length * place.along.y + width * place.along.x});
    }
    return corners;
}

TEST(PlaceTree, FindsWhatOverlapsAndNothingElse) {
    std::mt19937 generator(3);
    std::vector<SolidPlace> places;
    for (int i = 0; i < 400; ++i) {
        places.push_back(Anywhere(generator));
    }
    const PlaceTree tree(places);
    std::size_t met = 0;
    for (int i = 0; i < 100; ++i) {
        const SolidPlace place = Anywhere(generator);
        std::vector<std::size_t> expected;
        for (std::size_t k = 0; k < places.size(); ++k) {
            if (CommonCorners(CornersOf(place), CornersOf(places[k])).size() >= 3) {
                expected.push_back(k);
            }
        }
        EXPECT_EQ(tree.Meeting(place).numbers, expected);
        met += expected.size();
    }
    EXPECT_GT(met, 100U);
}

TEST(PlaceTree, WithoutPlacesFindsNothing) {
    EXPECT_TRUE(PlaceTree({}).Meeting({{0, 0}, {1, 0}, 5, 5}).numbers.empty());
}

TEST(SolidPlace, LiesAlongTheLongestSide) {
    const SolidPlace place = SolidPlace::About({{1, 1}, {4, 5}, {3.2, 5.6}, {0.2, 1.6}});
    EXPECT_NEAR(place.middle.x, 2.1, Close);
    EXPECT_NEAR(place.middle.y, 3.3, Close);
    EXPECT_NEAR(std::fabs(place.along.x * 4 - place.along.y * 3), 0, Close);
    EXPECT_NEAR(place.halfLength, 2.5, Close);
    EXPECT_NEAR(place.halfWidth, 0.5, Close);
}

}  // namespace
}  // namespace korvet
