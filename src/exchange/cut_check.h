// The check of a cut file: whether a machine that follows it gets whole pieces, what it cuts, and how true.
#pragma once

#include <optional>
#include <string>

#include "exchange/cut_drawing.h"

namespace korvet {

/// What stands twice, or at one point, because the pattern has it so.
struct CutOnPurpose {
    std::size_t foldsOnEdges = 0;   ///< folds that lie on a cut
    std::size_t repeatedFolds = 0;  ///< folds of repeated stations, on one another
    std::size_t lastSegments =
        0;  ///< of edges of an even number of points, written as part of an arc and again
    std::size_t sharedCuts = 0;  ///< lines of two pieces that lie against each other
    std::size_t seams = 0;       ///< cuts between two ends of a strip that has come round to itself
    std::size_t points = 0;      ///< edges, folds and ends of strips that are a single point
    std::size_t openLines = 0;   ///< third lines that end on the outline, such as half a hole
};

/// What a cut file of a pattern holds. Lengths in the user's unit; a place that is cut twice counts once.
struct CutCheck {
    std::size_t pieces = 0;
    std::size_t bends = 0;     ///< fold lines within the pieces, those that lie on another one not counted
    std::size_t lapFolds = 0;  ///< fold lines of laps, which lie on the layer of the cuts
    std::size_t holes = 0;
    double cutLength = 0;        ///< of outlines and third lines
    double lapFoldLength = 0;    ///< of the fold lines of laps
    std::optional<double> area;  ///< of the pieces without their holes; nothing while an outline is open

    double widestGap = 0;          ///< between ends that count as joined
    std::size_t openOutlines = 0;  ///< pieces whose outline has a gap
    std::size_t openHoles = 0;     ///< third lines that are neither closed nor end on the outline
    std::size_t holesOutside = 0;  ///< holes that do not lie wholly in their piece
    std::size_t doubled = 0;       ///< entities that lie on another one, in whole or in part, for no reason
    std::size_t zeroLength = 0;    ///< entities without any length, for no reason
    std::vector<std::string> faults;  ///< each of these five, where it is

    CutOnPurpose onPurpose;
    double fromPoints = 0;  ///< how far a point of the pattern lies from the line that is cut through it
};

/// Checks the lines of a drawing against the surfaces that they were written from; `arcs` when curved edges
/// went out as arcs. What is a cut, a fold or a piece stands in `lines`, which a fault of the file may have
/// changed; what may stand twice is read off the surfaces.
CutCheck CheckCutFile(const CRuleSurfs& surfaces, PieceCurves lines, bool arcs);

}  // namespace korvet
