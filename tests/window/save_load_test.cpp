// What a window writes and reads of parameter files.
#include <gtest/gtest.h>

#include "frame/catalogue.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {
namespace {

class SaveLoadTest : public testing::Test {
  protected:
    /// A saved pattern of the cone's sample, as the bytes of its file.
    std::string SavedCone() {
        const auto window = shell.OpenSample("Right Cone", 2);
        window->ClickView(PatternButton);
        EXPECT_EQ(window->SaveFile("cone.Kvt"), Passed);
        return shell.files.files["cone.Kvt"];
    }

    /// The same with another text for the height, at the name of a file.
    void PutConeOfHeight(const std::string& name, const std::string& height) {
        std::string file = SavedCone();
        file.replace(file.find("\r\n250\r\n") + 2, 3, height);
        shell.files.files[name] = file;
    }

    /// The file with one line (from 1) replaced.
    static std::string WithLine(const std::string& text, int number, const std::string& line) {
        std::size_t at = 0;
        for (int i = 1; i < number; ++i) {
            at = text.find("\r\n", at) + 2;
        }
        return text.substr(0, at) + line + text.substr(text.find("\r\n", at));
    }

    TestShell shell;
};

TEST_F(SaveLoadTest, AFileComesBackAsItWasSaved) {
    const auto window = shell.OpenSample("Truncated Right Cone", 3);
    window->settings.Thickness = 2;
    window->settings.JoinAngle = 45;
    window->settings.JoinType = 1;
    window->settings.LapSize2 = 4;
    window->comment2 = "second";
    window->display.FrameRequested = true;
    window->display.MovePoint2 = {5, 6, 0, 0};
    window->display.RotationAngle = 0.25;
    window->display.LabelPoint = C3DPoint{1, 2, 0, 0};
    window->dimensions->Add({1, 1, 2, 1, 3, 4});
    window->ClickView(PatternButton);
    ASSERT_EQ(window->SaveFile("a.Kvt"), Passed);

    const auto loaded = shell.Open("Truncated Right Cone");
    ASSERT_EQ(loaded->LoadFile("a.Kvt"), Passed);
    EXPECT_EQ(loaded->dtype, 2);
    EXPECT_EQ(loaded->controls.lblDtype.caption, "3");
    EXPECT_TRUE(loaded->controls.Picture1[2].visible);
    EXPECT_FALSE(loaded->controls.Picture1[0].visible);
    EXPECT_EQ(loaded->controls.caption, "a.Kvt");
    EXPECT_EQ(loaded->comment2, "second");
    EXPECT_TRUE(loaded->hasModel);
    EXPECT_TRUE(InPatternView(*loaded->views));
    ASSERT_EQ(loaded->SaveFile("b.Kvt"), Passed);
    // The view may have been zoomed to the extents; everything else is the same.
    EXPECT_EQ(shell.files.files["a.Kvt"].substr(shell.files.files["a.Kvt"].find("End ViewPoint")),
              shell.files.files["b.Kvt"].substr(shell.files.files["b.Kvt"].find("End ViewPoint")));
}

TEST_F(SaveLoadTest, TheRotationPointOfAFileIsItsFirstMovePoint) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->display.MovePoint1 = {7, 8, 0, 0};
    window->display.RotationPoint = {1, 1, 0, 0};
    window->ClickView(PatternButton);
    ASSERT_EQ(window->SaveFile("a.Kvt"), Passed);
    const auto loaded = shell.Open("Right Cone");
    ASSERT_EQ(loaded->LoadFile("a.Kvt"), Passed);
    EXPECT_EQ(loaded->display.RotationPoint.x, 7);
    EXPECT_EQ(loaded->display.RotationPoint.y, 8);
}

TEST_F(SaveLoadTest, AFileWithoutDimensionsLeavesThoseOfTheWindow) {
    SavedCone();
    const auto window = shell.Open("Right Cone");
    window->dimensions->Add({1, 1, 2, 1, 3, 4});
    ASSERT_EQ(window->LoadFile("cone.Kvt"), Passed);
    EXPECT_EQ(window->dimensions->Count(), 1U);
}

TEST_F(SaveLoadTest, ALoadClosesTheSharedSettingsDialog) {
    SavedCone();
    shell.patternSettingsDialog.optJoinType.selected = PatternSettingsDialog::Lap;
    const auto window = shell.Open("Right Cone");
    ASSERT_EQ(window->LoadFile("cone.Kvt"), Passed);
    EXPECT_EQ(shell.patternSettingsDialog.optJoinType.selected, PatternSettingsDialog::Butt);
}

TEST_F(SaveLoadTest, AFaultyFileIsToldAndTheCaptionStays) {
    const std::string good = SavedCone();
    for (const auto& [line, text] : {std::pair{17, "0"}, {3, "3"}, {3, "-1"}, {16, "nan"}, {1, "Other"}}) {
        shell.files.files["bad.Kvt"] = WithLine(good, line, text);
        const auto window = shell.Open("Right Cone");
        const std::string caption = window->controls.caption;
        shell.ui.messages.clear();
        EXPECT_EQ(window->LoadFile("bad.Kvt"), Refused);
        ASSERT_FALSE(shell.ui.messages.empty());
        EXPECT_EQ(shell.ui.messages.back().text, "Error loading parameter file");
        EXPECT_EQ(shell.ui.messages.back().style, PlainBox);
        EXPECT_EQ(shell.ui.messages.back().detail.find("bad.Kvt: line " + std::to_string(line)), 0U);
        EXPECT_EQ(shell.ui.messages.size(), line == 1 ? 2U : 1U);
        EXPECT_EQ(shell.ui.messages.front().text,
                  line == 1 ? "Not a valid " : "Error loading parameter file");
        EXPECT_EQ(window->controls.caption, caption);
        EXPECT_EQ(window->views->Count(), 0U);
    }
}

TEST_F(SaveLoadTest, SizesThatEndTheArithmeticFailTheLoadWithTheReason) {
    std::string far = SavedCone();
    far.replace(far.find("\r\n300\r\n") + 2, 3, "1e200");
    shell.files.files["far.Kvt"] = far;
    const auto window = shell.Open("Right Cone");
    const std::string caption = window->controls.caption;
    shell.ui.messages.clear();
    EXPECT_EQ(window->LoadFile("far.Kvt"), Refused);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"Error loading parameter file"}));
    EXPECT_EQ(shell.ui.messages.at(0).detail.find("far.Kvt: "), 0U);
    EXPECT_GT(shell.ui.messages.at(0).detail.size(), std::string("far.Kvt: ").size());
    EXPECT_EQ(window->controls.caption, caption);
    EXPECT_FALSE(window->hasModel);
    EXPECT_EQ(window->controls.txtParameter[3].text, "1e200");
    EXPECT_EQ(window->SaveFile("far.Kvt"), Refused);
}

TEST_F(SaveLoadTest, ABuildThatIsRefusedIsNoFailedLoad) {
    std::string refused = SavedCone();
    refused.replace(refused.find("\r\n300\r\n") + 2, 3, "100");
    shell.files.files["refused.Kvt"] = refused;
    const auto window = shell.Open("Right Cone");
    EXPECT_EQ(window->LoadFile("refused.Kvt"), Passed);
    EXPECT_EQ(shell.ui.Texts(),
              (std::vector<std::string>{"This dimension must be less than 100", "The item has no extents"}));
    EXPECT_EQ(window->controls.caption, "refused.Kvt");
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_EQ(window->Hint(), "Type the sizes, then press the pattern button.") << "nothing is seen yet";
}

TEST_F(SaveLoadTest, AFileWithAThicknessBelowNothingIsReadAndItsBuildRefused) {
    shell.files.files["thin.Kvt"] = WithLine(SavedCone(), 16, "-2");
    const auto window = shell.Open("Right Cone");
    EXPECT_EQ(window->LoadFile("thin.Kvt"), Passed);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"This dimension must be equal to or greater than 0",
                                                          "The item has no extents"}));
    EXPECT_EQ(shell.ui.messages.at(0).title, "User Error");
    EXPECT_FALSE(shell.ui.messages.at(0).box.has_value());
    EXPECT_EQ(window->settings.Thickness, -2);
    EXPECT_EQ(window->controls.caption, "thin.Kvt");
    EXPECT_FALSE(window->hasModel);
    window->settings.Thickness = 2;
    window->Redraw();
    EXPECT_TRUE(window->hasModel);
}

TEST_F(SaveLoadTest, ABranchIsHeldToTheThicknessesOfItsTwoPipes) {
    for (const auto& [thickness, builds] : {std::pair{&CPatternSettings::Thickness, true},
                                            {&CPatternSettings::ThicknessA, false},
                                            {&CPatternSettings::ThicknessB, false}}) {
        const auto window = shell.OpenSample("Branch", 1);
        window->settings.*thickness = -1;
        shell.ui.messages.clear();
        window->ClickView(0);
        EXPECT_EQ(window->hasModel, builds);
        EXPECT_EQ(shell.ui.messages.size(), builds ? 0U : 1U);
    }
}

TEST_F(SaveLoadTest, AMessageAboutAFileHasNoCharacterThatCannotBeShown) {
    const std::string good = SavedCone();
    // Control characters, the mark that turns the writing round, and a letter at the place where a quote
    // ends.
    shell.files.files["bad\n.Kvt"] = WithLine(good, 17,
                                              "2\x01"
                                              "4\xE2\x80\xAE" +
                                                  std::string(54, 'x') + "\xC3\xBC\xC3\xBC");
    const auto window = shell.Open("Right Cone");
    EXPECT_EQ(window->LoadFile("bad\n.Kvt"), Refused);
    EXPECT_EQ(shell.ui.messages.at(0).detail, "bad?.Kvt: line 17: \"2?4?" + std::string(54, 'x') +
                                                  "\" is not a whole number from 1 to 100000");
    shell.files.files["noise.Kvt"] = std::string(
        "\x7f"
        "ELF\0\1\2\n",
        8);
    EXPECT_EQ(window->LoadFile("noise.Kvt"), Refused);
    EXPECT_EQ(shell.ui.messages.at(1).text, "Not a valid ");
    EXPECT_EQ(shell.ui.messages.at(1).detail.find("noise.Kvt: line 1: \"?ELF"), 0U);
    shell.files.files["header.Kvt"] = WithLine(good, 3, "\x7F");
    EXPECT_EQ(window->LoadFile("header.Kvt"), Refused);
    EXPECT_EQ(shell.ui.messages.at(3).text.find("Error in CKVTFile:ReadHeader  line 3: \"?\" is not "), 0U);
    EXPECT_EQ(shell.ui.messages.at(3).detail, "header.Kvt");
}

TEST_F(SaveLoadTest, ControlsFilledBeforeAFaultStayFilled) {
    const std::string good = SavedCone();
    const std::size_t rotation = good.find("Start Rotation");
    shell.files.files["bad.Kvt"] = good.substr(0, rotation);
    const auto window = shell.Open("Right Cone");
    EXPECT_EQ(window->LoadFile("bad.Kvt"), Refused);
    EXPECT_EQ(window->controls.txtParameter[3].text, "300");
    EXPECT_EQ(window->controls.txtParameter[3].textColor, Red);
}

TEST_F(SaveLoadTest, AMissingFileIsTold) {
    const auto window = shell.Open("Right Cone");
    EXPECT_EQ(window->LoadFile("none.Kvt"), Refused);
    EXPECT_EQ(shell.ui.messages.at(0).detail, "none.Kvt: no such file");
}

TEST_F(SaveLoadTest, ALoadedBoxThatIsNoNumberIsTestedLikeTyping) {
    PutConeOfHeight("bad.Kvt", "abc");
    const auto window = shell.Open("Right Cone");
    EXPECT_EQ(window->LoadFile("bad.Kvt"), Passed);
    const std::vector<std::string> expected = {"Not a valid number", "Not a valid number",
                                               "The item has no extents"};
    EXPECT_EQ(shell.ui.Texts(), expected);
    EXPECT_FALSE(window->hasModel);
}

TEST_F(SaveLoadTest, SizesOfADesktopWithAnotherDecimalMarkGetTheMarkOfThisOne) {
    PutConeOfHeight("comma.Kvt", "2,5e2");
    const auto window = shell.Open("Right Cone");
    EXPECT_EQ(window->LoadFile("comma.Kvt"), Passed);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>());
    EXPECT_TRUE(window->hasModel);
    EXPECT_EQ(window->controls.txtParameter[5].text, "2.5e2");
    // What is typed is held to this desktop's mark.
    window->ChangeBox(5, "2,5e2");
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"Not a valid number"}));
}

TEST_F(SaveLoadTest, ASizeThatIsANumberHereStaysAsItWasTyped) {
    for (const std::string text : {"250.0", "250,0", "2.5e2"}) {
        PutConeOfHeight("size.Kvt", text);
        shell.context.decimalMark = ',';
        const auto window = shell.Open("Right Cone");
        EXPECT_EQ(window->LoadFile("size.Kvt"), Passed);
        EXPECT_TRUE(window->hasModel) << text;
        EXPECT_EQ(window->controls.txtParameter[5].text, text);
        shell.context.decimalMark = '.';
    }
    for (const std::string text : {"1,234.5", "1,234,5", ",", "2,5,", "-,"}) {
        PutConeOfHeight("none.Kvt", text);
        const auto window = shell.Open("Right Cone");
        EXPECT_EQ(window->FillFromFile("none.Kvt"), Passed);
        EXPECT_EQ(window->controls.txtParameter[5].text, text) << "no number with either mark";
    }
}

TEST_F(SaveLoadTest, AFailedSaveIsToldAndLeavesCaptionAndFile) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(PatternButton);
    shell.files.files["a.Kvt"] = "old";
    shell.files.unwritable.insert("a.Kvt");
    EXPECT_EQ(window->SaveFile("a.Kvt"), Refused);
    EXPECT_EQ(shell.ui.messages.at(0).text, "a.Kvt: cannot be written");
    EXPECT_EQ(shell.ui.messages.at(0).style, PlainBox);
    EXPECT_EQ(window->controls.caption, "Development 1");
    EXPECT_EQ(shell.files.files["a.Kvt"], "old");
}

TEST_F(SaveLoadTest, EveryPageOfEveryWindowHasAValidSample) {
    int pages = 0;
    for (const CatalogueRow& row : Catalogue) {
        for (std::size_t type = 1; type <= row.table->pages.size(); ++type, ++pages) {
            const auto window = shell.OpenSample(std::string(row.category), static_cast<int>(type));
            window->ClickView(0);
            EXPECT_GT(window->display.Surfaces.Count(), 0U) << row.category << " type " << type;
            if (!window->controls.options.optPatternSelect.captions.empty()) {
                window->SelectPattern(0);
            }
            window->ClickView(PatternButton);
            EXPECT_TRUE(window->hasModel) << row.category << " type " << type;
        }
    }
    EXPECT_GT(pages, 0);
    EXPECT_TRUE(shell.ui.messages.empty());
}

}  // namespace
}  // namespace korvet
