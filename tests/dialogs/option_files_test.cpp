// What a parameter file says of option buttons, and what a window makes of lines that are missing, swapped or
// strange.
#include <gtest/gtest.h>

#include "fittings/transitions/transition.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {
namespace {

class OptionFilesTest : public testing::Test {
  protected:
    /// A transition whose top is tilted by 20 degrees and its base by 10, about the axes that four lines
    /// name.
    std::unique_ptr<CFittingWindow> Tilted(const std::string& lines) {
        const auto sample = shell.OpenSample("Rectangle to Round", 2);
        sample->ClickView(0);
        EXPECT_EQ(sample->SaveFile("tilted.Kvt"), Passed);
        return Loaded("Rectangle to Round", "Angle", lines);
    }

    /// The last saved file with the lines of one section replaced, in a new window.
    std::unique_ptr<CFittingWindow> Loaded(const std::string& category, const std::string& section,
                                           const std::string& lines) {
        std::string& file = shell.files.files["tilted.Kvt"];
        const std::string start = "Start " + section + " Option Buttons\r\n";
        const std::size_t from = file.find(start) + start.size();
        file.replace(from, file.find("End " + section, from) - from, lines);
        auto window = shell.Open(category);
        EXPECT_EQ(window->LoadFile("tilted.Kvt"), Passed);
        return window;
    }

    static double TopTiltX(CFittingWindow& window) { return window.fitting->As<CTransition>().TopTiltX; }
    static double BaseTiltX(CFittingWindow& window) { return window.fitting->As<CTransition>().BaseTiltX; }

    TestShell shell;
};

TEST_F(OptionFilesTest, EachAxisComesFromItsLine) {
    const auto window = Tilted("True\r\nFalse\r\nFalse\r\nTrue\r\n");
    ASSERT_TRUE(window->hasModel);
    EXPECT_DOUBLE_EQ(TopTiltX(*window), 20 * 3.14159265358979 / 180);
    EXPECT_EQ(BaseTiltX(*window), 0);
    const auto swapped = Tilted("False\r\nTrue\r\nTrue\r\nFalse\r\n");
    ASSERT_TRUE(swapped->hasModel);
    EXPECT_EQ(TopTiltX(*swapped), 0);
    EXPECT_DOUBLE_EQ(BaseTiltX(*swapped), 10 * 3.14159265358979 / 180);
}

TEST_F(OptionFilesTest, NoAxisIsNoAxis) {
    const auto window = Tilted("False\r\nFalse\r\nFalse\r\nFalse\r\n");
    EXPECT_FALSE(window->controls.options.optTopAngle.selected);
    EXPECT_FALSE(window->controls.options.optBaseAngle.selected);
    EXPECT_FALSE(window->hasModel);
    ASSERT_FALSE(shell.ui.messages.empty());
    EXPECT_EQ(shell.ui.messages.front().text, "X or Y axis of rotation must be selected");
}

TEST_F(OptionFilesTest, MissingAndStrangeLinesLeaveTheAxesOfTheWindow) {
    for (const char* lines : {"", "False\r\n", "perhaps\r\nTrue\r\nTrue\r\nTrue\r\n"}) {
        const auto window = Tilted(lines);
        EXPECT_TRUE(window->controls.options.optTopAngle.IsOn(1)) << lines;
        EXPECT_TRUE(window->hasModel) << lines;
        EXPECT_EQ(TopTiltX(*window), 0) << lines;
    }
}

TEST_F(OptionFilesTest, TheChosenPatternComesBack) {
    for (const std::size_t choice : {std::size_t{0}, std::size_t{1}}) {
        for (const char* category : {"Branch", "Segmented Bend"}) {
            const auto window = shell.OpenSample(category, 1);
            window->SelectPattern(choice);
            window->ClickView(PatternButton);
            ASSERT_EQ(window->SaveFile("chosen.Kvt"), Passed);
            const auto loaded = shell.Open(category);
            ASSERT_EQ(loaded->LoadFile("chosen.Kvt"), Passed);
            EXPECT_TRUE(loaded->controls.options.optPatternSelect.IsOn(choice)) << category;
            EXPECT_EQ(loaded->miscellaneous, static_cast<std::int16_t>(choice + 1)) << category;
            ASSERT_EQ(loaded->display.Surfaces.Count(), window->display.Surfaces.Count()) << category;
            EXPECT_EQ(loaded->display.Surfaces.Item(1).List1->Item(2).x,
                      window->display.Surfaces.Item(1).List1->Item(2).x)
                << category;
        }
    }
}

TEST_F(OptionFilesTest, APatternOfAFileWithoutAChoiceIsAskedFor) {
    const auto window = shell.OpenSample("Branch", 1);
    window->SelectPattern(1);
    window->ClickView(PatternButton);
    ASSERT_EQ(window->SaveFile("tilted.Kvt"), Passed);
    const auto loaded = Loaded("Branch", "Pattern Select", "False\r\nFalse\r\n");
    EXPECT_FALSE(loaded->hasModel);
    ASSERT_FALSE(shell.ui.messages.empty());
    EXPECT_EQ(shell.ui.messages.front().text, "A pattern must be selected");
    EXPECT_EQ(loaded->controls.txtParameter[0].text, window->controls.txtParameter[0].text);
}

class TableFileTest : public testing::Test {
  protected:
    /// Writes the table of a cone in this view over an older one.
    Outcome Write(int view) {
        window = shell.OpenSample("Right Cone", 2);
        window->ClickView(view);
        shell.files.files["Coordinates.txt"] = "older";
        return window->WriteTable("Coordinates.txt");
    }

    [[nodiscard]] const std::string& File() { return shell.files.files["Coordinates.txt"]; }

    TestShell shell;
    std::unique_ptr<CFittingWindow> window;
};

TEST_F(TableFileTest, IsWrittenOfAPattern) {
    EXPECT_EQ(Write(PatternButton), Passed);
    EXPECT_EQ(File().find("Korvet Development\r\nSuface No: 1\r\n\r\nNumber"), 0U);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(TableFileTest, IsRefusedInAModelView) {
    EXPECT_EQ(Write(0), Refused);
    EXPECT_EQ(shell.ui.Texts().size(), 1U);
    EXPECT_EQ(File(), "older");
}

TEST_F(TableFileTest, FailsWithItsMessageAndLeavesTheOlderOne) {
    shell.files.unwritable.insert("Coordinates.txt");
    EXPECT_EQ(Write(PatternButton), Refused);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"Error in COptions:WriteTableFile"}));
    EXPECT_EQ(File(), "older");
}

TEST_F(TableFileTest, OfALineThatIsTooShortIsNotBegun) {
    ASSERT_EQ(Write(PatternButton), Passed);
    shell.files.files["Coordinates.txt"] = "older";
    // The base loses its stations behind the first.
    C3DPoints& base = *window->display.Surfaces.Item(1).List2;
    for (std::size_t i = 2; i <= base.Count(); ++i) {
        base.Item(i).Flag = PlainStation;
    }
    EXPECT_EQ(window->WriteTable("Coordinates.txt"), Refused);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"Error in COptions:WriteTableFile"}));
    EXPECT_EQ(File(), "older");
}

}  // namespace
}  // namespace korvet
