// The main frame: it holds the fitting windows and forwards each command of its menus to the active one.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/frame_desktop.h"
#include "frame/help.h"
#include "frame/recovery.h"
#include "frame/settings_store.h"
#include "window/fitting_window.h"

namespace korvet {

class CMainFrame {
  public:
    /// Everything must outlive the frame. Without a `recovery` no copies are kept.
    CMainFrame(WindowContext& context, FrameDesktop& desktop, HelpViewer& help, SettingsStore& settings,
               RecoveryStore* recovery = nullptr);

    /// The frame's load: caption, place as it was left, fitting commands disabled.
    void Load();

    /// The first activation shows the splash; later ones do nothing.
    void Activate();

    /// Keeps copies of the windows that hold anything unsaved; to be called every few seconds. Refused when
    /// one could not be written, which is told once, as soon as the user `canBeTold`.
    Outcome KeepCopies(bool canBeTold = true);

    /// Offers what an earlier run has left, once.
    void OfferCopies();

    /// Does what the menu entry of that control name does; a name without an action does nothing.
    void RunMenu(std::string_view name);

    /// Does what the tool button at that position, from 1, does.
    void ClickTool(int position);

    /// Opens a parameter file as File > Open does after its dialog. The window that has it open already comes
    /// to the front instead.
    void OpenFile(const std::string& path);

    /// A child window became the active one; null: none is.
    void ActivateChild(CFittingWindow* window);

    /// The close box or button of a child window: asks about saving and then takes it away. Refused when it
    /// stays.
    Outcome CloseChild(CFittingWindow& window);

    /// The frame is about to close: all windows are asked first, and they close when none was kept. Refused
    /// when the frame stays. `place` in twips and `minimised` are the frame's, to be remembered.
    Outcome QueryUnload(const Place& place, bool minimised);

    /// Whether the tool button at that position stays pressed: a mode that is armed in the active window, or
    /// print frames that are shown.
    [[nodiscard]] bool IsToolPressed(int position) const;

    [[nodiscard]] CFittingWindow* ActiveChild() const { return active_; }
    [[nodiscard]] const std::vector<std::unique_ptr<CFittingWindow>>& Children() const { return children_; }
    [[nodiscard]] WindowContext& Context() const { return context_; }

    Place place;  ///< of the frame as Load found it, twips

  private:
    struct Command;
    static std::span<const Command> Commands();

    void RunCommand(std::string_view name);
    void Refuse(int message);
    void Guarded(const std::function<void()>& work);

    // Windows.
    CFittingWindow* NewFitting(bool fromFile);
    [[nodiscard]] CFittingWindow* ChildOfFile(const std::string& path) const;
    Outcome ReadCategory(const std::string& path);
    void BringAskingToFront(CFittingWindow& window);
    Outcome AskAllToClose();
    void Remove(CFittingWindow& window);
    void RemoveAll();
    void SavePlace(const Place& last);
    /// A copy that an earlier run has left; a damaged one has no contents.
    struct LeftCopy {
        std::string name;
        std::optional<RecoveryCopy> contents;
    };
    static std::vector<LeftCopy> ReadLeft(const std::vector<std::string>& copies);
    void Offer(const std::vector<LeftCopy>& left);
    Outcome Recover(const LeftCopy& copy);
    [[nodiscard]] int StoredTwips(const std::string& key, int otherwise, int lowest) const;

    // Commands that do without a fitting window.
    void FileNew();
    void FileOpen();
    void FilePrintPreview();
    void FileExit();
    void ViewToolbar();
    void ViewStatusBar();
    void ToolsOptions();
    void WindowCascade();
    void WindowTileHorizontal();
    void WindowTileVertical();
    void WindowArrangeIcons();
    void HelpContents();
    void HelpSearch();
    void Disclaimer();
    void HelpAbout();

    // Commands on the active fitting window that are more than a call of its member.
    void FileClose(CFittingWindow& child);
    void Save(CFittingWindow& child, bool underNewName);
    void FileSave(CFittingWindow& child);
    void FileSaveAs(CFittingWindow& child);
    void ExportDxf(CFittingWindow& child);
    void ExportHpgl(CFittingWindow& child);
    void SendToAcad(CFittingWindow& child);
    void PageSetup(CFittingWindow& child);
    void PrintFrames(CFittingWindow& child);
    void FilePrint(CFittingWindow& child);
    void ZoomIn(CFittingWindow& child);
    void ZoomOut(CFittingWindow& child);
    void AlignedDimension(CFittingWindow& child);
    void MovePattern(CFittingWindow& child);

    WindowContext& context_;
    FrameDesktop& desktop_;
    HelpViewer& help_;
    SettingsStore& settings_;
    std::vector<std::unique_ptr<CFittingWindow>> children_;
    std::vector<std::unique_ptr<CFittingWindow>> leaving_;  ///< of a frame that is closed
    CFittingWindow* active_ = nullptr;
    std::string pendingCategory_;
    bool splashShown_ = false;
    RecoveryStore* recoveryStore_;
    std::optional<Recovery> recovery_;
    bool copiesOffered_ = false;
    bool copiesFailed_ = false;  ///< and it has been said
};

}  // namespace korvet
