#include "desktop/program_style.h"

#include <QDialogButtonBox>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <iterator>

#include "desktop/frame/icons.h"
#include "desktop/title_buttons.h"

namespace korvet::desktop {
namespace {

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// The drawings that stand for what the toolkit asks of a style.
struct OwnIcon {
    QStyle::StandardPixmap asked;
    const char* drawing;
};

constexpr OwnIcon OwnIcons[] = {
    {QStyle::SP_MessageBoxQuestion, "Question"},
    {QStyle::SP_MessageBoxWarning, "Warning"},
    {QStyle::SP_MessageBoxInformation, "Information"},
    {QStyle::SP_MessageBoxCritical, "Critical"},
    {QStyle::SP_ArrowBack, "Back"},
    {QStyle::SP_ArrowLeft, "Back"},
    {QStyle::SP_ArrowForward, "Forward"},
    {QStyle::SP_ArrowRight, "Forward"},
    {QStyle::SP_FileDialogBack, "Back"},
    {QStyle::SP_FileDialogToParent, "Up"},
    {QStyle::SP_FileDialogNewFolder, "NewFolder"},
    {QStyle::SP_FileDialogListView, "List"},
    {QStyle::SP_FileDialogDetailedView, "Details"},
    {QStyle::SP_FileDialogContentsView, "Find"},
    {QStyle::SP_DirIcon, "Folder"},
    {QStyle::SP_DirOpenIcon, "Folder"},
    {QStyle::SP_DirClosedIcon, "Folder"},
    {QStyle::SP_DirLinkIcon, "Folder"},
    {QStyle::SP_DirHomeIcon, "Home"},
    {QStyle::SP_DesktopIcon, "Computer"},
    {QStyle::SP_ComputerIcon, "Computer"},
    {QStyle::SP_DriveHDIcon, "Drive"},
    {QStyle::SP_FileIcon, "File"},
    {QStyle::SP_FileLinkIcon, "File"},
    {QStyle::SP_TitleBarMinButton, "WindowMinimize"},
    {QStyle::SP_TitleBarMaxButton, "WindowMaximize"},
    {QStyle::SP_TitleBarNormalButton, "WindowRestore"},
    {QStyle::SP_TitleBarCloseButton, "WindowClose"},
};

/// None for what the program has no drawing of.
QIcon OwnIconOf(QStyle::StandardPixmap asked) {
    const auto* const own = std::find_if(std::begin(OwnIcons), std::end(OwnIcons),
                                         [asked](const OwnIcon& icon) { return icon.asked == asked; });
    return own != std::end(OwnIcons) ? ToolIcon(own->drawing) : QIcon();
}

}  // namespace

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    switch (hint) {
        case SH_DialogButtonLayout:
            return QDialogButtonBox::WinLayout;
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

QIcon ProgramStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                 const QWidget* widget) const {
    const QIcon own = OwnIconOf(standardIcon);
    return own.isNull() ? QProxyStyle::standardIcon(standardIcon, option, widget) : own;
}

QPixmap ProgramStyle::standardPixmap(StandardPixmap standardPixmap, const QStyleOption* option,
                                     const QWidget* widget) const {
    const QIcon own = OwnIconOf(standardPixmap);
    const int side = pixelMetric(PM_SmallIconSize, option, widget);
    return own.isNull() ? QProxyStyle::standardPixmap(standardPixmap, option, widget)
                        : own.pixmap(QSize(side, side), widget != nullptr ? widget->devicePixelRatioF() : 1);
}

/// The desktop's own style leaves the buttons of a window that is not in use black, on dark bars too.
void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* const bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control != CC_TitleBar || bar == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionTitleBar bare = *bar;
    bare.subControls &= ~TitleButtons;
    QProxyStyle::drawComplexControl(control, &bare, painter, widget);
    DrawTitleButtons(*painter, *bar, *this, widget);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    const auto* const indicator = qstyleoption_cast<const QStyleOptionButton*>(option);
    const bool hasRim = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (indicator == nullptr || !hasRim || !IsDark(option->palette)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    QStyleOptionButton clear = *indicator;
    clear.palette.setColor(QPalette::Window, clear.palette.color(QPalette::WindowText));
    QProxyStyle::drawPrimitive(element, &clear, painter, widget);
}

}  // namespace korvet::desktop
