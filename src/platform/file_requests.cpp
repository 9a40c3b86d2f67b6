#include "platform/file_requests.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>
#include <algorithm>
#include <utility>

namespace korvet {
namespace {

/// What a program that is at work says to whoever calls. Only then are files sent: one that hangs never gets
/// any, so that no file is opened twice.
constexpr const char* Greeting = "ready";

constexpr int LockPatience = 10'000;  ///< ms

bool HandOverTo(const QString& socketName, const QStringList& files, int patience) {
    QLocalSocket socket;
    socket.connectToServer(socketName);
    if (!socket.waitForConnected(patience)) {
        if (socket.error() == QLocalSocket::ConnectionRefusedError) {
            QLocalServer::removeServer(socketName);  // left by a program that was killed
        }
        return false;
    }
    if (!socket.waitForReadyRead(patience)) {
        return false;
    }
    QByteArray message;
    QDataStream stream(&message, QIODevice::WriteOnly);
    stream << files;
    if (socket.write(message) != message.size()) {
        return false;
    }
    socket.disconnectFromServer();  // once all is written
    return socket.state() == QLocalSocket::UnconnectedState || socket.waitForDisconnected(patience);
}

}  // namespace

QString RequestFolder() {
    QString screen = qEnvironmentVariable("WAYLAND_DISPLAY", qEnvironmentVariable("DISPLAY"));
    screen.replace('/', '_');
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/korvet-") +
           screen;
}

FileRequests::FileRequests(const QString& folder) {
    QDir().mkpath(folder);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (QLocalSocket* sender = server_.nextPendingConnection()) {
            Greet(*sender);
        }
    });
    const QString name =
        QDir(folder).filePath(QStringLiteral("%1.socket").arg(QCoreApplication::applicationPid()));
    QLocalServer::removeServer(name);  // of a program that was killed, whose number has come round
    server_.listen(name);
}

void FileRequests::Greet(QLocalSocket& sender) {
    QObject::connect(&sender, &QLocalSocket::disconnected, &server_, [this, &sender] { Receive(sender); });
    sender.write(Greeting);
    sender.flush();
}

void FileRequests::Receive(QLocalSocket& sender) {
    sender.deleteLater();
    QStringList files;
    QDataStream message(sender.bytesAvailable() > 0 ? sender.readAll() : QByteArray());
    message >> files;
    if (message.status() != QDataStream::Ok) {
        return;  // the sender ended before it was done
    }
    waiting_.append(files);
    if (open_) {
        Take(open_);
    }
}

void FileRequests::Take(std::function<void(const QStringList&)> open) {
    open_ = std::move(open);
    for (const QStringList& files : std::exchange(waiting_, {})) {
        open_(files);
    }
}

bool HandOver(const QString& folder, const QStringList& files, int patience) {
    const QStringList sockets =
        QDir(folder).entryList({QStringLiteral("*.socket")}, QDir::System, QDir::Time);
    return std::any_of(sockets.begin(), sockets.end(), [&](const QString& socket) {
        return HandOverTo(QDir(folder).filePath(socket), files, patience);
    });
}

std::unique_ptr<FileRequests> HandOverOrListen(const QString& folder, const QStringList& files) {
    QDir().mkpath(folder);
    QLockFile lock(QDir(folder).filePath(QStringLiteral("lock")));
    lock.tryLock(LockPatience);
    if (HandOver(folder, files)) {
        return nullptr;
    }
    return std::make_unique<FileRequests>(folder);
}

}  // namespace korvet
