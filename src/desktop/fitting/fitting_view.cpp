#include "desktop/fitting/fitting_view.h"

#include <QFocusEvent>
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
#include <algorithm>
#include <utility>

#include "core/reason.h"
#include "desktop/bindings.h"
#include "desktop/fitting/view_icons.h"
#include "desktop/frame/icons.h"
#include "desktop/sketch/sketch_scroll.h"
#include "window/views.h"

namespace korvet::desktop {
namespace {

constexpr int SmallestDrawing = 1000;  ///< twips, each way

/// At once, before the next key comes; a click takes the selection away again, so there it waits for its end.
void SelectOnEntry(QLineEdit& box, Qt::FocusReason reason) {
    if (reason == Qt::MouseFocusReason) {
        QTimer::singleShot(0, &box, &QLineEdit::selectAll);
    } else {
        box.selectAll();
    }
}

}  // namespace

FittingView::FittingView(CFittingWindow& window, QWidget* parent) : QWidget(parent), window_(&window) {
    NameWidget(*this, std::string(window.Row().window), Text(std::string(window.Row().category)));
    drawing_ = new DrawingArea(window, this);
    drawing_->afterEvent = [this] { After(); };
    drawing_->pointerMoved = [this] {
        if (pointerMoved) {
            pointerMoved();
        }
    };
    drawing_->installEventFilter(this);
    drawing_->popUpMenu = [this](const QPoint& position) { popUpMenu(position); };
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, Pixels(100), Pixels(50));
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetNoConstraint);  // the panel follows the window, not the reverse
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
void FittingView::Do(const std::function<void(CFittingWindow&)>& action) {
    if (window_ == nullptr) {
        return;
    }
    UserInterface& ui = window_->Context().ui;
    try {
        action(*window_);
    } catch (const std::exception& error) {
        ShowPlain(ui, ReasonOf(error));
    }
    After();
}

void FittingView::After() {
    if (window_ != nullptr && afterEvent) {
        afterEvent();
    }
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
    if (panel_ != nullptr && watched == panel_->widget()) {
        if (event->type() == QEvent::LayoutRequest) {
            FitPanel();
        }
        return false;
    }
    if (event->type() == QEvent::ShortcutOverride && IsShortcut(static_cast<const QKeyEvent&>(*event))) {
        event->ignore();  // on some desktops a text box takes keys of its own before the window's
        return true;
    }
    if (window_ != nullptr && event->type() == QEvent::FocusIn &&
        watched->objectName().toStdString() != window_->controls.focus) {
        window_->controls.focus = watched->objectName().toStdString();
        for (const BoundBox& box : boxes_) {
            if (box.edit == watched) {
                window_->FocusBox(box.index);
                SelectOnEntry(*box.edit, static_cast<const QFocusEvent&>(*event).reason());
            }
        }
        shownFocus_ = window_->controls.focus;
    }
    return QWidget::eventFilter(watched, event);
}

/// What no box or button has taken.
void FittingView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    Do([](CFittingWindow& window) { window.PressEscape(); });
}

void FittingView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    FitPanel();
    if (window_ != nullptr) {
        window_->Resize(TwipsOf(rect()));
        drawing_->Project();
    }
}

/// As wide as it needs, with its bar where it has one; of a narrow window the panel has half, and scrolls.
/// The drawing has what is left at once: a file that is opened next is fitted into it.
void FittingView::FitPanel() {
    const QSize content = panel_->widget()->minimumSizeHint();
    const int bar = content.height() > height() ? panel_->verticalScrollBar()->sizeHint().width() : 0;
    panel_->setFixedWidth(std::min(content.width() + bar, width() / 2));
    layout()->activate();
}

QSize FittingView::minimumSizeHint() const {
    return {2 * Pixels(SmallestDrawing), Pixels(SmallestDrawing)};
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
        window_->controls.place = TwipsOf(geometry());
        window_->Resize(TwipsOf(rect()));
        drawing_->Project();
    }
}

void FittingView::FocusFirstBox() {
    const std::vector<QLineEdit*>& boxes = ShownPage().Boxes();
    QWidget* const instead = firstControl_ != nullptr ? firstControl_ : drawing_;
    QWidget* const first = boxes.empty() ? instead : boxes.front();
    first->setFocus(Qt::OtherFocusReason);
    RevealWidget(*first);
}

SketchPage& FittingView::ShownPage() const {
    return *pages_.at(static_cast<std::size_t>(pageStack_->currentIndex()));
}

void FittingView::Project() {
    if (window_ == nullptr) {
        return;
    }
    const WindowModel& model = window_->controls;
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        if (model.Picture1.at(i).visible) {
            pageStack_->setCurrentIndex(static_cast<int>(i));
        }
    }
    for (const BoundBox& box : boxes_) {
        ShowBox(*box.edit, model.txtParameter.at(box.index));
    }
    ShowBox(*textSize_, model.txtTextSize);
    ProjectViewButtons();
    for (std::size_t i = 0; i < typeButtons_.size(); ++i) {
        ShowControl(*typeButtons_.at(i), model.btnPoint.at(i));
    }
    typeLabel_->setText(Text(model.lblDtype.caption));
    typeLabel_->setAccessibleDescription(typeLabel_->text());
    textSizeLabel_->setText(Text(model.lblTextSize.caption));
    redraw_->setText(Text(model.btnRedraw.caption));
    ShowControl(*settings_, model.btnSettings);
    ShowControl(*close_, model.btnClose);
    ProjectOptions();
    ShowPointer();
    drawing_->Project();
    ProjectFocus();
    RevealBox();
}

/// The button of the view that is shown stays pressed.
void FittingView::ProjectViewButtons() {
    const std::optional<int> shown = ShownButton(*window_->views);
    for (int i = 0; i <= PatternButton; ++i) {
        QToolButton& button = *viewButtons_.at(static_cast<std::size_t>(i));
        ShowControl(button, window_->controls.btnView.at(static_cast<std::size_t>(i)));
        button.setCheckable(true);
        button.setChecked(shown == i);
    }
}

/// A message about a box scrolls to it before it comes up; afterwards the user scrolls as he likes.
void FittingView::RevealBox() {
    const std::string name = std::exchange(window_->controls.boxToReveal, {});
    for (const BoundBox& box : boxes_) {
        if (window_->controls.txtParameter.at(box.index).name == name &&
            ShownPage().Box(static_cast<int>(box.index)) == box.edit) {
            RevealWidget(*box.edit);
        }
    }
    if (window_->controls.txtTextSize.name == name) {
        RevealWidget(*textSize_);
    }
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
        }
        if (box.selectionLength > 0) {
            ShowSelection(edit, box);
        }
    };
    for (const BoundBox& box : boxes_) {
        // Of a box that several pages bear, the one on the page that is shown has the focus.
        const QLineEdit* const shown = ShownPage().Box(static_cast<int>(box.index));
        if (shown == nullptr || shown == box.edit) {
            project(*box.edit, model.txtParameter.at(box.index));
        }
    }
    project(*textSize_, model.txtTextSize);
}

}  // namespace korvet::desktop
