// Turns the current fitting into a picture, on the screen or on paper.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "core/dimensions.h"
#include "core/display_colors.h"
#include "core/file_store.h"
#include "core/fitting_surfaces.h"
#include "core/points.h"
#include "core/rule_surf.h"
#include "display/drawing.h"
#include "display/fitted_picture.h"
#include "display/picking.h"
#include "display/view_point.h"

namespace korvet {

/// What is drawn over a pattern and its annotations, below the label block.
struct PatternOverlay {
    /// Takes the frame about the pattern that is about to be shown on the screen (BuildExtentFrame).
    std::function<void(const C3DPoints& extentFrame)> lay = {};

    /// Draws what was laid last.
    std::function<void(const Drawing& drawing)> draw = {};
};

/// The display of one fitting window. The window sets the members and calls DisplayObject after every change.
/// Lengths are in the user's unit, angles radians. Without a device, or with one of no size, the surfaces are
/// made and nothing is drawn. What a fitting or the arithmetic throws (ArithmeticError, ListError) goes
/// through to the caller; an empty ViewList or no NewObject is a ListError.
class CObjectDisplay {
  public:
    float TextSize = 2;                      ///< height of drawn text
    int Decimals = 1;                        ///< places of every number drawn
    char DecimalMark = '.';                  ///< of every number drawn
    DrawingDevice* DisplayDevice = nullptr;  ///< the window's drawing area, not owned
    DisplayColors Colors;
    std::shared_ptr<CViewList> ViewList = std::make_shared<CViewList>();  ///< the last view is current
    double RotationAngle = 0;                                             ///< of the pattern
    C3DPoint RotationPoint;                                               ///< centre of that rotation
    C3DPoint MovePoint1;                 ///< the pattern moves from here, after the rotation
    C3DPoint MovePoint2;                 ///< to here
    std::optional<C3DPoint> LabelPoint;  ///< where the label block stands, if anywhere
    std::shared_ptr<CLabels> LabelList = std::make_shared<CLabels>();
    std::shared_ptr<CDimensions> DimensionList = std::make_shared<CDimensions>();
    std::optional<FittingHandle> NewObject;  ///< the fitting
    bool CoordTableRequested = false;
    bool DiagonalsRequested = false;
    bool CoordGridRequested = false;
    bool FrameRequested = false;
    bool TrueLengthsRequested = false;
    bool Multiple = false;                  ///< the fitting has a list of surfaces, not one surface
    std::optional<PatternOverlay> Overlay;  ///< print frames, while they are shown

    // What a pass leaves behind.
    CRuleSurfs Surfaces;                   ///< true surfaces; empty when the build made none
    CViewPoint ViewPoint;                  ///< view of the pass
    double WorldExtents = 200;             ///< world size that fills the shorter side of the device at zoom 1
    std::vector<FittingWarning> Warnings;  ///< of the build of the last DisplayObject, in their order

    /// A whole pass: makes the pattern with its annotations or the model, whichever the current view shows,
    /// and the label block, then clears the screen and shows them. A grid or frame has the pattern made and
    /// drawn once more, so that its own lines lie on top. A pass that throws leaves the picture, and what the
    /// pass before left behind, as they were, but for the warnings.
    void DisplayObject();

    /// Clears the screen and shows what the last DisplayObject showed once more, with the overlay that there
    /// is now. Nothing is built.
    void ShowAgain();

    /// Clears the screen and shows what the last DisplayObject showed under `view`, which differs from the
    /// view of that pass in zoom and pan alone. Nothing is built, and the overlay stays as it was laid. A
    /// throw leaves everything as it was.
    void ShowUnder(const CViewPoint& view);

    /// Draws what the last DisplayObject showed onto a picture of its own: all of it, with laps, annotations
    /// and label block, as large as the picture has room for it. Nothing is built.
    void DrawPicture(DrawingDevice& picture) const;

    /// Draws of what the last DisplayObject showed, with the overlay that there is now, the part that lies on
    /// `page` on a sheet of paper under the scale of `window`. Nothing is built.
    void DrawPage(DrawingDevice& sheet, const WorldWindow& window, const Bounds& page) const;

    /// Draws all of it on one sheet, at the zoom of ZoomExtents on the sheet with the annotations counted.
    void DrawToFit(DrawingDevice& sheet) const;

    /// Draws the label block at LabelPoint, which must be set, line below line.
    void AddLabel() const;

    /// Removes the dimension whose middle lies nearest to the point; those without two ends are passed over.
    /// False when there is none.
    bool DimRemove(double x, double y);

    /// The nearest drawn point, however far away (FindClosestPoint in picking.h); the corners of the frame
    /// compete when FrameRequested. Nothing when no point is drawn.
    [[nodiscard]] std::optional<CNearestPoint> FindClosestPoint(const C3DPoint& click) const;

    /// Writes the table of the stations that were drawn last (CoordinateTable), in one step. Throws ListError
    /// and FileError; there is then no half-written file.
    void PrintCoordinateTable(FileStore& files, const std::string& path);

    /// Adds a view that shows the rectangle about all that was drawn last, or the given window of it (corners
    /// in any order), with a margin of one part in a hundred. The extents get room for the text height as
    /// well, by which a drawing sits off the centre. The view fits the size that the device has now. No view
    /// is added for an area without width or height.
    void ZoomExtents();
    void ZoomWindow(double x1, double y1, double x2, double y2);

    /// The view of the last pass with its zoom multiplied by `factor`, panned so that the point of the
    /// drawing plane that lies under a place of the picture stays under it. Throws ArithmeticError before
    /// anything was drawn, and for a view too far out.
    [[nodiscard]] CViewPoint ZoomedAbout(const WorldPoint& point, double factor) const;

    /// Whether all lines of the fitting that the last pass drew, laps too, lie inside the picture. There is
    /// nothing outside where nothing was drawn.
    [[nodiscard]] bool ShowsAll() const;

    /// The surfaces as drawn last: projected for a model, the true ones for a pattern.
    [[nodiscard]] const CRuleSurfs& ScreenSurfaces() const { return screenSurfaces_; }

    /// The world scale that DisplayDevice had in its last pass; of width 0 before.
    [[nodiscard]] const WorldWindow& DisplayWindow() const { return displayWindow_; }

    /// The frame about the pattern that was shown last (BuildExtentFrame).
    [[nodiscard]] C3DPoints ShownExtents() const;

  private:
    /// The box about each screen surface; nothing for one without points, or whose reference cross may lie
    /// outside.
    using SurfaceBoxes = std::vector<std::optional<Bounds>>;

    /// What one pass shows, and where.
    struct Pass {
        CViewPoint view;
        double worldExtents = 0;
        WorldWindow window;
        CRuleSurfs surfaces;
        CRuleSurfs screenSurfaces;
        SurfaceBoxes boxes;
        C3DPoints extentFrame;
    };

    /// What is drawn of a pass, or of the last one.
    struct Content {
        bool pattern;
        const CRuleSurfs& screenSurfaces;
        const SurfaceBoxes& boxes;
        const C3DPoints& extentFrame;
    };

    static Content ContentOf(const Pass& pass) {
        return {pass.view.Patternview, pass.screenSurfaces, pass.boxes, pass.extentFrame};
    }
    [[nodiscard]] Content KeptContent() const {
        return {ViewPoint.Patternview, screenSurfaces_, boxes_, extentFrame_};
    }
    [[nodiscard]] Pass NewPass() const;
    [[nodiscard]] Pass KeptPass() const;
    void Build(Pass& pass) const;
    void BuildWithWarnings(Pass& pass);
    void TakeFrame(Pass& pass) const;
    void PlacePattern(CRuleSurf& surface) const;
    [[nodiscard]] bool NeedsFrame() const;
    [[nodiscard]] bool IsDrawnAgain(const Content& content) const;
    /// What a pass shows: a new build, the last one with its overlay laid anew, or the last one as it is.
    enum class Shown : std::uint8_t { Built, LaidAnew, AsItIs };
    void Show(Pass pass, Shown what);
    static void DrawSurfaces(const Drawing& drawing, const Content& content);
    void DrawBelow(const Drawing& drawing, const Content& content) const;
    void DrawAbove(const Drawing& drawing, const Content& content) const;
    void DrawWhole(DrawingRecord& record, bool onPaper, const ScaleFor& scaleFor) const;
    void DisplayAnnotations(const Drawing& drawing, const Content& content) const;
    void DrawLabel(const Drawing& drawing) const;
    void Keep(Pass pass);
    void ZoomToCorners(const C3DPoint& a, const C3DPoint& b, double room);
    [[nodiscard]] WorldWindow FitScaleWindow(const CViewPoint& view, double worldExtents,
                                             PixelSize outerSize) const;
    [[nodiscard]] const FittingHandle& Fitting() const;
    [[nodiscard]] Drawing NewDrawing(DrawingDevice* device, const WorldWindow& window) const;

    CRuleSurfs screenSurfaces_;
    SurfaceBoxes boxes_;
    C3DPoints extentFrame_;      ///< of the latest pass that needed it
    WorldWindow displayWindow_;  ///< of DisplayDevice
};

}  // namespace korvet
