// The boxes in which the program speaks to the user.
#pragma once

#include "form/message_boxes.h"

class QWidget;

namespace korvet::desktop {

/// Shows a box over `parent` until it is answered. Texts are shown as they are, never as marked-up text.
Answer RunMessageBox(QWidget* parent, const MessageBox& message);

}  // namespace korvet::desktop
