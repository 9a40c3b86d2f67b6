// A folder for the files of one test, which goes away with it.
#pragma once

#ifndef _WIN32
#include <unistd.h>
#endif

#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <system_error>

namespace korvet {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "korvet_test_XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// How many things there are in it.
    [[nodiscard]] std::ptrdiff_t Entries() const {
        return std::distance(std::filesystem::directory_iterator(path_),
                             std::filesystem::directory_iterator());
    }

  private:
    std::filesystem::path path_;
};

}  // namespace korvet
