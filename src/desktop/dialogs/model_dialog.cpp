#include "desktop/dialogs/model_dialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <stdexcept>
#include <utility>

#include "core/reason.h"
#include "desktop/bindings.h"
#include "dialogs/options_dialog.h"
#include "window/context.h"

namespace korvet::desktop {
namespace {

QDialogButtonBox::ButtonRole RoleOf(ModelDialog::Role role) {
    switch (role) {
        case ModelDialog::Role::Accept:
            return QDialogButtonBox::AcceptRole;
        case ModelDialog::Role::Reject:
            return QDialogButtonBox::RejectRole;
        case ModelDialog::Role::Help:
            return QDialogButtonBox::HelpRole;
        default:
            return QDialogButtonBox::ActionRole;
    }
}

/// The area that the controls stand in: it scrolls only where the screen is too small for them.
QScrollArea* MakeScroll() {
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    return scroll;
}

/// Whether the user went to a control, and not just back to its window.
bool IsStep(Qt::FocusReason reason) {
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
           reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

}  // namespace

ModelDialog::ModelDialog(DialogHost host, const std::string& controlName, const std::string& caption,
                         QSize minimum, int helpContext)
    : QDialog(host.parent),
      host_(std::move(host)),
      minimum_(Pixels(minimum.width()), Pixels(minimum.height())),
      scroll_(MakeScroll()),
      buttons_(new QDialogButtonBox),
      helpContext_(helpContext) {
    NameWidget(*this, controlName, Text(caption));
    setWindowTitle(Text(caption));
    auto* body = new QWidget;
    bodyLayout_ = new QVBoxLayout(body);
    bodyLayout_->setContentsMargins({});
    scroll_->setWidget(body);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(scroll_, 1);
    layout->addWidget(buttons_);
    const auto* help = new QShortcut(QKeySequence::HelpContents, this);
    connect(help, &QShortcut::activated, this, [this] {
        if (host_.showHelp) {
            host_.showHelp(helpContext_);
        }
    });
}

QPushButton& ModelDialog::AddButton(Role role, const std::string& controlName, const QString& text,
                                    const QString& accessibleName, std::function<void()> event) {
    auto* button = new QPushButton(text);
    NameWidget(*button, controlName, accessibleName);
    buttons_->addButton(button, RoleOf(role));
    button->setDefault(role == Role::Accept);
    connect(button, &QPushButton::clicked, this, [this, event = std::move(event)] { Do(event); });
    return *button;
}

void ModelDialog::AddHelpButton() {
    AddButton(Role::Help, "btnHelp", QStringLiteral("&Help"), QStringLiteral("Help"), [this] {
        if (host_.showHelp) {
            host_.showHelp(helpContext_);
        }
    });
}

void ModelDialog::AddOptionsButton() {
    AddButton(Role::Other, "btnOptions", QStringLiteral("O&ptions..."), QStringLiteral("Global options"),
              [this] { RunOptionsOnTop(host_, OptionsDialog::DxfTab); });
}

void ModelDialog::Do(const std::function<void()>& event) {
    for (const BoundBox& bound : boxes_) {
        TakeSelection(*bound.edit, *bound.box);
    }
    if (model_.focus != nullptr) {
        model_.focus->clear();
    }
    try {
        event();
    } catch (const std::exception& error) {
        ShowPlain(host_.ui, ReasonOf(error));
    }
    Project();
    ShowFocus();
    if (model_.visible && !model_.visible()) {
        done(QDialog::Accepted);
    }
}

void ModelDialog::ShowBy(std::function<void()> projection) {
    projections_.push_back(std::move(projection));
}

void ModelDialog::Bind(QWidget& widget, const Control& control) {
    ShowBy([&widget, &control] { ShowControl(widget, control); });
}

void ModelDialog::Bind(QLineEdit& edit, TextBox& box, std::function<void(const std::string&)> change) {
    boxes_.push_back({&edit, &box});
    ShowBy([&edit, &box] { ShowBox(edit, box); });
    connect(&edit, &QLineEdit::textChanged, this, [this, change = std::move(change)](const QString& text) {
        Do([&] { change(text.toStdString()); });
    });
}

void ModelDialog::Bind(QComboBox& combo, ComboBox& box, std::function<void(const std::string&)> change) {
    ShowBy([&combo, &box] { ShowCombo(combo, box); });
    const auto take = [this, change = std::move(change)](const QString& text) {
        Do([&] { change(text.toStdString()); });
    };
    if (combo.isEditable()) {
        boxes_.push_back({combo.lineEdit(), &box.edit});
        connect(&combo, &QComboBox::editTextChanged, this, take);
    } else {
        connect(&combo, &QComboBox::currentTextChanged, this, take);
    }
}

void ModelDialog::Bind(std::span<QRadioButton* const> buttons, const OptionGroup& group,
                       std::function<void(std::size_t)> click) {
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        QRadioButton* const button = buttons[i];
        ShowBy([button, &group, i] { ShowOption(*button, group, i); });
        connect(button, &QRadioButton::toggled, this, [this, click, i](bool on) {
            if (on) {
                Do([&] { click(i); });
            }
        });
    }
}

void ModelDialog::Bind(QCheckBox& button, const CheckBox& box, std::function<void(bool)> click) {
    ShowBy([&button, &box] { ShowCheck(button, box); });
    connect(&button, &QCheckBox::toggled, this,
            [this, click = std::move(click)](bool on) { Do([&] { click(on); }); });
}

void ModelDialog::OnFocus(QWidget& widget, std::function<void()> event) {
    focusEvents_.push_back({&widget, std::move(event)});
    widget.installEventFilter(this);
}

bool ModelDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn && IsStep(static_cast<QFocusEvent*>(event)->reason())) {
        for (const FocusEvent& focus : focusEvents_) {
            if (focus.widget == watched) {
                // The press of the mouse that brought the focus puts the cursor somewhere first.
                QTimer::singleShot(0, this, [this, &focus] { Do(focus.event); });
            }
        }
    }
    return QDialog::eventFilter(watched, event);
}

void ModelDialog::Run(DialogModel model) {
    model_ = std::move(model);
    bodyLayout_->addStretch();  // a window that is drawn larger keeps its rows together
    Project();
    FitToScreen();
    ShowFocus();
    exec();
}

void ModelDialog::reject() {
    Do(model_.cancel);
}

void ModelDialog::Project() {
    for (const auto& projection : projections_) {
        projection();
    }
}

/// The focus where the last event put it, if it did, and the selection in the boxes; else the model learns
/// where the user has it.
void ModelDialog::ShowFocus() {
    if (model_.focus != nullptr) {
        if (QWidget* const wanted =
                model_.focus->empty() ? nullptr : findChild<QWidget*>(Text(*model_.focus))) {
            wanted->setFocus(Qt::OtherFocusReason);
            scroll_->ensureWidgetVisible(wanted);
        } else if (focusWidget() != nullptr) {
            *model_.focus = focusWidget()->objectName().toStdString();
        }
    }
    for (const BoundBox& bound : boxes_) {
        if (bound.box->selectionLength > 0) {
            ShowSelection(*bound.edit, *bound.box);
        }
    }
}

void ModelDialog::FitToScreen() {
    constexpr double ShareOfScreen = 0.92;  // the rest is for the window's frame and the desktop's bars
    QWidget* const body = scroll_->widget();
    layout()->activate();
    const QMargins margins = layout()->contentsMargins();
    const QSize around(
        margins.left() + margins.right(),
        margins.top() + margins.bottom() + layout()->spacing() + buttons_->minimumSizeHint().height());
    const QSize most = QSizeF(screen()->availableSize()).toSize() * ShareOfScreen - around;
    const int width = std::max(body->minimumSizeHint().width(), minimum_.width() - around.width());
    const int height = bodyLayout_->hasHeightForWidth()  // text that is broken into lines
                           ? bodyLayout_->heightForWidth(std::min(width, most.width()))
                           : body->minimumSizeHint().height();
    const QSize wanted(width, std::max(height, minimum_.height() - around.height()));
    QSize shown = wanted.boundedTo(most);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (shown.height() < wanted.height()) {
        shown.setWidth(std::min(shown.width() + bar, most.width()));
    }
    scroll_->setMinimumSize(shown);
    resize(layout()->minimumSize());
}

void RunOptionsOnTop(const DialogHost& host, int tab) {
    if (host.context == nullptr) {
        return;
    }
    OptionsDialog options(host.context->options, host.ui, host.context->files, host.context->decimalMark,
                          tab);
    host.ui.RunModal(options);
}

}  // namespace korvet::desktop
