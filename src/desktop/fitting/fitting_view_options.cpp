// What only some fitting windows have: options, the steps between their pages, and further options.
#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/bindings.h"
#include "desktop/fitting/fitting_view.h"
#include "desktop/sketch/sketch_scroll.h"

namespace korvet::desktop {
namespace {

constexpr int OptionMargin = 6;  // pixels; what it takes, the sketch above has not

FittingView::SelectButton SelectIn(OptionGroup FittingOptions::*group) {
    return [group](CFittingWindow& window, std::size_t button) { window.SelectOption(group, button); };
}

/// The Tab key stops once in a group: at the button that is on, or else where the focus was or would begin.
void StopTabOnce(const std::vector<QRadioButton*>& buttons) {
    const auto find = [&](auto has) { return std::find_if(buttons.begin(), buttons.end(), has); };
    auto stop = find([](const QRadioButton* button) { return button->isChecked(); });
    if (stop == buttons.end()) {
        stop = find([](const QRadioButton* button) { return button->hasFocus(); });
    }
    for (QRadioButton* button : buttons) {
        const bool stops = stop == buttons.end() ? button == buttons.front() : button == *stop;
        button->setFocusPolicy(stops ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

}  // namespace

/// A frame with the buttons of a group, of which none may be on. With the keys Tab leads to the group, the
/// arrows lead from button to button, and Space selects. The buttons stand beside each other where they fit
/// into `room` pixels.
QGroupBox* FittingView::MakeOptions(const std::string& name, const QString& title,
                                    OptionGroup FittingOptions::*group, const SelectButton& select,
                                    int room) {
    auto* frame = new QGroupBox(title);
    NameWidget(*frame, "fra" + name.substr(3), title);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(OptionMargin, 0, OptionMargin, OptionMargin);
    layout->setSpacing(0);
    int width = 0;
    auto* exclusive = new QButtonGroup(frame);
    Options& made = options_.emplace_back(Options{group, {}});
    for (const std::string& text : (window_->controls.options.*group).captions) {
        const QString caption = Text(text).trimmed();
        const std::size_t index = made.buttons.size();
        auto* button = new QRadioButton(caption);
        NameWidget(*button, name + "_" + std::to_string(index), title + QStringLiteral(": ") + caption);
        button->installEventFilter(this);
        connect(button, &QRadioButton::toggled, this, [this, index, select](bool on) {
            if (on) {
                Do([&](CFittingWindow& window) { select(window, index); });
            }
        });
        exclusive->addButton(button);
        layout->addWidget(button);
        made.buttons.push_back(button);
        width += button->sizeHint().width() + Pixels(200);
    }
    if (width < room) {
        layout->setDirection(QBoxLayout::LeftToRight);
    }
    return frame;
}

/// The axes that the ends of a page's shape are tilted about.
QWidget* FittingView::MakeAngleOptions() {
    auto* holder = new QWidget;
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    const auto top = &FittingOptions::optTopAngle;
    row->addWidget(MakeOptions("optTopAngle", tr("Top angle"), top, SelectIn(top)));
    const auto base = &FittingOptions::optBaseAngle;
    row->addWidget(MakeOptions("optBaseAngle", tr("Base angle"), base, SelectIn(base)));
    return holder;
}

/// The steps of all pages, in one place: that of the page which is shown is seen.
QLayout* FittingView::MakeSteps(QWidget* parent, const std::string& name, const std::vector<Control>& models,
                                void (CFittingWindow::*click)(std::size_t)) {
    auto* place = new QGridLayout;
    const bool onward = click == &CFittingWindow::ClickMore;
    for (std::size_t page = 0; page < models.size(); ++page) {
        const QString caption = Text(models[page].caption);
        const QString spoken = tr("%1, to type %2").arg(caption).arg(onward ? page + 2 : page);
        QToolButton* button = MakeButton(name + "_" + std::to_string(page), spoken, parent);
        button->setText(caption);
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(true);  // nothing moves where there is none
        button->setSizePolicy(policy);
        connect(button, &QToolButton::clicked, this, [this, page, click] {
            Do([page, click](CFittingWindow& window) { (window.*click)(page); });
            FocusFirstBox();
        });
        place->addWidget(button, 0, 0);
        shown_.push_back({button, &models[page], page});
    }
    return place;
}

/// A page with what stands below its sketch.
QWidget* FittingView::MakePage(std::size_t index) {
    auto* holder = new QWidget;
    auto* column = new QVBoxLayout(holder);
    column->setContentsMargins(0, 0, 0, 0);
    scrolls_.push_back(new SketchScroll(MakeSketch(index)));
    column->addWidget(scrolls_.back(), 1);
    if (window_->Table().pages[index].angleOptions) {
        column->addWidget(MakeAngleOptions());
    }
    return holder;
}

/// The options of the whole window, one below the other and no wider than its widest page.
void FittingView::AddWindowOptions(QBoxLayout& column) {
    const FittingOptions& options = window_->controls.options;
    int room = 0;
    for (const SketchPage* page : pages_) {
        room = std::max(room, page->minimumSizeHint().width());
    }
    if (!options.optPatternSelect.captions.empty()) {
        column.addWidget(MakeOptions(
            "optPatternSelect", tr("Select Pattern"), &FittingOptions::optPatternSelect,
            [](CFittingWindow& window, std::size_t button) { window.SelectPattern(button); }, room));
    }
    if (!options.optFlushSide.captions.empty()) {
        const auto side = &FittingOptions::optFlushSide;
        column.addWidget(MakeOptions("optFlushSide", tr("Flush side"), side, SelectIn(side), room));
    }
    const Control& position = window_->controls.btnPosition;
    if (position.visible) {
        column.addWidget(
            MakeWideButton("btnPosition", position, [](CFittingWindow& window) { window.ClickPosition(); }));
    }
    const std::vector<Control>& meshes = window_->controls.btnImportMesh;
    for (std::size_t i = 0; i < meshes.size(); ++i) {
        QPushButton* const button =
            MakeWideButton("btnImportMesh_" + std::to_string(i), meshes[i],
                           [i](CFittingWindow& window) { window.ClickImportMesh(i); });
        firstControl_ = firstControl_ == nullptr ? button : firstControl_;
        column.addWidget(button);
    }
}

/// A button as wide as the panel, which the tab key reaches.
QPushButton* FittingView::MakeWideButton(const std::string& name, const Control& model,
                                         const std::function<void(CFittingWindow&)>& click) {
    auto* button = new QPushButton(Text(model.caption));
    NameWidget(*button, name, button->text());
    button->installEventFilter(this);
    connect(button, &QPushButton::clicked, this, [this, click] { Do(click); });
    shown_.push_back({button, &model});
    return button;
}

void FittingView::ProjectOptions() {
    const FittingOptions& options = window_->controls.options;
    for (const Options& group : options_) {
        for (std::size_t i = 0; i < group.buttons.size(); ++i) {
            ShowOption(*group.buttons[i], options.*group.group, i);
        }
        StopTabOnce(group.buttons);
    }
    for (const Shown& shown : shown_) {
        Control control = *shown.control;
        const bool onOtherPage = shown.page && static_cast<int>(*shown.page) != pageStack_->currentIndex();
        control.visible = control.visible && !onOtherPage;
        ShowControl(*shown.widget, control);
    }
    // The other pages follow when they are shown.
    ShownPage().ShowOff(ShownOffSurface(window_->Table(), options.optPatternSelect));
}

}  // namespace korvet::desktop
