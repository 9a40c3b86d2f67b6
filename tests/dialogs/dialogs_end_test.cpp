#include <gtest/gtest.h>

#include "dialogs/small_dialogs.h"

namespace korvet {
namespace {

template <typename Dialog>
class SmallDialog : public ::testing::Test {};

using SmallDialogs = ::testing::Types<DimensionOptionsDialog, LabelDialog, DxfOptionsDialog>;
TYPED_TEST_SUITE(SmallDialog, SmallDialogs);

TYPED_TEST(SmallDialog, IsOpenUntilItIsAnswered) {
    const TypeParam dialog;
    EXPECT_TRUE(dialog.visible);
    EXPECT_EQ(dialog.lblStatus, "");
}

TYPED_TEST(SmallDialog, EndsWithTheWordOfItsButton) {
    TypeParam accepted;
    accepted.ClickOK();
    EXPECT_EQ(accepted.lblStatus, "OK");
    EXPECT_FALSE(accepted.visible);
    TypeParam left;
    left.ClickCancel();
    EXPECT_EQ(left.lblStatus, "Cancel");
    EXPECT_FALSE(left.visible);
}

}  // namespace
}  // namespace korvet
