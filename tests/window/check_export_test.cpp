// The check of what an export writes: of every type of every fitting, and of shapes that are measured by
// hand.
#include "window/check_export.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "core/constants.h"
#include "tests/support/flat_area.h"
#include "tests/support/refusals.h"

namespace korvet {
namespace {

struct CheckedType {
    std::string category;
    int type;  ///< from 1
};

void PrintTo(const CheckedType& checked, std::ostream* out) {
    *out << checked.category << ", type " << checked.type;
}

std::vector<CheckedType> EveryCheckedType() {
    std::vector<CheckedType> types;
    for (const CatalogueRow& row : Catalogue) {
        for (std::size_t page = 0; page < row.table->pages.size(); ++page) {
            types.push_back({std::string(row.category), static_cast<int>(page) + 1});
        }
    }
    return types;
}

std::string NameOfChecked(const testing::TestParamInfo<CheckedType>& info) {
    std::string name = info.param.category + std::to_string(info.param.type);
    std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
    return name;
}

/// What the pattern view of a window would write.
CDXF DrawingOf(const CFittingWindow& window, EdgeMode mode = ArcEdges) {
    CDXF drawing;
    drawing.Pattern = drawing.OutlinesRequested = drawing.BendLinesRequested = true;
    drawing.PolyMode = mode;
    drawing.SurfaceList = window.display.Surfaces;
    return drawing;
}

class EveryCutFile : public testing::TestWithParam<CheckedType> {
  protected:
    void SetUp() override {
        window = shell.OpenSample(GetParam().category, GetParam().type);
        SelectFirstPattern(*window);
    }

    void ExpectWhole(const std::vector<EdgeMode>& modes = {ArcEdges}) {
        window->ClickView(PatternButton);
        const CRuleSurfs& pattern = window->display.Surfaces;
        for (const EdgeMode mode : modes) {
            const auto check = CheckExport(*window, DrawingOf(*window, mode));
            ASSERT_TRUE(check);
            const CutCheck& cut = check->cut;
            EXPECT_EQ(cut.faults, std::vector<std::string>());
            EXPECT_EQ(cut.pieces, pattern.Count());
            EXPECT_LE(cut.fromPoints, 0.001);
            EXPECT_LE(cut.widestGap, 0.001);
            ASSERT_TRUE(cut.area && check->fromFiner);
            // On the Cyclone's cone an arc goes through the tip of a hole that runs out to a point.
            EXPECT_LT(*check->fromFiner, GetParam().category == "Cyclone (Cone)" ? 8 : 2);
            if (mode == PolylineEdges) {
                EXPECT_NEAR(*cut.area, AreaByPoints(pattern), 1e-6 * AreaByPoints(pattern));
            }
        }
    }

    /// The area of the pattern by the points of its lists, holes taken off.
    static double AreaByPoints(const CRuleSurfs& pattern) {
        double area = 0;
        for (const CRuleSurf& surface : pattern) {
            area += std::fabs(FlatArea(surface));
            if (IsPresent(surface.List3)) {
                CRuleSurf hole;
                hole.List2 = surface.List3;
                hole.List1 = std::make_shared<C3DPoints>();
                area -= std::fabs(FlatArea(hole));
            }
        }
        return area;
    }

    TestShell shell;
    std::unique_ptr<CFittingWindow> window;
};

TEST_P(EveryCutFile, IsClosedAndTrue) {
    ExpectWhole({ArcEdges, PolylineEdges});
}

TEST_P(EveryCutFile, IsClosedWithLaps) {
    window->settings.JoinType = 1;
    window->settings.LapSize0 = window->settings.LapSize1 = window->settings.LapSize2 = 5;
    ExpectWhole();
}

TEST_P(EveryCutFile, IsClosedAsAHalf) {
    window->settings.HalfPattern = true;
    if (window->Table().halfPatterns == HalfPatterns::Offered) {
        ExpectWhole();
    }
}

class CheckExportTest : public testing::Test {
  protected:
    /// The check of a sample, in 96 segments.
    ExportCheck CheckOf(const std::string& category, int type) {
        const auto window = shell.OpenSample(category, type);
        window->settings.segs = 96;
        window->ClickView(PatternButton);
        const auto check = CheckExport(*window, DrawingOf(*window));
        EXPECT_TRUE(check);
        return check.value_or(ExportCheck());
    }

    TestShell shell;
};

TEST_F(CheckExportTest, APipeIsARectangle) {
    const ExportCheck check = CheckOf("Right Cylinder", 1);  // 200 across, 300 long
    const double girth = 200 * std::numbers::pi;
    EXPECT_NEAR(check.cut.cutLength, 2 * (girth + 300), 1e-5);
    EXPECT_NEAR(*check.cut.area, girth * 300, 1e-3);
    EXPECT_EQ(check.cut.bends, 95U);
    EXPECT_LT(*check.fromFiner, 1e-5);
}

TEST_F(CheckExportTest, AConeIsASector) {
    const ExportCheck check = CheckOf("Right Cone", 1);  // 300 to 120 across, the apex 400 above the base
    const double slant = std::hypot(150, 400);
    const double part = (300.0 - 120.0) / 300;
    EXPECT_NEAR(check.cut.cutLength, std::numbers::pi * (300 + 120) + 2 * slant * part, 1e-3);
    EXPECT_NEAR(*check.cut.area, std::numbers::pi * (150 * slant - 60 * slant * (1 - part)), 0.1);
    EXPECT_LT(*check.fromFiner, 1e-5);
}

TEST_F(CheckExportTest, APlateHasItsEllipseTakenOff) {
    const auto window = shell.OpenSample("Elliptical Hole", 1);
    window->settings.segs = 96;
    for (const auto& [box, text] :
         {std::pair(0, "100"), {1, "60"}, {2, "400"}, {3, "300"}, {4, "200"}, {5, "150"}}) {
        window->ChangeBox(static_cast<std::size_t>(box), text);
    }
    window->ClickView(PatternButton);
    const auto check = CheckExport(*window, DrawingOf(*window));
    // Semi-axes 50 and 50 / cos 60 degrees; the girth of an ellipse is 4 a E(e).
    EXPECT_NEAR(*check->cut.area, 400 * 300 - std::numbers::pi * 50 * 100, 0.05);
    EXPECT_NEAR(check->cut.cutLength, 1400 + 4 * 100 * std::comp_ellint_2(std::sqrt(0.75)), 0.01);
    EXPECT_EQ(check->cut.holes, 1U);
}

TEST_F(CheckExportTest, AModelHasNothingToCheck) {
    const auto window = shell.OpenSample("Right Cone", 1);
    window->ClickView(0);
    CDXF drawing = DrawingOf(*window);
    drawing.Pattern = false;
    EXPECT_FALSE(CheckExport(*window, drawing));
    window->ClickView(PatternButton);
    drawing = DrawingOf(*window);
    drawing.OutlinesRequested = false;
    EXPECT_FALSE(CheckExport(*window, drawing));
}

TEST_F(CheckExportTest, LeavesTheFittingAsItIs) {
    const auto window = shell.OpenSample("Elbow", 1);
    window->ClickView(PatternButton);
    const int segs = window->fitting->Inputs().segs;
    const PointList edge = window->fitting->Results().PatternSurfaceList.Item(1).List1;
    ASSERT_TRUE(CheckExport(*window, DrawingOf(*window)));
    EXPECT_EQ(window->fitting->Inputs().segs, segs);
    EXPECT_EQ(window->fitting->Results().PatternSurfaceList.Item(1).List1, edge);
    EXPECT_TRUE(shell.ui.messages.size() <= 1);
}

TEST_F(CheckExportTest, TheFinerPatternHasAHundredThousandSegmentsAtMost) {
    const auto window = shell.OpenSample("Right Cone", 1);
    window->settings.segs = 20000;
    window->ClickView(PatternButton);
    EXPECT_EQ(CheckExport(*window, DrawingOf(*window))->finerSegs, MaxSegs);
}

TEST_F(CheckExportTest, TheBoxOfSuccessTellsIt) {
    AcceptExports(shell.ui);
    const auto window = shell.OpenSample("Rectangle to Round", 1);
    window->ClickView(PatternButton);
    shell.ui.messages.clear();
    ASSERT_EQ(window->Export("out.dxf", ExportMode::Dxf), Passed);
    ASSERT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_EQ(shell.ui.messages[0].text, "DXF successfully saved to: out.dxf");
    const std::string& told = shell.ui.messages[0].detail;
    EXPECT_TRUE(told.starts_with("Check passed: 1 piece, 28 bends, cut length 1992.954, area 189877."))
        << told;
    EXPECT_NE(told.find("\nOn purpose: 1 last segment of an edge.\nThe cut runs within 0.0001 of"),
              std::string::npos)
        << told;
    EXPECT_TRUE(told.ends_with(" of the pattern with 192 segments.")) << told;
}

TEST_F(CheckExportTest, AFaultIsTheFirstThingTold) {
    ExportCheck check;
    check.cut.pieces = 2;
    check.cut.faults = {"piece 2: the outline is open at (1, 2)"};
    check.finerSegs = 192;
    check.fromFiner = 0.01234;
    EXPECT_EQ(CheckLines(check, ','),
              (std::vector<std::string>{"CHECK FAILED: 2 pieces, 0 bends, cut length 0.",
                                        "piece 2: the outline is open at (1, 2)",
                                        "The cut runs within 0 of the pattern's points, within 0,0124 of the "
                                        "pattern with 192 segments."}));
}

INSTANTIATE_TEST_SUITE_P(EveryType, EveryCutFile, testing::ValuesIn(EveryCheckedType()), NameOfChecked);

}  // namespace
}  // namespace korvet
