// frmCategoryMenu on the desktop: the picker of File > New.
#pragma once

#include <QDialog>
#include <array>
#include <functional>

#include "frame/catalogue.h"
#include "frame/category_menu.h"

class QLabel;
class QScrollBar;
class QToolButton;

namespace korvet::desktop {

class CategoryMenuWindow final : public QDialog {
  public:
    /// The dialog must outlive the window; showHelp gets the context number at F1.
    CategoryMenuWindow(CategoryMenuDialog& dialog, QWidget* parent, std::function<void(int)> showHelp);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void MakeTile(std::size_t tile);
    void DrawTiles();
    void Project();
    void Pick(std::size_t tile);

    /// Moves the keyboard's choice; columns and rows count from the tile that has it.
    void MoveFocus(const QWidget& from, int columns, int rows);
    void ShowFocused(const QWidget& tile);

    /// The model's twips to pixels: a tile is as large as its text needs in the desktop's font.
    [[nodiscard]] int ToPixels(int twips) const;
    [[nodiscard]] int ToTwips(int pixels) const;

    CategoryMenuDialog& dialog_;
    std::function<void(int)> showHelp_;
    std::array<QToolButton*, CatalogueSize> tiles_ = {};
    QScrollBar* scroll_;
    QLabel* category_;
    int tileSide_;
    qreal drawnRatio_ = 0;  ///< device pixel ratio that the pictures are drawn for
};

/// Shows the menu in the middle of the screen until a tile is picked or it is closed; the choice is in
/// dialog.lblCategory.
void RunCategoryMenu(CategoryMenuDialog& dialog, QWidget* parent, const std::function<void(int)>& showHelp);

}  // namespace korvet::desktop
