#include "desktop/sketch/sketch_page.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <set>

#include "desktop/sketch/sketch_painter.h"
#include "frame/catalogue.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/palettes.h"

namespace korvet::desktop {

class SketchPageTest : public QObject {
    Q_OBJECT

  private slots:
    void HasTheBoxesOfItsPageOnly();
    void NamesEveryBoxAndLabel();
    void TabFollowsTheOrderOfTheBoxes();
    void ShowsEverythingInSmallAndLargeFonts();
    void GrowsWithTheFont();
    void PutsParenthesesOnALineOfTheirOwn();
    void PaintsTheShapeInBothPalettes();
    void WhatIsNotShownOffIsPale();
    void PicturesHaveTheSizeAskedFor();
};

namespace {

const WindowTable& Cone() {
    return *FindCategory("Right Cone")->table;
}

const WindowTable& TruncatedCone() {
    return *FindCategory("Truncated Right Cone")->table;
}

std::size_t CountColors(const QImage& image) {
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return colors.size();
}

/// A text box or label is whole: inside its page and large enough for what it shows.
void VerifyWhole(const QWidget& widget, const QSize& needed) {
    QVERIFY2(widget.parentWidget()->rect().contains(widget.geometry()), qPrintable(widget.objectName()));
    QVERIFY2(widget.width() >= needed.width() && widget.height() >= needed.height(),
             qPrintable(widget.objectName()));
}

void VerifyPage(const SketchPage& page) {
    const auto widgets = page.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* widget : widgets) {
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            VerifyWhole(*label, label->sizeHint());
        } else {
            const int eightDigits = widget->fontMetrics().horizontalAdvance(QStringLiteral("88888888"));
            VerifyWhole(*widget, {eightDigits + 8, widget->sizeHint().height()});
        }
        for (const QWidget* other : widgets) {
            QVERIFY2(widget == other || !widget->geometry().intersects(other->geometry()),
                     qPrintable(widget->objectName() + " over " + other->objectName()));
        }
    }
}

}  // namespace

void SketchPageTest::HasTheBoxesOfItsPageOnly() {
    const SketchPage page(Cone(), 1, nullptr);
    QCOMPARE(page.Boxes().size(), 3U);
    QCOMPARE(page.Box(3), page.Boxes()[0]);
    QCOMPARE(page.Box(5), page.Boxes()[2]);
    QCOMPARE(page.Box(0), nullptr);
    QCOMPARE(page.Box(6), nullptr);
}

void SketchPageTest::NamesEveryBoxAndLabel() {
    const SketchPage page(TruncatedCone(), 4, nullptr);
    auto* box = page.findChild<QLineEdit*>("txtParameter_24");
    QVERIFY(box != nullptr);
    QCOMPARE(box->accessibleName(), QString("Offset"));
    const auto* label = page.findChild<QLabel*>("lblParameter_24");
    QVERIFY(label != nullptr);
    QCOMPARE(label->text(), QString("Offset"));
    QCOMPARE(label->buddy(), box);
    QCOMPARE(page.findChildren<QLineEdit*>().size(), 7);
    QCOMPARE(page.findChildren<QLabel*>().size(), 7);
}

void SketchPageTest::TabFollowsTheOrderOfTheBoxes() {
    SketchPage page(TruncatedCone(), 3, nullptr);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    page.activateWindow();
    page.Boxes()[0]->setFocus();
    for (std::size_t i = 0; i + 1 < page.Boxes().size(); ++i) {
        QCOMPARE(page.focusWidget(), page.Boxes()[i]);
        QTest::keyClick(page.Boxes()[i], Qt::Key_Tab);
    }
    QCOMPARE(page.focusWidget(), page.Boxes().back());
}

/// A small font with room to spare on the screen with one device pixel to the pixel, a large one in the least
/// room on the other; the usual font is looked at in the windows.
void SketchPageTest::ShowsEverythingInSmallAndLargeFonts() {
    const bool large = qApp->devicePixelRatio() > 1;
    QFont font = QApplication::font();
    font.setPointSize(large ? 20 : 7);
    for (const CatalogueRow& row : Catalogue) {
        for (std::size_t number = 0; row.table && number < row.table->pages.size(); ++number) {
            SketchPage page(*row.table, number, nullptr);
            page.setFont(font);
            const QSize smallest = page.minimumSizeHint();
            QVERIFY(smallest.width() >= 275 && smallest.height() >= 275);
            page.resize(large ? smallest : smallest + QSize(131, 47));
            page.grab();
            VerifyPage(page);
        }
    }
}

void SketchPageTest::GrowsWithTheFont() {
    SketchPage page(TruncatedCone(), 2, nullptr);
    const QSize before = page.minimumSizeHint();
    QFont font = page.font();
    font.setPointSize(2 * font.pointSize());
    page.setFont(font);
    QVERIFY(page.minimumSizeHint().width() > before.width());
    QVERIFY(page.minimumSizeHint().height() > before.height());
}

void SketchPageTest::PutsParenthesesOnALineOfTheirOwn() {
    const QFontMetricsF metrics((QFont()));
    const QString text = SketchLabelText("Angle (degrees)", metrics);
    QCOMPARE(text, QString("Angle\n(degrees)"));
    QCOMPARE(SketchLabelText("Offset", metrics), QString("Offset"));
}

void SketchPageTest::PaintsTheShapeInBothPalettes() {
    for (const QPalette& palette : {QApplication::palette(), DarkPalette()}) {
        SketchPage page(Cone(), 1, nullptr);
        page.setPalette(palette);
        page.resize(500, 600);
        const QImage image = page.grab().toImage();
        QVERIFY(CountColors(image) > 50);
        QCOMPARE(image.pixelColor(2, 2).lightness() < 128, palette.color(QPalette::Window).lightness() < 128);
    }
}

/// How much stands out from the ground, over all of a picture.
double Contrast(const QImage& image) {
    const int ground = image.pixelColor(2, 2).lightness();
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += std::abs(image.pixelColor(x, y).lightness() - ground);
        }
    }
    return sum;
}

void SketchPageTest::WhatIsNotShownOffIsPale() {
    for (const QPalette& palette : {QApplication::palette(), DarkPalette()}) {
        SketchPage page(Cone(), 1, nullptr);
        page.setPalette(palette);
        page.resize(500, 600);
        const QImage plain = page.grab().toImage();
        const QRect box = page.Boxes()[0]->geometry();
        page.ShowOff(1);  // the only surface there is
        QCOMPARE(page.grab().toImage(), plain);
        page.ShowOff(2);
        const QImage pale = page.grab().toImage();
        QVERIFY(Contrast(pale) < 0.8 * Contrast(plain));
        QVERIFY(CountColors(pale) > 50);  // not gone
        QCOMPARE(page.Boxes()[0]->geometry(), box);
        page.ShowOff(0);
        QCOMPARE(page.grab().toImage(), plain);
    }
}

void SketchPageTest::PicturesHaveTheSizeAskedFor() {
    const QImage image = SketchImage(Cone(), 0, {560, 380}, 2, QApplication::palette(), QApplication::font());
    QCOMPARE(image.size(), QSize(1120, 760));
    QCOMPARE(image.devicePixelRatio(), 2.0);
    QVERIFY(CountColors(image) > 50);
    const QImage small = SketchImage(Cone(), 0, {10, 10}, 1, QApplication::palette(), QApplication::font());
    QVERIFY(small.width() > 150 && small.height() > 150);
}

static const Registered<SketchPageTest> registeredSketchPageTest("SketchPageTest", Scale::Both);

}  // namespace korvet::desktop

#include "sketch_page_test.moc"
