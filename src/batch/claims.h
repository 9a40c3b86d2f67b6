// The files of a command line.
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace korvet::batch {

/// Who reads or writes a file, so that no two do.
class Claims {
  public:
    static constexpr std::size_t Reader = 0;  ///< in the place of the number of the output's input
    static constexpr std::size_t Whole = std::string::npos;  ///< an output of all inputs together

    /// Claims what `path` leads to for `owner`, which belongs to the input with this number. What one reads
    /// it may write too under the same name of owner. Throws UsageError when another has the file, under
    /// whatever name. Devices are for everybody.
    void Claim(const std::string& path, const std::string& owner, std::size_t input);

  private:
    std::filesystem::path FirstNameOf(const std::filesystem::path& file);

    std::vector<std::filesystem::path> linked_;  ///< claimed files that have further names
    std::map<std::string, std::pair<std::string, std::size_t>> claims_;
};

}  // namespace korvet::batch
