#include "desktop/help/help_frame.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QHelpContentModel>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWindow>
#include <utility>

#include "desktop/bindings.h"
#include "desktop/frame/icons.h"
#include "desktop/help/help_book.h"

namespace korvet::desktop {
namespace {

constexpr int AddressRole = Qt::UserRole;

QListWidgetItem* AddHit(QListWidget& list, const HelpHit& hit, const QString& text) {
    auto* item = new QListWidgetItem(text, &list);
    item->setData(AddressRole, hit.page);
    item->setToolTip(hit.title);
    return item;
}

/// A line to type in above a list, the line's label its mnemonic.
QWidget* ListPane(const QString& label, QLineEdit& edit, QListWidget& list, QLabel* below = nullptr) {
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    auto* caption = new QLabel(label);
    caption->setBuddy(&edit);
    layout->addWidget(caption);
    layout->addWidget(&edit);
    layout->addWidget(&list, 1);
    if (below != nullptr) {
        layout->addWidget(below);
    }
    edit.setClearButtonEnabled(true);
    return pane;
}

/// Enter in the line opens the first hit; Enter or a click on a hit opens that one.
template <typename Open>
void OpenHits(QLineEdit& edit, QListWidget& list, const Open& open) {
    QObject::connect(&edit, &QLineEdit::returnPressed, &list, [&list, open] {
        if (list.count() > 0) {
            list.setCurrentRow(0);
            open(*list.item(0));
        }
    });
    QObject::connect(&list, &QListWidget::itemActivated, &list, [open](QListWidgetItem* hit) { open(*hit); });
    QObject::connect(&list, &QListWidget::itemClicked, &list, [open](QListWidgetItem* hit) { open(*hit); });
}

/// The entry of the tree that stands for the page; invalid when none does.
QModelIndex EntryOf(const HelpBook& book, const QAbstractItemModel& model, const QUrl& page,
                    const QModelIndex& parent = {}) {
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex entry = model.index(row, 0, parent);
        if (book.ContentsPage(entry) == page) {
            return entry;
        }
        const QModelIndex below = EntryOf(book, model, page, entry);
        if (below.isValid()) {
            return below;
        }
    }
    return {};
}

}  // namespace

HelpFrame::HelpFrame(HelpBook& book, SketchPicture sketches)
    : book_(book), txtHelp_(new HelpBrowser(book, std::move(sketches))) {
    NameWidget(*this, "frmHelp", QStringLiteral("Help"));
    setWindowTitle(QStringLiteral("Help"));
    setAttribute(Qt::WA_QuitOnClose, false);
    NameWidget(*txtHelp_, "txtHelp", QStringLiteral("Help page"));
    tabHelp_ = new QTabWidget;
    NameWidget(*tabHelp_, "tabHelp", QStringLiteral("Ways to find a page"));
    tabHelp_->insertTab(ContentsTab, MakeContents(), QStringLiteral("&Contents"));
    tabHelp_->insertTab(IndexTab, MakeIndex(), QStringLiteral("&Index"));
    tabHelp_->insertTab(SearchTab, MakeSearch(), QStringLiteral("&Search"));
    connect(tabHelp_, &QTabWidget::currentChanged, this, &HelpFrame::FocusLine);
    auto* splitter = new QSplitter;
    splitter->addWidget(tabHelp_);
    splitter->addWidget(MakePagePane());
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    MakeTools();
    MakeShortcuts();
    const int em = fontMetrics().horizontalAdvance(QLatin1Char('M'));
    resize(QSize(em * 96, em * 60).boundedTo(screen()->availableSize() * 9 / 10));
    splitter->setSizes({em * 27, em * 69});
    connect(txtHelp_, &QTextBrowser::sourceChanged, this, [this](const QUrl& page) {
        setWindowTitle(txtHelp_->documentTitle() + QStringLiteral(" - Help"));
        SelectContentsEntry(page);
    });
}

void HelpFrame::MakeTools() {
    auto* bar = addToolBar(QStringLiteral("Help tools"));
    NameWidget(*bar, "tbHelp", QStringLiteral("Help tools"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto add = [&](const char* name, const QString& text, const char* icon, const QKeySequence& keys,
                         auto&& run) {
        QAction* action = bar->addAction(ToolIcon(icon), text);
        action->setShortcut(keys);
        action->setToolTip(action->iconText() + QStringLiteral(" (") +
                           keys.toString(QKeySequence::NativeText) + QLatin1Char(')'));
        NameWidget(*bar->widgetForAction(action), name, action->iconText());
        connect(action, &QAction::triggered, this, run);
        return action;
    };
    QAction* back =
        add("btnBack", QStringLiteral("Back"), "Back", QKeySequence::Back, [this] { txtHelp_->backward(); });
    QAction* forward = add("btnForward", QStringLiteral("Forward"), "Forward", QKeySequence::Forward,
                           [this] { txtHelp_->forward(); });
    add("btnHome", QStringLiteral("Home"), "Home", QKeySequence(Qt::ALT | Qt::Key_Home),
        [this] { txtHelp_->setSource(book_.FirstPage()); });
    bar->addSeparator();
    add("btnFind", QStringLiteral("Find in page"), "Find", QKeySequence::Find, [this] { OpenFindBar(); });
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(txtHelp_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(txtHelp_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
}

QWidget* HelpFrame::MakePagePane() {
    findBar_ = new QWidget;
    txtFind_ = new QLineEdit;
    lblFind_ = new QLabel;
    NameWidget(*txtFind_, "txtFind", QStringLiteral("Text to find in the page"));
    NameWidget(*lblFind_, "lblFind", QStringLiteral("Result of the find"));
    auto* label = new QLabel(QStringLiteral("&Find:"));
    auto* next = new QPushButton(QStringLiteral("&Next"));
    auto* previous = new QPushButton(QStringLiteral("&Previous"));
    label->setBuddy(txtFind_);
    NameWidget(*next, "btnFindNext", QStringLiteral("Find next"));
    NameWidget(*previous, "btnFindPrevious", QStringLiteral("Find previous"));
    auto* row = new QHBoxLayout(findBar_);
    for (QWidget* widget : std::initializer_list<QWidget*>{label, txtFind_, next, previous, lblFind_}) {
        row->addWidget(widget, widget == txtFind_ ? 1 : 0);
    }
    findBar_->hide();
    connect(txtFind_, &QLineEdit::returnPressed, this, [this] { FindInPage(false); });
    connect(next, &QPushButton::clicked, this, [this] { FindInPage(false); });
    connect(previous, &QPushButton::clicked, this, [this] { FindInPage(true); });
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(txtHelp_, 1);
    layout->addWidget(findBar_);
    return pane;
}

QWidget* HelpFrame::MakeContents() {
    treeContents_ = new QTreeView;
    NameWidget(*treeContents_, "treeContents", QStringLiteral("Contents"));
    treeContents_->setHeaderHidden(true);
    QAbstractItemModel* model = book_.Contents();
    if (model == nullptr) {
        return treeContents_;
    }
    treeContents_->setModel(model);
    connect(static_cast<QHelpContentModel*>(model), &QHelpContentModel::contentsCreated, this, [this] {
        treeContents_->expandAll();
        SelectContentsEntry(txtHelp_->source());
    });
    const auto open = [this](const QModelIndex& entry) {
        if (const QUrl page = book_.ContentsPage(entry); page.isValid()) {
            txtHelp_->setSource(page);
        }
    };
    connect(treeContents_, &QTreeView::clicked, this, open);
    connect(treeContents_, &QTreeView::activated, this, open);
    return treeContents_;
}

QWidget* HelpFrame::MakeIndex() {
    txtIndex_ = new QLineEdit;
    lstIndex_ = new QListWidget;
    NameWidget(*txtIndex_, "txtIndex", QStringLiteral("Word to look up in the index"));
    NameWidget(*lstIndex_, "lstIndex", QStringLiteral("Index words"));
    connect(txtIndex_, &QLineEdit::textChanged, this, [this](const QString& text) { FilterIndex(text); });
    OpenHits(*txtIndex_, *lstIndex_,
             [this](const QListWidgetItem& hit) { txtHelp_->setSource(hit.data(AddressRole).toUrl()); });
    FilterIndex(QString());
    return ListPane(QStringLiteral("&Look for:"), *txtIndex_, *lstIndex_);
}

QWidget* HelpFrame::MakeSearch() {
    txtSearch_ = new QLineEdit;
    lstSearch_ = new QListWidget;
    lblSearch_ = new QLabel;
    NameWidget(*txtSearch_, "txtSearch", QStringLiteral("Words to search for"));
    NameWidget(*lstSearch_, "lstSearch", QStringLiteral("Pages found"));
    NameWidget(*lblSearch_, "lblSearch", QStringLiteral("Result of the search"));
    lblSearch_->setWordWrap(true);
    connect(txtSearch_, &QLineEdit::textChanged, this, [this](const QString& text) { RunSearch(text); });
    OpenHits(*txtSearch_, *lstSearch_, [this](const QListWidgetItem& hit) {
        txtHelp_->setSource(hit.data(AddressRole).toUrl());
        const QString wanted = txtSearch_->text().simplified();
        if (!txtHelp_->find(wanted)) {
            txtHelp_->find(wanted.section(QLatin1Char(' '), 0, 0));
        }
    });
    return ListPane(QStringLiteral("Search fo&r:"), *txtSearch_, *lstSearch_, lblSearch_);
}

void HelpFrame::MakeShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto&& run) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
    };
    add(QKeySequence(Qt::Key_F3), [this] { FindInPage(false); });
    add(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { FindInPage(true); });
    add(QKeySequence(Qt::Key_F6), [this] {
        QWidget* const other = txtHelp_->hasFocus() ? static_cast<QWidget*>(tabHelp_->tabBar()) : txtHelp_;
        other->setFocus(Qt::ShortcutFocusReason);
    });
    add(QKeySequence(Qt::Key_Escape), [this] {
        if (findBar_->isVisible()) {
            findBar_->hide();
            txtHelp_->setFocus();
        } else {
            close();
        }
    });
}

/// Who turns to the index or the search wants to type; who goes through the tabs by their arrow keys goes on.
void HelpFrame::FocusLine(int tab) {
    if (!tabHelp_->tabBar()->hasFocus() && tab != ContentsTab) {
        (tab == SearchTab ? txtSearch_ : txtIndex_)->setFocus();
    }
}

void HelpFrame::ShowContents() {
    tabHelp_->setCurrentIndex(ContentsTab);
    ShowFirstPage();
    treeContents_->setFocus();
    Present();
}

void HelpFrame::ShowSearch() {
    tabHelp_->setCurrentIndex(SearchTab);
    if (!txtHelp_->source().isValid()) {
        ShowFirstPage();
    }
    Present();
    txtSearch_->selectAll();
    txtSearch_->setFocus();  // when the window is in front: one that comes up takes its own
}

void HelpFrame::ShowPage(const QUrl& page) {
    txtHelp_->setSource(page);
    txtHelp_->setFocus();
    Present();
}

void HelpFrame::ShowFirstPage() {
    if (book_.IsOpen()) {
        txtHelp_->setSource(book_.FirstPage());
    } else {
        txtHelp_->setPlainText(book_.Error());
    }
}

void HelpFrame::Present() {
    AttachToDialog();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void HelpFrame::AttachToDialog() {
    create();
    const QWidget* const dialog = QApplication::activeModalWidget();
    QWindow* const owner = dialog != nullptr ? dialog->windowHandle() : nullptr;
    if (windowHandle()->transientParent() == owner) {
        return;
    }
    // A window manager reads whose window it is when it appears.
    const bool shown = isVisible();
    hide();
    windowHandle()->setTransientParent(owner);
    if (shown) {
        show();
    }
    if (owner != nullptr) {
        // The dialog goes and the help stays, for the dialog below it if there is one.
        connect(owner, &QWindow::visibleChanged, this, [this](bool visible) {
            if (!visible) {
                QTimer::singleShot(0, this, [this] { AttachToDialog(); });
            }
        });
    }
}

void HelpFrame::FilterIndex(const QString& text) {
    lstIndex_->clear();
    for (const HelpHit& entry : book_.Index()) {
        if (entry.word.contains(text.simplified(), Qt::CaseInsensitive)) {
            AddHit(*lstIndex_, entry, entry.word);
        }
    }
}

void HelpFrame::RunSearch(const QString& text) {
    lstSearch_->clear();
    for (const HelpHit& hit : book_.Search(text)) {
        AddHit(*lstSearch_, hit,
               hit.word.isEmpty() ? hit.title : hit.word + QStringLiteral(" \u2013 ") + hit.title);
    }
    const bool nothing = lstSearch_->count() == 0 && !text.simplified().isEmpty();
    lblSearch_->setText(nothing ? QStringLiteral("No page has all of these words.") : QString());
}

void HelpFrame::OpenFindBar() {
    findBar_->show();
    txtFind_->selectAll();
    txtFind_->setFocus();
}

void HelpFrame::FindInPage(bool backward) {
    const QString text = txtFind_->text();
    if (text.isEmpty()) {
        OpenFindBar();
        return;
    }
    const QTextDocument::FindFlags flags =
        backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (txtHelp_->find(text, flags)) {
        lblFind_->clear();
        return;
    }
    // Once around the page.
    const QTextCursor before = txtHelp_->textCursor();
    txtHelp_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    if (txtHelp_->find(text, flags)) {
        lblFind_->setText(QStringLiteral("Went on from the other end"));
    } else {
        txtHelp_->setTextCursor(before);
        lblFind_->setText(QStringLiteral("Not on this page"));
    }
}

void HelpFrame::SelectContentsEntry(const QUrl& page) {
    const QAbstractItemModel* model = treeContents_->model();
    if (model == nullptr) {
        return;
    }
    const QModelIndex entry =
        EntryOf(book_, *model, book_.FirstPage().resolved(page).adjusted(QUrl::RemoveFragment));
    if (entry.isValid()) {
        treeContents_->setCurrentIndex(entry);
    }
}

}  // namespace korvet::desktop
