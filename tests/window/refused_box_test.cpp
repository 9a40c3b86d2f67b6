// Which page of a window is shown when a box is refused.
#include <gtest/gtest.h>

#include "tests/support/test_context.h"

namespace korvet {
namespace {

/// The parameter pages that can be seen, from 0.
std::vector<std::size_t> ShownPages(const CFittingWindow& window) {
    std::vector<std::size_t> shown;
    for (std::size_t i = 0; i < window.controls.Picture1.size(); ++i) {
        if (window.controls.Picture1[i].visible) {
            EXPECT_TRUE(window.controls.Picture1[i].enabled);
            shown.push_back(i);
        }
    }
    return shown;
}

TEST(RefusedBox, StandsOnThePageThatIsShownAndTheTypeIsTheSame) {
    using Pages = std::vector<std::size_t>;
    TestShell shell;
    const auto window = shell.OpenSample("Truncated Right Cone", 1);
    const int elsewhere = window->Table().pages[2].boxes.front().index;
    window->controls.txtParameter[static_cast<std::size_t>(elsewhere)].text = "word";
    Pages underMessage;
    shell.ui.onShow = [&](const MessageBox& message) {
        EXPECT_EQ(message.box, elsewhere);
        underMessage = ShownPages(*window);
    };
    window->ClickView(0);
    EXPECT_EQ(underMessage, Pages{2});
    EXPECT_EQ(ShownPages(*window), Pages{2});
    EXPECT_EQ(window->dtype, 0);
    EXPECT_EQ(window->controls.focus, "txtParameter_" + std::to_string(elsewhere));
    EXPECT_FALSE(window->hasModel);
    // It is mended where it stands, and the build is of the type as before, which comes back.
    window->ChangeBox(static_cast<std::size_t>(elsewhere), "0");
    window->ClickView(0);
    EXPECT_EQ(ShownPages(*window), Pages{0});
    EXPECT_TRUE(window->hasModel);
    EXPECT_EQ(shell.ui.messages.size(), 1U);
}

TEST(RefusedBox, AStepOfTheTypeLeavesItsPage) {
    TestShell shell;
    const auto window = shell.OpenSample("Truncated Right Cone", 1);
    window->controls.txtParameter[static_cast<std::size_t>(window->Table().pages[3].boxes.front().index)]
        .text = "";
    window->ClickView(0);
    EXPECT_EQ(ShownPages(*window), std::vector<std::size_t>{3});
    window->ClickPoint(0);
    EXPECT_EQ(ShownPages(*window), std::vector<std::size_t>{1});
    EXPECT_EQ(window->dtype, 1);
}

TEST(RefusedBox, OfALoadedFileIsShownToo) {
    TestShell shell;
    const auto saved = shell.OpenSample("Truncated Right Cone", 1);
    saved->ClickView(0);
    ASSERT_EQ(saved->SaveFile("good.Kvt"), Passed);
    std::string& text = shell.files.files["good.Kvt"];
    const int elsewhere = saved->Table().pages[4].boxes.back().index;
    std::size_t at = text.find("Start Standard TextBoxes");
    for (int i = 0; i <= elsewhere; ++i) {
        at = text.find("\r\n", at) + 2;
    }
    text.replace(at, text.find("\r\n", at) - at, "word");
    const auto window = shell.Open("Truncated Right Cone");
    std::vector<std::vector<std::size_t>> underMessages;
    shell.ui.onShow = [&](const MessageBox& message) {
        if (message.box) {
            underMessages.push_back(ShownPages(*window));
        }
    };
    EXPECT_EQ(window->LoadFile("good.Kvt"), Passed);
    EXPECT_EQ(underMessages,
              (std::vector<std::vector<std::size_t>>{{4}, {4}}));  // as it is read, as it is built
    EXPECT_EQ(ShownPages(*window), std::vector<std::size_t>{4});
}

}  // namespace
}  // namespace korvet
