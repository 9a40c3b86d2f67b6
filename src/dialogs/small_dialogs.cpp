#include "dialogs/small_dialogs.h"

#include <algorithm>

#include "core/math_module.h"
#include "core/number_text.h"

namespace korvet {
namespace {

/// Ends the modal run of a dialog with the word that its caller reads.
template <typename Dialog>
void Leave(Dialog& dialog, const char* status) {
    dialog.lblStatus = status;
    dialog.visible = false;
}

}  // namespace

void DimensionOptionsDialog::Click(std::size_t index, bool checked) {
    chkDimensions.at(index).checked = checked;
    if (checked && index == CoordGrid) {
        chkDimensions[CoordTable].checked = false;
    }
    if (checked && index == CoordTable) {
        chkDimensions[CoordGrid].checked = false;
    }
}

void DimensionOptionsDialog::ClickOK() {
    Leave(*this, "OK");
}

void DimensionOptionsDialog::ClickCancel() {
    Leave(*this, "Cancel");
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
}

void LabelDialog::ClickOK() {
    Leave(*this, "OK");
}

void LabelDialog::ClickCancel() {
    Leave(*this, "Cancel");
}

void DxfOptionsDialog::Offer(std::size_t index, bool offered) {
    chkDXFOutput.at(index).checked = offered;
    chkDXFOutput.at(index).enabled = offered;
}

void DxfOptionsDialog::ClickOK() {
    Leave(*this, "OK");
}

void DxfOptionsDialog::ClickCancel() {
    Leave(*this, "Cancel");
}

RotateDialog::RotateDialog(MessageBoxes& boxes, const COptions& options, char decimalMark, double measured)
    : boxes_(boxes), options_(options), decimalMark_(decimalMark), measured_(measured) {
    for (std::size_t i = 0; i < txtAngle.size(); ++i) {
        txtAngle[i].name = "txtAngle_" + std::to_string(i);
    }
    txtAngle[0].text = NumberText(RadToDeg(measured), decimalMark);
    txtAngle[0].enabled = txtAngle[0].tabStop = false;
    focus = txtAngle[1].name;
    SelectFieldText(txtAngle[1]);
}

FieldContext RotateDialog::Fields() {
    return {boxes_, options_, decimalMark_, focus};
}

void RotateDialog::Change(const std::string& text) {
    txtAngle[1].text = WithoutPastedBlanks(txtAngle[1].text, text);
}

void RotateDialog::ClickOK() {
    if (CheckNumber(Fields(), txtAngle[1])) {
        return;
    }
    lblStatus = "OK";
    visible = false;
}

void RotateDialog::ClickCancel() {
    lblStatus = "Cancel";
    visible = false;
}

double RotateDialog::Turn() {
    const double angle = DegToRad(FieldValue(Fields(), txtAngle[1]));
    return optMove.IsOn(ToAngle) ? angle - measured_ : angle;
}

}  // namespace korvet
