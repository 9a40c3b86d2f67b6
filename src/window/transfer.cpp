#include "window/transfer.h"

namespace korvet {

std::string TransferFile(const WindowContext& context) {
    return context.transfer->PathOf("Transfer.tmp");
}

std::shared_ptr<void> HoldTransferPlace(const WindowContext& context) {
    std::shared_ptr<void> held = context.transfer->Hold();
    if (!held) {
        ShowPlain(context.ui, "Another copy of the program is sending a drawing. Try again when it is done");
    }
    return held;
}

}  // namespace korvet
