// Tool buttons that stay pressed.
#include <gtest/gtest.h>

#include "frame/frame_menu.h"
#include "tests/frame/main_frame_fixture.h"

namespace korvet {
namespace {

std::vector<int> Pressed(const CMainFrame& frame) {
    std::vector<int> pressed;
    for (const ToolButton& tool : FrameToolBar()) {
        if (frame.IsToolPressed(tool.position)) {
            EXPECT_TRUE(tool.checkable) << tool.key;
            pressed.push_back(tool.position);
        }
    }
    return pressed;
}

TEST(ArmedTools, EachStaysPressedWhileItsModeIsArmed) {
    for (const int position : {7, 9, 12, 13, 14, 17, 21, 23}) {
        const auto rig = FrameRig::In(FrameState::Pattern);
        EXPECT_TRUE(Pressed(rig->frame).empty());
        rig->frame.ClickTool(position);
        EXPECT_EQ(Pressed(rig->frame), std::vector<int>{position});
        rig->frame.ActiveChild()->PressEscape();
        EXPECT_TRUE(Pressed(rig->frame).empty()) << position;
    }
}

TEST(ArmedTools, TheyTellOfTheWindowThatIsActive) {
    const auto rig = FrameRig::In(FrameState::Pattern);
    rig->frame.RunMenu("mnuPan");
    CFittingWindow* const first = rig->frame.ActiveChild();
    rig->OpenCone();
    EXPECT_TRUE(Pressed(rig->frame).empty());
    rig->frame.ActivateChild(first);
    EXPECT_EQ(Pressed(rig->frame), std::vector<int>{23});
    rig->frame.ActivateChild(nullptr);
    EXPECT_TRUE(Pressed(rig->frame).empty());
}

TEST(ArmedTools, PrintFramesThatAreShownAreOneOfThem) {
    FrameRig rig;
    rig.shell.frame.printFramesTicked = true;
    EXPECT_EQ(Pressed(rig.frame), std::vector<int>{6});
    EXPECT_FALSE(rig.frame.IsToolPressed(4)) << "a separator";
}

TEST(ArmedTools, ARefusedCommandPressesNone) {
    const auto rig = FrameRig::In(FrameState::Model);
    rig->frame.ClickTool(12);  // a dimension, in a model view
    rig->frame.ClickTool(17);
    EXPECT_TRUE(Pressed(rig->frame).empty());
}

}  // namespace
}  // namespace korvet
