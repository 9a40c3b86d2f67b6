// What holds for the look of all dialogs: every control has a name of its own, no two share a mnemonic, and
// nothing is cut off. The environment variable KORVET_PICTURES names a folder that gets a picture of each.
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>

#include "tests/desktop/all_dialogs.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"
#include "tests/desktop/palettes.h"

namespace korvet::desktop {
namespace {

/// The controls that a user works with or reads, of the tab that is open.
QList<QWidget*> ShownControls(const QDialog& window) {
    QList<QWidget*> shown;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const bool control =
            qobject_cast<QAbstractButton*>(widget) != nullptr ||
            qobject_cast<QLineEdit*>(widget) != nullptr || qobject_cast<QComboBox*>(widget) != nullptr ||
            qobject_cast<QGroupBox*>(widget) != nullptr || qobject_cast<QLabel*>(widget) != nullptr;
        if (control && widget->isVisible() && !widget->objectName().startsWith("qt_") &&
            !widget->objectName().startsWith("ScrollLeft") &&
            !widget->objectName().startsWith("ScrollRight")) {
            shown.append(widget);
        }
    }
    return shown;
}

QString CaptionOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text();
    }
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) {
        return frame->title();
    }
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label != nullptr && label->buddy() != nullptr ? label->text() : QString();
}

QChar MnemonicOf(QString caption) {
    caption.remove(QStringLiteral("&&"));
    const auto at = caption.indexOf(QLatin1Char('&'));
    return at < 0 ? QChar() : caption.at(at + 1).toUpper();
}

/// What the control needs to be shown whole.
QSize Needed(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label != nullptr && label->wordWrap()) {
        return {0, label->heightForWidth(label->width())};
    }
    return widget.minimumSizeHint();
}

}  // namespace

class DialogLook : public QObject {
    Q_OBJECT
  private slots:
    void EveryControlHasANameOfItsOwn() {
        ForEachDialog([](const QString& dialog, QDialog& window) {
            QMap<QString, int> objects;
            QMap<QString, int> spoken;
            for (const QWidget* widget : ShownControls(window)) {
                const auto* label = qobject_cast<const QLabel*>(widget);
                const QString name = label != nullptr && widget->accessibleName().isEmpty()
                                         ? label->text().remove(QLatin1Char('&'))
                                         : widget->accessibleName();
                if (dialog == "message") {
                    continue;
                }
                QVERIFY2(!name.isEmpty(), qPrintable(dialog + ": " + widget->objectName()));
                QVERIFY2(++spoken[name] == 1, qPrintable(dialog + ": twice " + name));
                if (label == nullptr) {
                    QVERIFY2(++objects[widget->objectName()] == 1 && !widget->objectName().isEmpty(),
                             qPrintable(dialog + ": " + name + " is " + widget->objectName()));
                }
            }
        });
    }

    void NoTwoControlsShareAMnemonic() {
        ForEachDialog([](const QString& dialog, QDialog& window) {
            QStringList captions;
            for (const QWidget* widget : ShownControls(window)) {
                captions.append(CaptionOf(*widget));
            }
            for (const auto* tabs : window.findChildren<QTabWidget*>()) {
                for (int i = 0; i < tabs->count(); ++i) {
                    captions.append(tabs->tabText(i));
                }
            }
            QMap<QChar, QString> used;
            for (const QString& caption : captions) {
                const QChar letter = MnemonicOf(caption);
                if (!letter.isNull()) {
                    QVERIFY2(!used.contains(letter),
                             qPrintable(dialog + ": " + caption + " and " + used.value(letter)));
                    used[letter] = caption;
                }
            }
        });
    }

    void EveryBoxAndTickHasAMnemonic() {
        ForEachDialog([](const QString& dialog, QDialog& window) {
            for (const QWidget* widget : ShownControls(window)) {
                if (qobject_cast<const QRadioButton*>(widget) != nullptr ||
                    qobject_cast<const QCheckBox*>(widget) != nullptr) {
                    QVERIFY2(!MnemonicOf(CaptionOf(*widget)).isNull(),
                             qPrintable(dialog + ": " + widget->objectName()));
                }
            }
        });
    }

    void NothingIsCutOff_data() {
        QTest::addColumn<double>("fontScale");
        QTest::newRow("usual font") << 1.0;
        QTest::newRow("larger font") << 1.7;
    }

    void NothingIsCutOff() {
        QFETCH(double, fontScale);
        const QFont usual = QApplication::font();
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * fontScale);
        QApplication::setFont(font);
        ForEachDialog([](const QString& dialog, QDialog& window) {
            QApplication::processEvents();
            for (const QWidget* widget : ShownControls(window)) {
                if (qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr) {
                    continue;  // the list's box stands around it
                }
                const QSize needed = Needed(*widget);
                const QSize has = widget->size();
                const QString at = QStringLiteral("%1: %2 has %3x%4, needs %5x%6")
                                       .arg(dialog, widget->objectName() + CaptionOf(*widget))
                                       .arg(has.width())
                                       .arg(has.height())
                                       .arg(needed.width())
                                       .arg(needed.height());
                QVERIFY2(has.width() >= needed.width() && has.height() >= needed.height(), qPrintable(at));
            }
        });
        QApplication::setFont(usual);
    }

    void EveryDialogFitsOnTheScreen() {
        ForEachDialog([](const QString& dialog, QDialog& window) {
            const QSize room = window.screen()->availableSize();
            QVERIFY2(window.width() <= room.width() && window.height() <= room.height(), qPrintable(dialog));
        });
    }

    void WhatASmallScreenCannotHoldScrolls() {
        const QFont usual = QApplication::font();
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * 3);
        QApplication::setFont(font);
        int scrolled = 0;
        ForEachDialog([&](const QString& dialog, QDialog& window) {
            QApplication::processEvents();
            const auto* area = window.findChild<QScrollArea*>();
            if (area == nullptr) {
                return;
            }
            const auto isTall = [&] { return area->widget()->height() > area->viewport()->height(); };
            QTRY_VERIFY2(area->verticalScrollBar()->isVisible() == isTall(), qPrintable(dialog));
            scrolled += isTall() ? 1 : 0;
            QVERIFY2(window.height() <= window.screen()->availableSize().height(), qPrintable(dialog));
        });
        QApplication::setFont(usual);
        QVERIFY(scrolled > 0);
    }

    void AnEditCanBeReadOnADarkDesktop() {
        const QPalette usual = QApplication::palette();
        QApplication::setPalette(DarkPalette());
        DialogDesk desk;
        CPatternSettings settings;
        WhenShown([](QDialog& window) {
            auto& box = Child<QLineEdit>(window, "txtThickness");
            box.setText("4");
            const QColor text = box.palette().color(QPalette::Text);
            QVERIFY(text.red() > text.green() && text.red() > text.blue());
            QVERIFY(text.lightness() > box.palette().color(QPalette::Base).lightness() + 100);
        });
        (void)LoadDialog(desk.settings, settings, desk.ui, desk.options, '.');
        QApplication::setPalette(usual);
    }

    void PicturesAreTaken() {
        const QTemporaryDir otherwise;
        const QString folder = qEnvironmentVariable("KORVET_PICTURES", otherwise.path());
        QVERIFY(QDir().mkpath(folder));
        const auto take = [&](const QString& suffix) {
            ForEachDialog([&](const QString& dialog, QDialog& window) {
                QTest::qWait(50);  // for what scrolls to have its bars
                QVERIFY(window.grab().save(QDir(folder).filePath(dialog + suffix)));
            });
        };
        take(".png");
        const QPalette usual = QApplication::palette();
        QApplication::setPalette(DarkPalette());
        take("-dark.png");
        QApplication::setPalette(usual);
    }
};

static const Registered<DialogLook> registeredDialogLook("DialogLook", Scale::Both);

}  // namespace korvet::desktop

#include "dialogs_look_test.moc"
