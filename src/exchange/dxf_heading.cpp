#include "exchange/dxf_heading.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "core/number_text.h"
#include "exchange/dxf_groups.h"

namespace korvet {
namespace {

// Group codes of header variables and tables.
constexpr int TextCode = 1;
constexpr int SecondFileCode = 4;
constexpr int LineTypeCode = 6;
constexpr int VariableCode = 9;
constexpr int WidthCode = 41;
constexpr int LastHeightCode = 42;
constexpr int ObliqueCode = 50;
constexpr int ColorCode = 62;
constexpr int CountCode = 70;
constexpr int GenerationCode = 71;
constexpr int AlignmentCode = 72;
constexpr int ElementsCode = 73;

struct Rgb {
    int red = 0;
    int green = 0;
    int blue = 0;
};

constexpr int WhiteOrBlack = 7;

/// The first nine colours.
constexpr std::array<Rgb, 9> NamedColors = {{{255, 0, 0},
                                             {255, 255, 0},
                                             {0, 255, 0},
                                             {0, 255, 255},
                                             {0, 0, 255},
                                             {255, 0, 255},
                                             {255, 255, 255},
                                             {128, 128, 128},
                                             {192, 192, 192}}};

constexpr std::array<int, 6> Greys = {0, 101, 102, 153, 204, 255};  // from 250 on

/// Colours 10 to 249 go round the hues in 24 steps of ten: five brightnesses, each full and half as pale.
constexpr Rgb ColorOfWheel(int index) {
    constexpr std::array<int, 5> Brightness = {255, 165, 127, 76, 38};
    const int step = index / 10 - 1;
    const int most = Brightness.at(static_cast<std::size_t>(index % 10) / 2);
    // From red on, a channel keeps its full light for a third of the wheel and a step, and fades over a
    // sixth.
    const auto channel = [&](int fullAt) {
        const int apart = std::min((step - fullAt + 24) % 24, (fullAt - step + 24) % 24);
        const int quarters = std::clamp(8 - apart, 0, 4);
        const int light = most * quarters / 4;
        return index % 2 == 1 ? (light + most) / 2 : light;
    };
    return {channel(0), channel(8), channel(16)};
}

constexpr Rgb IndexedColor(int index) {
    if (index < 10) {
        return NamedColors.at(static_cast<std::size_t>(index) - 1);
    }
    if (index >= 250) {
        const int grey = Greys.at(static_cast<std::size_t>(index) - 250);
        return {grey, grey, grey};
    }
    return ColorOfWheel(index);
}

constexpr int SquareApart(const Rgb& a, const Rgb& b) {
    const auto square = [](int difference) { return difference * difference; };
    return square(a.red - b.red) + square(a.green - b.green) + square(a.blue - b.blue);
}

/// Writes the sections.
class HeadingWriter {
  public:
    std::string Text(const DxfHeading& heading, const DxfExtents& extents) {
        BeginSection("HEADER");
        Variable("$ACADVER");
        out_.WriteWord(TextCode, "AC1009");
        Place("$EXTMIN", extents.low);
        Place("$EXTMAX", extents.high);
        Corner("$LIMMIN", extents.low);
        Corner("$LIMMAX", extents.high);
        // The unit came into the format later than this version; who doesn't know it passes over it.
        Count("$INSUNITS", heading.inches ? 1 : 4);
        Count("$MEASUREMENT", heading.inches ? 0 : 1);
        EndSection();
        BeginSection("TABLES");
        LineTypes();
        Layers(heading.layers);
        TextStyles();
        EndSection();
        BeginSection("BLOCKS");
        EndSection();
        return out_.Take();
    }

  private:
    void BeginSection(std::string_view name) {
        out_.WriteWord(0, "SECTION");
        out_.WriteWord(NameCode, name);
    }
    void EndSection() { out_.WriteWord(0, "ENDSEC"); }
    void Variable(std::string_view name) { out_.WriteWord(VariableCode, name); }

    void Count(std::string_view name, int count) {
        Variable(name);
        Whole(CountCode, count);
    }

    void Whole(int code, int number) { out_.WriteWord(code, std::to_string(number)); }

    void Place(std::string_view name, const C3DPoint& point) {
        Corner(name, point);
        out_.WriteNumber(30, point.z);
    }

    void Corner(std::string_view name, const C3DPoint& point) {
        Variable(name);
        out_.WriteNumber(10, point.x);
        out_.WriteNumber(20, point.y);
    }

    void BeginTable(std::string_view name, std::size_t count) {
        out_.WriteWord(0, "TABLE");
        out_.WriteWord(NameCode, name);
        Whole(CountCode, static_cast<int>(count));
    }
    void EndTable() { out_.WriteWord(0, "ENDTAB"); }

    void LineTypes() {
        BeginTable("LTYPE", 1);
        out_.WriteWord(0, "LTYPE");
        out_.WriteWord(NameCode, "CONTINUOUS");
        Whole(CountCode, 0);
        out_.WriteWord(3, "Solid line");
        Whole(AlignmentCode, 65);
        Whole(ElementsCode, 0);
        out_.WriteNumber(SizeCode, 0);
        EndTable();
    }

    void Layers(const std::vector<DxfLayer>& layers) {
        std::vector<DxfLayer> named;
        const auto name = [&](const DxfLayer& layer) {
            const bool isNew = std::none_of(named.begin(), named.end(), [&](const DxfLayer& known) {
                return EqualIgnoringCase(known.name, layer.name);
            });
            if (isNew) {
                named.push_back(layer);
            }
        };
        std::for_each(layers.begin(), layers.end(), name);
        name({"0", Black});  // every drawing has it
        BeginTable("LAYER", named.size());
        for (const DxfLayer& layer : named) {
            out_.WriteWord(0, "LAYER");
            out_.WriteWord(NameCode, layer.name);
            Whole(CountCode, 0);
            Whole(ColorCode, NearestColorIndex(layer.color));
            out_.WriteWord(LineTypeCode, "CONTINUOUS");
        }
        EndTable();
    }

    void TextStyles() {
        BeginTable("STYLE", 1);
        out_.WriteWord(0, "STYLE");
        out_.WriteWord(NameCode, "STANDARD");
        Whole(CountCode, 0);
        out_.WriteNumber(SizeCode, 0);
        out_.WriteNumber(WidthCode, 1);
        out_.WriteNumber(ObliqueCode, 0);
        Whole(GenerationCode, 0);
        out_.WriteNumber(LastHeightCode, 1);
        out_.WriteWord(3, "txt");
        out_.WriteWord(SecondFileCode, "");
        EndTable();
    }

    DxfGroups out_;
};

}  // namespace

int NearestColorIndex(Color color) {
    const auto bits = static_cast<std::uint32_t>(color);
    const Rgb wanted = {static_cast<int>(bits & 255U), static_cast<int>(bits >> 8U & 255U),
                        static_cast<int>(bits >> 16U & 255U)};
    int nearest = WhiteOrBlack;
    int least = std::min(SquareApart(wanted, {}), SquareApart(wanted, {255, 255, 255}));
    for (int index = 1; index <= 255; ++index) {
        const int apart = SquareApart(wanted, IndexedColor(index));
        if (apart < least) {
            least = apart;
            nearest = index;
        }
    }
    return nearest;
}

std::string HeadingText(const DxfHeading& heading, const DxfExtents& extents) {
    return HeadingWriter().Text(heading, extents);
}

}  // namespace korvet
