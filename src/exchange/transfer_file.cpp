#include "exchange/transfer_file.h"

#include "exchange/dxf_groups.h"
#include "exchange/dxf_lines.h"

namespace korvet {
namespace {

/// The groups of the file one after the other: a line with the code and one with the value.
class TransferGroups {
  public:
    explicit TransferGroups(std::string_view text) : lines_(text) {}

    std::string_view Line() {
        const auto line = lines_.Next();
        return line ? *line : throw TransferError("the transfer file ends before its last line");
    }

    /// Lines whose meaning is known by their place.
    void Skip(int lines) {
        for (int i = 0; i < lines; ++i) {
            Line();
        }
    }

    std::string Word() {
        Line();
        return Text();
    }

    /// A word whose code has been read, just as it stands.
    std::string Text() {
        const auto line = lines_.NextWhole();
        return line ? Unescaped(*line) : throw TransferError("the transfer file ends before its last line");
    }

    double Number() {
        Line();
        return Value();
    }

    /// A value whose code has been read.
    double Value() {
        if (lines_.BytesLeft() == 0) {
            Line();
        }
        const auto number = lines_.Number();
        return number ? *number
                      : throw TransferError(lines_.Here() + "there is no number in the transfer file");
    }

    /// A count of points.
    std::size_t Count() {
        constexpr double Most = 1e9;
        const double count = Number();
        return count >= 0 && count <= Most
                   ? static_cast<std::size_t>(count)
                   : throw TransferError(lines_.Here() + "there is no count in the transfer file");
    }

    C3DPoint Point() {
        const double x = Number();
        return PointFrom(x);
    }

    /// A point whose x has been read.
    C3DPoint PointFrom(double x) {
        const double y = Number();
        return {x, y, Number(), PlainStation};
    }

  private:
    DxfLines lines_;
};

TransferLine ReadLine(TransferGroups& groups) {
    const C3DPoint a = groups.Point();
    return {a, groups.Point()};
}

TransferArc ReadArc(TransferGroups& groups) {
    TransferArc arc;
    arc.centre = groups.Point();
    arc.radius = groups.Number();
    arc.start = groups.Number();
    arc.end = groups.Number();
    return arc;
}

/// With an alignment point and a justification behind the size, or without.
TransferText ReadText(TransferGroups& groups) {
    TransferText text;
    text.point = groups.Point();
    text.size = groups.Number();
    std::string_view code = groups.Line();
    if (code == "11") {
        text.point = groups.PointFrom(groups.Value());
        code = groups.Line();
    }
    if (code == "72") {
        const double justification = groups.Value();
        text.justification = justification == 1 ? 1 : justification == 2 ? 2 : 0;
        groups.Skip(1);
    }
    text.text = groups.Text();
    text.angle = groups.Number();
    return text;
}

/// Behind the head come vertices, each with its layer, its point and in a mesh a group of its kind, and then
/// the word that ends them with its layer.
TransferPolyline ReadPolyline(TransferGroups& groups) {
    constexpr int VerticesFollow = 2;
    constexpr int Elevation = 6;
    TransferPolyline polyline;
    groups.Skip(VerticesFollow + Elevation);
    if (groups.Line() == "70") {
        groups.Skip(1);
        polyline.rows = groups.Count();
        polyline.columns = groups.Count();
        groups.Skip(1);
    }
    while (groups.Line() == "VERTEX") {
        groups.Word();
        polyline.points.Add(groups.Point());
        groups.Skip(polyline.rows > 0 ? 3 : 1);
    }
    groups.Skip(2);
    return polyline;
}

}  // namespace

void ReadTransferFile(std::string_view text, const EntitySink& take) {
    constexpr int Opening = 5;  // "SECTION" and "ENTITIES" with their codes, and the code of what follows
    TransferGroups groups(text);
    groups.Skip(Opening);
    for (std::string_view word = groups.Line(); word != "EOF"; word = groups.Line()) {
        if (word == "LINE") {
            std::string layer = groups.Word();
            take({std::move(layer), ReadLine(groups)});
        } else if (word == "ARC") {
            std::string layer = groups.Word();
            take({std::move(layer), ReadArc(groups)});
        } else if (word == "TEXT") {
            std::string layer = groups.Word();
            take({std::move(layer), ReadText(groups)});
        } else if (word == "POLYLINE") {
            std::string layer = groups.Word();
            take({std::move(layer), ReadPolyline(groups)});
        }
    }
}

std::vector<TransferEntity> ReadTransferFile(std::string_view text) {
    std::vector<TransferEntity> entities;
    ReadTransferFile(text, [&entities](TransferEntity entity) { entities.push_back(std::move(entity)); });
    return entities;
}

}  // namespace korvet
