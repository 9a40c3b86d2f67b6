#include "frame/category_menu.h"
#include "frame/catalogue.h"

#include <algorithm>

namespace korvet {

CategoryMenuDialog::CategoryMenuDialog() {
    SetTileNames();
    Resize(place.width, place.height);
}

void CategoryMenuDialog::SetTileNames() {
    for (std::size_t i = 0; i < Catalogue.size(); ++i) {
        Picture1[i].toolTip = Catalogue[i].category;
    }
}

void CategoryMenuDialog::Resize(int width, int height) {
    width_ = width;
    height_ = height;
    LayoutTiles();
}

/// Lays all tiles out from the top and gives the scroll bar its range.
void CategoryMenuDialog::LayoutTiles() {
    for (std::size_t i = 0; i < Catalogue.size(); ++i) {
        Picture1[i].visible = Picture1[i].enabled = !Catalogue[i].hidden;
    }
    VScroll1 = {};
    PlaceTiles();
    const Place& last = Picture1[static_cast<std::size_t>(DisplayOrder.back())].place;
    const int bottom = last.top + TileSize;
    if (bottom > height_) {
        VScroll1 = {{width_ - ScrollWidth, 0, ScrollWidth, height_}, true, 0, bottom - height_, 0};
    }
}

/// Puts every tile into its cell, the rows raised by the scroll value. The hidden ones have cells too, so
/// that the others stay where users know them.
void CategoryMenuDialog::PlaceTiles() {
    const int columns = std::max(1, (width_ - ScrollWidth) / TileSize);
    int position = 0;
    for (const int tile : DisplayOrder) {
        Picture1[static_cast<std::size_t>(tile)].place = {position % columns * TileSize,
                                                          position / columns * TileSize - VScroll1.value,
                                                          TileSize, TileSize};
        ++position;
    }
}

void CategoryMenuDialog::ChangeScroll(int value) {
    VScroll1.value = std::clamp(value, VScroll1.minimum, VScroll1.maximum);
    PlaceTiles();
}

void CategoryMenuDialog::ClickTile(std::size_t tile) {
    if (Picture1.at(tile).enabled) {
        lblCategory = Picture1[tile].toolTip;
        visible = false;
    }
}

void CategoryMenuDialog::PressTile(std::size_t tile) {
    pressed.at(tile) = Picture1.at(tile).enabled;
}

void CategoryMenuDialog::ReleaseTile(std::size_t tile) {
    pressed.at(tile) = false;
}

}  // namespace korvet
