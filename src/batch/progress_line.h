// How far a run is, on a terminal.
#pragma once

#include <cstddef>
#include <string>

namespace korvet::batch {

class ProgressLine {
  public:
    /// Shows which input is done, when the standard error is a terminal and there is more than one input.
    void Show(std::size_t number, std::size_t count, const std::string& name);

    /// Takes the line away, before something else is written and at the end.
    void Clear();

  private:
    bool isShown_ = false;
};

}  // namespace korvet::batch
