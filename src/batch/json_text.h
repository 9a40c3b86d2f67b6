// The JSON that tells of one input.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/file_store.h"
#include "form/message_boxes.h"
#include "window/check_export.h"
#include "window/fitting_window.h"

namespace korvet::batch {

/// What is told of one input. `window` may be null when none could be opened.
struct InputReport {
    std::string file;      ///< empty for a new window
    std::string row;       ///< the name of a row of a list of fittings; empty when it is none
    std::string category;  ///< empty when not known
    const CFittingWindow* window = nullptr;
    std::shared_ptr<const CLabels> labels;  ///< text block of the build that model and pattern come from
    std::vector<MessageBox> messages;
    bool refused = false;
    const ModelAndPattern* surfaces = nullptr;  ///< null when refused
    bool tellsCheck = false;                    ///< the check of the cut file was asked for
    const ExportCheck* check = nullptr;         ///< null when there was nothing to check
};

/// Throws ArithmeticError when a coordinate is not finite: JSON has no word for it.
void RequireFinite(const CRuleSurfs& surfaces);

/// Hands the object for one input to the sink. A surface holds its points as [x, y, z, Flag], numbers with
/// the fewest digits that read back. All of it is UTF-8, whatever the texts of the report are.
void WriteReport(const InputReport& report, const TextSink& sink);

}  // namespace korvet::batch
