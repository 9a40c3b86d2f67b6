// The page of the help window: text of the help file with live sketches.
#pragma once

#include <QImage>
#include <QPalette>
#include <QTextBrowser>
#include <functional>

namespace korvet::desktop {

class HelpBook;

/// The sketch of a parameter page: category, page from 1, size in logical pixels, colours. The image carries
/// its own device pixel ratio. A null image when there is no such page.
using SketchPicture =
    std::function<QImage(const QString& category, int page, QSize size, const QPalette& palette)>;

/// The size, in logical pixels, in which sketches stand on the pages.
inline constexpr QSize HelpSketchSize = {540, 380};

class HelpBrowser final : public QTextBrowser {
  public:
    /// The book must outlive it; the picture function may be empty.
    HelpBrowser(const HelpBook& book, SketchPicture sketches, QWidget* parent = nullptr);

    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] QVariant Sketch(const QString& pathOfSketch) const;

    /// Rules in the colours of the palette: the pages' own style sheet has no colours.
    [[nodiscard]] QString PaletteRules() const;

    const HelpBook& book_;
    SketchPicture sketches_;
};

}  // namespace korvet::desktop
