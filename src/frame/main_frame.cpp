// The main frame's own life: its load, the windows it opens and closes, its end.
#include "frame/main_frame.h"

#include <algorithm>
#include <cmath>

#include "core/constants.h"
#include "core/number_text.h"
#include "core/reason.h"
#include "frame/about.h"
#include "frame/category_menu.h"
#include "frame/new_fitting.h"
#include "window/parameter_file.h"
#include "window/saving.h"

namespace korvet {
namespace {

constexpr int FarthestTwips = 1000000;  // no desktop is that large

}  // namespace

CMainFrame::CMainFrame(WindowContext& context, FrameDesktop& desktop, HelpViewer& help,
                       SettingsStore& settings, RecoveryStore* recovery)
    : context_(context), desktop_(desktop), help_(help), settings_(settings), recoveryStore_(recovery) {
    if (recovery != nullptr) {
        recovery_.emplace(*recovery);
    }
}

void CMainFrame::Load() {
    context_.frame.caption = ProductTitle;
    place = {StoredTwips("MainLeft", 1000, -FarthestTwips), StoredTwips("MainTop", 1000, -FarthestTwips),
             StoredTwips("MainWidth", 6500, 1), StoredTwips("MainHeight", 6500, 1)};
    ShowCadLink(context_.frame);
    DisableFittingCommands(context_.frame);
}

/// A number of the last run, or another value for a text that can't be one.
int CMainFrame::StoredTwips(const std::string& key, int otherwise, int lowest) const {
    const auto number = ParseFileNumber(settings_.Get(key).value_or(""));
    return number && *number >= lowest && *number <= FarthestTwips ? static_cast<int>(std::nearbyint(*number))
                                                                   : otherwise;
}

void CMainFrame::SavePlace(const Place& last) {
    settings_.Set("MainLeft", std::to_string(last.left));
    settings_.Set("MainTop", std::to_string(last.top));
    settings_.Set("MainWidth", std::to_string(last.width));
    settings_.Set("MainHeight", std::to_string(last.height));
}

void CMainFrame::Activate() {
    if (splashShown_) {
        return;
    }
    splashShown_ = true;  // before it is shown: the frame becomes active once more when it closes
    Guarded([&] {
        SplashDialog splash;
        desktop_.RunModal(splash);
    });
}

/// Nothing that fails in a command may end the program and the user's work with it.
void CMainFrame::Guarded(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& error) {
        ShowPlain(context_.ui, ReasonOf(error));
    }
}

void CMainFrame::ActivateChild(CFittingWindow* window) {
    active_ = window;
    if (window != nullptr) {
        window->Activate();
    }
}

/// A new window of the category that the user picks, or of the one of the file. Null when none opened; it is
/// counted all the same.
CFittingWindow* CMainFrame::NewFitting(bool fromFile) {
    if (!fromFile) {
        CategoryMenuDialog dialog;
        desktop_.RunModal(dialog);
        pendingCategory_ = dialog.lblCategory;
    }
    std::unique_ptr<CFittingWindow> window = korvet::NewFitting(context_, pendingCategory_, nullptr);
    if (!window) {
        return nullptr;
    }
    CFittingWindow& child = *children_.emplace_back(std::move(window));
    child.keepsInSight = true;
    desktop_.ShowWindow(child);
    ActivateChild(&child);
    return &child;
}

void CMainFrame::OpenFile(const std::string& path) {
    Guarded([&] {
        if (CFittingWindow* const open = ChildOfFile(path)) {
            desktop_.BringToFront(*open);
            return;
        }
        if (ReadCategory(path)) {
            return;
        }
        // The window that is active now must not be loaded into when no new one opens.
        CFittingWindow* const child = NewFitting(true);
        if (RequireFitting(context_, path, pendingCategory_) == Passed && child != nullptr) {
            (void)child->LoadFile(path);
        }
    });
}

/// The window of a file, under whatever path it was opened; null when there is none.
CFittingWindow* CMainFrame::ChildOfFile(const std::string& path) const {
    const auto child = std::find_if(children_.begin(), children_.end(), [&](const auto& candidate) {
        return !HasNoFile(*candidate) && (candidate->controls.caption == path ||
                                          context_.files.IsSameFile(candidate->controls.caption, path));
    });
    return child == children_.end() ? nullptr : child->get();
}

/// Takes the category from the header of a parameter file.
Outcome CMainFrame::ReadCategory(const std::string& path) {
    CKvtFile file;
    file.FileName = path;
    try {
        file.ReadHeader(context_.files);
    } catch (const ForeignProductError& error) {
        // Once from the header's reader and once from the frame.
        ShowForeignProduct(context_, path, error);
        ShowPlain(context_.ui, context_.Message(NotAValidFile));
        return Refused;
    } catch (const HeaderError& error) {
        ShowHeaderError(context_.ui, path, error);
        return Refused;
    } catch (const std::exception& error) {
        ShowLoadError(context_, path, error);
        return Refused;
    }
    pendingCategory_ = file.Category;
    return Passed;
}

Outcome CMainFrame::CloseChild(CFittingWindow& window) {
    Outcome outcome = Refused;
    Guarded([&] {
        BringAskingToFront(window);
        outcome = window.CloseForm();
        if (outcome == Passed) {
            Remove(window);
        }
    });
    return outcome;
}

/// The desktop tells which window is active next, if there is another.
void CMainFrame::Remove(CFittingWindow& window) {
    if (active_ == &window) {
        active_ = nullptr;
    }
    desktop_.RemoveWindow(window);
    std::erase_if(children_, [&](const auto& child) { return child.get() == &window; });
    if (children_.empty()) {
        context_.frame.statusText.clear();
    }
    (void)KeepCopies();  // its copy goes with it
}

/// A window that is about to ask comes to the front: its user sees what the question is about.
void CMainFrame::BringAskingToFront(CFittingWindow& window) {
    if (&window != active_ && HasChanges(window)) {
        desktop_.BringToFront(window);
    }
}

Outcome CMainFrame::AskAllToClose() {
    return RefusedIf(std::any_of(children_.begin(), children_.end(), [this](const auto& child) {
        BringAskingToFront(*child);
        return ConfirmSave(*child);
    }));
}

/// When the user logs off, the desktop closes a dialog together with the frame, and the command that showed
/// it has yet to come back: its window stays whole until the frame goes.
void CMainFrame::RemoveAll() {
    leaving_ = std::move(children_);
    children_.clear();
    active_ = nullptr;
    std::for_each(leaving_.rbegin(), leaving_.rend(), [this](const auto& window) {
        window->closed = true;
        desktop_.RemoveWindow(*window);
    });
    active_ = nullptr;
    context_.frame.statusText.clear();
    (void)KeepCopies();
}

Outcome CMainFrame::QueryUnload(const Place& last, bool minimised) {
    Outcome outcome = Refused;
    Guarded([&] {
        if (AskAllToClose()) {
            return;
        }
        outcome = Passed;
        context_.patternSettingsDialog = PatternSettingsDialog();
        RemoveAll();
        if (!minimised) {
            SavePlace(last);
        }
    });
    return outcome;
}

}  // namespace korvet
