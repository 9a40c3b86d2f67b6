#include "printing/print_scale.h"

#include <gtest/gtest.h>

#include "core/checked.h"
#include "dialogs/paper.h"

namespace korvet {
namespace {

constexpr Bounds Frame = {100, 50, 290, 327};  // of an A4 sheet with 200 by 287 to print on

/// Where a point of the world comes to lie on the sheet, in print units from its lower left printable corner.
PrintableSize OnSheet(const WorldWindow& window, PrintableSize printable, double x, double y) {
    const double bottom = window.ScaleTop + window.ScaleHeight;
    return {(x - window.ScaleLeft) / window.ScaleWidth * printable.width,
            (y - bottom) / -window.ScaleHeight * printable.height};
}

TEST(PrintScale, AFrameIsThePrintableSizeLessItsMargins) {
    const FrameSize millimetres = FrameSizeFor({200, 287}, {}, Millimetres);
    EXPECT_EQ(millimetres.length, 190);
    EXPECT_EQ(millimetres.width, 277);
    const FrameSize inches = FrameSizeFor({8.5, 11}, {}, Inches);
    EXPECT_DOUBLE_EQ(inches.length, 8.5 - 0.3937007874015748);
    EXPECT_DOUBLE_EQ(inches.width, 11 - 0.3937007874015748);
}

TEST(PrintScale, AFrameHasRoomForWhatTheCalibrationStretches) {
    const FrameSize stretched = FrameSizeFor({200, 287}, {1.01, 1.02}, Millimetres);
    EXPECT_DOUBLE_EQ(stretched.length, 200 / 1.01 - 10);
    EXPECT_DOUBLE_EQ(stretched.width, 287 / 1.02 - 10);
    const FrameSize shrunk = FrameSizeFor({200, 287}, {0.99, 0.98}, Millimetres);
    EXPECT_EQ(shrunk.length, 190);
    EXPECT_EQ(shrunk.width, 277);
}

TEST(PrintScale, TheFrameStandsAMarginInFromThePrintableCorner) {
    const PrintableSize printable = {200, 287};
    const WorldWindow window = ApplyPrintScale(Frame, printable, 1, {}, Millimetres);
    EXPECT_EQ(window, (WorldWindow{95, 332, 200, -287}));
    const PrintableSize corner = OnSheet(window, printable, 100, 50);
    EXPECT_DOUBLE_EQ(corner.width, 5);
    EXPECT_DOUBLE_EQ(corner.height, 5);
    const WorldWindow inches = ApplyPrintScale({0, 0, 8, 10}, {8.5, 11}, 1, {}, Inches);
    EXPECT_EQ(inches.ScaleLeft, -0.1968503937007874);
    EXPECT_NEAR(inches.ScaleTop + inches.ScaleHeight, -0.1968503937007874, 1e-12);
}

TEST(PrintScale, AMeasuredLineFollowsTheCalibration) {
    const PrintableSize printable = {200, 287};
    for (const Calibration factors : {Calibration{1.01, 1.02}, {0.99, 0.97}}) {
        const WorldWindow window = ApplyPrintScale(Frame, printable, 1, factors, Millimetres);
        const PrintableSize start = OnSheet(window, printable, 110, 60);
        const PrintableSize end = OnSheet(window, printable, 210, 160);
        EXPECT_NEAR(end.width - start.width, 100 * factors.x, 1e-9);
        EXPECT_NEAR(end.height - start.height, 100 * factors.y, 1e-9);
        // Margins stretch with the drawing.
        const PrintableSize corner = OnSheet(window, printable, Frame.minX, Frame.minY);
        EXPECT_NEAR(corner.width, 5 * factors.x, 1e-9);
        EXPECT_NEAR(corner.height, 5 * factors.y, 1e-9);
    }
}

TEST(PrintScale, AStretchedFrameStaysOnTheSheet) {
    const PrintableSize printable = {200, 287};
    const Calibration factors = {1.05, 1.1};
    const FrameSize size = FrameSizeFor(printable, factors, Millimetres);
    const Bounds frame = {0, 0, size.length, size.width};
    const WorldWindow window = ApplyPrintScale(frame, printable, 1, factors, Millimetres);
    const PrintableSize far = OnSheet(window, printable, frame.maxX, frame.maxY);
    EXPECT_LT(far.width, printable.width);
    EXPECT_LT(far.height, printable.height);
}

TEST(PrintScale, AUserScaleMultiplies) {
    const WorldWindow window = ApplyPrintScale(Frame, {200, 287}, 0.5, {}, Millimetres);
    EXPECT_EQ(window.ScaleWidth, 400);
    EXPECT_EQ(window.ScaleHeight, -574);
    EXPECT_THROW((void)ApplyPrintScale(Frame, {200, 287}, 0, {}, Millimetres), ArithmeticError);
}

}  // namespace
}  // namespace korvet
