// The further options of a branch as a fabricator sets them.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>
#include <set>

#include "desktop/dialogs/branch_sketches.h"
#include "dialogs/branch_additional_dialog.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"

namespace korvet::desktop {
namespace {

QGroupBox& Panel(const QDialog& window, int join) {
    return Child<QGroupBox>(window, qPrintable(QString("fraDescription_%1").arg(join)));
}

QStringList LinesOf(const QGroupBox& panel) {
    QStringList lines;
    for (const QLabel* label : panel.findChildren<QLabel*>()) {
        lines << label->text();
    }
    return lines;
}

bool HeelCanBeTicked(const QDialog& window) {
    return Child<QCheckBox>(window, "chkHeelCompensation").isEnabled();
}

}  // namespace

class BranchDialog : public QObject {
    Q_OBJECT
  private slots:
    void ItShowsWhatTheWindowHas() {
        BranchAdditionalDialog dialog({SetOnJoin, true});
        Run(dialog, [](QDialog& window) {
            QCOMPARE(window.objectName(), QString("frmBranchAdditional"));
            QCOMPARE(window.windowTitle(), QString("Additional Options"));
            QCOMPARE(Child<QGroupBox>(window, "fraBranchTypes").title(), QString("Branch Types"));
            QVERIFY(Child<QRadioButton>(window, "optInOrOn_1").isChecked());
            QVERIFY(Child<QCheckBox>(window, "chkHeelCompensation").isChecked());
            QVERIFY(HeelCanBeTicked(window));
            QVERIFY(Panel(window, 1).isVisible());
            QCOMPARE(Panel(window, 1).title(), QString("Set On Branch"));
            QCOMPARE(LinesOf(Panel(window, 1)).first(),
                     QString("The branch pipe is shaped to match the OUTSIDE"));
            QCOMPARE(LinesOf(Panel(window, 1)).size(), 2 + 2 + 4);
        });
        QCOMPARE(dialog.lblStatus, std::string("Cancel"));
    }

    void ATypeShowsItsDescriptionAlone() {
        BranchAdditionalDialog dialog(BranchOptions{});
        Run(dialog, [](QDialog& window) {
            const QSize size = window.size();
            const QRect place = Panel(window, MeanToMeanJoin).geometry();
            for (const int join : {0, 1, 2, 0}) {
                Press(window, qPrintable(QString("optInOrOn_%1").arg(join)));
                QApplication::processEvents();
                for (const int panel : {0, 1, 2}) {
                    QCOMPARE(Panel(window, panel).isVisible(), panel == join);
                }
                QCOMPARE(HeelCanBeTicked(window), join == 1);
                QCOMPARE(Panel(window, join).geometry(), place);
                QCOMPARE(window.size(), size);
            }
        });
    }

    void OkHandsTheChoiceOver() {
        BranchAdditionalDialog dialog(BranchOptions{});
        Run(dialog, [](QDialog& window) {
            Press(window, "optInOrOn_1");
            Press(window, "chkHeelCompensation");
            Press(window, "btnOK");
            QVERIFY(!window.isVisible());
        });
        QCOMPARE(dialog.lblStatus, std::string("OK"));
        QCOMPARE(dialog.Chosen().join, SetOnJoin);
        QVERIFY(dialog.Chosen().heelCompensation);
    }

    void CancelAndEscAndTheCloseBoxDoNot() {
        const std::array<std::function<void(QDialog&)>, 3> ways = {
            [](QDialog& window) { Press(window, "btnCancel"); },
            [](QDialog& window) { QTest::keyClick(&window, Qt::Key_Escape); },
            [](QDialog& window) { window.close(); }};
        for (const auto& way : ways) {
            BranchAdditionalDialog dialog({SetInJoin, false});
            Run(dialog, [&](QDialog& window) {
                Press(window, "optInOrOn_1");
                way(window);
                QVERIFY(!window.isVisible());
            });
            QCOMPARE(dialog.lblStatus, std::string("Cancel"));
        }
    }

    void F1OpensTheStartOfTheHelp() {
        std::vector<int> topics;
        desk_.ui.showHelp = [&](int topic) { topics.push_back(topic); };
        BranchAdditionalDialog dialog(BranchOptions{});
        Run(dialog, [](QDialog& window) {
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QTest::keyClick(&window, Qt::Key_F1);
        });
        QCOMPARE(topics, std::vector<int>{0});
    }

    void EachTypeHasASectionOfItsOwn() {
        std::set<QByteArray> pictures;
        for (const BranchJoin join : {SetInJoin, SetOnJoin, MeanToMeanJoin}) {
            const QImage picture = SectionOf(join);
            pictures.insert(
                QByteArray(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes()));
        }
        QCOMPARE(pictures.size(), 3U);
    }

    void TheSectionsAreDifferentWhereTheWallsMeet() {
        // The edge of the hole on the left stands farthest out for a branch that is set in.
        const int setIn = EdgeOfHole(SectionOf(SetInJoin));
        const int mean = EdgeOfHole(SectionOf(MeanToMeanJoin));
        const int setOn = EdgeOfHole(SectionOf(SetOnJoin));
        QVERIFY2(setIn < mean && mean < setOn,
                 qPrintable(QString("%1, %2, %3").arg(setIn).arg(mean).arg(setOn)));
        QVERIFY(std::abs((mean - setIn) - (setOn - mean)) <= 1);  // half a wall each
    }

  private:
    template <typename Dialog>
    void Run(Dialog& dialog, std::function<void(QDialog&)> user) {
        WhenShown(std::move(user));
        desk_.ui.RunModal(dialog);
    }

    static QImage SectionOf(BranchJoin join) {
        QWidget widget;
        widget.resize(BranchSectionSize(widget.fontMetrics()));
        QImage image(widget.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(widget.font());
        PaintBranchSection(painter, widget, join);
        return image;
    }

    /// Just above the inside of the trunk, below the foot of every branch: the first column from the left
    /// edge of the trunk that is white for a while.
    static int EdgeOfHole(const QImage& image) {
        const QWidget widget;
        const int unit = widget.fontMetrics().height();
        const int y = static_cast<int>(0.5 * unit + 6.4 * unit + 2.0 * unit);
        constexpr int While = 12;
        int white = 0;
        for (int x = unit; x < image.width(); ++x) {
            white = image.pixelColor(x, y) == QColor(Qt::white) ? white + 1 : 0;
            if (white == While) {
                return x - While;
            }
        }
        return -1;
    }

    DialogDesk desk_;
};

static const Registered<BranchDialog> registeredBranchDialog("BranchDialog");

}  // namespace korvet::desktop

#include "dialogs_branch_test.moc"
