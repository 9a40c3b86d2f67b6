// A drawing read back from the transfer file, entity by entity.
#include "exchange/transfer_file.h"

#include <gtest/gtest.h>

#include "exchange/dxf_stream.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

TEST(TransferFile, HoldsWhatWasWritten) {
    DxfStream out(2.5);
    out.WriteLine({1, 2, 3}, {4, 5, 6}, "Cut");
    out.WriteArc({15, 20, 7}, {10, 25, 7}, {10, 20, 7}, "Cut 2");
    out.WriteText(" Base = 5 \u00d8 \U0001F527 C:\\U+00FC \\", {1, 2, 3}, 1, "M\u00e4nner",
                  TextJustification::Right);
    out.WritePolyline(PointsOf({{1, 1, 0}, {2, 3, 0}, {5, 5, 1}}), "Cut");
    out.WriteMesh(PointsOf({{1, 1, 0}, {2, 3, 0}}), PointsOf({{1, 5, 0}, {2, 6, 9}}), "Fold");
    const auto entities = ReadTransferFile(out.Finish());
    ASSERT_EQ(entities.size(), 5U);

    const auto& line = std::get<TransferLine>(entities[0].shape);
    EXPECT_EQ(entities[0].layer, "Cut");
    EXPECT_TRUE(Same(line.a, {1, 2, 3, 0}) && Same(line.b, {4, 5, 6, 0}));

    const auto& arc = std::get<TransferArc>(entities[1].shape);
    EXPECT_EQ(entities[1].layer, "Cut 2");
    EXPECT_TRUE(Same(arc.centre, {10, 20, 7, 0}));
    EXPECT_EQ(arc.radius, 5);
    EXPECT_EQ(arc.start, 0);
    EXPECT_EQ(arc.end, 90);

    const auto& text = std::get<TransferText>(entities[2].shape);
    EXPECT_EQ(text.text, " Base = 5 \u00d8 \U0001F527 C:\\U+00FC \\");
    EXPECT_EQ(entities[2].layer, "M\u00e4nner");
    EXPECT_TRUE(Same(text.point, {1, 2, 3, 0}));
    EXPECT_EQ(text.size, 2.5);
    EXPECT_EQ(text.justification, 2);
    EXPECT_NEAR(text.angle, 57.29577951308232, Near);

    const auto& polyline = std::get<TransferPolyline>(entities[3].shape);
    EXPECT_EQ(polyline.rows, 0U);
    EXPECT_TRUE(SamePoints(polyline.points, PointsOf({{1, 1, 0}, {2, 3, 0}, {5, 5, 1}})));

    const auto& mesh = std::get<TransferPolyline>(entities[4].shape);
    EXPECT_EQ(entities[4].layer, "Fold");
    EXPECT_EQ(mesh.rows, 2U);
    EXPECT_EQ(mesh.columns, 2U);
    EXPECT_TRUE(SamePoints(mesh.points, PointsOf({{1, 1, 0}, {2, 3, 0}, {1, 5, 0}, {2, 6, 9}})));
}

}  // namespace
}  // namespace korvet
