// The bars of the main frame, made from their tables.
#include <QAction>
#include <QActionGroup>
#include <QDateTime>
#include <QLabel>
#include <QLocale>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "desktop/bindings.h"
#include "desktop/frame/icons.h"
#include "desktop/frame/main_window.h"
#include "frame/frame_menu.h"

namespace korvet::desktop {
namespace {

constexpr int ToolIconSize = 24;
constexpr int ClockTick = 1000;  // milliseconds
constexpr int PromptIndent = 20;

/// A caption without its mnemonic, as a screen reader says it.
QString Spoken(const QString& caption) {
    return QString(caption).remove(QLatin1Char('&'));
}

}  // namespace

void MainWindow::MakeMenus() {
    std::map<std::string_view, QMenu*> menus;
    for (const MenuEntry& entry : FrameMenu()) {
        if (entry.menu.empty()) {
            QMenu* menu = menuBar()->addMenu(Text(ResString(entry.caption)));
            NameWidget(*menu, std::string(entry.name), Spoken(menu->title()));
            menus[entry.name] = menu;
            actions_[std::string(entry.name)] = menu->menuAction();
            continue;
        }
        QMenu* menu = menus.at(entry.menu);
        if (entry.name.empty()) {
            menu->addSeparator();
            continue;
        }
        const std::string name(entry.name);
        QAction* action = menu->addAction(Text(ResString(entry.caption)));
        action->setObjectName(Text(name));
        action->setCheckable(entry.checkable);
        action->setShortcut(QKeySequence(Text(std::string(entry.shortcut))));
        connect(action, &QAction::triggered, this, [this, name] {
            frame_.RunMenu(name);
            Project();
        });
        actions_[name] = action;
    }
    viewMenu_ = menus.at("mnuView");
}

void MainWindow::MakeToolBar() {
    toolBar_ = addToolBar(tr("Tool bar"));
    NameWidget(*toolBar_, "tbToolBar", tr("Tool bar"));
    toolBar_->setIconSize({ToolIconSize, ToolIconSize});
    toolBar_->setMovable(false);
    toolBar_->setContextMenuPolicy(Qt::PreventContextMenu);
    setContextMenuPolicy(Qt::NoContextMenu);
    int last = 0;
    for (const ToolButton& entry : FrameToolBar()) {
        if (last != 0 && entry.position > last + 1) {
            toolBar_->addSeparator();
        }
        last = entry.position;
        auto* button = new QToolButton(toolBar_);
        const QString tip = Text(ResString(entry.toolTip));
        // The menu of the same name is shown beside it.
        const QString spoken = entry.key == "Help" ? tr("Help in context") : tip.trimmed();
        NameWidget(*button, "tbToolBar_" + std::to_string(entry.position), spoken);
        button->setToolTip(tip);
        button->setIcon(ToolIcon(std::string(entry.key)));
        button->setIconSize(toolBar_->iconSize());
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCheckable(entry.checkable);
        connect(button, &QToolButton::clicked, this, [this, position = entry.position] {
            frame_.ClickTool(position);
            Project();
        });
        if (!entry.shortcut.empty()) {
            // Not the button's own, which would be gone with a hidden tool bar.
            auto* shortcut = new QShortcut(QKeySequence(Text(std::string(entry.shortcut))), this);
            connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
        }
        toolBar_->addWidget(button);
        tools_[entry.position] = button;
    }
}

void MainWindow::MakeStatusBar() {
    NameWidget(*statusBar(), "sbStatusBar", tr("Status bar"));
    const auto panel = [this](const std::string& number, const QString& name) {
        auto* label = new QLabel(statusBar());
        NameWidget(*label, "sbStatusBar_" + number, name);
        label->setTextFormat(Qt::PlainText);
        return label;
    };
    statusText_ = panel("1", tr("Settings of the active fitting"));
    prompt_ = panel("Prompt", tr("What the mouse is to do"));
    pointer_ = panel("Pointer", tr("Place of the pointer on the pattern"));
    date_ = panel("2", tr("Date"));
    time_ = panel("3", tr("Time"));
    statusBar()->addWidget(statusText_);
    statusBar()->addWidget(prompt_, 1);
    prompt_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a prompt widens no window
    prompt_->setIndent(PromptIndent);
    statusBar()->addPermanentWidget(pointer_);
    statusBar()->addPermanentWidget(date_);
    statusBar()->addPermanentWidget(time_);
    auto* tick = new QTimer(this);
    connect(tick, &QTimer::timeout, this, &MainWindow::ShowClock);
    tick->start(ClockTick);
    ShowClock();
}

/// A panel is named by what it tells of; a screen reader has the text as its description.
void MainWindow::ShowPanel(QLabel& panel, const QString& text) {
    panel.setText(text);
    panel.setAccessibleDescription(text);
}

/// The settings of the active window, and what its armed mode asks for.
void MainWindow::ProjectStatusBar() {
    const CFittingWindow* const child = frame_.ActiveChild();
    ShowPanel(*statusText_, Text(frame_.Context().frame.statusText));
    ShowPanel(*prompt_, child == nullptr ? QString() : Text(Prompt(*child)));
    ShowPointerPlace();
}

void MainWindow::ShowPointerPlace() {
    const CFittingWindow* const child = frame_.ActiveChild();
    ShowPanel(*pointer_, child == nullptr ? QString() : Text(PointerText(*child)));
}

void MainWindow::ShowClock() {
    const QDateTime now = QDateTime::currentDateTime();
    ShowPanel(*date_, QLocale::system().toString(now.date(), QLocale::ShortFormat));
    ShowPanel(*time_, QLocale::system().toString(now.time(), QLocale::ShortFormat));
}

void MainWindow::ProjectMenus() {
    const FrameModel& model = frame_.Context().frame;
    const auto at = [](const std::map<std::string, bool>& flags, const std::string& name) {
        const auto found = flags.find(name);
        return found == flags.end() || found->second;
    };
    for (const auto& [name, action] : actions_) {
        action->setEnabled(at(model.menuEnabled, name));
        action->setVisible(at(model.menuVisible, name));
    }
    actions_.at("mnuPrintFrames")->setChecked(model.printFramesTicked);
    actions_.at("mnuViewToolbar")->setChecked(model.toolBarVisible);
    actions_.at("mnuViewStatusBar")->setChecked(model.statusBarVisible);
}

void MainWindow::ProjectToolBar() {
    const FrameModel& model = frame_.Context().frame;
    for (const auto& [position, button] : tools_) {
        const auto found = model.toolEnabled.find(position);
        button->setEnabled(found == model.toolEnabled.end() || found->second);
        if (button->isCheckable()) {
            button->setChecked(frame_.IsToolPressed(position));
        }
    }
}

/// Strips of equal height one below the other, or of equal width side by side; minimised windows stay.
void MainWindow::TileWindows(bool sideBySide) {
    QList<QMdiSubWindow*> open;
    for (QMdiSubWindow* child : area_->subWindowList()) {
        if (!child->isMinimized()) {
            open.append(child);
        }
    }
    const QSize inner = area_->viewport()->size();
    const auto count = static_cast<int>(open.size());
    for (int i = 0; i < count; ++i) {
        const auto part = [&](int whole, int index) { return whole * index / count; };
        open[i]->showNormal();
        open[i]->setGeometry(sideBySide ? QRect(QPoint(part(inner.width(), i), 0),
                                                QPoint(part(inner.width(), i + 1) - 1, inner.height() - 1))
                                        : QRect(QPoint(0, part(inner.height(), i)),
                                                QPoint(inner.width() - 1, part(inner.height(), i + 1) - 1)));
    }
}

/// Rows of minimised windows from the lower left corner.
void MainWindow::ArrangeIcons() {
    const QSize inner = area_->viewport()->size();
    int x = 0;
    int y = inner.height();
    for (QMdiSubWindow* child : area_->subWindowList()) {
        if (!child->isMinimized()) {
            continue;
        }
        if (x > 0 && x + child->width() > inner.width()) {
            x = 0;
            y -= child->height();
        }
        child->move(x, y - child->height());
        x += child->width();
    }
}

}  // namespace korvet::desktop
