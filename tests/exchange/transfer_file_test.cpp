// A drawing read back from the transfer file, entity by entity.
#include "exchange/transfer_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/checked.h"
#include "core/number_text.h"
#include "exchange/dxf_stream.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

/// All of an entity, its numbers to the last bit.
std::string Described(const TransferEntity& entity) {
    std::string text = entity.layer;
    const auto number = [&text](double value) {
        text += (std::signbit(value) ? " -" : " ") + ShortestText(std::fabs(value));
    };
    const auto point = [&number](const C3DPoint& at) {
        for (const double value : {at.x, at.y, at.z, static_cast<double>(at.Flag)}) {
            number(value);
        }
    };
    if (const auto* line = std::get_if<TransferLine>(&entity.shape)) {
        point(line->a);
        point(line->b);
    } else if (const auto* arc = std::get_if<TransferArc>(&entity.shape)) {
        point(arc->centre);
        for (const double value : {arc->radius, arc->start, arc->end}) {
            number(value);
        }
    } else if (const auto* words = std::get_if<TransferText>(&entity.shape)) {
        point(words->point);
        for (const double value : {words->size, static_cast<double>(words->justification), words->angle}) {
            number(value);
        }
        text += words->text;
    } else {
        const auto& polyline = std::get<TransferPolyline>(entity.shape);
        text += " " + std::to_string(polyline.rows) + " by " + std::to_string(polyline.columns);
        std::for_each(polyline.points.begin(), polyline.points.end(), point);
    }
    return text;
}

/// All kinds of entities, with coordinates near and far.
void WriteAll(DxfStream& out) {
    std::mt19937 random(20261);
    std::uniform_real_distribution<double> digits(-1, 1);
    std::uniform_real_distribution<double> power(-8, 14);
    const auto any = [&] { return digits(random) * std::pow(10, power(random)); };
    const auto anywhere = [&] { return C3DPoint{any(), any(), any(), RuleStation}; };
    out.WriteLine({-0.0000001, 1e9, 999999999.9999994}, {1e15, -1e9 + 1e-6, 0.0000014}, "");
    for (int i = 0; i < 300; ++i) {
        const C3DPoint a = anywhere();
        const C3DPoint b = anywhere();
        const C3DPoint c = anywhere();
        out.WriteLine(a, b, "Cut");
        out.WriteArc(a, b, c, " M\u00e4nner\n\xff ");
        out.WriteText(" \t\\U+00FC \u00d8 \\M+N ", a, any(), "Text", TextJustification::Centre);
        out.WritePolyline(PointsOf({a, b, c}), "Cut");
        out.WriteMesh(PointsOf({a, b}), PointsOf({c, a, b}), "Fold");
    }
}

TEST(TransferFile, HoldsTheEntitiesThatAreHandedOutWithoutIt) {
    constexpr double TextSize = 1.0 / 3;
    std::vector<std::string> found;
    const EntitySink note = [&found](const TransferEntity& entity) { found.push_back(Described(entity)); };
    DxfStream written(TextSize);
    WriteAll(written);
    ReadTransferFile(written.Finish(), note);
    const std::vector<std::string> read = std::exchange(found, {});
    DxfStream without(TextSize, note);
    WriteAll(without);
    EXPECT_EQ(found, read);
    EXPECT_EQ(read.size(), 1501U);
    EXPECT_THROW(without.WriteLine({std::nan(""), 0, 0}, {}, "Cut"), ArithmeticError);
}

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
