#include "desktop/indicator_style.h"

#include <QCheckBox>
#include <QImage>
#include <QRadioButton>
#include <QTest>
#include <algorithm>

#include "tests/desktop/contrast.h"
#include "tests/desktop/desktop_test.h"

namespace korvet::desktop {
namespace {

/// The greatest contrast to the window that a button without text shows; 3 is what a control needs.
template <typename Button>
double ContrastOf(QStyle& style, const QPalette& palette) {
    Button button;
    button.setStyle(&style);
    button.setPalette(palette);
    button.resize(button.sizeHint());
    const QImage picture = button.grab().toImage();
    const QColor window = palette.color(QPalette::Window);
    double greatest = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            greatest = std::max(greatest, Contrast(picture.pixelColor(x, y), window));
        }
    }
    return greatest;
}

}  // namespace

class IndicatorStyleTest : public QObject {
    Q_OBJECT
  private slots:
    void anEmptyIndicatorStandsOutOnADarkWindow() {
        QPalette dark(QColor(49, 54, 59));
        dark.setColor(QPalette::Base, QColor(35, 38, 41));
        dark.setColor(QPalette::WindowText, QColor(239, 240, 241));
        dark.setColor(QPalette::Text, QColor(239, 240, 241));
        IndicatorStyle style(QStringLiteral("Fusion"));
        QVERIFY(ContrastOf<QRadioButton>(style, dark) >= 3);
        QVERIFY(ContrastOf<QCheckBox>(style, dark) >= 3);
    }

    void onALightWindowTheDesktopsStyleStays() {
        const QPalette light(QColor(239, 239, 239));
        IndicatorStyle style(QStringLiteral("Fusion"));
        QProxyStyle plain(QStringLiteral("Fusion"));
        QCOMPARE(ContrastOf<QRadioButton>(style, light), ContrastOf<QRadioButton>(plain, light));
        QVERIFY(ContrastOf<QRadioButton>(style, light) > 2);
    }
};

static const Registered<IndicatorStyleTest> registeredIndicatorStyleTest("IndicatorStyleTest");

}  // namespace korvet::desktop

#include "indicator_style_test.moc"
