#include "desktop/sketch/sketch_page.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/bindings.h"
#include "desktop/sketch/sketch_painter.h"

namespace korvet::desktop {
namespace {

constexpr int LeastSide = 275;  // of a page

/// A page is as high as its sketch needs, and half as much again where the window has room for it.
constexpr double ComfortableHeight = 1.5;

/// A layout's rectangle on whole pixels, of the size that was measured.
QRect PixelRect(const SketchRect& rect) {
    return {static_cast<int>(std::lround(rect.x)), static_cast<int>(std::lround(rect.y)),
            static_cast<int>(std::lround(rect.width)), static_cast<int>(std::lround(rect.height))};
}

}  // namespace

SketchPage::SketchPage(const WindowTable& table, std::size_t page, QWidget* parent)
    : QWidget(parent),
      table_(table),
      page_(page),
      entry_(table.pages[page]),
      sketch_(MakePageSketch(table, page)) {
    for (const BoxEntry& box : entry_.boxes) {
        MakeBox(box);
    }
    MeasureTexts();
}

void SketchPage::MakeBox(const BoxEntry& entry) {
    const QString name = QString::fromUtf8(entry.label.data(), static_cast<qsizetype>(entry.label.size()));
    auto* edit = new QLineEdit(this);
    NameWidget(*edit, "txtParameter_" + std::to_string(entry.index), name);
    auto* label = new QLabel(this);
    NameWidget(*label, "lblParameter_" + std::to_string(entry.index), name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setBuddy(edit);
    if (!boxes_.empty()) {
        setTabOrder(boxes_.back(), edit);
    }
    boxes_.push_back(edit);
    labels_.push_back(label);
}

QLineEdit* SketchPage::Box(int index) const {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        if (entry_.boxes[i].index == index) {
            return boxes_[i];
        }
    }
    return nullptr;
}

void SketchPage::ShowOff(std::size_t surface) {
    if (surface == shownOff_) {
        return;
    }
    shownOff_ = surface;
    sketch_ = MakePageSketch(table_, page_, surface);
    for (std::size_t view = 0; view < layout_.solids.size(); ++view) {
        layout_.solids[view].picture = sketch_.pictures[view];
    }
    update();
}

bool SketchPage::TakeWidth(double boxes) {
    widthInBoxes_ = boxes;
    MeasureTexts();
    return Smallest().width() <= metrics_.mostWidth;
}

const QSize& SketchPage::Smallest() const {
    if (!smallest_) {
        const SketchXY smallest = SmallestSketch(sketch_, metrics_);
        smallest_ = QSizeF(std::ceil(smallest.x), std::ceil(smallest.y)).toSize();
    }
    return *smallest_;
}

QSize SketchPage::minimumSizeHint() const {
    const int width = widthInBoxes_ > 0 ? static_cast<int>(metrics_.mostWidth) : LeastSide;
    return Smallest().expandedTo({width, LeastSide});
}

QSize SketchPage::sizeHint() const {
    const QSize smallest = minimumSizeHint();
    return {smallest.width(), static_cast<int>(smallest.height() * ComfortableHeight)};
}

void SketchPage::MeasureTexts() {
    const QFontMetricsF font(this->font());
    double boxHeight = 0;
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        labels_[i]->setText(SketchLabelText(entry_.boxes[i].label, font));
        boxHeight = std::max<double>(boxHeight, boxes_[i]->sizeHint().height());
    }
    metrics_ = MeasureSketch(entry_, font, boxHeight);
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        const QSize hint = labels_[i]->sizeHint();
        metrics_.labels[i] = {static_cast<double>(hint.width()), static_cast<double>(hint.height())};
    }
    if (widthInBoxes_ > 0) {
        metrics_.mostWidth = std::floor(widthInBoxes_ * metrics_.box.x);
    }
    smallest_.reset();
    updateGeometry();
}

void SketchPage::LayOut() {
    layout_ = LayoutSketch(sketch_, metrics_, width(), height());
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i]->setGeometry(PixelRect(layout_.boxes[i]));
        labels_[i]->setGeometry(PixelRect(layout_.labels[i]));
    }
    update();
}

void SketchPage::resizeEvent(QResizeEvent* /*event*/) {
    LayOut();
}

void SketchPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    const QEvent::Type type = event->type();
    if (type == QEvent::FontChange || type == QEvent::StyleChange) {
        MeasureTexts();
        if (layout_.width > 0) {  // a page that was never shown has no size to be laid out in
            LayOut();
        }
    } else if (type == QEvent::PaletteChange) {
        update();
    }
}

void SketchPage::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    PaintSketch(painter, layout_, palette());
    for (const QLineEdit* box : boxes_) {
        PaintBoxFrame(painter, box->geometry(), palette());
    }
}

}  // namespace korvet::desktop
