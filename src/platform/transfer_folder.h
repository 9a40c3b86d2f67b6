// The folder of drawings on their way, on the disks of the machine.
#pragma once

#include <string>

#include "window/transfer_place.h"

namespace korvet {

class TransferFolder final : public TransferPlace {
  public:
    /// `programFolder` where files can be made in it, else `userFolder`, which is made when it is missing.
    TransferFolder(const std::string& programFolder, const std::string& userFolder);

    /// The place of this program: its own folder, or that of the user's data.
    static TransferFolder OfProgram();

    [[nodiscard]] std::string PathOf(const std::string& name) const override;

    /// A lock on the file "Transfer.lock", which other machines that share the folder respect too. One that a
    /// copy has left behind when it ended badly holds nobody up.
    [[nodiscard]] std::shared_ptr<void> Hold() override;

  private:
    std::string folder_;
};

}  // namespace korvet
