// The update cycle of a fitting window: from typed text to a drawing.
#include <algorithm>
#include <cmath>
#include <limits>

#include "core/constants.h"
#include "core/math_module.h"
#include "core/number_text.h"
#include "core/reason.h"
#include "window/fitting_types.h"
#include "window/fitting_window.h"
#include "window/parameter_file.h"
#include "window/views.h"
#include "window/watched_work.h"
#include "window/window_layout.h"

namespace korvet {
namespace {

MessageId BranchTypeText(BranchJoin join) {
    switch (join) {
        case SetInJoin:
            return SetInText;
        case SetOnJoin:
            return SetOnText;
        default:
            return MeanToMeanText;
    }
}

/// The warnings of a model and of the pattern made behind it, which repeats most of them: a half pattern is
/// refused by the model alone, for then there is none any more.
std::vector<FittingWarning> EachOnce(std::vector<FittingWarning> ofModel,
                                     const std::vector<FittingWarning>& ofPattern) {
    std::erase_if(ofModel, [&](const FittingWarning& warning) {
        return std::find(ofPattern.begin(), ofPattern.end(), warning) != ofPattern.end();
    });
    ofModel.insert(ofModel.end(), ofPattern.begin(), ofPattern.end());
    return ofModel;
}

}  // namespace

void CFittingWindow::UpdateFitting() {
    (void)UpdateUnlessCancelled();
}

Outcome CFittingWindow::UpdateUnlessCancelled() {
    refused.reset();
    try {
        Rebuild();
    } catch (const WorkCancelled&) {
        hasModel = false;  // as after a build that fails, but there is nothing to tell
        return Refused;
    } catch (const std::exception& error) {
        RefuseBuild(error);
    }
    if (!hasModel) {
        refused = StateOf(*this);
    }
    return Passed;
}

/// UpdateFitting without its message. Throws when the arithmetic ends, and when the user has cancelled it.
void CFittingWindow::Rebuild() {
    const WatchedWork watched(context_);
    if (views->Count() > 0 && BuildFitting() == Passed) {
        DevelopAndDisplay();
    }
}

/// A size so far out that the arithmetic ends: the window stays, with no model to save or print.
void CFittingWindow::RefuseBuild(const std::exception& error) {
    hasModel = false;
    context_.ui.Show(NotMakeable(ReasonOf(error)));
}

Outcome CFittingWindow::BuildFitting() {
    hasModel = false;
    ReturnToPageOfType(*this);
    if (Table().halfPatterns == HalfPatterns::None) {
        settings.HalfPattern = false;
    }
    if (Table().checksAllFields && CheckAllFields()) {
        return Refused;
    }
    labels = std::make_shared<CLabels>();
    labels->Add({comment1});
    labels->Add({comment2});
    if (CheckThicknesses()) {
        return Refused;
    }
    if (!fitting) {
        fitting = Table().newFitting();
    }
    FittingForm form(Fields(), {controls.txtParameter, settings, controls.options, branch, category, dtype,
                                miscellaneous, InPatternView(*views), mesh});
    if (Table().buildFitting(form, *fitting)) {
        return Refused;
    }
    RequireSizesWithinReach(form, Table().pages[static_cast<std::size_t>(dtype)]);
    AddTextBlock();
    TakeNoOfSides();
    if (BuildChosenPattern(Table(), form, *fitting)) {
        return Refused;
    }
    fitting->Inputs().Dtype = dtype;
    hasModel = true;
    return Passed;
}

Outcome CFittingWindow::CheckAllFields() {
    const FieldContext fields = Fields();
    return RefusedIf(std::any_of(controls.txtParameter.begin(), controls.txtParameter.end(),
                                 [&](TextBox& box) { return CheckNumber(fields, box); }) ||
                     CheckNumber(fields, controls.txtTextSize));
}

/// A wall can't be thinner than none. The settings of a file come here without having been typed.
Outcome CFittingWindow::CheckThicknesses() {
    const auto thicknesses = GivenThicknesses(settings);
    if (std::none_of(thicknesses.begin(), thicknesses.end(),
                     [this](const auto thickness) { return settings.*thickness < 0; })) {
        return Passed;
    }
    ShowUserError(context_.ui, context_.Message(MustBeAtLeast) + FormatLimit(Fields(), 0));
    return Refused;
}

/// Another number of sides has its corners elsewhere, so that the seam starts anew at the first one.
void CFittingWindow::TakeNoOfSides() {
    const std::optional<int> sides = TypedSides();
    if (sides && *sides != noOfSides) {
        settings.JoinAngle = 0;
        noOfSides = static_cast<std::int16_t>(*sides);
    }
}

/// The number of sides in the box of the type that is shown, if it has one with a number in it.
std::optional<int> CFittingWindow::TypedSides() const {
    const int box = Table().pages[static_cast<std::size_t>(dtype)].sidesBox;
    if (box == NoBox) {
        return std::nullopt;
    }
    const auto typed =
        ParseNumber(controls.txtParameter.at(static_cast<std::size_t>(box)).text, context_.decimalMark);
    return typed ? std::optional<int>(RoundToInt16(*typed)) : std::nullopt;
}

/// The sizes as typed, then what the window's table asks for of the common lines.
void CFittingWindow::AddTextBlock() {
    const PageEntry& page = Table().pages[static_cast<std::size_t>(dtype)];
    for (const LabelEntry& line : page.labels) {
        const std::string text = line.box == NoBox
                                     ? std::string(line.text)
                                     : controls.txtParameter.at(static_cast<std::size_t>(line.box)).text;
        labels->Add({LabelOf(page, line) + text});
    }
    const auto addThickness = [&](MessageId label, double thickness) {
        labels->Add({context_.Message(label) + NumberText(thickness, context_.decimalMark)});
    };
    if (Table().branchMaterialEnable) {
        addThickness(BranchThicknessText, settings.ThicknessA);
        addThickness(TrunkThicknessText, settings.ThicknessB);
        labels->Add({context_.Message(BranchTypeText(branch.join))});
    } else {
        addThickness(ThicknessText, settings.Thickness);
    }
    if (Table().positionLine) {
        labels->Add({context_.Message(DimensionsBasedOn) + settings.PositionString});
    }
    const bool half = TellsOfHalf(Table(), settings);
    labels->Add({category + "  " + context_.Message(half ? HalfPatternText : FullPatternText) + "  " +
                 context_.clock.ShortDate()});
}

void CFittingWindow::ResetFieldColours() {
    for (TextBox& box : controls.txtParameter) {
        box.textColor = Black;
    }
    controls.txtTextSize.textColor = Black;
}

void CFittingWindow::ApplySettings() {
    FittingInputs& inputs = fitting->Inputs();
    inputs.JoinAngle = DegToRad(settings.JoinAngle);
    inputs.segs = settings.segs;
    inputs.HalfPattern = settings.HalfPattern;
    inputs.JoinType = settings.JoinType;
    inputs.LapSize0 = settings.LapSize0;
    inputs.LapSize1 = settings.LapSize1;
    inputs.LapSize2 = settings.LapSize2;
    inputs.Miscellaneous = miscellaneous;
}

/// The number in the text size box, or the last one that was good while it holds none.
float CFittingWindow::DrawnTextSize() {
    const auto typed = ParseNumber(controls.txtTextSize.text, context_.decimalMark);
    if (typed) {
        if (std::fabs(*typed) > std::numeric_limits<float>::max()) {
            throw ArithmeticError("the text size is too large");
        }
        goodTextSize_ = *typed;
    }
    return static_cast<float>(goodTextSize_);
}

/// Puts all that a display goes by into fitting and display.
void CFittingWindow::PrepareDisplay() {
    ApplySettings();
    display.TextSize = DrawnTextSize();
    display.Decimals = context_.options.Decimals;
    display.DecimalMark = context_.decimalMark;
    display.Colors = context_.options.Colors;
    display.Multiple = Table().multiple;
    display.NewObject = fitting;
    display.DimensionList = dimensions;
    display.LabelList = labels;
    display.ViewList = views;
    HandOverFrames();
}

/// Hands the fitting over to the display, which builds and draws it. Only then are the boxes black again:
/// what is typed in them is what is shown.
void CFittingWindow::DevelopAndDisplay() {
    const HourglassWhile working(controls);
    PrepareDisplay();
    try {
        display.DisplayObject();
    } catch (const std::exception&) {
        ShowWarnings(display.Warnings);  // they came before what ended the build
        throw;
    }
    controls.pboxGraphicWindow.backColor = context_.options.Colors.DisplayBackColor;
    edited = false;
    ResetFieldColours();
    UpdateSettings(*this);
    LockType(*this);
    ShowWarnings(display.Warnings);
    (void)CheckSheetCount();
}

std::optional<ModelAndPattern> CFittingWindow::MakeModelAndPattern() {
    try {
        if (BuildFitting()) {
            return std::nullopt;
        }
        PrepareDisplay();
        ModelAndPattern made;
        made.model = MakeSurfaces(*fitting, FittingShape::Model, Table().multiple);
        const std::vector<FittingWarning> ofModel = fitting->Results().warnings;
        made.pattern = MakeSurfaces(*fitting, FittingShape::Pattern, Table().multiple);
        ShowWarnings(EachOnce(ofModel, fitting->Results().warnings));
        return made;
    } catch (const std::exception& error) {
        RefuseBuild(error);
        return std::nullopt;
    }
}

/// Shows what a fitting class had to say while it was built, in its order. A half pattern that it refused is
/// taken out of the settings, so that this is said once.
void CFittingWindow::ShowWarnings(const std::vector<FittingWarning>& warnings) {
    for (const FittingWarning& warning : warnings) {
        if (warning.messageId == HalfPatternNotApplicable) {
            settings.HalfPattern = false;
        }
        const std::string text = warning.text.empty() ? context_.Message(warning.messageId) : warning.text;
        if (warning.userError) {
            ShowUserError(context_.ui, text);
        } else {
            ShowPlain(context_.ui, text);
        }
    }
}

}  // namespace korvet
