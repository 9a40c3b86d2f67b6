#include "dialogs/small_dialogs.h"

#include <gtest/gtest.h>

namespace korvet {
namespace {

TEST(DimensionOptions, GridAndTableExcludeEachOther) {
    DimensionOptionsDialog dialog;
    using Box = DimensionOptionsDialog::Index;
    EXPECT_EQ(dialog.chkDimensions[Box::TrueLengths].caption, "True lengths ");
    dialog.Click(Box::CoordGrid, true);
    dialog.Click(Box::CoordTable, true);
    EXPECT_FALSE(dialog.chkDimensions[Box::CoordGrid].checked);
    EXPECT_TRUE(dialog.chkDimensions[Box::CoordTable].checked);
    dialog.Click(Box::CoordGrid, true);
    EXPECT_FALSE(dialog.chkDimensions[Box::CoordTable].checked);
    dialog.Click(Box::CoordTable, false);
    EXPECT_TRUE(dialog.chkDimensions[Box::CoordGrid].checked);
}

CLabels Lines(int count) {
    CLabels labels;
    for (int i = 1; i <= count; ++i) {
        labels.Add({"line " + std::to_string(i)});
    }
    return labels;
}

TEST(LabelDialogTest, OffersTheLabelUntilItHasBeenPlaced) {
    for (const auto& [hasPoint, seen] :
         {std::pair{false, false}, {true, false}, {false, true}, {true, true}}) {
        LabelDialog dialog;
        dialog.Load(Lines(5), hasPoint, seen);
        EXPECT_EQ(dialog.chkDisplayLabel.checked, !(hasPoint && seen));
        EXPECT_EQ(dialog.lblInstructionVisible, !(hasPoint && seen));
    }
}

TEST(LabelDialogTest, ShowsCommentsAndTheLinesBehindThem) {
    LabelDialog dialog;
    dialog.Load(Lines(5), false, false);
    EXPECT_EQ(dialog.txtLabelItem[0].text, "line 1");
    EXPECT_EQ(dialog.txtLabelItem[1].text, "line 2");
    EXPECT_EQ(dialog.lblLabelItem, (std::vector<std::string>{"line 3", "line 4", "line 5"}));
    dialog.Load(Lines(40), false, false);
    EXPECT_EQ(dialog.lblLabelItem.size(), LabelDialog::FixedLines);
}

TEST(DxfOptions, StartWithOutlinesAndBendLines) {
    const DxfOptionsDialog dialog;
    for (std::size_t i = 0; i < dialog.chkDXFOutput.size(); ++i) {
        EXPECT_EQ(dialog.chkDXFOutput[i].checked, i < 2);
        EXPECT_EQ(dialog.chkDXFOutput[i].enabled, i < 2);
    }
    EXPECT_TRUE(dialog.optPolyMode.IsOn(0));
}

}  // namespace
}  // namespace korvet
