#include "desktop/indicator_style.h"

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QRadioButton>
#include <QTest>
#include <algorithm>

#include "desktop/bindings.h"
#include "tests/desktop/contrast.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/palettes.h"

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

    void iconsOfTheToolkitAreTheProgramsOwn() {
        const QPalette usual = QApplication::palette();
        IndicatorStyle style(QStringLiteral("Fusion"));
        for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
            QApplication::setPalette(palette);
            for (const auto asked : {QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxWarning,
                                     QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxCritical,
                                     QStyle::SP_FileDialogNewFolder, QStyle::SP_FileDialogToParent,
                                     QStyle::SP_FileDialogListView, QStyle::SP_FileDialogDetailedView,
                                     QStyle::SP_DirIcon, QStyle::SP_FileIcon, QStyle::SP_ArrowBack,
                                     QStyle::SP_TitleBarCloseButton, QStyle::SP_TitleBarMaxButton,
                                     QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarNormalButton}) {
                for (const QImage& picture :
                     {style.standardIcon(asked, nullptr, nullptr).pixmap(32).toImage(),
                      style.standardPixmap(asked, nullptr, nullptr).toImage()}) {
                    double greatest = 1;
                    for (int y = 0; y < picture.height(); ++y) {
                        for (int x = 0; x < picture.width(); ++x) {
                            const QColor window = palette.color(QPalette::Window);
                            const QColor color = picture.pixelColor(x, y);
                            const QColor seen = Mixed(window, color, color.alphaF());
                            greatest = std::max(greatest, Contrast(seen, window));
                        }
                    }
                    QVERIFY2(greatest >= 3, qPrintable(QString::number(asked)));
                }
            }
        }
        QApplication::setPalette(usual);
        const QProxyStyle plain(QStringLiteral("Fusion"));
        QCOMPARE(style.standardIcon(QStyle::SP_MediaPlay, nullptr, nullptr).isNull(),
                 plain.standardIcon(QStyle::SP_MediaPlay, nullptr, nullptr).isNull());
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
