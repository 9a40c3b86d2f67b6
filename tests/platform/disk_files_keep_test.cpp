// What a save keeps of the file that it replaces, and what it leaves behind.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#ifdef __linux__
#include <sys/xattr.h>
#endif

#include <array>
#include <chrono>
#include <vector>

#include "platform/growing_file.h"
#include "tests/platform/disk_files_fixture.h"

namespace korvet {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

using DiskFilesKeepTest = DiskFilesTest;

#ifndef _WIN32

struct ::stat StatusOf(const std::string& path) {
    struct ::stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status;
}

TEST_F(DiskFilesKeepTest, OwnerAndGroupWhereTheSystemAllowsIt) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only the superuser may give files away";
    }
    constexpr ::uid_t Colleague = 1234;
    constexpr ::gid_t Team = 4321;
    Put(Path("file"), "old");
    ASSERT_EQ(::chown(Path("file").c_str(), Colleague, Team), 0);
    ASSERT_EQ(::chmod(Path("file").c_str(), 0664), 0);
    files.Write(Path("file"), "new", Flush::Yes);
    const struct ::stat kept = StatusOf(Path("file"));
    EXPECT_EQ(kept.st_uid, Colleague);
    EXPECT_EQ(kept.st_gid, Team);
    EXPECT_EQ(kept.st_mode & 07777, 0664U);
    EXPECT_EQ(ContentsOf(Path("file")), "new");
}

TEST_F(DiskFilesKeepTest, ElseTheModeAndThePlace) {
    Put(Path("file"), "old");
    ASSERT_EQ(::chmod(Path("file").c_str(), 04666), 0);
    fs::permissions(folder, fs::perms::all);
    {
        const WithoutSuperuser nobody;
        files.Write(Path("file"), "new", Flush::Yes);
    }
    EXPECT_EQ(StatusOf(Path("file")).st_mode & 0777, 0666U);
    if (::geteuid() == 0) {
        EXPECT_EQ(StatusOf(Path("file")).st_mode & 07777, 0666U) << "what runs as its owner has another now";
    }
    EXPECT_EQ(ContentsOf(Path("file")), "new");
    EXPECT_EQ(Entries(), 1);
}

#ifdef __linux__
TEST_F(DiskFilesKeepTest, ExtendedAttributes) {
    Put(Path("file"), "old");
    const std::string value("released\0by", 11);
    if (::setxattr(Path("file").c_str(), "user.state", value.data(), value.size(), 0) != 0) {
        GTEST_SKIP() << "this file system has none";
    }
    files.Write(Path("file"), "new", Flush::No);
    std::array<char, 64> kept{};
    const ::ssize_t size = ::getxattr(Path("file").c_str(), "user.state", kept.data(), kept.size());
    ASSERT_EQ(size, static_cast<::ssize_t>(value.size()));
    EXPECT_EQ(std::string(kept.data(), value.size()), value);
}
#endif

TEST_F(DiskFilesKeepTest, FurtherNamesPartAndAreToldOf) {
    std::vector<std::string> told;
    files.onPartedNames = [&told](const std::string& path) { told.push_back(path); };
    Put(Path("file"), "old");
    files.Write(Path("file"), "one name", Flush::No);
    EXPECT_TRUE(told.empty());
    fs::create_hard_link(Path("file"), Path("other"));
    files.Write(Path("file"), "new", Flush::No);
    EXPECT_EQ(told, std::vector<std::string>{Path("file")});
    EXPECT_EQ(ContentsOf(Path("other")), "one name");
    EXPECT_EQ(ContentsOf(Path("file")), "new");
}

TEST_F(DiskFilesKeepTest, AFolderThatCannotBeWrittenToIsNamed) {
    fs::create_directory(Path("closed"));
    fs::permissions(Path("closed"), static_cast<fs::perms>(0555));
    fs::permissions(folder, fs::perms::all);
    const WithoutSuperuser nobody;
    for (const bool exists : {false, true}) {
        const std::string path = exists ? Path("closed/there") : Path("closed/new");
        const std::string start =
            path + " cannot be written: no file can be made in the folder " + Path("closed") + ": ";
        EXPECT_THAT(WriteError(path), StartsWith(start));
    }
}

TEST_F(DiskFilesKeepTest, LeftTemporaryFilesAreTakenAwayWhenTheyAreOldAndNobodys) {
    const auto old = fs::file_time_type::clock::now() - std::chrono::hours(25);
    for (const char* name :
         {"korvet-1.tmp", "korvet-22.tmp", "korvet-.tmp", "korvet-1x.tmp", "korvet-3.tmp.Kvt"}) {
        Put(Path(name), "left");
        fs::last_write_time(Path(name), old);
    }
    Put(Path("korvet-333.tmp"), "being written");
    fs::create_symlink(Path("korvet-1x.tmp"), Path("korvet-4.tmp"));
    const int held = ::open(Path("korvet-22.tmp").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    files.Write(Path("file"), "new", Flush::No);
    ::close(held);
    EXPECT_FALSE(fs::exists(Path("korvet-1.tmp")));
    for (const char* name : {"korvet-22.tmp", "korvet-.tmp", "korvet-1x.tmp", "korvet-3.tmp.Kvt",
                             "korvet-333.tmp", "korvet-4.tmp", "file"}) {
        EXPECT_TRUE(fs::exists(Path(name))) << name;
    }
}

#endif

TEST_F(DiskFilesKeepTest, ANewNameIsTakenOnce) {
    EXPECT_TRUE(files.Create(Path("file"), "first"));
    EXPECT_FALSE(files.Create(Path("file"), "second"));
    EXPECT_EQ(ContentsOf(Path("file")), "first");
    fs::create_symlink(Path("none"), Path("link"));
    EXPECT_FALSE(files.Create(Path("link"), "second"));
    EXPECT_FALSE(files.Create(folder.string(), "second"));
    EXPECT_EQ(Entries(), 2);
    EXPECT_THROW(files.Create(Path("none/file"), "x"), FileError);
    EXPECT_THROW(files.Create("", "x"), FileError);
}

class GrowingFileTest : public DiskFilesTest {
  protected:
    [[nodiscard]] std::string ErrorOf(const std::string& path) const {
        try {
            const GrowingFile file(path);
        } catch (const FileError& error) {
            return error.what();
        }
        return "no error";
    }
};

TEST_F(GrowingFileTest, GrowsBesideTheOldFileAndReplacesItAtTheEnd) {
    Put(Path("file"), "old");
    {
        GrowingFile file(Path("file"));
        for (const char* text : {"one", "two"}) {
            file.Append(text);
            EXPECT_TRUE(ContentsOf(Path("file.part")).ends_with(text)) << "another program sees it at once";
            EXPECT_EQ(ContentsOf(Path("file")), "old");
        }
        file.Place();
    }
    EXPECT_EQ(ContentsOf(Path("file")), "onetwo");
    EXPECT_EQ(Entries(), 1);
}

TEST_F(GrowingFileTest, GoesAwayUnlessItWasPlaced) {
    Put(Path("file"), "old");
    {
        GrowingFile file(Path("file"));
        file.Append("one");
    }
    EXPECT_EQ(ContentsOf(Path("file")), "old");
    EXPECT_EQ(Entries(), 1);
}

TEST_F(GrowingFileTest, BeginsAnewOverWhatAKilledRunHasLeft) {
    Put(Path("file.part"), "a long text that was left over");
    GrowingFile file(Path("file"));
    file.Append("new");
    file.Place();
    EXPECT_EQ(ContentsOf(Path("file")), "new");
    EXPECT_EQ(Entries(), 1);
}

#ifndef _WIN32

TEST_F(GrowingFileTest, TwoRunsDoNotWriteIntoOneFile) {
    GrowingFile file(Path("file"));
    file.Append("one");
    EXPECT_EQ(ErrorOf(Path("file")),
              Path("file") + " cannot be written: another run is at work on " + Path("file.part"));
    EXPECT_EQ(ContentsOf(Path("file.part")), "one");
}

TEST_F(GrowingFileTest, ALinkStaysALinkAndNoLinkIsFollowedToThePart) {
    fs::create_directory(Path("sub"));
    fs::create_symlink("sub/file", Path("link"));
    {
        GrowingFile file(Path("link"));
        EXPECT_TRUE(fs::exists(Path("sub/file.part")));
        file.Append("new");
        file.Place();
    }
    EXPECT_TRUE(fs::is_symlink(Path("link")));
    EXPECT_EQ(ContentsOf(Path("sub/file")), "new");
    Put(Path("mine"), "mine");
    fs::create_symlink(Path("mine"), Path("out.part"));
    EXPECT_THAT(ErrorOf(Path("out")), HasSubstr(" cannot be written: "));
    EXPECT_EQ(ContentsOf(Path("mine")), "mine");
}

TEST_F(GrowingFileTest, ADeviceIsWrittenStraightThrough) {
    GrowingFile file("/dev/null");
    file.Append("new");
    file.Place();
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_FALSE(fs::exists("/dev/null.part"));
}

#endif

}  // namespace
}  // namespace korvet
