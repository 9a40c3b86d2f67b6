// The pictures of the tool bar and of the program itself.
#pragma once

#include <QIcon>
#include <string>

namespace korvet::desktop {

/// The icon of a command by the key of its button, such as "ZoomIn"; besides the keys of the tool bar there
/// are "ExportDxf", "Close", "NextType" and "PreviousType". It's drawn anew for every size and device pixel
/// ratio, in the colours that the application's palette has at that moment: the strokes in its button text,
/// the accent in a blue that reads on its buttons. Disabled it's the same picture faded. An unknown key gives
/// a null icon.
QIcon ToolIcon(const std::string& key);

/// The icon of the program's windows: a cone and its developed sector, in colours of its own.
QIcon ApplicationIcon();

}  // namespace korvet::desktop
