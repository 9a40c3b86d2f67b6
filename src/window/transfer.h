// What a drawing needs on its way to a plotter or into a drawing program.
#pragma once

#include <memory>
#include <string>

#include "window/context.h"
#include "window/transfer_place.h"

namespace korvet {

/// The path of the drawing on its way. The context must have a transfer place.
std::string TransferFile(const WindowContext& context);

/// Keeps the transfer place for this copy of the program for as long as the result lives. Null, after a
/// message, when another copy has it. Throws FileError.
std::shared_ptr<void> HoldTransferPlace(const WindowContext& context);

}  // namespace korvet
