// The main frame: it holds the fitting windows and forwards each command of its menus to the active one.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "shell/fitting_window.h"
#include "shell/frame_desktop.h"
#include "shell/help.h"
#include "shell/settings_store.h"

namespace korvet {

/// The version of the CAD program that the link speaks to.
inline constexpr int AutoCadVersion = 15;

class CMainFrame {
  public:
    /// Everything must outlive the frame.
    CMainFrame(ShellContext& context, FrameDesktop& desktop, HelpViewer& help, SettingsStore& settings);

    /// The frame's load: caption, place as it was left, fitting commands disabled.
    void Load();

    /// The first activation shows the splash; later ones do nothing.
    void Activate();

    /// Does what the menu entry of that control name does; a name without an action does nothing.
    void RunMenu(std::string_view name);

    /// Does what the tool button at that position, from 1, does.
    void ClickTool(int position);

    /// Opens a parameter file as File > Open does after its dialog.
    void OpenFile(const std::string& path);

    /// A child window became the active one; null: none is.
    void ActivateChild(CFittingWindow* window);

    /// The close box or button of a child window: asks about saving and then takes it away. False when it
    /// stays.
    bool CloseChild(CFittingWindow& window);

    /// The frame is about to close: all windows are asked first, and they close when none was kept. False
    /// when the frame stays. `place` in twips and `minimised` are the frame's, to be remembered.
    bool QueryUnload(const Place& place, bool minimised);

    [[nodiscard]] CFittingWindow* ActiveChild() const { return active_; }
    [[nodiscard]] const std::vector<std::unique_ptr<CFittingWindow>>& Children() const { return children_; }
    [[nodiscard]] ShellContext& Context() const { return context_; }

    Place place;  ///< of the frame as Load found it, twips

  private:
    bool NewFitting(bool fromFile);

    ShellContext& context_;
    FrameDesktop& desktop_;
    HelpViewer& help_;
    SettingsStore& settings_;
    std::vector<std::unique_ptr<CFittingWindow>> children_;
    CFittingWindow* active_ = nullptr;
    std::string pendingCategory_;
    bool splashShown_ = false;
};

}  // namespace korvet
