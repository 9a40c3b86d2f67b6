#include "frame/new_fitting.h"

#include "core/text_encoding.h"
#include "frame/catalogue.h"
#include "window/saving.h"

namespace korvet {

std::unique_ptr<CFittingWindow> NewFitting(WindowContext& context, const std::string& category,
                                           DrawingDevice* drawingArea) {
    ++context.frame.documentCounter;
    const CatalogueRow* row = FindCategory(category);
    if (row == nullptr) {
        return nullptr;
    }
    auto window = std::make_unique<CFittingWindow>(context, *row, drawingArea);
    window->controls.caption =
        std::string(NewWindowCaption) + " " + std::to_string(context.frame.documentCounter);
    return window;
}

Outcome RequireFitting(WindowContext& context, const std::string& path, const std::string& category) {
    if (FindCategory(category) != nullptr) {
        return Passed;
    }
    const std::string fault = category.empty()
                                  ? "the fitting is missing"
                                  : "there is no fitting \"" + std::string(Excerpt(category)) + '"';
    ShowLoadError(context, path, ParameterFileError("line 2: " + fault));
    return Refused;
}

}  // namespace korvet
