// Pictures of their own: all that the display shows, within the edges.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "display/drawing_record.h"
#include "tests/display/display_fixture.h"

namespace korvet {
namespace {

class DrawPicture : public ObjectDisplay {
  protected:
    DrawPicture() {
        AddView(true);
        display.TextSize = 2;
        display.DisplayDevice = nullptr;
    }

    /// Draws and gives the box about all of the drawing.
    Bounds Draw() {
        display.DisplayObject();
        picture.calls.clear();
        display.DrawPicture(picture);
        DrawingRecord drawn(picture);
        for (const RecordingDevice::Call& call : picture.calls) {
            if (call.kind == RecordingDevice::Kind::Polyline) {
                drawn.Polyline(call.pen, call.points);
            } else if (call.kind == RecordingDevice::Kind::TextOut) {
                drawn.TextOut(call.text, call.points.at(0), call.font, call.color);
            }
        }
        return drawn.Extent().value();
    }

    void ExpectWhole(const std::string& what) {
        const Bounds drawn = Draw();
        EXPECT_GE(drawn.minX, 0) << what;
        EXPECT_GE(drawn.minY, 0) << what;
        EXPECT_LE(drawn.maxX, picture.scaleSize.width) << what;
        EXPECT_LE(drawn.maxY, picture.scaleSize.height) << what;
        const double filled = std::max((drawn.maxX - drawn.minX) / picture.scaleSize.width,
                                       (drawn.maxY - drawn.minY) / picture.scaleSize.height);
        EXPECT_GT(filled, 0.75) << what;
    }

    RecordingDevice picture{800, 600};
};

TEST_F(DrawPicture, APatternFillsNineTenths) {
    const Bounds drawn = Draw();
    EXPECT_NEAR(drawn.maxY - drawn.minY, 540, 1);
    EXPECT_NEAR((drawn.minY + drawn.maxY) / 2, 300, 1);
    EXPECT_NEAR((drawn.minX + drawn.maxX) / 2, 400, 1);
    EXPECT_NEAR(drawn.maxX - drawn.minX, 540.0 * 30 / 40, 1);
    EXPECT_EQ(LogOf(picture)[0], "clear");
    EXPECT_EQ(picture.Count(RecordingDevice::Kind::Cls), 1U);
}

TEST_F(DrawPicture, NothingIsCutAtAnyTextSizeOrShape) {
    display.LabelPoint = C3DPoint{25, -3, 0, 0};
    display.LabelList->Add({"a line of the label block"});
    display.LabelList->Add({"another one"});
    for (const bool everything : {false, true}) {
        display.CoordGridRequested = display.FrameRequested = display.TrueLengthsRequested = everything;
        display.DiagonalsRequested = display.CoordTableRequested = everything;
        for (const bool pattern : {true, false}) {
            AddView(pattern);
            for (const PixelSize size : {PixelSize{800, 600}, {300, 900}, {900, 60}}) {
                picture.scaleSize = picture.outerSize = size;
                for (const float textSize : {0.01F, 0.5F, 2.0F, 20.0F, 200.0F}) {
                    display.TextSize = textSize;
                    ExpectWhole(std::to_string(size.width) + " wide, text " + std::to_string(textSize) +
                                (pattern ? " pattern" : " model") + (everything ? " annotated" : ""));
                }
            }
        }
    }
}

TEST_F(DrawPicture, LapsAndALabelFarOffAreInIt) {
    fitting->canned.PatternSurface.List3 = Points({{-200, 0, 0, 0}, {-200, 50, 0, 0}});
    ExpectWhole("a third list outside of the frame");
    display.LabelPoint = C3DPoint{1e6, 0, 0, 0};
    display.LabelList->Add({"far"});
    ExpectWhole("a label a kilometre off");
}

TEST_F(DrawPicture, SizesFarOffBecomeAPicture) {
    fitting->canned.PatternSurface.List1 = Points({{0, 9e8, 0, 1}, {9e8, 9e8, 0, 1}});
    fitting->canned.PatternSurface.List2 = Points({{0, 0, 0, 1}, {9e8, 0, 0, 1}});
    ExpectWhole("a large one");
    fitting->canned.PatternSurface.List1 = Points({{0, 1e-6, 0, 1}, {1e-6, 1e-6, 0, 1}});
    fitting->canned.PatternSurface.List2 = Points({{0, 0, 0, 1}, {1e-6, 0, 0, 1}});
    ExpectWhole("a small one");
}

TEST_F(DrawPicture, NothingIsBuiltAndNothingChangesInTheDisplay) {
    display.FrameRequested = true;
    display.DisplayObject();
    const int developed = fitting->developed;
    const std::size_t views = display.ViewList->Count();
    display.DrawPicture(picture);
    display.DrawPicture(picture);
    EXPECT_EQ(fitting->developed, developed);
    EXPECT_EQ(fitting->constructed, 0);
    EXPECT_EQ(display.ViewList->Count(), views);
    EXPECT_EQ(display.DisplayWindow(), WorldWindow());
}

TEST_F(DrawPicture, WithoutAnythingToShowItIsCleared) {
    fitting->canned = {};
    display.DisplayObject();
    display.DrawPicture(picture);
    EXPECT_EQ(LogOf(picture), std::vector<std::string>{"clear"});
    RecordingDevice none(0, 0);
    display.LabelPoint = C3DPoint{};
    display.DrawPicture(none);
    EXPECT_EQ(LogOf(none), std::vector<std::string>{"clear"});
}

}  // namespace
}  // namespace korvet
