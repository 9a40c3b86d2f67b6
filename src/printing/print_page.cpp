#include "printing/print_page.h"

#include <memory>

namespace korvet {
namespace {

constexpr int BeforeFirstLetter = 64;
constexpr int LastPrintable = 126;

}  // namespace

void CPrintPage::ListBoundaryPoints() {
    const C3DPoint& o = OriginPoint;
    BoundaryList = std::make_shared<C3DPoints>();
    for (const C3DPoint& corner : {o, C3DPoint{o.x + PageLength, o.y, o.z, PlainStation},
                                   C3DPoint{o.x + PageLength, o.y + PageWidth, o.z, PlainStation},
                                   C3DPoint{o.x, o.y + PageWidth, o.z, PlainStation}, o}) {
        BoundaryList->Add(corner);
    }
}

Bounds BoxOf(const CPrintPage& page) {
    if (!page.BoundaryList) {
        throw ListError("a print frame has no corners");
    }
    const C3DPoint& low = page.BoundaryList->Item(1);
    const C3DPoint& high = page.BoundaryList->Item(3);
    return {low.x, low.y, high.x, high.y};
}

std::string SheetName(int column, int row) {
    const int letter = BeforeFirstLetter + column;
    return letter > LastPrintable ? std::to_string(column) + "-" + std::to_string(row)
                                  : static_cast<char>(letter) + std::to_string(row);
}

}  // namespace korvet
