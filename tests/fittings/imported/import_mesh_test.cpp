// An imported mesh as a fitting: its surface, and its pattern against lengths in space.
#include "fittings/imported/import_mesh.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/math_module.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

CImportMesh MeshOf(const CRuleSurf& surface) {
    CImportMesh fitting;
    fitting.DXFMeshOK = true;
    fitting.DXFMesh = surface;
    return fitting;
}

CRuleSurf StripOf(std::size_t stations, C3DPoint (*first)(double), C3DPoint (*second)(double)) {
    CRuleSurf surface;
    surface.List1 = std::make_shared<C3DPoints>();
    surface.List2 = std::make_shared<C3DPoints>();
    for (std::size_t i = 0; i < stations; ++i) {
        const double t = static_cast<double>(i) / static_cast<double>(stations - 1);
        surface.List1->Add(first(t));
        surface.List2->Add(second(t));
    }
    return surface;
}

double Between(const PointList& a, std::size_t i, const PointList& b, std::size_t j) {
    return Distance3D(a->Item(i), b->Item(j));
}

/// Half a leaning cone: its fields between rulings through the apex are flat.
CRuleSurf LeaningCone(std::size_t stations) {
    return StripOf(
        stations,
        [](double t) {
            return C3DPoint{60 + 40 * std::cos(std::numbers::pi * t), 40 * std::sin(std::numbers::pi * t),
                            120, CornerRuleStation};
        },
        [](double t) {
            return C3DPoint{100 * std::cos(std::numbers::pi * t), 100 * std::sin(std::numbers::pi * t), 0,
                            CornerRuleStation};
        });
}

/// A hood of which no field is flat.
CRuleSurf TwistedHood(std::size_t stations) {
    return StripOf(
        stations,
        [](double t) {
            return C3DPoint{90 * std::cos(3 * t), 70 * std::sin(3 * t), 150 + 30 * t, CornerRuleStation};
        },
        [](double t) {
            return C3DPoint{200 * std::cos(3 * t) + 20 * t, 140 * std::sin(3.1 * t), 10 * t * t,
                            CornerRuleStation};
        });
}

TEST(ImportMesh, TheModelSharesTheRowsOfTheMesh) {
    CImportMesh fitting = MeshOf(TwistedHood(7));
    fitting.DXFMesh.List3 = fitting.DXFMesh.List1;
    fitting.inputs.segs = 3;
    fitting.inputs.HalfPattern = true;
    fitting.ConstructModel();
    EXPECT_EQ(fitting.results.ModelSurface.List1, fitting.DXFMesh.List1);
    EXPECT_EQ(fitting.results.ModelSurface.List2, fitting.DXFMesh.List2);
    EXPECT_FALSE(fitting.results.ModelSurface.List3);
}

TEST(ImportMesh, ThereIsNothingWithoutAMesh) {
    CImportMesh fitting;
    EXPECT_THROW(fitting.ConstructModel(), ListError);
    EXPECT_THROW(fitting.DevelopModel(), ListError);
}

/// Station k of the mesh is station n - k + 1 of the pattern, which lies in the plan.
TEST(ImportMesh, ThePatternKeepsRulingsFirstRowAndTheDiagonalBetweenThem) {
    for (const std::size_t n : {2U, 3U, 8U, 40U}) {
        CImportMesh fitting = MeshOf(TwistedHood(n));
        fitting.DevelopModel();
        const CRuleSurf& mesh = fitting.DXFMesh;
        const CRuleSurf& flat = fitting.results.PatternSurface;
        ASSERT_EQ(flat.List1->Count(), n);
        ASSERT_EQ(flat.List2->Count(), n);
        for (std::size_t k = 1; k <= n; ++k) {
            const std::size_t at = n - k + 1;
            EXPECT_EQ(flat.List1->Item(at).z, 0);
            EXPECT_EQ(flat.List2->Item(at).z, 0);
            EXPECT_EQ(flat.List1->Item(at).Flag, CornerRuleStation);
            EXPECT_NEAR(Between(flat.List1, at, flat.List2, at), Between(mesh.List1, k, mesh.List2, k), 1e-7);
            if (k < n) {
                EXPECT_NEAR(Between(flat.List1, at, flat.List1, at - 1),
                            Between(mesh.List1, k, mesh.List1, k + 1), 1e-7);
                EXPECT_NEAR(Between(flat.List2, at, flat.List1, at - 1),
                            Between(mesh.List2, k, mesh.List1, k + 1), 1e-5);
            }
        }
    }
}

/// Where all fields are flat nothing is stretched: both rows and both diagonals keep their lengths.
TEST(ImportMesh, APatternOfFlatFieldsKeepsAllTrueLengths) {
    constexpr std::size_t Stations = 25;
    CImportMesh fitting = MeshOf(LeaningCone(Stations));
    fitting.DevelopModel();
    const CRuleSurf& mesh = fitting.DXFMesh;
    const CRuleSurf& flat = fitting.results.PatternSurface;
    for (std::size_t k = 1; k < Stations; ++k) {
        const std::size_t at = Stations - k + 1;
        EXPECT_NEAR(Between(flat.List2, at, flat.List2, at - 1), Between(mesh.List2, k, mesh.List2, k + 1),
                    1e-5);
        EXPECT_NEAR(Between(flat.List1, at, flat.List2, at - 1), Between(mesh.List1, k, mesh.List2, k + 1),
                    1e-5);
        EXPECT_NEAR(Between(flat.List2, at, flat.List1, at - 1), Between(mesh.List2, k, mesh.List1, k + 1),
                    1e-5);
    }
}

/// The rows may meet in a point, and a row may be one: a fan keeps its angle at the point.
TEST(ImportMesh, AFanIsUnfoldedAboutItsPoint) {
    CImportMesh fitting = MeshOf(StripOf(
        37,
        [](double) {
            return C3DPoint{0, 0, 80, CornerRuleStation};
        },
        [](double t) {
            return C3DPoint{60 * std::cos(std::numbers::pi * t), 60 * std::sin(std::numbers::pi * t), 0,
                            CornerRuleStation};
        }));
    fitting.DevelopModel();
    const CRuleSurf& flat = fitting.results.PatternSurface;
    const double chord = 2 * 60 * std::sin(std::numbers::pi / 72);
    const double whole = 36 * 2 * std::asin(chord / 2 / 100);  // slant 100
    double swept = 0;
    for (std::size_t k = 1; k <= 37; ++k) {
        EXPECT_NEAR(std::hypot(flat.List1->Item(k).x, flat.List1->Item(k).y), 0, Near);
        EXPECT_NEAR(std::hypot(flat.List2->Item(k).x, flat.List2->Item(k).y), 100, 1e-7);
        if (k > 1) {
            swept += 2 * std::asin(Between(flat.List2, k - 1, flat.List2, k) / 2 / 100);
        }
    }
    EXPECT_NEAR(swept, whole, 1e-6);
}

}  // namespace
}  // namespace korvet
