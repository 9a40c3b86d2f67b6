#include "desktop/dialogs/message_box.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>

#include "desktop/bindings.h"

namespace korvet::desktop {
namespace {

// A style is the sum of an icon and a set of buttons.
constexpr int ButtonBits = 7;
constexpr int IconBits = 112;
constexpr int OkCancelButtons = 1;
constexpr int YesNoCancelButtons = 3;
constexpr int YesNoButtons = 4;

QMessageBox::Icon IconOf(BoxStyle style) {
    switch (style & IconBits) {
        case CriticalBox:
            return QMessageBox::Critical;
        case QuestionBox:
            return QMessageBox::Question;
        case ExclamationBox:
            return QMessageBox::Warning;
        case InformationBox:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

void AddButtons(QMessageBox& box, BoxStyle style) {
    switch (style & ButtonBits) {
        case OkCancelButtons:
            box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
            break;
        case YesNoCancelButtons:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            break;
        case YesNoButtons:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
            box.setDefaultButton(QMessageBox::No);
            break;
        default:
            box.setStandardButtons(QMessageBox::Ok);
            break;
    }
    for (const auto button : {QMessageBox::Ok, QMessageBox::No, QMessageBox::Cancel}) {
        if ((box.standardButtons() & button) != 0) {
            box.setEscapeButton(button);  // the last of them that there is
        }
    }
}

Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::Ok;
    }
}

/// Makes the box wide enough for its title, for which the frame of a window leaves little beside its buttons.
void LeaveRoomForTitle(QMessageBox& box) {
    constexpr int FrameButtons = 160;
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + FrameButtons;
    if (auto* const grid = qobject_cast<QGridLayout*>(box.layout())) {
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

}  // namespace

QString TextInLines(QString text) {
    constexpr int LongestWord = 60;
    constexpr char16_t Break = 0x200B;
    QString lines;
    int length = 0;
    for (const QChar unit : text.replace(QLatin1String("\r\n"), QLatin1String("\n"))) {
        length = unit.isSpace() ? 0 : length + 1;
        if (length > LongestWord && !unit.isLowSurrogate() && !unit.isMark()) {
            lines += QChar(Break);
            length = 1;
        }
        lines += unit;
    }
    return lines;
}

Answer RunMessageBox(QWidget* parent, const MessageBox& message) {
    QMessageBox box(parent);
    NameWidget(box, "msgBox", Text(message.title));
    box.setWindowTitle(Text(message.title));
    box.setIcon(IconOf(message.style));
    box.setTextFormat(Qt::PlainText);
    box.setText(TextInLines(Text(message.text)));
    box.setInformativeText(TextInLines(Text(message.detail)));
    for (QLabel* label : box.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
    }
    AddButtons(box, message.style);
    LeaveRoomForTitle(box);
    return AnswerOf(box.exec());
}

}  // namespace korvet::desktop
