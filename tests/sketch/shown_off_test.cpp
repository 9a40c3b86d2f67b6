// A surface that is shown off beside the others of its model.
#include "fittings/windows.h"
#include "sketch/sketch_layout.h"
#include "tests/sketch/solid_reading.h"

namespace korvet {
namespace {

/// A plate of 2 by 2 that faces the eye, with its middle at x and at a depth y.
CRuleSurf Plate(double x, double y) {
    return Strip({{x - 1, y, 2}, {x + 1, y, 2}}, {{x - 1, y, 0}, {x + 1, y, 0}});
}

constexpr SketchView StraightOn = {.turn = 0, .tilt = 0};
constexpr SketchXY OnFirst = {0, 1};
constexpr SketchXY OnSecond = {5, 1};

std::vector<Segment> SegmentsThatAre(bool pale, SolidPicture picture) {
    std::erase_if(picture.edges, [&](const SolidEdge& edge) { return edge.pale != pale; });
    return Segments(picture);
}

TEST(ShownOff, NothingIsPaleBesideNoSurface) {
    const SolidPicture picture = DrawSolid(Model({Plate(0, 0), Plate(5, 0)}), StraightOn);
    EXPECT_FALSE(SeenAt(picture, OnFirst)->pale);
    EXPECT_FALSE(SeenAt(picture, OnSecond)->pale);
    EXPECT_EQ(SegmentsThatAre(false, picture).size(), 8U);
}

TEST(ShownOff, TheOtherSurfacesArePaleWithTheirLines) {
    const SolidPicture picture = DrawSolid(Model({Plate(0, 0), Plate(5, 0)}), StraightOn, 2);
    EXPECT_TRUE(SeenAt(picture, OnFirst)->pale);
    EXPECT_FALSE(SeenAt(picture, OnSecond)->pale);
    ExpectSegments(SegmentsThatAre(true, picture),
                   {{{-1, 0}, {1, 0}}, {{1, 0}, {1, 2}}, {{1, 2}, {-1, 2}}, {{-1, 2}, {-1, 0}}});
    ExpectSegments(SegmentsThatAre(false, picture),
                   {{{4, 0}, {6, 0}}, {{6, 0}, {6, 2}}, {{6, 2}, {4, 2}}, {{4, 2}, {4, 0}}});
}

TEST(ShownOff, ALineBetweenTwoSurfacesIsNotPale) {
    const CRuleSurf turnedBack = Strip({{1, 0, 2}, {2, 1, 2}}, {{1, 0, 0}, {2, 1, 0}});
    const SolidPicture picture = DrawSolid(Model({Plate(0, 0), turnedBack}), StraightOn, 1);
    ExpectSegments(SegmentsThatAre(false, picture),
                   {{{-1, 0}, {1, 0}}, {{1, 0}, {1, 2}}, {{1, 2}, {-1, 2}}, {{-1, 2}, {-1, 0}}});
}

TEST(ShownOff, APaleWallHidesWhatIsBehindIt) {
    const SolidPicture picture = DrawSolid(Model({Plate(0, 5), Plate(1, 0)}), StraightOn, 1);
    EXPECT_TRUE(SeenAt(picture, {0.5, 1})->pale);
    EXPECT_FALSE(SeenAt(picture, {-0.5, 1})->pale);
    ExpectSegments(SegmentsThatAre(false, picture),
                   {{{-1, 0}, {0, 0}}, {{-1, 2}, {0, 2}}, {{-1, 2}, {-1, 0}}});
}

TEST(ShownOff, TheSelectedPatternDecides) {
    static constexpr int surfaces[] = {2, 1};
    WindowTable table = frmRightCone1;
    OptionGroup options{.captions = {"Trunk", "Branch"}};
    options.selected = 1;
    EXPECT_EQ(ShownOffSurface(table, options), 0U);
    table.patternSurface = surfaces;
    EXPECT_EQ(ShownOffSurface(table, options), 1U);
    options.selected = 0;
    EXPECT_EQ(ShownOffSurface(table, options), 2U);
    options.selected.reset();
    EXPECT_EQ(ShownOffSurface(table, options), 0U);
    options.selected = 2;
    EXPECT_EQ(ShownOffSurface(table, options), 0U);
}

TEST(ShownOff, ASketchKeepsItsPlaces) {
    const PageSketch plain = MakePageSketch(frmRightCone1, 1);
    const PageSketch pale = MakePageSketch(frmRightCone1, 1, 2);  // the cone is surface 1
    ASSERT_EQ(pale.pictures.size(), plain.pictures.size());
    EXPECT_TRUE(pale.pictures[0].faces[0].pale);
    EXPECT_FALSE(plain.pictures[0].faces[0].pale);
    EXPECT_EQ(pale.dimensions[0].a, plain.dimensions[0].a);
}

}  // namespace
}  // namespace korvet
