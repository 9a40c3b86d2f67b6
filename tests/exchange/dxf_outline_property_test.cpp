// Curved outlines as fittings make them, exported and measured against their own stations.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include "exchange/dxf.h"
#include "tests/exchange/dxf_reading.h"

namespace korvet {
namespace {

using dxf_reading::Between;
using dxf_reading::Course;

constexpr double Tolerance = 0.001;

/// An edge of a development, and what it may be troubled with.
class OutlineMaker {
  public:
    explicit OutlineMaker(unsigned seed) : random_(seed) {}

    PointList Make() {
        C3DPoints curve = Chance(0.5) ? Cone() : Cylinder();
        if (Chance(0.3)) {
            AppendStraightRun(curve);
        }
        if (Chance(0.4)) {
            AppendMirrored(curve);
        }
        auto list = std::make_shared<C3DPoints>();
        for (const C3DPoint& point : curve) {
            const int copies = Chance(0.06) ? 2 + Chance(0.2) : 1;
            for (int copy = 0; copy < copies; ++copy) {
                list->Add(point);
            }
        }
        if (Chance(0.3)) {
            AddLap(*list);
        }
        return Placed(*list);
    }

  private:
    double From(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    bool Chance(double part) { return From(0, 1) < part; }
    int Whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

    static void AddStation(C3DPoints& list, double x, double y) {
        const bool odd = list.Count() % 2 == 0;
        list.Add({x, y, 0, odd ? RuleStation : PlainStation});
    }

    /// A right cone of half angle s, cut by a plane: the slant length at the plan angle t is
    /// l / (1 + k cos(t - t0)), and the development turns by sin(s) t. With k = 0 it is an arc.
    C3DPoints Cone() {
        C3DPoints list;
        const int segments = Whole(3, 120);
        const double sine = std::sin(From(0.05, 1.4));
        const double slant = From(5, 3000);
        const double tilt = Chance(0.3) ? 0 : From(0, 0.45);
        const double start = From(0, 2 * std::numbers::pi);
        for (int i = 0; i <= segments; ++i) {
            const double t = 2 * std::numbers::pi * i / segments;
            const double length = slant / (1 + tilt * std::cos(t - start));
            AddStation(list, length * std::cos(sine * t), length * std::sin(sine * t));
        }
        return list;
    }

    /// A pipe of radius r cut under an angle: y = r tan(b) cos(t) over x = r t.
    C3DPoints Cylinder() {
        C3DPoints list;
        const int segments = Whole(3, 120);
        const double radius = From(5, 1500);
        const double rise = radius * std::tan(From(0, 0.9));
        const double start = From(0, 2 * std::numbers::pi);
        for (int i = 0; i <= segments; ++i) {
            const double t = 2 * std::numbers::pi * i / segments;
            AddStation(list, radius * t, rise * std::cos(t - start));
        }
        return list;
    }

    void AppendStraightRun(C3DPoints& list) {
        const C3DPoint last = list.Last();
        const double angle = From(0, 2 * std::numbers::pi);
        const double step = From(0.5, 50);
        list.Item(list.Count()).Flag = Chance(0.5) ? CornerStation : CornerRuleStation;
        const int count = Whole(1, 5);
        for (int i = 1; i <= count; ++i) {
            AddStation(list, last.x + i * step * std::cos(angle), last.y + i * step * std::sin(angle));
        }
    }

    /// The curve once more, backwards and moved, behind a corner.
    void AppendMirrored(C3DPoints& list) {
        const C3DPoints first = list;
        const C3DPoint last = first.Last();
        list.Item(list.Count()).Flag = CornerRuleStation;
        for (std::size_t i = first.Count() - 1; i >= 1; --i) {
            const C3DPoint& p = first.Item(i);
            list.Add({2 * last.x - p.x, p.y, 0, p.Flag});
        }
    }

    void AddLap(C3DPoints& list) {
        C3DPoint lap = list.Last();
        list.Item(list.Count()).Flag = static_cast<std::int16_t>(lap.Flag + CornerStation);
        lap.x += From(1, 30);
        lap.y += From(1, 30);
        lap.Flag = LapClosure;
        list.Add(lap);
    }

    /// The outline turned and moved, and every other time run backwards.
    PointList Placed(const C3DPoints& list) {
        const double angle = From(0, 2 * std::numbers::pi);
        const double dx = From(-5000, 5000);
        const double dy = From(-5000, 5000);
        auto placed = std::make_shared<C3DPoints>();
        for (const C3DPoint& p : list.Last().Flag != LapClosure && Chance(0.5) ? ReversePoints(list) : list) {
            placed->Add({p.x * std::cos(angle) - p.y * std::sin(angle) + dx,
                         p.x * std::sin(angle) + p.y * std::cos(angle) + dy, 0, p.Flag});
        }
        return placed;
    }

    std::mt19937 random_;
};

/// The outline alone, as entities.
std::vector<Course> Exported(const PointList& edge) {
    auto point = std::make_shared<C3DPoints>();
    for (std::size_t i = 1; i <= edge->Count(); ++i) {
        point->Add(edge->Item(1));
    }
    CRuleSurf surface;
    surface.List1 = edge;
    surface.List2 = point;  // an edge in one point has no entity of its own
    CDXF dxf;
    dxf.Pattern = true;
    dxf.CutLayer = "CUT";
    dxf.OutlinesRequested = true;
    dxf.SurfaceList.Add(surface);
    std::vector<Course> courses;
    for (const dxf_reading::Entity& entity : dxf_reading::ReadEntities(dxf.Text())) {
        courses.emplace_back(entity);
    }
    EXPECT_LE(courses.at(0).DistanceTo(edge->Item(1)), Tolerance);
    EXPECT_LE(courses.at(1).DistanceTo(edge->Last()), Tolerance);
    courses.erase(courses.begin(), courses.begin() + 2);  // the rulings
    return courses;
}

/// How far the length of an arc may be off at one end: its angles are written in steps of 1e-06 degrees.
double AngleSlip(const Course& course) {
    return course.Radius() * 0.5e-06 * std::numbers::pi / 180;
}

double ToOutline(const C3DPoints& edge, const C3DPoint& p) {
    double nearest = Between(edge.Item(1), p);
    for (std::size_t i = 2; i <= edge.Count(); ++i) {
        nearest = std::min(nearest, dxf_reading::ToSegment(p, edge.Item(i - 1), edge.Item(i)));
    }
    return nearest;
}

constexpr unsigned Outlines = 300;

/// Runs `test` on the stations and entities of many outlines.
template <typename Test>
void ForOutlines(Test test) {
    for (unsigned seed = 1; seed <= Outlines; ++seed) {
        SCOPED_TRACE("outline " + std::to_string(seed));
        const PointList edge = OutlineMaker(seed).Make();
        test(*edge, Exported(edge));
    }
}

TEST(DxfOutline, EveryStationLiesOnAnEntity) {
    ForOutlines([](const C3DPoints& edge, const std::vector<Course>& courses) {
        for (std::size_t i = 1; i <= edge.Count(); ++i) {
            const C3DPoint& station = edge.Item(i);
            // The first and the last point are ends of rulings, whatever the edge itself leaves there.
            double nearest = std::min(Between(edge.Item(1), station), Between(edge.Last(), station));
            for (const Course& course : courses) {
                nearest = std::min(nearest, course.DistanceTo(station));
            }
            EXPECT_LE(nearest, Tolerance) << "station " << i << " of " << edge.Count();
        }
    });
}

TEST(DxfOutline, EverySegmentIsCovered) {
    ForOutlines([](const C3DPoints& edge, const std::vector<Course>& courses) {
        for (std::size_t i = 1; i < edge.Count(); ++i) {
            const C3DPoint& a = edge.Item(i);
            const C3DPoint& b = edge.Item(i + 1);
            const C3DPoint middle{(a.x + b.x) / 2, (a.y + b.y) / 2, 0, 0};
            const bool covered = std::any_of(courses.begin(), courses.end(), [&](const Course& course) {
                return course.DistanceTo(middle) <= course.Sagitta() + Tolerance &&
                       course.Length() >= Between(a, b) - Tolerance - 2 * AngleSlip(course);
            });
            EXPECT_TRUE(covered) << "segment " << i << " of " << edge.Count();
        }
    });
}

TEST(DxfOutline, NoEntityLeavesTheOutlineByMoreThanItsSagitta) {
    ForOutlines([](const C3DPoints& edge, const std::vector<Course>& courses) {
        double longest = 0;
        for (std::size_t i = 2; i <= edge.Count(); ++i) {
            longest = std::max(longest, Between(edge.Item(i - 1), edge.Item(i)));
        }
        for (const Course& course : courses) {
            for (const double t : {0.0, 0.13, 0.25, 0.37, 0.5, 0.66, 0.75, 0.91, 1.0}) {
                EXPECT_LE(ToOutline(edge, course.At(t)), course.Sagitta() + Tolerance);
            }
            // An arc over two segments is at most a half circle or so: no arc goes round the other way.
            EXPECT_LE(course.Length(), longest * std::numbers::pi + Tolerance);
        }
    });
}

TEST(DxfOutline, MostOfACurveIsArcs) {
    std::size_t stations = 0;
    std::size_t arcs = 0;
    ForOutlines([&](const C3DPoints& edge, const std::vector<Course>& courses) {
        stations += edge.Count();
        arcs += static_cast<std::size_t>(std::count_if(
            courses.begin(), courses.end(), [](const Course& course) { return course.Radius() > 0; }));
    });
    EXPECT_GT(arcs, stations * 2 / 5);
}

}  // namespace
}  // namespace korvet
