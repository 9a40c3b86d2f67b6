// How the dialogs are put together: rows without empty space below them, and buttons in one order.
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <limits>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/program_style.h"
#include "tests/desktop/all_dialogs.h"
#include "tests/desktop/desktop_test.h"

namespace korvet::desktop {
namespace {

/// A desktop that has its buttons the other way round, with icons on them.
class OtherWayRound final : public QProxyStyle {
  public:
    OtherWayRound() : QProxyStyle(QStringLiteral("Fusion")) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        switch (hint) {
            case SH_DialogButtonLayout:
                return QDialogButtonBox::GnomeLayout;
            case SH_DialogButtonBox_ButtonsHaveIcons:
                return 1;
            default:
                return QProxyStyle::styleHint(hint, option, widget, returned);
        }
    }
};

/// Where a button belongs in its row.
int RankOf(const QDialogButtonBox& box, QAbstractButton* button) {
    switch (box.buttonRole(button)) {
        case QDialogButtonBox::YesRole:
        case QDialogButtonBox::AcceptRole:
            return 0;
        case QDialogButtonBox::RejectRole:
            return box.standardButton(button) == QDialogButtonBox::No ? 1 : 2;
        case QDialogButtonBox::HelpRole:
            return 3;
        default:
            return 1;
    }
}

/// The buttons of a dialog's row from left to right, or from top to bottom where they stand in a column.
QList<QAbstractButton*> InOrder(const QDialogButtonBox& box) {
    QList<QAbstractButton*> buttons = box.buttons();
    buttons.removeIf([](const QAbstractButton* button) { return !button->isVisible(); });
    const bool row = box.orientation() == Qt::Horizontal;
    std::sort(buttons.begin(), buttons.end(),
              [&](const auto* a, const auto* b) { return row ? a->x() < b->x() : a->y() < b->y(); });
    return buttons;
}

void CheckButtons(const QString& dialog, const QDialog& window) {
    const auto* const box = window.findChild<QDialogButtonBox*>();
    QVERIFY2(box != nullptr, qPrintable(dialog));
    int before = 0;
    for (QAbstractButton* button : InOrder(*box)) {
        const int rank = RankOf(*box, button);
        QVERIFY2(rank >= before, qPrintable(dialog + ": " + button->text()));
        QVERIFY2(button->icon().isNull(), qPrintable(dialog + ": " + button->text()));
        before = rank;
    }
}

/// How far the lowest control of a layout stands above the end of its room.
int EmptyBelow(const QWidget& room) {
    int lowest = 0;
    for (const QObject* child : room.children()) {
        const auto* const widget = qobject_cast<const QWidget*>(child);
        if (widget != nullptr && widget->isVisible() && !widget->isWindow()) {
            lowest = std::max(lowest, widget->geometry().bottom() + 1);
        }
    }
    return room.height() - lowest;
}

}  // namespace

class DialogOrder : public QObject {
    Q_OBJECT
  private slots:
    void initTestCase() { QApplication::setStyle(new ProgramStyle(new OtherWayRound)); }
    void cleanupTestCase() { QApplication::setStyle(QStringLiteral("Fusion")); }

    void ButtonsStandInOneOrder() { ForEachDialog(CheckButtons); }

    void ButtonsOfQuestionsAndFilesToo() {
        DialogDesk desk;
        for (const int buttons : {1, 3, 4}) {  // OK and Cancel, Yes, No and Cancel, Yes and No
            WhenShown([&](QDialog& window) { CheckButtons(QString::number(buttons), window); });
            (void)desk.ui.Show({"Save the changes?", static_cast<BoxStyle>(buttons | QuestionBox), "Save"});
        }
        for (const bool save : {false, true}) {
            QString folder;
            FileChoice choice;
            choice.save = save;
            choice.filter = "Parameter files|*.Kvt";
            WhenShown([](QDialog& window) { CheckButtons("files", window); });
            (void)RunFileDialog(nullptr, choice, folder);
        }
    }

    /// The rows fill the window, and each frame is filled by its own; of tabs the largest one.
    void NothingIsEmptyBelowTheControls() {
        constexpr int BelowRows = 2;
        constexpr int InFrame = 24;  // its margin, and what it takes to end level with the next column
        int emptyTab = std::numeric_limits<int>::max();
        ForEachDialog([&](const QString& dialog, QDialog& window) {
            QTest::qWait(20);  // for the layouts
            const auto* const scroll = window.findChild<QScrollArea*>();
            if (scroll == nullptr) {
                return;
            }
            QCOMPARE(scroll->widget()->height(), scroll->viewport()->height());
            const int body = EmptyBelow(*scroll->widget());
            QVERIFY2(body <= BelowRows, qPrintable(dialog + QString::number(body)));
            for (const auto* frame : window.findChildren<QGroupBox*>()) {
                if (frame->isVisible()) {
                    const int empty = EmptyBelow(*frame);
                    QVERIFY2(empty <= InFrame, qPrintable(dialog + frame->title() + QString::number(empty)));
                }
            }
            if (const auto* tabs = window.findChild<QTabWidget*>()) {
                emptyTab = std::min(emptyTab, EmptyBelow(*tabs->currentWidget()));
            }
        });
        QVERIFY2(emptyTab <= InFrame, qPrintable(QString::number(emptyTab)));
    }
};

static const Registered<DialogOrder> registeredDialogOrder("DialogOrder");

}  // namespace korvet::desktop

#include "dialogs_order_test.moc"
