#include "form/message_boxes.h"

#include "core/constants.h"

namespace korvet {

MessageBox NotMakeable(const std::string& reason) {
    return {.text = "This fitting cannot be made with these sizes",
            .style = PlainBox,
            .title = std::string(ProductTitle),
            .detail = reason};
}

void ShowPlain(MessageBoxes& boxes, const std::string& text, const std::string& detail,
               const std::string& control) {
    boxes.Show({.text = text,
                .style = PlainBox,
                .title = std::string(ProductTitle),
                .detail = detail,
                .control = control});
}

void ShowUserError(MessageBoxes& boxes, const std::string& text, const std::string& control) {
    boxes.Show({.text = text, .style = ExclamationBox, .title = "User Error", .control = control});
}

}  // namespace korvet
