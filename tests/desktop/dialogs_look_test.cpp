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
#include <map>

#include "desktop/dialogs/about_dialogs.h"
#include "dialogs/branch_additional_dialog.h"
#include "dialogs/options_dialog.h"
#include "dialogs/small_dialogs.h"
#include "frame/about.h"
#include "printing/printers_dialog.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"
#include "tests/desktop/palettes.h"

namespace korvet::desktop {
namespace {

CPatternSettings AllOffered() {
    CPatternSettings settings;
    settings.LapEnable = AllLaps;
    settings.JoinType = 1;
    settings.LapSize0 = settings.LapSize1 = settings.LapSize2 = 12.5;
    settings.KerfEnabled = settings.TemplateTypeEnabled = true;
    return settings;
}

CLabels LongBlock() {
    CLabels labels;
    for (int i = 1; i <= 9; ++i) {
        labels.Add({"Diameter at the base of the cone = " + std::to_string(100 * i)});
    }
    return labels;
}

/// A way to show each dialog, under the name of its picture.
std::map<QString, std::function<void(DialogDesk&)>> AllDialogs() {
    std::map<QString, std::function<void(DialogDesk&)>> all;
    all["settings"] = [](DialogDesk& desk) {
        CPatternSettings settings = AllOffered();
        (void)LoadDialog(desk.settings, settings, desk.ui, desk.options, '.');
    };
    all["settings-grey"] = [](DialogDesk& desk) {
        CPatternSettings settings;
        settings.HalfPatternDisable = settings.JoinAngleDisable = settings.MaterialDisable = true;
        (void)LoadDialog(desk.settings, settings, desk.ui, desk.options, '.');
    };
    all["settings-branch"] = [](DialogDesk& desk) {
        CPatternSettings settings = AllOffered();
        settings.BranchMaterialEnable = true;
        (void)LoadDialog(desk.settings, settings, desk.ui, desk.options, '.');
    };
    for (int tab = OptionsDialog::GeneralTab; tab <= OptionsDialog::DxfTab; ++tab) {
        all[QStringLiteral("options-%1").arg(tab)] = [tab](DialogDesk& desk) {
            OptionsDialog dialog(desk.options, desk.ui, desk.files, '.', tab);
            desk.ui.RunModal(dialog);
        };
    }
    all["dimension-options"] = [](DialogDesk& desk) {
        DimensionOptionsDialog dialog;
        desk.ui.RunModal(dialog);
    };
    all["label"] = [](DialogDesk& desk) {
        LabelDialog dialog;
        dialog.Load(LongBlock(), false, false);
        desk.ui.RunModal(dialog);
    };
    all["export"] = [](DialogDesk& desk) {
        DxfOptionsDialog dialog;
        dialog.caption = "Exporting /home/user/flat.DXF";
        dialog.lblExportType = "Exporting unfolded pattern";
        desk.ui.RunModal(dialog);
    };
    all["export-plotter"] = [](DialogDesk& desk) {
        DxfOptionsDialog dialog;
        dialog.caption = "Exporting /home/user/.local/share/Korvet Development/Transfer.plt";
        dialog.lblExportType = "Exporting unfolded pattern";
        dialog.toPlotter = dialog.choosesPort = true;
        dialog.optPolyMode.enabled = false;
        dialog.cmbPlotterPort.list = {"/dev/ttyS0", "/dev/ttyS1"};
        dialog.cmbPlotterPort.edit.text = "/dev/serial/by-id/usb-1a86_USB2.0-Serial-if00-port0";
        desk.ui.RunModal(dialog);
    };
    all["rotate"] = [](DialogDesk& desk) {
        RotateDialog dialog(desk.context.ui, desk.context.options, desk.context.decimalMark, 0.5);
        desk.ui.RunModal(dialog);
    };
    for (std::size_t join = 0; join < 3; ++join) {
        all[QStringLiteral("branch-%1").arg(join)] = [join](DialogDesk& desk) {
            BranchAdditionalDialog dialog({static_cast<BranchJoin>(join), true});
            desk.ui.RunModal(dialog);
        };
    }
    for (const auto& [name, use] :
         {std::pair{"print-setup", PrintersUse::Setup}, {"print", PrintersUse::Print}}) {
        all[QString::fromLatin1(name)] = [use = use](DialogDesk& desk) {
            desk.printDialog.TakePdf();
            desk.printDialog.PrintScale = 1;
            PrintersDialog dialog(use, desk.printDialog, desk.ui, desk.options, '.');
            desk.ui.RunModal(dialog);
        };
    }
    all["splash"] = [](DialogDesk& desk) { RunDialog(desk.ui.Host(), SplashDialog()); };
    all["about"] = [](DialogDesk& desk) { RunDialog(desk.ui.Host(), AboutDialog()); };
    all["disclaimer"] = [](DialogDesk& desk) { RunDialog(desk.ui.Host(), DisclaimerDialog()); };
    all["message"] = [](DialogDesk& desk) {
        desk.ui.Show({"This dimension must be greater than 0", ExclamationBox, "User Error"});
    };
    return all;
}

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
        ForEach([](const QString& dialog, QDialog& window) {
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
        ForEach([](const QString& dialog, QDialog& window) {
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
        ForEach([](const QString& dialog, QDialog& window) {
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
        ForEach([](const QString& dialog, QDialog& window) {
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
        ForEach([](const QString& dialog, QDialog& window) {
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
        ForEach([&](const QString& dialog, QDialog& window) {
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
            ForEach([&](const QString& dialog, QDialog& window) {
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

  private:
    static void ForEach(const std::function<void(const QString&, QDialog&)>& look) {
        DialogDesk desk;
        for (const auto& [name, show] : AllDialogs()) {
            bool seen = false;
            const QString dialog = name;
            WhenShown([&](QDialog& window) {
                seen = true;
                look(dialog, window);
            });
            show(desk);
            QVERIFY2(seen, qPrintable(dialog));
        }
    }
};

static const Registered<DialogLook> registeredDialogLook("DialogLook", Scale::Both);

}  // namespace korvet::desktop

#include "dialogs_look_test.moc"
