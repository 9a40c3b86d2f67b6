// A folder of their own for tests of files on the disk, and a look at what is in it.
#pragma once

#include <gtest/gtest.h>
#ifndef _WIN32
#include <unistd.h>
#endif

#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>

#include "platform/disk_files.h"
#include "tests/platform/temporary_folder.h"

namespace korvet {

namespace fs = std::filesystem;

inline constexpr std::size_t NoLimit = std::numeric_limits<std::size_t>::max();

inline std::string ContentsOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void Put(const fs::path& path, const std::string& contents) {
    std::ofstream(path, std::ios::binary) << contents;
}

class DiskFilesTest : public testing::Test {
  protected:
    [[nodiscard]] std::string Path(const std::string& name) const { return (folder / name).string(); }

    [[nodiscard]] std::ptrdiff_t Entries() const { return place.Entries(); }

    [[nodiscard]] std::string ReadError(const std::string& path, std::size_t limit = NoLimit) const {
        try {
            (void)files.Read(path, limit);
        } catch (const FileError& error) {
            return error.what();
        }
        return "no error";
    }

    [[nodiscard]] std::string WriteError(const std::string& path, const std::string& contents = "new") {
        try {
            files.Write(path, contents, Flush::No);
        } catch (const FileError& error) {
            return error.what();
        }
        return "no error";
    }

    DiskFiles files;
    const TemporaryFolder place;
    const fs::path& folder = place.Path();
};

#ifndef _WIN32

/// The superuser may write every file, so for as long as this lives the process is nobody instead.
class WithoutSuperuser {
  public:
    WithoutSuperuser() {
        if (user_ == 0) {
            EXPECT_EQ(::seteuid(Nobody), 0);
        }
    }
    ~WithoutSuperuser() { EXPECT_EQ(::seteuid(user_), 0); }
    WithoutSuperuser(const WithoutSuperuser&) = delete;
    WithoutSuperuser& operator=(const WithoutSuperuser&) = delete;

  private:
    static constexpr ::uid_t Nobody = 65534;
    ::uid_t user_ = ::geteuid();
};

#endif

}  // namespace korvet
