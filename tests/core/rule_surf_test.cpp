#include "core/rule_surf.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "core/constants.h"
#include "core/lap_join.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

/// Station i of a strip of n is (i, 0, 0) and (i, 10, 0), with Flag i modulo 2.
CRuleSurf LongStrip(int n) {
    CRuleSurf surface;
    surface.List1 = std::make_shared<C3DPoints>();
    surface.List2 = std::make_shared<C3DPoints>();
    for (int i = 1; i <= n; ++i) {
        const auto flag = static_cast<std::int16_t>(i % 2);
        surface.List1->Add({static_cast<double>(i), 0, 0, flag});
        surface.List2->Add({static_cast<double>(i), 10, 0, flag});
    }
    return surface;
}

CRuleSurf FullSurface() {
    CRuleSurf surface = Strip({{0, 0, 0, 1}, {1, 0, 0, 0}}, {{0, 2, 0, 1}, {1, 2, 0, 0}});
    surface.List3 = ListOf({{5, 5, 5, 4}, {6, 6, 6, 5}});
    surface.LapList1 = ListOf({{7, 0, 0, 8}, {8, 0, 0, 0}});
    surface.LapList2 = ListOf({{9, 0, 0, 1}, {10, 0, 0, 1}});
    surface.RefPoint = C3DPoint{1, 1, 1, 4};
    return surface;
}

std::vector<double> Xs(const PointList& list) {
    std::vector<double> xs;
    for (const C3DPoint& point : *list) {
        xs.push_back(point.x);
    }
    return xs;
}

TEST(Move, ShiftsAllListsAndTheReferencePoint) {
    CRuleSurf surface = FullSurface();
    surface.Move({1, 1, 1, 0}, {11, 21, 31, 5});
    EXPECT_TRUE(SamePoints(*surface.List1, PointsOf({{10, 20, 30, 1}, {11, 20, 30, 0}})));
    EXPECT_TRUE(SamePoints(*surface.List2, PointsOf({{10, 22, 30, 1}, {11, 22, 30, 0}})));
    EXPECT_TRUE(SamePoints(*surface.List3, PointsOf({{15, 25, 35, 4}, {16, 26, 36, 5}})));
    EXPECT_TRUE(SamePoints(*surface.LapList1, PointsOf({{17, 20, 30, 8}, {18, 20, 30, 0}})));
    EXPECT_TRUE(SamePoints(*surface.LapList2, PointsOf({{19, 20, 30, 1}, {20, 20, 30, 1}})));
    EXPECT_TRUE(Same(*surface.RefPoint, {11, 21, 31, 4}));
}

TEST(Move, ByNothingMakesNewListsOfEqualPoints) {
    CRuleSurf surface = FullSurface();
    const PointList old = surface.List1;
    surface.Move({3, 4, 5, 0}, {3, 4, 5, 0});
    EXPECT_NE(surface.List1, old);
    EXPECT_TRUE(SamePoints(*surface.List1, *old));
}

TEST(MoveAndRotate, LeaveOutWhatASurfaceDoesNotHave) {
    CRuleSurf surface = Strip({{0, 0, 0, 1}}, {{1, 0, 0, 1}});
    surface.Move({0, 0, 0, 0}, {1, 0, 0, 0});
    surface.Rotate(Axis::Z, {0, 0, 0, 0}, 1);
    EXPECT_FALSE(surface.List3);
    EXPECT_FALSE(surface.LapList1);
    EXPECT_FALSE(surface.LapList2);
    EXPECT_FALSE(surface.RefPoint);

    CRuleSurf nothing;
    nothing.Move({0, 0, 0, 0}, {1, 0, 0, 0});
    nothing.Rotate(Axis::X, {0, 0, 0, 0}, 1);
    EXPECT_FALSE(nothing.List1);
    EXPECT_FALSE(nothing.List2);
}

TEST(MoveList, LeavesTheGivenListAlone) {
    const C3DPoints list = PointsOf({{1, 2, 3, 5}});
    const PointList moved = CRuleSurf::MoveList(list, {0, 0, 0, 0}, {1, 1, 1, 0});
    EXPECT_TRUE(SamePoints(*moved, PointsOf({{2, 3, 4, 5}})));
    EXPECT_TRUE(Same(list.Item(1), {1, 2, 3, 5}));
}

struct Turn {
    Axis axis;
    C3DPoint from;
    C3DPoint to;
};

TEST(Rotate, TurnsAboutEachAxisFromTheFirstCoordinateToTheSecond) {
    // y to z, x to z (against the right hand), x to y.
    const std::array<Turn, 5> turns = {{{Axis::X, {5, 1, 0, 1}, {5, 0, 1, 1}},
                                        {Axis::X, {5, 0, 1, 1}, {5, -1, 0, 1}},
                                        {Axis::Y, {1, 5, 0, 0}, {0, 5, 1, 0}},
                                        {Axis::Y, {0, 5, 1, 0}, {-1, 5, 0, 0}},
                                        {Axis::Z, {1, 0, 5, 4}, {0, 1, 5, 4}}}};
    for (const Turn& turn : turns) {
        CRuleSurf surface;
        surface.List1 = ListOf({turn.from});
        surface.Rotate(turn.axis, {0, 0, 0, 0}, PI / 2);
        const C3DPoint& point = surface.List1->Item(1);
        EXPECT_NEAR(point.x, turn.to.x, 1e-12);
        EXPECT_NEAR(point.y, turn.to.y, 1e-12);
        EXPECT_NEAR(point.z, turn.to.z, 1e-12);
        EXPECT_EQ(point.Flag, turn.to.Flag);
    }
}

TEST(Rotate, KeepsTheCoordinateAlongTheAxisToTheBit) {
    CRuleSurf surface;
    surface.List1 = ListOf({{0.1, 0.2, 0.3, 0}});
    surface.Rotate(Axis::Z, {7, 8, 9, 0}, 0.7);
    EXPECT_EQ(surface.List1->Item(1).z, 0.3);
    surface.List1 = ListOf({{0.1, 0.2, 0.3, 0}});
    surface.Rotate(Axis::Y, {7, 8, 9, 0}, 0.7);
    EXPECT_EQ(surface.List1->Item(1).y, 0.2);
    surface.List1 = ListOf({{0.1, 0.2, 0.3, 0}});
    surface.Rotate(Axis::X, {7, 8, 9, 0}, 0.7);
    EXPECT_EQ(surface.List1->Item(1).x, 0.1);
}

TEST(Rotate, TurnsEverythingAboutTheCentre) {
    CRuleSurf surface = FullSurface();
    surface.Rotate(Axis::Z, {1, 1, 99, 0}, PI);
    EXPECT_NEAR(surface.List1->Item(1).x, 2, 1e-12);
    EXPECT_NEAR(surface.List1->Item(1).y, 2, 1e-12);
    EXPECT_NEAR(surface.List2->Item(1).y, 0, 1e-12);
    EXPECT_NEAR(surface.List3->Item(1).x, -3, 1e-12);
    EXPECT_NEAR(surface.LapList1->Item(1).x, -5, 1e-12);
    EXPECT_NEAR(surface.LapList2->Item(2).x, -8, 1e-12);
    EXPECT_EQ(surface.LapList1->Item(1).Flag, 8);
    // The centre itself stays.
    EXPECT_EQ(surface.RefPoint->x, 1);
    EXPECT_EQ(surface.RefPoint->y, 1);
    EXPECT_EQ(surface.RefPoint->Flag, 4);
}

TEST(Rotate, KeepsAllDistances) {
    CRuleSurf surface = Strip({{1, 2, 3, 0}, {-4, 0, 2, 0}}, {{5, 5, -5, 0}, {0, 9, 1, 0}});
    const double ruling = std::sqrt(16.0 + 9 + 64);
    const double edge = std::sqrt(25.0 + 4 + 1);
    for (const Axis axis : {Axis::X, Axis::Y, Axis::Z}) {
        surface.Rotate(axis, {3, -1, 2, 0}, 0.4);
        const C3DPoint& a = surface.List1->Item(1);
        const C3DPoint& b = surface.List1->Item(2);
        const C3DPoint& c = surface.List2->Item(1);
        EXPECT_NEAR(std::hypot(a.x - c.x, a.y - c.y, a.z - c.z), ruling, 1e-12);
        EXPECT_NEAR(std::hypot(a.x - b.x, a.y - b.y, a.z - b.z), edge, 1e-12);
    }
}

TEST(Rotate, AnUnknownAxisLeavesOnlyTheFlag) {
    CRuleSurf surface;
    surface.List1 = ListOf({{1, 2, 3, 5}});
    surface.Rotate(static_cast<Axis>(4), {0, 0, 0, 0}, 1);
    EXPECT_TRUE(Same(surface.List1->Item(1), {0, 0, 0, 5}));
}

TEST(RotateList, TurnsTheOneListOfThatNumber) {
    for (int number = 1; number <= 5; ++number) {
        CRuleSurf surface = FullSurface();
        const std::array<PointList, 5> old = {surface.List1, surface.List2, surface.List3, surface.LapList1,
                                              surface.LapList2};
        surface.RotateList(number, Axis::Z, {0, 0, 0, 0}, 1);
        const std::array<PointList, 5> now = {surface.List1, surface.List2, surface.List3, surface.LapList1,
                                              surface.LapList2};
        for (int i = 1; i <= 5; ++i) {
            const auto index = static_cast<std::size_t>(i - 1);
            EXPECT_EQ(old.at(index) != now.at(index), i == number) << number << " " << i;
        }
    }
}

TEST(RotateList, AnotherNumberDoesNothing) {
    CRuleSurf surface = FullSurface();
    const PointList old = surface.List1;
    surface.RotateList(0, Axis::Z, {0, 0, 0, 0}, 1);
    surface.RotateList(6, Axis::Z, {0, 0, 0, 0}, 1);
    EXPECT_EQ(surface.List1, old);
}

TEST(RotateList, AnAbsentListStaysAbsent) {
    CRuleSurf surface;
    surface.RotateList(3, Axis::Z, {0, 0, 0, 0}, 1);
    EXPECT_FALSE(surface.List3);
}

// Lists are shared, replaced or edited: three rules that fittings count on.

TEST(Sharing, AddSharesTheListsOfItsArgument) {
    CRuleSurf surface = FullSurface();
    surface.RefPointDisplay = true;
    CRuleSurfs surfaces;
    CRuleSurf& stored = surfaces.Add(surface);
    EXPECT_EQ(stored.List1, surface.List1);
    EXPECT_EQ(stored.List2, surface.List2);
    EXPECT_EQ(stored.List3, surface.List3);
    EXPECT_EQ(stored.LapList1, surface.LapList1);
    EXPECT_EQ(stored.LapList2, surface.LapList2);
    EXPECT_TRUE(stored.RefPointDisplay);
    EXPECT_TRUE(Same(*stored.RefPoint, *surface.RefPoint));

    surface.List1->Item(1).x = 77;
    EXPECT_EQ(surfaces.Item(1).List1->Item(1).x, 77);
}

TEST(Sharing, AddLeavesTheDimensionsBehind) {
    CRuleSurf surface = FullSurface();
    surface.DimensionList = std::make_shared<CDimensions>();
    CRuleSurfs surfaces;
    surfaces.Add(surface);
    EXPECT_FALSE(surfaces.Item(1).DimensionList);
    EXPECT_TRUE(surface.DimensionList);
}

TEST(Sharing, AddMakesAnotherSurface) {
    CRuleSurf surface = FullSurface();
    CRuleSurfs surfaces;
    surfaces.Add(surface);
    surfaces.Item(1).List3 = nullptr;
    EXPECT_TRUE(surface.List3);
}

TEST(Sharing, MoveAndRotateReplaceListsSoThatOthersKeepTheirs) {
    CRuleSurf surface = FullSurface();
    CRuleSurfs surfaces;
    surfaces.Add(surface);
    surface.Move({0, 0, 0, 0}, {100, 0, 0, 0});
    EXPECT_EQ(surface.List1->Item(1).x, 100);
    EXPECT_EQ(surfaces.Item(1).List1->Item(1).x, 0);

    surfaces.Add(surface);
    surface.Rotate(Axis::Z, {0, 0, 0, 0}, PI);
    EXPECT_NEAR(surface.List1->Item(1).x, -100, 1e-9);
    EXPECT_EQ(surfaces.Item(2).List1->Item(1).x, 100);
    EXPECT_EQ(surfaces.Item(2).List3->Item(1).x, 105);
}

TEST(Sharing, LapsEditTheListsInPlace) {
    CRuleSurf surface = Strip({{0, 0, 0, 0}, {1, 0, 0, 0}}, {{0, 1, 0, 0}, {1, 1, 0, 0}});
    CRuleSurfs surfaces;
    surfaces.Add(surface);
    CLapJoin join;
    join.Surface = surface;
    join.LapSize2 = 5;
    join.AddLapJoin();
    EXPECT_EQ(surface.List2->Item(1).y, 6);
    EXPECT_EQ(surfaces.Item(1).List2->Item(1).y, 6);
}

TEST(Surfaces, AreAOneBasedCollection) {
    CRuleSurfs surfaces;
    for (int n = 2; n <= 4; ++n) {
        surfaces.Add(LongStrip(n));
    }
    EXPECT_EQ(surfaces.Count(), 3U);
    surfaces.Remove(2);
    EXPECT_EQ(surfaces.Count(), 2U);
    EXPECT_EQ(surfaces.Item(1).List1->Count(), 2U);
    EXPECT_EQ(surfaces.Item(2).List1->Count(), 4U);
    EXPECT_THROW((void)surfaces.Item(0), ListError);
    EXPECT_THROW((void)surfaces.Item(3), ListError);
    std::size_t stations = 0;
    for (const CRuleSurf& surface : surfaces) {
        stations += surface.List1->Count();
    }
    EXPECT_EQ(stations, 6U);
}

TEST(TrimSurface, KeepsHalfOrAQuarterFromEitherEnd) {
    const CRuleSurf nine = LongStrip(9);
    EXPECT_EQ(Xs(TrimSurface(nine, false, false).List1), (std::vector<double>{1, 2, 3, 4, 5}));
    EXPECT_EQ(Xs(TrimSurface(nine, false, true).List1), (std::vector<double>{9, 8, 7, 6, 5}));
    EXPECT_EQ(Xs(TrimSurface(nine, true, false).List1), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(Xs(TrimSurface(nine, true, true).List1), (std::vector<double>{9, 8, 7, 6, 5, 4, 3}));
    EXPECT_EQ(Xs(TrimSurface(nine, false, true).List2), (std::vector<double>{9, 8, 7, 6, 5}));
}

TEST(TrimSurface, TheDivisionTruncates) {
    EXPECT_EQ(Xs(TrimSurface(LongStrip(8), false, false).List1), (std::vector<double>{1, 2, 3, 4, 5}));
    EXPECT_EQ(Xs(TrimSurface(LongStrip(7), false, false).List1), (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(Xs(TrimSurface(LongStrip(7), true, false).List1), (std::vector<double>{1, 2}));
    EXPECT_EQ(Xs(TrimSurface(LongStrip(2), false, true).List1), (std::vector<double>{2}));
}

TEST(TrimSurface, OfOneStationKeepsIt) {
    for (const bool quarter : {false, true}) {
        for (const bool fromEnd : {false, true}) {
            EXPECT_EQ(Xs(TrimSurface(LongStrip(1), quarter, fromEnd).List1), (std::vector<double>{1}));
        }
    }
}

TEST(TrimSurface, CopiesThePointsWithTheirFlags) {
    const CRuleSurf nine = LongStrip(9);
    const CRuleSurf trimmed = TrimSurface(nine, false, true);
    EXPECT_TRUE(Same(trimmed.List2->Item(1), {9, 10, 0, 1}));
    EXPECT_TRUE(Same(trimmed.List2->Item(2), {8, 10, 0, 0}));
    trimmed.List1->Item(1).x = 500;
    EXPECT_EQ(nine.List1->Item(9).x, 9);
}

TEST(TrimSurface, CarriesTheFurtherListsByTheSameStations) {
    CRuleSurf surface = LongStrip(5);
    surface.List3 = ListOf({{31, 0, 0, 0}, {32, 0, 0, 0}, {33, 0, 0, 0}, {34, 0, 0, 0}, {35, 0, 0, 0}});
    surface.LapList1 = LongStrip(5).List2;
    surface.LapList2 = ListOf({{1, 0, 0, 0}});
    surface.RefPoint = C3DPoint{};
    surface.RefPointDisplay = true;
    surface.DimensionList = std::make_shared<CDimensions>();

    const CRuleSurf trimmed = TrimSurface(surface, false, true);
    EXPECT_EQ(Xs(trimmed.List3), (std::vector<double>{35, 34, 33}));
    EXPECT_EQ(Xs(trimmed.LapList1), (std::vector<double>{5, 4, 3}));
    EXPECT_FALSE(trimmed.LapList2) << "one point counts as an absent list";
    EXPECT_FALSE(trimmed.RefPoint);
    EXPECT_FALSE(trimmed.RefPointDisplay);
    EXPECT_FALSE(trimmed.DimensionList);
}

TEST(TrimSurface, NeedsBothListsInFull) {
    EXPECT_THROW(TrimSurface(CRuleSurf(), false, false), ListError);
    CRuleSurf surface = LongStrip(9);
    surface.List2 = nullptr;
    EXPECT_THROW(TrimSurface(surface, false, false), ListError);
    surface.List2 = LongStrip(4).List2;
    EXPECT_THROW(TrimSurface(surface, false, false), ListError);
    surface.List2 = LongStrip(9).List2;
    surface.List3 = LongStrip(2).List1;
    EXPECT_THROW(TrimSurface(surface, false, false), ListError);
    EXPECT_THROW(TrimSurface(LongStrip(0), false, false), ListError);
}

TEST(RequireWithinReach, FindsABadNumberInEveryPlace) {
    EXPECT_NO_THROW(RequireWithinReach(FullSurface()));
    EXPECT_NO_THROW(RequireWithinReach(CRuleSurf()));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    for (const PointList CRuleSurf::*list : {&CRuleSurf::List1, &CRuleSurf::List2, &CRuleSurf::List3,
                                             &CRuleSurf::LapList1, &CRuleSurf::LapList2}) {
        const CRuleSurf surface = FullSurface();
        (surface.*list)->Item(2).z = nan;
        EXPECT_THROW(RequireWithinReach(surface), ArithmeticError);
    }
    CRuleSurf surface = FullSurface();
    surface.List1->Item(1).x = inf;
    EXPECT_THROW(RequireWithinReach(surface), ArithmeticError);
    surface = FullSurface();
    surface.List1->Item(1).y = -inf;
    EXPECT_THROW(RequireWithinReach(surface), ArithmeticError);
    surface = FullSurface();
    surface.RefPoint->y = nan;
    EXPECT_THROW(RequireWithinReach(surface), ArithmeticError);
}

TEST(RequireWithinReach, FindsAPointBeyondTheLargestSize) {
    for (double C3DPoint::*coordinate : {&C3DPoint::x, &C3DPoint::y, &C3DPoint::z}) {
        for (const PointList CRuleSurf::*list : {&CRuleSurf::List1, &CRuleSurf::List2, &CRuleSurf::List3,
                                                 &CRuleSurf::LapList1, &CRuleSurf::LapList2}) {
            const CRuleSurf surface = FullSurface();
            double& value = (surface.*list)->Item(2).*coordinate;
            for (const double sign : {1.0, -1.0}) {
                value = sign * LargestSize;
                EXPECT_NO_THROW(RequireWithinReach(surface));
                value = sign * 1.000001e9;
                EXPECT_THROW(RequireWithinReach(surface), ArithmeticError);
            }
        }
    }
}

}  // namespace
}  // namespace korvet
