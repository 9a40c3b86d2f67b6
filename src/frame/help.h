// Help by context numbers.
#pragma once

#include "form/message_boxes.h"
#include "form/options.h"
#include "form/outcome.h"

namespace korvet {

/// Port: the viewer of the help file.
class HelpViewer {
  public:
    HelpViewer() = default;
    HelpViewer(const HelpViewer&) = delete;
    HelpViewer& operator=(const HelpViewer&) = delete;
    virtual ~HelpViewer() = default;

    /// Whether the application's help file is there.
    [[nodiscard]] virtual bool HasHelp() const = 0;
    virtual void ShowContents() = 0;
    virtual void ShowSearch() = 0;

    /// False when the file has no topic of that number.
    virtual bool ShowTopic(int contextId) = 0;
};

/// Shows the topic of a window. Message 50 when the number is 0 or has no topic; a box when there is no help
/// file at all.
void ShowHelp(MessageBoxes& boxes, const COptions& options, HelpViewer& help, int contextId);

/// Refuses, with a box that says so, where there is no help.
Outcome RequireHelp(MessageBoxes& boxes, const HelpViewer& help);

}  // namespace korvet
