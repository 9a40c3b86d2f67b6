// The shaded pictures: tiles, view icons and the category menu that shows the tiles.
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>
#include <cmath>
#include <numbers>

#include "core/checked.h"
#include "desktop/fitting/view_icons.h"
#include "desktop/frame/category_menu_window.h"
#include "desktop/frame/tile_picture.h"
#include "desktop/sketch/solid_painter.h"
#include "frame/catalogue.h"
#include "sketch/sample_model.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/palettes.h"

namespace korvet::desktop {
namespace {

const CatalogueRow& RightConeRow() {
    return *FindCategory("Right Cone");
}

double Width(const SolidPicture& picture) {
    return picture.bounds.right - picture.bounds.left;
}

double Height(const SolidPicture& picture) {
    return picture.bounds.top - picture.bounds.bottom;
}

bool Close(double a, double b) {
    return std::fabs(a - b) < 1e-9;
}

bool HasInk(const QImage& image, const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (image.pixelColor(x, y).alpha() > 128) {
                return true;
            }
        }
    }
    return false;
}

struct MenuCase {
    CategoryMenuDialog dialog;
    int helpAsked = 0;
    CategoryMenuWindow window{dialog, nullptr, [this](int topic) { helpAsked = topic; }};

    MenuCase() {
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QToolButton* Tile(int tile) {
        return window.findChild<QToolButton*>("Picture1_" + QString::number(tile));
    }
    [[nodiscard]] QScrollBar* Scroll() { return window.findChild<QScrollBar*>("VScroll1"); }

    void Key(int tile, Qt::Key key) { QTest::keyClick(Tile(tile), key); }
    [[nodiscard]] QString Focused() { return window.focusWidget()->objectName(); }
};

class Tiles : public QObject {
    Q_OBJECT

  private slots:
    void aTileHasTheSizeInPixelsOfTheDevice();
    void aFittingIsDrawnOverItsCategory();
    void aTileIsDrawnOnceForEachLook();
    void everyCategoryHasRoomBelowItsPicture();
    void noGroundShinesBetweenTheFaces();
    void aPaletteDecidesBetweenLightAndDark();
    void noTwoViewsLookAlike();
    void viewsShowTheBlockInTheirOwnProportions();
    void theViewFromTheOtherSideIsItsMirrorImage();
    void thereAreTenViews();
    void aViewIconFillsItsSizeAndFadesWhenDisabled();
    void theMenuNamesItsTiles();
    void aClickChooses();
    void escapeChoosesNothing();
    void enterPicksTheFocusedTile();
    void arrowsGoThroughTheTilesAndPastTheHiddenOnes();
    void theFocusedTileIsScrolledIntoView();
    void theWheelScrolls();
    void aPressShowsInTheModel();
    void f1AsksForTheTopicOfTheMenu();
    void theMenuRunsUntilItIsClosed();
};

void Tiles::aTileHasTheSizeInPixelsOfTheDevice() {
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        const QPixmap tile = TilePicture(RightConeRow(), {120, 140}, ratio, LightPalette(), {});
        QCOMPARE(tile.size(), (QSizeF(120, 140) * ratio).toSize());
        QCOMPARE(tile.devicePixelRatio(), ratio);
    }
    QVERIFY(TilePicture(RightConeRow(), {0, 0}, 1, LightPalette(), {}).isNull());
}

void Tiles::aFittingIsDrawnOverItsCategory() {
    const QSize size(140, 140);
    const QImage tile = TilePicture(RightConeRow(), size, 1, LightPalette(), {}).toImage();
    // The middle of the cone is painted, the ground beside its top is not.
    QVERIFY(HasInk(tile, {70, 50, 1, 1}));
    QVERIFY(!HasInk(tile, {0, 0, 20, 20}));
    // The category at its foot.
    QVERIFY(HasInk(tile, {20, 108, 100, 30}));
}

void Tiles::aTileIsDrawnOnceForEachLook() {
    const QSize size(140, 140);
    const auto tile = [&](const QPalette& palette) {
        return TilePicture(RightConeRow(), size, 1, palette, {});
    };
    const QPixmap first = tile(LightPalette());
    QCOMPARE(tile(LightPalette()).cacheKey(), first.cacheKey());
    QVERIFY(tile(DarkPalette()).toImage() != first.toImage());
    QCOMPARE(tile(LightPalette()).cacheKey(), first.cacheKey());
    QCOMPARE(TilePicture(RightConeRow(), size, 2, LightPalette(), {}).size(), 2 * size);
}

void Tiles::everyCategoryHasRoomBelowItsPicture() {
    for (const int points : {8, 10, 16}) {
        const QFont font(QApplication::font().family(), points);
        const int side = TileSide(font, 100);
        QVERIFY(side >= 100);
        for (const CatalogueRow& row : Catalogue) {
            CatalogueRow tile = RightConeRow();
            tile.category = row.category;
            if (!row.hidden) {
                const QImage image = TilePicture(tile, {side, side}, 1, LightPalette(), font).toImage();
                // Neither the sides nor the foot of the tile cut a letter off.
                QVERIFY2(!HasInk(image, {0, 0, 1, side}), row.category.data());
                QVERIFY2(!HasInk(image, {side - 1, 0, 1, side}), row.category.data());
                QVERIFY2(!HasInk(image, {0, side - 1, side, 1}), row.category.data());
                QVERIFY2(HasInk(image, {side / 4, side / 2 + side / 10, side / 2, side * 2 / 5}),
                         row.category.data());
            }
        }
    }
}

void Tiles::noGroundShinesBetweenTheFaces() {
    const SolidPicture cone = DrawSolid(SampleModel(*RightConeRow().table, 0), {35, 25});
    for (const qreal ratio : {1.0, 1.25, 2.0}) {
        QImage image((QSizeF(200, 200) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::green);
        QPainter painter(&image);
        const double scale = 180 / Height(cone);
        PaintSolid(painter, cone, scale, QPointF(100, 190 + cone.bounds.bottom * scale), LightPalette());
        painter.end();
        // Across the cone near its foot, well inside its contours.
        const int y = static_cast<int>(140 * ratio);
        for (int x = static_cast<int>(50 * ratio); x < static_cast<int>(150 * ratio); ++x) {
            const QColor color = image.pixelColor(x, y);
            QVERIFY2(color.green() <= color.blue() && color.green() - color.red() < 40,
                     qPrintable(color.name()));
        }
    }
}

void Tiles::aPaletteDecidesBetweenLightAndDark() {
    for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
        const SolidColors colors = SolidColorsOf(palette);
        const int ground = palette.color(QPalette::Window).lightness();
        QVERIFY(std::abs(colors.outline.lightness() - ground) > 120);
        QVERIFY(std::abs(colors.outline.lightness() - colors.lit.lightness()) > 50);
        QVERIFY(colors.lit.lightness() > colors.shaded.lightness());
        QVERIFY(colors.lit.lightness() > colors.insideLit.lightness());
        QVERIFY(colors.shaded.lightness() > colors.insideShaded.lightness());
    }
    QVERIFY(SolidColorsOf(LightPalette()).outline != SolidColorsOf(DarkPalette()).outline);
}

void Tiles::noTwoViewsLookAlike() {
    std::vector<QImage> pictures;
    for (int button = 0; button <= 9; ++button) {
        pictures.push_back(ViewPixmap(button, 30, 1, LightPalette()).toImage());
        for (int other = 0; other < button; ++other) {
            QVERIFY2(pictures[static_cast<std::size_t>(other)] != pictures.back(),
                     qPrintable(QString("%1 and %2").arg(other).arg(button)));
        }
    }
}

// The block is 10 by 8 by 8. A slanted view turns it by an eighth and looks down at 35 degrees; where the
// slope is on the near side, the picture reaches from the foot of the near corner to the top of the far one.
void Tiles::viewsShowTheBlockInTheirOwnProportions() {
    for (const int button : {1, 4, 7}) {
        QVERIFY(Close(Width(ViewPicture(button)), 10));
        QVERIFY(Close(Height(ViewPicture(button)), 8));
    }
    for (const int button : {3, 5}) {
        QVERIFY(Close(Width(ViewPicture(button)), 8));
        QVERIFY(Close(Height(ViewPicture(button)), 8));
    }
    for (const int button : {0, 2, 6, 8}) {
        QVERIFY(Close(Width(ViewPicture(button)), 18 / std::numbers::sqrt2));
    }
    const double down = 35 * std::numbers::pi / 180;
    for (const int button : {2, 8}) {
        QVERIFY(Close(Height(ViewPicture(button)),
                      8 * std::cos(down) + 18 / std::numbers::sqrt2 * std::sin(down)));
    }
}

void Tiles::theViewFromTheOtherSideIsItsMirrorImage() {
    const QImage near = ViewPixmap(7, 60, 1, LightPalette()).toImage();
    const QImage far = ViewPixmap(1, 60, 1, LightPalette()).toImage();
    // The sloped corner leaves the ground free on one side of each.
    const auto sum = [](const QImage& image, int from, int to) {
        int ink = 0;
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < 30; ++y) {
                ink += image.pixelColor(x, y).alpha() > 128 ? 1 : 0;
            }
        }
        return ink;
    };
    QVERIFY(sum(near, 0, 30) > sum(near, 30, 60));
    QVERIFY(sum(far, 0, 30) < sum(far, 30, 60));
    // One side view sees the slope as an area of its own, the other doesn't.
    QCOMPARE(ViewPicture(3).edges.size() + 1, ViewPicture(5).edges.size());
}

void Tiles::thereAreTenViews() {
    QVERIFY_THROWS_EXCEPTION(ListError, ViewPicture(10));
    QVERIFY_THROWS_EXCEPTION(ListError, ViewPicture(-1));
}

void Tiles::aViewIconFillsItsSizeAndFadesWhenDisabled() {
    const QIcon icon = ViewIcon(4, LightPalette());
    const QImage normal = icon.pixmap(QSize(32, 32), QIcon::Normal).toImage();
    const QImage disabled = icon.pixmap(QSize(32, 32), QIcon::Disabled).toImage();
    QCOMPARE(normal.size(), QSize(32, 32) * normal.devicePixelRatio());
    const QPoint middle(normal.width() / 3, normal.height() / 2);
    QCOMPARE(normal.pixelColor(middle).alpha(), 255);
    QVERIFY(disabled.pixelColor(middle).alpha() > 40);
    QVERIFY(disabled.pixelColor(middle).alpha() < 128);
}

void Tiles::theMenuNamesItsTiles() {
    MenuCase menu;
    QCOMPARE(menu.window.windowTitle(), QString("New"));
    for (int tile = 0; tile < static_cast<int>(CatalogueSize); ++tile) {
        const CatalogueRow& row = Catalogue[static_cast<std::size_t>(tile)];
        const QString category = QString::fromUtf8(row.category.data());
        QVERIFY(menu.Tile(tile) != nullptr);
        QCOMPARE(menu.Tile(tile)->toolTip(), category);
        QCOMPARE(menu.Tile(tile)->accessibleName(), category);
        QCOMPARE(menu.Tile(tile)->isHidden(), row.hidden);
        QCOMPARE(menu.Tile(tile)->icon().isNull(), row.hidden);
    }
    QVERIFY(menu.window.findChild<QLabel*>("lblCategory")->isHidden());
    QCOMPARE(menu.window.findChild<QLabel*>("lblCategory")->text(), QString("Category"));
    // The second tile of the order stands a tile's width beside the first.
    QVERIFY(menu.Tile(8)->x() - menu.Tile(0)->x() >= 100);
    QCOMPARE(menu.Tile(8)->y(), menu.Tile(0)->y());
}

void Tiles::aClickChooses() {
    MenuCase menu;
    QTest::mouseClick(menu.Tile(4), Qt::LeftButton);
    QCOMPARE(menu.dialog.lblCategory, std::string("Rectangle (Radius) to Round"));
    QVERIFY(!menu.window.isVisible());
    QCOMPARE(menu.window.result(), static_cast<int>(QDialog::Accepted));
}

void Tiles::escapeChoosesNothing() {
    MenuCase menu;
    menu.Tile(8)->setFocus();
    menu.Key(8, Qt::Key_Escape);
    QVERIFY(!menu.window.isVisible());
    QCOMPARE(menu.dialog.lblCategory, std::string("Category"));
}

void Tiles::enterPicksTheFocusedTile() {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        MenuCase menu;
        menu.Tile(8)->setFocus();
        menu.Key(8, key);
        QCOMPARE(menu.dialog.lblCategory, std::string("Truncated Right Cone"));
        QVERIFY(!menu.window.isVisible());
    }
}

void Tiles::arrowsGoThroughTheTilesAndPastTheHiddenOnes() {
    MenuCase menu;
    menu.Tile(0)->setFocus();
    menu.Key(0, Qt::Key_Left);  // nothing lies before the first
    QCOMPARE(menu.Focused(), QString("Picture1_0"));
    menu.Key(0, Qt::Key_Right);
    QCOMPARE(menu.Focused(), QString("Picture1_8"));
    menu.Key(8, Qt::Key_Tab);
    QCOMPARE(menu.Focused(), QString("Picture1_7"));
    menu.Tile(34)->setFocus();
    menu.Key(34, Qt::Key_Right);  // over the hidden 37
    QCOMPARE(menu.Focused(), QString("Picture1_24"));
    menu.Key(24, Qt::Key_Right);  // only hidden ones follow
    QCOMPARE(menu.Focused(), QString("Picture1_24"));
    menu.Tile(8)->setFocus();
    menu.Key(8, Qt::Key_Down);
    const auto* const below = qobject_cast<QToolButton*>(menu.window.focusWidget());
    QCOMPARE(below->x(), menu.Tile(8)->x());
    QVERIFY(below->y() > menu.Tile(8)->y());
    QTest::keyClick(menu.window.focusWidget(), Qt::Key_Up);
    QCOMPARE(menu.Focused(), QString("Picture1_8"));
}

void Tiles::theFocusedTileIsScrolledIntoView() {
    MenuCase menu;
    menu.window.resize(menu.window.minimumSize() * 2);
    QVERIFY(menu.Scroll()->isVisible());
    const auto isInside = [&](int tile) { return menu.window.rect().contains(menu.Tile(tile)->geometry()); };
    QVERIFY(!isInside(24));
    menu.Tile(24)->setFocus();
    QVERIFY(isInside(24));
    menu.Tile(0)->setFocus();
    QVERIFY(isInside(0));
}

void Tiles::theWheelScrolls() {
    MenuCase menu;
    menu.window.resize(menu.window.minimumSize() * 2);
    const int before = menu.Tile(0)->y();
    QWheelEvent down(QPointF(5, 5), menu.window.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&menu.window, &down);
    QCOMPARE(menu.dialog.VScroll1.value, CategoryMenuDialog::TileSize / 2);
    QVERIFY(menu.Tile(0)->y() < before);
    // A new size starts at the top again.
    menu.window.resize(menu.window.minimumSize() * 3);
    QCOMPARE(menu.dialog.VScroll1.value, 0);
    QCOMPARE(menu.Tile(0)->y(), before);
    QCOMPARE(menu.Scroll()->value(), 0);
}

void Tiles::aPressShowsInTheModel() {
    MenuCase menu;
    QTest::mousePress(menu.Tile(2), Qt::LeftButton);
    QVERIFY(menu.dialog.pressed[2]);
    QTest::mouseMove(menu.Tile(2), QPoint(-20, -20));
    QTest::mouseRelease(menu.Tile(2), Qt::LeftButton, {}, QPoint(-20, -20));
    QVERIFY(!menu.dialog.pressed[2]);
    QVERIFY(menu.window.isVisible());
    QCOMPARE(menu.dialog.lblCategory, std::string("Category"));
}

void Tiles::f1AsksForTheTopicOfTheMenu() {
    MenuCase menu;
    menu.Tile(0)->setFocus();
    menu.Key(0, Qt::Key_F1);
    QCOMPARE(menu.helpAsked, 2050);
    QVERIFY(menu.window.isVisible());
}

void Tiles::theMenuRunsUntilItIsClosed() {
    CategoryMenuDialog dialog;
    bool modal = false;
    QTimer::singleShot(0, [&modal] {
        QWidget* const window = QApplication::activeModalWidget();
        modal = window != nullptr && window->objectName() == "frmCategoryMenu";
        if (modal) {
            QTest::mouseClick(window->findChild<QToolButton*>("Picture1_8"), Qt::LeftButton);
        }
    });
    RunCategoryMenu(dialog, nullptr, [](int) {});
    QVERIFY(modal);
    QCOMPARE(dialog.lblCategory, std::string("Truncated Right Cone"));
}

const Registered<Tiles> registeredTiles("Tiles", Scale::Both);

}  // namespace
}  // namespace korvet::desktop

#include "tiles_test.moc"
