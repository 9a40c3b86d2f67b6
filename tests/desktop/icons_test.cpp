#include "desktop/frame/icons.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/contrast.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/palettes.h"

namespace korvet::desktop {

namespace {

constexpr std::array<const char*, 22> ToolBarKeys = {"New",
                                                     "Open",
                                                     "Save",
                                                     "Print",
                                                     "DisplayPrintFrames",
                                                     "SelectPrintFrames",
                                                     "Measure",
                                                     "DimensionOptions",
                                                     "AlignedDimension",
                                                     "RemoveDimension",
                                                     "AddLabel",
                                                     "MovePattern",
                                                     "RotatePattern",
                                                     "ZoomIn",
                                                     "ZoomOut",
                                                     "ZoomWindow",
                                                     "ZoomExtents",
                                                     "Pan",
                                                     "ZoomP",
                                                     "Redraw",
                                                     "Properties",
                                                     "Help"};
constexpr std::array<const char*, 24> FurtherKeys = {
    "ExportDxf",      "Close",          "NextType",      "PreviousType", "Question",
    "Warning",        "Information",    "Critical",      "Up",           "Home",
    "Find",           "Folder",         "File",          "List",         "Details",
    "NewFolder",      "Computer",       "Drive",         "Back",         "Forward",
    "WindowMinimize", "WindowMaximize", "WindowRestore", "WindowClose"};

std::vector<std::string> AllKeys() {
    std::vector<std::string> keys(ToolBarKeys.begin(), ToolBarKeys.end());
    keys.insert(keys.end(), FurtherKeys.begin(), FurtherKeys.end());
    return keys;
}

QImage Picture(const QIcon& icon, int size, qreal ratio = 1.0, QIcon::Mode mode = QIcon::Normal) {
    return icon.pixmap(QSize(size, size), ratio, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

template <typename Condition>
int CountPixels(const QImage& image, Condition condition) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += condition(image.pixelColor(x, y)) ? 1 : 0;
        }
    }
    return count;
}

/// The part of the picture that is covered, from 0 to 1.
double Ink(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += image.pixelColor(x, y).alphaF();
        }
    }
    return sum / (image.width() * image.height());
}

/// Pixels that one picture covers by far more than the other, or in a colour far from the other's.
int DifferentPixels(const QImage& first, const QImage& second) {
    int count = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QColor a = first.pixelColor(x, y);
            const QColor b = second.pixelColor(x, y);
            const bool visible = a.alpha() > 128 && b.alpha() > 128;
            const bool recolored = visible && std::abs(a.blue() - b.blue()) > 80;
            count += std::abs(a.alpha() - b.alpha()) > 100 || recolored ? 1 : 0;
        }
    }
    return count;
}

bool Near(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) <= 2 && std::abs(a.green() - b.green()) <= 2 &&
           std::abs(a.blue() - b.blue()) <= 2;
}

/// The colour at the middle of a large picture of the sign of zooming out, which is a bar in the accent.
QColor AccentNow() {
    return Picture(ToolIcon("ZoomOut"), 240).pixelColor(100, 100);
}

}  // namespace

class IconsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { paletteBefore_ = QGuiApplication::palette(); }
    void init() { QGuiApplication::setPalette(LightPalette()); }
    void cleanupTestCase() { QGuiApplication::setPalette(paletteBefore_); }

    void everyKeyHasAPicture_data() {
        QTest::addColumn<QString>("key");
        for (const std::string& key : AllKeys()) {
            QTest::newRow(key.c_str()) << QString::fromStdString(key);
        }
    }

    void everyKeyHasAPicture() {
        QFETCH(QString, key);
        const QIcon icon = ToolIcon(key.toStdString());
        QVERIFY(!icon.isNull());
        for (const int size : {16, 24, 48}) {
            for (const int ratio : {1, 2}) {
                const QImage image = Picture(icon, size, ratio);
                QCOMPARE(image.size(), QSize(size, size) * ratio);
                // Lines of about a twelfth of the width: less is hardly seen, more is a blot.
                QVERIFY2(Ink(image) > 0.1, qPrintable(QString::number(Ink(image))));
                QVERIFY2(Ink(image) < 0.5, qPrintable(QString::number(Ink(image))));
            }
        }
    }

    void nothingIsCutOff() {
        for (const std::string& key : AllKeys()) {
            const QImage image = Picture(ToolIcon(key), 240);
            const QRect inside = image.rect().adjusted(1, 1, -1, -1);
            const int all = CountPixels(image, [](const QColor& c) { return c.alpha() > 0; });
            const int within = CountPixels(image.copy(inside), [](const QColor& c) { return c.alpha() > 0; });
            QVERIFY2(all == within, key.c_str());
        }
    }

    void noTwoLookAlike() {
        const std::vector<std::string> keys = AllKeys();
        for (std::size_t i = 0; i < keys.size(); ++i) {
            for (std::size_t j = i + 1; j < keys.size(); ++j) {
                const int different =
                    DifferentPixels(Picture(ToolIcon(keys[i]), 24), Picture(ToolIcon(keys[j]), 24));
                // The plus and the minus of the lens, the closest pair, differ by the upright of the plus.
                QVERIFY2(different >= 6, (keys[i] + " and " + keys[j]).c_str());
            }
        }
    }

    void aHigherRatioBringsDetailAndNotLargerPixels() {
        for (const std::string& key : AllKeys()) {
            const QImage fine = Picture(ToolIcon(key), 24, 2.0);
            const QImage coarse = Picture(ToolIcon(key), 24).scaled(fine.size());
            QVERIFY2(fine == Picture(ToolIcon(key), 48), key.c_str());
            QVERIFY2(fine != coarse, key.c_str());
        }
    }

    void paintingUsesThePixelsOfTheDevice() {
        QImage device(48, 48, QImage::Format_ARGB32_Premultiplied);
        device.setDevicePixelRatio(2.0);
        device.fill(Qt::transparent);
        QPainter painter(&device);
        ToolIcon("Save").paint(&painter, QRect(0, 0, 24, 24));
        painter.end();
        device.setDevicePixelRatio(1.0);
        QCOMPARE(DifferentPixels(device, Picture(ToolIcon("Save"), 48)), 0);
    }

    void strokesAreTheButtonTextOfThePalette() {
        for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
            QGuiApplication::setPalette(palette);
            const QColor text = palette.color(QPalette::ButtonText);
            for (const std::string& key : AllKeys()) {
                const QImage image = Picture(ToolIcon(key), 48);
                const auto isText = [&](const QColor& c) { return c.alpha() == 255 && Near(c, text); };
                QVERIFY2(CountPixels(image, isText) > 40, key.c_str());
                const auto isAsDrawn = [](const QColor& c) {
                    return c.alpha() == 255 && (c == QColor(Qt::black) || c == QColor(Qt::blue));
                };
                QVERIFY2(CountPixels(image, isAsDrawn) == 0, key.c_str());
            }
        }
    }

    void everyToolButtonHasAnAccent() {
        const QColor accent = AccentNow();
        for (const char* key : ToolBarKeys) {
            const auto isBluish = [&](const QColor& c) { return c.alpha() > 40 && c.blue() > c.red() + 60; };
            QVERIFY2(CountPixels(Picture(ToolIcon(key), 48), isBluish) > 20, key);
        }
        QVERIFY(accent.blue() > accent.red() + 60);
    }

    void theAccentReadsOnTheButtons() {
        for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
            QGuiApplication::setPalette(palette);
            const QColor accent = AccentNow();
            QCOMPARE(accent.alpha(), 255);
            QVERIFY(!Near(accent, palette.color(QPalette::ButtonText)));
            QVERIFY(Contrast(accent, palette.color(QPalette::Button)) >= 4.5);
        }
    }

    void aStrokeOfTheAccentsDrawnColourStaysAStroke() {
        QPalette palette = LightPalette();
        palette.setColor(QPalette::ButtonText, QColor(0, 0, 255));
        QGuiApplication::setPalette(palette);
        // A point of the lens's handle, which runs at 45 degrees through (18, 18) of 24.
        QCOMPARE(Picture(ToolIcon("ZoomOut"), 240).pixelColor(180, 180), QColor(0, 0, 255));
        QVERIFY(AccentNow() != QColor(0, 0, 255));
    }

    void anIconInUseFollowsThePalette() {
        QToolButton button;
        button.setIcon(ToolIcon("Print"));
        const QIcon copy = button.icon();
        const QImage light = Picture(copy, 24);
        QGuiApplication::setPalette(DarkPalette());
        const QImage dark = Picture(copy, 24);
        QVERIFY(light != dark);
        QCOMPARE(dark, Picture(ToolIcon("Print"), 24));
        QGuiApplication::setPalette(LightPalette());
        QCOMPARE(Picture(button.icon(), 24), light);
    }

    void disabledIsTheSamePictureFaded() {
        for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
            QGuiApplication::setPalette(palette);
            for (const std::string& key : AllKeys()) {
                const QImage normal = Picture(ToolIcon(key), 24);
                const QImage disabled = Picture(ToolIcon(key), 24, 1.0, QIcon::Disabled);
                QVERIFY2(Ink(disabled) < 0.5 * Ink(normal), key.c_str());
                QVERIFY2(Ink(disabled) > 0.25 * Ink(normal), key.c_str());
            }
        }
    }

    void selectedUsesTheTextOfTheSelection() {
        QPalette palette = LightPalette();
        palette.setColor(QPalette::Highlight, QColor(0, 0, 120));
        palette.setColor(QPalette::HighlightedText, QColor(255, 255, 200));
        QGuiApplication::setPalette(palette);
        const QImage image = Picture(ToolIcon("ZoomOut"), 240, 1.0, QIcon::Selected);
        QCOMPARE(image.pixelColor(180, 180), QColor(255, 255, 200));
        QVERIFY(Contrast(image.pixelColor(100, 100), QColor(0, 0, 120)) >= 4.5);
    }

    void aPictureKeepsItsProportionsInAWideFrame() {
        const QImage wide =
            ToolIcon("Close").pixmap(QSize(48, 24)).toImage().convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(wide.size(), QSize(48, 24));
        QCOMPARE(DifferentPixels(wide.copy(12, 0, 24, 24), Picture(ToolIcon("Close"), 24)), 0);
        QCOMPARE(Ink(wide.copy(0, 0, 12, 24)), 0.0);
    }

    void anUnknownKeyHasNoIcon() {
        QVERIFY(ToolIcon("").isNull());
        QVERIFY(ToolIcon("Zoom").isNull());
    }

    void drawingsKeepToTheTwoColours() {
        const QRegularExpression color("#[0-9a-fA-F]+");
        for (const std::string& key : AllKeys()) {
            QFile file(QStringLiteral(":/icons/%1.svg").arg(QString::fromStdString(key)));
            QVERIFY2(file.open(QIODevice::ReadOnly), key.c_str());
            const QString drawing = QString::fromUtf8(file.readAll());
            auto match = color.globalMatch(drawing);
            QVERIFY2(match.hasNext(), key.c_str());
            while (match.hasNext()) {
                const QString found = match.next().captured();
                QVERIFY2(found == "#000000" || found == "#0000ff", key.c_str());
            }
            QVERIFY2(drawing.contains("viewBox=\"0 0 24 24\""), key.c_str());
        }
        // With the icon of the program, every drawing has its place.
        QCOMPARE(QDir(":/icons").entryList().size(), qsizetype(AllKeys().size() + 1));
    }

    void theProgramsIconHasItsOwnColours() {
        for (const int size : {16, 24, 48, 256}) {
            QGuiApplication::setPalette(LightPalette());
            const QImage light = Picture(ApplicationIcon(), size);
            QGuiApplication::setPalette(DarkPalette());
            QCOMPARE(Picture(ApplicationIcon(), size), light);
            const auto isSteel = [](const QColor& c) { return c.alpha() > 200 && c.blue() > c.red() + 40; };
            const auto isAmber = [](const QColor& c) { return c.alpha() > 200 && c.red() > c.blue() + 100; };
            // The cone's side and its developed sector, each a good part of the picture.
            QVERIFY(CountPixels(light, isSteel) * 20 > size * size);
            QVERIFY(CountPixels(light, isAmber) * 10 > size * size);
        }
    }

  private:
    QPalette paletteBefore_;
};

static const Registered<IconsTest> registeredIconsTest("IconsTest");

}  // namespace korvet::desktop

#include "icons_test.moc"
