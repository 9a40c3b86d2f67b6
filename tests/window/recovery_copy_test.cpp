// What is kept of a window for the case that the program ends badly, and the window that is made of it.
#include "window/recovery_copy.h"

#include <gtest/gtest.h>

#include "frame/catalogue.h"
#include "tests/support/recording_device.h"
#include "tests/support/saved_fittings.h"
#include "window/parameter_file.h"

namespace korvet {
namespace {

class RecoveryCopyTest : public testing::Test {
  protected:
    std::unique_ptr<CFittingWindow> Restored(const CFittingWindow& window) {
        const RecoveryCopy copy = RecoveryCopy::Parse(CopyOf(window).Compose());
        auto restored = shell.Open(copy.Category());
        Restore(*restored, copy);
        return restored;
    }

    TestShell shell;
};

TEST_F(RecoveryCopyTest, EveryWindowComesBackUnbuiltRedAndUnsaved) {
    for (const CatalogueRow& row : Catalogue) {
        SCOPED_TRACE(row.category);
        const int types = static_cast<int>(row.table->pages.size());
        const auto window = shell.OpenSample(std::string(row.category), types);
        window->ClickView(0);
        ASSERT_TRUE(window->hasModel);
        window->settings.segs = 36;
        const auto restored = Restored(*window);
        EXPECT_FALSE(restored->hasModel);
        EXPECT_TRUE(HasChanges(*restored));
        EXPECT_EQ(StateOf(*restored).text, StateOf(*window).text);
        EXPECT_EQ(restored->dtype, types - 1);
        for (const TextBox& box : restored->controls.txtParameter) {
            EXPECT_EQ(box.textColor, Red);
        }
        restored->Redraw();
        ASSERT_TRUE(restored->hasModel);
        window->Redraw();
        window->Redraw();
        restored->Redraw();
        ExpectSameSurfaces(AllSurfaces(*restored), AllSurfaces(*window));
    }
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(RecoveryCopyTest, TheEmptyDrawingSaysWhatToDoUntilItIsBuilt) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(0);
    RecordingDevice area{400, 200};
    const auto restored = shell.Open("Right Cone", &area);
    Restore(*restored, CopyOf(*window));
    EXPECT_EQ(restored->views->Count(), 1U);
    EXPECT_EQ(restored->Hint(), "Type the sizes, then press the pattern button.");
    restored->Redraw();
    EXPECT_EQ(restored->Hint(), "");
    restored->ChangeBox(4, "400");
    restored->Redraw();
    EXPECT_FALSE(restored->hasModel);
    EXPECT_EQ(restored->Hint(), "") << "the picture before the refusal stands";
}

TEST_F(RecoveryCopyTest, TextsThatAreNoNumbersComeBackWithoutAWord) {
    const auto window = shell.Open("Right Cone");
    const std::vector<std::string> typed = {"1e-", "abc", "",
                                            "-",   "1,5", "\xC3\xA4\xE2\x84\xA2\xF0\x9F\x94\xA9"};
    for (std::size_t i = 0; i < typed.size(); ++i) {
        window->controls.txtParameter[i].text = typed[i];
    }
    window->controls.txtTextSize.text = "2.";
    window->comment1 = "one two";
    const auto restored = Restored(*window);
    for (std::size_t i = 0; i < typed.size(); ++i) {
        EXPECT_EQ(restored->controls.txtParameter[i].text, typed[i]);
    }
    EXPECT_EQ(restored->controls.txtTextSize.text, "2.");
    EXPECT_EQ(restored->comment1, "one two");
    EXPECT_EQ(restored->controls.caption, "Development 2");
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(RecoveryCopyTest, AllViewsComeBackToTheLastBit) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(0);
    window->ZoomX(1.0 / 3);
    window->ClickView(PatternButton);
    window->dimensions->Add({1, 1, 2, 1, 3, 4});
    const auto restored = Restored(*window);
    ASSERT_EQ(restored->views->Count(), window->views->Count());
    for (std::size_t i = 1; i <= window->views->Count(); ++i) {
        const CViewPoint& is = restored->views->Item(i);
        const CViewPoint& was = window->views->Item(i);
        EXPECT_EQ(is.Patternview, was.Patternview);
        EXPECT_EQ(is.ZoomFactor, was.ZoomFactor);
        EXPECT_EQ(is.PanX, was.PanX);
        EXPECT_EQ(is.PanY, was.PanY);
        EXPECT_EQ(is.FromXY, was.FromXY);
        EXPECT_EQ(is.AroundZ, was.AroundZ);
    }
    EXPECT_EQ(restored->dimensions->Count(), 1U);
}

TEST_F(RecoveryCopyTest, TheFileIsKnownAgainAndAskedForWhenItHasChanged) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(0);
    ASSERT_EQ(window->SaveFile("odd\nname.Kvt"), Passed);
    window->ChangeBox(3, "310");
    for (const bool changed : {true, false}) {
        const auto restored = Restored(*window);
        EXPECT_EQ(restored->controls.caption, "odd\nname.Kvt");
        restored->Redraw();
        const std::string file = shell.files.files["odd\nname.Kvt"];
        shell.files.files["odd\nname.Kvt"] += changed ? "x" : "";
        EXPECT_EQ(restored->SaveFile("odd\nname.Kvt"), changed ? Refused : Passed);
        shell.files.files["odd\nname.Kvt"] = file;
    }
    EXPECT_EQ(shell.ui.messages.size(), 1U);
}

TEST_F(RecoveryCopyTest, NoPartOfACopyIsTakenForAWholeOne) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(0);
    const std::string whole = CopyOf(*window).Compose();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_THROW(RecoveryCopy::Parse(whole.substr(0, length)), ParameterFileError) << length;
    }
    EXPECT_THROW(RecoveryCopy::Parse(whole + "x"), ParameterFileError);
    EXPECT_THROW(RecoveryCopy::Parse(std::string(whole.size(), '\0')), ParameterFileError);
    std::string lies = whole;
    lies.replace(lies.find("\n0\n\n0\n\n") + 1, 1, "99999999999999999999");
    EXPECT_THROW(RecoveryCopy::Parse(lies), ParameterFileError);
}

}  // namespace
}  // namespace korvet
