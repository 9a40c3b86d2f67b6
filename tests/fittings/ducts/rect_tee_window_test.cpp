// The window of the rectangular tee, which refuses no size and has no pattern: how it starts, the sizes that
// it hands on, text lines, and what its commands do where there is nothing to draw.
#include <gtest/gtest.h>

#include <numbers>

#include "core/constants.h"
#include "fittings/ducts/rect_tee.h"
#include "printing/printers_dialog.h"
#include "tests/support/recording_device.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet {
namespace {

constexpr const char* TeeCategory = "Rectangular Tee";

TEST(RectTeeWindow, StartsAsATeeDoes) {
    ExpectStart(TeeCategory, {.helpContextId = 0, .boxes = 14, .laps = AllLaps, .halfPattern = true});
    EXPECT_TRUE(FindCategory(TeeCategory)->hidden);
}

TEST(RectTeeWindow, AsksForNumbersAlone) {
    TestShell shell;
    for (int type = 1; type <= 2; ++type) {
        const auto window = shell.OpenSample(TeeCategory, type);
        for (const BoxEntry& box : window->Table().pages[static_cast<std::size_t>(type - 1)].boxes) {
            for (const char* text : {"0", "-17.5", "12345"}) {
                window->ChangeBox(static_cast<std::size_t>(box.index), text);
                EXPECT_EQ(window->BuildFitting(), Passed);
            }
            window->ChangeBox(static_cast<std::size_t>(box.index), std::string(box.sample));
        }
        EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>());
    }
    const auto window = shell.OpenSample(TeeCategory, 1);
    window->ChangeBox(12, "");  // of the other type
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectNotANumber(shell.ui, *window, 12);
}

TEST(RectTeeWindow, ANewOneShowsItsCornersInOnePlace) {
    TestShell shell;
    RecordingDevice area;
    const auto window = shell.Open(TeeCategory, &area);
    window->ClickView(0);
    EXPECT_TRUE(window->hasModel);
    window->ZoomExtents();
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>());
}

TEST(RectTeeSizes, OfASquareOneAreThoseOfItsBoxes) {
    TestShell shell;
    const auto window = shell.OpenSample(TeeCategory, 1);
    const CRectTee& tee = Built<CRectTee>(*window);
    EXPECT_EQ(tee.End1PlanWidth, 200);
    EXPECT_EQ(tee.End1Length, 420);
    EXPECT_EQ(tee.End2LeftLength, 260);
    EXPECT_EQ(tee.End2RightLength, 300);
    EXPECT_EQ(tee.End2LeftPlanWidth, 150);
    EXPECT_EQ(tee.End2RightPlanWidth, 180);
    EXPECT_EQ(tee.End1Depth, 240);
    EXPECT_EQ(tee.End2Depth, 240);
    EXPECT_EQ(tee.CenterLineAngle, QuarterTurn);
    EXPECT_EQ(tee.inputs.Dtype, SquareTee);
}

TEST(RectTeeSizes, OfAnAngledOneHaveOneWidthForBothOutlets) {
    TestShell shell;
    const auto window = shell.OpenSample(TeeCategory, 2);
    window->settings.Thickness = 4;
    window->settings.InOutMean = OutsideDimension;
    const CRectTee& tee = Built<CRectTee>(*window);
    EXPECT_EQ(tee.End1PlanWidth, 190);
    EXPECT_EQ(tee.End1Length, 350);
    EXPECT_EQ(tee.End2LeftLength, 310);
    EXPECT_EQ(tee.End2RightLength, 280);
    EXPECT_EQ(tee.End2LeftPlanWidth, 140);
    EXPECT_EQ(tee.End2RightPlanWidth, 140);
    EXPECT_EQ(tee.End1Depth, 220);
    EXPECT_EQ(tee.End2Depth, 220);
    EXPECT_NEAR(tee.CenterLineAngle, std::numbers::pi / 1.8, 1e-13);
    EXPECT_EQ(tee.inputs.Dtype, AngledTee);
}

TEST(RectTeeSizes, AreRefusedWhereTheyLeaveNoShape) {
    TestShell shell;
    const auto window = shell.OpenSample(TeeCategory, 2);
    for (const auto& [box, text, reason] :
         {std::tuple{12, "0", "the fitting is larger than a thousand million"},
          {13, "1.1e9", "Depth is above a thousand million"}}) {
        TypeBoxes(*window, {{box, text}});
        window->ClickView(0);
        ExpectNotMade(shell.ui, *window, reason);
        TypeBoxes(*window, {{box, "100"}});
    }
}

TEST(RectTeeTextBlock, HasNoLinesOfItsOwn) {
    ExpectTextBlocks(TeeCategory, {{1, {}}, {2, {}}});
}

/// There is nothing to draw: the area is cleared and the text block stands on it, and no command trips over
/// it.
TEST(RectTeePatternView, IsEmptyButForTheTextBlock) {
    TestShell shell;
    RecordingDevice area;
    const auto window = shell.OpenSample(TeeCategory, 1, &area);
    window->display.LabelPoint = C3DPoint{};
    window->display.FrameRequested = window->display.CoordGridRequested = true;
    window->display.TrueLengthsRequested = window->display.DiagonalsRequested = true;
    window->ClickView(0);
    EXPECT_FALSE(area.Lines().empty());
    area.calls.clear();
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    EXPECT_TRUE(area.Lines().empty());
    ASSERT_EQ(area.Of(RecordingDevice::Kind::Cls).size(), 1U);
    EXPECT_EQ(area.Strings().back(), "Rectangular Tee  Full pattern  21 Nov 2026");
    const std::size_t views = window->views->Count();
    window->ZoomExtents();
    EXPECT_EQ(window->views->Count(), views) << "there is nothing to zoom to";
    EXPECT_FALSE(window->display.FindClosestPoint({}));
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>());
}

TEST(RectTeePatternView, IsExportedAsAnEmptyDrawing) {
    TestShell shell;
    AcceptExports(shell.ui);
    const auto window = shell.OpenSample(TeeCategory, 2);
    window->ClickView(PatternButton);
    ASSERT_EQ(window->Export("empty.dxf", ExportMode::Dxf), Passed);
    EXPECT_EQ(shell.files.files["empty.dxf"], "0\r\nSECTION\r\n2\r\nENTITIES\r\n0\r\nENDSEC\r\n0\r\nEOF\r\n");
    window->ClickView(0);
    ASSERT_EQ(window->Export("model.dxf", ExportMode::Dxf), Passed);
    EXPECT_NE(shell.files.files["model.dxf"].find("LINE"), std::string::npos);
}

TEST(RectTeePatternView, PrintsNoSheet) {
    TestShell shell;
    RecordingDevice area;
    shell.printers.queues = {{.name = "Laser"}};
    shell.printDialog.SetDefaultPapersize(shell.options, shell.ui);
    shell.ui.onPrinters = [](PrintersDialog& dialog) {
        dialog.ClickScale(PrintersDialog::FullSize);
        dialog.ClickOK();
    };
    const auto window = shell.OpenSample(TeeCategory, 1, &area);
    window->ClickView(PatternButton);
    window->PrintDrawing();
    EXPECT_TRUE(shell.printers.documents.empty());
    EXPECT_TRUE(window->hasModel);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"This option is only available in pattern view"});
}

}  // namespace
}  // namespace korvet
