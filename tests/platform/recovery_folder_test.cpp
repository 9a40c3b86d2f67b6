// Recovery copies on a disk, of runs that go on, end well, and are killed.
#include "platform/recovery_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <random>
#include <thread>

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

#include "tests/platform/temporary_folder.h"

namespace korvet {
namespace {

namespace fs = std::filesystem;

using Copies = std::vector<std::string>;

class RecoveryFolderTest : public testing::Test {
  protected:
    /// What the next start finds; it stays for the one after.
    [[nodiscard]] Copies Left() const {
        RecoveryFolder next(folder);
        Copies copies = next.TakeLeft();
        next.ReleaseLeft();
        return copies;
    }

    [[nodiscard]] bool IsEmpty() const { return !fs::exists(folder) || fs::is_empty(folder); }

    /// A run that does something and is then killed.
    template <typename Work>
    void Killed(Work work) const {
        const pid_t run = ::fork();
        if (run == 0) {
            RecoveryFolder copies(folder);
            work(copies);
            std::abort();
        }
        int status = 0;
        ASSERT_EQ(::waitpid(run, &status, 0), run);
        ASSERT_TRUE(WIFSIGNALED(status));
    }

    const TemporaryFolder place;
    const fs::path& base = place.Path();
    const std::string folder = (base / "state" / "recovery").string();
};

TEST_F(RecoveryFolderTest, ARunWithoutCopiesMakesNoFolder) {
    {
        RecoveryFolder run(folder);
        EXPECT_TRUE(run.TakeLeft().empty());
        run.Drop(1);
        run.ReleaseLeft();
    }
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(RecoveryFolderTest, ACleanEndLeavesNothing) {
    {
        RecoveryFolder run(folder);
        run.Keep(1, "one");
        run.Keep(2, "two");
        run.Drop(1);
        EXPECT_FALSE(IsEmpty());
        run.Drop(2);
    }
    EXPECT_TRUE(IsEmpty());
}

TEST_F(RecoveryFolderTest, WhatAKilledRunHasKeptIsLeft) {
    Killed([](RecoveryFolder& run) {
        run.Keep(1, "one");
        run.Keep(2, "two");
        run.Keep(1, "one more");
    });
    EXPECT_EQ(Left(), (Copies{"one more", "two"}));
    EXPECT_EQ(Left(), (Copies{"one more", "two"}));  // still there after "later"
    RecoveryFolder next(folder);
    (void)next.TakeLeft();
    next.DeleteLeft(0);
    next.ReleaseLeft();
    EXPECT_EQ(Left(), (Copies{"two"}));
    (void)next.TakeLeft();
    next.DeleteLeft(0);
    next.ReleaseLeft();
    EXPECT_TRUE(IsEmpty());
}

TEST_F(RecoveryFolderTest, RunsThatGoOnAreLeftAlone) {
    RecoveryFolder one(folder);
    RecoveryFolder other(folder);
    one.Keep(1, "of one");
    EXPECT_TRUE(other.TakeLeft().empty());
    other.ReleaseLeft();
    other.Keep(1, "of the other");
    EXPECT_TRUE(Left().empty());
    one.Drop(1);
    other.Drop(1);
}

TEST_F(RecoveryFolderTest, WhatIsOfferedIsOfferedByOneStartOnly) {
    Killed([](RecoveryFolder& run) { run.Keep(1, "one"); });
    RecoveryFolder first(folder);
    EXPECT_EQ(first.TakeLeft(), Copies{"one"});
    EXPECT_TRUE(Left().empty());
    first.ReleaseLeft();
    EXPECT_EQ(Left(), Copies{"one"});
}

TEST_F(RecoveryFolderTest, AFolderThatCannotBeMadeIsTold) {
    RecoveryFolder run("/proc/none");
    EXPECT_THROW(run.Keep(1, "one"), FileError);
}

/// A copy is whole whenever its run is killed, and no older than the one before the kill.
TEST_F(RecoveryFolderTest, ARunKilledAtAnyMomentLeavesAWholeCopy) {
    std::mt19937 random(7);  // NOLINT: the same moments each time are as good
    const auto copyOf = [](int version) {
        return std::string(20000, static_cast<char>('a' + version % 26)) + std::to_string(version);
    };
    int withCopy = 0;
    for (int kill = 0; kill < 60; ++kill) {
        int pipe[2] = {};
        ASSERT_EQ(::pipe(pipe), 0);
        const pid_t run = ::fork();
        if (run == 0) {
            RecoveryFolder copies(folder);
            for (int version = 0;; ++version) {
                copies.Keep(1, copyOf(version));
                (void)!::write(pipe[1], &version, sizeof version);
            }
        }
        ::close(pipe[1]);
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 40000));
        ::kill(run, SIGKILL);
        ASSERT_EQ(::waitpid(run, nullptr, 0), run);
        int kept = -1;
        for (int version = 0; ::read(pipe[0], &version, sizeof version) == sizeof version;) {
            kept = version;
        }
        ::close(pipe[0]);
        RecoveryFolder next(folder);
        const Copies copies = next.TakeLeft();
        if (kept >= 0 || !copies.empty()) {
            ASSERT_EQ(copies.size(), 1U);
            EXPECT_TRUE(copies[0] == copyOf(kept) || copies[0] == copyOf(kept + 1)) << kept;
            next.DeleteLeft(0);
            ++withCopy;
        }
        next.ReleaseLeft();
        EXPECT_TRUE(IsEmpty());
    }
    EXPECT_GT(withCopy, 10);
}

}  // namespace
}  // namespace korvet
