#include "display/coordinate_table.h"

#include <gtest/gtest.h>

#include "display/extent_frame.h"
#include "tests/display/display_log.h"

namespace korvet {
namespace {

TEST(PointText, RoundsEachCoordinate) {
    const C3DPoint point = {1.25, -0.04, 7.75, PlainStation};
    EXPECT_EQ(PointText(point, false, 1), "1.2,0");
    EXPECT_EQ(PointText(point, true, 2), "1.25,-0.04,7.75");
    EXPECT_EQ(PointText(point, true, 0), "1,0,8");
    EXPECT_EQ(PointText(std::nullopt, true, 1), "");
}

TEST(OffsetList, TellsThePointsFromTheOriginWithoutFlagsOrHeights) {
    const C3DPoints moved = OffsetList(*Points({{10, 20, 5, 1}, {13, 18, 6, 4}}), {10, 8, 99, 1});
    ASSERT_EQ(moved.Count(), 2U);
    EXPECT_EQ(moved.Item(1).x, 0);
    EXPECT_EQ(moved.Item(1).y, 12);
    EXPECT_EQ(moved.Item(2).x, 3);
    EXPECT_EQ(moved.Item(2).y, 10);
    for (const C3DPoint& point : moved) {
        EXPECT_EQ(point.z, 0);
        EXPECT_EQ(point.Flag, PlainStation);
    }
}

/// Three stations, of which the middle one is a construction point, from (10, 5) to (40, 45).
CRuleSurf TableSheet() {
    CRuleSurf surface;
    surface.List1 = Points({{10, 45, 0, 1}, {20, 45, 0, 0}, {40, 45, 0, 5}});
    surface.List2 = Points({{10, 5, 0, 1}, {22, 5, 0, 0}, {37.126, 5, 0, 1}});
    return surface;
}

std::string TableOf(const CRuleSurfs& surfaces) {
    return CoordinateTable({surfaces, BuildExtentFrame(surfaces, surfaces)}, 2);
}

TEST(CoordinateTable, OfNoSurfaceIsTheNameAlone) {
    EXPECT_EQ(TableOf({}), "Korvet Development\r\n");
}

TEST(CoordinateTable, IsTheSameByteForByte) {
    CRuleSurfs surfaces;
    surfaces.Add(TableSheet());
    CRuleSurf second = TableSheet();
    second.List3 = Points({{20, 25, 0, 1}, {21, 26, 0, 0}, {22, 27.5, 0, 1}});
    surfaces.Add(second);
    //           1234567890123412345678901234123456789012341234
    EXPECT_EQ(TableOf(surfaces),
              "Korvet Development\r\n"
              "Suface No: 1\r\n"
              "\r\n"
              "Number        A             B             C\r\n"
              "--------------------------------------------------------------\r\n"
              "              X,Y           X,Y           X,Y\r\n"
              " 1            0,40          0,0           \r\n"
              " 2            30,40         27.13,0       \r\n"
              "Suface No: 2\r\n"
              "\r\n"
              "Number        A             B             C\r\n"
              "--------------------------------------------------------------\r\n"
              "              X,Y           X,Y           X,Y\r\n"
              " 1            0,40          0,0           10,20\r\n"
              " 2            30,40         27.13,0       12,22.5\r\n");
}

TEST(CoordinateTable, AnItemThatFillsItsZoneSendsTheNextOneAZoneOn) {
    CRuleSurf surface;
    surface.List1 = Points({{0, 0, 0, 1}, {12345.25, 123.5, 0, 1}});  // 14 characters
    surface.List2 = Points({{0, 0, 0, 1}, {5, 0, 0, 1}});
    CRuleSurfs surfaces;
    surfaces.Add(surface);
    const std::string table = TableOf(surfaces);
    EXPECT_TRUE(table.ends_with("\r\n 2            12345.25,123.5              5,0           \r\n")) << table;
}

TEST(CoordinateTable, AShorterLineEndsIt) {
    CRuleSurf shorter = TableSheet();
    shorter.List2 = Points({{10, 5, 0, 1}, {22, 5, 0, 0}, {37, 5, 0, 0}});
    CRuleSurfs surfaces;
    surfaces.Add(shorter);
    EXPECT_THROW(static_cast<void>(TableOf(surfaces)), ListError);
    CRuleSurf shortHole = TableSheet();
    shortHole.List3 = Points({{20, 25, 0, 1}, {21, 26, 0, 0}});
    surfaces = {};
    surfaces.Add(shortHole);
    EXPECT_THROW(static_cast<void>(TableOf(surfaces)), ListError);
}

TEST(CoordinateTable, ALongerLineIsLeftOut) {
    CRuleSurf surface = TableSheet();
    surface.List3 = Points({{20, 25, 0, 1}, {21, 26, 0, 1}, {22, 27, 0, 1}});
    CRuleSurfs surfaces;
    surfaces.Add(surface);
    EXPECT_EQ(TableOf(surfaces).find("12,22"), std::string::npos);
}

}  // namespace
}  // namespace korvet
