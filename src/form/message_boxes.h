// Port: the boxes in which the program speaks to the user.
#pragma once

#include <optional>
#include <string>

namespace korvet {

/// Icon and buttons of a message box, by the numbers of the desktop's message boxes.
enum BoxStyle : int {
    PlainBox = 0,
    OkCancelBox = 1,
    CriticalBox = 16,
    QuestionBox = 32,
    YesNoCancelBox = 35,
    YesNoBox = 36,
    ExclamationBox = 48,
    YesNoWarningBox = 52,
    InformationBox = 64
};

enum class Answer : int { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct MessageBox {
    std::string text;
    BoxStyle style = PlainBox;
    std::string title;
    std::string detail = {};      ///< what exactly went wrong, shown below the text; may be empty
    std::optional<int> box = {};  ///< index of the parameter box that it is about
    std::string control = {};     ///< name of the control that it is about; empty when it is about none
};

class MessageBoxes {
  public:
    MessageBoxes() = default;
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;
    virtual ~MessageBoxes() = default;

    /// Shows the box until the user has answered it.
    virtual Answer Show(const MessageBox& message) = 0;
};

/// What is said of sizes that pass every check and yet have no shape, with the reason below it.
MessageBox NotMakeable(const std::string& reason);

/// The plain box with the product's name as its title; about a control, where it names one.
void ShowPlain(MessageBoxes& boxes, const std::string& text, const std::string& detail = {},
               const std::string& control = {});

/// The "User Error" box, for limits and for commands that can't be carried out; about a control, where it
/// names one.
void ShowUserError(MessageBoxes& boxes, const std::string& text, const std::string& control = {});

}  // namespace korvet
