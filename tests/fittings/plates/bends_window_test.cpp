// The window of a bent plate: its corners, what it refuses and of which box, its text lines, files, and what
// becomes of a view of its pattern, which is empty.
#include <gtest/gtest.h>

#include "fittings/plates/bends.h"
#include "printing/printers_dialog.h"
#include "tests/exchange/dxf_reading.h"
#include "tests/support/recording_device.h"
#include "tests/support/refusals.h"
#include "tests/support/saved_fittings.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet {
namespace {

constexpr const char* Bends = "Bends";

/// The boxes of a corner, from 1.
BoxTexts CornerBoxes(int corner, const std::string& x, const std::string& y, const std::string& radius) {
    const int first = 3 * corner - 2;
    return {{first, x}, {first + 1, y}, {first + 2, radius}};
}

/// A plate of four corners: legs of 100, 200 and 100 with right turns.
class BendsOfFour : public testing::Test {
  protected:
    BendsOfFour() {
        TypeBoxes(*window, {{0, "500"}});
        TypeBoxes(*window, CornerBoxes(1, "10", "20", "0"));
        TypeBoxes(*window, CornerBoxes(2, "10", "120", "30"));
        TypeBoxes(*window, CornerBoxes(3, "210", "120", "40"));
        TypeBoxes(*window, CornerBoxes(4, "210", "20", "0"));
    }

    void ExpectRefused(const BoxTexts& boxes, const std::string& message, int box) {
        TypeBoxes(*window, boxes);
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, message, box);
        shell.ui.messages.clear();
    }

    /// The corners that the fitting is given.
    std::size_t Corners() {
        EXPECT_EQ(window->BuildFitting(), Passed);
        return window->fitting->As<CBends>().PointsList.Count();
    }

    TestShell shell;
    std::unique_ptr<CFittingWindow> window = shell.Open(Bends);
};

TEST(BendsWindow, Starts) {
    ExpectStart(
        Bends, {.helpContextId = 2100, .boxes = 19, .laps = AllLaps, .seamAngle = true, .halfPattern = true});
}

TEST_F(BendsOfFour, HandsOnWidthAndCorners) {
    ASSERT_EQ(Corners(), 4U);
    const auto& plate = window->fitting->As<CBends>();
    EXPECT_EQ(plate.PlateWidth, 500);
    EXPECT_TRUE(
        SamePoints(plate.PointsList, PointsOf({{10, 20, 0}, {10, 120, 30}, {210, 120, 40}, {210, 20, 0}})));
}

/// The radii of the ends do not count, but where the last corner is 0, 0 its radius makes it one.
TEST_F(BendsOfFour, CornersEndAtTheLastOneThatIsTyped) {
    TypeBoxes(*window, {{3, "-7"}, {12, "99"}});
    EXPECT_EQ(Corners(), 4U);
    EXPECT_EQ(window->fitting->As<CBends>().PointsList.Item(1).z, 0);
    EXPECT_EQ(window->fitting->As<CBends>().PointsList.Last().z, 0);
    TypeBoxes(*window, {{12, "0"}, {16, "-40"}});
    EXPECT_EQ(Corners(), 6U) << "corner 5 lies at the origin";
    TypeBoxes(*window, {{16, "0"}, {15, "1"}});
    EXPECT_EQ(Corners(), 5U);
    TypeBoxes(*window, {{15, "0.0"}, {14, "-0"}});
    EXPECT_EQ(Corners(), 4U);
    TypeBoxes(*window, CornerBoxes(4, "0", "0", "0"));
    TypeBoxes(*window, CornerBoxes(3, "0", "0", "0"));
    EXPECT_EQ(Corners(), 2U);
    TypeBoxes(*window, CornerBoxes(2, "0", "0", "0"));
    EXPECT_EQ(Corners(), 2U) << "two are always there";
}

TEST_F(BendsOfFour, FewerThanTwoDistinctCornersAreRefusedAtTheSecond) {
    for (const int corner : {2, 3, 4}) {
        TypeBoxes(*window, CornerBoxes(corner, "10", "20", "5"));
    }
    TypeBoxes(*window, {{6, "-5"}, {0, "0"}});  // wrong as well, but told later
    EXPECT_EQ(window->BuildFitting(), Refused);
    EXPECT_FALSE(window->hasModel);
    ASSERT_EQ(shell.ui.Texts(), std::vector<std::string>{"This fitting cannot be made with these sizes"});
    EXPECT_EQ(shell.ui.messages[0].detail, "a plate has at least two corners that differ");
    EXPECT_EQ(shell.ui.messages[0].box, 4);
    EXPECT_EQ(window->controls.focus, "txtParameter_4");
}

TEST(BendsWindow, ANewWindowHasNoCorners) {
    TestShell shell;
    const auto window = shell.Open(Bends);
    for (const int view : {0, PatternButton}) {
        window->ClickView(view);
        ASSERT_EQ(shell.ui.messages.size(), 1U);
        EXPECT_EQ(shell.ui.messages[0].box, 4);
        EXPECT_EQ(window->views->Count(), 0U);
        shell.ui.messages.clear();
    }
}

TEST_F(BendsOfFour, RadiiMustNotBeBelowNothing) {
    // The other radius is too large, which is told later.
    ExpectRefused({{6, "-0.1"}, {9, "5000"}}, AtLeast + "0", 6);
    ExpectRefused({{6, "5000"}, {9, "-0.1"}}, AtLeast + "0", 9);
    TypeBoxes(*window, {{6, "0"}, {9, "0"}});
    EXPECT_EQ(window->BuildFitting(), Passed);
}

/// Of legs of 100, 200 and 100 the middle one bears both tangents, which are the radii at 90 degrees.
TEST_F(BendsOfFour, RadiiMustFitOnTheirLegsBesideTheirNeighbours) {
    ExpectRefused({{6, "100.1"}}, AtMost + "100", 6);
    ExpectRefused({{6, "100"}, {9, "100.1"}}, AtMost + "99.9", 6);
    ExpectRefused({{6, "30"}}, AtMost + "100", 9);
    ExpectRefused({{6, "0.1"}, {9, "300"}}, AtMost + "0", 6);
    ExpectRefused({{6, "0"}}, AtMost + "100", 9);
    for (const auto& [first, second] : {std::pair{"100", "100"}, {"0", "100"}, {"100", "0"}}) {
        TypeBoxes(*window, {{6, first}, {9, second}});
        EXPECT_EQ(window->BuildFitting(), Passed) << first << " " << second;
    }
}

/// In triangles of 3, 4 and 5 an arc of radius 1 touches the legs at 2 where they meet at an angle whose
/// half has the slope 1/2, and at 1/2 where they meet at its supplement.
TEST_F(BendsOfFour, TangentsGoByTheAngleOfTheCorner) {
    TypeBoxes(*window, CornerBoxes(1, "0", "0", "0"));
    TypeBoxes(*window, CornerBoxes(2, "300", "0", "0"));
    TypeBoxes(*window, CornerBoxes(3, "0", "400", "0"));
    TypeBoxes(*window, CornerBoxes(4, "-70", "9", "0"));
    ExpectRefused({{6, "150.1"}}, AtMost + "150", 6);
    TypeBoxes(*window, {{6, "150"}});
    EXPECT_EQ(window->BuildFitting(), Passed) << "the limit itself";
    TypeBoxes(*window, CornerBoxes(3, "600", "400", "0"));
    ExpectRefused({{6, "600.1"}}, AtMost + "600", 6);
    TypeBoxes(*window, {{6, "600"}});
    EXPECT_EQ(window->BuildFitting(), Passed) << "the limit itself";
}

TEST_F(BendsOfFour, WhereTheLineGoesStraightOnAnyRadiusFits) {
    TypeBoxes(*window, CornerBoxes(3, "10", "320", "40"));
    TypeBoxes(*window, {{6, "5000"}});
    EXPECT_EQ(window->BuildFitting(), Passed);
}

class BentPlatesWithoutAShape : public testing::TestWithParam<Shapeless> {};

/// The build says so in a view of the pattern too, where nothing is made.
TEST_P(BentPlatesWithoutAShape, AreNotMade) {
    ExpectShapeless(Bends, GetParam());
}

const std::string Back = "the line doubles back or stands still at corner ";

INSTANTIATE_TEST_SUITE_P(Sizes, BentPlatesWithoutAShape,
                         testing::Values(Shapeless{1, {{0, "0"}}, "a plate without a width has no area"},
                                         Shapeless{1, CornerBoxes(3, "60", "200", "0"), Back + "2"},
                                         Shapeless{1, CornerBoxes(3, "60", "290", "5"), Back + "2"},
                                         Shapeless{1, CornerBoxes(6, "90", "40", "0"), Back + "5"},
                                         Shapeless{1, CornerBoxes(6, "80", "40", "0"), Back + "5"},
                                         Shapeless{
                                             1, {{18, "2e9"}}, "Radius 6 is above a thousand million"}));

TEST(BendsTextBlock, TellsTheWidthAndWhatSizesMean) {
    TestShell shell;
    const auto window = shell.OpenSample(Bends, 1);
    window->settings.Thickness = 1.5;
    window->settings.PositionString = "inside";
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(TextBlock(*window), (std::vector<std::string>{"", "", "Plate width = 400", "Thickness = 1.5",
                                                            "Dimensions are based on the inside",
                                                            "Bends  Full pattern  21 Nov 2026"}));
}

/// The corners are made anew for each build: their ends don't keep the width of the last one.
TEST(BendsModel, ARebuildIsTheFirstBuild) {
    TestShell shell;
    const auto window = shell.OpenSample(Bends, 1);
    window->ClickView(0);
    const CRuleSurfs first = window->display.Surfaces;
    window->Redraw();
    ExpectSameSurfaces(window->display.Surfaces, first);
    EXPECT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(window->fitting->As<CBends>().PointsList.Item(1).z, 0);
}

class BendsPattern : public testing::Test {
  protected:
    BendsPattern() {
        AcceptExports(shell.ui);
        window->ClickView(PatternButton);
    }

    RecordingDevice area;
    TestShell shell;
    std::unique_ptr<CFittingWindow> window = shell.OpenSample(Bends, 1, &area);
};

TEST_F(BendsPattern, ShowsNothingAndIsNoError) {
    EXPECT_TRUE(window->hasModel);
    EXPECT_EQ(window->display.Surfaces.Count(), 0U);
    EXPECT_TRUE(area.Of(RecordingDevice::Kind::Polyline).empty());
    EXPECT_EQ(area.Of(RecordingDevice::Kind::Cls).size(), 1U) << "the picture before is gone";
    EXPECT_FALSE(window->display.FindClosestPoint({0, 0, 0}));
    window->ZoomExtents();
    EXPECT_EQ(window->views->Count(), 1U) << "there is nothing to zoom to";
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(BendsPattern, HasNoAnnotationsButItsLabel) {
    window->display.CoordGridRequested = window->display.CoordTableRequested = true;
    window->display.FrameRequested = window->display.TrueLengthsRequested = true;
    window->display.DiagonalsRequested = true;
    window->Redraw();
    EXPECT_TRUE(area.Of(RecordingDevice::Kind::Polyline).empty());
    EXPECT_TRUE(area.Of(RecordingDevice::Kind::TextOut).empty());
    window->display.LabelPoint = C3DPoint{1, 2, 0};
    window->Redraw();
    EXPECT_EQ(area.Of(RecordingDevice::Kind::TextOut).size(), TextBlock(*window).size());
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(BendsPattern, IsExportedWithoutAnEntity) {
    ASSERT_EQ(window->Export("none.dxf", ExportMode::Dxf), Passed);
    EXPECT_TRUE(dxf_reading::ReadEntities(shell.files.files["none.dxf"]).empty());
    window->ClickView(0);
    ASSERT_EQ(window->Export("model.dxf", ExportMode::Dxf), Passed);
    EXPECT_FALSE(dxf_reading::ReadEntities(shell.files.files["model.dxf"]).empty());
}

TEST_F(BendsPattern, HasNoSheets) {
    shell.printers.queues = {{.name = "Laser"}};
    shell.printDialog.SetDefaultPapersize(shell.options, shell.ui);
    for (const PrintersDialog::Scale scale : {PrintersDialog::FullSize, PrintersDialog::FitPage}) {
        shell.ui.onPrinters = [&](PrintersDialog& dialog) {
            dialog.ClickScale(scale);
            dialog.ClickOK();
        };
        window->PrintDrawing();
        EXPECT_TRUE(shell.printers.documents.empty()) << scale;
    }
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"This option is only available in pattern view",
                                                          "Nothing to print!"}));
}

TEST_F(BendsPattern, OpensFromItsFile) {
    ASSERT_EQ(window->SaveFile("a.Kvt"), Passed);
    const auto opened = shell.Open(Bends, &area);
    EXPECT_EQ(opened->LoadFile("a.Kvt"), Passed);
    EXPECT_TRUE(opened->hasModel);
    EXPECT_TRUE(InPatternView(*opened->views));
    EXPECT_EQ(opened->views->Count(), 1U);
    EXPECT_TRUE(shell.ui.messages.empty());
}

}  // namespace
}  // namespace korvet
