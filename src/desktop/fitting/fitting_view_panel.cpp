// The panel of a fitting window: its pages, buttons and keys.
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "desktop/bindings.h"
#include "desktop/fitting/fitting_view.h"
#include "desktop/sketch/sketch_scroll.h"
#include "window/views.h"

namespace korvet::desktop {
namespace {

constexpr int ViewIconSize = 30;
constexpr int PatternIconSize = 36;

/// Margins of the panel and of the frames in it, in pixels: what they take, the sketch has not.
constexpr int PanelMargin = 5;

/// All panels are of one of these two widths, in text boxes: most pages go into the first. Of a window as
/// narrow as a small screen the second is still less than half.
constexpr std::array PanelWidths = {4.4, 6.33};

/// A button that is never too small for its icon or its text.
class PanelButton final : public QToolButton {
  public:
    using QToolButton::QToolButton;

    [[nodiscard]] QSize sizeHint() const override {
        return QToolButton::sizeHint().expandedTo({Pixels(320), Pixels(320)});
    }
};

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

/// The sketch scrolls where the window is too low for the panel, and where it is lower still the panel does.
QWidget* FittingView::MakePanel() {
    auto* content = new QWidget;
    NameWidget(*content, "fraControls1", tr("Sizes and views"));
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(PanelMargin, PanelMargin, PanelMargin, PanelMargin);
    layout->setSpacing(PanelMargin);
    layout->addWidget(MakePages());
    ChooseWidth();
    layout->addWidget(MakeControls());
    AddWindowOptions(*layout);
    layout->addWidget(MakePatternControls());
    layout->addStretch(1);
    if (layout->minimumSize().width() > scrolls_.front()->minimumSizeHint().width() + 2 * PanelMargin) {
        (void)TakeWidth(PanelWidths.back());  // for what stands below the sketch
    }
    panel_ = new QScrollArea(this);
    panel_->setWidget(content);
    content->installEventFilter(this);  // what it needs changes with the font
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
        pageStack_->addWidget(MakePage(i));
    }
    return holder;
}

/// Whether all pages have room in a width, which they all take.
bool FittingView::TakeWidth(double boxes) {
    bool fits = true;
    for (SketchScroll* scroll : scrolls_) {
        fits = scroll->TakeWidth(boxes) && fits;
    }
    return fits;
}

/// The narrower width where the sketches of all pages have room in it, so that no step of the type moves the
/// drawing.
void FittingView::ChooseWidth() {
    (void)std::any_of(PanelWidths.begin(), PanelWidths.end(),
                      [this](double boxes) { return TakeWidth(boxes); });
}

SketchPage* FittingView::MakeSketch(std::size_t index) {
    auto* page = new SketchPage(window_->Table(), index, nullptr);
    NameWidget(*page, "Picture1_" + std::to_string(index), tr("Sizes of type %1").arg(index + 1));
    for (const BoxEntry& entry : window_->Table().pages[index].boxes) {
        const auto box = static_cast<std::size_t>(entry.index);
        boxes_.push_back({page->Box(entry.index), box});
        Connect(boxes_.back().edit, window_->controls.txtParameter.at(box),
                [box](CFittingWindow& window, const std::string& text) { window.EditBox(box, text); });
        connect(boxes_.back().edit, &QLineEdit::returnPressed, this,
                [this] { viewButtons_[PatternButton]->click(); });
    }
    pages_.push_back(page);
    return page;
}

QToolButton* FittingView::MakeButton(const std::string& name, const QString& accessibleName,
                                     QWidget* parent) {
    auto* button = new PanelButton(parent);
    NameWidget(*button, name, accessibleName);
    button->setFocusPolicy(Qt::NoFocus);  // the tab key goes from box to box
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
            [](CFittingWindow& window, const std::string& text) { window.EditTextSize(text); });
    return frame;
}

/// The type between the buttons that change it: the arrows, and outside of them those with words, where the
/// window has them.
QLayout* FittingView::MakeTypes(QWidget* parent) {
    typeLabel_ = new QLabel(parent);
    NameWidget(*typeLabel_, "lblDtype", tr("Type of the fitting"));
    for (const std::size_t i : {std::size_t{1}, std::size_t{0}}) {
        typeButtons_.at(i) = MakeButton("btnPoint_" + std::to_string(i),
                                        i == 0 ? tr("Next type") : tr("Previous type"), parent);
        connect(typeButtons_.at(i), &QToolButton::clicked, this, [this, i] {
            Do([i](CFittingWindow& window) { window.ClickPoint(i); });
            FocusFirstBox();
        });
    }
    const WindowModel& model = window_->controls;
    auto* types = new QHBoxLayout;
    types->setSpacing(2);
    types->addLayout(MakeSteps(parent, "btnBack", model.btnBack, &CFittingWindow::ClickBack));
    types->addWidget(typeButtons_[1]);
    types->addWidget(typeLabel_, 1, Qt::AlignCenter);
    types->addWidget(typeButtons_[0]);
    types->addLayout(MakeSteps(parent, "btnMore", model.btnMore, &CFittingWindow::ClickMore));
    return types;
}

QLayout* FittingView::MakeCommands(QWidget* parent) {
    redraw_ = MakeButton("btnRedraw", tr("Redraw this fitting"), parent);
    redraw_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    connect(redraw_, &QToolButton::clicked, this,
            [this] { Do([](CFittingWindow& window) { window.Redraw(); }); });
    settings_ = MakeButton("btnSettings", tr("Pattern settings of this fitting"), parent);
    connect(settings_, &QToolButton::clicked, this,
            [this] { Do([](CFittingWindow& window) { window.Settings(); }); });
    close_ = MakeButton("btnClose", tr("Close this fitting"), parent);
    connect(close_, &QToolButton::clicked, this, [this] { closeWindow(); });
    auto* commands = new QHBoxLayout;
    commands->addWidget(redraw_);
    commands->addStretch(1);
    commands->addWidget(settings_);
    commands->addWidget(close_);
    return commands;
}

QWidget* FittingView::MakeControls() {
    auto* frame = new QGroupBox;
    NameWidget(*frame, "fraControls", tr("Type, views and commands"));
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(PanelMargin, PanelMargin, PanelMargin, PanelMargin);
    layout->addLayout(MakeViewButtons(frame));
    auto* right = new QVBoxLayout;
    right->addLayout(MakeTypes(frame));
    right->addWidget(MakeTextSize(frame));
    right->addLayout(MakeCommands(frame));
    layout->addSpacing(PanelMargin);
    layout->addLayout(right, 1);
    return frame;
}

/// The button that all the work leads to: as wide as the panel, and saying what it does.
QWidget* FittingView::MakePatternControls() {
    auto* frame = new QWidget;
    NameWidget(*frame, "fraControls2", tr("Pattern"));
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    QToolButton* pattern = MakeViewButton(PatternButton, frame);
    pattern->setIconSize({PatternIconSize, PatternIconSize});
    pattern->setText(Text(window_->controls.fraControls2.caption));
    pattern->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    pattern->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    layout->addWidget(pattern);
    return frame;
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
void FittingView::Connect(QLineEdit* edit, TextBox& box, const ChangeText& change) {
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

}  // namespace korvet::desktop
