#include "core/fitting.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/point_lists.h"

namespace korvet {
namespace {

/// A strip as long as told; a second operation leaves a warning, and a bad length a number that is none.
struct Plate {
    FittingInputs inputs;
    FittingResults results;
    double length = 1;
    bool many = false;

    void ConstructModel() {
        results.ModelSurface = Strip({{0, 0, 0, 1}, {length, 0, 0, 1}}, {{0, 1, 0, 1}, {length, 1, 0, 1}});
        results.warnings.push_back({TopLapTooLarge, true});
    }

    void DevelopModel() {
        ConstructModel();
        if (many) {
            results.PatternSurfaceList.Add(results.ModelSurface);
        } else {
            results.PatternSurface = results.ModelSurface;
        }
        results.warnings.push_back({SeamLapTooLarge, false});
    }
};

static_assert(FittingClass<Plate>);
static_assert(!FittingClass<int>);
static_assert(!FittingClass<FittingInputs>);

TEST(FittingInputs, StartAsTheyDo) {
    const FittingInputs inputs;
    EXPECT_EQ(inputs.segs, 24);
    EXPECT_EQ(inputs.JoinType, 0);
    EXPECT_EQ(inputs.JoinAngle, 0);
    EXPECT_FALSE(inputs.HalfPattern);
}

TEST(FittingHandle, DrivesTheFitting) {
    const FittingHandle handle = FittingHandle::Make<Plate>();
    handle.As<Plate>().length = 5;
    handle.Inputs().segs = 48;
    EXPECT_EQ(handle.As<Plate>().inputs.segs, 48);

    handle.ConstructModel();
    EXPECT_EQ(handle.Results().ModelSurface.List1->Item(2).x, 5);
    EXPECT_FALSE(handle.Results().PatternSurface.List1);

    handle.DevelopModel();
    EXPECT_EQ(handle.Results().PatternSurface.List1->Item(2).x, 5);
}

TEST(FittingHandle, CopiesDriveTheSameFitting) {
    const auto plate = std::make_shared<Plate>();
    const FittingHandle handle(plate);
    const FittingHandle copy = handle;  // NOLINT(performance-unnecessary-copy-initialization)
    copy.As<Plate>().length = 9;
    EXPECT_EQ(plate->length, 9);
    copy.ConstructModel();
    EXPECT_EQ(handle.Results().ModelSurface.List1->Item(2).x, 9);
}

TEST(FittingHandle, WarningsAreThoseOfTheLastOperation) {
    const FittingHandle handle = FittingHandle::Make<Plate>();
    handle.DevelopModel();
    handle.DevelopModel();
    ASSERT_EQ(handle.Results().warnings.size(), 2U);
    EXPECT_EQ(handle.Results().warnings[0].messageId, 28);
    EXPECT_TRUE(handle.Results().warnings[0].userError);
    EXPECT_EQ(handle.Results().warnings[1].messageId, 25);
    handle.ConstructModel();
    EXPECT_EQ(handle.Results().warnings.size(), 1U);
}

TEST(FittingHandle, LetsNoSurfaceOutThatIsNotFinite) {
    for (const bool many : {false, true}) {
        for (const double length :
             {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
            const FittingHandle handle = FittingHandle::Make<Plate>();
            handle.As<Plate>().length = length;
            handle.As<Plate>().many = many;
            EXPECT_THROW(handle.ConstructModel(), ArithmeticError);
            EXPECT_THROW(handle.DevelopModel(), ArithmeticError);
        }
    }
}

/// A fitting whose lists of pieces alone go wrong.
struct BadPieces {
    FittingInputs inputs;
    FittingResults results;
    bool inModel = false;

    void ConstructModel() {
        CRuleSurf good = Strip({{0, 0, 0, 0}}, {{0, 0, 0, 0}});
        CRuleSurf bad = Strip({{0, 0, 0, 0}}, {{0, std::numeric_limits<double>::quiet_NaN(), 0, 0}});
        CRuleSurfs& list = inModel ? results.ModelSurfaceList : results.PatternSurfaceList;
        list.Add(good);
        list.Add(bad);
    }
    void DevelopModel() { ConstructModel(); }
};

TEST(FittingHandle, LooksAtEveryPieceOfALists) {
    for (const bool inModel : {false, true}) {
        const FittingHandle handle = FittingHandle::Make<BadPieces>();
        handle.As<BadPieces>().inModel = inModel;
        EXPECT_THROW(handle.ConstructModel(), ArithmeticError) << inModel;
    }
}

TEST(AddLaps, LaysThemWhenTheJoinAsksForThem) {
    CRuleSurf strip = Strip({{0, 0, 0, 1}, {10, 0, 0, 1}}, {{0, 5, 0, 1}, {10, 5, 0, 1}});
    FittingInputs inputs;
    inputs.LapSize1 = 2;
    EXPECT_FALSE(AddLaps(strip, inputs));
    EXPECT_EQ(strip.List1->Count(), 2U);
    inputs.JoinType = 1;
    EXPECT_TRUE(AddLaps(strip, inputs));
    ASSERT_EQ(strip.List1->Count(), 3U);
    EXPECT_DOUBLE_EQ(strip.List1->Item(3).x, 12);  // two beyond the seam
}

}  // namespace
}  // namespace korvet
