#include "exchange/dxf_stream.h"

#include <algorithm>

#include "core/constants.h"
#include "core/math_module.h"
#include "core/work_watch.h"
#include "exchange/cut_curve.h"

namespace korvet {
namespace {

constexpr std::size_t PieceBytes = std::size_t{1} << 18U;  // what a sink takes at a time, or a little more

// Group codes. The y and z of a point follow its x by 10 and 20.
constexpr int EntityCode = 0;
constexpr int StringCode = 1;
constexpr int LayerCode = 8;
constexpr int FirstPointCode = 10;
constexpr int SecondPointCode = 11;
constexpr int StartAngleCode = 50;
constexpr int EndAngleCode = 51;
constexpr int VerticesFollowCode = 66;
constexpr int KindCode = 70;
constexpr int MeshRowsCode = 71;
constexpr int MeshColumnsCode = 72;
constexpr int JustificationCode = 72;

C3DPoint Written(const C3DPoint& point) {
    return {WrittenRounded(point.x), WrittenRounded(point.y), WrittenRounded(point.z), PlainStation};
}

void AddWritten(C3DPoints& written, const C3DPoints& list, std::size_t count) {
    for (std::size_t i = 1; i <= count; ++i) {
        written.Add(Written(list.Item(i)));
    }
}

}  // namespace

DxfStream::DxfStream(double textSize, TextSink sink) : textSize_(textSize), sink_(std::move(sink)) {
    groups_.WriteWord(EntityCode, "SECTION");
    groups_.WriteWord(NameCode, "ENTITIES");
}

DxfStream::DxfStream(double textSize, EntitySink take) : textSize_(textSize), take_(std::move(take)) {}

std::string DxfStream::Finish() {
    groups_.WriteWord(EntityCode, "ENDSEC");
    groups_.WriteWord(EntityCode, "EOF");
    return groups_.Take();
}

void DxfStream::WriteLine(const C3DPoint& a, const C3DPoint& b, std::string_view layer) {
    if (take_) {
        HandOut(layer, TransferLine{Written(a), Written(b)});
        return;
    }
    WriteEntity("LINE", layer);
    WritePoint(FirstPointCode, a);
    WritePoint(SecondPointCode, b);
    TakeIn(a);
    TakeIn(b);
}

void DxfStream::WriteArc(const C3DPoint& start, const C3DPoint& end, const C3DPoint& centre,
                         std::string_view layer) {
    const double radius = Distance3D(centre, start);
    const double from = PlanAngle(centre, start);
    const double to = PlanAngle(centre, end);
    if (take_) {
        HandOut(layer, TransferArc{Written(centre), WrittenRounded(radius), WrittenRounded(RadToDeg(from)),
                                   WrittenRounded(RadToDeg(to))});
        return;
    }
    WriteEntity("ARC", layer);
    WritePoint(FirstPointCode, centre);
    groups_.WriteRounded(SizeCode, radius);
    groups_.WriteRounded(StartAngleCode, RadToDeg(from));
    groups_.WriteRounded(EndAngleCode, RadToDeg(to));
    const double sweep = to - from;
    const Bounds box = BoundsOf(ArcCurve(centre, radius, from, sweep > 0 ? sweep : sweep + FullTurn));
    TakeIn({box.minX, box.minY, centre.z});
    TakeIn({box.maxX, box.maxY, centre.z});
}

void DxfStream::WriteText(std::string_view text, const C3DPoint& point, double angle, std::string_view layer,
                          TextJustification justification) {
    if (take_) {
        HandOut(layer, TransferText{Written(point), WrittenNumber(textSize_), static_cast<int>(justification),
                                    WrittenWord(text), WrittenNumber(RadToDeg(angle))});
        return;
    }
    WriteEntity("TEXT", layer);
    WritePoint(FirstPointCode, point);
    groups_.WriteNumber(SizeCode, textSize_);
    WritePoint(SecondPointCode, point);
    groups_.WriteNumber(JustificationCode, static_cast<int>(justification));
    groups_.WriteWord(StringCode, text);
    groups_.WriteNumber(StartAngleCode, RadToDeg(angle));
    TakeIn(point);
}

void DxfStream::WritePolyline(const C3DPoints& list, std::string_view layer) {
    if (take_) {
        TransferPolyline polyline;
        AddWritten(polyline.points, list, list.Count());
        HandOut(layer, std::move(polyline));
        return;
    }
    WriteEntity("POLYLINE", layer);
    groups_.WriteWord(VerticesFollowCode, "1");
    WritePoint(FirstPointCode, {});
    for (const C3DPoint& point : list) {
        WriteVertex(point, layer);
    }
    WriteEntity("SEQEND", layer);
}

void DxfStream::WriteMesh(const C3DPoints& list1, const C3DPoints& list2, std::string_view layer) {
    constexpr std::size_t Rows = 2;
    const std::size_t columns = std::min(list1.Count(), list2.Count());
    if (take_) {
        TransferPolyline mesh{{}, Rows, columns};
        AddWritten(mesh.points, list1, columns);
        AddWritten(mesh.points, list2, columns);
        HandOut(layer, std::move(mesh));
        return;
    }
    WriteEntity("POLYLINE", layer);
    groups_.WriteWord(VerticesFollowCode, "1");
    WritePoint(FirstPointCode, {});
    groups_.WriteWord(KindCode, "16");
    groups_.WriteWord(MeshRowsCode, "2");
    groups_.WriteNumber(MeshColumnsCode, static_cast<double>(columns));
    for (const C3DPoints* list : {&list1, &list2}) {
        for (std::size_t i = 1; i <= columns; ++i) {
            WriteVertex(list->Item(i), layer);
            groups_.WriteWord(KindCode, "64");
        }
    }
    WriteEntity("SEQEND", layer);
}

template <typename Shape>
void DxfStream::HandOut(std::string_view layer, Shape shape) {
    WorkWatch::Look();
    take_({WrittenWord(layer), std::move(shape)});
}

void DxfStream::WritePoint(int xCode, const C3DPoint& point) {
    groups_.WriteRounded(xCode, point.x);
    groups_.WriteRounded(xCode + 10, point.y);
    groups_.WriteRounded(xCode + 20, point.z);
}

void DxfStream::WriteEntity(std::string_view name, std::string_view layer) {
    WorkWatch::Look();
    if (sink_ && groups_.Text().size() >= PieceBytes) {
        sink_(groups_.Text());
        taken_ += groups_.Text().size();
        groups_.Clear();
    }
    groups_.WriteWord(EntityCode, name);
    groups_.WriteWord(LayerCode, layer);
}

void DxfStream::WriteVertex(const C3DPoint& point, std::string_view layer) {
    WriteEntity("VERTEX", layer);
    WritePoint(FirstPointCode, point);
    TakeIn(point);
}

void DxfStream::TakeIn(const C3DPoint& point) {
    if (!extents_) {
        extents_ = {point, point};
    }
    for (double C3DPoint::*const coordinate : {&C3DPoint::x, &C3DPoint::y, &C3DPoint::z}) {
        extents_->low.*coordinate = std::min(extents_->low.*coordinate, point.*coordinate);
        extents_->high.*coordinate = std::max(extents_->high.*coordinate, point.*coordinate);
    }
}

}  // namespace korvet
