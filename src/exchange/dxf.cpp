#include "exchange/dxf.h"

#include <string_view>

#include "core/math_module.h"
#include "exchange/dxf_annotations.h"
#include "exchange/dxf_arcs.h"
#include "exchange/dxf_stream.h"

namespace korvet {
namespace {

/// About the room that the outlines and bend lines of a station take in the file.
constexpr std::size_t BytesPerStation = 300;
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

/// Notes for each entity of a surface what it is to the piece.
class PartNotes {
  public:
    PartNotes(const DxfStream& out, std::vector<DxfPart>& parts, std::size_t piece)
        : out_(out), parts_(parts), piece_(piece), begin_(out.Size()) {}

    /// What follows now is the next part.
    void Begin() { begin_ = out_.Size(); }

    /// What has come since the last call is of this part.
    void End(CutPart part) {
        const std::size_t end = out_.Size();
        const bool goesOn = !parts_.empty() && parts_.back().piece == piece_ && parts_.back().part == part &&
                            parts_.back().end == begin_;
        if (goesOn) {
            parts_.back().end = end;
        } else if (end > begin_) {
            parts_.push_back({piece_, part, begin_, end});
        }
        begin_ = end;
    }

  private:
    const DxfStream& out_;
    std::vector<DxfPart>& parts_;
    std::size_t piece_;
    std::size_t begin_;
};

/// The two ends of the strip as outlines, the rule stations between them as bend lines.
void WriteRulings(DxfStream& out, const CDXF& dxf, const CRuleSurf& surface, PartNotes& notes) {
    const std::size_t n = StationCount(surface);
    for (std::size_t i = 1; i <= n; ++i) {
        const C3DPoint& a = surface.List1->Item(i);
        const C3DPoint& b = surface.List2->Item(i);
        if (i == 1 || i == n) {
            if (dxf.OutlinesRequested) {
                out.WriteLine(a, b, dxf.CutLayer);
                notes.End(i == 1 ? CutPart::FirstEnd : CutPart::LastEnd);
            }
        } else if (dxf.BendLinesRequested && IsRuleStation(a)) {
            out.WriteLine(a, b, dxf.FoldLayer);
            notes.End(CutPart::Bend);
        }
    }
}

void WriteSurface(DxfStream& out, const CDXF& dxf, const CRuleSurf& surface, PartNotes notes) {
    if (StationCount(surface) == 0) {
        return;
    }
    if (dxf.AcadPolygonMesh) {
        out.WriteMesh(*surface.List1, *surface.List2, dxf.FoldLayer);
    }
    notes.Begin();
    WriteRulings(out, dxf, surface, notes);
    if (!dxf.OutlinesRequested) {
        return;
    }
    for (const auto& [list, part] : PathsOf(surface)) {
        if (IsPresent(*list)) {
            WritePath(out, dxf, **list);
            notes.End(part);
        }
    }
}

/// The entities, of which the stream then knows the extents.
void WriteEntities(DxfStream& out, const CDXF& dxf, std::vector<DxfPart>& parts) {
    for (std::size_t i = 1; i <= dxf.SurfaceList.Count(); ++i) {
        WriteSurface(out, dxf, dxf.SurfaceList.Item(i), PartNotes(out, parts, i));
    }
    if (dxf.SurfaceList.Count() > 0) {
        WriteAnnotations(out, dxf);
    }
}

/// What goes before the entities. It tells of their extents, so that they are made once more for it.
std::string HeadingOf(const CDXF& dxf) {
    if (!dxf.Heading) {
        return {};
    }
    std::vector<DxfPart> parts;
    DxfStream measured(dxf.TextSize, [](std::string_view) {});
    WriteEntities(measured, dxf, parts);
    return HeadingText(*dxf.Heading, measured.Extents().value_or(DxfExtents()));
}

}  // namespace

void CDXF::WriteTo(const TextSink& sink, std::vector<DxfPart>& parts) const {
    const std::string heading = HeadingOf(*this);
    sink(heading);
    DxfStream out(TextSize, sink);
    WriteEntities(out, *this, parts);
    sink(out.Finish());
    for (DxfPart& part : parts) {
        part.begin += heading.size();
        part.end += heading.size();
    }
}

void CDXF::EntitiesTo(const EntitySink& take) const {
    std::vector<DxfPart> parts;
    DxfStream out(TextSize, take);
    WriteEntities(out, *this, parts);
}

std::string CDXF::Text(std::vector<DxfPart>& parts) const {
    std::string text;
    text.reserve(ExpectedBytes(SurfaceList));
    WriteTo([&text](std::string_view piece) { text += piece; }, parts);
    return text;
}

std::string CDXF::Text() const {
    std::vector<DxfPart> parts;
    return Text(parts);
}

void CDXF::WriteDXF(FileStore& files) const {
    const auto pieces = [this](const TextSink& sink) {
        std::vector<DxfPart> parts;
        WriteTo(sink, parts);
    };
    files.WritePieces(FileName, pieces, Flush::No);
}

}  // namespace korvet
