#include "platform/transfer_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QLockFile>
#include <QStandardPaths>
#include <QTemporaryFile>

#include "core/constants.h"
#include "core/file_store.h"

namespace korvet {
namespace {

/// By trying it: permissions alone don't tell of a disk that can only be read.
bool CanBeWritten(const QString& folder) {
    QTemporaryFile trial(folder + QStringLiteral("/korvet-XXXXXX.tmp"));
    return trial.open();
}

QString FolderOf(const std::string& programFolder, const std::string& userFolder) {
    QString program = QString::fromStdString(programFolder);
    if (!program.isEmpty() && CanBeWritten(program)) {
        return program;
    }
    QString user = QString::fromStdString(userFolder);
    QDir().mkpath(user);  // where that fails, so does the first file
    return user;
}

}  // namespace

TransferFolder::TransferFolder(const std::string& programFolder, const std::string& userFolder)
    : folder_(FolderOf(programFolder, userFolder).toStdString()) {}

TransferFolder TransferFolder::OfProgram() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {QCoreApplication::applicationDirPath().toStdString(),
            (data + QStringLiteral("/")).toStdString() + std::string(ProductTitle)};
}

std::string TransferFolder::PathOf(const std::string& name) const {
    return QDir::toNativeSeparators(
               QDir(QString::fromStdString(folder_)).filePath(QString::fromStdString(name)))
        .toStdString();
}

std::shared_ptr<void> TransferFolder::Hold() {
    const std::string path = PathOf("Transfer.lock");
    auto lock = std::make_shared<QLockFile>(QString::fromStdString(path));
    lock->setStaleLockTime(0);  // a plot may take an hour; only a copy that is gone gives its lock up
    if (lock->tryLock(0)) {
        return lock;
    }
    if (lock->error() != QLockFile::LockFailedError) {
        throw FileError(path + " cannot be written");
    }
    return nullptr;
}

}  // namespace korvet
