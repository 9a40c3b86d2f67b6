// What only some fitting windows have: options, the steps between their pages, and further options.
#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/bindings.h"
#include "desktop/fitting/fitting_view.h"
#include "desktop/sketch/sketch_scroll.h"

namespace korvet::desktop {
namespace {

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

QToolButton* FittingView::MakeStep(const std::string& name, std::size_t page, const Control& model,
                                   const QString& spoken, void (CFittingWindow::*click)(std::size_t)) {
    QToolButton* button = MakeButton(name + "_" + std::to_string(page),
                                     Text(model.caption) + QStringLiteral(", ") + spoken, nullptr);
    button->setText(Text(model.caption));
    connect(button, &QToolButton::clicked, this, [this, page, click] {
        Do([page, click](CFittingWindow& window) { (window.*click)(page); });
        FocusFirstBox();
    });
    shown_.push_back({button, &model});
    return button;
}

/// On to the next page and back to the one before, at the sides that they lead to.
QLayout* FittingView::MakeSteps(std::size_t page) {
    const WindowModel& model = window_->controls;
    auto* row = new QHBoxLayout;
    row->addWidget(MakeStep("btnBack", page, model.btnBack.at(page), tr("to type %1").arg(page),
                            &CFittingWindow::ClickBack));
    row->addStretch(1);
    row->addWidget(MakeStep("btnMore", page, model.btnMore.at(page), tr("to type %1").arg(page + 2),
                            &CFittingWindow::ClickMore));
    return row;
}

/// A page with what stands below its sketch.
QWidget* FittingView::MakePage(std::size_t index) {
    auto* holder = new QWidget;
    auto* column = new QVBoxLayout(holder);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new SketchScroll(MakeSketch(index)), 1);
    if (window_->Table().pages[index].angleOptions) {
        column->addWidget(MakeAngleOptions());
    }
    if (index < window_->controls.btnMore.size()) {
        column->addLayout(MakeSteps(index));
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
    for (const auto& [widget, control] : shown_) {
        ShowControl(*widget, *control);
    }
    // The other pages follow when they are shown.
    ShownPage().ShowOff(ShownOffSurface(window_->Table(), options.optPatternSelect));
}

}  // namespace korvet::desktop
