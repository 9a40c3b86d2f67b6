#include "display/object_display.h"

#include <algorithm>
#include <cmath>

#include "core/checked.h"
#include "display/annotations.h"
#include "display/coordinate_table.h"
#include "display/drawing_record.h"
#include "display/extent_frame.h"
#include "display/fitted_picture.h"
#include "display/projection.h"

namespace korvet {
namespace {

/// The view of the first display is this size, whatever the fitting's is.
constexpr double FirstWidth = 200;
constexpr double FirstHeight = 150;

/// Leaves a margin about an area that is zoomed to.
constexpr double ZoomMargin = 0.99;

/// The zoom that fits an area of dx by dy into a window of the given width to height.
double FittingZoom(double worldExtents, double windowRatio, double dx, double dy) {
    const double areaRatio = std::fabs(Quotient(dx, dy));
    if (windowRatio > areaRatio) {
        return Quotient(worldExtents, dy) * ZoomMargin;
    }
    if (windowRatio < areaRatio) {
        return Quotient(worldExtents, dx) * ZoomMargin;
    }
    return Quotient(worldExtents, dy * windowRatio) * ZoomMargin;
}

void DrawSurfaces(const Drawing& drawing, const CRuleSurfs& surfaces) {
    for (const CRuleSurf& surface : surfaces) {
        drawing.DrawSurface(surface);
    }
}

bool NamesFrame(const CDimension& dimension) {
    return dimension.ListNo1 == ExtentFrameList || dimension.ListNo2 == ExtentFrameList;
}

}  // namespace

void CObjectDisplay::DisplayObject() {
    Warnings.clear();
    Pass pass = NewPass();
    BuildWithWarnings(pass);
    std::optional<DrawingRecord> picture;
    if (Device() != nullptr) {
        picture.emplace(*Device());
    }
    DrawingRecord* const device = picture ? &*picture : nullptr;
    if (NewDrawing(device, {}).CanDraw()) {
        pass.window = FitScaleWindow(pass.view, pass.worldExtents);
    }
    const Drawing drawing = NewDrawing(device, pass.window);
    DrawBelow(drawing, pass);
    if (IsDrawnAgain(pass)) {
        Build(pass);
    }
    DrawAbove(drawing, pass);
    Keep(std::move(pass));
    if (DisplayDevice != nullptr) {
        DisplayDevice->Cls(Colors.DisplayBackColor);
    }
    if (PrintRequested && PrintDevice != nullptr) {
        PrintDevice->StartPage();
    }
    if (picture) {
        picture->PlayOn(*Device());
    }
}

CObjectDisplay::Pass CObjectDisplay::NewPass() const {
    Pass pass;
    pass.view = ViewList->Last();
    pass.worldExtents = ViewList->Count() == 1 ? std::max(FirstWidth, FirstHeight) : WorldExtents;
    pass.window = DeviceWindow();
    pass.extentFrame = extentFrame_;
    return pass;
}

/// Makes the surfaces of a pass and, where its annotations are drawn from it, the frame about them.
void CObjectDisplay::Build(Pass& pass) const {
    const bool pattern = pass.view.Patternview;
    pass.surfaces = MakeSurfaces(Fitting(), pattern ? FittingShape::Pattern : FittingShape::Model, Multiple);
    pass.screenSurfaces = {};
    for (CRuleSurf& surface : pass.surfaces) {
        if (pattern) {
            PlacePattern(surface);
        }
        pass.screenSurfaces.Add(pattern ? surface : ProjectSurface(surface, pass.view));
    }
    if (pattern && NeedsFrame()) {
        pass.extentFrame = korvet::BuildExtentFrame(pass.surfaces, pass.screenSurfaces);
    }
}

/// The first build of a pass, whose warnings are told: a second one would only repeat them.
void CObjectDisplay::BuildWithWarnings(Pass& pass) {
    try {
        Build(pass);
    } catch (...) {
        Warnings = Fitting().Results().warnings;
        throw;
    }
    Warnings = Fitting().Results().warnings;
}

const FittingHandle& CObjectDisplay::Fitting() const {
    if (!NewObject) {
        throw ListError("the display has no fitting");
    }
    return *NewObject;
}

void CObjectDisplay::PlacePattern(CRuleSurf& surface) const {
    surface.Rotate(Axis::Z, RotationPoint, RotationAngle);
    surface.Move(MovePoint1, MovePoint2);
}

bool CObjectDisplay::NeedsFrame() const {
    return CoordGridRequested || FrameRequested ||
           std::any_of(DimensionList->begin(), DimensionList->end(), NamesFrame);
}

bool CObjectDisplay::IsDrawnAgain(const Pass& pass) const {
    return pass.view.Patternview && (FrameRequested || CoordGridRequested);
}

/// Surfaces and annotations: what lies below the lines of a pattern that is drawn again.
void CObjectDisplay::DrawBelow(const Drawing& drawing, const Pass& pass) const {
    DrawSurfaces(drawing, pass.screenSurfaces);
    if (pass.view.Patternview) {
        DisplayAnnotations(drawing, pass);
    }
}

void CObjectDisplay::DrawAbove(const Drawing& drawing, const Pass& pass) const {
    if (IsDrawnAgain(pass)) {
        DrawSurfaces(drawing, pass.screenSurfaces);
    }
    if (LabelPoint) {
        DrawLabel(drawing);
    }
}

void CObjectDisplay::Keep(Pass pass) {
    ViewPoint = pass.view;
    WorldExtents = pass.worldExtents;
    Surfaces = std::move(pass.surfaces);
    screenSurfaces_ = std::move(pass.screenSurfaces);
    extentFrame_ = std::move(pass.extentFrame);
    (Device() == DisplayDevice ? displayWindow_ : printWindow_) = pass.window;
}

const WorldWindow& CObjectDisplay::DeviceWindow() const {
    return Device() == DisplayDevice ? displayWindow_ : printWindow_;
}

WorldWindow CObjectDisplay::FitScaleWindow(const CViewPoint& view, double worldExtents) const {
    return FittedWindow({worldExtents, view.ZoomFactor, view.PanX, view.PanY, TextSize},
                        Device()->OuterSize());
}

Drawing CObjectDisplay::NewDrawing(DrawingDevice* device, const WorldWindow& window) const {
    // The cross of a reference point keeps on paper the arm that it has on the screen.
    const WorldWindow& crossWindow = Device() == DisplayDevice ? window : displayWindow_;
    return {device,   window,   Colors,      PrintRequested,
            TextSize, Decimals, DecimalMark, crossWindow.ScaleHeight / 100};
}

void CObjectDisplay::DisplayAnnotations(const Drawing& drawing, const Pass& pass) const {
    const AnnotatedPattern pattern = {pass.screenSurfaces, pass.extentFrame};
    if (CoordGridRequested) {
        DisplayDimensionGrid(drawing, pattern);
    }
    DisplayDimensions(drawing, pattern, *DimensionList);
    if (TrueLengthsRequested) {
        DisplayTrueLengths(drawing, pass.screenSurfaces);
    }
    if (DiagonalsRequested) {
        DisplayDiagonals(drawing, pass.screenSurfaces);
    }
    if (CoordTableRequested) {
        DisplayCoordinates(drawing, pass.screenSurfaces, Multiple);
    }
    if (FrameRequested) {
        DrawExtentFrame(drawing, pass.extentFrame, true);
    }
}

void CObjectDisplay::DrawPicture(DrawingDevice& picture) const {
    const Pass pass = {ViewPoint, WorldExtents, {}, Surfaces, screenSurfaces_, extentFrame_};
    const auto draw = [&](DrawingRecord& device, const WorldWindow& window) {
        Drawing drawing = NewDrawing(&device, window);
        drawing.CrossArm = window.ScaleHeight / 100;
        DrawBelow(drawing, pass);
        DrawAbove(drawing, pass);
    };
    std::optional<Bounds> points = BoundsOfAll(screenSurfaces_);
    if (LabelPoint) {
        TakeIn(points, LabelPoint->x, LabelPoint->y);
    }
    DrawingRecord record(picture);
    DrawFitted(record, points, draw);
    picture.Cls(Colors.DisplayBackColor);
    record.PlayOn(picture);
}

void CObjectDisplay::AddLabel() const {
    if (LabelPoint) {
        DrawLabel(NewDrawing(Device(), DeviceWindow()));
    }
}

void CObjectDisplay::DrawLabel(const Drawing& drawing) const {
    C3DPoint point = LabelPoint.value();
    for (const CLabel& label : *LabelList) {
        drawing.DrawHorizontalText(point, label.LabelString, Justification::MiddleCentre);
        point.y -= drawing.LineSpacing();
    }
}

bool CObjectDisplay::DimRemove(double x, double y) {
    const std::optional<std::size_t> nearest =
        NearestDimension({x, y, 0, PlainStation}, *DimensionList, Surfaces, extentFrame_);
    if (nearest) {
        DimensionList->Remove(*nearest);
    }
    return nearest.has_value();
}

std::optional<CNearestPoint> CObjectDisplay::FindClosestPoint(const C3DPoint& click) const {
    return korvet::FindClosestPoint(click, screenSurfaces_, Surfaces,
                                    FrameRequested ? extentFrame_ : C3DPoints{});
}

void CObjectDisplay::PrintCoordinateTable(FileStore& files, const std::string& path) {
    BuildExtentFrame();
    files.Write(path, CoordinateTable({screenSurfaces_, extentFrame_}, Decimals), Flush::No);
}

void CObjectDisplay::BuildExtentFrame() {
    extentFrame_ = korvet::BuildExtentFrame(Surfaces, screenSurfaces_);
}

void CObjectDisplay::ZoomExtents() {
    BuildExtentFrame();
    if (extentFrame_.Count() > 0) {
        ZoomToCorners(extentFrame_.Item(1), extentFrame_.Item(3), std::fabs(TextSize));
    }
}

void CObjectDisplay::ZoomWindow(double x1, double y1, double x2, double y2) {
    ZoomToCorners({std::min(x1, x2), std::min(y1, y2), 0, PlainStation},
                  {std::max(x1, x2), std::max(y1, y2), 0, PlainStation}, 0);
}

/// Fits the area with `room` about it.
void CObjectDisplay::ZoomToCorners(const C3DPoint& a, const C3DPoint& b, double room) {
    CViewPoint view = CurrentOrDefaultView(*ViewList);
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    if (dx == 0 || dy == 0 || !NewDrawing(Device(), {}).CanDraw()) {
        return;
    }
    const WorldWindow window = FitScaleWindow(view, WorldExtents);
    const double windowRatio = std::fabs(Quotient(window.ScaleWidth, window.ScaleHeight));
    view.PanX = dx / 2 + a.x;
    view.PanY = dy / 2 + a.y;
    view.ZoomFactor = FittingZoom(WorldExtents, windowRatio, dx + 2 * room, dy + 2 * room);
    ViewList->Add(view);
}

}  // namespace korvet
