#include "desktop/dialogs/branch_sketches.h"

#include <QPainter>
#include <QWidget>
#include <cmath>

#include "desktop/bindings.h"
#include "desktop/dialogs/sketches.h"

namespace korvet::desktop {
namespace {

// Lengths of the section in heights of a line of text.
constexpr double Wall = 2.2;           ///< both walls, thicker than they are so that their middle shows
constexpr double OutsideRadius = 5.2;  ///< of the branch
constexpr double BranchHeight = 6.4;   ///< above the trunk
constexpr double BelowTrunk = 3.4;     ///< with the diameter of the hole
constexpr double Margin = 0.5;

/// What one join does, as places on the section.
struct Joint {
    double hole;               ///< from the branch's axis to the edge of the hole
    double foot;               ///< below the outside of the trunk
    const char* holeDiameter;  ///< of the branch
    const char* trunkSurface;  ///< that the branch is shaped to
};

Joint JointOf(BranchJoin join) {
    switch (join) {
        case SetInJoin:
            return {OutsideRadius, Wall / 2, "OUTSIDE", "MEAN"};
        case SetOnJoin:
            return {OutsideRadius - Wall, 0, "INSIDE", "OUTSIDE"};
        default:
            return {OutsideRadius - Wall / 2, Wall / 2, "MEAN", "MEAN"};
    }
}

/// On either side of the branch the trunk shows, with a name beside it.
double SideWidth(const QFontMetrics& metrics) {
    return metrics.horizontalAdvance(QStringLiteral("OUTSIDE")) + 1.5 * metrics.height();
}

/// The section on its way to the painter: x from the branch's axis, y downward from the outside of the trunk.
class Section {
  public:
    Section(QPainter& painter, const QWidget& widget, const Joint& joint)
        : painter_(painter),
          joint_(joint),
          palette_(widget.palette()),
          unit_(widget.fontMetrics().height()),
          side_(SideWidth(widget.fontMetrics())) {
        const QSize needed = BranchSectionSize(widget.fontMetrics());
        painter_.translate(widget.width() / 2.0,
                           (widget.height() - needed.height()) / 2.0 + (Margin + BranchHeight) * unit_);
    }

    void PaintTrunk() {
        const double end = OutsideRadius * unit_ + side_;
        for (const double sign : {-1.0, 1.0}) {
            const double edge = sign * joint_.hole * unit_;
            FillWall(QRectF(QPointF(edge, 0), QPointF(sign * end, Wall * unit_)).normalized(), Metal(0.38),
                     Qt::BDiagPattern);
        }
    }

    void PaintBranch() {
        for (const double sign : {-1.0, 1.0}) {
            FillWall(QRectF(QPointF(sign * (OutsideRadius - Wall) * unit_, -BranchHeight * unit_),
                            QPointF(sign * OutsideRadius * unit_, joint_.foot * unit_))
                         .normalized(),
                     Metal(0.12), Qt::FDiagPattern);
        }
    }

    void PaintAxis() {
        painter_.setPen(DashDotted(palette_.color(QPalette::WindowText), 0.9));
        painter_.drawLine(QPointF(0, (1.6 - BranchHeight) * unit_), QPointF(0, (Wall + 0.8) * unit_));
    }

    /// The line of the trunk's wall on which the foot of the branch stands, right through the section.
    void PaintFootLine() {
        painter_.setPen(DashDotted(Mark(), 1.8));
        const double end = OutsideRadius * unit_ + side_;
        painter_.drawLine(QPointF(-end, joint_.foot * unit_), QPointF(end, joint_.foot * unit_));
        painter_.setPen(Mark());
        const QRectF place(OutsideRadius * unit_, -1.3 * unit_, side_, 1.1 * unit_);
        painter_.drawText(place, Qt::AlignCenter, QString::fromLatin1(joint_.trunkSurface));
    }

    /// The diameter of the branch that the hole is cut to, up along its wall and below the trunk.
    void PaintHole() {
        const double x = joint_.hole * unit_;
        const double y = (Wall + 1.5) * unit_;
        painter_.setPen(QPen(Mark(), 1.1));
        for (const double sign : {-1.0, 1.0}) {
            painter_.drawLine(QPointF(sign * x, -BranchHeight * unit_ * 0.55),
                              QPointF(sign * x, y + 0.4 * unit_));
        }
        painter_.setPen(QPen(Mark(), 1.4));
        PaintDimensionLine(painter_, {-x, y}, {x, y});
        const QRectF place(-OutsideRadius * unit_ - side_, y + 0.4 * unit_,
                           2 * (OutsideRadius * unit_ + side_), 1.2 * unit_);
        painter_.drawText(place, Qt::AlignCenter,
                          QStringLiteral("Hole: \u2300 %1").arg(QString::fromLatin1(joint_.holeDiameter)));
    }

    void PaintNames() {
        painter_.setPen(palette_.color(QPalette::WindowText));
        const double inside = (OutsideRadius - Wall) * unit_;
        painter_.drawText(QRectF(-inside, (0.2 - BranchHeight) * unit_, 2 * inside, 1.2 * unit_),
                          Qt::AlignCenter, QStringLiteral("Branch"));
        painter_.drawText(QRectF(-OutsideRadius * unit_ - side_, -1.3 * unit_, side_, 1.1 * unit_),
                          Qt::AlignCenter, QStringLiteral("Trunk"));
    }

  private:
    void FillWall(const QRectF& wall, const QColor& metal, Qt::BrushStyle hatch) {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(metal);
        painter_.drawRect(wall);
        QColor lines = palette_.color(QPalette::WindowText);
        lines.setAlpha(70);
        painter_.setBrush(QBrush(lines, hatch));
        painter_.setPen(QPen(palette_.color(QPalette::WindowText), 1.3));
        painter_.drawRect(wall);
    }

    /// A shade between the ground and the text.
    [[nodiscard]] QColor Metal(double share) const {
        return Mixed(palette_.color(QPalette::Base), palette_.color(QPalette::WindowText), share);
    }

    /// Lines and names of what meets, apart from the metal.
    [[nodiscard]] QColor Mark() const {
        return palette_.color(QPalette::Window).lightness() < 128 ? QColor(0xff, 0xa0, 0x6a)
                                                                  : QColor(0xb8, 0x3a, 0x08);
    }

    static QPen DashDotted(const QColor& color, double width) {
        QPen pen(color, width, Qt::CustomDashLine, Qt::FlatCap);
        pen.setDashPattern({8 / width, 3 / width, 2 / width, 3 / width});
        return pen;
    }

    QPainter& painter_;
    const Joint& joint_;
    QPalette palette_;
    double unit_;
    double side_;
};

}  // namespace

QSize BranchSectionSize(const QFontMetrics& metrics) {
    const double unit = metrics.height();
    return {static_cast<int>(std::ceil(2 * (OutsideRadius * unit + SideWidth(metrics)) + 4)),
            static_cast<int>(std::ceil((2 * Margin + BranchHeight + Wall + BelowTrunk) * unit))};
}

void PaintBranchSection(QPainter& painter, const QWidget& widget, BranchJoin join) {
    const Joint joint = JointOf(join);
    painter.save();
    Section section(painter, widget, joint);
    section.PaintTrunk();
    section.PaintBranch();
    section.PaintAxis();
    section.PaintFootLine();
    section.PaintHole();
    section.PaintNames();
    painter.restore();
}

}  // namespace korvet::desktop
