#include "frame/help.h"

#include "core/constants.h"
#include "form/messages.h"

namespace korvet {

void ShowHelp(MessageBoxes& boxes, const COptions& options, HelpViewer& help, int contextId) {
    if (RequireHelp(boxes, help) == Refused) {
        return;
    }
    if (contextId == 0 || !help.ShowTopic(contextId)) {
        ShowPlain(boxes, GetMessage(NoHelpForItem, options.Language));
    }
}

Outcome RequireHelp(MessageBoxes& boxes, const HelpViewer& help) {
    if (help.HasHelp()) {
        return Passed;
    }
    // The title is the caption of the frame.
    boxes.Show({.text = "Unable to display Help Contents. There is no Help associated with this project.",
                .style = InformationBox,
                .title = std::string(ProductTitle)});
    return Refused;
}

}  // namespace korvet
