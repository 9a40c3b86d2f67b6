#include "sketch/sample_model.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "fittings/windows.h"
#include "form/messages.h"
#include "frame/catalogue.h"

namespace korvet {
namespace {

/// A fitting that shows in its model what it was given.
struct CPlates {
    FittingInputs inputs;
    FittingResults results;
    double width = 0;

    void ConstructModel() {
        const auto list = std::make_shared<C3DPoints>();
        list->Add({width, inputs.JoinAngle, 0});
        list->Add({static_cast<double>(inputs.Dtype), static_cast<double>(inputs.Miscellaneous), 0});
        CRuleSurf plate;
        plate.List1 = list;
        plate.List2 = list;
        results.ModelSurface = plate;
        results.ModelSurfaceList.Add(plate);
        results.ModelSurfaceList.Add(plate);
    }
    void DevelopModel() { ConstructModel(); }
};

Outcome BuildPlates(FittingForm& form, CPlates& plates) {
    const int box = form.dtype;
    if (form.CheckPositive(box)) {
        return Refused;
    }
    plates.width = form.Value(box);
    return Passed;
}

Outcome RefuseSilently(FittingForm&, CPlates&) {
    return Refused;
}

constexpr BoxEntry WidthBox[] = {{0, "Width", "25.5"}};
constexpr BoxEntry ZeroBox[] = {{1, "Width", "0"}};
constexpr PageEntry PlatePages[] = {{WidthBox, {}}, {ZeroBox, {}}};

WindowTable PlatesTable() {
    WindowTable table = {.pages = PlatePages, .newFitting = FittingHandle::Make<CPlates>, .buildFitting = {}};
    table.buildFitting = BuildAs<CPlates, BuildPlates>;
    table.miscellaneous = 3;
    return table;
}

TEST(SampleModel, RightConeHasTheSizesOfItsSamples) {
    const CRuleSurfs model = SampleModel(frmRightCone1, 1);
    ASSERT_EQ(model.Count(), 1U);
    const C3DPoints& top = *model.Item(1).List1;
    const C3DPoints& base = *model.Item(1).List2;
    ASSERT_EQ(top.Count(), base.Count());
    EXPECT_GT(top.Count(), 90U);  // enough to look round
    for (std::size_t i = 1; i <= top.Count(); ++i) {
        EXPECT_NEAR(std::hypot(top.Item(i).x, top.Item(i).y), 60, 1e-9);
        EXPECT_NEAR(top.Item(i).z, 250, 1e-9);
        EXPECT_NEAR(std::hypot(base.Item(i).x, base.Item(i).y), 150, 1e-9);
        EXPECT_NEAR(base.Item(i).z, 0, 1e-9);
    }
    EXPECT_NEAR(base.Item(1).x, 150, 1e-9);  // the seam lies at angle 0
}

TEST(SampleModel, EveryPageOfEveryWindowHasOne) {
    int pages = 0;
    for (const CatalogueRow& row : Catalogue) {
        for (std::size_t page = 0; page < row.table->pages.size(); ++page) {
            SCOPED_TRACE(std::string(row.category) + ", page " + std::to_string(page));
            const CRuleSurfs model = SampleModel(*row.table, page);
            EXPECT_GT(model.Count(), 0U);
            for (const CRuleSurf& surface : model) {
                EXPECT_TRUE(IsPresent(surface.List1));
                EXPECT_TRUE(IsPresent(surface.List2));
            }
            ++pages;
        }
    }
    EXPECT_GE(pages, 8);
}

TEST(SampleModel, HandsTheFittingItsPageAndSelector) {
    const CRuleSurfs model = SampleModel(PlatesTable(), 0);
    ASSERT_EQ(model.Count(), 1U);
    const C3DPoints& list = *model.Item(1).List1;
    EXPECT_EQ(list.Item(1).x, 25.5);
    EXPECT_EQ(list.Item(1).y, 0);
    EXPECT_EQ(list.Item(2).x, 0);
    EXPECT_EQ(list.Item(2).y, 3);
}

TEST(SampleModel, AFittingOfSeveralPiecesGivesThemAll) {
    WindowTable table = PlatesTable();
    table.multiple = true;
    EXPECT_EQ(SampleModel(table, 0).Count(), 2U);
}

TEST(SampleModel, ARefusedSampleNamesTheMessage) {
    try {
        SampleModel(PlatesTable(), 1);
        FAIL() << "a width of 0 was taken";
    } catch (const std::logic_error& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr(GetMessage(MustBeAboveZero, "English")));
    }
}

TEST(SampleModel, ARefusalWithoutAMessageIsAnErrorToo) {
    WindowTable table = PlatesTable();
    table.buildFitting = BuildAs<CPlates, RefuseSilently>;
    EXPECT_THROW(SampleModel(table, 0), std::logic_error);
}

TEST(SampleModel, ThereIsNoPageBehindTheLast) {
    EXPECT_THROW(SampleModel(PlatesTable(), 2), std::logic_error);
}

}  // namespace
}  // namespace korvet
