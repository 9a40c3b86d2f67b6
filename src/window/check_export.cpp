#include "window/check_export.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "core/constants.h"
#include "core/fitting_surfaces.h"
#include "core/number_text.h"
#include "exchange/cut_distance.h"

namespace korvet {
namespace {

/// Places of lengths and areas in the sentences.
constexpr int TextPlaces = 3;

/// What the text of the drawing holds, which itself is let go: that of a large fitting takes as much memory.
PieceCurves LinesOf(const CDXF& drawing) {
    std::vector<DxfPart> parts;
    const std::string text = drawing.Text(parts);
    return ReadPieceCurves(text, parts);
}

std::optional<double> DistanceFromMoreSegments(const CFittingWindow& window, const CDXF& drawing,
                                               const PieceCurves& lines, int segs) {
    try {
        const FittingHandle finer = window.fitting->Copy();
        finer.Inputs().segs = segs;
        return DistanceFromFiner(drawing.SurfaceList, lines,
                                 MakeSurfaces(finer, FittingShape::Pattern, window.Table().multiple));
    } catch (const std::exception&) {
        return std::nullopt;  // shapes exist that so many segments leave none of
    }
}

/// "3 holes", "1 hole".
std::string Counted(std::size_t count, const std::string& word, const std::string& words) {
    return std::to_string(count) + " " + (count == 1 ? word : words);
}

std::string Listed(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts) {
        text.append(text.empty() ? "" : ", ").append(part);
    }
    return text;
}

/// A distance that nothing exceeds.
std::string WithinText(double distance, char decimalMark) {
    return RoundedText(std::ceil(distance * 1e4) / 1e4, 4, decimalMark);
}

std::string PiecesLine(const CutCheck& cut, char mark) {
    std::vector<std::string> parts = {Counted(cut.pieces, "piece", "pieces"),
                                      Counted(cut.bends, "bend", "bends")};
    if (cut.holes > 0) {
        parts.push_back(Counted(cut.holes, "hole", "holes"));
    }
    if (cut.lapFolds > 0) {
        parts.push_back(Counted(cut.lapFolds, "fold line of a lap", "fold lines of laps") +
                        " on the cut layer");
    }
    parts.push_back("cut length " + RoundedText(cut.cutLength, TextPlaces, mark));
    if (cut.area) {
        parts.push_back("area " + RoundedText(*cut.area, TextPlaces, mark));
    }
    return std::string(cut.faults.empty() ? "Check passed: " : "CHECK FAILED: ") + Listed(parts) + ".";
}

std::string OnPurposeLine(const CutOnPurpose& found) {
    struct Kind {
        std::size_t count;
        const char* word;
        const char* words;
    };
    const std::array<Kind, 7> kinds = {
        {{found.foldsOnEdges, "fold on an edge", "folds on edges"},
         {found.repeatedFolds, "fold of a repeated station", "folds of repeated stations"},
         {found.lastSegments, "last segment of an edge", "last segments of edges"},
         {found.sharedCuts, "line shared by two pieces", "lines shared by two pieces"},
         {found.seams, "seam that closes on itself", "seams that close on themselves"},
         {found.points, "edge that is a point", "edges that are points"},
         {found.openLines, "part of a hole that ends on the outline",
          "parts of holes that end on the outline"}}};
    std::vector<std::string> parts;
    for (const Kind& kind : kinds) {
        if (kind.count > 0) {
            parts.push_back(Counted(kind.count, kind.word, kind.words));
        }
    }
    return parts.empty() ? "" : "On purpose: " + Listed(parts) + ".";
}

}  // namespace

std::optional<ExportCheck> CheckExport(const CFittingWindow& window, const CDXF& drawing) {
    if (!drawing.Pattern || !drawing.OutlinesRequested || !window.fitting) {
        return std::nullopt;
    }
    PieceCurves lines = LinesOf(drawing);
    ExportCheck check;
    check.finerSegs = std::min(FinerTimes * window.fitting->Inputs().segs, MaxSegs);
    check.fromFiner = DistanceFromMoreSegments(window, drawing, lines, check.finerSegs);
    check.cut = CheckCutFile(drawing.SurfaceList, std::move(lines), drawing.PolyMode == ArcEdges);
    return check;
}

std::vector<std::string> CheckLines(const ExportCheck& check, char decimalMark) {
    if (check.cut.pieces == 0) {
        return {"There is nothing to check: the pattern is empty."};
    }
    std::vector<std::string> lines = {PiecesLine(check.cut, decimalMark)};
    lines.insert(lines.end(), check.cut.faults.begin(), check.cut.faults.end());
    const std::string onPurpose = OnPurposeLine(check.cut.onPurpose);
    if (!onPurpose.empty()) {
        lines.push_back(onPurpose);
    }
    std::string distances =
        "The cut runs within " + WithinText(check.cut.fromPoints, decimalMark) + " of the pattern's points";
    if (check.fromFiner) {
        distances += ", within " + WithinText(*check.fromFiner, decimalMark) + " of the pattern with " +
                     std::to_string(check.finerSegs) + " segments";
    }
    lines.push_back(distances + ".");
    return lines;
}

}  // namespace korvet
