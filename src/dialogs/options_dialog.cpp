#include "dialogs/options_dialog.h"

#include <limits>

#include "core/checked.h"
#include "core/constants.h"
#include "core/number_text.h"
#include "dialogs/options_file.h"
#include "dialogs/paper.h"
#include "form/layer_name.h"
#include "form/messages.h"

namespace korvet {
namespace {

/// The tab on which a box stands.
int TabOf(const std::string& name) {
    if (name == "txtUserScale" || name.starts_with("txtCalibrate")) {
        return OptionsDialog::PrintTab;
    }
    if (name.starts_with("txtDXF")) {
        return OptionsDialog::DxfTab;
    }
    return name == "txtDisplayTextSize" ? OptionsDialog::DisplayTab : OptionsDialog::GeneralTab;
}

/// Whether texts of that height can be drawn, which is done in single precision. The settings file of any
/// other height would not be read again.
bool IsTextSize(double height) {
    return height > 0 && height <= static_cast<double>(std::numeric_limits<float>::max());
}

}  // namespace

OptionsDialog::OptionsDialog(COptions& options, UserInterface& ui, FileStore& files, char decimalMark,
                             int openTab)
    : tab(openTab), options_(options), ui_(ui), files_(files), decimalMark_(decimalMark) {
    Fill();
}

void OptionsDialog::Fill() {
    const auto number = [this](double value) { return NumberText(value, decimalMark_); };
    caption = GetMessage(GlobalOptionsCaption, options_.Language);
    cmbLanguage.edit.text = options_.Language;
    cmbDecimals.selected = static_cast<std::size_t>(options_.Decimals);
    CmbDefaultSegs.edit.text = std::to_string(options_.DefaultSegs);
    txtDisplayTextSize.text = number(options_.DisplayTextSize);
    for (ColorSwatch* swatch : {&pboxDisplayCutColor, &pboxDisplayFoldColor, &pboxDisplayBackColor,
                                &pboxDisplayTextColor, &pboxDisplayDimensionColor}) {
        swatch->backColor = options_.Colors.*(swatch->option);
    }
    txtDXFCutLayer.text = options_.DXFCutLayer;
    txtDXFFoldLayer.text = options_.DXFFoldLayer;
    txtDXFTextLayer.text = options_.DXFTextLayer;
    txtDXFBorderLayer.text = options_.DXFBorderLayer;
    txtDXFDimensionLayer.text = options_.DXFDimensionLayer;
    txtDXFTextSize.text = number(options_.DXFTextSize);
    optPolyMode.selected = options_.PolyMode == 1 ? 1 : 0;
    txtUserScale.text = number(options_.PrintScale);
    ClickScale(options_.PrintScale == 0 ? FitPage : options_.PrintScale == 1 ? FullSize : UserScale);
    optUnits.selected = options_.PrintUnits == Millimetres ? 0 : 1;
    ClickOrientation(options_.PrintOrientation == Portrait ? 0 : 1);
    txtCalibrate[0].text = number(options_.PrintXCalibration);
    txtCalibrate[1].text = number(options_.PrintYCalibration);
}

FieldContext OptionsDialog::Fields() {
    return {ui_, options_, decimalMark_, focus, [this](const TextBox& box) { tab = TabOf(box.name); }};
}

void OptionsDialog::ChangeNumber(TextBox& box, const std::string& text) {
    box.text = WithoutPastedBlanks(box.text, text);
    CheckFieldChange(Fields(), box);
}

void OptionsDialog::ChangeSegs(const std::string& text) {
    CmbDefaultSegs.edit.text = WithoutPastedBlanks(CmbDefaultSegs.edit.text, text);
}

void OptionsDialog::StoreColor(ColorSwatch& swatch, Color color) {
    options_.Colors.*(swatch.option) = color;
    swatch.backColor = color;
}

void OptionsDialog::ClickScale(std::size_t index) {
    optScale.selected = index;
    if (index == FitPage || index == FullSize) {
        txtUserScale.text = index == FitPage ? "0" : "1";
    }
    txtUserScale.enabled = index == UserScale;
}

void OptionsDialog::ClickOrientation(std::size_t index) {
    optOrientation.selected = index;
    const SheetPicture picture = PictureOfSheet(index == 0 ? Portrait : Landscape);
    fraOrientation.place = picture.frame;
    pboxOrient.place = picture.sheet;
    pboxOrientInner.place = picture.print;
}

void OptionsDialog::ClickCalibAssist() {
    ShowPlain(ui_,
              "A later dialog will work out the calibration factors for you. It will ask for a dimension as "
              "programmed and for the same dimension as measured on the sheet.");
}

void OptionsDialog::ClickOK() {
    if (cmbLanguage.edit.text != "English") {
        tab = GeneralTab;
        ShowPlain(ui_, cmbLanguage.edit.text + " is not yet available", {}, cmbLanguage.edit.name);
        cmbLanguage.edit.text = "English";
        return;
    }
    if (ApplyDialog()) {
        return;
    }
    lblStatus = "OK";
    visible = false;
}

void OptionsDialog::ClickSave() {
    if (ApplyDialog()) {
        return;
    }
    try {
        SaveIniFile(options_, files_, decimalMark_);
    } catch (const FileError& error) {
        ShowPlain(ui_, error.what());
        return;
    }
    ui_.Show({"Current settings saved", ExclamationBox, std::string(ProductTitle), {}, std::nullopt});
}

void OptionsDialog::ClickCancel() {
    lblStatus = "Cancel";
    visible = false;
}

Outcome OptionsDialog::ApplyDialog() {
    const FieldContext fields = Fields();
    for (TextBox* box :
         {&txtUserScale, &txtDisplayTextSize, &txtDXFTextSize, &txtCalibrate[0], &txtCalibrate[1]}) {
        if (CheckNumber(fields, *box)) {
            return Refused;
        }
    }
    if (CheckPositive(fields, txtCalibrate[0]) || CheckPositive(fields, txtCalibrate[1]) ||
        CheckSegs(fields, CmbDefaultSegs.edit)) {
        return Refused;
    }
    options_.Decimals = static_cast<std::int16_t>(cmbDecimals.selected.value_or(0));
    options_.DefaultSegs = RoundToInt(FieldValue(fields, CmbDefaultSegs.edit));
    options_.Language = cmbLanguage.edit.text;
    if (StoreLayers() || StoreTextSizes()) {
        return Refused;
    }
    options_.PolyMode = optPolyMode.IsOn(1) ? 1 : 0;
    options_.PrintScale = FieldValue(fields, txtUserScale);
    options_.PrintXCalibration = FieldValue(fields, txtCalibrate[0]);
    options_.PrintYCalibration = FieldValue(fields, txtCalibrate[1]);
    options_.PrintOrientation = optOrientation.IsOn(0) ? Portrait : Landscape;
    options_.PrintUnits = optUnits.IsOn(0) ? Millimetres : Inches;
    return Passed;
}

Outcome OptionsDialog::StoreLayers() {
    struct Layer {
        const TextBox& box;
        const char* whenEmpty;
        const TextBox& stored;
        std::string& option;
    };
    // Behind the fold layer's test the cut layer is stored once more: fold lines stay on the layer that the
    // file names.
    const std::array<Layer, 5> layers = {
        {{txtDXFCutLayer, "No layer name for Cut Lines", txtDXFCutLayer, options_.DXFCutLayer},
         {txtDXFFoldLayer, "No layer name for Fold Lines", txtDXFCutLayer, options_.DXFCutLayer},
         {txtDXFTextLayer, "No layer name for Text", txtDXFTextLayer, options_.DXFTextLayer},
         {txtDXFBorderLayer, "No layer name for Border", txtDXFBorderLayer, options_.DXFBorderLayer},
         {txtDXFDimensionLayer, "No layer name for Border", txtDXFDimensionLayer,
          options_.DXFDimensionLayer}}};
    for (const Layer& layer : layers) {
        if (Trimmed(layer.box.text).empty()) {
            return Refuse(layer.box, layer.whenEmpty);
        }
        if (!IsLayerName(layer.box.text)) {
            return Refuse(layer.box, std::string(NoLayerName));
        }
        layer.option = layer.stored.text;
    }
    return Passed;
}

Outcome OptionsDialog::StoreTextSizes() {
    const double dxfSize = FieldValue(Fields(), txtDXFTextSize);
    if (!IsTextSize(dxfSize)) {
        return Refuse(txtDXFTextSize, "DXF Text size not valid");
    }
    options_.DXFTextSize = dxfSize;
    const double displaySize = FieldValue(Fields(), txtDisplayTextSize);
    if (!IsTextSize(displaySize)) {
        return Refuse(txtDisplayTextSize, "Display Text size not valid");
    }
    options_.DisplayTextSize = displaySize;
    return Passed;
}

/// Says what is wrong with a box and puts the focus on it.
Outcome OptionsDialog::Refuse(const TextBox& box, const std::string& text) {
    tab = TabOf(box.name);
    ShowUserError(ui_, text, box.name);
    focus = box.name;
    return Refused;
}

}  // namespace korvet
