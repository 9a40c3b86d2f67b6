#include "frame/category_menu.h"
#include "frame/catalogue.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace korvet {
namespace {

Place Tile(int left, int top) {
    return {left, top, 1000, 1000};
}

TEST(CategoryMenu, OpensWithItsTilesNamedAndNothingChosen) {
    const CategoryMenuDialog menu;
    EXPECT_EQ(menu.place, (Place{0, 0, 8000, 6000}));
    EXPECT_EQ(CategoryMenuDialog::HelpContextID, 2050);
    EXPECT_EQ(menu.Picture1[0].toolTip, "Right Cone");
    EXPECT_EQ(menu.Picture1[24].toolTip, "Cyclone (Cone)");
    EXPECT_EQ(menu.Picture1[38].toolTip, "Murok Mitre");
    EXPECT_EQ(menu.lblCategory, "Category");
    EXPECT_TRUE(menu.visible);
}

TEST(CategoryMenu, OpensInSevenColumnsThatJustFit) {
    const CategoryMenuDialog menu;
    EXPECT_EQ(menu.Picture1[0].place, Tile(0, 0));
    EXPECT_EQ(menu.Picture1[8].place, Tile(1000, 0));
    EXPECT_EQ(menu.Picture1[19].place, Tile(6000, 0));
    EXPECT_EQ(menu.Picture1[4].place, Tile(0, 1000));
    EXPECT_EQ(menu.Picture1[24].place, Tile(0, 5000));
    EXPECT_EQ(menu.Picture1[38].place, Tile(3000, 5000));
    // Six rows of tiles in a height of six: nothing to scroll.
    EXPECT_FALSE(menu.VScroll1.visible);
    EXPECT_EQ(menu.VScroll1.place.width, 0);
}

TEST(CategoryMenu, HiddenTilesKeepTheirCells) {
    CategoryMenuDialog menu;
    menu.Resize(10250, 6000);  // ten columns
    EXPECT_EQ(menu.Picture1[34].place, Tile(3000, 3000));
    EXPECT_EQ(menu.Picture1[24].place, Tile(5000, 3000));  // the gap before it is tile 37's
    for (std::size_t tile = 0; tile < menu.Picture1.size(); ++tile) {
        EXPECT_EQ(menu.Picture1[tile].visible, tile < 35) << tile;
        EXPECT_EQ(menu.Picture1[tile].enabled, tile < 35) << tile;
    }
}

TEST(CategoryMenu, ColumnsLeaveRoomForTheScrollBar) {
    CategoryMenuDialog menu;
    menu.Resize(2250, 6000);
    EXPECT_EQ(menu.Picture1[7].place, Tile(0, 1000));  // the third tile
    menu.Resize(2249, 6000);
    EXPECT_EQ(menu.Picture1[7].place, Tile(0, 2000));
    for (const int width : {1249, 250, 0}) {
        menu.Resize(width, 6000);
        EXPECT_EQ(menu.Picture1[38].place, Tile(0, 38000)) << width;
    }
}

TEST(CategoryMenu, TheScrollBarCoversWhatDoesNotFit) {
    CategoryMenuDialog menu;
    menu.Resize(8000, 5999);
    EXPECT_TRUE(menu.VScroll1.visible);
    EXPECT_EQ(menu.VScroll1.place, (Place{7750, 0, 250, 5999}));
    EXPECT_EQ(menu.VScroll1.minimum, 0);
    EXPECT_EQ(menu.VScroll1.maximum, 1);
    menu.Resize(3250, 4000);  // three columns, thirteen rows
    EXPECT_EQ(menu.VScroll1.maximum, 9000);
    EXPECT_EQ(menu.VScroll1.value, 0);
}

TEST(CategoryMenu, ScrollingRaisesTheRows) {
    CategoryMenuDialog menu;
    menu.Resize(3250, 4000);
    menu.ChangeScroll(1500);
    EXPECT_EQ(menu.VScroll1.value, 1500);
    EXPECT_EQ(menu.Picture1[0].place, Tile(0, -1500));
    EXPECT_EQ(menu.Picture1[2].place, Tile(1000, -500));  // fifth tile
    EXPECT_EQ(menu.Picture1[38].place, Tile(2000, 10500));
    menu.ChangeScroll(20000);
    EXPECT_EQ(menu.VScroll1.value, 9000);
    menu.ChangeScroll(-5);
    EXPECT_EQ(menu.Picture1[0].place, Tile(0, 0));
}

TEST(CategoryMenu, ResizingScrollsBackToTheTop) {
    CategoryMenuDialog menu;
    menu.Resize(3250, 4000);
    menu.ChangeScroll(1500);
    menu.Resize(3250, 4100);
    EXPECT_EQ(menu.VScroll1.value, 0);
    EXPECT_EQ(menu.VScroll1.maximum, 8900);
    EXPECT_EQ(menu.Picture1[0].place, Tile(0, 0));
}

TEST(CategoryMenu, AClickChoosesAndCloses) {
    CategoryMenuDialog menu;
    menu.ClickTile(14);
    EXPECT_EQ(menu.lblCategory, "Round to Round");
    EXPECT_FALSE(menu.visible);
}

TEST(CategoryMenu, AHiddenTileCannotBeChosen) {
    CategoryMenuDialog menu;
    menu.PressTile(37);
    EXPECT_FALSE(menu.pressed[37]);
    menu.ClickTile(37);
    EXPECT_EQ(menu.lblCategory, "Category");
    EXPECT_TRUE(menu.visible);
    EXPECT_THROW(menu.ClickTile(39), std::out_of_range);
}

TEST(CategoryMenu, ATileHasABorderWhileItIsPressed) {
    CategoryMenuDialog menu;
    menu.PressTile(3);
    EXPECT_TRUE(menu.pressed[3]);
    menu.ReleaseTile(3);
    EXPECT_FALSE(menu.pressed[3]);
    EXPECT_EQ(menu.lblCategory, "Category");  // closed now, it names no fitting
    EXPECT_EQ(FindCategory(menu.lblCategory), nullptr);
}

}  // namespace
}  // namespace korvet
