// The drawing file: the pattern or the wire model for other drawing programs, cutting machines and plotters.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/dimensions.h"
#include "core/file_store.h"
#include "core/rule_surf.h"
#include "exchange/cut_drawing.h"
#include "exchange/dxf_heading.h"
#include "exchange/transfer_file.h"

namespace korvet {

/// How curved edges of a pattern go out.
enum EdgeMode : std::int16_t {
    ArcEdges = 0,      ///< as ARC and LINE entities
    PolylineEdges = 1  ///< as POLYLINE entities through all stations
};

/// Writes surfaces with what was asked for around them as an ASCII drawing file. It has an ENTITIES section
/// only, so that layers come into being by use, unless there is a heading. Lengths are in the user's unit.
struct CDXF {
    bool AcadPolygonMesh = false;        ///< every surface goes out as a polygon mesh too
    bool Pattern = false;                ///< the surfaces are a flat pattern, not a wire model
    std::string DimensionLayer;          ///< dimension, diagonal, grid and frame lines
    std::string BorderLayer;             ///< held for the caller: no entity lies on it
    std::optional<C3DPoint> LabelPoint;  ///< where the first line of the text block stands
    CLabels LabelList;
    CDimensions DimensionList;
    std::string FoldLayer;   ///< bend lines and meshes
    std::string CutLayer;    ///< all outlines, the fold lines of laps too
    std::string TextLayer;   ///< every text
    CRuleSurfs SurfaceList;  ///< a surface counts when List1 and List2 have more than one point each
    bool FrameRequested = false;
    bool CoordinatesRequested = false;
    bool DiagonalsRequested = false;
    bool TrueLengthsRequested = false;
    bool OutlinesRequested = false;
    bool BendLinesRequested = false;
    bool DimensionsRequested = false;
    bool LabelRequested = false;
    std::int16_t Decimals = 0;          ///< places of the numbers in texts, 0 to 15
    std::int16_t PolyMode = ArcEdges;   ///< an EdgeMode; anything but ArcEdges means polylines
    double TextSize = 0;                ///< height of all texts
    std::string FileName;               ///< where WriteDXF puts the file
    std::optional<DxfHeading> Heading;  ///< what stands before the entities; nothing by default

    /// The bytes of the file. Without any surface there is no entity in it. Where List1 and List2 differ in
    /// length the shorter one counts. Throws ArithmeticError when a number is not finite.
    [[nodiscard]] std::string Text() const;

    /// The same, and where in it the outlines and folds of each surface stand.
    [[nodiscard]] std::string Text(std::vector<DxfPart>& parts) const;

    /// Hands the same bytes to a sink as they are made: of the largest fittings they are half a gigabyte.
    void WriteTo(const TextSink& sink, std::vector<DxfPart>& parts) const;

    /// Hands out the entities that ReadTransferFile would find in those bytes, which are not made.
    void EntitiesTo(const EntitySink& take) const;

    /// Writes them to FileName in one step, so that a failed export leaves the old file whole or none.
    /// Throws ArithmeticError and FileError.
    void WriteDXF(FileStore& files) const;
};

}  // namespace korvet
