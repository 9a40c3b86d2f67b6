#include "sketch/sample_model.h"

#include <stdexcept>
#include <string>

#include "core/fitting_surfaces.h"
#include "core/math_module.h"
#include "form/message_boxes.h"

namespace korvet {
namespace {

/// Enough for a round wall to look round, and a multiple of four so that the ring has its outermost points.
constexpr int SampleSegs = 96;

/// Nobody is there to read a message: a sample that draws one is a mistake in its table.
class RefusingBoxes final : public MessageBoxes {
  public:
    Answer Show(const MessageBox& message) override {
        throw std::logic_error("the sample sizes are refused: " + message.text);
    }
};

CPatternSettings SampleSettings(const WindowTable& table, std::int16_t dtype) {
    CPatternSettings settings = StartSettings(table, SampleSegs);
    if (table.onTypeChanged != nullptr) {
        table.onTypeChanged(dtype, settings);
    }
    return settings;
}

/// The boxes of all pages, with the samples of the one page in them.
std::vector<TextBox> SampleBoxes(const WindowTable& table, const PageEntry& page) {
    std::vector<TextBox> boxes(table.BoxCount());
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i].parameterIndex = static_cast<int>(i);
    }
    for (const BoxEntry& box : page.boxes) {
        boxes.at(static_cast<std::size_t>(box.index)).text = box.sample;
    }
    return boxes;
}

}  // namespace

FittingHandle SampleFitting(const WindowTable& table, std::size_t page) {
    if (page >= table.pages.size()) {
        throw std::logic_error("no page " + std::to_string(page));
    }
    RefusingBoxes refusing;
    const COptions options;
    std::string focus;
    std::vector<TextBox> boxes = SampleBoxes(table, table.pages[page]);
    const auto dtype = static_cast<std::int16_t>(page);
    CPatternSettings settings = SampleSettings(table, dtype);
    const FittingOptions choices = StartOptions(table);
    const BranchOptions branch;
    FittingForm form({refusing, options, '.', focus},
                     {boxes,
                      settings,
                      choices,
                      branch,
                      {},
                      dtype,
                      table.miscellaneous,
                      false,
                      table.sampleMesh != nullptr ? table.sampleMesh() : ImportedMesh()});
    FittingHandle fitting = table.newFitting();
    if (table.buildFitting(form, fitting) || BuildChosenPattern(table, form, fitting)) {
        throw std::logic_error("the sample sizes are refused at " + focus);
    }
    FittingInputs& inputs = fitting.Inputs();
    inputs.segs = settings.segs;
    inputs.JoinAngle = DegToRad(settings.JoinAngle);
    inputs.Dtype = dtype;
    inputs.Miscellaneous = table.miscellaneous;
    return fitting;
}

CRuleSurfs SampleModel(const WindowTable& table, std::size_t page) {
    return MakeSurfaces(SampleFitting(table, page), FittingShape::Model, table.multiple);
}

}  // namespace korvet
