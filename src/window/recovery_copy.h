// What is kept of a window while it holds anything unsaved, for the case that the program ends badly.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "window/fitting_window.h"

namespace korvet {

struct RecoveryCopy {
    std::string path;                          ///< of the window's file; empty while it has none
    std::optional<std::uint64_t> fingerprint;  ///< of that file as the window has read or written it last
    std::string textSize;                      ///< the text of its box
    std::vector<CViewPoint> views;             ///< the whole history
    std::string parameters;                    ///< the text of a parameter file, with a point as decimal mark

    /// All of it as the bytes of a file.
    [[nodiscard]] std::string Compose() const;

    /// The copy that was composed to these bytes. Throws ParameterFileError when they are not all of one.
    static RecoveryCopy Parse(std::string_view bytes);

    /// The fitting that it is of. Throws ParameterFileError.
    [[nodiscard]] std::string Category() const;
};

/// The copy of a window as it stands, an imported mesh included or left out.
enum class MeshInCopy { LeftOut, Included };
RecoveryCopy CopyOf(const CFittingWindow& window, MeshInCopy mesh = MeshInCopy::Included);

/// Fills a new window from its copy without a word: nothing is built, and all of it counts as unsaved. Throws
/// ParameterFileError; the window is then of no use.
void Restore(CFittingWindow& window, const RecoveryCopy& copy);

}  // namespace korvet
