#include "desktop/fitting_view.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedLayout>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/bindings.h"
#include "desktop/icons.h"
#include "desktop/view_icons.h"
#include "shell/views.h"

namespace korvet::desktop {
namespace {

constexpr int ViewIconSize = 30;
constexpr int PatternIconSize = 44;

int TwipsOf(int pixels) {
    return pixels * TwipsToPixel;
}

Place PlaceOf(const QRect& rect) {
    return {TwipsOf(rect.x()), TwipsOf(rect.y()), TwipsOf(rect.width()), TwipsOf(rect.height())};
}

/// At once, before the next key comes; a click takes the selection away again, so there it waits for its end.
void SelectOnEntry(QLineEdit& box, Qt::FocusReason reason) {
    if (reason == Qt::MouseFocusReason) {
        QTimer::singleShot(0, &box, &QLineEdit::selectAll);
    } else {
        box.selectAll();
    }
}

/// What a screen reader says of a view button; the tool tip is the same for all of them.
QString ViewName(int button) {
    static const std::array<const char*, 10> names = {
        QT_TR_NOOP("View Model 1, slanted"), QT_TR_NOOP("View Model 2, level"),
        QT_TR_NOOP("View Model 3, slanted"), QT_TR_NOOP("View Model 4, level"),
        QT_TR_NOOP("View Model 5, plan"),    QT_TR_NOOP("View Model 6, level"),
        QT_TR_NOOP("View Model 7, slanted"), QT_TR_NOOP("View Model 8, level"),
        QT_TR_NOOP("View Model 9, slanted"), QT_TR_NOOP("Create or update pattern")};
    return QObject::tr(names.at(static_cast<std::size_t>(button)));
}

}  // namespace

FittingView::FittingView(CFittingWindow& window, QWidget* parent)
    : QWidget(parent), window_(&window), boxes_(window.controls.txtParameter.size()) {
    NameWidget(*this, std::string(window.Row().window), Text(std::string(window.Row().category)));
    drawing_ = new DrawingArea(window, this);
    drawing_->afterEvent = [this] { After(); };
    drawing_->installEventFilter(this);
    drawing_->popUpMenu = [this](const QPoint& position) { popUpMenu(position); };
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, Pixels(100), Pixels(50));
    layout->setSpacing(0);
    layout->addWidget(MakePanel());
    layout->addWidget(drawing_, 1);
    AddShortcuts();
    ShowIcons();
    window.controls.showPointer = [this] { ShowPointer(); };
    Project();
}

FittingView::~FittingView() {
    Detach();
}

void FittingView::Detach() {
    drawing_->Detach();
    if (window_ != nullptr) {
        window_->controls.showPointer = nullptr;
        window_ = nullptr;
    }
}

void FittingView::ShowPointer() {
    setCursor(window_->controls.mousePointer == Cursor::Hourglass ? Qt::WaitCursor : Qt::ArrowCursor);
    drawing_->ShowPointer();
}

/// Runs an event of the model and shows what came of it. The window may be gone afterwards. Nothing that is
/// thrown may reach the toolkit, which would end the program and the user's work with it.
template <typename Action>
void FittingView::Do(Action action) {
    if (window_ == nullptr) {
        return;
    }
    UserInterface& ui = window_->Context().ui;
    try {
        action(*window_);
    } catch (const std::exception& error) {
        ShowPlain(ui, error.what());
    }
    After();
}

void FittingView::After() {
    if (window_ != nullptr && afterEvent) {
        afterEvent();
    }
}

/// The panel scrolls where the window is too low for it.
QWidget* FittingView::MakePanel() {
    auto* content = new QWidget;
    NameWidget(*content, "fraControls1", tr("Sizes and views"));
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(Pixels(100), Pixels(100), Pixels(100), Pixels(100));
    layout->addWidget(MakePages());
    layout->addWidget(MakeControls());
    layout->addWidget(MakePatternControls());
    layout->addStretch(1);
    panel_ = new QScrollArea(this);
    panel_->setWidget(content);
    panel_->setWidgetResizable(true);
    panel_->setFrameShape(QFrame::NoFrame);
    panel_->setFocusPolicy(Qt::NoFocus);
    panel_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    return panel_;
}

QWidget* FittingView::MakePages() {
    auto* holder = new QWidget;
    pageStack_ = new QStackedLayout(holder);
    for (std::size_t i = 0; i < window_->Table().pages.size(); ++i) {
        auto* page = new SketchPage(window_->Table(), i, holder);
        NameWidget(*page, "Picture1_" + std::to_string(i), tr("Sizes of type %1").arg(i + 1));
        for (const BoxEntry& entry : window_->Table().pages[i].boxes) {
            const auto index = static_cast<std::size_t>(entry.index);
            boxes_.at(index) = page->Box(entry.index);
            Connect(
                boxes_.at(index), window_->controls.txtParameter.at(index),
                [index](CFittingWindow& window, const std::string& text) { window.ChangeBox(index, text); });
        }
        pages_.push_back(page);
        pageStack_->addWidget(page);
    }
    return holder;
}

QToolButton* FittingView::MakeButton(const std::string& name, const QString& accessibleName,
                                     QWidget* parent) {
    auto* button = new QToolButton(parent);
    NameWidget(*button, name, accessibleName);
    button->setFocusPolicy(Qt::NoFocus);  // the tab key goes from box to box
    button->setMinimumSize(Pixels(320), Pixels(320));
    return button;
}

QToolButton* FittingView::MakeViewButton(int button, QWidget* parent) {
    QToolButton* made = MakeButton("btnView_" + std::to_string(button), ViewName(button), parent);
    connect(made, &QToolButton::clicked, this,
            [this, button] { Do([button](CFittingWindow& window) { window.ClickView(button); }); });
    viewButtons_.at(static_cast<std::size_t>(button)) = made;
    return made;
}

QGridLayout* FittingView::MakeViewButtons(QWidget* parent) {
    auto* grid = new QGridLayout;
    grid->setSpacing(2);
    for (int i = 0; i < PatternButton; ++i) {
        QToolButton* button = MakeViewButton(i, parent);
        button->setIconSize({ViewIconSize, ViewIconSize});
        grid->addWidget(button, i / 3, i % 3);
    }
    return grid;
}

QWidget* FittingView::MakeTextSize(QWidget* parent) {
    auto* frame = new QWidget(parent);
    NameWidget(*frame, "Frame1", tr("Text size of the drawing"));
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    textSizeLabel_ = new QLabel(frame);
    NameWidget(*textSizeLabel_, "lblTextSize", tr("Text size"));
    textSize_ = new QLineEdit(frame);
    NameWidget(*textSize_, "txtTextSize", tr("Text size of drawn texts"));
    textSize_->setFocusPolicy(Qt::ClickFocus);
    textSize_->setFixedWidth(textSize_->fontMetrics().horizontalAdvance(QStringLiteral("00000000")));
    textSizeLabel_->setBuddy(textSize_);
    layout->addWidget(textSizeLabel_);
    layout->addWidget(textSize_);
    layout->addStretch(1);
    Connect(textSize_, window_->controls.txtTextSize,
            [](CFittingWindow& window, const std::string& text) { window.ChangeTextSize(text); });
    return frame;
}

QWidget* FittingView::MakeControls() {
    auto* frame = new QGroupBox;
    NameWidget(*frame, "fraControls", tr("Type, views and commands"));
    auto* layout = new QHBoxLayout(frame);
    layout->addLayout(MakeViewButtons(frame));
    auto* right = new QVBoxLayout;
    typeLabel_ = new QLabel(frame);
    NameWidget(*typeLabel_, "lblDtype", tr("Type of the fitting"));
    auto* types = new QHBoxLayout;
    for (const std::size_t i : {std::size_t{1}, std::size_t{0}}) {
        typeButtons_.at(i) = MakeButton("btnPoint_" + std::to_string(i),
                                        i == 0 ? tr("Next type") : tr("Previous type"), frame);
        connect(typeButtons_.at(i), &QToolButton::clicked, this, [this, i] {
            Do([i](CFittingWindow& window) { window.ClickPoint(i); });
            FocusFirstBox();
        });
    }
    types->addWidget(typeButtons_[1]);
    types->addWidget(typeLabel_, 1, Qt::AlignCenter);
    types->addWidget(typeButtons_[0]);
    right->addLayout(types);
    right->addWidget(MakeTextSize(frame));
    redraw_ = MakeButton("btnRedraw", tr("Redraw this fitting"), frame);
    redraw_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    redraw_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(redraw_, &QToolButton::clicked, this,
            [this] { Do([](CFittingWindow& window) { window.Redraw(); }); });
    settings_ = MakeButton("btnSettings", tr("Pattern settings of this fitting"), frame);
    connect(settings_, &QToolButton::clicked, this,
            [this] { Do([](CFittingWindow& window) { window.Settings(); }); });
    close_ = MakeButton("btnClose", tr("Close this fitting"), frame);
    connect(close_, &QToolButton::clicked, this, [this] { closeWindow(); });
    auto* commands = new QHBoxLayout;
    commands->addWidget(redraw_, 1);
    commands->addWidget(settings_);
    commands->addWidget(close_);
    right->addLayout(commands);
    layout->addSpacing(Pixels(80));
    layout->addLayout(right, 1);
    return frame;
}

QWidget* FittingView::MakePatternControls() {
    patternFrame_ = new QGroupBox;
    NameWidget(*patternFrame_, "fraControls2", tr("Pattern"));
    auto* layout = new QHBoxLayout(patternFrame_);
    auto* caption = new QLabel(Text(window_->controls.fraControls2.caption), patternFrame_);
    caption->setWordWrap(true);
    NameWidget(*caption, "lblPattern", caption->text());
    QToolButton* pattern = MakeViewButton(PatternButton, patternFrame_);
    pattern->setIconSize({PatternIconSize, PatternIconSize});
    pattern->setMinimumSize(Pixels(550), Pixels(550));
    layout->addWidget(caption, 1);
    layout->addWidget(pattern);
    return patternFrame_;
}

/// What the tab key does not reach has a shortcut, valid while the focus is in this window.
void FittingView::AddShortcuts() {
    const auto add = [this](const QString& keys, std::function<void()> action) {
        auto* shortcut = new QShortcut(QKeySequence(keys), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, std::move(action));
    };
    for (int i = 0; i <= PatternButton; ++i) {
        add(QStringLiteral("Ctrl+%1").arg((i + 1) % 10),
            [this, i] { viewButtons_.at(static_cast<std::size_t>(i))->click(); });
    }
    add(QStringLiteral("Ctrl+PgDown"), [this] { typeButtons_[0]->click(); });
    add(QStringLiteral("Ctrl+PgUp"), [this] { typeButtons_[1]->click(); });
    add(QStringLiteral("Ctrl+T"), [this] { textSize_->setFocus(Qt::ShortcutFocusReason); });
    add(QStringLiteral("Ctrl+D"), [this] { drawing_->setFocus(Qt::ShortcutFocusReason); });
    add(QStringLiteral("Ctrl+E"), [this] { settings_->click(); });
}

/// Edits and the selection of a box go into the model as they happen.
template <typename Change>
void FittingView::Connect(QLineEdit* edit, TextBox& box, Change change) {
    edit->installEventFilter(this);
    edit->setAcceptDrops(false);  // a file dropped on a box is one for the frame
    connect(edit, &QLineEdit::textEdited, this, [this, edit, &box, change](const QString& text) {
        Do([&](CFittingWindow& window) {
            window.controls.focus = shownFocus_ = box.name;
            TakeSelection(*edit, box);
            change(window, text.toStdString());
        });
    });
    connect(edit, &QLineEdit::selectionChanged, this, [this, edit, &box] {
        if (window_ != nullptr) {
            TakeSelection(*edit, box);
        }
    });
}

bool FittingView::IsShortcut(const QKeyEvent& event) const {
    const QList<QShortcut*> shortcuts = findChildren<QShortcut*>(Qt::FindDirectChildrenOnly);
    return std::any_of(shortcuts.begin(), shortcuts.end(), [&](const QShortcut* shortcut) {
        return shortcut->key() == QKeySequence(event.keyCombination());
    });
}

/// A box that gains the focus has all its text selected; a click that brings the focus selects it too. One
/// that gets it back, from a menu or another program, goes on as it was left: the next key must not type over
/// what stands there.
bool FittingView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && IsShortcut(static_cast<const QKeyEvent&>(*event))) {
        event->ignore();  // on some desktops a text box takes keys of its own before the window's
        return true;
    }
    if (window_ != nullptr && event->type() == QEvent::FocusIn &&
        watched->objectName().toStdString() != window_->controls.focus) {
        for (std::size_t i = 0; i < boxes_.size(); ++i) {
            if (boxes_[i] == watched) {
                window_->FocusBox(i);
                shownFocus_ = window_->controls.focus;
                SelectOnEntry(*boxes_[i], static_cast<const QFocusEvent&>(*event).reason());
            }
        }
        if (watched == textSize_ || watched == drawing_) {
            window_->controls.focus = shownFocus_ = watched->objectName().toStdString();
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FittingView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    panel_->setFixedWidth(panel_->widget()->minimumSizeHint().width() +
                          panel_->verticalScrollBar()->sizeHint().width());
    if (window_ != nullptr) {
        window_->Resize(PlaceOf(rect()));
        drawing_->Project();
    }
}

void FittingView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && drawing_ != nullptr) {
        ShowIcons();
    }
}

void FittingView::ShowIcons() {
    for (int i = 0; i <= PatternButton; ++i) {
        viewButtons_.at(static_cast<std::size_t>(i))->setIcon(ViewIcon(i, palette()));
    }
    typeButtons_[0]->setIcon(ToolIcon("NextType"));
    typeButtons_[1]->setIcon(ToolIcon("PreviousType"));
    settings_->setIcon(ToolIcon("Properties"));
    close_->setIcon(ToolIcon("Close"));
}

void FittingView::SpeakWindow(const QString& name) {
    if (name == spokenWindow_) {
        return;
    }
    const auto suffix = [](const QString& window) { return window.isEmpty() ? window : ", " + window; };
    const QString before = suffix(spokenWindow_);
    QList<QWidget*> widgets = findChildren<QWidget*>();
    widgets.append(this);
    for (QWidget* widget : widgets) {
        if (!widget->accessibleName().isEmpty()) {
            widget->setAccessibleName(widget->accessibleName().chopped(before.size()) + suffix(name));
        }
    }
    spokenWindow_ = name;
}

void FittingView::TakeShape(int state) {
    if (window_ != nullptr) {
        window_->controls.state = state;
        window_->controls.place = PlaceOf(geometry());
        window_->Resize(PlaceOf(rect()));
        drawing_->Project();
    }
}

void FittingView::FocusFirstBox() {
    const auto* page = static_cast<SketchPage*>(pageStack_->currentWidget());
    page->Boxes().front()->setFocus(Qt::OtherFocusReason);
}

void FittingView::Project() {
    if (window_ == nullptr) {
        return;
    }
    const WindowModel& model = window_->controls;
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        if (model.Picture1.at(i).visible) {
            pageStack_->setCurrentWidget(pages_[i]);
        }
    }
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        ShowBox(*boxes_[i], model.txtParameter[i]);
    }
    ShowBox(*textSize_, model.txtTextSize);
    for (std::size_t i = 0; i < viewButtons_.size(); ++i) {
        ShowControl(*viewButtons_.at(i), model.btnView.at(i));
    }
    for (std::size_t i = 0; i < typeButtons_.size(); ++i) {
        ShowControl(*typeButtons_.at(i), model.btnPoint.at(i));
    }
    typeLabel_->setText(Text(model.lblDtype.caption));
    typeLabel_->setAccessibleDescription(typeLabel_->text());
    textSizeLabel_->setText(Text(model.lblTextSize.caption));
    redraw_->setText(Text(model.btnRedraw.caption));
    ShowControl(*settings_, model.btnSettings);
    ShowControl(*close_, model.btnClose);
    ShowPointer();
    drawing_->Project();
    ProjectFocus();
}

/// A refusal has moved the model's focus, or has selected the text of the box that has it.
void FittingView::ProjectFocus() {
    const WindowModel& model = window_->controls;
    const auto project = [&](QLineEdit& edit, const TextBox& box) {
        if (box.name != model.focus) {
            return;
        }
        if (model.focus != shownFocus_) {
            shownFocus_ = model.focus;
            edit.setFocus(Qt::OtherFocusReason);
            panel_->ensureWidgetVisible(&edit);
        }
        if (box.selectionLength > 0) {
            ShowSelection(edit, box);
        }
    };
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        project(*boxes_[i], model.txtParameter[i]);
    }
    project(*textSize_, model.txtTextSize);
}

}  // namespace korvet::desktop
