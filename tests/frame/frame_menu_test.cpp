// Menus and tool bar of the frame as the user reads them.
#include "frame/frame_menu.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>
#include <vector>

#include "window/frame_model.h"

namespace korvet {
namespace {

/// The menus as text: a top menu at the margin, its entries below it with their ticks and shortcuts.
std::string MenuText() {
    std::ostringstream text;
    for (const MenuEntry& entry : FrameMenu()) {
        if (entry.name.empty()) {
            text << "  -\n";
            continue;
        }
        text << (entry.menu.empty() ? "" : "  ") << entry.name << "|" << ResString(entry.caption) << "|"
             << (entry.checkable ? "x" : "") << "|" << entry.shortcut << "\n";
    }
    return text.str();
}

constexpr const char* WholeMenu = R"(mnuFile|&File||
  mnuFileNew|&New||Ctrl+N
  mnuFileOpen|&Open...||Ctrl+O
  mnuFileClose|&Close||Ctrl+W
  -
  mnuFileSave|&Save||Ctrl+S
  mnuFileSaveAs|Save &As...||
  -
  mnuExportDXF|Export DXF...||
  mnuExportHPGL|Export HPGL||
  mnuSendToAcad|Send to AutoCAD...||
  -
  mnuFilePageSetup|Page Set&up...||
  mnuPrintFrames|Display Print Frames|x|
  mnuSelectFrames|Select Frames for Printing||
  mnuFilePrintPreview|Print Pre&view||
  mnuFilePrint|&Print...||Ctrl+P
  -
  mnuFileExit|E&xit||
mnuView|&View||
  mnuViewToolbar|&Toolbar|x|
  mnuViewStatusBar|Status &Bar|x|
  -
  mnuRedraw|Redraw||F5
  mnuPan|Pan||
  -
  mnuZoomWindow|Zoom Window||
  mnuZoomIn|Zoom In||
  mnuZoomOut|Zoom  Out||
  mnuZoomExtents|Zoom Extents||
  mnuZoomPrevious|Zoom Previous||
mnuTools|&Tools||
  mnuProperties|Properties (This item)...||
  mnuToolsOptions|Global Options...||
mnuDimension|&Dimension||
  mnuMeasure|Measure||
  -
  mnuAlignedDim|Add User Dimension||
  mnuHorizontalDim|Horizontal Dimension||
  mnuVerticalDim|Vertical Dimension||
  -
  mnuRemoveDim|Remove User Dimension||
  mnuRemoveAllDims|Remove All User Dimensions||
  -
  mnuDimensionOptions|Dimension Options...||
mnuModify|&Modify||
  mnuMovePattern|Move Pattern||
  mnuRotatePattern|Rotate Pattern||
mnuWindow|&Window||
  mnuWindowNewWindow|&New Window||
  -
  mnuWindowCascade|&Cascade||
  mnuWindowTileHorizontal|Tile &Horizontal||
  mnuWindowTileVertical|Tile &Vertical||
  mnuWindowArrangeIcons|&Arrange Icons||
mnuHelp|&Help||
  mnuHelpContents|&Contents||F1
  mnuHelpSearchForHelpOn|&Search For Help On...||
  -
  mnuDisclaimer|Disclaimer...||
  mnuHelpAbout|&About ||
)";

TEST(FrameMenuTest, EveryEntryStandsInItsOrder) {
    EXPECT_EQ(MenuText(), WholeMenu);
}

TEST(FrameMenuTest, EntriesStandBehindTheirOwnMenuUnderNamesOfTheirOwn) {
    std::set<std::string_view> names;
    std::string_view top;
    for (const MenuEntry& entry : FrameMenu()) {
        if (entry.menu.empty()) {
            top = entry.name;
        } else {
            EXPECT_EQ(entry.menu, top) << entry.name;
        }
        EXPECT_TRUE(entry.name.empty() || names.insert(entry.name).second) << entry.name;
    }
}

TEST(FrameMenuTest, NoTwoTopMenusOrShortcutsShareAKey) {
    std::set<char> mnemonics;
    std::set<std::string_view> shortcuts;
    for (const MenuEntry& entry : FrameMenu()) {
        if (entry.menu.empty()) {
            const std::string caption = ResString(entry.caption);
            ASSERT_EQ(caption.front(), '&') << caption;
            EXPECT_TRUE(mnemonics.insert(caption.at(1)).second) << caption;
        }
        EXPECT_TRUE(entry.shortcut.empty() || shortcuts.insert(entry.shortcut).second) << entry.name;
    }
}

TEST(FrameMenuTest, ToolsStandAtTheirPositionsWithTheirTips) {
    std::ostringstream text;
    for (const ToolButton& button : FrameToolBar()) {
        text << button.position << "|" << button.key << "|" << ResString(button.toolTip) << "|" << button.menu
             << "\n";
    }
    EXPECT_EQ(text.str(), R"(1|New|New|mnuFileNew
2|Open|Open|mnuFileOpen
3|Save|Save|mnuFileSave
5|Print|Print|mnuFilePrint
6|DisplayPrintFrames|Display Print Frames|mnuPrintFrames
7|SelectPrintFrames|Select Frames to Print|mnuSelectFrames
9|Measure|Measure distance|mnuMeasure
11|DimensionOptions|Dimension Options|mnuDimensionOptions
12|AlignedDimension|Add dimension|mnuAlignedDim
13|RemoveDimension|Remove Dimension|mnuRemoveDim
14|AddLabel|Add / Remove the label |
16|MovePattern|Move pattern|mnuMovePattern
17|RotatePattern|Rotate pattern|mnuRotatePattern
19|ZoomIn|Zoom in|mnuZoomIn
20|ZoomOut|Zoom out|mnuZoomOut
21|ZoomWindow|Zoom Window|mnuZoomWindow
22|ZoomExtents|Zoom Extents|mnuZoomExtents
23|Pan|Pan|mnuPan
24|ZoomP|Zoom Previous|mnuZoomPrevious
26|Redraw|Redraw|mnuRedraw
27|Properties|Pattern settings for this item|mnuProperties
29|Help|Help|mnuHelpContents
)");
}

TEST(FrameMenuTest, ATextThatIsNoKeyStaysAsItIs) {
    EXPECT_EQ(ResString("Redraw"), "Redraw");
    EXPECT_EQ(ResString(""), "");
    EXPECT_EQ(ResString("1006"), "1006");
    EXPECT_EQ(ResString("10011"), "10011");
}

TEST(FrameMenuTest, TheFirstFittingBringsTheCadLinkIntoSight) {
    FrameModel frame;
    frame.menuVisible["mnuSendToAcad"] = false;
    EnableFittingCommands(frame);
    EXPECT_TRUE(frame.menuVisible.at("mnuSendToAcad"));
}

TEST(FrameMenuTest, TicksFollowTheFrame) {
    FrameModel frame;
    EXPECT_TRUE(IsTicked(frame, "mnuViewToolbar"));
    EXPECT_TRUE(IsTicked(frame, "mnuViewStatusBar"));
    EXPECT_FALSE(IsTicked(frame, "mnuPrintFrames"));
    frame.toolBarVisible = false;
    frame.printFramesTicked = true;
    EXPECT_FALSE(IsTicked(frame, "mnuViewToolbar"));
    EXPECT_TRUE(IsTicked(frame, "mnuPrintFrames"));
    EXPECT_FALSE(IsTicked(frame, "mnuRedraw"));
}

}  // namespace
}  // namespace korvet
