#include "desktop/fitting/view_icons.h"

#include <QIconEngine>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>

#include "desktop/sketch/solid_painter.h"
#include "display/projection.h"
#include "window/views.h"

namespace korvet::desktop {
namespace {

constexpr double DisabledOpacity = 0.35;

/// The pictures lie in x and z before an eye that looks along y.
constexpr SketchView StraightOn = {0, 0};

PointList ListOf(std::initializer_list<C3DPoint> points) {
    auto list = std::make_shared<C3DPoints>();
    for (const C3DPoint& point : points) {
        list->Add(point);
    }
    return list;
}

CRuleSurf Strip(std::initializer_list<C3DPoint> list1, std::initializer_list<C3DPoint> list2) {
    CRuleSurf surface;
    surface.List1 = ListOf(list1);
    surface.List2 = ListOf(list2);
    return surface;
}

/// Longer in x than in y, so that its plan, its front and its sides differ in shape too. All sizes are even:
/// at scales of whole and half pixels its level and upright lines stay sharp.
CRuleSurfs ReferenceBlock() {
    constexpr double X = 10;
    constexpr double Y = 8;
    constexpr double Z = 8;
    constexpr double SlopeX = 6;  // where the slope begins, at the top
    constexpr double SlopeZ = 4;  // where it ends, at the +x side
    CRuleSurfs block;
    // Around the block: side, top, slope, the other side and bottom.
    block.Add(Strip({{0, 0, 0}, {0, 0, Z}, {SlopeX, 0, Z}, {X, 0, SlopeZ}, {X, 0, 0}, {0, 0, 0}},
                    {{0, Y, 0}, {0, Y, Z}, {SlopeX, Y, Z}, {X, Y, SlopeZ}, {X, Y, 0}, {0, Y, 0}}));
    // The front and the back, each in strips side by side.
    for (const double y : {0.0, Y}) {
        block.Add(Strip({{0, y, Z}, {SlopeX, y, Z}, {X, y, SlopeZ}}, {{0, y, 0}, {SlopeX, y, 0}, {X, y, 0}}));
    }
    return block;
}

/// How a model lies before the eye of a view. The drawing's own projection gives the picture; looked at a
/// quarter turn lower, the height of a point is its depth towards the eye above.
PointList BeforeTheEye(const C3DPoints& points, const CViewPoint& view) {
    CViewPoint lower = view;
    lower.FromXY -= QuarterTurn;
    const C3DPoints picture = ProjectList(points, view);
    const C3DPoints depths = ProjectList(points, lower);
    auto seen = std::make_shared<C3DPoints>();
    for (std::size_t i = 1; i <= points.Count(); ++i) {
        seen->Add({picture.Item(i).x, -depths.Item(i).y, picture.Item(i).y, points.Item(i).Flag});
    }
    return seen;
}

SolidPicture BlockFrom(const CViewPoint& view) {
    CRuleSurfs seen;
    for (const CRuleSurf& surface : ReferenceBlock()) {
        CRuleSurf turned;
        turned.List1 = BeforeTheEye(*surface.List1, view);
        turned.List2 = BeforeTheEye(*surface.List2, view);
        seen.Add(turned);
    }
    return DrawSolid(seen, StraightOn);
}

/// A sector ring as a cone unrolls to, with a few of its bend lines.
SolidPicture SectorPicture() {
    constexpr double Inner = 4;
    constexpr double Outer = 10;
    constexpr int Steps = 48;
    constexpr int BendEvery = 8;
    const double start = std::numbers::pi * 0.14;
    const double step = (std::numbers::pi - 2 * start) / Steps;
    CRuleSurf sector;
    sector.List1 = std::make_shared<C3DPoints>();
    sector.List2 = std::make_shared<C3DPoints>();
    std::vector<SolidEdge> bends;
    for (int i = 0; i <= Steps; ++i) {
        const double x = std::cos(start + i * step);
        const double z = std::sin(start + i * step);
        sector.List1->Add({x * Inner, 0, z * Inner});
        sector.List2->Add({x * Outer, 0, z * Outer});
        if (i % BendEvery == 0 && i > 0 && i < Steps) {
            bends.push_back({{{x * Inner, z * Inner}, {x * Outer, z * Outer}}, false});
        }
    }
    CRuleSurfs pattern;
    pattern.Add(sector);
    SolidPicture picture = DrawSolid(pattern, StraightOn);
    picture.edges.insert(picture.edges.begin(), bends.begin(), bends.end());
    return picture;
}

/// The extent of the block's largest picture, to which the scale of all of them is chosen.
constexpr double LargestExtent = 13.9;

/// Everything here is laid on whole pixels of the device: an icon is too small to hide a blurred line.
void PaintIcon(QPainter& painter, const SolidPicture& picture, const QRectF& square,
               const QPalette& palette) {
    const double ratio = painter.device()->devicePixelRatioF();
    const double side = std::min(square.width(), square.height()) * ratio;
    const double lineWidth = std::max(1.0, std::floor(side / 26));
    const SolidBounds& bounds = picture.bounds;
    const double extent = std::max({bounds.right - bounds.left, bounds.top - bounds.bottom, LargestExtent});
    const double scale = std::max(0.5, std::floor((side - lineWidth) / extent * 2) / 2);
    const QPointF corner = square.center() * ratio -
                           QPointF(bounds.right - bounds.left, bounds.top - bounds.bottom) * (scale / 2);
    const double halfLine = std::fmod(lineWidth, 2) / 2;
    const QPointF onPixel(std::round(corner.x() - halfLine) + halfLine,
                          std::round(corner.y() - halfLine) + halfLine);
    const QPointF origin = onPixel + QPointF(-bounds.left, bounds.top) * scale;
    PaintSolid(painter, picture, scale / ratio, origin / ratio, SolidColorsOf(palette), lineWidth / ratio);
}

QPixmap Blank(const QSize& size) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

class ViewIconEngine final : public QIconEngine {
  public:
    ViewIconEngine(SolidPicture picture, QPalette palette)
        : picture_(std::move(picture)), palette_(std::move(palette)) {}

    /// By way of a pixmap, so that it's faded as a whole: what one face hides must not shine through it.
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap picture = scaledPixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state, ratio);
        picture.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), picture);
    }

    /// The size is in pixels of the device.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override {
        QPixmap solid = Blank(size);
        if (solid.isNull()) {
            return solid;
        }
        QPainter painter(&solid);
        PaintIcon(painter, picture_, QRectF(QPointF(0, 0), size), palette_);
        painter.end();
        if (mode != QIcon::Disabled) {
            return solid;
        }
        QPixmap faded = Blank(size);
        QPainter fading(&faded);
        fading.setOpacity(DisabledOpacity);
        fading.drawPixmap(0, 0, solid);
        return faded;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new ViewIconEngine(picture_, palette_); }

  private:
    SolidPicture picture_;
    QPalette palette_;
};

}  // namespace

SolidPicture ViewPicture(int button) {
    CViewList views;
    AddPresetView(button, views);
    return button == PatternButton ? SectorPicture() : BlockFrom(views.Last());
}

QPixmap ViewPixmap(int button, int side, qreal devicePixelRatio, const QPalette& palette) {
    QPixmap pixmap = Blank((QSizeF(side, side) * devicePixelRatio).toSize());
    pixmap.setDevicePixelRatio(devicePixelRatio);
    if (!pixmap.isNull()) {
        QPainter painter(&pixmap);
        PaintIcon(painter, ViewPicture(button), QRectF(0, 0, side, side), palette);
    }
    return pixmap;
}

QIcon ViewIcon(int button, const QPalette& palette) {
    return QIcon(new ViewIconEngine(ViewPicture(button), palette));
}

}  // namespace korvet::desktop
