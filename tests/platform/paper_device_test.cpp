// Lines and texts on a sheet, which lets its lines wait.
#include "platform/paper_device.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <algorithm>

#include "platform/graphics_application.h"

namespace korvet {
namespace {

constexpr int Side = 3000;                               // dots
constexpr Pen BlackLine = {Black, DrawStyle::Solid, 2};  // 48 dots wide
constexpr Pen RedLine = {Red, DrawStyle::Solid, 2};

/// A sheet on which red, green and blue of a dot can be asked for.
class PaperDeviceTest : public testing::Test {
  protected:
    PaperDeviceTest() { image_.fill(Qt::white); }

    template <typename Draw>
    void OnTheSheet(Draw draw) {
        QPainter painter(&image_);
        PaperDevice sheet(&painter, {Side, Side});
        draw(sheet);
        sheet.Finish();
    }

    [[nodiscard]] unsigned At(int x, int y) const { return image_.pixel(x, y) & 0xFFFFFFU; }

    static void Level(PaperDevice& sheet, const Pen& pen, int y) {
        const PixelPoint line[] = {{100, y}, {2900, y}};
        sheet.Polyline(pen, line);
    }

    static void Upright(PaperDevice& sheet, const Pen& pen, int x) {
        const PixelPoint line[] = {{x, 100}, {x, 2900}};
        sheet.Polyline(pen, line);
    }

  private:
    const bool application_ = (EnsureGraphicsApplication(), true);
    QImage image_ = QImage(Side, Side, QImage::Format_RGB32);
};

TEST_F(PaperDeviceTest, AllLinesAreThereWhenItIsFinished) {
    // More points than wait at a time, each line on rows of its own.
    OnTheSheet([](PaperDevice& sheet) {
        for (int y = 1; y < Side; y += 2) {
            const PixelPoint line[] = {{0, y}, {Side, y}};
            sheet.Polyline({Black, DrawStyle::Solid, 1}, line);
        }
    });
    for (int y = 1; y < Side; ++y) {
        EXPECT_EQ(At(Side / 2, y), 0U) << y;
    }
}

TEST_F(PaperDeviceTest, ALaterLineLiesAboveInWhateverPen) {
    OnTheSheet([](PaperDevice& sheet) {
        Level(sheet, BlackLine, 1000);
        Upright(sheet, RedLine, 1000);
        Level(sheet, BlackLine, 2000);
        Level(sheet, BlackLine, 1000);  // it came before the red one, and comes again
        Upright(sheet, RedLine, 2000);
    });
    EXPECT_EQ(At(1000, 1000), 0U);
    EXPECT_EQ(At(1000, 2000), 0U);
    EXPECT_EQ(At(2000, 1000), 0xFF0000U);
    EXPECT_EQ(At(2000, 2000), 0xFF0000U);
}

TEST_F(PaperDeviceTest, ATextLiesAboveTheLinesBeforeItAndBelowThoseAfter) {
    OnTheSheet([](PaperDevice& sheet) {
        Level(sheet, BlackLine, 1000);
        sheet.TextOut("HHHHHHHH", {200, 200}, {-2000, 0}, Red);
        Level(sheet, BlackLine, 1200);
    });
    const auto redIn = [this](int y) {
        int count = 0;
        for (int x = 200; x < 2800; ++x) {
            count += At(x, y) == 0xFF0000U ? 1 : 0;
        }
        return count;
    };
    EXPECT_GT(redIn(1000), 300);
    EXPECT_GT(redIn(1100), 300);
    EXPECT_EQ(redIn(1200), 0);
}

TEST_F(PaperDeviceTest, WithoutAPainterItOnlyMeasures) {
    PaperDevice sheet(nullptr, {Side, Side});
    Level(sheet, BlackLine, 1000);
    sheet.TextOut("H", {0, 0}, {-200, 0}, Black);
    EXPECT_GT(sheet.TextExtent("H", 10).width, 0);
}

TEST_F(PaperDeviceTest, NumbersAreAsWideAsTheyAreDrawn) {
    const PaperDevice sheet(nullptr, {Side, Side});
    for (const int pixels : {1, 7, 40, 333, 1000}) {
        QFont font(QStringLiteral("Arial"));
        font.setPixelSize(pixels);
        font.setHintingPreference(QFont::PreferNoHinting);
        const QFontMetricsF metrics(font);
        for (const char* const text :
             {"  1 ", "-11.17", "7,4", "0", "1111111", "  123456.7890  ", "1-1", "74 mm"}) {
            EXPECT_EQ(sheet.TextExtent(text, pixels / 100.0).width, metrics.horizontalAdvance(QString(text)))
                << text << " " << pixels;
        }
    }
}

}  // namespace
}  // namespace korvet
