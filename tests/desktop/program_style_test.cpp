#include "desktop/program_style.h"

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <QStyle>
#include <QTest>
#include <algorithm>

#include "desktop/bindings.h"
#include "desktop/contrast.h"
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

/// Two windows in an area, as the fitting windows are, of which the second one is in use.
struct TwoWindows {
    QMdiArea area;

    TwoWindows() {
        area.resize(700, 300);
        for (const int left : {10, 350}) {
            QMdiSubWindow* const window = area.addSubWindow(new QWidget);
            window->setGeometry(left, 10, 320, 200);
            window->setWindowTitle(QStringLiteral("Cone"));
            window->show();
        }
        area.show();
        area.activateWindow();
        area.setActiveSubWindow(area.subWindowList().last());
        QCoreApplication::processEvents();
    }
};

/// How many signs stand on the right end of a window's title bar, each at least 3 to 1 against it.
int SignsOnTitle(QMdiSubWindow& window) {
    const int height = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QImage bar = window.grab().toImage();
    const qreal ratio = bar.devicePixelRatio();
    const auto device = [&](int length) { return static_cast<int>(length * ratio); };
    const int edge = 4;
    int signs = 0;
    bool inSign = false;
    for (int x = device(window.width() - 4 * height); x < device(window.width() - edge); ++x) {
        bool seen = false;
        for (int y = device(edge); y < device(height - 2); ++y) {
            // Of the same row, since the bar is shaded from its top to its foot.
            const QColor ground = bar.pixelColor(device(window.width() - 4 * height), y);
            seen = seen || Contrast(bar.pixelColor(x, y), ground) >= 3;
        }
        signs += seen && !inSign ? 1 : 0;
        inSign = seen;
    }
    return signs;
}

/// A dark desktop whose highlight is so bright that its white text can hardly be read.
QPalette BrightHighlight() {
    QPalette palette = DarkPalette();
    palette.setColor(QPalette::Highlight, QColor(61, 174, 233));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

}  // namespace

class ProgramStyleTest : public QObject {
    Q_OBJECT
  private slots:
    void anEmptyIndicatorStandsOutOnADarkWindow() {
        QPalette dark(QColor(49, 54, 59));
        dark.setColor(QPalette::Base, QColor(35, 38, 41));
        dark.setColor(QPalette::WindowText, QColor(239, 240, 241));
        dark.setColor(QPalette::Text, QColor(239, 240, 241));
        ProgramStyle style(QStringLiteral("Fusion"));
        QVERIFY(ContrastOf<QRadioButton>(style, dark) >= 3);
        QVERIFY(ContrastOf<QCheckBox>(style, dark) >= 3);
    }

    void theButtonsOfAWindowStandOutOnItsTitle() {
        const QPalette usual = QApplication::palette();
        QApplication::setStyle(new ProgramStyle(QStringLiteral("Fusion")));
        for (const QPalette& palette : {LightPalette(), DarkPalette(), BrightHighlight()}) {
            QApplication::setPalette(palette);
            TwoWindows windows;
            for (QMdiSubWindow* window : windows.area.subWindowList()) {
                QCOMPARE(SignsOnTitle(*window), 3);
            }
            windows.area.subWindowList().first()->showMinimized();
            QCOMPARE(SignsOnTitle(*windows.area.subWindowList().first()), 3);
        }
        QApplication::setStyle(QStringLiteral("Fusion"));
        QApplication::setPalette(usual);
    }

    void iconsOfTheToolkitAreTheProgramsOwn() {
        const QPalette usual = QApplication::palette();
        ProgramStyle style(QStringLiteral("Fusion"));
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
        ProgramStyle style(QStringLiteral("Fusion"));
        QProxyStyle plain(QStringLiteral("Fusion"));
        QCOMPARE(ContrastOf<QRadioButton>(style, light), ContrastOf<QRadioButton>(plain, light));
        QVERIFY(ContrastOf<QRadioButton>(style, light) > 2);
    }
};

static const Registered<ProgramStyleTest> registeredProgramStyleTest("ProgramStyleTest");

}  // namespace korvet::desktop

#include "program_style_test.moc"
