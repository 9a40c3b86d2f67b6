#include "display/coordinate_table.h"

#include <array>
#include <string_view>

#include "core/constants.h"
#include "core/number_text.h"
#include "display/stations.h"

namespace korvet {
namespace {

constexpr std::size_t ZoneWidth = 14;
constexpr std::size_t RuleLength = 62;

/// The items one zone after the other; an item that fills its zone sends the next one a zone further on.
std::string ZonedLine(const std::array<std::string, 4>& items) {
    std::string line = items[0];
    for (std::size_t i = 1; i < items.size(); ++i) {
        line.resize((line.size() / ZoneWidth + 1) * ZoneWidth, ' ');
        line += items.at(i);
    }
    return line + "\r\n";
}

}  // namespace

std::string PointText(const std::optional<C3DPoint>& point, bool withZ, int decimals) {
    if (!point) {
        return "";
    }
    const auto rounded = [&](double value) { return RoundedText(value, decimals); };
    std::string text = rounded(point->x) + "," + rounded(point->y);
    if (withZ) {
        text += "," + rounded(point->z);
    }
    return text;
}

C3DPoints OffsetList(const C3DPoints& list, const C3DPoint& origin) {
    C3DPoints moved;
    moved.Reserve(list.Count());
    for (const C3DPoint& point : list) {
        moved.Add({point.x - origin.x, point.y - origin.y, 0, PlainStation});
    }
    return moved;
}

std::string CoordinateTable(const AnnotatedPattern& pattern, int decimals) {
    if (pattern.surfaces.Count() == 0) {
        return std::string(ProductTitle) + "\r\n";  // a fitting without a pattern has no frame either
    }
    const C3DPoint& corner = pattern.extentFrame.Item(1);
    std::string table = std::string(ProductTitle) + "\r\n";
    std::size_t surfaceNo = 0;
    for (const CRuleSurf& surface : pattern.surfaces) {
        ++surfaceNo;
        table += "Suface No: " + std::to_string(surfaceNo) + "\r\n\r\n";
        table += ZonedLine({"Number", "A", "B", "C"});
        table += std::string(RuleLength, '-') + "\r\n";
        table += ZonedLine({"", "X,Y", "X,Y", "X,Y"});
        const Stations stations(surface);
        const C3DPoints A = OffsetList(stations.A, corner);
        const C3DPoints B = OffsetList(stations.B, corner);
        const C3DPoints C = OffsetList(stations.C, corner);
        const auto text = [&](const C3DPoint& point) { return PointText(point, false, decimals); };
        for (std::size_t i = 1; i <= A.Count(); ++i) {
            // A number has a blank for its sign and one behind it.
            table += ZonedLine({" " + std::to_string(i) + " ", text(A.Item(i)), text(B.Item(i)),
                                IsPresent(surface.List3) ? text(C.Item(i)) : ""});
        }
    }
    return table;
}

}  // namespace korvet
