#include "exchange/dxf_stream.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "core/math_module.h"
#include "core/number_text.h"
#include "core/text_encoding.h"

namespace korvet {
namespace {

constexpr std::string_view LineEnd = "\r\n";

// Group codes. The y and z of a point follow its x by 10 and 20.
constexpr int EntityCode = 0;
constexpr int StringCode = 1;
constexpr int NameCode = 2;
constexpr int LayerCode = 8;
constexpr int FirstPointCode = 10;
constexpr int SecondPointCode = 11;
constexpr int SizeCode = 40;  // the radius of an arc, the height of a text
constexpr int StartAngleCode = 50;
constexpr int EndAngleCode = 51;
constexpr int VerticesFollowCode = 66;
constexpr int KindCode = 70;
constexpr int MeshRowsCode = 71;
constexpr int MeshColumnsCode = 72;
constexpr int JustificationCode = 72;

constexpr bool IsControl(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

/// Appends one unit of a text as \U+XXXX.
void AppendEscape(std::string& text, char16_t unit) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    text += "\\U+";
    for (const unsigned shift : {12U, 8U, 4U, 0U}) {
        text += Digits[(static_cast<unsigned>(unit) >> shift) & 0xFU];
    }
}

/// Whether a reader would take the rest of a text for an escaped character: \U+XXXX, or \M+NXXXX, which
/// stands for one of an eastern character set.
bool LooksEscaped(std::u16string_view rest) {
    constexpr std::u16string_view Kinds = u"UuMm";
    return rest.size() > 2 && rest[0] == u'\\' && Kinds.find(rest[1]) != Kinds.npos && rest[2] == u'+';
}

/// Whether a word goes out as it is, which nearly all do.
bool IsPlain(std::string_view word) {
    return std::all_of(word.begin(), word.end(), [](char c) { return c >= ' ' && c <= '~' && c != '\\'; });
}

/// Appends the text in ASCII, on one line.
void AppendAscii(std::string& text, std::string_view word) {
    if (IsPlain(word)) {
        text += word;
        return;
    }
    const std::u16string units = Utf16Units(word);
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (IsControl(units[i])) {
            text += ' ';
        } else if (units[i] > 0x7F || LooksEscaped(std::u16string_view(units).substr(i))) {
            AppendEscape(text, units[i]);
        } else {
            text += static_cast<char>(units[i]);
        }
    }
}

void AppendCode(std::string& text, int code) {
    std::array<char, 12> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), code);
    text.append(digits.data(), end.ptr);
    text += LineEnd;
}

}  // namespace

DxfStream::DxfStream(double textSize, std::size_t expectedBytes) : textSize_(textSize) {
    text_.reserve(expectedBytes);
    WriteWord(EntityCode, "SECTION");
    WriteWord(NameCode, "ENTITIES");
}

std::string DxfStream::Finish() {
    WriteWord(EntityCode, "ENDSEC");
    WriteWord(EntityCode, "EOF");
    return std::exchange(text_, {});
}

void DxfStream::WriteLine(const C3DPoint& a, const C3DPoint& b, std::string_view layer) {
    WriteEntity("LINE", layer);
    WritePoint(FirstPointCode, a);
    WritePoint(SecondPointCode, b);
}

void DxfStream::WriteArc(const C3DPoint& start, const C3DPoint& end, const C3DPoint& centre,
                         std::string_view layer) {
    WriteEntity("ARC", layer);
    WritePoint(FirstPointCode, centre);
    WriteRounded(SizeCode, Distance3D(centre, start));
    WriteRounded(StartAngleCode, RadToDeg(PlanAngle(centre, start)));
    WriteRounded(EndAngleCode, RadToDeg(PlanAngle(centre, end)));
}

void DxfStream::WriteText(std::string_view text, const C3DPoint& point, double angle, std::string_view layer,
                          TextJustification justification) {
    WriteEntity("TEXT", layer);
    WritePoint(FirstPointCode, point);
    WriteNumber(SizeCode, textSize_);
    WritePoint(SecondPointCode, point);
    WriteNumber(JustificationCode, static_cast<int>(justification));
    WriteWord(StringCode, text);
    WriteNumber(StartAngleCode, RadToDeg(angle));
}

void DxfStream::WritePolyline(const C3DPoints& list, std::string_view layer) {
    WriteEntity("POLYLINE", layer);
    WriteWord(VerticesFollowCode, "1");
    WritePoint(FirstPointCode, {});
    for (const C3DPoint& point : list) {
        WriteVertex(point, layer);
    }
    WriteEntity("SEQEND", layer);
}

void DxfStream::WriteMesh(const C3DPoints& list1, const C3DPoints& list2, std::string_view layer) {
    const std::size_t columns = std::min(list1.Count(), list2.Count());
    WriteEntity("POLYLINE", layer);
    WriteWord(VerticesFollowCode, "1");
    WritePoint(FirstPointCode, {});
    WriteWord(KindCode, "16");
    WriteWord(MeshRowsCode, "2");
    WriteNumber(MeshColumnsCode, static_cast<double>(columns));
    for (const C3DPoints* list : {&list1, &list2}) {
        for (std::size_t i = 1; i <= columns; ++i) {
            WriteVertex(list->Item(i), layer);
            WriteWord(KindCode, "64");
        }
    }
    WriteEntity("SEQEND", layer);
}

void DxfStream::WriteWord(int code, std::string_view word) {
    AppendCode(text_, code);
    AppendAscii(text_, word);
    text_ += LineEnd;
}

void DxfStream::WriteNumber(int code, double value) {
    const std::string number = NumberText(value);
    AppendCode(text_, code);
    if (number.front() != '-') {
        text_ += ' ';
    }
    text_ += number;
    text_ += ' ';
    text_ += LineEnd;
}

void DxfStream::WriteRounded(int code, double value) {
    WriteNumber(code, RoundPlaces(value, DxfPlaces));
}

void DxfStream::WritePoint(int xCode, const C3DPoint& point) {
    WriteRounded(xCode, point.x);
    WriteRounded(xCode + 10, point.y);
    WriteRounded(xCode + 20, point.z);
}

void DxfStream::WriteEntity(std::string_view name, std::string_view layer) {
    WriteWord(EntityCode, name);
    WriteWord(LayerCode, layer);
}

void DxfStream::WriteVertex(const C3DPoint& point, std::string_view layer) {
    WriteEntity("VERTEX", layer);
    WritePoint(FirstPointCode, point);
}

}  // namespace korvet
