// The controls of one fitting window, under their names.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "form/controls.h"

namespace korvet {

/// Mouse pointers by the numbers of the desktop's cursors.
enum class Cursor : int { Default = 0, Arrow = 1, Cross = 2, Hourglass = 11 };

/// State of a window on the desktop.
enum WindowShape : int { NormalWindow = 0, MinimisedWindow = 1, MaximisedWindow = 2 };

/// A line or box between two points of the drawing plane.
struct DrawnBand {
    bool box = false;
    float startX = 0;
    float startY = 0;
    float endX = 0;
    float endY = 0;
    bool operator==(const DrawnBand&) const = default;
};

struct DrawingArea {
    Place place;
    std::string toolTip;
    Cursor mousePointer = Cursor::Default;
    Color backColor = Black;
    std::optional<DrawnBand> rubberBand;  ///< dotted and inverted over the drawing while the mouse is dragged
    std::optional<DrawnBand> pickedLine;  ///< in the text colour, while a box tells about it
};

struct WindowModel {
    std::string caption;      ///< "Development " and a number until a save or load, then the file's path
    std::string focus;        ///< name of the control that has the focus
    std::string boxToReveal;  ///< name of a box that a message is about: to be scrolled into sight, once
    Cursor mousePointer = Cursor::Default;
    std::function<void()> showPointer;  ///< shows the pointers at once, for no event does while work runs
    int state = NormalWindow;
    Place place;  ///< of the window in its frame
    Place scale;  ///< its inner area
    DrawingArea pboxGraphicWindow;
    std::vector<Control> Picture1;       ///< parameter page of each type
    std::vector<Control> pboxMore;       ///< second page of a type; no window has any
    std::vector<Control> btnMore;        ///< one a page, where the window has them: on to the next page
    std::vector<Control> btnBack;        ///< back to the one before
    Control btnPosition;                 ///< further options of a branch; hidden where there are none
    std::vector<Control> btnImportMesh;  ///< where a mesh comes from, by MeshSource; no other window has any
    std::vector<TextBox> txtParameter;
    TextBox txtTextSize{.name = "txtTextSize"};
    Control lblTextSize;
    std::array<Control, 2> btnPoint;  ///< next type, previous type
    Control lblDtype;
    Control fraControls1;
    Control fraControls;
    Control fraControls2;
    std::array<Control, 10> btnView;  ///< nine model views and the large pattern button
    Control btnRedraw;
    Control btnSettings;
    Control btnClose;
    FittingOptions options;
};

/// Shows the hourglass over window and drawing for as long as it lives, and then the pointers that were
/// there.
class HourglassWhile {
  public:
    explicit HourglassWhile(WindowModel& controls)
        : controls_(controls),
          window_(controls.mousePointer),
          drawing_(controls.pboxGraphicWindow.mousePointer) {
        controls.mousePointer = controls.pboxGraphicWindow.mousePointer = Cursor::Hourglass;
        Show();
    }
    ~HourglassWhile() {
        controls_.mousePointer = window_;
        controls_.pboxGraphicWindow.mousePointer = drawing_;
        Show();
    }
    HourglassWhile(const HourglassWhile&) = delete;
    HourglassWhile& operator=(const HourglassWhile&) = delete;

  private:
    void Show() const {
        if (controls_.showPointer) {
            controls_.showPointer();
        }
    }

    WindowModel& controls_;
    Cursor window_;
    Cursor drawing_;
};

}  // namespace korvet
