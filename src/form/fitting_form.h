// What the build function of a fitting window sees of its window: texts and choices in, messages and focus
// out.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/branch_options.h"
#include "core/imported_mesh.h"
#include "core/pattern_settings.h"
#include "core/thick_compensator.h"
#include "form/fields.h"
#include "form/messages.h"

namespace korvet {

/// The state of a window that a build function works on.
struct FormState {
    std::vector<TextBox>& boxes;  ///< txtParameter, by index
    CPatternSettings& settings;
    const FittingOptions& options;
    const BranchOptions& branch;
    std::string_view category;       ///< name of the fitting in the catalogue
    std::int16_t dtype = 0;          ///< the type that is built, from 0
    std::int16_t miscellaneous = 0;  ///< selector of the pattern
    bool patternView = false;        ///< the current view shows the pattern
    ImportedMesh mesh = {};          ///< of a window that imports one
};

/// The parameter boxes of a window, with the checks of form/fields.h on them. A box is told by its index in
/// txtParameter, for which each page has names: an enumeration in the page's namespace. Lengths are in the
/// user's unit and angles in degrees, as typed.
class FittingForm {
  public:
    FittingForm(const FieldContext& context, const FormState& state)
        : settings(state.settings),
          options(state.options),
          branch(state.branch),
          category(state.category),
          dtype(state.dtype),
          miscellaneous(state.miscellaneous),
          mesh(state.mesh),
          context_(context),
          boxes_(state.boxes),
          patternView_(state.patternView) {}

    CPatternSettings& settings;
    const FittingOptions& options;
    const BranchOptions& branch;
    const std::string_view category;
    const std::int16_t dtype;
    const std::int16_t miscellaneous;
    const ImportedMesh mesh;

    /// The number in a box. Throws ArithmeticError when it is none: check first where no sweep over all boxes
    /// has gone before.
    [[nodiscard]] double Value(int box) const { return FieldValue(context_, Box(box)); }

    /// A compensator for one kind of wall of the window's material, or of another thickness (user's unit).
    [[nodiscard]] CThickCompensator Compensator(WallShape shape) const {
        return Compensator(shape, settings.Thickness);
    }
    [[nodiscard]] CThickCompensator Compensator(WallShape shape, double thickness) const {
        return {thickness, settings.InOutMean, shape};
    }

    // The checks of form/fields.h.
    Outcome CheckNumber(int box) { return korvet::CheckNumber(context_, Box(box)); }
    Outcome CheckPositive(int box) { return korvet::CheckPositive(context_, Box(box)); }
    Outcome CheckLessThan(int box, double limit) { return korvet::CheckLessThan(context_, Box(box), limit); }
    Outcome CheckGreaterThan(int box, double limit) {
        return korvet::CheckGreaterThan(context_, Box(box), limit);
    }
    Outcome CheckAtMost(int box, double limit) { return korvet::CheckAtMost(context_, Box(box), limit); }
    Outcome CheckAtLeast(int box, double limit) { return korvet::CheckAtLeast(context_, Box(box), limit); }
    Outcome CheckNotEqual(int box, double limit) { return korvet::CheckNotEqual(context_, Box(box), limit); }
    Outcome CheckInteger(int box) { return korvet::CheckInteger(context_, Box(box)); }
    Outcome CheckRoomForThickness(int box, double value, double allowance) {
        return korvet::CheckRoomForThickness(context_, Box(box), value, allowance);
    }
    Outcome CheckBoxRoomForThickness(int box, double allowance) {
        return korvet::CheckBoxRoomForThickness(context_, Box(box), allowance);
    }
    Outcome RefuseAsNotMakeable(int box, const std::string& reason) {
        return korvet::RefuseAsNotMakeable(context_, Box(box), reason);
    }

    /// CheckPositive on several boxes in the order given, up to the first that refuses.
    template <typename... Index>
    Outcome CheckAllPositive(Index... box) {
        return RefusedIf((CheckPositive(box) || ...));
    }

    // The refusals that belong to no box: the focus stays where it is.

    /// An angle in one of the two boxes, in degrees, has no axis selected to turn about.
    Outcome CheckAxes(int topBox, int baseBox);

    /// A pattern is to be drawn and none of optPatternSelect is selected, where there is any.
    Outcome CheckPatternSelected();

    /// Says that the fitting has no half pattern with these sizes, and takes the whole one in the settings. A
    /// build does this, so that the text block that follows tells of the whole one.
    void RefuseHalfPattern();

    /// Shows a message as the user's error.
    Outcome Refuse(int messageId);

  private:
    [[nodiscard]] TextBox& Box(int box) const { return boxes_.at(static_cast<std::size_t>(box)); }

    FieldContext context_;
    std::vector<TextBox>& boxes_;
    bool patternView_;
};

}  // namespace korvet
