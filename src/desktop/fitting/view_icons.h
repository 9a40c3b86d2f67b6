// The pictures on the view buttons: one small block seen as each view shows a model.
#pragma once

#include <QIcon>
#include <QPalette>
#include <QPixmap>

#include "sketch/solid.h"

namespace korvet::desktop {

/// The reference block as the view of button 0 to 8 shows a model: an oblong one whose upper edge on the +x
/// side is cut off at a slope, so that no two views of it are alike. Button 9 gives the flat pattern of a
/// cone. Throws ListError for another number.
SolidPicture ViewPicture(int button);

/// ViewPicture in the middle of a square of `side` logical pixels.
QPixmap ViewPixmap(int button, int side, qreal devicePixelRatio, const QPalette& palette);

/// An icon of ViewPicture, drawn anew for every size; faded while its button is disabled.
QIcon ViewIcon(int button, const QPalette& palette);

}  // namespace korvet::desktop
