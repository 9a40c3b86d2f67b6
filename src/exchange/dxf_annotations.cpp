#include "exchange/dxf_annotations.h"

#include <algorithm>
#include <string>

#include "core/constants.h"
#include "core/math_module.h"
#include "core/number_text.h"
#include "display/extent_frame.h"

namespace korvet {
namespace {

/// The parts that all annotations are made of.
class Annotator {
  public:
    Annotator(DxfStream& out, const CDXF& dxf)
        : out_(out), dxf_(dxf), frame_(BuildDXFFrame(dxf.SurfaceList)) {}

    void WriteDimensions();
    void WriteTrueLengths();
    void WriteDiagonals();
    void WriteLabel();
    void WriteGrid();
    void WriteFrame(bool withText);

  private:
    [[nodiscard]] std::string LengthText(double length) const;
    void WriteDimensionLine(const C3DPoint& a, const C3DPoint& b);
    void WriteDimensionText(const C3DPoint& a, const C3DPoint& b);
    void WriteGridLines(const DrawingFrame& frame, const C3DPoints& list);
    void WriteLeader(const C3DPoint& from, const C3DPoint& edge);
    void WriteGridText(double coordinate, const C3DPoint& edge, double angle, bool highEdge);
    [[nodiscard]] const C3DPoint* DimensionEnd(int surfaceNo, int listNo, int pointNo, int referenceNo) const;

    DxfStream& out_;
    const CDXF& dxf_;
    std::optional<DrawingFrame> frame_;
};

/// The rule stations of the two edges and of the third line.
struct RuleStations {
    C3DPoints a;
    C3DPoints b;
    C3DPoints c;
    std::size_t count = 0;  ///< stations that a and b both have

    explicit RuleStations(const CRuleSurf& surface) {
        if (StationCount(surface) == 0) {
            return;
        }
        a = FlaggedPoints(*surface.List1);
        b = FlaggedPoints(*surface.List2);
        count = std::min(a.Count(), b.Count());
        if (IsPresent(surface.List3)) {
            c = FlaggedPoints(*surface.List3);
        }
    }
};

std::string Annotator::LengthText(double length) const {
    return RoundedText(length, std::clamp<int>(dxf_.Decimals, 0, 15));
}

void Annotator::WriteDimensionLine(const C3DPoint& a, const C3DPoint& b) {
    out_.WriteLine(a, b, dxf_.DimensionLayer);
}

/// The distance from a to b half way between them and along them.
void Annotator::WriteDimensionText(const C3DPoint& a, const C3DPoint& b) {
    const double d = Distance3D(a, b);
    const double bearing = PlanAngle(a, b);
    out_.WriteText(LengthText(d), PolarPoint(a, bearing, d / 2), bearing, dxf_.TextLayer,
                   TextJustification::Centre);
}

const C3DPoint* ItemOf(const PointList& list, int pointNo) {
    const bool holds = list && pointNo >= 1 && static_cast<std::size_t>(pointNo) <= list->Count();
    return holds ? &list->Item(static_cast<std::size_t>(pointNo)) : nullptr;
}

/// The point that an end of a dimension means, or null. `referenceNo` must be 0 for a reference point.
const C3DPoint* Annotator::DimensionEnd(int surfaceNo, int listNo, int pointNo, int referenceNo) const {
    const PointList& firstEdge = dxf_.SurfaceList.Item(1).List1;
    const auto limit = firstEdge ? static_cast<std::ptrdiff_t>(firstEdge->Count()) : 0;
    if (pointNo > limit) {
        return nullptr;
    }
    if (listNo == ExtentFrameList) {
        const bool holds = frame_ && pointNo >= 1 && static_cast<std::size_t>(pointNo) <= frame_->size();
        return holds ? &(*frame_)[static_cast<std::size_t>(pointNo - 1)] : nullptr;
    }
    if (surfaceNo < 1 || static_cast<std::size_t>(surfaceNo) > dxf_.SurfaceList.Count()) {
        return nullptr;
    }
    const CRuleSurf& surface = dxf_.SurfaceList.Item(static_cast<std::size_t>(surfaceNo));
    switch (listNo) {
        case ReferencePointList:
            return surface.RefPoint && referenceNo == 0 ? &*surface.RefPoint : nullptr;
        case FirstEdgeList:
            return ItemOf(surface.List1, pointNo);
        case SecondEdgeList:
            return ItemOf(surface.List2, pointNo);
        case ThirdLineList:
            return ItemOf(surface.List3, pointNo);
        default:
            return nullptr;
    }
}

void Annotator::WriteDimensions() {
    for (const CDimension& dimension : dxf_.DimensionList) {
        // Both ends look at PointNo1 for a reference point: drawings have always come out so.
        const C3DPoint* first =
            DimensionEnd(dimension.SurfaceNo1, dimension.ListNo1, dimension.PointNo1, dimension.PointNo1);
        const C3DPoint* second =
            DimensionEnd(dimension.SurfaceNo2, dimension.ListNo2, dimension.PointNo2, dimension.PointNo1);
        if (first == nullptr || second == nullptr) {
            return;
        }
        WriteDimensionLine(*first, *second);
        WriteDimensionText(*first, *second);
    }
}

void Annotator::WriteTrueLengths() {
    for (const CRuleSurf& surface : dxf_.SurfaceList) {
        const RuleStations stations(surface);
        const C3DPoints& a = stations.a;
        const C3DPoints& b = stations.b;
        for (std::size_t i = 1; i <= stations.count; ++i) {
            if (i < stations.count) {
                WriteDimensionText(a.Item(i), a.Item(i + 1));
                WriteDimensionText(b.Item(i), b.Item(i + 1));
            }
            WriteDimensionText(a.Item(i), b.Item(i));
        }
        for (std::size_t i = 2; i <= stations.c.Count(); ++i) {
            WriteDimensionText(stations.c.Item(i - 1), stations.c.Item(i));
        }
    }
}

void Annotator::WriteDiagonals() {
    for (const CRuleSurf& surface : dxf_.SurfaceList) {
        const RuleStations stations(surface);
        for (std::size_t i = 2; i <= stations.count; ++i) {
            WriteDimensionLine(stations.a.Item(i - 1), stations.b.Item(i));
            WriteDimensionText(stations.a.Item(i - 1), stations.b.Item(i));
        }
    }
}

void Annotator::WriteLabel() {
    if (!dxf_.LabelPoint) {
        return;
    }
    C3DPoint point = *dxf_.LabelPoint;
    for (const CLabel& label : dxf_.LabelList) {
        out_.WriteText(label.LabelString, point, 0, dxf_.TextLayer, TextJustification::Centre);
        point.y -= 2 * dxf_.TextSize;
    }
}

void Annotator::WriteFrame(bool withText) {
    if (!frame_) {
        return;
    }
    const DrawingFrame& frame = *frame_;
    for (std::size_t side = 0; side < 4; ++side) {
        WriteDimensionLine(frame[side], frame[side + 1]);
    }
    if (withText) {
        WriteDimensionText(frame[3], frame[2]);
        WriteDimensionText(frame[0], frame[3]);
        const double area = Distance3D(frame[0], frame[3]) * Distance3D(frame[0], frame[1]);
        out_.WriteText("Area = " + LengthText(area), frame[2], 0, dxf_.TextLayer, TextJustification::Right);
    }
}

void Annotator::WriteGrid() {
    WriteFrame(false);
    for (const CRuleSurf& surface : dxf_.SurfaceList) {
        const RuleStations stations(surface);
        for (const C3DPoints* list : {&stations.a, &stations.b, &stations.c}) {
            if (frame_) {
                WriteGridLines(*frame_, *list);
            }
        }
    }
}

/// A leader from every point to the nearer of left and right, and of bottom and top. In the middle the right
/// and the top edge win, unlike on the screen.
void Annotator::WriteGridLines(const DrawingFrame& frame, const C3DPoints& list) {
    const C3DPoint& low = frame[0];
    const C3DPoint& high = frame[2];
    for (const C3DPoint& p : list) {
        const bool right = p.x - low.x >= high.x - p.x;
        const C3DPoint side{right ? high.x : low.x, p.y, 0};
        WriteLeader(p, side);
        WriteGridText(p.y - low.y, side, 0, right);
        const bool top = p.y - low.y >= high.y - p.y;
        const C3DPoint end{p.x, top ? high.y : low.y, 0};
        WriteLeader(p, end);
        WriteGridText(p.x - low.x, end, QuarterTurn, top);
    }
}

/// A station on the frame itself needs no line to it.
void Annotator::WriteLeader(const C3DPoint& from, const C3DPoint& edge) {
    constexpr double NoLength = 1e-8;
    if (Distance3D(from, edge) > NoLength) {
        WriteDimensionLine(from, edge);
    }
}

/// The coordinate that a leader stands for, at its end and outside the frame.
void Annotator::WriteGridText(double coordinate, const C3DPoint& edge, double angle, bool highEdge) {
    out_.WriteText(LengthText(coordinate), edge, angle, dxf_.TextLayer,
                   highEdge ? TextJustification::Left : TextJustification::Right);
}

}  // namespace

std::size_t StationCount(const CRuleSurf& surface) {
    if (!IsPresent(surface.List1) || !IsPresent(surface.List2)) {
        return 0;
    }
    return std::min(surface.List1->Count(), surface.List2->Count());
}

std::optional<DrawingFrame> BuildDXFFrame(const CRuleSurfs& surfaces) {
    CRuleSurfs drawn;
    for (const CRuleSurf& surface : surfaces) {
        if (StationCount(surface) > 0) {
            drawn.Add(surface);
        }
    }
    const C3DPoints frame = BuildExtentFrame(drawn, drawn);
    if (frame.Count() == 0) {
        return std::nullopt;
    }
    return DrawingFrame{frame.Item(1), frame.Item(2), frame.Item(3), frame.Item(4), frame.Item(5)};
}

void WriteAnnotations(DxfStream& out, const CDXF& dxf) {
    Annotator annotator(out, dxf);
    if (dxf.DimensionsRequested) {
        annotator.WriteDimensions();
    }
    if (dxf.TrueLengthsRequested) {
        annotator.WriteTrueLengths();
    }
    if (dxf.DiagonalsRequested) {
        annotator.WriteDiagonals();
    }
    if (dxf.LabelRequested) {
        annotator.WriteLabel();
    }
    if (dxf.CoordinatesRequested) {
        annotator.WriteGrid();
    }
    if (dxf.FrameRequested) {
        annotator.WriteFrame(true);
    }
}

}  // namespace korvet
