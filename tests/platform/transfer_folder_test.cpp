// The folder of drawings on their way, and the lock on it.
#include "platform/transfer_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "core/file_store.h"

namespace korvet {
namespace {

class TransferFolderTest : public testing::Test {
  protected:
    [[nodiscard]] std::string Path(const char* name) const { return folder.filePath(name).toStdString(); }

    QTemporaryDir folder;
};

TEST_F(TransferFolderTest, IsTheProgramsWhereItCanBeWritten) {
    QDir(folder.path()).mkdir("program");
    TransferFolder place(Path("program"), Path("user/data"));
    EXPECT_EQ(place.PathOf("Transfer.tmp"), Path("program/Transfer.tmp"));
    EXPECT_FALSE(QDir(folder.path()).exists("user"));
    EXPECT_TRUE(QDir(folder.filePath("program")).isEmpty()) << "the trial leaves nothing behind";
}

TEST_F(TransferFolderTest, IsTheUsersWhereItCannot) {
    TransferFolder place(Path("no such folder"), Path("user/data"));
    EXPECT_EQ(place.PathOf("Transfer.tmp"), Path("user/data/Transfer.tmp"));
    EXPECT_TRUE(QDir(folder.path()).exists("user/data"));
}

TEST_F(TransferFolderTest, IsHeldByOneAtATime) {
    TransferFolder place(Path("no such folder"), Path("user"));
    TransferFolder other(Path("no such folder"), Path("user"));
    auto held = place.Hold();
    ASSERT_TRUE(held);
    EXPECT_FALSE(other.Hold());
    held.reset();
    EXPECT_TRUE(other.Hold());
}

#ifndef _WIN32
TEST_F(TransferFolderTest, ACopyThatEndedBadlyHoldsNobodyUp) {
    TransferFolder place(Path("no such folder"), Path("user"));
    const pid_t copy = ::fork();
    if (copy == 0) {
        const auto held = place.Hold();
        ::_exit(held ? 0 : 1);  // without giving it back
    }
    int status = 0;
    ::waitpid(copy, &status, 0);
    ASSERT_EQ(status, 0);
    ASSERT_TRUE(QFile::exists(folder.filePath("user/Transfer.lock")));
    EXPECT_TRUE(place.Hold());
}
#endif

TEST_F(TransferFolderTest, AFolderThatCannotBeWrittenIsAnError) {
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    TransferFolder place("", Path("file/below"));
    EXPECT_THROW((void)place.Hold(), FileError);
}

}  // namespace
}  // namespace korvet
