// Port: what the main frame asks of the desktop besides message boxes and file dialogs.
#pragma once

#include <string>

#include "window/fitting_window.h"

namespace korvet {

struct AboutDialog;
struct CategoryMenuDialog;
struct DisclaimerDialog;
struct RecoveryDialog;
struct SplashDialog;

enum class Arrangement { Cascade, TileHorizontally, TileVertically, ArrangeIcons };

class FrameDesktop {
  public:
    FrameDesktop() = default;
    FrameDesktop(const FrameDesktop&) = delete;
    FrameDesktop& operator=(const FrameDesktop&) = delete;
    virtual ~FrameDesktop() = default;

    /// Shows a new child window and gives it its drawing area; it becomes the active one.
    virtual void ShowWindow(CFittingWindow& window) = 0;

    /// Makes a child window the active one, over the others.
    virtual void BringToFront(CFittingWindow& window) = 0;

    /// Takes a child window that has closed off the desktop, before it is destroyed.
    virtual void RemoveWindow(CFittingWindow& window) = 0;

    virtual void Arrange(Arrangement arrangement) = 0;

    /// Closes the frame itself, which asks CMainFrame::QueryUnload.
    virtual void Close() = 0;

    // Each shows its dialog modally.
    virtual void RunModal(CategoryMenuDialog& dialog) = 0;
    virtual void RunModal(SplashDialog& dialog) = 0;
    virtual void RunModal(AboutDialog& dialog) = 0;
    virtual void RunModal(DisclaimerDialog& dialog) = 0;
    virtual void RunModal(RecoveryDialog& dialog) = 0;

    /// Whether another process holds the file open for itself alone.
    [[nodiscard]] virtual bool IsFileAlreadyOpen(const std::string& path) const = 0;
};

}  // namespace korvet
