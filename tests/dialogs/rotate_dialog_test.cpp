#include <gtest/gtest.h>

#include "core/constants.h"
#include "dialogs/small_dialogs.h"
#include "tests/support/test_context.h"

namespace korvet {
namespace {

TEST(RotateDialogTest, OpensOnTheMeasuredAngle) {
    const TestShell shell;
    const RotateDialog dialog(shell.context.ui, shell.context.options, shell.context.decimalMark, PI / 4);
    EXPECT_EQ(dialog.caption, "Rotate Pattern");
    EXPECT_EQ(RotateDialog::HelpContextID, 2936);
    EXPECT_EQ(dialog.place, (Place{0, 0, 5340, 1935}));
    EXPECT_EQ(dialog.lblAngle, "Current Angle:");
    EXPECT_EQ(dialog.txtAngle[0].text, "45");
    EXPECT_FALSE(dialog.txtAngle[0].enabled);
    EXPECT_TRUE(dialog.txtAngle[1].enabled);
    EXPECT_EQ(dialog.focus, "txtAngle_1");
    EXPECT_TRUE(dialog.optMove.IsOn(RotateDialog::ToAngle));
    EXPECT_EQ(dialog.optMove.captions,
              (std::vector<std::string>{"Rotate to this angle", "Rotate by this amount"}));
    EXPECT_TRUE(dialog.visible);
    EXPECT_NE(dialog.lblStatus, "OK");
}

TEST(RotateDialogTest, TheMeasuredAngleIsNotRounded) {
    TestShell shell;
    shell.context.decimalMark = ',';
    EXPECT_EQ(
        RotateDialog(shell.context.ui, shell.context.options, shell.context.decimalMark, 1).txtAngle[0].text,
        "57,2957795130824");  // 180 / 3.14159265358979
}

TEST(RotateDialogTest, OkAsksForANumber) {
    TestShell shell;
    RotateDialog dialog(shell.context.ui, shell.context.options, shell.context.decimalMark, 0);
    for (const std::string text : {"abc", "", "-"}) {
        shell.ui.messages.clear();
        dialog.Change(text);
        EXPECT_TRUE(shell.ui.messages.empty());
        dialog.focus.clear();
        dialog.ClickOK();
        ASSERT_EQ(shell.ui.messages.size(), 1U) << text;
        EXPECT_EQ(shell.ui.messages[0].text, "Not a valid number");
        EXPECT_EQ(shell.ui.messages[0].style, QuestionBox);
        EXPECT_EQ(shell.ui.messages[0].title, "Korvet Development");
        EXPECT_EQ(dialog.focus, "txtAngle_1");
        EXPECT_EQ(dialog.txtAngle[1].selectionLength, text.size());
        EXPECT_TRUE(dialog.visible);
        EXPECT_NE(dialog.lblStatus, "OK");
    }
    dialog.Change("30");
    dialog.ClickOK();
    EXPECT_FALSE(dialog.visible);
    EXPECT_EQ(dialog.lblStatus, "OK");
    EXPECT_EQ(shell.ui.messages.size(), 1U);
}

TEST(RotateDialogTest, CancelIsNotOk) {
    const TestShell shell;
    RotateDialog dialog(shell.context.ui, shell.context.options, shell.context.decimalMark, 0);
    dialog.ClickCancel();
    EXPECT_FALSE(dialog.visible);
    EXPECT_NE(dialog.lblStatus, "OK");
}

TEST(RotateDialogTest, TurnsToAnAngleOrByOne) {
    TestShell shell;
    shell.context.decimalMark = ',';
    RotateDialog dialog(shell.context.ui, shell.context.options, shell.context.decimalMark, PI / 6);
    dialog.Change("22,5");
    EXPECT_DOUBLE_EQ(dialog.Turn(), PI / 8 - PI / 6);
    dialog.optMove.selected = RotateDialog::ByAmount;
    EXPECT_DOUBLE_EQ(dialog.Turn(), PI / 8);
    dialog.Change("far");
    EXPECT_THROW((void)dialog.Turn(), ArithmeticError);
}

}  // namespace
}  // namespace korvet
