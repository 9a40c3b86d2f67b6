#include "display/object_display.h"

#include <algorithm>
#include <cmath>

#include "core/checked.h"
#include "display/annotations.h"
#include "display/coordinate_table.h"
#include "display/extent_frame.h"
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

bool NamesFrame(const CDimension& dimension) {
    return dimension.ListNo1 == ExtentFrameList || dimension.ListNo2 == ExtentFrameList;
}

}  // namespace

void CObjectDisplay::DisplayObject() {
    Warnings.clear();
    if (DisplayDevice != nullptr) {
        DisplayDevice->Cls(Colors.DisplayBackColor);
    }
    SelectDevice();
    if (ViewList->Last().Patternview) {
        DisplayPattern();
        DisplayAnnotations();
    } else {
        DisplayModel();
    }
    if (LabelPoint) {
        AddLabel();
    }
}

void CObjectDisplay::SelectDevice() const {
    if (PrintRequested && PrintDevice != nullptr) {
        PrintDevice->StartPage();
    }
}

void CObjectDisplay::PreparePattern() {
    RunFitting(&FittingHandle::DevelopModel);
    if (Multiple) {
        Surfaces = Fitting().Results().PatternSurfaceList;
        for (CRuleSurf& surface : Surfaces) {
            PlacePattern(surface);
        }
    } else {
        Surface = Fitting().Results().PatternSurface;
        PlacePattern(Surface);
        KeepSingleSurface();
    }
}

void CObjectDisplay::PrepareModel() {
    RunFitting(&FittingHandle::ConstructModel);
    if (Multiple) {
        Surfaces = Fitting().Results().ModelSurfaceList;
    } else {
        Surface = Fitting().Results().ModelSurface;
        KeepSingleSurface();
    }
}

const FittingHandle& CObjectDisplay::Fitting() const {
    if (!NewObject) {
        throw ListError("the display has no fitting");
    }
    return *NewObject;
}

void CObjectDisplay::RunFitting(void (FittingHandle::*operation)() const) {
    const FittingHandle& fitting = Fitting();
    const auto keepWarnings = [&] {
        const std::vector<FittingWarning>& added = fitting.Results().warnings;
        Warnings.insert(Warnings.end(), added.begin(), added.end());
    };
    try {
        (fitting.*operation)();
    } catch (...) {
        keepWarnings();
        throw;
    }
    keepWarnings();
}

void CObjectDisplay::PlacePattern(CRuleSurf& surface) const {
    surface.Rotate(Axis::Z, RotationPoint, RotationAngle);
    surface.Move(MovePoint1, MovePoint2);
}

void CObjectDisplay::KeepSingleSurface() {
    Surfaces = {};
    if (PointsOf(Surface.List1).Count() > 0) {
        Surfaces.Add(Surface);
    }
}

void CObjectDisplay::DisplayPattern() {
    PreparePattern();
    PrepareView();
    const Drawing drawing = NewDrawing();
    for (const CRuleSurf& surface : Surfaces) {
        drawing.DrawSurface(surface);
        screenSurfaces_.Add(surface);
    }
}

void CObjectDisplay::DisplayModel() {
    PrepareModel();
    PrepareView();
    const Drawing drawing = NewDrawing();
    for (const CRuleSurf& surface : Surfaces) {
        const CRuleSurf work = ProjectSurface(surface, ViewPoint);
        drawing.DrawSurface(work);
        screenSurfaces_.Add(work);
    }
}

void CObjectDisplay::PrepareView() {
    ViewPoint = ViewList->Last();
    if (ViewList->Count() == 1) {
        WorldExtents = std::max(FirstWidth, FirstHeight);
    }
    ApplyFitScale();
    screenSurfaces_ = {};
}

WorldWindow& CObjectDisplay::DeviceWindow() {
    return Device() == DisplayDevice ? displayWindow_ : printWindow_;
}

void CObjectDisplay::ApplyFitScale() {
    if (NewDrawing().CanDraw()) {
        DeviceWindow() =
            FittedWindow({WorldExtents, ViewPoint.ZoomFactor, ViewPoint.PanX, ViewPoint.PanY, TextSize},
                         Device()->OuterSize());
    }
}

Drawing CObjectDisplay::NewDrawing() const {
    const WorldWindow& window = Device() == DisplayDevice ? displayWindow_ : printWindow_;
    return {Device(), window,   Colors,      PrintRequested,
            TextSize, Decimals, DecimalMark, displayWindow_.ScaleHeight / 100};
}

void CObjectDisplay::DisplayAnnotations() {
    const Drawing drawing = NewDrawing();
    const AnnotatedPattern pattern = {screenSurfaces_, extentFrame_};
    if (CoordGridRequested) {
        BuildExtentFrame();
        DisplayDimensionGrid(drawing, pattern);
    }
    if (std::any_of(DimensionList->begin(), DimensionList->end(), NamesFrame)) {
        BuildExtentFrame();
    }
    DisplayDimensions(drawing, pattern, *DimensionList);
    if (TrueLengthsRequested) {
        DisplayTrueLengths(drawing, screenSurfaces_);
    }
    if (DiagonalsRequested) {
        DisplayDiagonals(drawing, screenSurfaces_);
    }
    if (CoordTableRequested) {
        DisplayCoordinates(drawing, screenSurfaces_, Multiple);
    }
    if (FrameRequested) {
        BuildExtentFrame();
        DrawExtentFrame(drawing, extentFrame_, true);
    }
    if (FrameRequested || CoordGridRequested) {
        DisplayPattern();
    }
}

void CObjectDisplay::AddLabel() const {
    const Drawing drawing = NewDrawing();
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
        ZoomToCorners(extentFrame_.Item(1), extentFrame_.Item(3));
    }
}

void CObjectDisplay::ZoomWindow(double x1, double y1, double x2, double y2) {
    ZoomToCorners({std::min(x1, x2), std::min(y1, y2), 0, PlainStation},
                  {std::max(x1, x2), std::max(y1, y2), 0, PlainStation});
}

void CObjectDisplay::ZoomToCorners(const C3DPoint& a, const C3DPoint& b) {
    CViewPoint view = CurrentOrDefaultView(*ViewList);
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    view.PanX = dx / 2 + a.x;
    view.PanY = dy / 2 + a.y;
    const WorldWindow& window = DeviceWindow();
    if (dx == 0 || dy == 0 || window.ScaleHeight == 0) {
        return;
    }
    const double windowRatio = std::fabs(Quotient(window.ScaleWidth, window.ScaleHeight));
    view.ZoomFactor = FittingZoom(WorldExtents, windowRatio, dx, dy);
    ViewList->Add(view);
}

}  // namespace korvet
