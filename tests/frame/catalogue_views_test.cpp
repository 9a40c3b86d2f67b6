// The catalogue as data, and the view history.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "core/math_module.h"
#include "frame/catalogue.h"
#include "tests/support/recording_ui.h"
#include "window/views.h"

namespace korvet {
namespace {

TEST(CatalogueRows, AreDistinctAndComplete) {
    std::set<std::string_view> categories;
    std::set<std::string_view> windows;
    for (const CatalogueRow& row : Catalogue) {
        categories.insert(row.category);
        windows.insert(row.window);
        EXPECT_TRUE(row.lapEnable == NoLaps || row.lapEnable == SeamLapOnly || row.lapEnable == AllLaps);
    }
    EXPECT_EQ(categories.size(), 39U);
    EXPECT_EQ(windows.size(), 39U);
}

TEST(CatalogueRows, HoldTheirTiles) {
    EXPECT_EQ(Catalogue[0].category, "Right Cone");
    EXPECT_EQ(Catalogue[8].window, "frmRightCone2");
    EXPECT_EQ(Catalogue[8].helpContextId, 2210);
    EXPECT_EQ(Catalogue[20].window, "FrmSegBendTapered");
    EXPECT_EQ(Catalogue[21].category, "Cone to Pipe Elbow");
    EXPECT_EQ(Catalogue[21].helpContextId, 2350);
    EXPECT_EQ(Catalogue[33].fittingClass, "CBaffle");
    EXPECT_EQ(Catalogue[35].helpContextId, 0);
    EXPECT_EQ(Catalogue[37].helpContextId, 2100);
    EXPECT_EQ(Catalogue[38].lapEnable, NoLaps);
}

TEST(CatalogueRows, NameTheHelpOfTheirWindows) {
    const std::map<std::string_view, int> topics = {{"frmRightCylinder", 2150}, {"frmSegBendParallel", 2160},
                                                    {"frmRectRound1", 2330},    {"frmRectRound2", 2180},
                                                    {"frmRectEllipse", 2300},   {"frmRectToRectRad", 2390},
                                                    {"frmOvalToOval", 2400},    {"frmBranch", 2170}};
    std::size_t found = 0;
    for (const CatalogueRow& row : Catalogue) {
        const auto topic = topics.find(row.window);
        if (topic != topics.end()) {
            EXPECT_EQ(row.helpContextId, topic->second) << row.window;
            ++found;
        }
    }
    EXPECT_EQ(found, topics.size());
}

TEST(CatalogueRows, FourAreHidden) {
    std::set<std::string_view> hidden;
    for (const CatalogueRow& row : Catalogue) {
        if (row.hidden) {
            hidden.insert(row.category);
        }
    }
    EXPECT_EQ(hidden, (std::set<std::string_view>{"Mitre Elbow", "Rectangular Tee", "Bends", "Murok Mitre"}));
}

TEST(CatalogueRows, AreFoundByTheExactName) {
    EXPECT_EQ(FindCategory("Right Cone"), &Catalogue[0]);
    EXPECT_EQ(FindCategory("right cone"), nullptr);
    EXPECT_EQ(FindCategory("Category"), nullptr);
}

TEST(CatalogueOrder, IsTheOneOfTheMenu) {
    const std::vector<int> expected = {0,  8,  7,  14, 2,  11, 19, 4,  16, 6,  25, 26, 28,
                                       12, 17, 18, 29, 22, 21, 13, 1,  27, 20, 3,  9,  10,
                                       30, 31, 5,  23, 15, 32, 33, 34, 37, 24, 35, 36, 38};
    EXPECT_EQ(std::vector<int>(DisplayOrder.begin(), DisplayOrder.end()), expected);
}

TEST(PresetViews, TurnTheEye) {
    // Elevation and turn in degrees; the right angles and the straight one are the program's own digits.
    constexpr double Right = 1.570796326794895;
    const std::array<std::pair<double, double>, 10> angles = {{{DegToRad(35), DegToRad(135)},
                                                               {0, Right},
                                                               {DegToRad(35), DegToRad(45)},
                                                               {0, 3.14159265358979},
                                                               {Right, 0},
                                                               {0, 0},
                                                               {DegToRad(35), DegToRad(225)},
                                                               {0, DegToRad(270)},
                                                               {DegToRad(35), DegToRad(315)},
                                                               {Right, Right}}};
    CViewList views;
    for (int button = 0; button <= PatternButton; ++button) {
        AddPresetView(button, views);
        EXPECT_EQ(views.Last().FromXY, angles[static_cast<std::size_t>(button)].first) << button;
        EXPECT_EQ(views.Last().AroundZ, angles[static_cast<std::size_t>(button)].second) << button;
        EXPECT_EQ(views.Last().Patternview, button == PatternButton);
    }
    EXPECT_THROW(AddPresetView(10, views), ListError);
}

TEST(PresetViews, KeepPanAndZoom) {
    CViewList views;
    views.Add({false, 3, 4, 5, 0, 0});
    AddPresetView(2, views);
    EXPECT_EQ(views.Last().ZoomFactor, 3);
    EXPECT_EQ(views.Last().PanY, 4);
    EXPECT_EQ(views.Last().PanX, 5);
    EXPECT_EQ(views.Count(), 2U);
}

TEST(ViewHistory, KeepsItsOnlyView) {
    RecordingUi ui;
    CViewList views;
    PreviousView(ui, views);
    views.Add(DefaultViewPoint());
    PreviousView(ui, views);
    EXPECT_EQ(views.Count(), 1U);
    EXPECT_EQ(ui.Texts(), (std::vector<std::string>{"No Previous View", "No Previous View"}));
    views.Add(DefaultViewPoint());
    PreviousView(ui, views);
    EXPECT_EQ(views.Count(), 1U);
    EXPECT_EQ(ui.messages.size(), 2U);
}

TEST(ViewHistory, ZoomLimitsAreThoseOfSinglePrecision) {
    RecordingUi ui;
    const COptions options;
    for (const auto& [zoom, outcome] : {std::pair{10000.0, Passed},
                                        {10000.0001, Passed},
                                        {10001.0, Refused},
                                        {1e-4, Passed},
                                        {9.9e-5, Refused}}) {
        CViewList views;
        views.Add(DefaultViewPoint());
        views.Item(1).ZoomFactor = zoom;
        EXPECT_EQ(BeginZoomWindow(ui, options, views), outcome) << zoom;
        EXPECT_EQ(ZoomView(ui, options, 0.9, views), outcome) << zoom;
        EXPECT_EQ(views.Count(), outcome == Passed ? 2U : 1U);
    }
}

TEST(ViewHistory, PatternCommandsAskForThePattern) {
    RecordingUi ui;
    const COptions options;
    CViewList views;
    EXPECT_EQ(RequirePatternView(ui, options, views), Refused);
    AddPresetView(PatternButton, views);
    EXPECT_EQ(RequirePatternView(ui, options, views), Passed);
    AddPresetView(1, views);
    EXPECT_EQ(RequirePatternView(ui, options, views), Refused);
    EXPECT_EQ(ui.messages.size(), 2U);
    EXPECT_EQ(ui.messages[0].text, "This option is only available in pattern view");
}

}  // namespace
}  // namespace korvet
