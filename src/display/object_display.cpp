#include "display/object_display.h"

#include <algorithm>
#include <cmath>

#include "core/checked.h"
#include "display/annotations.h"
#include "display/coordinate_table.h"
#include "display/drawing_record.h"
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

double RatioOf(const WorldWindow& window) {
    return std::fabs(Quotient(window.ScaleWidth, window.ScaleHeight));
}

/// `view` turned to an area with `room` about it, in a window of the given width to height.
CViewPoint ViewOf(const Bounds& area, double room, CViewPoint view, double worldExtents, double windowRatio) {
    const double dx = area.maxX - area.minX;
    const double dy = area.maxY - area.minY;
    view.PanX = dx / 2 + area.minX;
    view.PanY = dy / 2 + area.minY;
    view.ZoomFactor = FittingZoom(worldExtents, windowRatio, dx + 2 * room, dy + 2 * room);
    return view;
}

bool NamesFrame(const CDimension& dimension) {
    return dimension.ListNo1 == ExtentFrameList || dimension.ListNo2 == ExtentFrameList;
}

}  // namespace

void CObjectDisplay::DisplayObject() {
    Warnings.clear();
    Pass pass = NewPass();
    BuildWithWarnings(pass);
    Show(std::move(pass), Shown::Built);
}

void CObjectDisplay::ShowAgain() {
    Pass pass = KeptPass();
    TakeFrame(pass);
    Show(std::move(pass), Shown::LaidAnew);
}

void CObjectDisplay::ShowUnder(const CViewPoint& view) {
    Pass pass = KeptPass();
    pass.view = view;
    Show(std::move(pass), Shown::AsItIs);
}

void CObjectDisplay::Show(Pass pass, Shown what) {
    std::optional<DrawingRecord> picture;
    if (DisplayDevice != nullptr) {
        picture.emplace(*DisplayDevice);
    }
    DrawingRecord* const device = picture ? &*picture : nullptr;
    if (device != nullptr && NewDrawing(device, {}).CanDraw()) {
        pass.window = FitScaleWindow(pass.view, pass.worldExtents, DisplayDevice->OuterSize());
    }
    if (Overlay && pass.view.Patternview && what != Shown::AsItIs) {
        Overlay->lay(pass.extentFrame);
    }
    const Drawing drawing = NewDrawing(device, pass.window);
    const Content content = ContentOf(pass);
    DrawBelow(drawing, content);
    if (IsDrawnAgain(content) && what == Shown::Built) {
        Build(pass);
    }
    DrawAbove(drawing, content);
    Keep(std::move(pass));
    if (picture) {
        DisplayDevice->Cls(Colors.DisplayBackColor);
        picture->PlayOn(*DisplayDevice);
    }
}

CObjectDisplay::Pass CObjectDisplay::NewPass() const {
    Pass pass;
    pass.view = ViewList->Last();
    pass.worldExtents = ViewList->Count() == 1 ? std::max(FirstWidth, FirstHeight) : WorldExtents;
    pass.window = displayWindow_;
    pass.extentFrame = extentFrame_;
    return pass;
}

/// What the last pass showed.
CObjectDisplay::Pass CObjectDisplay::KeptPass() const {
    return {ViewPoint, WorldExtents, displayWindow_, Surfaces, screenSurfaces_, boxes_, extentFrame_};
}

/// Makes the surfaces of a pass and, where its annotations are drawn from it, the frame about them.
void CObjectDisplay::Build(Pass& pass) const {
    const bool pattern = pass.view.Patternview;
    pass.surfaces = MakeSurfaces(Fitting(), pattern ? FittingShape::Pattern : FittingShape::Model, Multiple);
    pass.screenSurfaces = {};
    pass.boxes.clear();
    for (CRuleSurf& surface : pass.surfaces) {
        if (pattern) {
            PlacePattern(surface);
        }
        const CRuleSurf& shown =
            pass.screenSurfaces.Add(pattern ? surface : ProjectSurface(surface, pass.view));
        pass.boxes.push_back(shown.RefPointDisplay ? std::nullopt : BoundsOf(shown));
    }
    TakeFrame(pass);
}

/// The frame about the pattern, where something is drawn from it.
void CObjectDisplay::TakeFrame(Pass& pass) const {
    if (pass.view.Patternview && NeedsFrame()) {
        pass.extentFrame = BuildExtentFrame(pass.surfaces, pass.screenSurfaces);
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
    return CoordGridRequested || FrameRequested || Overlay ||
           std::any_of(DimensionList->begin(), DimensionList->end(), NamesFrame);
}

bool CObjectDisplay::IsDrawnAgain(const Content& content) const {
    return content.pattern && (FrameRequested || CoordGridRequested);
}

/// A sheet of paper passes over what lies on other sheets: there may be thousands of both.
void CObjectDisplay::DrawSurfaces(const Drawing& drawing, const Content& content) {
    for (std::size_t i = 1; i <= content.screenSurfaces.Count(); ++i) {
        const std::optional<Bounds>& box = content.boxes.at(i - 1);
        if (!box || !drawing.IsElsewhere(*box)) {
            drawing.DrawSurface(content.screenSurfaces.Item(i));
        }
    }
}

/// Surfaces and annotations: what lies below the lines of a pattern that is drawn again.
void CObjectDisplay::DrawBelow(const Drawing& drawing, const Content& content) const {
    DrawSurfaces(drawing, content);
    if (content.pattern) {
        DisplayAnnotations(drawing, content);
    }
}

void CObjectDisplay::DrawAbove(const Drawing& drawing, const Content& content) const {
    if (IsDrawnAgain(content)) {
        DrawSurfaces(drawing, content);
    }
    if (Overlay && content.pattern) {
        Overlay->draw(drawing);
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
    boxes_ = std::move(pass.boxes);
    extentFrame_ = std::move(pass.extentFrame);
    displayWindow_ = pass.window;
}

C3DPoints CObjectDisplay::ShownExtents() const {
    return BuildExtentFrame(Surfaces, screenSurfaces_);
}

WorldWindow CObjectDisplay::FitScaleWindow(const CViewPoint& view, double worldExtents,
                                           PixelSize outerSize) const {
    return FittedWindow({worldExtents, view.ZoomFactor, view.PanX, view.PanY, TextSize}, outerSize);
}

Drawing CObjectDisplay::NewDrawing(DrawingDevice* device, const WorldWindow& window) const {
    Drawing drawing;
    drawing.Device = device;
    drawing.Window = window;
    drawing.Colors = Colors;
    drawing.TextSize = TextSize;
    drawing.Decimals = Decimals;
    drawing.DecimalMark = DecimalMark;
    drawing.CrossArm = window.ScaleHeight / 100;
    return drawing;
}

void CObjectDisplay::DisplayAnnotations(const Drawing& drawing, const Content& content) const {
    const AnnotatedPattern pattern = {content.screenSurfaces, content.extentFrame};
    if (CoordGridRequested) {
        DisplayDimensionGrid(drawing, pattern);
    }
    DisplayDimensions(drawing, pattern, *DimensionList);
    if (TrueLengthsRequested) {
        DisplayTrueLengths(drawing, content.screenSurfaces);
    }
    if (DiagonalsRequested) {
        DisplayDiagonals(drawing, content.screenSurfaces);
    }
    if (CoordTableRequested) {
        DisplayCoordinates(drawing, content.screenSurfaces, Multiple);
    }
    if (FrameRequested) {
        DrawExtentFrame(drawing, content.extentFrame, true);
    }
}

void CObjectDisplay::DrawPicture(DrawingDevice& picture) const {
    DrawingRecord record(picture);
    DrawWhole(record, false, WindowAbout);
    picture.Cls(Colors.DisplayBackColor);
    record.PlayOn(picture);
}

/// Leaves in the record all that the last pass showed.
void CObjectDisplay::DrawWhole(DrawingRecord& record, bool onPaper, const ScaleFor& scaleFor) const {
    const auto draw = [&](DrawingRecord& device, const WorldWindow& window) {
        Drawing drawing = NewDrawing(&device, window);
        drawing.PrintRequested = onPaper;
        DrawBelow(drawing, KeptContent());
        DrawAbove(drawing, KeptContent());
    };
    std::optional<Bounds> points = BoundsOfAll(screenSurfaces_);
    if (LabelPoint) {
        TakeIn(points, LabelPoint->x, LabelPoint->y);
    }
    DrawFitted(record, points, draw, scaleFor);
}

void CObjectDisplay::DrawPage(DrawingDevice& sheet, const WorldWindow& window, const Bounds& page) const {
    DrawingRecord record(sheet);
    Drawing drawing = NewDrawing(&record, window);
    drawing.PrintRequested = true;
    drawing.PrinterPage = page;
    DrawBelow(drawing, KeptContent());
    DrawAbove(drawing, KeptContent());
    record.PlayOn(sheet);
}

void CObjectDisplay::DrawToFit(DrawingDevice& sheet) const {
    const auto zoomed = [this](const Bounds& content, PixelSize size) {
        const double ratio = RatioOf(FitScaleWindow(ViewPoint, WorldExtents, size));
        const CViewPoint view = ViewOf(content, std::fabs(TextSize), ViewPoint, WorldExtents, ratio);
        return FitScaleWindow(view, WorldExtents, size);
    };
    DrawingRecord record(sheet);
    DrawWhole(record, true, zoomed);
    record.PlayOn(sheet);
}

void CObjectDisplay::AddLabel() const {
    if (LabelPoint) {
        DrawLabel(NewDrawing(DisplayDevice, displayWindow_));
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
    extentFrame_ = ShownExtents();
    files.Write(path, CoordinateTable({screenSurfaces_, extentFrame_}, Decimals), Flush::No);
}

CViewPoint CObjectDisplay::ZoomedAbout(const WorldPoint& point, double factor) const {
    const double across = Quotient(point.x - displayWindow_.ScaleLeft, displayWindow_.ScaleWidth);
    const double down = Quotient(point.y - displayWindow_.ScaleTop, displayWindow_.ScaleHeight);
    // The window may have been resized since: the place is the same pixel of the picture to come.
    const PixelSize shown = DisplayDevice->ScaleSize();
    const PixelSize next = DisplayDevice->NextSize();
    CViewPoint view = ViewPoint;
    view.ZoomFactor *= factor;
    const WorldWindow zoomed = FitScaleWindow(view, WorldExtents, DisplayDevice->OuterSize());
    const double left = point.x - across * Quotient(shown.width, next.width) * zoomed.ScaleWidth;
    const double top = point.y - down * Quotient(shown.height, next.height) * zoomed.ScaleHeight;
    view.PanX = Finite(view.PanX + left - zoomed.ScaleLeft, "the view");
    view.PanY = Finite(view.PanY + top - zoomed.ScaleTop, "the view");
    return view;
}

bool CObjectDisplay::ShowsAll() const {
    const std::optional<Bounds> drawn = BoundsOfAll(screenSurfaces_);
    const WorldWindow& picture = displayWindow_;
    return !drawn || picture.ScaleWidth == 0 ||
           (drawn->minX >= picture.ScaleLeft && drawn->maxX <= picture.ScaleLeft + picture.ScaleWidth &&
            drawn->maxY <= picture.ScaleTop && drawn->minY >= picture.ScaleTop + picture.ScaleHeight);
}

void CObjectDisplay::ZoomExtents() {
    extentFrame_ = ShownExtents();
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
    const Bounds area = {a.x, a.y, b.x, b.y};
    if (area.maxX == area.minX || area.maxY == area.minY || !NewDrawing(DisplayDevice, {}).CanDraw()) {
        return;
    }
    const CViewPoint view = CurrentOrDefaultView(*ViewList);
    const double ratio = RatioOf(FitScaleWindow(view, WorldExtents, DisplayDevice->OuterSize()));
    ViewList->Add(ViewOf(area, room, view, WorldExtents, ratio));
}

}  // namespace korvet
