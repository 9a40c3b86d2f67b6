// The boxes in which the program speaks to the user.
#pragma once

#include <QString>

#include "form/message_boxes.h"

class QWidget;

namespace korvet::desktop {

/// A text for a box, with the line breaks of the toolkit, and with places where a word too long for a line,
/// as the name of a file may be, goes on in the next.
QString TextInLines(QString text);

/// Shows a box over `parent` until it is answered. Texts are shown as they are, never as marked-up text.
Answer RunMessageBox(QWidget* parent, const MessageBox& message);

}  // namespace korvet::desktop
