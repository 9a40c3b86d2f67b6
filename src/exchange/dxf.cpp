#include "exchange/dxf.h"

#include <string_view>

#include "core/math_module.h"
#include "exchange/dxf_annotations.h"
#include "exchange/dxf_arcs.h"
#include "exchange/dxf_stream.h"

namespace korvet {
namespace {

/// About the room that the outlines and bend lines of a station take in the file.
constexpr std::size_t BytesPerStation = 200;
constexpr std::size_t BytesOfTheRest = 4096;

std::size_t ExpectedBytes(const CRuleSurfs& surfaces) {
    std::size_t stations = 0;
    for (const CRuleSurf& surface : surfaces) {
        stations += StationCount(surface);
    }
    return stations * BytesPerStation + BytesOfTheRest;
}

/// The wires of a model: neighbours that coincide have no line between them.
void WriteSegments(DxfStream& out, const C3DPoints& list, std::string_view layer) {
    for (std::size_t i = 2; i <= list.Count(); ++i) {
        if (Distance3D(list.Item(i - 1), list.Item(i)) > 0) {
            out.WriteLine(list.Item(i - 1), list.Item(i), layer);
        }
    }
}

/// An outline lies on the cut layer whatever it bounds, the fold line of a lap too.
void WritePath(DxfStream& out, const CDXF& dxf, const C3DPoints& list) {
    if (!dxf.Pattern) {
        WriteSegments(out, list, dxf.CutLayer);
    } else if (list.Count() <= 2 || dxf.PolyMode != ArcEdges) {
        out.WritePolyline(list, dxf.CutLayer);
    } else {
        WriteArcPath(out, list, dxf.CutLayer);
    }
}

/// The two ends of the strip as outlines, the rule stations between them as bend lines.
void WriteRulings(DxfStream& out, const CDXF& dxf, const CRuleSurf& surface) {
    const std::size_t n = StationCount(surface);
    for (std::size_t i = 1; i <= n; ++i) {
        const C3DPoint& a = surface.List1->Item(i);
        const C3DPoint& b = surface.List2->Item(i);
        if (i == 1 || i == n) {
            if (dxf.OutlinesRequested) {
                out.WriteLine(a, b, dxf.CutLayer);
            }
        } else if (dxf.BendLinesRequested && IsRuleStation(a)) {
            out.WriteLine(a, b, dxf.FoldLayer);
        }
    }
}

void WriteSurface(DxfStream& out, const CDXF& dxf, const CRuleSurf& surface) {
    if (StationCount(surface) == 0) {
        return;
    }
    if (dxf.AcadPolygonMesh) {
        out.WriteMesh(*surface.List1, *surface.List2, dxf.FoldLayer);
    }
    WriteRulings(out, dxf, surface);
    if (!dxf.OutlinesRequested) {
        return;
    }
    for (const PointList& list :
         {surface.List1, surface.List2, surface.List3, surface.LapList1, surface.LapList2}) {
        if (IsPresent(list)) {
            WritePath(out, dxf, *list);
        }
    }
}

}  // namespace

std::string CDXF::Text() const {
    DxfStream out(TextSize, ExpectedBytes(SurfaceList));
    for (const CRuleSurf& surface : SurfaceList) {
        WriteSurface(out, *this, surface);
    }
    if (SurfaceList.Count() > 0) {
        WriteAnnotations(out, *this);
    }
    return out.Finish();
}

void CDXF::WriteDXF(FileStore& files) const {
    files.Write(FileName, Text(), Flush::No);
}

}  // namespace korvet
