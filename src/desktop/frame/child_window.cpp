#include "desktop/frame/child_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>

#include "desktop/bindings.h"
#include "desktop/frame/tile_picture.h"

namespace korvet::desktop {
namespace {

int ShapeOf(Qt::WindowStates states) {
    if (states.testFlag(Qt::WindowMinimized)) {
        return MinimisedWindow;
    }
    return states.testFlag(Qt::WindowMaximized) ? MaximisedWindow : NormalWindow;
}

}  // namespace

QString Title(const std::string& caption) {
    return Text(caption).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

bool IsBusy() {
    return QApplication::activeModalWidget() != nullptr;
}

ChildWindow::ChildWindow(CFittingWindow& window, QWidget* parent)
    : QMdiSubWindow(parent), view_(new FittingView(window, this)) {
    setWidget(view_);
    setWindowIcon(FittingIcon(window.Row()));
    setAttribute(Qt::WA_DeleteOnClose, false);
    for (QAction* action : systemMenu()->actions()) {
        action->setShortcut({});  // File > Close has it
    }
    connect(this, &QMdiSubWindow::windowStateChanged, this, [this] { TakeShape(); });
    view_->closeWindow = [this] { close(); };
}

/// The toolkit still changes the state of the part that is left while it takes the window down.
ChildWindow::~ChildWindow() {
    disconnect(this, &QMdiSubWindow::windowStateChanged, this, nullptr);
}

void ChildWindow::TakeShape() {
    view_->TakeShape(ShapeOf(windowState()));
}

QSize ChildWindow::sizeHint() const {
    return mdiArea() != nullptr ? mdiArea()->viewport()->size() * 2 / 3 : QMdiSubWindow::sizeHint();
}

void ChildWindow::Project() {
    if (view_->Window() != nullptr) {
        setWindowTitle(Title(view_->Window()->controls.caption));
        view_->Project();
    }
}

void ChildWindow::closeEvent(QCloseEvent* event) {
    CFittingWindow* window = view_->Window();
    const bool may = window == nullptr || (!IsBusy() && mayClose(*window));
    event->setAccepted(may);
}

}  // namespace korvet::desktop
