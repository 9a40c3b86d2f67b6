#include "platform/file_lock.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/platform/temporary_folder.h"

namespace korvet {
namespace {

namespace fs = std::filesystem;

class FileLockTest : public testing::Test {
  protected:
    FileLockTest() { std::ofstream(path) << "contents"; }

    const TemporaryFolder place;
    const fs::path& folder = place.Path();
    const std::string path = (folder / "part.dxf").string();
};

TEST_F(FileLockTest, AFileThatNobodyHoldsIsFreeAndStaysAsItWas) {
    EXPECT_FALSE(IsFileAlreadyOpen(path));
    std::ifstream file(path);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "contents");
}

TEST_F(FileLockTest, ALockedFileIsBusyUntilTheLockGoes) {
    for (const int kind : {LOCK_EX, LOCK_SH}) {
        const int holder = ::open(path.c_str(), O_RDWR);
        ASSERT_EQ(::flock(holder, kind), 0);
        EXPECT_TRUE(IsFileAlreadyOpen(path));
        ::close(holder);
        EXPECT_FALSE(IsFileAlreadyOpen(path));
    }
}

TEST_F(FileLockTest, TheTestLeavesNoLockBehind) {
    EXPECT_FALSE(IsFileAlreadyOpen(path));
    const int other = ::open(path.c_str(), O_RDWR);
    EXPECT_EQ(::flock(other, LOCK_EX | LOCK_NB), 0);
    ::close(other);
}

TEST_F(FileLockTest, AMissingFileIsFreeAndIsNotMade) {
    const std::string missing = (folder / "missing.dxf").string();
    EXPECT_FALSE(IsFileAlreadyOpen(missing));
    EXPECT_FALSE(fs::exists(missing));
    EXPECT_FALSE(IsFileAlreadyOpen(""));
}

TEST_F(FileLockTest, WhatCannotBeOpenedForAnotherReasonIsNotBusy) {
    EXPECT_FALSE(IsFileAlreadyOpen(folder.string()));
    fs::permissions(path, fs::perms::owner_read);
    EXPECT_FALSE(IsFileAlreadyOpen(path));
    const std::string pipe = (folder / "pipe").string();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(IsFileAlreadyOpen(pipe));
}

}  // namespace
}  // namespace korvet
#endif
