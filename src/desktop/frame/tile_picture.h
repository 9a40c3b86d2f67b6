// The tiles of the category menu: each fitting drawn from its own sample sizes.
#pragma once

#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QPixmap>
#include <QSize>

#include "frame/catalogue.h"

namespace korvet::desktop {

/// The tile of a fitting: its picture with the category below it, on a transparent ground. The size is in
/// logical pixels; below TileSide in either direction a long category takes room from the picture. Crisp at
/// the device pixel ratio.
QPixmap TilePicture(const CatalogueRow& row, const QSize& size, qreal devicePixelRatio,
                    const QPalette& palette, const QFont& font);

/// The smallest side, in logical pixels, of a square tile in which every category of the menu stands on two
/// lines below a picture of more than half the tile; at least `smallest`. The category is set in a small cut
/// of the font.
int TileSide(const QFont& font, int smallest);

/// The picture of a fitting's tile alone, as an icon. It goes by the palette that the program has when it is
/// drawn.
QIcon FittingIcon(const CatalogueRow& row);

}  // namespace korvet::desktop
