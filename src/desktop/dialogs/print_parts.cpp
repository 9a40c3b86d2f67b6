#include "desktop/dialogs/print_parts.h"

#include "desktop/dialogs/painted_widget.h"
#include "desktop/dialogs/sketches.h"

namespace korvet::desktop {

QWidget* MakeSheet(ModelDialog& window, const Control& frame, const Control& sheet, const Control& print) {
    auto* area = new QWidget;
    area->setFixedSize(Pixels(frame.place.width), Pixels(frame.place.height));
    auto* paper = new PaintedWidget({0, 0}, {0, 0}, PaintSheet);
    paper->setParent(area);
    NameWidget(*paper, "pboxOrient", QStringLiteral("Sketch of the sheet"));
    auto* printed = new PaintedWidget({0, 0}, {0, 0}, PaintPrinted);
    printed->setParent(paper);
    NameWidget(*printed, "pboxOrientInner", QStringLiteral("Sketch of the print"));
    window.ShowBy([=, &sheet, &print] {
        paper->setGeometry(PixelsOf(sheet.place));
        printed->setGeometry(PixelsOf(print.place));
    });
    return area;
}

}  // namespace korvet::desktop
