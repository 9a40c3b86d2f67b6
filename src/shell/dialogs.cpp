#include "shell/dialogs.h"

#include <algorithm>

namespace korvet {

void DimensionOptionsDialog::Click(std::size_t index, bool checked) {
    chkDimensions.at(index).checked = checked;
    if (checked && index == CoordGrid) {
        chkDimensions[CoordTable].checked = false;
    }
    if (checked && index == CoordTable) {
        chkDimensions[CoordGrid].checked = false;
    }
}

void LabelDialog::Load(const CLabels& labels, bool hasLabelPoint, bool labelSeen) {
    const bool offerRemoval = hasLabelPoint && labelSeen;
    chkDisplayLabel.checked = !offerRemoval;
    lblInstructionVisible = !offerRemoval;
    lblLabelItem.clear();
    for (std::size_t i = 1; i <= std::min(labels.Count(), EditableLines + FixedLines); ++i) {
        const std::string& line = labels.Item(i).LabelString;
        if (i <= EditableLines) {
            txtLabelItem.at(i - 1).text = line;
        } else {
            lblLabelItem.push_back(line);
        }
    }
    frame3Height = static_cast<int>(EditableLines + lblLabelItem.size()) * 300 + 500;
}

void DxfOptionsDialog::Offer(std::size_t index, bool offered) {
    chkDXFOutput.at(index).checked = offered;
    chkDXFOutput.at(index).enabled = offered;
}

}  // namespace korvet
