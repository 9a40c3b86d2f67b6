// A main frame on a desktop without a screen, in each state that its commands meet.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "core/number_text.h"
#include "dialogs/options_dialog.h"
#include "frame/main_frame.h"
#include "printing/printers_dialog.h"
#include "tests/support/recording_desktop.h"
#include "tests/support/recording_device.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {

/// What a command finds: no window, one that never drew, one whose last build failed, a model, a pattern.
enum class FrameState : std::size_t { NoChild, NoView, Invalid, Model, Pattern };

inline constexpr std::array AllStates = {FrameState::NoChild, FrameState::NoView, FrameState::Invalid,
                                         FrameState::Model, FrameState::Pattern};

class FrameRig {
  public:
    TestShell shell;
    RecordingDesktop desktop;
    RecordingHelp help;
    MemorySettings store;
    RecordingDevice device;
    CMainFrame frame{shell.context, desktop, help, store};

    FrameRig() {
        desktop.drawingArea = &device;
        desktop.activate = [this](CFittingWindow* window) { frame.ActivateChild(window); };
        help.topics = {2100};
        ListenToDialogs();
        frame.Load();
    }

    /// A rig in a state. Type 2 of the cone has its boxes at 3 to 5; 300, 150 and 250 are typed.
    static std::unique_ptr<FrameRig> In(FrameState state) {
        auto rig = std::make_unique<FrameRig>();
        if (state == FrameState::NoChild) {
            // As after the last window has closed: nobody has greyed its commands yet.
            EnableFittingCommands(rig->shell.frame);
        } else {
            CFittingWindow& cone = rig->OpenCone();
            if (state != FrameState::NoView) {
                cone.ClickView(state == FrameState::Model ? 0 : PatternButton);
            }
            if (state == FrameState::Invalid) {
                cone.ChangeBox(4, "400");
                cone.Redraw();
            }
        }
        rig->Forget();
        return rig;
    }

    /// The captions of the windows that are open, in the order in which they opened.
    [[nodiscard]] std::vector<std::string> Open() const {
        std::vector<std::string> captions;
        for (const auto& child : frame.Children()) {
            captions.push_back(child->controls.caption);
        }
        return captions;
    }

    /// A new cone, through File > New.
    CFittingWindow& OpenNewCone() {
        desktop.pick = "Right Cone";
        frame.RunMenu("mnuFileNew");
        return *frame.ActiveChild();
    }

    /// The same with sizes typed: closing it asks.
    CFittingWindow& OpenCone() {
        CFittingWindow& cone = OpenNewCone();
        cone.keepsInSight = false;  // the zooms of the commands count from 1
        cone.ChangeBox(3, "300");
        cone.ChangeBox(4, "150");
        cone.ChangeBox(5, "250");
        return cone;
    }

    /// A cone that shows its pattern.
    CFittingWindow& OpenDrawnCone() {
        CFittingWindow& cone = OpenCone();
        cone.ClickView(PatternButton);
        return cone;
    }

    /// Drops what was recorded so far.
    void Forget() {
        shell.ui.messages.clear();
        shell.ui.fileDialogs.clear();
        shell.files.writes.clear();
        desktop.calls.clear();
        help.calls.clear();
        device.calls.clear();
        dialogs_.clear();
        const CFittingWindow* const child = frame.ActiveChild();
        caption_ = child == nullptr ? "none" : child->controls.caption;
        views_ = child == nullptr ? 0 : child->views->Count();
    }

    /// The boxes since then: "T48" for the product's warning, "UE" for a user error, "P" for a plain box.
    [[nodiscard]] std::string Said() const {
        std::string said;
        for (const MessageBox& box : shell.ui.messages) {
            const bool userError = box.title == "User Error" && box.style == ExclamationBox;
            EXPECT_TRUE(userError || box.title == "Korvet Development") << box.title;
            const std::string kind = userError                     ? "UE "
                                     : box.style == ExclamationBox ? "T48 "
                                     : box.style == PlainBox       ? "P "
                                                                   : std::to_string(box.style) + " ";
            said += (said.empty() ? "" : " / ") + kind + box.text;
        }
        return said;
    }

    /// What else happened since then, to desktop, files, frame and the active window.
    [[nodiscard]] std::string Did() const {
        List did;
        for (const std::string& call : desktop.calls) {
            did.Add(call);
        }
        for (const std::string& call : help.calls) {
            did.Add("help " + call);
        }
        for (const FileChoice& choice : shell.ui.fileDialogs) {
            did.Add(choice.title + "|" + choice.filter + (choice.save ? "|save" : "|open"));
        }
        for (const MemoryFileStore::Written& write : shell.files.writes) {
            did.Add("wrote " + write.path);
        }
        did.AddIf(!dialogs_.empty(), dialogs_);
        did.AddIf(!device.calls.empty(), "drew");
        did.AddIf(!shell.frame.menuEnabled.at("mnuFileSave"), "disabled");
        did.AddIf(shell.frame.printFramesTicked, "frames ticked");
        did.AddIf(shell.frame.toolEnabled.at(7), "tool 7");
        did.AddIf(!shell.frame.toolBarVisible, "no tool bar");
        did.AddIf(!shell.frame.statusBarVisible, "no status bar");
        AddChild(did);
        return did.text;
    }

  private:
    struct List {
        std::string text;
        void Add(const std::string& what) { text += (text.empty() ? "" : ", ") + what; }
        void AddIf(bool is, const std::string& what) {
            if (is) {
                Add(what);
            }
        }
    };

    void AddChild(List& did) const {
        const CFittingWindow* const child = frame.ActiveChild();
        const std::string caption = child == nullptr ? "none" : child->controls.caption;
        did.AddIf(caption != caption_, "now " + caption);
        if (child == nullptr) {
            return;
        }
        const MouseModes& modes = child->modes;
        did.AddIf(modes.panMode, "pan armed");
        did.AddIf(modes.zoomWindowMode, "zoom window armed");
        did.AddIf(modes.measureMode, "measure armed");
        did.AddIf(modes.labelMode, "label armed");
        did.AddIf(modes.selectFramesMode, "select frames armed");
        did.AddIf(modes.rotateMode, "rotate armed");
        did.AddIf(child->removeDimensionMode, "remove dimension armed");
        did.AddIf(modes.dimensionMode != 0, "dimension " + std::to_string(modes.dimensionMode) + " armed");
        if (child->views->Count() > views_) {
            did.Add("zoom " + RoundedText(child->views->Last().ZoomFactor, 6));
        }
    }

    void ListenToDialogs() {
        shell.ui.onPatternSettings = [this](PatternSettingsDialog&) { dialogs_ += "settings"; };
        shell.ui.onOptions = [this](OptionsDialog&) { dialogs_ += "options"; };
        shell.ui.onDimensionOptions = [this](DimensionOptionsDialog&) { dialogs_ += "dimension options"; };
        shell.ui.onLabel = [this](LabelDialog& dialog) {
            dialogs_ += "label";
            dialog.lblStatus = "OK";
        };
        shell.ui.onPrinters = [this](PrintersDialog& dialog) { dialogs_ += dialog.caption; };
        shell.ui.onDxfOptions = [this](DxfOptionsDialog& dialog) {
            dialogs_ += dialog.caption;
            dialog.lblStatus = "OK";
        };
    }

    std::string dialogs_;
    std::string caption_;  ///< of the active window at the last Forget
    std::size_t views_ = 0;
};

}  // namespace korvet
