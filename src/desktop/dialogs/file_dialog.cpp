#include "desktop/dialogs/file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <algorithm>

#include "desktop/bindings.h"
#include "desktop/dialogs/message_box.h"

namespace korvet::desktop {
namespace {

struct Filter {
    QString description;
    QString suffix;  ///< of "*.Kvt": "Kvt"
};

Filter FilterOf(const std::string& filter) {
    const QStringList parts = Text(filter).split(QLatin1Char('|'));
    return {parts.value(0), parts.value(1).section(QLatin1Char('.'), -1)};
}

/// The pattern that takes the suffix in any case, also where the desktop's own dialog heeds it.
QString AnyCase(const QString& suffix) {
    QString pattern = QStringLiteral("*.");
    for (const QChar letter : suffix) {
        pattern += letter.isLetter() ? QStringLiteral("[%1%2]").arg(letter.toUpper()).arg(letter.toLower())
                                     : QString(letter);
    }
    return pattern;
}

void SetUp(QFileDialog& dialog, const FileChoice& choice, const Filter& filter) {
    const bool dxf = filter.suffix.compare(QLatin1String("DXF"), Qt::CaseInsensitive) == 0;
    NameWidget(dialog, dxf ? "dlgCommonDialogDXF" : "dlgCommonDialog", Text(choice.title));
    dialog.setWindowTitle(Text(choice.title));
    dialog.setAcceptMode(choice.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(choice.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilter(filter.description + QStringLiteral(" (") + AnyCase(filter.suffix) +
                         QLatin1Char(')'));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    // The name may still get a suffix, so the question comes after the dialog.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
}

/// The name with the suffix of the filter when it was typed without it, in any case: another dot in a name is
/// part of a size more often than the start of a suffix.
QString WithSuffix(const QString& path, const QString& suffix) {
    if (suffix.isEmpty() || path.endsWith(QLatin1Char('.') + suffix, Qt::CaseInsensitive)) {
        return path;
    }
    return path + (path.endsWith(QLatin1Char('.')) ? QString() : QStringLiteral(".")) + suffix;
}

/// The first of these folders that there is. The last one has to be there.
QString FirstThatIsThere(const QStringList& folders) {
    const auto isThere = [](const QString& folder) { return !folder.isEmpty() && QDir(folder).exists(); };
    return *std::find_if(folders.begin(), folders.end() - 1, isThere);
}

/// Whether a file may be written at that path; the box that says why not, or asks.
bool MayWrite(QWidget& parent, const QString& path) {
    const QFileInfo file(path);
    QMessageBox box(&parent);
    NameWidget(box, "msgBox", parent.windowTitle());
    box.setWindowTitle(parent.windowTitle());
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    if (!file.dir().exists()) {
        box.setText(TextInLines(QStringLiteral("The folder %1 does not exist.").arg(file.absolutePath())));
        box.exec();
        return false;
    }
    if (!file.exists()) {
        return true;
    }
    box.setText(
        TextInLines(QStringLiteral("%1 already exists.\nDo you want to replace it?").arg(file.fileName())));
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

}  // namespace

std::optional<std::string> RunFileDialog(QWidget* parent, const FileChoice& choice, QString& folder) {
    const Filter filter = FilterOf(choice.filter);
    QString path = Text(choice.name);
    while (true) {
        QFileDialog dialog(parent);
        SetUp(dialog, choice, filter);
        dialog.setDirectory(FirstThatIsThere({folder, Text(choice.folder), QDir::currentPath()}));
        if (!path.isEmpty()) {
            dialog.selectFile(QFileInfo(path).fileName());
        }
        if (dialog.exec() != QDialog::Accepted) {
            return std::nullopt;
        }
        path = dialog.selectedFiles().value(0);
        if (choice.save) {
            path = WithSuffix(path, filter.suffix);
        }
        if (!choice.save || MayWrite(dialog, path)) {
            folder = QFileInfo(path).absolutePath();
            return path.toStdString();
        }
        if (QFileInfo(path).dir().exists()) {
            folder = QFileInfo(path).absolutePath();
        }
    }
}

}  // namespace korvet::desktop
