// Port: the folder in which a drawing lies on its way to a plotter or into a drawing program.
#pragma once

#include <memory>
#include <string>

namespace korvet {

class TransferPlace {
  public:
    TransferPlace() = default;
    TransferPlace(const TransferPlace&) = delete;
    TransferPlace& operator=(const TransferPlace&) = delete;
    virtual ~TransferPlace() = default;

    /// The path of a file in that folder: the program's own where it can be written, else one of the user's.
    [[nodiscard]] virtual std::string PathOf(const std::string& name) const = 0;

    /// Keeps other copies of the program from writing there for as long as the result lives. Null when one of
    /// them is at it. Throws FileError when the folder can't be written.
    [[nodiscard]] virtual std::shared_ptr<void> Hold() = 0;
};

}  // namespace korvet
