// The picker of File > New as a plain model: a scrolling grid of tiles, one for each fitting of the
// catalogue.
#pragma once

#include <array>
#include <string>

#include "form/controls.h"
#include "frame/catalogue.h"

namespace korvet {

struct CategoryMenuDialog {
    static constexpr int HelpContextID = 2050;
    static constexpr int TileSize = 1000;    ///< twips
    static constexpr int ScrollWidth = 250;  ///< twips

    /// The menu as it opens: tiles named, laid out for 8000 by 6000 twips.
    CategoryMenuDialog();

    std::string caption = "New";
    Place place = {0, 0, 8000, 6000};
    std::array<Control, CatalogueSize> Picture1;   ///< tile of each row; its tool tip is the category
    std::array<bool, CatalogueSize> pressed = {};  ///< border style 1 while the mouse is down on a tile
    struct Scroll {
        Place place;
        bool visible = false;
        int minimum = 0;
        int maximum = 0;
        int value = 0;
    } VScroll1;
    std::string lblCategory = "Category";  ///< the choice; "Category" when there was none
    bool visible = true;                   ///< false ends the modal run

    // Events. Sizes are the dialog's inner area in twips.
    void Resize(int width, int height);
    void ChangeScroll(int value);
    void ClickTile(std::size_t tile);
    void PressTile(std::size_t tile);
    void ReleaseTile(std::size_t tile);

  private:
    void SetTileNames();
    void LayoutTiles();
    void PlaceTiles();

    int width_ = 0;
    int height_ = 0;
};

}  // namespace korvet
