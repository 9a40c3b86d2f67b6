// Thousands of random sizes in every window of a junction: each ends in a model and a pattern or in a
// message, never in a coordinate that is no number, in an empty pattern or in a crash.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <sstream>
#include <string>

#include "core/number_text.h"
#include "tests/support/test_context.h"

namespace korvet::random_sizes_test {
namespace {

#ifdef KORVET_SANITIZE
constexpr int SizesOfAWindow = 500;
#else
constexpr int SizesOfAWindow = 10'000;
#endif

/// Types random sizes and settings into a window: mostly shapes near the sample, some far from it.
class RandomTyping {
  public:
    explicit RandomTyping(unsigned seed) : random_(seed) {}

    void TypeInto(CFittingWindow& window) {
        typed_.str("");
        for (const BoxEntry& box : window.Table().pages[static_cast<std::size_t>(window.dtype)].boxes) {
            const std::string text = SizeFor(box);
            typed_ << " box" << box.index << "=" << text;
            window.ChangeBox(static_cast<std::size_t>(box.index), text);
        }
        SetSettings(window.settings);
        ChooseOptions(window);
    }

    /// What was typed last.
    [[nodiscard]] std::string Typed() const { return typed_.str(); }

  private:
    bool Chance(double part) { return From(0, 1) < part; }
    double From(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    template <std::size_t N>
    const char* OneOf(const char* const (&texts)[N]) {
        return texts[std::uniform_int_distribution<std::size_t>(0, N - 1)(random_)];
    }

    /// Angles stay in degrees that somebody may type; lengths go by the sample, with now and then any power
    /// of ten.
    std::string SizeFor(const BoxEntry& box) {
        if (box.label.find("(degrees)") != std::string_view::npos) {
            return Chance(0.2) ? OneOf({"0", "1e-9", "0.01", "30", "45", "60", "89.999", "90", "120", "180"})
                               : NumberText(From(0, Chance(0.8) ? 120 : 200));
        }
        if (Chance(0.03)) {
            return OneOf({"0", "-50", "1e-7", "1e8", "2e9", "100", "100"});
        }
        const double sample = ParseNumber(box.sample).value();
        return NumberText(sample * std::pow(10, Chance(0.85) ? From(-0.25, 0.25) : From(-3, 3)));
    }

    void SetSettings(CPatternSettings& settings) {
        settings.segs = std::uniform_int_distribution<int>(1, 9)(random_);
        settings.HalfPattern = Chance(0.3);
        settings.Thickness = settings.ThicknessA = settings.ThicknessB = Chance(0.5) ? From(0, 8) : 0;
        settings.InOutMean = static_cast<std::int16_t>(std::uniform_int_distribution<int>(0, 2)(random_));
        settings.JoinType = Chance(0.3) ? 1 : 0;
        settings.LapSize0 = settings.LapSize1 = settings.LapSize2 = From(-5, 40);
        settings.KerfSpacing = From(0, 20);
    }

    /// One of some buttons, when there are any.
    template <typename Select>
    void ChooseOneOf(const OptionGroup& buttons, Select select) {
        if (!buttons.captions.empty()) {
            select(std::uniform_int_distribution<std::size_t>(0, buttons.captions.size() - 1)(random_));
        }
    }

    void ChooseOptions(CFittingWindow& window) {
        const FittingOptions& options = window.controls.options;
        ChooseOneOf(options.optPatternSelect, [&](std::size_t button) { window.SelectPattern(button); });
        ChooseOneOf(options.optFlushSide,
                    [&](std::size_t button) { window.SelectOption(&FittingOptions::optFlushSide, button); });
        window.branch.join = static_cast<BranchJoin>(std::uniform_int_distribution<int>(0, 2)(random_));
        window.branch.heelCompensation = Chance(0.3);
    }

    std::mt19937 random_;
    std::ostringstream typed_;
};

bool IsWholeList(const C3DPoints& list) {
    return std::all_of(list.begin(), list.end(), [](const C3DPoint& p) {
        return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
    });
}

/// A hole, where there is one, has its points too.
bool IsWhole(const CRuleSurfs& surfaces) {
    for (const CRuleSurf& surface : surfaces) {
        if (!IsPresent(surface.List1) || !IsPresent(surface.List2) || !IsWholeList(*surface.List1) ||
            !IsWholeList(*surface.List2) ||
            (surface.List3 && !(IsPresent(surface.List3) && IsWholeList(*surface.List3)))) {
            return false;
        }
    }
    return surfaces.Count() > 0;
}

class RandomSizes : public testing::TestWithParam<std::string> {};

TEST_P(RandomSizes, EndInAPatternOrAMessage) {
    TestShell shell;
    const auto pages = static_cast<int>(shell.Open(GetParam())->Table().pages.size());
    int made = 0;
    int refused = 0;
    for (int type = 1; type <= pages; ++type) {
        const auto window = shell.OpenSample(GetParam(), type);
        RandomTyping typing(static_cast<unsigned>(type));
        for (int i = 0; i < SizesOfAWindow / pages + 1; ++i) {
            typing.TypeInto(*window);
            shell.ui.messages.clear();
            const std::optional<ModelAndPattern> both = window->MakeModelAndPattern();
            if (both) {
                ASSERT_TRUE(IsWhole(both->model) && IsWhole(both->pattern)) << type << typing.Typed();
                ++made;
            } else {
                ASSERT_FALSE(shell.ui.messages.empty()) << type << typing.Typed();
                ASSERT_FALSE(window->hasModel);
                ++refused;
            }
        }
    }
    EXPECT_GT(made, SizesOfAWindow / 20);
    EXPECT_GT(refused, SizesOfAWindow / 20);
}

INSTANTIATE_TEST_SUITE_P(Breeches, RandomSizes,
                         testing::Values("Breech", "Reducing Breech",
                                         "Reducing Breech - Two Piece - Angle Top",
                                         "Reducing Breech - Two Piece - Parallel Top"));
INSTANTIATE_TEST_SUITE_P(PipesAndCones, RandomSizes,
                         testing::Values("Branch", "Pipe to Cone", "Cyclone (Cylinder)", "Cyclone (Cone)",
                                         "Cone to Pipe Elbow", "Pipe to Cone Elbow"));

}  // namespace
}  // namespace korvet::random_sizes_test
