// A user interface without a screen, for tests: it keeps every message, answers from queues, and hands each
// dialog to the test's hook.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/user_interface.h"

namespace korvet {

class RecordingUi final : public UserInterface {
  public:
    std::vector<MessageBox> messages;              ///< every box shown, in order
    std::deque<Answer> answers;                    ///< for boxes with a choice, first one first
    std::vector<FileChoice> fileDialogs;           ///< every file dialog shown, in order
    std::deque<std::optional<std::string>> files;  ///< what file dialogs return, first one first

    /// A look at the program while a box is shown.
    std::function<void(const MessageBox&)> onShow;

    // What the user does in a dialog. Without a hook the dialog is left as it was shown, which is Cancel.
    std::function<void(PatternSettingsDialog&)> onPatternSettings;
    std::function<void(OptionsDialog&)> onOptions;
    std::function<void(DimensionOptionsDialog&)> onDimensionOptions;
    std::function<void(LabelDialog&)> onLabel;
    std::function<void(DxfOptionsDialog&)> onDxfOptions;
    std::function<void(RotateDialog&)> onRotate;
    std::function<void(BranchAdditionalDialog&)> onBranchAdditional;
    std::function<void(PrintersDialog&)> onPrinters;

    std::vector<WorkProgress> progress;               ///< every step of long work that was shown
    std::function<bool(const WorkProgress&)> goesOn;  ///< false cancels; without it work goes on

    /// A box without a choice is always answered with Ok. One with a choice takes the next queued answer, or
    /// Cancel when none is left.
    Answer Show(const MessageBox& message) override {
        messages.push_back(message);
        if (onShow) {
            onShow(message);
        }
        constexpr int ButtonBits = 7;
        if ((message.style & ButtonBits) == 0) {
            return Answer::Ok;
        }
        return Next(answers, Answer::Cancel);
    }

    std::optional<std::string> ChooseFile(const FileChoice& choice) override {
        fileDialogs.push_back(choice);
        return Next(files, std::optional<std::string>());
    }

    void RunModal(PatternSettingsDialog& dialog) override { Run(onPatternSettings, dialog); }
    void RunModal(OptionsDialog& dialog) override { Run(onOptions, dialog); }
    void RunModal(DimensionOptionsDialog& dialog) override { Run(onDimensionOptions, dialog); }
    void RunModal(LabelDialog& dialog) override { Run(onLabel, dialog); }
    void RunModal(DxfOptionsDialog& dialog) override { Run(onDxfOptions, dialog); }
    void RunModal(RotateDialog& dialog) override { Run(onRotate, dialog); }
    void RunModal(BranchAdditionalDialog& dialog) override { Run(onBranchAdditional, dialog); }
    void RunModal(PrintersDialog& dialog) override { Run(onPrinters, dialog); }

    bool GoesOn(const WorkProgress& step) override {
        progress.push_back(step);
        return !goesOn || goesOn(step);
    }

    /// The texts of the messages so far, for a comparison in one line.
    [[nodiscard]] std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        texts.reserve(messages.size());
        for (const MessageBox& message : messages) {
            texts.push_back(message.text);
        }
        return texts;
    }

  private:
    template <typename T>
    static T Next(std::deque<T>& queue, T otherwise) {
        if (queue.empty()) {
            return otherwise;
        }
        T next = queue.front();
        queue.pop_front();
        return next;
    }

    template <typename Dialog>
    static void Run(const std::function<void(Dialog&)>& hook, Dialog& dialog) {
        if (hook) {
            hook(dialog);
        }
    }
};

}  // namespace korvet
