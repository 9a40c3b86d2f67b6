// A parameter page: the sketch of one type of a fitting with a text box on each dimension line.
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "sketch/sketch_layout.h"

class QLabel;
class QLineEdit;

namespace korvet::desktop {

/// The page's boxes are txtParameter_0, txtParameter_1 ... by their index in the window, in the order of the
/// page for the Tab key, each with a label of the same number (lblParameter_0 ...). What is typed is the
/// owner's business.
class SketchPage : public QWidget {
    Q_OBJECT

  public:
    /// The table must outlive the page. Pages count from 0.
    SketchPage(const WindowTable& table, std::size_t page, QWidget* parent);

    /// The box with this index in the window; null when it is not on this page.
    [[nodiscard]] QLineEdit* Box(int index) const;

    /// In the order of the page.
    [[nodiscard]] const std::vector<QLineEdit*>& Boxes() const { return boxes_; }

    /// The width that the page has from now on, in text boxes. Whether its sketch has room in it; where it
    /// has not, the page is as wide as it needs.
    bool TakeWidth(double boxes);

    /// Draws all surfaces of the shape but this one (from 1) pale; 0: none of them.
    void ShowOff(std::size_t surface);

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void MakeBox(const BoxEntry& entry);
    void MeasureTexts();
    void LayOut();
    [[nodiscard]] const QSize& Smallest() const;

    const WindowTable& table_;
    std::size_t page_;
    const PageEntry& entry_;
    std::size_t shownOff_ = 0;
    PageSketch sketch_;
    SketchMetrics metrics_;
    double widthInBoxes_ = 0;                ///< 0 until the owner has one in mind
    mutable std::optional<QSize> smallest_;  ///< of the sketch, once it was asked for
    SketchLayout layout_;
    std::vector<QLineEdit*> boxes_;
    std::vector<QLabel*> labels_;
};

}  // namespace korvet::desktop
