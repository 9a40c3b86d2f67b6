// Work that its user waits for: it is shown, and can be cancelled.
#include "window/watched_work.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>

#include "tests/support/recording_device.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {
namespace {

class WatchedWorkTest : public testing::Test {
  protected:
    /// From now on every look at the clock is one at the progress.
    void WaitImpatiently(bool goesOn) {
        shell.context.patience = std::chrono::milliseconds(0);
        shell.ui.progress.clear();
        shell.ui.goesOn = [goesOn](const WorkProgress& step) { return goesOn || step.done >= step.total; };
    }

    std::unique_ptr<CFittingWindow> OpenBend() {
        auto window = shell.OpenSample("Segmented Bend", 1, &area);
        window->SelectPattern(0);
        return window;
    }

    TestShell shell;
    RecordingDevice area;
};

TEST_F(WatchedWorkTest, NobodyWaitsWithoutPatience) {
    const auto window = OpenBend();
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    EXPECT_TRUE(shell.ui.progress.empty());
}

TEST_F(WatchedWorkTest, LongWorkIsShownAndTakenAwayAgain) {
    const auto window = OpenBend();
    WaitImpatiently(true);
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    ASSERT_GE(shell.ui.progress.size(), 2U);
    EXPECT_EQ(shell.ui.progress.front().what, "Working on the fitting");
    EXPECT_LT(shell.ui.progress.front().done, shell.ui.progress.front().total);
    EXPECT_EQ(shell.ui.progress.back().done, shell.ui.progress.back().total);
}

TEST_F(WatchedWorkTest, ACancelledBuildLeavesThePictureAndTheRedBoxes) {
    const auto window = OpenBend();
    window->ClickView(PatternButton);
    const std::size_t picture = area.calls.size();
    ASSERT_GT(picture, 0U);
    window->ChangeBox(0, "210");
    const Color changed = window->controls.txtParameter[0].textColor;
    EXPECT_NE(changed, Black);
    WaitImpatiently(false);
    window->UpdateFitting();
    EXPECT_FALSE(window->hasModel);
    EXPECT_EQ(area.calls.size(), picture);
    EXPECT_EQ(window->controls.txtParameter[0].textColor, changed);
    EXPECT_TRUE(shell.ui.messages.empty()) << "who has cancelled it knows";
    WaitImpatiently(true);
    window->UpdateFitting();
    EXPECT_TRUE(window->hasModel);
    EXPECT_EQ(window->controls.txtParameter[0].textColor, Black);
    EXPECT_GT(area.calls.size(), picture);
}

TEST_F(WatchedWorkTest, AFileWhosePictureIsCancelledLeavesANewWindow) {
    const auto first = OpenBend();
    first->ClickView(PatternButton);
    ASSERT_EQ(first->SaveFile("a.Kvt"), Passed);
    const auto window = shell.Open("Segmented Bend", &area);
    const std::string caption = window->controls.caption;
    shell.ui.messages.clear();
    WaitImpatiently(false);
    EXPECT_EQ(window->LoadFile("a.Kvt"), Refused);
    EXPECT_EQ(window->controls.caption, caption);
    EXPECT_FALSE(window->hasModel);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(WatchedWorkTest, ACancelledSaveLeavesTheOldFile) {
    const auto window = OpenBend();
    window->ClickView(PatternButton);
    shell.files.files["a.Kvt"] = "old";
    WaitImpatiently(false);
    EXPECT_EQ(window->SaveFile("a.Kvt"), Refused);
    EXPECT_EQ(shell.files.files["a.Kvt"], "old");
    EXPECT_FALSE(window->hasModel);
    EXPECT_FALSE(window->refused) << "so that a save builds it again";
}

TEST_F(WatchedWorkTest, ACancelledExportLeavesTheOldFile) {
    const auto window = OpenBend();
    window->ClickView(PatternButton);
    shell.files.files["a.dxf"] = "old";
    shell.ui.onDxfOptions = [](DxfOptionsDialog& dialog) { dialog.ClickOK(); };
    WaitImpatiently(false);
    shell.ui.messages.clear();
    EXPECT_EQ(window->Export("a.dxf", ExportMode::Dxf), Refused);
    EXPECT_EQ(shell.files.files["a.dxf"], "old");
    EXPECT_TRUE(shell.ui.messages.empty());
    shell.context.patience.reset();
    EXPECT_EQ(window->Export("a.dxf", ExportMode::Dxf), Passed);
    EXPECT_NE(shell.files.files["a.dxf"], "old");
}

}  // namespace
}  // namespace korvet
