#include "desktop/frame/category_menu_window.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/bindings.h"
#include "desktop/frame/tile_picture.h"
#include "frame/catalogue.h"

namespace korvet::desktop {
namespace {

/// One notch of the mouse wheel scrolls this share of a tile.
constexpr double TilesPerNotch = 0.5;
constexpr int AnglePerNotch = 120;

/// A tile's frame lies inside its cell, and the picture inside the frame.
constexpr int TileGap = 1;
constexpr int TileFrame = 2;
constexpr int AroundPicture = 2 * (TileGap + TileFrame);

constexpr const char* TileStyle =
    "QToolButton { border: 1px solid transparent; border-radius: 4px; background: palette(window); }"
    "QToolButton:hover { border: 1px solid palette(mid); background: palette(base); }"
    "QToolButton:focus { border: 2px solid palette(highlight); background: palette(base); }"
    "QToolButton:pressed { border: 2px solid palette(highlight); background: palette(mid); }";

QRect Available(const QWidget& widget) {
    const QScreen* const screen =
        widget.screen() != nullptr ? widget.screen() : QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->availableGeometry() : QRect(0, 0, 800, 600);
}

}  // namespace

CategoryMenuWindow::CategoryMenuWindow(CategoryMenuDialog& dialog, QWidget* parent,
                                       std::function<void(int)> showHelp)
    : QDialog(parent),
      dialog_(dialog),
      showHelp_(std::move(showHelp)),
      scroll_(new QScrollBar(Qt::Vertical, this)),
      category_(new QLabel(this)),
      tileSide_(TileSide(font(), Pixels(CategoryMenuDialog::TileSize) - AroundPicture) + AroundPicture) {
    NameWidget(*this, "frmCategoryMenu", QStringLiteral("New fitting"));
    setWindowTitle(Text(dialog.caption));
    setWindowIcon(parent != nullptr ? parent->windowIcon() : QGuiApplication::windowIcon());
    for (const int tile : DisplayOrder) {  // their order of making is the order of Tab
        MakeTile(static_cast<std::size_t>(tile));
    }
    NameWidget(*scroll_, "VScroll1", QStringLiteral("Scroll the fittings"));
    scroll_->setFocusPolicy(Qt::NoFocus);
    connect(scroll_, &QScrollBar::valueChanged, this, [this](int value) {
        dialog_.ChangeScroll(value);
        Project();
    });
    NameWidget(*category_, "lblCategory", QStringLiteral("Chosen fitting"));
    category_->hide();
    setMinimumSize(ToPixels(CategoryMenuDialog::TileSize + CategoryMenuDialog::ScrollWidth) + 1,
                   ToPixels(CategoryMenuDialog::TileSize) + 1);
    // The title bar needs its share of the screen too.
    const QSize room = Available(*this).size() - QSize(40, 80);
    resize(QSize(ToPixels(dialog.place.width) + 1, ToPixels(dialog.place.height) + 1).boundedTo(room));
}

void CategoryMenuWindow::MakeTile(std::size_t tile) {
    auto* const button = new QToolButton(this);
    const Control& control = dialog_.Picture1[tile];
    NameWidget(*button, "Picture1_" + std::to_string(tile), Text(control.toolTip));
    button->setStyleSheet(QString::fromLatin1(TileStyle));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRaise(true);
    button->installEventFilter(this);
    connect(button, &QToolButton::pressed, this, [this, tile] { dialog_.PressTile(tile); });
    connect(button, &QToolButton::released, this, [this, tile] { dialog_.ReleaseTile(tile); });
    connect(button, &QToolButton::clicked, this, [this, tile] { Pick(tile); });
    tiles_[tile] = button;
}

void CategoryMenuWindow::Pick(std::size_t tile) {
    dialog_.ClickTile(tile);
    category_->setText(Text(dialog_.lblCategory));
    if (!dialog_.visible) {
        accept();
    }
}

int CategoryMenuWindow::ToPixels(int twips) const {
    return twips * tileSide_ / CategoryMenuDialog::TileSize;
}

int CategoryMenuWindow::ToTwips(int pixels) const {
    return pixels * CategoryMenuDialog::TileSize / tileSide_;
}

void CategoryMenuWindow::DrawTiles() {
    drawnRatio_ = devicePixelRatioF();
    const QSize size(tileSide_ - AroundPicture, tileSide_ - AroundPicture);
    for (std::size_t i = 0; i < tiles_.size(); ++i) {
        if (!Catalogue[i].hidden) {
            tiles_[i]->setIcon(QIcon(TilePicture(Catalogue[i], size, drawnRatio_, palette(), font())));
            tiles_[i]->setIconSize(size);
        }
    }
}

void CategoryMenuWindow::Project() {
    for (std::size_t i = 0; i < tiles_.size(); ++i) {
        const Control& control = dialog_.Picture1[i];
        tiles_[i]->setGeometry(ToPixels(control.place.left) + TileGap, ToPixels(control.place.top) + TileGap,
                               ToPixels(control.place.width) - 2 * TileGap,
                               ToPixels(control.place.height) - 2 * TileGap);
        ShowControl(*tiles_[i], control);
    }
    const QSignalBlocker silent(*scroll_);
    const CategoryMenuDialog::Scroll& scroll = dialog_.VScroll1;
    scroll_->setRange(scroll.minimum, scroll.maximum);
    scroll_->setPageStep(std::max(1, ToTwips(height())));
    scroll_->setSingleStep(CategoryMenuDialog::TileSize / 4);
    scroll_->setValue(scroll.value);
    const int bar = ToPixels(scroll.place.width);
    scroll_->setGeometry(width() - bar, 0, bar, height());
    scroll_->setVisible(scroll.visible);
    category_->setText(Text(dialog_.lblCategory));
}

void CategoryMenuWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    dialog_.Resize(ToTwips(width()), ToTwips(height()));
    Project();
}

void CategoryMenuWindow::showEvent(QShowEvent* event) {
    if (drawnRatio_ != devicePixelRatioF()) {
        DrawTiles();
    }
    QDialog::showEvent(event);
}

void CategoryMenuWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && drawnRatio_ > 0) {
        DrawTiles();
    }
}

void CategoryMenuWindow::wheelEvent(QWheelEvent* event) {
    const double notches = static_cast<double>(event->angleDelta().y()) / AnglePerNotch;
    const double step = notches * TilesPerNotch * CategoryMenuDialog::TileSize;
    scroll_->setValue(scroll_->value() - static_cast<int>(step));
    event->accept();
}

void CategoryMenuWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) {
        showHelp_(CategoryMenuDialog::HelpContextID);
        return;
    }
    QDialog::keyPressEvent(event);
}

bool CategoryMenuWindow::eventFilter(QObject* watched, QEvent* event) {
    auto* const tile = qobject_cast<QToolButton*>(watched);
    if (tile != nullptr && event->type() == QEvent::FocusIn) {
        ShowFocused(*tile);
    }
    if (tile == nullptr || event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Left:
            MoveFocus(*tile, -1, 0);
            return true;
        case Qt::Key_Right:
            MoveFocus(*tile, 1, 0);
            return true;
        case Qt::Key_Up:
            MoveFocus(*tile, 0, -1);
            return true;
        case Qt::Key_Down:
            MoveFocus(*tile, 0, 1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            tile->click();
            return true;
        default:
            return QDialog::eventFilter(watched, event);
    }
}

/// Sideways the way leads on to the next row, like the order of Tab; up and down it stays in its column.
/// Hidden tiles are stepped over.
void CategoryMenuWindow::MoveFocus(const QWidget& from, int columns, int rows) {
    const auto at = std::find_if(DisplayOrder.begin(), DisplayOrder.end(),
                                 [&](int tile) { return tiles_[static_cast<std::size_t>(tile)] == &from; });
    const int perRow =
        std::max(1, (ToTwips(width()) - CategoryMenuDialog::ScrollWidth) / CategoryMenuDialog::TileSize);
    const int step = columns + rows * perRow;
    const int count = static_cast<int>(DisplayOrder.size());
    for (int i = static_cast<int>(at - DisplayOrder.begin()) + step; i >= 0 && i < count; i += step) {
        const auto tile = static_cast<std::size_t>(DisplayOrder[static_cast<std::size_t>(i)]);
        if (dialog_.Picture1[tile].visible) {
            tiles_[tile]->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void CategoryMenuWindow::ShowFocused(const QWidget& tile) {
    const int above = -(tile.y() - TileGap);
    const int below = tile.y() + tile.height() + TileGap - height();
    if (above > 0) {
        scroll_->setValue(scroll_->value() - ToTwips(above + tileSide_ / 4));
    } else if (below > 0) {
        scroll_->setValue(scroll_->value() + ToTwips(below + tileSide_ / 4));
    }
}

void RunCategoryMenu(CategoryMenuDialog& dialog, QWidget* parent, const std::function<void(int)>& showHelp) {
    CategoryMenuWindow window(dialog, parent, showHelp);
    window.move(Available(parent != nullptr ? *parent : window).center() - window.rect().center());
    window.exec();
}

}  // namespace korvet::desktop
