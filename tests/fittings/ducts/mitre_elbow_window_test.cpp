// The window of the mitre elbow: how it starts, what it hands on, sizes without a shape, text lines, and
// the cut file, in which no arc may round a corner.
#include <gtest/gtest.h>

#include <algorithm>

#include "core/math_module.h"
#include "fittings/ducts/mitre_elbow.h"
#include "tests/exchange/dxf_reading.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"

namespace korvet {
namespace {

constexpr const char* MitreElbow = "Mitre Elbow";

TEST(MitreElbowWindow, Starts) {
    ExpectStart(MitreElbow,
                {.helpContextId = 0, .boxes = 5, .laps = AllLaps, .pieces = true, .halfPattern = true});
}

TEST(MitreElbowWindow, EveryBoxMustHoldANumber) {
    for (int box = 0; box < 5; ++box) {
        TestShell shell;
        const auto window = shell.OpenSample(MitreElbow, 1);
        TypeBoxes(*window, {{box, ""}});
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectNotANumber(shell.ui, *window, box);
    }
}

class MitreElbowsWithoutAShape : public testing::TestWithParam<Shapeless> {};

TEST_P(MitreElbowsWithoutAShape, AreNotMade) {
    ExpectShapeless(MitreElbow, GetParam());
}

const std::string NoWall = "a duct without width or depth has no wall";
const std::string TooShort = "a length ends before the mitre";

// At 135 degrees a mitre of 120 reaches 60 cot(67.5) = 24.853 along the limbs.
INSTANTIATE_TEST_SUITE_P(
    Sizes, MitreElbowsWithoutAShape,
    testing::Values(Shapeless{1, {{0, "0"}}, NoWall}, Shapeless{1, {{4, "0"}}, NoWall},
                    Shapeless{1, {{1, "24.852"}}, TooShort}, Shapeless{1, {{2, "24.852"}}, TooShort},
                    Shapeless{1, {{1, "-350"}}, TooShort}, Shapeless{1, {{3, "10"}}, TooShort},
                    Shapeless{1, {{3, "360"}}, TooShort},
                    Shapeless{1, {{3, "0"}}, "limbs that lie on one another have no mitre"},
                    Shapeless{1, {{4, "1.1e9"}}, "Depth is above a thousand million"}));

TEST(MitreElbowLimits, LengthsJustReachTheMitre) {
    ExpectMade(MitreElbow, {{1, {{1, "24.854"}, {2, "24.854"}}},
                            {1, {{3, "90"}, {1, "60"}, {2, "60"}}},  // to rounding
                            {1, {{0, "-120"}, {4, "-260"}}}});
}

/// The model is within reach, and its walls are twice as long.
TEST(MitreElbowLimits, AWallThatReachesTooFarIsNotLaidFlat) {
    TestShell shell;
    const auto window = shell.OpenSample(MitreElbow, 1);
    TypeBoxes(*window, {{1, "9.9e8"}, {2, "9.9e8"}, {3, "180"}});
    window->ClickView(0);
    EXPECT_TRUE(window->hasModel);
    window->ClickView(PatternButton);
    ExpectNotMade(shell.ui, *window, "the fitting is larger than a thousand million");
}

TEST(MitreElbowSizes, AreThoseOfTheBoxes) {
    TestShell shell;
    const auto window = shell.OpenSample(MitreElbow, 1);
    window->settings.Thickness = 6;
    window->settings.InOutMean = OutsideDimension;
    const auto& elbow = Built<CMitreElbow>(*window);
    EXPECT_EQ(elbow.End1PlanWidth, 120) << "as typed, whichever side the settings name";
    EXPECT_EQ(elbow.End2PlanWidth, 120);
    EXPECT_EQ(elbow.End1Length, 350);
    EXPECT_EQ(elbow.End2Length, 310);
    EXPECT_EQ(elbow.CenterLineAngle, -DegToRad(135));
    EXPECT_EQ(elbow.End1Depth, 260);
    EXPECT_EQ(elbow.End2Depth, 260);
    EXPECT_EQ(elbow.SeamLapSmall, 0);
    EXPECT_EQ(elbow.SeamLapLarge, 0);
}

TEST(MitreElbowTextBlock, HasNoLinesOfItsOwn) {
    ExpectTextBlocks(MitreElbow, {{1, {}}});
}

/// Whether a line of the cut runs straight from one corner to the next.
bool IsCutStraight(const C3DPoint& a, const C3DPoint& b, const std::vector<dxf_reading::Entity>& entities) {
    const auto lies = [](const C3DPoint& p, const C3DPoint& q) { return Distance3D(p, q) < 1e-5; };
    return std::any_of(entities.begin(), entities.end(), [&](const dxf_reading::Entity& e) {
        const C3DPoint from = e.Point(10);
        const C3DPoint to = e.Point(11);
        return e.Layer() == "CutLayer" && ((lies(from, a) && lies(to, b)) || (lies(from, b) && lies(to, a)));
    });
}

/// The three points of a cheek's side would make an arc if its mitre were no corner.
TEST(MitreElbowCutFile, IsStraightThroughEveryCorner) {
    for (const char* angle : {"60", "90", "135", "240"}) {
        TestShell shell;
        AcceptExports(shell.ui);
        const auto window = shell.OpenSample(MitreElbow, 1);
        TypeBoxes(*window, {{3, angle}});
        window->ClickView(PatternButton);
        ASSERT_EQ(window->Export("elbow.dxf", ExportMode::Dxf), Passed);
        const auto entities = dxf_reading::ReadEntities(shell.files.files["elbow.dxf"]);
        for (const dxf_reading::Entity& entity : entities) {
            EXPECT_EQ(entity.kind, "LINE") << angle;
        }
        const CRuleSurf& cheek = window->display.Surfaces.Item(3);
        for (const PointList& side : {cheek.List1, cheek.List2}) {
            EXPECT_TRUE(IsCutStraight(side->Item(1), side->Item(2), entities)) << angle;
            EXPECT_TRUE(IsCutStraight(side->Item(2), side->Item(3), entities)) << angle;
        }
    }
}

}  // namespace
}  // namespace korvet
