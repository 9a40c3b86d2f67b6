#include "desktop/help/help_book.h"

#include <QDir>
#include <QFileInfo>
#include <QHelpContentItem>
#include <QHelpContentModel>
#include <QHelpEngine>
#include <QHelpFilterEngine>
#include <QHelpLink>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTextDocument>
#include <algorithm>
#include <iterator>

namespace korvet::desktop {
namespace {

const char* const NoPlace = "There is no folder in which the help file can be opened.";
const char* const Unreadable = "The help file is missing or can't be read.";

/// The name under which the file's pages are known: it stands in korvet.qhp.
QString BookName() {
    return QStringLiteral("korvet.help");
}

QString PageFolder() {
    return QStringLiteral("qthelp://korvet.help/doc/");
}

std::unique_ptr<QTemporaryDir> WorkingFolder() {
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    if (!cache.isEmpty() && QDir().mkpath(cache)) {
        auto inCache = std::make_unique<QTemporaryDir>(cache + QStringLiteral("/help-XXXXXX"));
        if (inCache->isValid()) {
            return inCache;
        }
    }
    return std::make_unique<QTemporaryDir>();
}

bool HoldsAll(const QString& text, const QStringList& words) {
    return std::all_of(words.begin(), words.end(), [&](const QString& word) { return text.contains(word); });
}

}  // namespace

HelpBook::HelpBook(const QString& helpFile) : folder_(WorkingFolder()) {
    if (!folder_->isValid()) {
        error_ = QString::fromLatin1(NoPlace);
        return;
    }
    engine_ = std::make_unique<QHelpEngine>(folder_->filePath(QStringLiteral("korvet.qhc")));
    // The engine takes a relative path as one from its own folder.
    if (!Open(QFileInfo(helpFile).absoluteFilePath())) {
        error_ = QString::fromLatin1(Unreadable) + QLatin1Char('\n') + QDir::toNativeSeparators(helpFile) +
                 QLatin1Char('\n') + engine_->error();
        engine_.reset();
    }
}

HelpBook::~HelpBook() = default;

bool HelpBook::Open(const QString& helpFile) {
    engine_->setReadOnly(false);
    engine_->setUsesFilterEngine(true);
    return QFileInfo::exists(helpFile) && QHelpEngineCore::namespaceName(helpFile) == BookName() &&
           engine_->setupData() && engine_->registerDocumentation(helpFile) && engine_->setupData();
}

QUrl HelpBook::FirstPage() const {
    return QUrl(PageFolder() + QStringLiteral("index.html"));
}

std::optional<QUrl> HelpBook::Topic(int contextId) const {
    if (!engine_) {
        return std::nullopt;
    }
    const QList<QHelpLink> links = engine_->documentsForIdentifier(QString::number(contextId));
    return links.isEmpty() ? std::nullopt : std::optional(links.first().url);
}

QByteArray HelpBook::Data(const QUrl& address) const {
    return engine_ ? engine_->fileData(address) : QByteArray();
}

QList<QUrl> HelpBook::PageAddresses() const {
    return engine_ ? engine_->files(BookName(), QString(), QStringLiteral("html")) : QList<QUrl>();
}

QAbstractItemModel* HelpBook::Contents() const {
    return engine_ ? engine_->contentModel() : nullptr;
}

QUrl HelpBook::ContentsPage(const QModelIndex& entry) const {
    const QHelpContentItem* item = engine_ ? engine_->contentModel()->contentItemAt(entry) : nullptr;
    return item != nullptr ? item->url() : QUrl();
}

const std::vector<HelpHit>& HelpBook::Index() {
    if (!engine_ || !index_.empty()) {
        return index_;
    }
    for (const QString& word : engine_->filterEngine()->indices(QString())) {
        for (const QHelpLink& link : engine_->documentsForKeyword(word, QString())) {
            index_.push_back({word, link.title, link.url});
        }
    }
    std::stable_sort(index_.begin(), index_.end(), [](const HelpHit& a, const HelpHit& b) {
        return QString::compare(a.word, b.word, Qt::CaseInsensitive) < 0;
    });
    return index_;
}

const std::vector<HelpBook::Page>& HelpBook::Pages() {
    if (!engine_ || !pages_.empty()) {
        return pages_;
    }
    for (const QUrl& address : PageAddresses()) {
        QTextDocument document;
        document.setHtml(QString::fromUtf8(engine_->fileData(address)));
        pages_.push_back({document.metaInformation(QTextDocument::DocumentTitle),
                          document.toPlainText().toLower(), address});
    }
    std::sort(pages_.begin(), pages_.end(), [](const Page& a, const Page& b) { return a.title < b.title; });
    return pages_;
}

std::vector<HelpHit> HelpBook::Search(const QString& text) {
    std::vector<HelpHit> hits;
    const QString wanted = text.simplified().toLower();
    if (wanted.isEmpty()) {
        return hits;
    }
    const QStringList words = wanted.split(QLatin1Char(' '));
    const auto inTitle = [&](const HelpHit& hit) {
        const QString title = hit.title.toLower();
        const auto found = std::count_if(words.begin(), words.end(),
                                         [&](const QString& word) { return title.contains(word); });
        return found + (title.contains(wanted) ? words.size() : 0);  // as one phrase it counts twice
    };
    for (const Page& page : Pages()) {
        if (HoldsAll(page.text, words)) {
            hits.push_back({QString(), page.title, page.address});
        }
    }
    std::stable_sort(hits.begin(), hits.end(),
                     [&](const HelpHit& a, const HelpHit& b) { return inTitle(a) > inTitle(b); });
    const auto others =
        std::find_if(hits.begin(), hits.end(), [&](const HelpHit& hit) { return inTitle(hit) == 0; });
    std::vector<HelpHit> entries;
    std::copy_if(Index().begin(), Index().end(), std::back_inserter(entries),
                 [&](const HelpHit& entry) { return entry.word.contains(wanted, Qt::CaseInsensitive); });
    hits.insert(others, entries.begin(), entries.end());
    return hits;
}

}  // namespace korvet::desktop
