// What every fitting class shares, and the one handle by which the program drives all of them.
#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "core/rule_surf.h"

namespace korvet {

/// The messages of the catalogue that fitting classes give as warnings.
enum WarningMessage : int { HalfPatternNotApplicable = 19, SeamLapTooLarge = 25, TopLapTooLarge = 28 };

/// A warning of a fitting class: the build goes on, and the window shows the message afterwards.
struct FittingWarning {
    int messageId = 0;       ///< a WarningMessage
    bool userError = false;  ///< shown in the "User Error" box instead of a plain one
    std::string text = {};   ///< shown instead of the message where the catalogue has none for it
    bool operator==(const FittingWarning&) const = default;
};

/// The inputs that all fitting classes have. Lengths are mean dimensions in the user's unit, angles radians.
/// The window sets Dtype in its build, the rest comes from the pattern settings before every display.
struct FittingInputs {
    double LapSize0 = 0;        ///< width of the lap on the List1 side of the pattern
    double LapSize1 = 0;        ///< of the seam lap
    double LapSize2 = 0;        ///< of the lap on the List2 side
    std::int16_t JoinType = 0;  ///< laps are added when above 0
    double JoinAngle = 0;       ///< plan angle of the seam: polar angle of station 1 of a round section
    int segs = 24;              ///< straight segments of a full circle; a closed ring has segs + 1 stations
    bool HalfPattern = false;   ///< keep half of the stations
    std::int16_t Dtype = 0;     ///< the parameter group that was used, from 0
    std::int16_t Miscellaneous = 0;  ///< which piece of a compound fitting is wanted
};

/// The results of a build. A fitting of one surface fills the surfaces, one of many pieces the lists. What a
/// build does not make is absent (no List1, no surface in the list).
struct FittingResults {
    CRuleSurf ModelSurface;
    CRuleSurf PatternSurface;
    CRuleSurfs ModelSurfaceList;
    CRuleSurfs PatternSurfaceList;
    std::vector<FittingWarning> warnings;  ///< in their order; a handle starts each operation with none
};

/// A fitting class: plain members, no base class. ConstructModel builds the model from the properties;
/// DevelopModel always starts with ConstructModel and then builds the pattern. Both replace earlier results
/// and throw ArithmeticError or ListError when the properties leave no shape to build: a fitting never
/// validates.
template <typename T>
concept FittingClass = std::default_initializable<T> && std::copy_constructible<T> && requires(T fitting) {
    { fitting.inputs } -> std::same_as<FittingInputs&>;
    { fitting.results } -> std::same_as<FittingResults&>;
    { fitting.ConstructModel() } -> std::same_as<void>;
    { fitting.DevelopModel() } -> std::same_as<void>;
};

/// Lays the laps of `inputs` along a finished pattern when JoinType asks for them; true when it does.
bool AddLaps(CRuleSurf& pattern, const FittingInputs& inputs);

/// Any fitting object, shared like every object of a window. Copies of a handle drive the same fitting. The
/// fitting works on its own inputs and properties: set both, construct or develop, and then read the results.
class FittingHandle {
  public:
    template <FittingClass T>
    explicit FittingHandle(std::shared_ptr<T> fitting)
        : object_(std::move(fitting)), operations_(&OperationsOf<T>) {}

    /// A new fitting of class T.
    template <FittingClass T>
    static FittingHandle Make() {
        return FittingHandle(std::make_shared<T>());
    }

    /// Another fitting with the same inputs and properties, as far built as this one: the two share what has
    /// been built until either builds anew.
    [[nodiscard]] FittingHandle Copy() const { return {operations_->copy(object_.get()), operations_}; }

    /// The fitting itself. T must be the class that the handle was made with.
    template <FittingClass T>
    [[nodiscard]] T& As() const {
        return *static_cast<T*>(object_.get());
    }

    /// The inputs that all fittings share; lengths in the user's unit, angles in radians.
    [[nodiscard]] FittingInputs& Inputs() const { return operations_->inputs(object_.get()); }

    /// What the last operation has made, in the user's unit.
    [[nodiscard]] FittingResults& Results() const { return operations_->results(object_.get()); }

    // Both start with no warnings. Throw ArithmeticError or ListError, the results then being unusable, when
    // the inputs and properties leave no shape or a coordinate out of reach (RequireWithinReach).

    /// Builds the model in space.
    void ConstructModel() const { Run(operations_->constructModel); }

    /// Builds the model and lays it flat.
    void DevelopModel() const { Run(operations_->developModel); }

  private:
    struct Operations {
        std::shared_ptr<void> (*copy)(const void*);
        FittingInputs& (*inputs)(void*);
        FittingResults& (*results)(void*);
        void (*constructModel)(void*);
        void (*developModel)(void*);
    };

    template <typename T>
    static constexpr Operations OperationsOf = {
        [](const void* object) -> std::shared_ptr<void> {
            return std::make_shared<T>(*static_cast<const T*>(object));
        },
        [](void* object) -> FittingInputs& { return static_cast<T*>(object)->inputs; },
        [](void* object) -> FittingResults& { return static_cast<T*>(object)->results; },
        [](void* object) { static_cast<T*>(object)->ConstructModel(); },
        [](void* object) { static_cast<T*>(object)->DevelopModel(); }};

    FittingHandle(std::shared_ptr<void> object, const Operations* operations)
        : object_(std::move(object)), operations_(operations) {}

    /// Runs an operation with a fresh list of warnings, and lets no surface out that is not finite.
    void Run(void (*operation)(void*)) const;

    std::shared_ptr<void> object_;
    const Operations* operations_;
};

}  // namespace korvet
