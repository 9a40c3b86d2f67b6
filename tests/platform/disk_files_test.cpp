#include "platform/disk_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <string>
#include <system_error>

#include "tests/platform/disk_files_fixture.h"

#ifndef _WIN32
#include <sys/resource.h>
#include <sys/stat.h>
#endif

namespace korvet {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST_F(DiskFilesTest, WrittenBytesReadBackAsTheyAre) {
    const std::string bytes("a\r\n\0b\xff", 6);
    for (const Flush flush : {Flush::No, Flush::Yes}) {
        files.Write(Path("file"), bytes, flush);
        EXPECT_EQ(files.Read(Path("file"), NoLimit), bytes);
        EXPECT_EQ(Entries(), 1);
    }
    files.Write(Path("file"), "", Flush::No);
    EXPECT_EQ(files.Read(Path("file"), NoLimit), "");
}

TEST_F(DiskFilesTest, LongFilesReadBackWhole) {
    std::string bytes;
    for (int i = 0; i < 50000; ++i) {
        bytes += std::to_string(i);
    }
    files.Write(Path("file"), bytes, Flush::No);
    EXPECT_EQ(files.Read(Path("file"), bytes.size()), bytes);
    EXPECT_EQ(files.Read(Path("file"), NoLimit), bytes);
    EXPECT_THAT(ReadError(Path("file"), bytes.size() - 1),
                EndsWith("is larger than " + std::to_string(bytes.size() - 1) + " bytes"));
}

TEST_F(DiskFilesTest, ReadingIsBoundedByTheLimit) {
    Put(Path("file"), "12345");
    EXPECT_EQ(files.Read(Path("file"), 5), "12345");
    EXPECT_EQ(ReadError(Path("file"), 4), Path("file") + " is larger than 4 bytes");
    EXPECT_EQ(ReadError(Path("file"), 0), Path("file") + " is larger than 0 bytes");
    Put(Path("empty"), "");
    EXPECT_EQ(files.Read(Path("empty"), 0), "");
}

TEST_F(DiskFilesTest, OnlyRegularFilesAreRead) {
    EXPECT_EQ(ReadError(folder.string()), folder.string() + " is a folder");
    EXPECT_EQ(ReadError(Path("none")), Path("none") + " does not exist");
    EXPECT_EQ(ReadError(Path("none/deeper")), Path("none/deeper") + " does not exist");
    EXPECT_EQ(ReadError(""), "'' is no file name");
    EXPECT_EQ(ReadError(std::string("a\0b", 3)), "'a' is no file name");
    EXPECT_THAT(ReadError(Path(std::string(300, 'x'))), HasSubstr(" cannot be read: "));
}

TEST_F(DiskFilesTest, ExistsSeesFilesAndFolders) {
    Put(Path("file"), "");
    EXPECT_TRUE(files.Exists(Path("file")));
    EXPECT_TRUE(files.Exists(folder.string()));
    EXPECT_FALSE(files.Exists(Path("none")));
    EXPECT_FALSE(files.Exists(""));
}

TEST_F(DiskFilesTest, OneFileHasManyPaths) {
    Put(Path("a"), "same");
    Put(Path("b"), "same");
    fs::create_symlink("a", Path("link"));
    for (const std::string& path : {Path("a"), Path("./a"), Path("link")}) {
        EXPECT_TRUE(files.IsSameFile(Path("a"), path)) << path;
        EXPECT_TRUE(files.IsSameFile(path, Path("a"))) << path;
    }
    EXPECT_FALSE(files.IsSameFile(Path("a"), Path("b")));
    EXPECT_FALSE(files.IsSameFile(Path("a"), Path("none")));
    EXPECT_FALSE(files.IsSameFile(Path("none"), Path("none")));
}

TEST_F(DiskFilesTest, WritingReplacesTheWholeFile) {
    Put(Path("file"), "a longer old text");
    files.Write(Path("file"), "new", Flush::No);
    EXPECT_EQ(ContentsOf(Path("file")), "new");
    EXPECT_EQ(Entries(), 1);
}

TEST_F(DiskFilesTest, AnErrorLeavesNothingBehind) {
    EXPECT_THAT(WriteError(Path("none/file")), StartsWith(Path("none/file") + " cannot be written: "));
    Put(Path("file"), "old");
    EXPECT_THAT(WriteError(Path("file/deeper")), HasSubstr(" cannot be written: "));
    EXPECT_EQ(ContentsOf(Path("file")), "old");
    EXPECT_EQ(WriteError(""), "'' is no file name");
    EXPECT_EQ(WriteError(Path(std::string("a\0b", 3))), "'" + Path("a") + "' is no file name");
    EXPECT_EQ(Entries(), 1);
}

TEST_F(DiskFilesTest, AFolderIsNotWrittenOver) {
    EXPECT_EQ(WriteError(folder.string()), folder.string() + " is a folder");
    EXPECT_EQ(Entries(), 0);
}

TEST_F(DiskFilesTest, ANameThatIsTooLongIsRefused) {
    EXPECT_THAT(WriteError(Path(std::string(256, 'x'))), HasSubstr(" cannot be written: "));
    EXPECT_EQ(Entries(), 0);
}

TEST_F(DiskFilesTest, ALongNameIsWritten) {
    files.Write(Path(std::string(255, 'x')), "new", Flush::No);
    EXPECT_EQ(ContentsOf(Path(std::string(255, 'x'))), "new");
}

#ifndef _WIN32

TEST_F(DiskFilesTest, APipeIsNotRead) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(ReadError(Path("pipe")), Path("pipe") + " is no regular file");
    EXPECT_EQ(ReadError("/dev/null"), "/dev/null is no regular file");
}

TEST_F(DiskFilesTest, PermissionsStay) {
    Put(Path("file"), "old");
    fs::permissions(Path("file"), fs::perms::owner_read | fs::perms::owner_write | fs::perms::owner_exec);
    files.Write(Path("file"), "new", Flush::No);
    EXPECT_EQ(fs::status(Path("file")).permissions(), fs::perms::owner_all);
    EXPECT_EQ(ContentsOf(Path("file")), "new");
}

TEST_F(DiskFilesTest, AWriteProtectedFileIsNotReplaced) {
    Put(Path("file"), "old");
    fs::permissions(Path("file"), fs::perms::owner_read | fs::perms::others_read);
    fs::permissions(folder, fs::perms::all);
    {
        const WithoutSuperuser nobody;
        EXPECT_THAT(WriteError(Path("file")), HasSubstr(" cannot be written: "));
    }
    EXPECT_EQ(ContentsOf(Path("file")), "old");
    EXPECT_EQ(Entries(), 1);
}

TEST_F(DiskFilesTest, ALinkStaysALink) {
    fs::create_directory(Path("sub"));
    Put(Path("sub/file"), "old");
    fs::create_symlink("sub/file", Path("link"));
    fs::create_symlink("link", Path("link2"));
    files.Write(Path("link2"), "new", Flush::No);
    EXPECT_TRUE(fs::is_symlink(Path("link")));
    EXPECT_TRUE(fs::is_symlink(Path("link2")));
    EXPECT_EQ(ContentsOf(Path("sub/file")), "new");
    EXPECT_EQ(files.Read(Path("link2"), NoLimit), "new");
    EXPECT_EQ(Entries(), 3);
}

TEST_F(DiskFilesTest, ALinkToNothingGetsItsFile) {
    fs::create_symlink(Path("file"), Path("link"));
    files.Write(Path("link"), "new", Flush::No);
    EXPECT_TRUE(fs::is_symlink(Path("link")));
    EXPECT_EQ(ContentsOf(Path("file")), "new");
}

TEST_F(DiskFilesTest, ARingOfLinksIsRefused) {
    fs::create_symlink("b", Path("a"));
    fs::create_symlink("a", Path("b"));
    EXPECT_THAT(WriteError(Path("a")), HasSubstr(" cannot be written: "));
    EXPECT_THAT(ReadError(Path("a")), HasSubstr(" cannot be read: "));
    EXPECT_EQ(Entries(), 2);
}

/// Lets no file of this program grow beyond a size, for as long as it lives.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit = {bytes, old_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, handler_);
    }

  private:
    rlimit old_{};
    void (*handler_)(int);
};

TEST_F(DiskFilesTest, AFailureHalfWayKeepsTheOldFileAndLeavesNoTemporaryOne) {
    Put(Path("file"), "old");
    std::string few;
    std::string many;
    {
        const FileSizeLimit limit(100);
        few = WriteError(Path("file"), std::string(101, 'x'));       // fails when the buffer is emptied
        many = WriteError(Path("file"), std::string(1000000, 'x'));  // fails at once
    }
    const std::string expected =
        Path("file") + " cannot be written: " + std::generic_category().message(EFBIG);
    EXPECT_EQ(few, expected);
    EXPECT_EQ(many, expected);
    EXPECT_EQ(ContentsOf(Path("file")), "old");
    EXPECT_EQ(Entries(), 1);
}

TEST_F(DiskFilesTest, ADeviceIsWrittenStraightThrough) {
    files.Write("/dev/null", "new", Flush::Yes);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

#ifdef __linux__
TEST_F(DiskFilesTest, AFullDeviceIsAnError) {
    EXPECT_EQ(WriteError("/dev/full"),
              "/dev/full cannot be written: " + std::generic_category().message(ENOSPC));
    EXPECT_EQ(WriteError("/dev/full", std::string(100000, 'x')),
              "/dev/full cannot be written: " + std::generic_category().message(ENOSPC));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}
#endif

#endif

TEST_F(DiskFilesTest, WritesThousandsOfFiles) {
    for (int i = 0; i < 2000; ++i) {
        files.Write(Path("file" + std::to_string(i)), "contents", Flush::No);
    }
    EXPECT_EQ(Entries(), 2000);
    EXPECT_EQ(files.Read(Path("file1999"), NoLimit), "contents");
}

}  // namespace
}  // namespace korvet
