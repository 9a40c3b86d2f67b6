// How a file that is double clicked gets to the program that runs already.
#pragma once

#include <QLocalServer>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

class QLocalSocket;

namespace korvet {

/// Where the running programs of this user on this screen can be reached; each has a socket there.
QString RequestFolder();

/// A program that takes files from others, as long as this object lives. Without a folder to listen in it is
/// never asked; it runs all the same.
class FileRequests {
  public:
    explicit FileRequests(const QString& folder);

    /// From now on whole names of files that come are given to `open`, those first that came before.
    void Take(std::function<void(const QStringList&)> open);

  private:
    void Greet(QLocalSocket& sender);
    void Receive(QLocalSocket& sender);

    QList<QStringList> waiting_;
    std::function<void(const QStringList&)> open_;
    QLocalServer server_;
};

/// Hands files, by their whole names, to the program of the folder that began to listen last. A program that
/// does not answer within `patience` ms is passed over and opens none of them.
bool HandOver(const QString& folder, const QStringList& files, int patience = 5000);

/// Hands the files over, and returns null; listens where there is nobody to take them. Of two programs that
/// do so at once, one listens and the other one hands its files to it.
std::unique_ptr<FileRequests> HandOverOrListen(const QString& folder, const QStringList& files);

}  // namespace korvet
