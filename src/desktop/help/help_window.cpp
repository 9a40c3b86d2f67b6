#include "desktop/help/help_window.h"

#include <QDir>
#include <QFile>
#include <utility>

#include "desktop/help/help_book.h"
#include "desktop/help/help_frame.h"

namespace korvet::desktop {

HelpWindow::HelpWindow(QString helpFile, SketchPicture sketches)
    : helpFile_(std::move(helpFile)), sketches_(std::move(sketches)) {}

HelpWindow::~HelpWindow() = default;

QString HelpWindow::FileOfProgram(const QString& folder) {
    const QString beside = QDir(folder).filePath(QStringLiteral("korvet.qch"));
    return QFile::exists(beside) ? beside
                                 : QDir::cleanPath(folder + QStringLiteral("/../share/korvet/korvet.qch"));
}

bool HelpWindow::HasHelp() const {
    // Help files are databases, which all begin with these words: any other file of the name is no help.
    const QByteArray magic = "SQLite format 3";
    QFile file(helpFile_);
    return file.open(QIODevice::ReadOnly) && file.read(magic.size()) == magic;
}

HelpBook& HelpWindow::Book() {
    if (!book_) {
        book_ = std::make_unique<HelpBook>(helpFile_);
    }
    return *book_;
}

HelpFrame& HelpWindow::Frame() {
    HelpBook& book = Book();
    if (!frame_) {
        frame_ = std::make_unique<HelpFrame>(book, sketches_);
    }
    return *frame_;
}

void HelpWindow::ShowContents() {
    Frame().ShowContents();
}

void HelpWindow::ShowSearch() {
    Frame().ShowSearch();
}

bool HelpWindow::ShowTopic(int contextId) {
    const std::optional<QUrl> page = Book().Topic(contextId);
    if (page) {
        Frame().ShowPage(*page);
    }
    return page.has_value();
}

QWidget* HelpWindow::Window() const {
    return frame_.get();
}

}  // namespace korvet::desktop
