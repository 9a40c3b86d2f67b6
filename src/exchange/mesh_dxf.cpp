#include "exchange/mesh_dxf.h"

#include <array>
#include <cmath>
#include <utility>

#include "exchange/dxf_lines.h"

namespace korvet {
namespace {

/// The flag of a polyline that is an open polygon mesh.
constexpr double OpenMesh = 16;

/// The fewest bytes that the three groups of a vertex take: "10", "20", "30" and a digit behind each.
constexpr std::size_t LeastVertex = 15;

/// What a polyline says before its first vertex.
struct PolylineHead {
    std::optional<double> flag;
    std::optional<double> rows;
    std::optional<double> columns;
    bool hasVertices = false;

    [[nodiscard]] bool IsOpenStrip() const {
        return hasVertices && flag == OpenMesh && rows == 2 && columns && *columns >= 2 &&
               std::trunc(*columns) == *columns;
    }
};

/// The head of the next polyline; nothing behind the last one.
std::optional<PolylineHead> NextPolyline(DxfLines& lines) {
    if (!lines.SkipTo("POLYLINE")) {
        return std::nullopt;
    }
    PolylineHead head;
    for (const auto& [code, value] :
         {std::pair{"70", &head.flag}, {"71", &head.rows}, {"72", &head.columns}}) {
        if (!lines.SkipTo(code, "SEQEND")) {
            return head;
        }
        *value = lines.Number();
    }
    head.hasVertices = lines.SkipTo("VERTEX", "SEQEND");
    return head;
}

/// The columns of the first mesh of two rows, the reader then being behind the word of its first vertex.
std::optional<double> FindMesh(DxfLines& lines) {
    while (const auto head = NextPolyline(lines)) {
        if (head->IsOpenStrip()) {
            return head->columns;
        }
    }
    return std::nullopt;
}

/// A row of the mesh. Null, with the fault, when the mesh ends in it or a coordinate is none.
PointList ReadRow(DxfLines& lines, std::size_t columns, const std::string& name, std::string& fault) {
    auto row = std::make_shared<C3DPoints>();
    row->Reserve(columns);
    for (std::size_t i = 1; i <= columns; ++i) {
        std::array<double, 3> place = {};
        for (const auto& [code, coordinate] :
             {std::pair{"10", &place[0]}, {"20", &place[1]}, {"30", &place[2]}}) {
            if (!lines.SkipTo(code, "SEQEND")) {
                fault = lines.Here() + "the mesh ends before vertex " + std::to_string(i) + " of its " + name;
                return nullptr;
            }
            const auto number = lines.Number();
            if (!number) {
                fault = lines.Here() + "a coordinate is no number";
                return nullptr;
            }
            *coordinate = *number;
        }
        row->Add({place[0], place[1], place[2], CornerRuleStation});
    }
    return row;
}

}  // namespace

DxfMesh ReadDxfMesh(std::string_view text) {
    DxfLines lines(text);
    DxfMesh found;
    found.hasEntities = lines.SkipTo("ENTITIES");
    if (!found.hasEntities) {
        found.fault = "it has no section of entities";
        return found;
    }
    const auto columns = FindMesh(lines);
    if (!columns) {
        found.fault = "it holds no open polygon mesh of 2 by N vertices";
        return found;
    }
    // A count that the rest of the file can't hold must not be made room for; its last line may lack its end.
    const std::size_t mostColumns = (lines.BytesLeft() + 1) / (2 * LeastVertex);
    if (*columns > static_cast<double>(mostColumns)) {
        found.fault = lines.Here() + "the file is too short for the vertices of the mesh";
        return found;
    }
    CRuleSurf surface;
    for (const auto& [row, name] : {std::pair{&surface.List1, "first row"}, {&surface.List2, "second row"}}) {
        *row = ReadRow(lines, static_cast<std::size_t>(*columns), name, found.fault);
        if (!*row) {
            return found;
        }
    }
    if (lines.SkipTo("VERTEX", "SEQEND")) {
        found.fault = lines.Here() + "the mesh has more vertices than it says";
        return found;
    }
    found.surface = surface;
    return found;
}

}  // namespace korvet
