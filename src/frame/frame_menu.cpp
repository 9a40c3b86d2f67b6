#include "frame/frame_menu.h"

#include <algorithm>
#include <array>

namespace korvet {
namespace {

struct StringResource {
    std::string_view key;
    std::string_view text;
};

constexpr std::array StringResources = {
    StringResource{"1000", "&File"},
    StringResource{"1001", "&New"},
    StringResource{"1002", "&Open..."},
    StringResource{"1003", "&Close"},
    StringResource{"1004", "&Save"},
    StringResource{"1005", "Save &As..."},
    StringResource{"1008", "Page Set&up..."},
    StringResource{"1009", "Print Pre&view"},
    StringResource{"1010", "&Print..."},
    StringResource{"1012", "E&xit"},
    StringResource{"1019", "&View"},
    StringResource{"1020", "&Toolbar"},
    StringResource{"1021", "Status &Bar"},
    StringResource{"1027", "&Window"},
    StringResource{"1028", "&New Window"},
    StringResource{"1029", "&Cascade"},
    StringResource{"1030", "Tile &Horizontal"},
    StringResource{"1031", "Tile &Vertical"},
    StringResource{"1032", "&Arrange Icons"},
    StringResource{"1033", "&Help"},
    StringResource{"1034", "&Contents"},
    StringResource{"1035", "&Search For Help On..."},
    StringResource{"1036", "&About "},
    StringResource{"1037", "New"},
    StringResource{"1038", "Open"},
    StringResource{"1039", "Save"},
    StringResource{"1040", "Print"},
};

constexpr MenuEntry Top(std::string_view name, std::string_view caption) {
    return {"", name, caption};
}

constexpr MenuEntry Separator(std::string_view menu) {
    return {menu, "", ""};
}

constexpr bool Checkable = true;

constexpr std::array Menu = {
    Top("mnuFile", "1000"),
    MenuEntry{"mnuFile", "mnuFileNew", "1001", false, "Ctrl+N"},
    MenuEntry{"mnuFile", "mnuFileOpen", "1002", false, "Ctrl+O"},
    MenuEntry{"mnuFile", "mnuFileClose", "1003", false, "Ctrl+W"},
    Separator("mnuFile"),
    MenuEntry{"mnuFile", "mnuFileSave", "1004", false, "Ctrl+S"},
    MenuEntry{"mnuFile", "mnuFileSaveAs", "1005"},
    Separator("mnuFile"),
    MenuEntry{"mnuFile", "mnuExportDXF", "Export DXF..."},
    MenuEntry{"mnuFile", "mnuExportHPGL", "Export HPGL"},
    MenuEntry{"mnuFile", "mnuSendToAcad", "Send to AutoCAD..."},
    Separator("mnuFile"),
    MenuEntry{"mnuFile", "mnuFilePageSetup", "1008"},
    MenuEntry{"mnuFile", "mnuPrintFrames", "Display Print Frames", Checkable},
    MenuEntry{"mnuFile", "mnuSelectFrames", "Select Frames for Printing"},
    MenuEntry{"mnuFile", "mnuFilePrintPreview", "1009"},
    MenuEntry{"mnuFile", "mnuFilePrint", "1010", false, "Ctrl+P"},
    Separator("mnuFile"),
    MenuEntry{"mnuFile", "mnuFileExit", "1012"},

    Top("mnuView", "1019"),
    MenuEntry{"mnuView", "mnuViewToolbar", "1020", Checkable},
    MenuEntry{"mnuView", "mnuViewStatusBar", "1021", Checkable},
    Separator("mnuView"),
    MenuEntry{"mnuView", "mnuRedraw", "Redraw", false, "F5"},
    MenuEntry{"mnuView", "mnuPan", "Pan"},
    Separator("mnuView"),
    MenuEntry{"mnuView", "mnuZoomWindow", "Zoom Window"},
    MenuEntry{"mnuView", "mnuZoomIn", "Zoom In"},
    MenuEntry{"mnuView", "mnuZoomOut", "Zoom  Out"},
    MenuEntry{"mnuView", "mnuZoomExtents", "Zoom Extents"},
    MenuEntry{"mnuView", "mnuZoomPrevious", "Zoom Previous"},

    Top("mnuTools", "&Tools"),
    MenuEntry{"mnuTools", "mnuProperties", "Properties (This item)..."},
    MenuEntry{"mnuTools", "mnuToolsOptions", "Global Options..."},

    Top("mnuDimension", "&Dimension"),
    MenuEntry{"mnuDimension", "mnuMeasure", "Measure"},
    Separator("mnuDimension"),
    MenuEntry{"mnuDimension", "mnuAlignedDim", "Add User Dimension"},
    MenuEntry{"mnuDimension", "mnuHorizontalDim", "Horizontal Dimension"},
    MenuEntry{"mnuDimension", "mnuVerticalDim", "Vertical Dimension"},
    Separator("mnuDimension"),
    MenuEntry{"mnuDimension", "mnuRemoveDim", "Remove User Dimension"},
    MenuEntry{"mnuDimension", "mnuRemoveAllDims", "Remove All User Dimensions"},
    Separator("mnuDimension"),
    MenuEntry{"mnuDimension", "mnuDimensionOptions", "Dimension Options..."},

    Top("mnuModify", "&Modify"),
    MenuEntry{"mnuModify", "mnuMovePattern", "Move Pattern"},
    MenuEntry{"mnuModify", "mnuRotatePattern", "Rotate Pattern"},

    Top("mnuWindow", "1027"),
    MenuEntry{"mnuWindow", "mnuWindowNewWindow", "1028"},
    Separator("mnuWindow"),
    MenuEntry{"mnuWindow", "mnuWindowCascade", "1029"},
    MenuEntry{"mnuWindow", "mnuWindowTileHorizontal", "1030"},
    MenuEntry{"mnuWindow", "mnuWindowTileVertical", "1031"},
    MenuEntry{"mnuWindow", "mnuWindowArrangeIcons", "1032"},

    Top("mnuHelp", "1033"),
    MenuEntry{"mnuHelp", "mnuHelpContents", "1034", false, "F1"},
    MenuEntry{"mnuHelp", "mnuHelpSearchForHelpOn", "1035"},
    Separator("mnuHelp"),
    MenuEntry{"mnuHelp", "mnuDisclaimer", "Disclaimer..."},
    MenuEntry{"mnuHelp", "mnuHelpAbout", "1036"},
};

constexpr std::array ToolBar = {
    ToolButton{1, "New", "1037", "mnuFileNew"},
    ToolButton{2, "Open", "1038", "mnuFileOpen"},
    ToolButton{3, "Save", "1039", "mnuFileSave"},
    ToolButton{5, "Print", "1040", "mnuFilePrint"},
    ToolButton{6, "DisplayPrintFrames", "Display Print Frames", "mnuPrintFrames", Checkable},
    ToolButton{7, "SelectPrintFrames", "Select Frames to Print", "mnuSelectFrames", Checkable, "",
               MouseMode::SelectFrames},
    ToolButton{9, "Measure", "Measure distance", "mnuMeasure", Checkable, "", MouseMode::Measure},
    ToolButton{11, "DimensionOptions", "Dimension Options", "mnuDimensionOptions"},
    ToolButton{12, "AlignedDimension", "Add dimension", "mnuAlignedDim", Checkable, "", MouseMode::Dimension},
    ToolButton{13, "RemoveDimension", "Remove Dimension", "mnuRemoveDim", Checkable, "",
               MouseMode::RemoveDimension},
    ToolButton{14, "AddLabel", "Add / Remove the label ", "", Checkable, "Ctrl+L", MouseMode::Label},
    ToolButton{16, "MovePattern", "Move pattern", "mnuMovePattern"},
    ToolButton{17, "RotatePattern", "Rotate pattern", "mnuRotatePattern", Checkable, "", MouseMode::Rotate},
    ToolButton{19, "ZoomIn", "Zoom in", "mnuZoomIn"},
    ToolButton{20, "ZoomOut", "Zoom out", "mnuZoomOut"},
    ToolButton{21, "ZoomWindow", "Zoom Window", "mnuZoomWindow", Checkable, "", MouseMode::ZoomWindow},
    ToolButton{22, "ZoomExtents", "Zoom Extents", "mnuZoomExtents"},
    ToolButton{23, "Pan", "Pan", "mnuPan", Checkable, "", MouseMode::Pan},
    ToolButton{24, "ZoomP", "Zoom Previous", "mnuZoomPrevious"},
    ToolButton{26, "Redraw", "Redraw", "mnuRedraw"},
    ToolButton{27, "Properties", "Pattern settings for this item", "mnuProperties"},
    ToolButton{29, "Help", "Help", "mnuHelpContents"},
};

}  // namespace

std::string ResString(std::string_view keyOrText) {
    const auto* const found =
        std::find_if(StringResources.begin(), StringResources.end(),
                     [&](const StringResource& resource) { return resource.key == keyOrText; });
    return std::string(found == StringResources.end() ? keyOrText : found->text);
}

std::span<const MenuEntry> FrameMenu() {
    return Menu;
}

std::span<const ToolButton> FrameToolBar() {
    return ToolBar;
}

}  // namespace korvet
