// The JSON that tells of one input.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "form/message_boxes.h"
#include "window/fitting_window.h"

namespace korvet::batch {

/// What is told of one input. `window` may be null when none could be opened.
struct InputReport {
    std::string file;      ///< empty for a new window
    std::string category;  ///< empty when not known
    const CFittingWindow* window = nullptr;
    std::shared_ptr<const CLabels> labels;  ///< text block of the build that model and pattern come from
    std::vector<MessageBox> messages;
    bool refused = false;
    std::string model;  ///< JSON lists of surfaces, "[]" when refused
    std::string pattern;
};

/// A list of surfaces as JSON: the points as [x, y, z, Flag], numbers with the fewest digits that read back.
/// Throws ArithmeticError when a coordinate is not finite.
std::string SurfacesJson(const CRuleSurfs& surfaces);

/// The object for one input.
std::string ReportJson(const InputReport& report);

}  // namespace korvet::batch
