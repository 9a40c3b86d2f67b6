// The one answer of everything that can refuse.
#pragma once

namespace korvet {

/// What a check, a step of a build, a command or a dialog's OK answers that may say no to the user. A refusal
/// counts as true, so that steps chain up to the first that refuses:
///
///     if (form.CheckPositive(BaseDiameter) || form.CheckLessThan(TopDiameter, base)) {
///         return Refused;
///     }
///     return Passed;
///
/// The message has been shown by then. Plain questions, which show nothing, answer with bool.
enum [[nodiscard]] Outcome : bool{Passed = false, Refused = true};

/// The outcome of a chain of steps.
constexpr Outcome RefusedIf(bool refused) {
    return refused ? Refused : Passed;
}

}  // namespace korvet
