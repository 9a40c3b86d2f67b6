// The help file as the help window reads it: pages, topics by context number, contents, index and search.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>
#include <memory>
#include <optional>
#include <vector>

class QAbstractItemModel;
class QHelpEngine;
class QModelIndex;

namespace korvet::desktop {

/// A page that an index word or a search leads to.
struct HelpHit {
    QString word;   ///< the index word; empty for a hit in the text of the page
    QString title;  ///< of the page
    QUrl page;
};

class HelpBook {
  public:
    /// Opens the file; Error() tells when that failed. Its working files lie in a folder of their own in the
    /// user's cache, or among the temporary files, and go with the book: two programs never share them.
    explicit HelpBook(const QString& helpFile);
    ~HelpBook();
    HelpBook(const HelpBook&) = delete;
    HelpBook& operator=(const HelpBook&) = delete;

    [[nodiscard]] bool IsOpen() const { return error_.isEmpty(); }

    /// Why the file could not be opened; empty when it is open.
    [[nodiscard]] const QString& Error() const { return error_; }

    [[nodiscard]] QUrl FirstPage() const;

    /// The page of a context number.
    [[nodiscard]] std::optional<QUrl> Topic(int contextId) const;

    /// Bytes of a page, style sheet or picture; empty when there is none of that address.
    [[nodiscard]] QByteArray Data(const QUrl& address) const;

    /// Addresses of all pages, in no order.
    [[nodiscard]] QList<QUrl> PageAddresses() const;

    /// The tree of contents; it fills itself a little later. Null when the book is not open.
    [[nodiscard]] QAbstractItemModel* Contents() const;
    [[nodiscard]] QUrl ContentsPage(const QModelIndex& entry) const;

    /// All index words with their pages, in the order of the alphabet.
    [[nodiscard]] const std::vector<HelpHit>& Index();

    /// The pages on which every word of the text stands: first those that have words of it in their title,
    /// the more the better; then index words that hold the text; then all other pages. Case does not matter.
    /// Nothing for an empty text.
    [[nodiscard]] std::vector<HelpHit> Search(const QString& text);

  private:
    struct Page {
        QString title;
        QString text;  ///< in lower case
        QUrl address;
    };

    bool Open(const QString& helpFile);
    const std::vector<Page>& Pages();

    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<QHelpEngine> engine_;
    QString error_;
    std::vector<Page> pages_;
    std::vector<HelpHit> index_;
};

}  // namespace korvet::desktop
