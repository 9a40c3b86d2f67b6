// The display that the tests of CObjectDisplay draw with.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "display/object_display.h"
#include "tests/display/display_log.h"

namespace korvet {

/// A display of a 30 by 40 sheet on 400 by 200 pixels. With text size 0 the first view lays a unit on a pixel
/// and the world's origin on pixel 200, 100.
class ObjectDisplay : public testing::Test {
  protected:
    ObjectDisplay() {
        fitting->canned.PatternSurface = Sheet();
        fitting->canned.ModelSurface = Sheet();
        display.NewObject = FittingHandle(fitting);
        display.DisplayDevice = &screen;
        display.TextSize = 0;
    }

    void AddView(bool pattern) {
        CViewPoint view = DefaultViewPoint();
        view.Patternview = pattern;
        display.ViewList->Add(view);
    }

    void AddDimension(int list1, int point1, int list2, int point2) {
        display.DimensionList->Add({.SurfaceNo2 = 1,
                                    .SurfaceNo1 = 1,
                                    .ListNo2 = list2,
                                    .ListNo1 = list1,
                                    .PointNo2 = point2,
                                    .PointNo1 = point1});
    }

    /// Every annotation, and a label block of one line at the origin.
    void RequestAll() {
        display.CoordGridRequested = true;
        display.TrueLengthsRequested = true;
        display.DiagonalsRequested = true;
        display.CoordTableRequested = true;
        display.FrameRequested = true;
        display.LabelPoint = C3DPoint{};
        display.LabelList = std::make_shared<CLabels>();
        display.LabelList->Add({"note"});
    }

    std::shared_ptr<CannedFitting> fitting = std::make_shared<CannedFitting>();
    RecordingDevice screen{400, 200};
    RecordingDevice paper{400, 200};
    CObjectDisplay display;
};

}  // namespace korvet
