// The user interface of a program without a screen: messages go to a stream and into a record,
// dialogs are answered from the command line.
#pragma once

#include <iostream>
#include <string>
#include <vector>

#include "batch/arguments.h"
#include "dialogs/small_dialogs.h"
#include "dialogs/user_interface.h"

namespace korvet::batch {

class BatchUi : public UserInterface {
  public:
    /// Messages go to `errors`.
    explicit BatchUi(const Arguments& arguments, std::ostream& errors = std::cerr)
        : arguments_(arguments), errors_(errors) {}

    /// Starts the record of one input, by the name that its messages carry.
    void BeginInput(const std::string& name);

    /// From here to the end of the input a message that comes again is left out: what the window does next
    /// only repeats the build for another output.
    void BeginOutputs() { leaveOutRepeats_ = true; }

    /// The messages of the input so far, in their order. News of success are not among them.
    [[nodiscard]] const std::vector<MessageBox>& Messages() const { return messages_; }

    /// Whether the command line has asked the export of this input for something that its view has not.
    [[nodiscard]] bool LacksSomethingAsked() const { return lacksSomethingAsked_; }

    /// Writes one line among the messages.
    void PrintLine(const std::string& text) { errors_ << text << '\n'; }

    /// Writes one line about the input.
    void PrintAbout(const std::string& text) { PrintLine(name_ + ": " + text); }

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
    std::ostream& errors_;
    std::string name_;
    std::vector<MessageBox> messages_;
    bool leaveOutRepeats_ = false;
    bool lacksSomethingAsked_ = false;
};

}  // namespace korvet::batch
