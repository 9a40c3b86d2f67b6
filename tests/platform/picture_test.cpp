#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QRect>
#include <QtGlobal>
#include <algorithm>
#include <string>

#include "platform/graphics_application.h"
#include "platform/paper_device.h"
#include "platform/picture_device.h"
#include "tests/support/memory_file_store.h"

namespace korvet {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

QImage ImageOf(PictureDevice& device) {
    return QImage::fromData(QByteArray::fromStdString(device.Bytes()), "PNG");
}

/// Red, green and blue of a pixel, two hexadecimal digits each.
unsigned ColorAt(const QImage& image, int x, int y) {
    return image.pixel(x, y) & 0xFFFFFFU;
}

std::size_t CountOf(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

/// The rectangle about everything that is brighter than a third of full light.
QRect InkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) > 85) {
                ink = ink.united(QRect(x, y, 1, 1));
            }
        }
    }
    return ink;
}

constexpr Color White = 0xFFFFFF;
constexpr Color BluePaint = 0xFF0000;
constexpr Pen RedPen = {Red, DrawStyle::Solid, 1};

TEST(Png, HasTheSizeAndTheBackColour) {
    PictureDevice device(PictureFormat::Png, 120, 80);
    device.Cls(Cyan);
    const QImage image = ImageOf(device);
    EXPECT_EQ(image.size(), QSize(120, 80));
    EXPECT_EQ(ColorAt(image, 0, 0), 0x00FFFFU);  // cyan is green and blue
    EXPECT_EQ(ColorAt(image, 119, 79), 0x00FFFFU);
    EXPECT_EQ(device.ScaleSize().width, 120);
    EXPECT_EQ(device.OuterSize().height, 80);
    EXPECT_EQ(device.LogicalDpiY(), 96);
}

TEST(Png, LinesRunThroughTheMiddleOfTheirPixels) {
    PictureDevice device(PictureFormat::Png, 50, 50);
    const PixelPoint corner[] = {{10, 10}, {40, 10}, {40, 30}};
    device.Polyline(RedPen, corner);
    const QImage image = ImageOf(device);
    EXPECT_EQ(ColorAt(image, 20, 10), 0xFF0000U);
    EXPECT_EQ(ColorAt(image, 40, 20), 0xFF0000U);
    EXPECT_EQ(ColorAt(image, 20, 9), 0U);
    EXPECT_EQ(ColorAt(image, 20, 11), 0U);
    EXPECT_EQ(ColorAt(image, 41, 20), 0U);
    EXPECT_EQ(ColorAt(image, 20, 20), 0U);  // not closed and not filled
    EXPECT_EQ(ColorAt(image, 10, 30), 0U);
}

TEST(Png, WidePensAreWide) {
    PictureDevice device(PictureFormat::Png, 50, 50);
    const PixelPoint line[] = {{10, 10}, {40, 10}};
    device.Polyline({Red, DrawStyle::Solid, 3}, line);
    const QImage image = ImageOf(device);
    EXPECT_EQ(ColorAt(image, 20, 9), 0xFF0000U);
    EXPECT_EQ(ColorAt(image, 20, 11), 0xFF0000U);
    EXPECT_EQ(ColorAt(image, 20, 8), 0U);
    EXPECT_EQ(ColorAt(image, 20, 12), 0U);
}

TEST(Png, DottedLinesHaveGaps) {
    PictureDevice device(PictureFormat::Png, 100, 100);
    const PixelPoint line[] = {{0, 10}, {99, 70}};
    device.Polyline({Red, DrawStyle::Dotted, 1}, line);
    const QImage image = ImageOf(device);
    int bright = 0;
    int dark = 0;
    for (int x = 0; x < 100; ++x) {
        const unsigned red = ColorAt(image, x, 10 + x * 60 / 99) >> 16U;
        bright += red > 100 ? 1 : 0;
        dark += red < 20 ? 1 : 0;
    }
    EXPECT_GT(bright, 20);
    EXPECT_GT(dark, 20);
}

TEST(Png, DotsAlongARowOrAColumnOfPixelsAreSharp) {
    PictureDevice device(PictureFormat::Png, 100, 100);
    const PixelPoint row[] = {{0, 10}, {99, 10}};
    const PixelPoint column[] = {{50, 20}, {50, 99}};
    device.Polyline({Red, DrawStyle::Dotted, 1}, row);
    device.Polyline({Red, DrawStyle::Dotted, 1}, column);
    const QImage image = ImageOf(device);
    int dots = 0;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            if (ColorAt(image, x, y) != 0) {
                EXPECT_EQ(ColorAt(image, x, y), 0xFF0000U) << x << ", " << y;
                EXPECT_TRUE(y == 10 || (x == 50 && y >= 20)) << x << ", " << y;
                ++dots;
            }
        }
    }
    EXPECT_NEAR(dots, 180 / 3, 3);  // a dot and a gap of two
}

TEST(Png, LinesOfFewerThanTwoPointsAreNothing) {
    PictureDevice device(PictureFormat::Png, 20, 20);
    const PixelPoint one[] = {{10, 10}};
    device.Polyline(RedPen, one);
    device.Polyline(RedPen, {});
    EXPECT_TRUE(InkOf(ImageOf(device)).isNull());
}

TEST(Png, LinesThatLeaveThePictureKeepTheirSlope) {
    PictureDevice device(PictureFormat::Png, 100, 100);
    const PixelPoint line[] = {{-2000000000, -1000000000}, {2000000000, 1000000000}};
    device.Polyline({White, DrawStyle::Solid, 1}, line);
    const QImage image = ImageOf(device);
    for (int x = 0; x < 100; x += 2) {
        EXPECT_GT(qGray(image.pixel(x, x / 2)), 100) << x;
    }
}

TEST(Png, ClearingForgetsWhatWasDrawn) {
    PictureDevice device(PictureFormat::Png, 50, 50);
    const PixelPoint line[] = {{10, 10}, {40, 10}};
    device.Polyline(RedPen, line);
    device.Cls(Black);
    EXPECT_TRUE(InkOf(ImageOf(device)).isNull());
}

TEST(Png, DrawingGoesOnWithTheNextClear) {
    PictureDevice device(PictureFormat::Png, 50, 50);
    const PixelPoint line[] = {{10, 10}, {40, 10}};
    const std::string before = device.Bytes();
    device.Polyline({White, DrawStyle::Solid, 1}, line);
    device.TextOut("A", {10, 10}, {-13, 0}, White);
    EXPECT_EQ(device.Bytes(), before);
    device.Cls(Black);
    device.Polyline({White, DrawStyle::Solid, 1}, line);
    EXPECT_EQ(InkOf(ImageOf(device)).top(), 10);
}

/// The ink of "HH" at pixel 100, 100 in letters of 40 pixels, turned by tenths of a degree.
QRect TurnedText(int escapement) {
    PictureDevice device(PictureFormat::Png, 200, 200);
    device.TextOut("HH", {100, 100}, {-40, escapement}, White);
    return InkOf(ImageOf(device));
}

TEST(PngText, HangsBelowAndToTheRightOfItsCorner) {
    const QRect ink = TurnedText(0);
    // Capitals of Arial are 0.72 of the height and stand 0.905 below the corner.
    EXPECT_NEAR(ink.top(), 100 + 40 * (0.905 - 0.72), 2);
    EXPECT_NEAR(ink.bottom() + 1, 100 + 40 * 0.905, 2);
    EXPECT_GE(ink.left(), 100);
    EXPECT_LE(ink.left(), 106);
    EXPECT_NEAR(ink.right() + 1, 100 + 2 * 40 * 0.722, 5);
}

TEST(PngText, TurnsCounterClockwiseAboutItsCorner) {
    const QRect upright = TurnedText(0);
    const QRect upward = TurnedText(900);
    // A quarter turn: what lay to the right lies above, what lay below lies to the right.
    EXPECT_NEAR(upward.left(), upright.top(), 1);
    EXPECT_NEAR(upward.right(), upright.bottom(), 1);
    EXPECT_NEAR(upward.bottom() + 1 - 100, 100 - upright.left(), 1);
    EXPECT_NEAR(upward.top() - 100, 100 - (upright.right() + 1), 1);

    const QRect onItsHead = TurnedText(1800);
    EXPECT_LE(onItsHead.right(), 100);
    EXPECT_LE(onItsHead.bottom(), 100);
    EXPECT_NEAR(onItsHead.width(), upright.width(), 1);
}

TEST(PngText, HasItsColour) {
    PictureDevice device(PictureFormat::Png, 200, 200);
    device.TextOut("HH", {0, 0}, {-150, 0}, Green);
    const QImage image = ImageOf(device);
    const QRect ink = InkOf(image);
    EXPECT_EQ(ColorAt(image, ink.left() + 4, ink.center().y() + 30), 0x00FF00U);
}

/// How many pixels next to the letters of a red text are white, on a device that is white all over.
int WhiteBesideLetters(const QImage& image) {
    const auto isRed = [&](int x, int y) {
        const QColor color = image.pixelColor(x, y);
        return color.red() > 200 && color.green() < 60;
    };
    int white = 0;
    for (int y = 1; y + 1 < image.height(); ++y) {
        for (int x = 1; x + 1 < image.width(); ++x) {
            for (const auto& [dx, dy] : {std::pair{-1, 0}, {1, 0}, {0, -1}, {0, 1}}) {
                white += isRed(x, y) && qGray(image.pixel(x + dx, y + dy)) > 200 ? 1 : 0;
            }
        }
    }
    return white;
}

void CoverWithLines(PainterDevice& device, int side) {
    for (int y = 0; y < side; ++y) {
        const PixelPoint line[] = {{0, y}, {side, y}};
        device.Polyline({White, DrawStyle::Solid, 1}, line);
    }
}

TEST(PngText, HasARimOfTheGroundOverLines) {
    for (const int turn : {0, 300, 900}) {
        PictureDevice device(PictureFormat::Png, 200, 200);
        device.Cls(BluePaint);
        CoverWithLines(device, 200);
        device.TextOut("40.25", {60, 100}, {-22, turn}, Red);
        const QImage image = ImageOf(device);
        EXPECT_LE(WhiteBesideLetters(image), 2) << turn;
        EXPECT_EQ(ColorAt(image, 5, 5), 0xFFFFFFU);  // the rim is thin
        int ground = 0;
        for (int y = 0; y < 200; ++y) {
            for (int x = 0; x < 200; ++x) {
                const QColor color = image.pixelColor(x, y);
                ground += color.blue() > 180 && color.red() < 128 ? 1 : 0;
            }
        }
        EXPECT_GT(ground, 60) << turn;
        EXPECT_LT(ground, 60 * 22) << turn;
    }
}

TEST(SvgText, HasARimWhereItCanBeRead) {
    for (const auto& [height, rims] : {std::pair{-5, 0}, {-6, 1}, {5, 0}, {6, 1}}) {
        PictureDevice device(PictureFormat::Svg, 200, 200);
        device.TextOut("40.25", {60, 100}, {height, 0}, Red);
        const QString picture = QString::fromStdString(device.Bytes());
        EXPECT_EQ(picture.count("<path"), rims) << height;
        EXPECT_EQ(picture.count("<text"), 1) << height;
    }
}

TEST(PaperText, HasNoRim) {
    EnsureGraphicsApplication();
    QImage sheet(200, 200, QImage::Format_RGB32);
    sheet.fill(Qt::blue);
    QPainter painter(&sheet);
    PaperDevice paper(&painter, {200, 200});
    paper.Cls(BluePaint);
    CoverWithLines(paper, 200);
    paper.TextOut("40.25", {40, 100}, {-40, 0}, Red);
    EXPECT_GT(WhiteBesideLetters(sheet), 100);
}

TEST(PngText, ExtentIsThatOfTheFontAsDrawn) {
    const PictureDevice device(PictureFormat::Png, 10, 10);
    // 30 points are 40 pixels. A digit of Arial is 0.556 wide; ascent and descent are 0.905 and 0.212.
    EXPECT_NEAR(device.TextExtent("1", 30).width, 40 * 0.556, 1);
    EXPECT_NEAR(device.TextExtent("1", 30).height, 40 * 1.117, 1);
    EXPECT_NEAR(device.TextExtent("11", 30).width, 80 * 0.556, 1);
    EXPECT_EQ(device.TextExtent("", 30).width, 0);
    EXPECT_GT(device.TextExtent("1", 1).height, 0);
    EXPECT_NEAR(device.TextExtent("1", 10000).height, 13333 * 1.117, 20);
}

TEST(PngText, HugeLettersAndFarCornersAreHarmless) {
    PictureDevice device(PictureFormat::Png, 50, 50);
    device.TextOut("A", {2000000000, -2000000000}, {-13, 450}, White);
    EXPECT_TRUE(InkOf(ImageOf(device)).isNull());
    device.Cls(Black);
    device.TextOut("H", {-1500, -9000}, {-13333, 0}, White);  // inside the left stem
    EXPECT_EQ(ColorAt(ImageOf(device), 25, 25), 0xFFFFFFU);
}

TEST(Svg, HoldsLinesAndTextsAsSuch) {
    PictureDevice device(PictureFormat::Svg, 120, 80);
    device.Cls(Black);
    const PixelPoint line[] = {{10, 10}, {40, 10}, {40, 30}};
    device.Polyline(RedPen, line);
    device.TextOut("  40  ", {10, 20}, {-13, 900}, Green);
    const std::string svg = device.Bytes();
    EXPECT_THAT(svg, StartsWith("<?xml"));
    EXPECT_THAT(svg, HasSubstr("viewBox=\"0 0 120 80\""));
    EXPECT_THAT(svg, HasSubstr("10.5,10.5 40.5,10.5 40.5,30.5"));
    EXPECT_THAT(svg, HasSubstr("#ff0000"));
    EXPECT_THAT(svg, HasSubstr("#00ff00"));
    EXPECT_THAT(svg, HasSubstr("Arial"));
    EXPECT_THAT(svg, HasSubstr(">  40  </text>"));
    EXPECT_THAT(svg, HasSubstr("matrix(0,-1,1,0,10,20)"));
    EXPECT_THAT(svg, HasSubstr("Korvet Development"));
    EXPECT_THAT(svg, HasSubstr("</svg>"));
}

TEST(Svg, LinesThatLieOnOneAnotherAreHeldOnce) {
    PictureDevice device(PictureFormat::Svg, 120, 80);
    device.Cls(White);
    const Pen greenPen = {Green, DrawStyle::Solid, 1};
    const PixelPoint line[] = {{10, 10}, {40, 10}};
    const PixelPoint detour[] = {{10, 10}, {10, 10}, {40, 10}, {40, 10}, {40, 30}};
    const PixelPoint dot[] = {{70, 70}, {70, 70}, {70, 70}};
    for (int i = 0; i < 3; ++i) {
        device.Polyline(RedPen, line);
        device.Polyline(RedPen, dot);
    }
    device.Polyline(greenPen, line);
    device.Polyline(RedPen, line);  // above the green one
    device.Polyline(RedPen, detour);
    const std::string svg = device.Bytes();
    EXPECT_EQ(CountOf(svg, "\"10.5,10.5 40.5,10.5 \""), 3U);
    EXPECT_EQ(CountOf(svg, "\"10.5,10.5 40.5,10.5 40.5,30.5 \""), 1U);
    EXPECT_EQ(CountOf(svg, "\"70.5,70.5 70.5,70.5 \""), 1U);
}

TEST(Svg, TextsHaveARimUnderThem) {
    PictureDevice device(PictureFormat::Svg, 120, 80);
    device.Cls(BluePaint);
    device.TextOut("40", {10, 20}, {-13, 0}, Green);
    const std::string svg = device.Bytes();
    const std::size_t rim = svg.find("stroke=\"#0000ff\"");
    ASSERT_NE(rim, std::string::npos);
    EXPECT_LT(rim, svg.find(">40</text>"));
}

TEST(Svg, ClearingForgetsWhatWasDrawn) {
    PictureDevice device(PictureFormat::Svg, 120, 80);
    device.TextOut("first", {10, 20}, {-13, 0}, Green);
    device.Cls(Black);
    device.TextOut("second", {10, 20}, {-13, 0}, Green);
    const std::string svg = device.Bytes();
    EXPECT_THAT(svg, Not(HasSubstr("first")));
    EXPECT_THAT(svg, HasSubstr("second"));
}

TEST(Picture, IsWrittenToAStore) {
    MemoryFileStore files;
    PictureDevice device(PictureFormat::Png, 20, 10);
    device.Save("a.png", files);
    EXPECT_THAT(files.files.at("a.png"), StartsWith("\x89PNG"));
    ASSERT_EQ(files.writes.size(), 1U);
    EXPECT_EQ(files.writes[0].flush, Flush::No);
    files.unwritable.insert("b.png");
    EXPECT_THROW(device.Save("b.png", files), FileError);
}

TEST(Picture, OfTheSameDrawingIsTheSame) {
    for (const PictureFormat format : {PictureFormat::Png, PictureFormat::Svg}) {
        PictureDevice first(format, 40, 20);
        PictureDevice second(format, 40, 20);
        for (PictureDevice* device : {&first, &second}) {
            device->TextOut("A1", {5, 5}, {-13, 200}, Green);
        }
        EXPECT_EQ(first.Bytes(), second.Bytes());
    }
}

TEST(Picture, WithoutSizeTakesNothingAndIsNotWritten) {
    for (const PictureFormat format : {PictureFormat::Png, PictureFormat::Svg}) {
        PictureDevice device(format, 0, 100);
        EXPECT_EQ(device.ScaleSize().height, 0);
        device.Cls(Black);
        const PixelPoint line[] = {{10, 10}, {40, 10}};
        device.Polyline(RedPen, line);
        device.TextOut("A", {0, 0}, {-13, 0}, White);
        EXPECT_THROW((void)device.Bytes(), FileError);
    }
}

TEST(PictureDeathTest, WhatEndsTheToolkitIsTold) {
    const PictureDevice device(PictureFormat::Png, 1, 1);
    EXPECT_DEATH(qFatal("no letters"), "korvet: no letters");
}

}  // namespace
}  // namespace korvet
