// How windows and the frame itself close.
#include <gtest/gtest.h>

#include "tests/frame/main_frame_fixture.h"

namespace korvet {
namespace {

using Captions = std::vector<std::string>;

class MainFrameClosingTest : public testing::Test {
  protected:
    Outcome Quit(bool minimised = false) { return rig.frame.QueryUnload({10, -20, 8000, 7000}, minimised); }

    FrameRig rig;
};

TEST_F(MainFrameClosingTest, CancelKeepsAWindowNoClosesIt) {
    CFittingWindow& cone = rig.OpenDrawnCone();
    rig.shell.ui.answers = {Answer::Cancel, Answer::No};
    EXPECT_EQ(rig.frame.CloseChild(cone), Refused);
    EXPECT_EQ(rig.frame.ActiveChild(), &cone);
    rig.frame.RunMenu("mnuFileClose");
    EXPECT_TRUE(rig.frame.Children().empty());
    EXPECT_EQ(rig.frame.ActiveChild(), nullptr);
    EXPECT_TRUE(rig.shell.files.files.empty());
    EXPECT_TRUE(rig.desktop.windows.empty());
    EXPECT_EQ(rig.Said(),
              "35 Save parameter file for Development 1 / 35 Save parameter file for Development 1");
}

TEST_F(MainFrameClosingTest, YesSavesAWindowAndClosesIt) {
    CFittingWindow& cone = rig.OpenDrawnCone();
    rig.shell.ui.answers = {Answer::Yes};
    rig.shell.ui.files = {"a.Kvt"};
    EXPECT_EQ(rig.frame.CloseChild(cone), Passed);
    EXPECT_TRUE(rig.shell.files.files.contains("a.Kvt"));
    EXPECT_TRUE(rig.frame.Children().empty());
}

TEST_F(MainFrameClosingTest, YesThatSavesNothingKeepsTheWindow) {
    CFittingWindow& cone = rig.OpenDrawnCone();
    rig.shell.ui.answers = {Answer::Yes, Answer::Yes};
    rig.shell.ui.files = {std::nullopt, "full.Kvt"};
    rig.shell.files.unwritable = {"full.Kvt"};
    EXPECT_EQ(rig.frame.CloseChild(cone), Refused);
    EXPECT_EQ(rig.frame.CloseChild(cone), Refused);
    EXPECT_EQ(rig.Open(), (Captions{"Development 1"}));
}

TEST_F(MainFrameClosingTest, TheWindowThatAQuestionIsAboutComesToTheFront) {
    CFittingWindow& first = rig.OpenDrawnCone();
    CFittingWindow& second = rig.OpenDrawnCone();
    rig.OpenNewCone();  // has nothing to ask, and stays behind
    std::vector<CFittingWindow*> inFront;
    rig.shell.ui.onShow = [&](const MessageBox&) { inFront.push_back(rig.frame.ActiveChild()); };
    rig.shell.ui.answers = {Answer::No, Answer::Cancel, Answer::Cancel};
    EXPECT_EQ(Quit(), Refused);
    EXPECT_EQ(inFront, (std::vector<CFittingWindow*>{&first, &second}));
    EXPECT_EQ(rig.frame.CloseChild(first), Refused);  // by the button of a window behind
    EXPECT_EQ(inFront.back(), &first);
}

TEST_F(MainFrameClosingTest, TheDesktopTellsWhichWindowComesNext) {
    CFittingWindow& first = rig.OpenNewCone();
    CFittingWindow& second = rig.OpenNewCone();
    first.statusString = "of the first";
    EXPECT_EQ(rig.frame.CloseChild(second), Passed);
    EXPECT_EQ(rig.frame.ActiveChild(), &first);
    EXPECT_EQ(rig.shell.frame.statusText, "of the first");
    EXPECT_EQ(rig.frame.CloseChild(first), Passed);
    EXPECT_EQ(rig.shell.frame.statusText, "");
}

TEST_F(MainFrameClosingTest, NoWindowIsActiveWhileTheDesktopHasNamedNone) {
    rig.desktop.activate = nullptr;
    rig.OpenNewCone();
    CFittingWindow& second = rig.OpenNewCone();
    EXPECT_EQ(rig.frame.CloseChild(second), Passed);
    EXPECT_EQ(rig.frame.ActiveChild(), nullptr);
    EXPECT_EQ(rig.Open(), (Captions{"Development 1"}));
}

TEST_F(MainFrameClosingTest, AnInactiveWindowClosesWithoutDisturbingTheActiveOne) {
    CFittingWindow& first = rig.OpenNewCone();
    CFittingWindow& second = rig.OpenNewCone();
    EXPECT_EQ(rig.frame.CloseChild(first), Passed);
    EXPECT_EQ(rig.frame.ActiveChild(), &second);
}

TEST_F(MainFrameClosingTest, CommandsStayUsableUntilOneFindsNoWindow) {
    (void)rig.frame.CloseChild(rig.OpenNewCone());
    EXPECT_TRUE(rig.shell.frame.menuEnabled.at("mnuFileSave"));
    rig.frame.RunMenu("mnuFileSave");
    EXPECT_TRUE(rig.shell.frame.menuEnabled.at("mnuFileSave"));
    EXPECT_EQ(rig.Said(), "T48 Nothing to save!");
    rig.frame.RunMenu("mnuRedraw");
    EXPECT_FALSE(rig.shell.frame.menuEnabled.at("mnuFileSave"));
}

TEST_F(MainFrameClosingTest, TheFrameAsksForEveryChangedWindowAndThenClosesAll) {
    rig.OpenDrawnCone();
    rig.OpenNewCone();  // nothing to lose: no question
    rig.OpenCone();
    rig.shell.ui.answers = {Answer::Yes, Answer::No};
    rig.shell.ui.files = {"a.Kvt"};
    rig.shell.patternSettingsDialog.lblNoOfSides = 6;
    rig.Forget();
    EXPECT_EQ(Quit(), Passed);
    EXPECT_NE(rig.shell.patternSettingsDialog.lblNoOfSides, 6);  // it closes with its windows
    EXPECT_EQ(rig.Said(),
              "35 Save parameter file for Development 1 / 35 Save parameter file for Development 3");
    EXPECT_TRUE(rig.shell.files.files.contains("a.Kvt"));
    EXPECT_EQ(rig.desktop.calls, (Captions{"front Development 1", "front Development 3",
                                           "remove Development 3", "remove Development 2", "remove a.Kvt"}));
    EXPECT_TRUE(rig.frame.Children().empty());
    EXPECT_EQ(rig.frame.ActiveChild(), nullptr);
}

TEST_F(MainFrameClosingTest, CancelInTheMiddleKeepsAllWindowsAndWhatWasSavedBeforeIt) {
    rig.OpenDrawnCone();
    CFittingWindow& second = rig.OpenDrawnCone();
    CFittingWindow& third = rig.OpenDrawnCone();
    rig.shell.ui.answers = {Answer::Yes, Answer::Cancel, Answer::No};
    rig.shell.ui.files = {"a.Kvt"};
    rig.Forget();
    EXPECT_EQ(Quit(), Refused);
    EXPECT_EQ(rig.shell.ui.messages.size(), 2U);  // the third was not asked for
    EXPECT_EQ(rig.Open(), (Captions{"a.Kvt", "Development 2", "Development 3"}));
    EXPECT_TRUE(rig.shell.files.files.contains("a.Kvt"));
    EXPECT_EQ(rig.frame.ActiveChild(), &second);  // whose question was answered with Cancel
    EXPECT_EQ(rig.desktop.calls, (Captions{"front Development 1", "front Development 2"}));
    EXPECT_TRUE(rig.store.values.empty());
    third.ChangeBox(3, "350");
    EXPECT_EQ(third.controls.txtParameter[3].text, "350");
}

TEST_F(MainFrameClosingTest, ASaveThatFailsKeepsTheFrameOpen) {
    rig.OpenDrawnCone();
    rig.shell.ui.answers = {Answer::Yes};
    rig.shell.ui.files = {"full.Kvt"};
    rig.shell.files.unwritable = {"full.Kvt"};
    EXPECT_EQ(Quit(), Refused);
    EXPECT_EQ(rig.Open(), (Captions{"Development 1"}));
    EXPECT_TRUE(rig.store.values.empty());
}

TEST_F(MainFrameClosingTest, ItsPlaceIsRememberedUnlessItWasMinimised) {
    EXPECT_EQ(Quit(true), Passed);
    EXPECT_TRUE(rig.store.values.empty());
    EXPECT_EQ(Quit(), Passed);
    EXPECT_EQ(rig.store.values,
              (std::map<std::string, std::string>{
                  {"MainLeft", "10"}, {"MainTop", "-20"}, {"MainWidth", "8000"}, {"MainHeight", "7000"}}));
    rig.frame.Load();
    EXPECT_EQ(rig.frame.place, (Place{10, -20, 8000, 7000}));
}

}  // namespace
}  // namespace korvet
