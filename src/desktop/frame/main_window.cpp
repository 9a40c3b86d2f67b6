#include "desktop/frame/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QSet>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "desktop/bindings.h"
#include "desktop/dialogs/about_dialogs.h"
#include "desktop/dialogs/recovery_widgets.h"
#include "desktop/frame/category_menu_window.h"
#include "desktop/frame/icons.h"
#include "platform/file_lock.h"

namespace korvet::desktop {
namespace {

/// Room for the frame that the desktop puts around the window.
constexpr QMargins WindowFrame = {8, 36, 8, 8};

/// Large enough for a fitting window with a fair drawing beside its panel.
constexpr QSize ComfortableSize = {1280, 1000};

QStringList LocalFiles(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
}

}  // namespace

QRect OnScreen(QRect place, const QList<QRect>& screens) {
    const auto shared = [&](const QRect& screen) {
        const QRect both = screen.intersected(place);
        return static_cast<double>(both.width()) * both.height();
    };
    const auto screen =
        std::max_element(screens.begin(), screens.end(),
                         [&](const QRect& one, const QRect& other) { return shared(one) < shared(other); });
    if (screen == screens.end()) {
        return place;
    }
    place.setSize(place.size().boundedTo(screen->size()));
    place.moveLeft(std::clamp(place.left(), screen->left(), screen->right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), screen->top(), screen->bottom() + 1 - place.height()));
    return place;
}

MainWindow::MainWindow(WindowContext& context, HelpViewer& help, SettingsStore& settings,
                       RecoveryStore* recovery)
    : frame_(context, *this, help, settings, recovery),
      showHelp_([&context, &help](int contextId) { ShowHelp(context.ui, context.options, help, contextId); }),
      area_(new QMdiArea(this)),
      copying_(new QTimer(this)) {
    NameWidget(*this, "frmMain", tr("Main window"));
    setWindowIcon(ApplicationIcon());
    setAcceptDrops(true);
    NameWidget(*area_, "mdiArea", tr("Fitting windows"));
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);  // Ctrl+Tab goes by the last use
    setCentralWidget(area_);
    connect(area_, &QMdiArea::subWindowActivated, this, &MainWindow::TakeActive);
    // A box in the middle of work would lie over its Cancel.
    connect(copying_, &QTimer::timeout, this, [this] { (void)frame_.KeepCopies(!IsBusy()); });
    MakeMenus();
    MakeToolBar();
    MakeStatusBar();
    frame_.Load();
    Project();
}

MainWindow::~MainWindow() {
    area_->disconnect(this);  // it goes after the frame, and tells of its windows to the last
    for (QMdiSubWindow* child : area_->subWindowList()) {
        static_cast<ChildWindow*>(child)->View().Detach();
    }
}

korvet::Place MainWindow::OuterPlace() const {
    const QRect outer = isMaximized() || isMinimized() ? normalGeometry() : geometry();
    return TwipsOf(outer);
}

void MainWindow::Place(bool remembered) {
    QRect place = PixelsOf(frame_.place);
    if (!remembered) {
        place.setSize(place.size().expandedTo(ComfortableSize));
    }
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens()) {  // the primary one stands first
        screens.append(screen->availableGeometry().marginsRemoved(WindowFrame));
    }
    setGeometry(OnScreen(place, screens));
}

void MainWindow::Project() {
    if (closing_) {
        return;
    }
    ProjectMenus();
    ProjectToolBar();
    const FrameModel& model = frame_.Context().frame;
    const QString title = Title(model.caption);
    if (!windowTitle().startsWith(title)) {  // the area adds the name of a maximised window
        setWindowTitle(title);
    }
    ProjectStatusBar();
    toolBar_->setVisible(model.toolBarVisible);
    statusBar()->setVisible(model.statusBarVisible);
    for (QMdiSubWindow* child : area_->subWindowList()) {
        static_cast<ChildWindow*>(child)->Project();
    }
    SpeakWindows();
}

/// The controls of the active window have their plain names, those of each other window its name too.
void MainWindow::SpeakWindows() {
    const QList<QMdiSubWindow*> children = area_->subWindowList();
    QSet<QString> spoken;
    for (QMdiSubWindow* child : children) {
        FittingView& view = static_cast<ChildWindow*>(child)->View();
        if (view.Window() == nullptr || view.Window() == frame_.ActiveChild()) {
            view.SpeakWindow({});
            continue;
        }
        const QString caption = Text(view.Window()->controls.caption);
        QString name = caption;
        for (int i = 2; spoken.contains(name); ++i) {  // a file can be open twice
            name = QStringLiteral("%1 (%2)").arg(caption).arg(i);
        }
        spoken.insert(name);
        view.SpeakWindow(name);
    }
}

ChildWindow* MainWindow::ChildOf(const CFittingWindow& window) const {
    for (QMdiSubWindow* child : area_->subWindowList()) {
        auto* candidate = static_cast<ChildWindow*>(child);
        if (candidate->View().Window() == &window) {
            return candidate;
        }
    }
    return nullptr;
}

void MainWindow::ShowWindow(CFittingWindow& window) {
    auto* child = new ChildWindow(window, area_);
    child->mayClose = [this](CFittingWindow& closing) {
        const bool closed = frame_.CloseChild(closing) == Passed;
        Project();
        return closed;
    };
    child->View().afterEvent = [this] { Project(); };
    child->View().pointerMoved = [this] { ShowPointerPlace(); };
    child->View().popUpMenu = [this](const QPoint& position) { viewMenu_->popup(position); };
    area_->addSubWindow(child);
    child->Project();
    if (window.controls.state == MaximisedWindow) {
        child->showMaximized();
    } else {
        child->showNormal();  // where the area has found room for it
    }
    area_->setActiveSubWindow(child);
    child->View().FocusFirstBox();
    frame_.ActivateChild(&window);
}

void MainWindow::BringToFront(CFittingWindow& window) {
    ChildWindow* const child = ChildOf(window);
    if (child == nullptr) {
        return;
    }
    if (child->isMinimized()) {
        child->showNormal();
    }
    area_->setActiveSubWindow(child);
    frame_.ActivateChild(&window);
}

void MainWindow::RemoveWindow(CFittingWindow& window) {
    ChildWindow* child = ChildOf(window);
    if (child == nullptr) {
        return;
    }
    const bool maximised = child->isMaximized();
    child->View().Detach();
    child->hide();
    area_->removeSubWindow(child);
    child->deleteLater();
    // The area does not go on to another window while a message box or another program is in front.
    QMdiSubWindow* next = area_->activeSubWindow();
    const QList<QMdiSubWindow*> left = area_->subWindowList(QMdiArea::ActivationHistoryOrder);
    if (next == nullptr && !left.isEmpty()) {
        next = left.last();
        area_->setActiveSubWindow(next);
    }
    // Of maximised windows the area keeps only the active one at full size, and forgets that with it.
    if (maximised && next != nullptr && !next->isMinimized()) {
        next->showMaximized();
    }
    TakeActive(next);
}

void MainWindow::TakeActive(QMdiSubWindow* child) {
    // The area says "none" too when another program comes to the front.
    if (child == nullptr && !area_->subWindowList().isEmpty()) {
        return;
    }
    CFittingWindow* window = child != nullptr ? static_cast<ChildWindow*>(child)->View().Window() : nullptr;
    frame_.ActivateChild(window);
    if (statusText_ != nullptr) {
        ProjectStatusBar();
        ProjectToolBar();
    }
    SpeakWindows();
}

void MainWindow::Arrange(Arrangement arrangement) {
    switch (arrangement) {
        case Arrangement::Cascade:
            area_->cascadeSubWindows();
            break;
        case Arrangement::TileHorizontally:
        case Arrangement::TileVertically:
            TileWindows(arrangement == Arrangement::TileVertically);
            break;
        case Arrangement::ArrangeIcons:
            ArrangeIcons();
            break;
    }
}

void MainWindow::Close() {
    close();
}

DialogHost MainWindow::Host() {
    Project();
    return {this, frame_.Context().ui, &frame_.Context(), showHelp_};
}

void MainWindow::RunModal(CategoryMenuDialog& dialog) {
    RunCategoryMenu(dialog, this, showHelp_);
}

void MainWindow::RunModal(SplashDialog& dialog) {
    RunDialog(Host(), dialog);
}

void MainWindow::RunModal(AboutDialog& dialog) {
    RunDialog(Host(), dialog);
}

void MainWindow::RunModal(DisclaimerDialog& dialog) {
    RunDialog(Host(), dialog);
}

void MainWindow::RunModal(RecoveryDialog& dialog) {
    RunDialog(Host(), dialog);
}

bool MainWindow::IsFileAlreadyOpen(const std::string& path) const {
    return korvet::IsFileAlreadyOpen(path);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (IsBusy()) {
        event->ignore();
        return;
    }
    closing_ = frame_.QueryUnload(OuterPlace(), isMinimized()) == Passed;
    event->setAccepted(closing_);
    Project();
}

/// The splash comes up over the frame, so it waits until the frame itself has been drawn.
void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        QTimer::singleShot(0, this, [this] { Start({}); });
    }
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowUnblocked) {
        QTimer::singleShot(0, this, [this] { Start({}); });
    }
    return QMainWindow::event(event);
}

void MainWindow::KeepCopiesEvery(std::chrono::milliseconds interval) {
    copying_->start(interval);
}

void MainWindow::Start(const QStringList& files) {
    startFiles_ += files;
    if (starting_ || IsBusy()) {
        return;  // the splash or another dialog is up, and the files come after it
    }
    starting_ = true;
    frame_.Activate();
    frame_.OfferCopies();
    Project();
    starting_ = false;
    OpenFiles(std::exchange(startFiles_, {}));
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    TakeInnerSize();
}

void MainWindow::TakeInnerSize() {
    const QSize inner = area_->viewport()->size();
    frame_.Context().frame.inner = {0, 0, Twips(inner.width()), Twips(inner.height())};
}

/// Files are opened, whatever key is held: a sender that took a drop as a move would delete them.
bool MainWindow::TakeAsCopy(QDropEvent& event) {
    if (IsBusy() || LocalFiles(*event.mimeData()).isEmpty()) {
        return false;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
    return true;
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    (void)TakeAsCopy(*event);
}

void MainWindow::dragMoveEvent(QDragMoveEvent* event) {
    (void)TakeAsCopy(*event);
}

void MainWindow::dropEvent(QDropEvent* event) {
    if (TakeAsCopy(*event)) {
        // The sender of the drop must not wait for message boxes.
        QTimer::singleShot(0, this, [this, paths = LocalFiles(*event->mimeData())] { OpenFiles(paths); });
    }
}

void MainWindow::OpenFiles(const QStringList& paths) {
    for (const QString& path : paths) {
        frame_.OpenFile(path.toStdString());
        Project();
    }
}

}  // namespace korvet::desktop
