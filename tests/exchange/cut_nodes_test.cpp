#include "exchange/cut_nodes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace korvet {
namespace {

PieceCurve Line(const C3DPoint& a, const C3DPoint& b) {
    return {LineCurve(a, b), 1, CutPart::Edge1, 0};
}

TEST(CutNodes, EndsWithinReachAreOneWhereverTheyLie) {
    for (int i = 0; i < 2000; ++i) {
        const double x = -0.001 + i * 1e-6;  // over several cells of the plan, on both sides of 0
        const auto nodes = [&](double gap) {
            return NodesOf({Line({-7, 3}, {x, x}), Line({x + gap, x - gap}, {5, 5})});
        };
        const CutNodes joined = nodes(3e-6);
        ASSERT_EQ(joined.places.size(), 3U) << x;
        EXPECT_EQ(joined.stretches[0].b, joined.stretches[1].a);
        ASSERT_EQ(nodes(4e-6).places.size(), 4U) << "5.7e-6 apart, at " << x;
    }
}

TEST(CutNodes, AnEndTakesTheNearestPlace) {
    const CutNodes nodes =
        NodesOf({Line({0, 0}, {0, 9}), Line({8e-6, 0}, {9, 0}), Line({4.9e-6, 0}, {9, 9})});
    EXPECT_EQ(nodes.stretches[2].a, nodes.stretches[1].a);
}

TEST(CutNodes, ACurveIsCutWhereAnEndLiesOnIt) {
    const PieceCurves curves = {{ArcCurve({0, 0}, 2, 0, 3), 1, CutPart::Edge1, 0},
                                Line({2 * std::cos(1), 2 * std::sin(1)}, {0, 0})};
    const CutNodes nodes = NodesOf(curves);
    ASSERT_EQ(nodes.stretches.size(), 3U);
    EXPECT_FALSE(nodes.stretches[0].IsWhole());
    EXPECT_TRUE(nodes.stretches[2].IsWhole());
    EXPECT_NEAR(LengthOf(ShapeOf(curves, nodes.stretches[0])), 2, 1e-9);
    EXPECT_NEAR(LengthOf(ShapeOf(curves, nodes.stretches[1])), 4, 1e-9);
    EXPECT_EQ(nodes.stretches[0].b, nodes.stretches[2].a);
}

TEST(CutNodes, WhatLiesOnAnotherIsTheSame) {
    const PieceCurves curves = {Line({0, 0}, {6, 0}),
                                Line({4, 0}, {0, 0}),
                                {ArcCurve({2, 0}, 2, 0, 3.14159265358979), 1, CutPart::Edge2, 1}};
    const CutNodes nodes = NodesOf(curves);
    ASSERT_EQ(nodes.stretches.size(), 4U);
    EXPECT_EQ(nodes.stretches[0].same, 0U);
    EXPECT_EQ(nodes.stretches[1].same, 1U);
    EXPECT_EQ(nodes.stretches[2].same, 0U) << "the other way round";
    EXPECT_EQ(nodes.stretches[3].same, 3U) << "the same ends, another way between them";
}

}  // namespace
}  // namespace korvet
