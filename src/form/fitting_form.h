// What the build function of a fitting window sees of its window: texts in, messages and focus out.
#pragma once

#include <cstdint>
#include <vector>

#include "core/pattern_settings.h"
#include "core/thick_compensator.h"
#include "form/fields.h"

namespace korvet {

/// The parameter boxes of a window by their index in txtParameter, with the checks of form/fields.h on them.
class FittingForm {
  public:
    FittingForm(FieldContext context, std::vector<TextBox>& boxes, CPatternSettings& patternSettings,
                std::int16_t type)
        : settings(patternSettings), dtype(type), context_(context), boxes_(boxes) {}

    CPatternSettings& settings;
    const std::int16_t dtype;  ///< the type that is shown, from 0

    /// The number in a box. Throws ArithmeticError when it is none: check first where no sweep over all boxes
    /// has gone before.
    [[nodiscard]] double Value(int box) const { return FieldValue(context_, Box(box)); }

    /// A compensator for the window's material and one kind of wall.
    [[nodiscard]] CThickCompensator Compensator(WallShape shape) const {
        return {settings.Thickness, settings.InOutMean, shape};
    }

    // The checks: true after a failure, with the message shown and the focus on the box.
    bool CheckNumber(int box) { return !IsNumericField(context_, Box(box)); }
    bool CheckPositive(int box) { return korvet::CheckPositive(context_, Box(box)); }
    bool CheckLessThan(int box, double limit) { return korvet::CheckLessThan(context_, Box(box), limit); }
    bool CheckGreaterThan(int box, double limit) {
        return korvet::CheckGreaterThan(context_, Box(box), limit);
    }
    bool CheckAtMost(int box, double limit) { return korvet::CheckAtMost(context_, Box(box), limit); }
    bool CheckAtLeast(int box, double limit) { return korvet::CheckAtLeast(context_, Box(box), limit); }
    bool CheckRoomForThickness(int box, double value, double allowance) {
        return korvet::CheckRoomForThickness(context_, Box(box), value, allowance);
    }

    /// CheckPositive on several boxes in the order given; stops at the first failure.
    template <typename... Index>
    bool CheckAllPositive(Index... box) {
        return (CheckPositive(box) || ...);
    }

  private:
    [[nodiscard]] TextBox& Box(int box) const { return boxes_.at(static_cast<std::size_t>(box)); }

    FieldContext context_;
    std::vector<TextBox>& boxes_;
};

}  // namespace korvet
