#include "desktop/dialogs/about_dialogs.h"

#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>
#include <array>

#include "core/constants.h"
#include "desktop/bindings.h"
#include "desktop/dialogs/model_dialog.h"
#include "desktop/dialogs/painted_widget.h"
#include "desktop/dialogs/parts.h"
#include "desktop/dialogs/sketches.h"
#include "frame/about.h"

namespace korvet::desktop {
namespace {

constexpr QSize AboutSize = {5600, 0};       // twips
constexpr QSize DisclaimerSize = {5600, 0};  // twips
constexpr QSize LogoSize = {Pixels(2400), Pixels(1000)};

/// Text that the user can select and copy, `larger` times the usual size.
QLabel* AddText(ModelDialog& window, const std::string& controlName, const QString& text, double larger = 1) {
    QLabel* const label = MakeLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    if (larger > 1) {
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * larger);
        font.setBold(true);
        label->setFont(font);
    }
    NameWidget(*label, controlName, text);
    window.Body().addWidget(label);
    return label;
}

/// A window that only tells something: every way out closes it.
void RunUntilLeft(ModelDialog& window, bool& open) {
    window.Run({[&open] { return open; }, [&open] { open = false; }});
}

void AddCloseButton(ModelDialog& window, bool& open, const std::string& controlName,
                    const std::string& text) {
    QString name = Text(text);
    name.remove(QLatin1Char('&'));
    QPushButton& button =
        window.AddButton(ModelDialog::Role::Accept, controlName, Text(text), name, [&open] { open = false; });
    button.setFocus();  // some desktops put another button first
}

std::string SystemInformation() {
    const std::array lines = {
        QStringLiteral("System: ") + QSysInfo::prettyProductName(),
        QStringLiteral("Kernel: ") + QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion(),
        QStringLiteral("Processor: ") + QSysInfo::currentCpuArchitecture(),
        QStringLiteral("Built for: ") + QSysInfo::buildAbi(),
        QStringLiteral("Computer: ") + QSysInfo::machineHostName()};
    QString text;
    for (const QString& line : lines) {
        text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + line;
    }
    return text.toStdString();
}

}  // namespace

void RunDialog(const DialogHost& host, const SplashDialog& dialog) {
    bool open = true;
    ModelDialog window(host, "frmSplash", dialog.caption, {dialog.place.width, dialog.place.height});
    auto* logo = new PaintedWidget(LogoSize, LogoSize, PaintConeAndPattern);
    logo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    NameWidget(*logo, "pboxLogo", QStringLiteral("A cone beside its flat pattern"));
    window.Body().addWidget(logo, 1);
    constexpr double TitleSize = 2.2;
    AddText(window, "lblTitle", Text(dialog.caption), TitleSize);
    AddText(window, "lblVersion", Text(dialog.lblVersion));
    for (std::size_t i = 0; i < dialog.authorship.size(); ++i) {
        AddText(window, "lblAuthorship_" + std::to_string(i), Text(dialog.authorship.at(i)));
    }
    AddCloseButton(window, open, "btnContinue", dialog.btnContinue);
    window.AddButton(ModelDialog::Role::Other, "btnAbout", Text(dialog.btnAbout), QStringLiteral("About"),
                     [&] {
                         DialogHost onTop = host;
                         onTop.parent = &window;
                         RunDialog(onTop, AboutDialog());
                     });
    RunUntilLeft(window, open);
}

void RunDialog(const DialogHost& host, const AboutDialog& dialog) {
    constexpr double TitleSize = 1.6;
    bool open = true;
    ModelDialog window(host, "frmAbout", dialog.caption, AboutSize);
    AddText(window, "lblTitle", Text(dialog.title), TitleSize);
    AddText(window, "lblVersion", Text(dialog.version));
    AddText(window, "lblCadVersion", Text(dialog.cadVersion));
    AddText(window, "lblLicence", Text(dialog.licence));
    std::size_t line = 0;
    for (const std::string& library : dialog.libraries) {
        AddText(window, "lblLibrary_" + std::to_string(line++), Text(library));
    }
    AddText(window, "lblLibrary_" + std::to_string(line),
            QStringLiteral("Running on Qt %1").arg(QString::fromLatin1(qVersion())));
    AddCloseButton(window, open, "btnOK", "OK");
    window.AddButton(ModelDialog::Role::Other, "cmdSysInfo", QStringLiteral("&System Info..."),
                     QStringLiteral("System information"), [&] {
                         host.ui.Show({SystemInformation(), InformationBox, std::string(ProductTitle)});
                     });
    RunUntilLeft(window, open);
}

void RunDialog(const DialogHost& host, const DisclaimerDialog& dialog) {
    bool open = true;
    ModelDialog window(host, "frmDisclaimer", dialog.caption, DisclaimerSize);
    AddText(window, "lblDisclaimer", Text(dialog.text));
    AddCloseButton(window, open, "btnClose", dialog.btnClose);
    RunUntilLeft(window, open);
}

}  // namespace korvet::desktop
