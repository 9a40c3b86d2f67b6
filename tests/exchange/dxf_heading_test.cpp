// What stands before the entities of a drawing file, when it is asked for.
#include "exchange/dxf_heading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "exchange/dxf.h"
#include "exchange/dxf_lines.h"
#include "exchange/dxf_stream.h"

namespace korvet {
namespace {

constexpr Color Rgb(int red, int green, int blue) {
    return red | green << 8 | blue << 16;
}

/// The values of a text with the code before each.
std::vector<std::string> GroupsOf(std::string_view text) {
    std::vector<std::string> groups;
    DxfLines lines(text);
    while (const auto code = lines.Next()) {
        groups.push_back(std::string(*code) + ":" + std::string(lines.Next().value_or("missing")));
    }
    return groups;
}

/// The groups behind the first one of that text, as many as are asked for.
std::vector<std::string> Behind(const std::vector<std::string>& groups, const std::string& first,
                                std::ptrdiff_t count) {
    const auto found = std::find(groups.begin(), groups.end(), first);
    if (found == groups.end() || groups.end() - found <= count) {
        return {};
    }
    return {found + 1, found + 1 + count};
}

TEST(NearestColorIndex, KnowsThePlainColours) {
    EXPECT_EQ(NearestColorIndex(Red), 1);
    EXPECT_EQ(NearestColorIndex(Yellow), 2);
    EXPECT_EQ(NearestColorIndex(Green), 3);
    EXPECT_EQ(NearestColorIndex(Cyan), 4);
    EXPECT_EQ(NearestColorIndex(Rgb(0, 0, 255)), 5);
    EXPECT_EQ(NearestColorIndex(Magenta), 6);
    EXPECT_EQ(NearestColorIndex(Rgb(255, 255, 255)), 7);
    EXPECT_EQ(NearestColorIndex(Black), 7);
}

TEST(NearestColorIndex, TakesTheNearestOfTheWheelAndTheGreys) {
    // The published colours of these numbers, and colours beside them.
    EXPECT_EQ(NearestColorIndex(Rgb(255, 127, 127)), 11);
    EXPECT_EQ(NearestColorIndex(Rgb(165, 41, 0)), 22);
    EXPECT_EQ(NearestColorIndex(Rgb(165, 103, 82)), 23);
    EXPECT_EQ(NearestColorIndex(Rgb(250, 129, 4)), 30);
    EXPECT_EQ(NearestColorIndex(Rgb(0, 76, 76)), 136);
    EXPECT_EQ(NearestColorIndex(Rgb(127, 0, 255)), 190);
    EXPECT_EQ(NearestColorIndex(Rgb(255, 0, 63)), 240);
    EXPECT_EQ(NearestColorIndex(Rgb(129, 127, 128)), 8);
    EXPECT_EQ(NearestColorIndex(Rgb(205, 203, 204)), 254);
}

CDXF Plate() {
    CDXF dxf;
    dxf.Pattern = dxf.OutlinesRequested = true;
    dxf.CutLayer = "CUT";
    CRuleSurf plate;
    for (PointList CRuleSurf::*edge : {&CRuleSurf::List1, &CRuleSurf::List2}) {
        plate.*edge = std::make_shared<C3DPoints>();
        (plate.*edge)->Add({-5, edge == &CRuleSurf::List1 ? 7.5 : -2});
        (plate.*edge)->Add({40, edge == &CRuleSurf::List1 ? 7.5 : -2});
    }
    dxf.SurfaceList.Add(plate);
    return dxf;
}

TEST(DxfHeading, StandsBeforeTheSameEntities) {
    CDXF dxf = Plate();
    const std::string plain = dxf.Text();
    dxf.Heading = DxfHeading{false, {{"CUT", Red}, {"Fold", Cyan}, {"cut", Green}}};
    std::vector<DxfPart> parts;
    const std::string complete = dxf.Text(parts);
    ASSERT_TRUE(complete.ends_with(plain));
    EXPECT_EQ(complete.compare(parts.front().begin, 7, "0\r\nLINE"), 0);
    const auto groups = GroupsOf(std::string_view(complete).substr(0, complete.size() - plain.size()));
    EXPECT_EQ(Behind(groups, "9:$ACADVER", 1), (std::vector<std::string>{"1:AC1009"}));
    EXPECT_EQ(Behind(groups, "9:$EXTMIN", 3), (std::vector<std::string>{"10:-5", "20:-2", "30:0"}));
    EXPECT_EQ(Behind(groups, "9:$EXTMAX", 3), (std::vector<std::string>{"10:40", "20:7.5", "30:0"}));
    EXPECT_EQ(Behind(groups, "9:$INSUNITS", 1), (std::vector<std::string>{"70:4"}));
    EXPECT_EQ(Behind(groups, "2:CUT", 3), (std::vector<std::string>{"70:0", "62:1", "6:CONTINUOUS"}));
    EXPECT_EQ(Behind(groups, "2:Fold", 2), (std::vector<std::string>{"70:0", "62:4"}));
    EXPECT_EQ(Behind(groups, "2:LAYER", 1), (std::vector<std::string>{"70:3"})) << "CUT, Fold and 0";
}

TEST(DxfHeading, TellsOfInches) {
    CDXF dxf = Plate();
    dxf.Heading = DxfHeading{true, {}};
    const auto groups = GroupsOf(dxf.Text());
    EXPECT_EQ(Behind(groups, "9:$INSUNITS", 1), (std::vector<std::string>{"70:1"}));
    EXPECT_EQ(Behind(groups, "9:$MEASUREMENT", 1), (std::vector<std::string>{"70:0"}));
}

TEST(DxfHeading, TheExtentsTakeInTheBulgeOfAnArc) {
    DxfStream out(1);
    out.WriteArc({5, 0}, {-5, 0}, {}, "L");
    ASSERT_TRUE(out.Extents());
    EXPECT_NEAR(out.Extents()->low.x, -5, 1e-9);
    EXPECT_NEAR(out.Extents()->low.y, 0, 1e-9);
    EXPECT_NEAR(out.Extents()->high.y, 5, 1e-9);
    out.WriteText("t", {1, -9, 0, 0}, 0, "L", TextJustification::Left);
    EXPECT_EQ(out.Extents()->low.y, -9);
}

}  // namespace
}  // namespace korvet
