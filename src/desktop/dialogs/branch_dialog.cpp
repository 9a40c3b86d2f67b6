#include "desktop/dialogs/branch_dialog.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/dialogs/branch_sketches.h"
#include "desktop/dialogs/painted_widget.h"
#include "desktop/dialogs/parts.h"

namespace korvet::desktop {
namespace {

constexpr QSize BranchDialogTwips = {7600, 0};

using Description = BranchAdditionalDialog::Description;
using Lines = std::span<const std::string_view>;

QString LineText(std::string_view line) {
    return QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size())).trimmed();
}

/// Lines that belong together, set off from those above.
void AddLines(QVBoxLayout& column, const Lines& lines) {
    if (lines.empty()) {
        return;
    }
    if (column.count() > 0) {
        column.addSpacing(Pixels(120));
    }
    auto* group = new QVBoxLayout;
    group->setSpacing(0);
    for (const std::string_view line : lines) {
        group->addWidget(MakeLabel(LineText(line)));
    }
    column.addLayout(group);
}

/// What a join type does, in words and as a section.
QGroupBox* MakeDescription(const Description& description, std::size_t join, const QFontMetrics& metrics) {
    const QString caption = LineText(description.caption);
    QGroupBox* const frame = MakeFrame("fraDescription_" + std::to_string(join), caption, caption);
    auto* row = new QHBoxLayout(frame);
    auto* words = new QVBoxLayout;
    AddLines(*words, description.branch);
    AddLines(*words, description.hole);
    AddLines(*words, description.heel);
    words->addStretch(1);
    row->addLayout(words);
    row->addStretch(1);
    const QSize size = BranchSectionSize(metrics);
    auto* section = new PaintedWidget(size, size, [join](QPainter& painter, const QWidget& widget) {
        PaintBranchSection(painter, widget, static_cast<BranchJoin>(join));
    });
    NameWidget(*section, "pboxDescription_" + std::to_string(join), QStringLiteral("Section: ") + caption);
    row->addWidget(section, 0, Qt::AlignTop);
    return frame;
}

/// The descriptions on one spot, which is as large as the largest of them.
QLayout* MakeDescriptions(ModelDialog& window, const BranchAdditionalDialog& dialog) {
    auto* stack = new QStackedLayout;
    for (std::size_t join = 0; join < dialog.fraDescription.size(); ++join) {
        stack->addWidget(MakeDescription(dialog.fraDescription.at(join), join, window.fontMetrics()));
    }
    window.ShowBy([stack, &dialog] {
        for (std::size_t join = 0; join < dialog.fraDescription.size(); ++join) {
            if (dialog.fraDescription.at(join).visible) {
                stack->setCurrentIndex(static_cast<int>(join));
            }
        }
    });
    return stack;
}

}  // namespace

void RunDialog(const DialogHost& host, BranchAdditionalDialog& dialog) {
    ModelDialog window(host, "frmBranchAdditional", dialog.caption, BranchDialogTwips);
    QGroupBox* const types =
        MakeFrame("fraBranchTypes", Text(dialog.fraBranchTypes), Text(dialog.fraBranchTypes));
    auto* column = new QVBoxLayout(types);
    AddOptions(*column, MakeOptions(window, "optInOrOn", dialog.optInOrOn, "IOM", {},
                                    [&](std::size_t join) { dialog.SelectJoin(join); }));
    column->addWidget(MakeCheck(window, "chkHeelCompensation", dialog.chkHeelCompensation, 'H'));
    window.Body().addWidget(types);
    window.Body().addLayout(MakeDescriptions(window, dialog), 1);
    AddOkAndCancel(window, dialog);
    RunUntilClosed(window, dialog);
}

}  // namespace korvet::desktop
