// How often the outputs of the batch program build: never more than once an output.
#include "batch/outputs.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>

#include "tests/support/canned_fitting.h"
#include "tests/support/point_lists.h"
#include "tests/support/test_context.h"

namespace korvet::batch {
namespace {

Outcome LayOut(FittingForm& /*form*/, const FittingHandle& fitting) {
    FittingResults& canned = fitting.As<CannedFitting>().canned;
    canned.ModelSurface = Strip({{0, 0, 0, 1}, {5, 0, 0, 1}}, {{0, 3, 9, 1}, {5, 3, 9, 1}});
    canned.PatternSurface = Strip({{0, 0, 0, 1}, {70, 0, 0, 1}}, {{0, 30, 0, 1}, {70, 30, 0, 1}});
    return Passed;
}

class OutputsTest : public testing::Test {
  protected:
    OutputsTest() {
        table.newFitting = &FittingHandle::Make<CannedFitting>;
        table.buildFitting = &LayOut;
        table.checksAllFields = false;
        row.table = &table;
    }

    /// Writes all that is asked for from a new window, as one run of the program does.
    Outcome Write() {
        outputs.emplace(arguments, ui, window.emplace(context, row, nullptr), "n");
        return outputs->Write();
    }

    /// How often the fitting was made: model and pattern of the JSON are of one build.
    [[nodiscard]] int Builds() const {
        return Fitting().constructed + Fitting().developed - (arguments.json.empty() ? 0 : 1);
    }

    [[nodiscard]] const CannedFitting& Fitting() const { return window->fitting->As<CannedFitting>(); }

    std::array<std::string Arguments::*, 6> kinds = {&Arguments::json, &Arguments::save, &Arguments::dxf,
                                                     &Arguments::png,  &Arguments::svg,  &Arguments::table};
    Arguments arguments;
    BatchUi ui{arguments};
    TestShell shell;
    WindowContext context{shell.options,    ui,          shell.files,
                          shell.clock,      shell.frame, shell.patternSettingsDialog,
                          shell.printDialog};
    CatalogueRow row = *FindCategory("Right Cone");
    WindowTable table = *row.table;
    std::optional<CFittingWindow> window;
    std::optional<Outputs> outputs;
};

TEST_F(OutputsTest, NoOutputCostsMoreThanOneBuild) {
    for (const ViewChoice view : {ViewChoice::AsSaved, ViewChoice::Pattern, ViewChoice::Model}) {
        for (unsigned asked = 0; asked < 64; ++asked) {
            arguments = {};
            arguments.size = {60, 40};
            arguments.view = view;
            for (std::size_t i = 0; i < kinds.size(); ++i) {
                if ((asked >> i & 1U) != 0) {
                    arguments.*kinds.at(i) = "out" + std::to_string(i);
                }
            }
            shell.files.files.clear();
            EXPECT_EQ(Write(), Passed) << asked;
            EXPECT_TRUE(outputs->Taken() || arguments.json.empty()) << asked;
            const int count = std::popcount(asked);
            EXPECT_GE(Builds(), 1) << asked;
            EXPECT_LE(Builds(), std::max(1, count)) << asked;
            // The caller writes the JSON, which tells of several inputs.
            EXPECT_EQ(static_cast<int>(shell.files.files.size()), count - (arguments.json.empty() ? 0 : 1))
                << asked;
        }
    }
}

TEST_F(OutputsTest, SixOutputsOfAPatternBuildTwice) {
    for (const auto& kind : kinds) {
        arguments.*kind = "out" + std::to_string(&kind - kinds.data());
    }
    EXPECT_EQ(Write(), Passed);
    EXPECT_EQ(Builds(), 2) << "one for the JSON, one for all that is of the view";
}

TEST_F(OutputsTest, TheJsonIsOfOneConstructModelAndThenOneDevelopModel) {
    arguments.json = "-";
    EXPECT_EQ(Write(), Passed);
    EXPECT_EQ(Fitting().constructed, 1);
    EXPECT_EQ(Fitting().developed, 1);
    ASSERT_NE(outputs->Surfaces(), nullptr);
    EXPECT_EQ(outputs->Surfaces()->model.Item(1).List2->Item(2).z, 9);
    EXPECT_EQ(outputs->Surfaces()->pattern.Item(1).List2->Item(2).x, 70);
    ASSERT_TRUE(outputs->Labels());
}

TEST_F(OutputsTest, ARefusedWindowHasNoSurfaces) {
    table.buildFitting = [](FittingForm& form, const FittingHandle&) { return form.Refuse(NotAtThisTime); };
    arguments.json = "-";
    EXPECT_EQ(Write(), Refused);
    EXPECT_FALSE(outputs->Taken());
    EXPECT_EQ(outputs->Surfaces(), nullptr);
    EXPECT_EQ(ui.Messages().size(), 1U);
}

TEST_F(OutputsTest, AViewMayRefuseWhatTheJsonIsOf) {
    constexpr static std::array<std::string_view, 2> choices = {"one", "two"};
    table.patternSelect = choices;
    arguments.json = "-";
    EXPECT_EQ(Write(), Refused);
    EXPECT_FALSE(outputs->Taken());
    EXPECT_EQ(ui.Messages().size(), 1U);
    arguments.view = ViewChoice::Model;
    EXPECT_EQ(Write(), Passed);
}

}  // namespace
}  // namespace korvet::batch
