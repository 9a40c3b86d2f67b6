// The frame's own life: its load, windows that open, files that load, and how it all closes.
#include "frame/main_frame.h"

#include <gtest/gtest.h>

#include "tests/frame/main_frame_fixture.h"

namespace korvet {
namespace {

using Captions = std::vector<std::string>;

class MainFrameTest : public testing::Test {
  protected:
    /// A good file of a cone with a pattern view, at "good.Kvt".
    void PutGoodFile() {
        FrameRig other;
        EXPECT_EQ(other.OpenDrawnCone().SaveFile("good.Kvt"), Passed);
        rig.shell.files.files["good.Kvt"] = other.shell.files.files.at("good.Kvt");
    }

    FrameRig rig;
};

TEST_F(MainFrameTest, LoadsWithTheProductsNameAndItsCommandsGreyed) {
    EXPECT_EQ(rig.shell.frame.caption, "Korvet Development");
    EXPECT_FALSE(rig.shell.frame.menuEnabled.at("mnuFileSave"));
    EXPECT_FALSE(rig.shell.frame.menuEnabled.at("mnuSelectFrames"));
    EXPECT_FALSE(rig.shell.frame.toolEnabled.at(7));
    EXPECT_TRUE(rig.shell.frame.menuVisible.at("mnuSendToAcad"));
    EXPECT_EQ(rig.frame.ActiveChild(), nullptr);
}

TEST_F(MainFrameTest, OpensWhereItWasLeft) {
    EXPECT_EQ(rig.frame.place, (Place{1000, 1000, 6500, 6500}));
    rig.store.values = {
        {"MainLeft", "-150"}, {"MainTop", "0"}, {"MainWidth", " 9000 "}, {"MainHeight", "7000.4"}};
    rig.frame.Load();
    EXPECT_EQ(rig.frame.place, (Place{-150, 0, 9000, 7000}));
}

TEST_F(MainFrameTest, APlaceThatCannotBeReadIsTheDefault) {
    for (const char* const bad : {"", "wide", "1e99", "nan", "12 px"}) {
        rig.store.values = {{"MainLeft", bad}, {"MainTop", bad}, {"MainWidth", bad}, {"MainHeight", bad}};
        rig.frame.Load();
        EXPECT_EQ(rig.frame.place, (Place{1000, 1000, 6500, 6500})) << bad;
    }
    rig.store.values = {{"MainWidth", "0"}, {"MainHeight", "-5"}};
    rig.frame.Load();
    EXPECT_EQ(rig.frame.place, (Place{1000, 1000, 6500, 6500}));
}

TEST_F(MainFrameTest, TheSplashIsShownOnceThoughItActivatesTheFrameAgain) {
    rig.desktop.onSplash = [&](SplashDialog& splash) {
        EXPECT_EQ(splash.caption, "Korvet Development");
        EXPECT_EQ(splash.lblVersion, "Version 3.3.3");
        EXPECT_EQ(splash.place, (Place{0, 0, 9240, 5640}));
        rig.frame.Activate();
    };
    rig.frame.Activate();
    rig.frame.Activate();
    EXPECT_EQ(rig.desktop.calls, (Captions{"splash"}));
}

TEST_F(MainFrameTest, AboutNamesVersionLicenceAndLibraries) {
    const AboutDialog about;
    EXPECT_EQ(about.caption, "About Korvet Development");
    EXPECT_EQ(about.title, "Korvet Development");
    EXPECT_EQ(about.version, "Version 3.3.3");
    EXPECT_NE(about.cadVersion.find("15"), std::string::npos);
    EXPECT_NE(about.licence.find("MIT"), std::string::npos);
    ASSERT_FALSE(about.libraries.empty());
    EXPECT_NE(about.libraries.front().find("Qt"), std::string::npos);
    EXPECT_NE(DisclaimerDialog().text.find("Check every pattern before you cut."), std::string::npos);
}

TEST_F(MainFrameTest, EveryVisitToTheMenuCounts) {
    rig.frame.RunMenu("mnuFileNew");  // closed by its close box
    EXPECT_TRUE(rig.frame.Children().empty());
    rig.desktop.pick = "Right Cone";
    rig.frame.RunMenu("mnuFileNew");
    rig.desktop.pick = "Right Cylinder";
    rig.frame.RunMenu("mnuWindowNewWindow");
    rig.desktop.pick = "Truncated Right Cone";
    rig.frame.ClickTool(1);
    EXPECT_EQ(rig.Open(), (Captions{"Development 2", "Development 3", "Development 4"}));
    EXPECT_EQ(rig.frame.Children().back()->category, "Truncated Right Cone");
}

TEST_F(MainFrameTest, ANewWindowIsShownAndActive) {
    const CFittingWindow& cone = rig.OpenCone();
    EXPECT_EQ(rig.desktop.windows, std::vector<CFittingWindow*>{rig.frame.ActiveChild()});
    EXPECT_EQ(rig.frame.ActiveChild(), &cone);
    EXPECT_EQ(cone.display.DisplayDevice, &rig.device);
    EXPECT_EQ(rig.shell.frame.statusText, cone.statusString);
    EXPECT_TRUE(rig.shell.frame.menuEnabled.at("mnuFileSave"));
}

TEST_F(MainFrameTest, OnlyAWindowOfTheFrameBringsItsDrawingIntoSight) {
    PutGoodFile();
    rig.frame.OpenFile("good.Kvt");
    EXPECT_TRUE(rig.frame.ActiveChild()->keepsInSight);
    rig.desktop.pick = "Right Cone";
    rig.frame.RunMenu("mnuFileNew");
    EXPECT_TRUE(rig.frame.ActiveChild()->keepsInSight);
    EXPECT_FALSE(rig.shell.Open("Right Cone")->keepsInSight);
}

TEST_F(MainFrameTest, CommandsGoToTheWindowThatIsActive) {
    CFittingWindow& first = rig.OpenCone();
    CFittingWindow& second = rig.OpenCone();
    first.statusString = "of the first";
    rig.frame.ActivateChild(&first);
    EXPECT_EQ(rig.shell.frame.statusText, "of the first");
    rig.frame.RunMenu("mnuPan");
    EXPECT_TRUE(first.modes.panMode);
    EXPECT_FALSE(second.modes.panMode);
    rig.frame.ActivateChild(nullptr);
    rig.Forget();
    rig.frame.RunMenu("mnuFileClose");
    EXPECT_EQ(rig.Said(), "T48 Nothing to save!");
}

TEST_F(MainFrameTest, OpeningAFileFillsANewWindowUnderItsName) {
    PutGoodFile();
    rig.shell.ui.files = {"good.Kvt"};
    rig.frame.RunMenu("mnuFileOpen");
    EXPECT_EQ(rig.Said(), "");
    EXPECT_EQ(rig.desktop.calls, (Captions{"show Development 1"}));
    ASSERT_EQ(rig.Open(), (Captions{"good.Kvt"}));
    const CFittingWindow& cone = *rig.frame.ActiveChild();
    EXPECT_TRUE(cone.hasModel);
    EXPECT_EQ(cone.controls.txtParameter[4].text, "150");
    EXPECT_EQ(cone.views->Count(), 2U);  // the file's and that of the extents
    rig.frame.RunMenu("mnuFileSave");
    EXPECT_EQ(rig.shell.files.writes.back().path, "good.Kvt");
    EXPECT_EQ(rig.shell.ui.fileDialogs.size(), 1U);  // only that of Open
}

TEST_F(MainFrameTest, WhatIsNoParameterFileOpensNothingAndTouchesNoWindow) {
    const CFittingWindow& cone = rig.OpenDrawnCone();
    struct Case {
        std::string name;
        std::string contents;
        std::string said;
    };
    const std::string foreign = "P Not a valid  / P Not a valid ";
    for (const Case& file :
         {Case{"foreign", "Another Product-1.0\r\nRight Cone\r\n0\r\n", foreign}, Case{"empty", "", foreign},
          Case{"bytes",
               std::string("\x7f"
                           "ELF\0\1\2",
                           7),
               foreign},
          Case{"header", "Korvet Development-3.3.3\r\nRight Cone\r\nsix\r\nEnd Header\r\n",
               "P Error in CKVTFile:ReadHeader  line 3: \"six\" is not a whole number from -32768 to 32767"},
          Case{"cut", "Korvet Development-3.3.3\r\nRight Cone\r\n",
               "P Error in CKVTFile:ReadHeader  line 3: the file ends where a whole number from -32768 to "
               "32767 should stand"}}) {
        rig.Forget();
        rig.shell.files.files[file.name] = file.contents;
        rig.frame.OpenFile(file.name);
        EXPECT_EQ(rig.Said(), file.said) << file.name;
        EXPECT_EQ(rig.shell.ui.messages.front().detail.find(file.name), 0U);
        EXPECT_EQ(rig.Did(), "") << file.name;
    }
    EXPECT_EQ(rig.shell.frame.documentCounter, 1);
    EXPECT_EQ(cone.controls.caption, "Development 1");
}

TEST_F(MainFrameTest, AFileThatCannotBeReadIsToldWithItsReason) {
    rig.shell.files.files["locked.Kvt"] = "Korvet Development-3.3.3";
    rig.shell.files.unreadable = {"locked.Kvt"};
    for (const std::string path : {"missing.Kvt", "locked.Kvt"}) {
        rig.Forget();
        rig.frame.OpenFile(path);
        EXPECT_EQ(rig.Said(), "P Error loading parameter file");
        EXPECT_EQ(rig.shell.ui.messages.front().detail.find(path + ": "), 0U);
    }
    EXPECT_TRUE(rig.frame.Children().empty());
    EXPECT_EQ(rig.shell.frame.documentCounter, 0);
}

TEST_F(MainFrameTest, AFileOfAnUnknownFittingIsToldAndOpensNothingButCounts) {
    CFittingWindow& cone = rig.OpenCone();
    rig.Forget();
    rig.shell.files.files["hood"] = "Korvet Development-3.3.3\r\nHood\r\n0\r\nEnd Header\r\n\r\n";
    rig.shell.files.files["none"] = "Korvet Development-3.3.3\r\n\r\n0\r\nEnd Header\r\n\r\n";
    rig.frame.OpenFile("hood");
    rig.frame.OpenFile("none");
    EXPECT_EQ(rig.Said(), "P Error loading parameter file / P Error loading parameter file");
    EXPECT_EQ(rig.shell.ui.messages.at(0).detail, "hood: line 2: there is no fitting \"Hood\"");
    EXPECT_EQ(rig.shell.ui.messages.at(1).detail, "none: line 2: the fitting is missing");
    EXPECT_EQ(rig.Did(), "");
    EXPECT_EQ(cone.controls.txtParameter[3].text, "300");
    EXPECT_EQ(rig.shell.frame.documentCounter, 3);
}

TEST_F(MainFrameTest, AFileThatIsOpenIsNotOpenedAgain) {
    PutGoodFile();
    rig.shell.files.links = {{"link.Kvt", "good.Kvt"}};
    rig.frame.OpenFile("good.Kvt");
    CFittingWindow& cone = *rig.frame.ActiveChild();
    cone.ChangeBox(3, "310");
    rig.OpenNewCone();
    for (const std::string path : {"good.Kvt", "link.Kvt"}) {
        rig.frame.ActivateChild(rig.frame.Children().back().get());
        rig.Forget();
        rig.frame.OpenFile(path);
        EXPECT_EQ(rig.desktop.calls, (Captions{"front good.Kvt"}));
        EXPECT_EQ(rig.frame.ActiveChild(), &cone);
        EXPECT_EQ(rig.frame.Children().size(), 2U);
        EXPECT_EQ(cone.controls.txtParameter[3].text, "310");
    }
    // One that it could not read is not open.
    rig.shell.files.files["bad.Kvt"] = rig.shell.files.files["good.Kvt"].substr(0, 400);
    rig.frame.OpenFile("bad.Kvt");
    rig.frame.OpenFile("bad.Kvt");
    EXPECT_EQ(rig.frame.Children().size(), 4U);
}

TEST_F(MainFrameTest, AFileCutShortLeavesANewWindowWithWhatWasRead) {
    PutGoodFile();
    std::string& contents = rig.shell.files.files["good.Kvt"];
    contents.resize(contents.find("Start Rotation"));
    rig.frame.OpenFile("good.Kvt");
    EXPECT_EQ(rig.Said(), "P Error loading parameter file");
    EXPECT_EQ(rig.Open(), (Captions{"Development 1"}));
    const CFittingWindow& cone = *rig.frame.ActiveChild();
    EXPECT_EQ(cone.controls.txtParameter[3].text, "300");
    EXPECT_FALSE(cone.hasModel);
    // It is not saved over the file that it could not be read from.
    rig.frame.ActiveChild()->ClickView(0);
    rig.frame.RunMenu("mnuFileSave");
    EXPECT_EQ(rig.shell.ui.fileDialogs.size(), 1U);
}

TEST_F(MainFrameTest, AFileWhoseSizesEndTheArithmeticLeavesAWindowWithoutItsName) {
    PutGoodFile();
    std::string& contents = rig.shell.files.files["good.Kvt"];
    contents.replace(contents.find("\r\n300\r\n150\r\n") + 2, 3, "1e200");
    rig.frame.OpenFile("good.Kvt");
    EXPECT_EQ(rig.Said(), "P Error loading parameter file");
    EXPECT_EQ(rig.shell.ui.messages.at(0).detail.find("good.Kvt: "), 0U);
    EXPECT_EQ(rig.Open(), (Captions{"Development 1"}));
    EXPECT_EQ(rig.frame.ActiveChild()->controls.txtParameter[3].text, "1e200");
}

TEST_F(MainFrameTest, AFileWhoseSizesAreRefusedKeepsItsName) {
    PutGoodFile();
    std::string& contents = rig.shell.files.files["good.Kvt"];
    contents.replace(contents.find("\r\n300\r\n150\r\n"), 12, "\r\n300\r\n400\r\n");
    rig.frame.OpenFile("good.Kvt");
    EXPECT_EQ(rig.Said(), "UE This dimension must be less than 300 / P The item has no extents");
    EXPECT_EQ(rig.Open(), (Captions{"good.Kvt"}));
}

TEST_F(MainFrameTest, SaveAsWritesToANewNameAndKeepsTheOldOneWhenItFails) {
    rig.OpenDrawnCone();
    rig.shell.ui.files = {"a.Kvt", "b.Kvt"};
    rig.frame.RunMenu("mnuFileSaveAs");
    EXPECT_EQ(rig.Open(), (Captions{"a.Kvt"}));
    rig.shell.files.unwritable = {"b.Kvt"};
    rig.frame.RunMenu("mnuFileSaveAs");
    EXPECT_EQ(rig.Open(), (Captions{"a.Kvt"}));
    EXPECT_EQ(rig.Said(), "P b.Kvt: cannot be written");
    EXPECT_FALSE(rig.shell.files.files.contains("b.Kvt"));
}

TEST_F(MainFrameTest, ARefusedSaveAsLeavesAnUnsavedWindowUnsaved) {
    rig.OpenCone();
    rig.shell.ui.files = {"a.Kvt"};
    rig.frame.RunMenu("mnuFileSaveAs");
    EXPECT_EQ(rig.Open(), (Captions{"Development 1"}));
    EXPECT_EQ(rig.Said(), "UE Operation cannot be carried out at this time");
}

TEST_F(MainFrameTest, AFailedSaveOfANewWindowAsksAgainNextTime) {
    rig.OpenDrawnCone();
    rig.shell.files.unwritable = {"full.Kvt"};
    rig.shell.ui.files = {"full.Kvt", "a.Kvt"};
    rig.frame.RunMenu("mnuFileSave");
    EXPECT_EQ(rig.Open(), (Captions{"Development 1"}));
    rig.frame.RunMenu("mnuFileSave");
    EXPECT_EQ(rig.Open(), (Captions{"a.Kvt"}));
    EXPECT_EQ(rig.shell.ui.fileDialogs.size(), 2U);
}

}  // namespace
}  // namespace korvet
