// The user interface of a program without a screen: messages go to the standard error and into a record,
// dialogs are answered from the command line.
#pragma once

#include <string>
#include <vector>

#include "batch/arguments.h"
#include "dialogs/small_dialogs.h"
#include "dialogs/user_interface.h"

namespace korvet::batch {

class BatchUi : public UserInterface {
  public:
    explicit BatchUi(const Arguments& arguments) : arguments_(arguments) {}

    /// Starts the record of one input, by the name that its messages carry.
    void BeginInput(const std::string& name);

    /// From here to the end of the input a message that comes again is left out: what the window does next
    /// only repeats the build for another output.
    void BeginOutputs() { leaveOutRepeats_ = true; }

    /// The messages of the input so far, in their order. News of success are not among them.
    [[nodiscard]] const std::vector<MessageBox>& Messages() const { return messages_; }

    /// Whether the command line has asked the export of this input for something that its view has not.
    [[nodiscard]] bool LacksSomethingAsked() const { return lacksSomethingAsked_; }

    /// Rubs out the progress line and writes one line to the standard error.
    void PrintLine(const std::string& text);

    /// Shows how far the work is, when the standard error is a terminal and there is more than one input.
    void ShowProgress(std::size_t number, std::size_t count, const std::string& name);

    /// Takes the progress line away at the end.
    void ClearProgress();

    Answer Show(const MessageBox& message) override;
    std::optional<std::string> ChooseFile(const FileChoice&) override { return std::nullopt; }
    void RunModal(DxfOptionsDialog& dialog) override;

    // Nobody is there to work on these: they are left with Cancel.
    void RunModal(PatternSettingsDialog&) override {}
    void RunModal(OptionsDialog&) override {}
    void RunModal(DimensionOptionsDialog&) override {}
    void RunModal(LabelDialog&) override {}
    void RunModal(RotateDialog&) override {}
    void RunModal(BranchAdditionalDialog&) override {}
    void RunModal(PrintersDialog&) override {}

    bool GoesOn(const WorkProgress&) override { return true; }

  private:
    [[nodiscard]] std::string FurtherDetail(const MessageBox& message) const;
    void Tick(CheckBox& box, std::optional<bool> wanted);

    const Arguments& arguments_;
    std::string name_;
    std::vector<MessageBox> messages_;
    bool leaveOutRepeats_ = false;
    bool lacksSomethingAsked_ = false;
    bool progressShown_ = false;
};

}  // namespace korvet::batch
