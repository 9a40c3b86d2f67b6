// What a window says of a file that it has opened.
#include <gtest/gtest.h>

#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {
namespace {

constexpr const char* NoBranchText =
    "The thicknesses and the join of the branch are not in this file: the settings of a new window are used";

class LoadNotesTest : public testing::Test {
  protected:
    /// The bytes of the file of a branch, of two walls set on.
    std::string SavedBranch() {
        const auto window = shell.OpenSample("Branch", 1);
        window->SelectPattern(0);
        window->settings.ThicknessA = 2;
        window->settings.ThicknessB = 3;
        window->branch.join = SetOnJoin;
        window->ClickView(PatternButton);
        EXPECT_EQ(window->SaveFile("a.Kvt"), Passed);
        return shell.files.files["a.Kvt"];
    }

    /// Opens the bytes as a file.
    std::unique_ptr<CFittingWindow> Opened(const std::string& bytes) {
        shell.files.files["a.Kvt"] = bytes;
        shell.ui.messages.clear();
        auto window = shell.Open("Branch");
        opened = window->LoadFile("a.Kvt");
        return window;
    }

    TestShell shell;
    Outcome opened = Passed;
};

TEST_F(LoadNotesTest, NothingOfAWholeFile) {
    const auto window = Opened(SavedBranch());
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(window->settings.ThicknessB, 3);
    EXPECT_EQ(window->branch.join, SetOnJoin);
}

TEST_F(LoadNotesTest, ABranchFileThatEndsBehindItsCommentsIsReadAndToldOf) {
    const std::string bytes = SavedBranch();
    const std::string end = "End Comments\r\n";
    const auto fresh = shell.Open("Branch");
    for (const char* rest : {"", " \r\n"}) {
        const auto window = Opened(bytes.substr(0, bytes.find(end) + end.size()) + rest);
        EXPECT_EQ(opened, Passed);
        ASSERT_FALSE(shell.ui.messages.empty());
        EXPECT_EQ(shell.ui.messages.front().text, NoBranchText);
        EXPECT_EQ(shell.ui.messages.front().style, PlainBox);
        EXPECT_EQ(window->settings.ThicknessA, fresh->settings.ThicknessA);
        EXPECT_EQ(window->settings.ThicknessB, fresh->settings.ThicknessB);
        EXPECT_EQ(window->branch.join, fresh->branch.join);
    }
}

TEST_F(LoadNotesTest, ASectionThatBeginsAndDoesNotEndIsRefused) {
    const std::string bytes = SavedBranch();
    const std::size_t start = bytes.find("Start Branch Material");
    const std::size_t end = bytes.find("End Branch Material") + std::string("End Branch Material").size();
    for (std::size_t length = start + 1; length < end; ++length) {
        Opened(bytes.substr(0, length));
        EXPECT_EQ(opened, Refused) << bytes.substr(start, length - start);
    }
}

TEST_F(LoadNotesTest, AFileOfALaterVersionSaysSo) {
    std::string bytes = SavedBranch();
    const std::string now = "Development-3.3.3";
    const auto window = Opened(bytes.replace(bytes.find(now), now.size(), "Development-3.4.0"));
    EXPECT_EQ(opened, Passed);
    EXPECT_EQ(
        shell.ui.Texts(),
        (std::vector<std::string>{"This file is of the later version 3.4.0: what this program does not know "
                                  "of it is left out"}));
    EXPECT_TRUE(window->hasModel);
}

TEST_F(LoadNotesTest, AMessageShowsLittleOfAFile) {
    std::string bytes = SavedBranch();
    const std::string now = "Development-3.3.3";
    Opened(bytes.replace(bytes.find(now), now.size(), "Development-3.4.0" + std::string(5000, 'x')));
    ASSERT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_LT(shell.ui.messages[0].text.size(), 320U);
}

}  // namespace
}  // namespace korvet
