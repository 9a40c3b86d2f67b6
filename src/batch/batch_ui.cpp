#include "batch/batch_ui.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/text_encoding.h"

namespace korvet::batch {
namespace {

bool AreEqual(const MessageBox& a, const MessageBox& b) {
    return a.text == b.text && a.title == b.title && a.detail == b.detail && a.box == b.box &&
           a.control == b.control;
}

}  // namespace

void BatchUi::BeginInput(const std::string& name) {
    name_ = name;
    messages_.clear();
    leaveOutRepeats_ = false;
    lacksSomethingAsked_ = false;
}

/// What a message says below its text, without the name of the input that the line begins with.
std::string BatchUi::FurtherDetail(const MessageBox& message) const {
    const std::string name = Printable(name_);
    std::string_view detail = message.detail;
    if (detail.starts_with(name) && (detail.size() == name.size() || detail.substr(name.size(), 2) == ": ")) {
        detail.remove_prefix(std::min(detail.size(), name.size() + 2));
    }
    return detail.empty() ? "" : ": " + std::string(detail);
}

Answer BatchUi::Show(const MessageBox& message) {
    if (message.style == InformationBox) {
        return Answer::Ok;
    }
    const auto isRepeated = [&](const MessageBox& earlier) { return AreEqual(earlier, message); };
    if (leaveOutRepeats_ && std::any_of(messages_.begin(), messages_.end(), isRepeated)) {
        return Answer::Cancel;
    }
    // A bad number is told as it is typed and told again by the build; one line says it.
    const bool saidJustNow = !messages_.empty() && isRepeated(messages_.back());
    messages_.push_back(message);
    if (!saidJustNow) {
        const std::string about = message.box ? "box " + std::to_string(*message.box) : message.control;
        PrintLine(name_ + ": " + (about.empty() ? "" : about + ": ") +
                  OnOneLine(std::string(Trimmed(message.text)) + FurtherDetail(message)));
    }
    return Answer::Cancel;
}

void BatchUi::RunModal(DxfOptionsDialog& dialog) {
    Tick(dialog.chkDXFOutput[DxfOptionsDialog::Diagonals], arguments_.diagonals);
    dialog.lblStatus = "OK";
    dialog.tellsCheck = false;  // --check tells it where it is asked for
    dialog.chkComplete.checked = dialog.chkComplete.enabled && arguments_.complete;
    if (dialog.toPlotter) {
        return;  // what a plotter can't take is asked for of the drawing file beside its plot
    }
    if (arguments_.polylines) {
        dialog.optPolyMode.selected = 1;
    }
    Tick(dialog.chkSurfaceMesh, arguments_.mesh ? std::optional(true) : std::nullopt);
    Tick(dialog.chkDXFOutput[DxfOptionsDialog::Dimensions], arguments_.dimensions);
    Tick(dialog.chkDXFOutput[DxfOptionsDialog::Label], arguments_.label);
}

/// Ticks or clears a box that the command line names. One that the dialog has greyed stays as it is, with a
/// word about it where it is to be ticked.
void BatchUi::Tick(CheckBox& box, std::optional<bool> wanted) {
    if (!wanted) {
        return;
    }
    if (box.enabled) {
        box.checked = *wanted;
    } else if (*wanted) {
        lacksSomethingAsked_ = true;
        PrintLine(name_ + ": there is nothing for \"" + box.caption + "\" in this view");
    }
}

}  // namespace korvet::batch
