// Work in threads, taken in order.
#include "batch/in_order.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <numeric>
#include <stdexcept>

namespace korvet::batch {
namespace {

using Numbers = std::vector<std::size_t>;

/// Squares made by threads of which every third dawdles.
std::unique_ptr<std::size_t> Square(std::size_t i) {
    if (i % 3 == 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return std::make_unique<std::size_t>(i * i);
}

TEST(InOrder, TakesAllResultsInTheirOrder) {
    for (const int jobs : {1, 2, 7, 100}) {
        Numbers taken;
        const auto here = std::this_thread::get_id();
        InOrder<std::size_t>(
            50, jobs, [](std::size_t, std::size_t i) { return Square(i); },
            [&](std::size_t i, const std::size_t& square) {
                EXPECT_EQ(std::this_thread::get_id(), here);
                EXPECT_EQ(square, i * i);
                taken.push_back(i);
            });
        Numbers all(50);
        std::iota(all.begin(), all.end(), std::size_t{0});
        EXPECT_EQ(taken, all);
    }
}

TEST(InOrder, NoThreadHasTheSameNumberAtTheSameTime) {
    std::vector<std::atomic<int>> inside(4);
    InOrder<std::size_t>(
        60, 4,
        [&](std::size_t job, std::size_t i) {
            EXPECT_EQ(inside.at(job)++, 0);
            auto result = Square(i);
            --inside.at(job);
            return result;
        },
        [](std::size_t, const std::size_t&) {});
}

TEST(InOrder, ResultsDoNotPileUpBehindASlowOne) {
    std::atomic<std::size_t> begun = 0;
    InOrder<std::size_t>(
        200, 4,
        [&](std::size_t, std::size_t i) {
            ++begun;
            return Square(i);
        },
        [&](std::size_t i, const std::size_t&) {
            EXPECT_LE(begun, i + 4 * WaitingPerJob);
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        });
}

TEST(InOrder, AnExceptionComesOutOnceTheThreadsHaveEnded) {
    for (const int jobs : {1, 4}) {
        EXPECT_THROW(InOrder<std::size_t>(
                         20, jobs,
                         [](std::size_t, std::size_t i) {
                             if (i == 5) {
                                 throw std::runtime_error("fifth");
                             }
                             return Square(i);
                         },
                         [](std::size_t, const std::size_t&) {}),
                     std::runtime_error);
        EXPECT_THROW(InOrder<std::size_t>(
                         20, jobs, [](std::size_t, std::size_t i) { return Square(i); },
                         [](std::size_t i, const std::size_t&) {
                             if (i == 3) {
                                 throw std::runtime_error("taking");
                             }
                         }),
                     std::runtime_error);
    }
}

TEST(InOrder, NothingToDoIsDone) {
    InOrder<std::size_t>(
        0, 4, [](std::size_t, std::size_t i) { return Square(i); }, [](std::size_t, const std::size_t&) {});
}

}  // namespace
}  // namespace korvet::batch
