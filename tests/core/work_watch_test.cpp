#include "core/work_watch.h"

#include <gtest/gtest.h>

#include <optional>

#include "core/rule_surf.h"

namespace korvet {
namespace {

using namespace std::chrono_literals;

TEST(WorkWatch, AsksOnlyAfterItsPatience) {
    int asked = 0;
    const WorkWatch watch(1h, [&](auto) { return ++asked > 0; });
    for (int i = 0; i < 1000; ++i) {
        WorkWatch::Look();
    }
    EXPECT_EQ(asked, 0);
}

TEST(WorkWatch, EndsTheWorkWhenItIsTold) {
    const WorkWatch watch(0ms, [](auto taken) { return taken < 0ms; });
    EXPECT_THROW(WorkWatch::Look(), WorkCancelled);
}

TEST(WorkWatch, AsksNothingWhileItAsks) {
    int asked = 0;
    const WorkWatch watch(0ms, [&](auto) {
        ++asked;
        WorkWatch::Look();  // what a window that is painted meanwhile does
        return false;
    });
    EXPECT_THROW(WorkWatch::Look(), WorkCancelled);
    EXPECT_EQ(asked, 1);
}

TEST(WorkWatch, LetsALittleTimePassBetweenTwoQuestions) {
    int asked = 0;
    const WorkWatch watch(0ms, [&](auto) { return ++asked > 0; });
    const auto start = WorkWatch::Clock::now();
    while (WorkWatch::Clock::now() - start < 120ms) {
        WorkWatch::Look();
    }
    EXPECT_GE(asked, 2);
    EXPECT_LE(asked, (WorkWatch::Clock::now() - start) / 50ms + 1);
}

TEST(WorkWatch, TheOuterOneWatchesForBoth) {
    int outer = 0;
    int inner = 0;
    std::optional<WorkWatch> watch;
    watch.emplace(0ms, [&](auto) { return ++outer > 0; });
    {
        const WorkWatch within(0ms, [&](auto) { return ++inner < 0; });
        WorkWatch::Look();
    }
    EXPECT_EQ(outer, 1);
    EXPECT_EQ(inner, 0);
    watch.reset();
    WorkWatch::Look();
    EXPECT_EQ(outer, 1);
}

TEST(WorkWatch, EverySurfaceOfAFittingIsALook) {
    const WorkWatch watch(0ms, [](auto) { return false; });
    CRuleSurfs surfaces;
    EXPECT_THROW(surfaces.Add({}), WorkCancelled);
}

}  // namespace
}  // namespace korvet
