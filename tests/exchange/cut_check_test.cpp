// Good and bad cut files, made by hand or spoilt by hand, and what the check tells of them.
#include "exchange/cut_check.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <initializer_list>
#include <numbers>

#include "exchange/dxf.h"

namespace korvet {
namespace {

PointList CutList(std::initializer_list<C3DPoint> points) {
    auto list = std::make_shared<C3DPoints>();
    for (const C3DPoint& point : points) {
        list->Add(point);
    }
    return list;
}

/// A plate of 200 by 100 with a fold across its middle.
CRuleSurf FoldedPlate(double x = 0) {
    CRuleSurf plate;
    plate.List1 = CutList({{x, 100, 0, 1}, {x + 100, 100, 0, 1}, {x + 200, 100, 0, 1}});
    plate.List2 = CutList({{x, 0, 0, 1}, {x + 100, 0, 0, 1}, {x + 200, 0, 0, 1}});
    return plate;
}

/// The points of a circle, `count` of them with the one that closes it.
PointList Circle(const C3DPoint& centre, double radius, int count) {
    auto list = std::make_shared<C3DPoints>();
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * i / (count - 1);
        list->Add({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
    }
    list->Item(static_cast<std::size_t>(count)) = list->Item(1);
    return list;
}

class CutCheckTest : public testing::Test {
  protected:
    /// The lines of the surfaces as they go out.
    void Draw(int mode = ArcEdges) {
        CDXF dxf;
        dxf.Pattern = dxf.OutlinesRequested = dxf.BendLinesRequested = true;
        dxf.PolyMode = static_cast<std::int16_t>(mode);
        dxf.SurfaceList = surfaces;
        std::vector<DxfPart> parts;
        const std::string text = dxf.Text(parts);
        lines = ReadPieceCurves(text, parts);
        arcs = mode == ArcEdges;
    }

    [[nodiscard]] CutCheck Check() const { return CheckCutFile(surfaces, lines, arcs); }

    /// The first line of a part.
    PieceCurve& First(CutPart part) {
        for (PieceCurve& line : lines) {
            if (line.part == part) {
                return line;
            }
        }
        throw std::logic_error("no such part");
    }

    void AddAgain(const PieceCurve& line) {
        PieceCurve again = line;
        again.entity = lines.back().entity + 1;
        lines.push_back(again);
    }

    CRuleSurfs surfaces;
    PieceCurves lines;
    bool arcs = true;
};

TEST_F(CutCheckTest, APlateIsAPieceWithItsBend) {
    surfaces.Add(FoldedPlate());
    for (const int mode : {ArcEdges, PolylineEdges}) {
        Draw(mode);
        const CutCheck check = Check();
        EXPECT_EQ(check.faults, std::vector<std::string>());
        EXPECT_EQ(check.pieces, 1U);
        EXPECT_EQ(check.bends, 1U);
        EXPECT_EQ(check.holes, 0U);
        EXPECT_NEAR(check.cutLength, 600, 1e-9);
        EXPECT_NEAR(check.area.value_or(0), 20000, 1e-9);
        EXPECT_EQ(check.widestGap, 0);
        EXPECT_LT(check.fromPoints, 1e-6);
    }
}

TEST_F(CutCheckTest, ARoundHoleIsTakenOff) {
    surfaces.Add(FoldedPlate()).List3 = Circle({50, 50}, 20, 49);
    Draw();
    const CutCheck check = Check();
    EXPECT_EQ(check.faults, std::vector<std::string>());
    EXPECT_EQ(check.holes, 1U);
    EXPECT_NEAR(check.cutLength, 600 + 40 * std::numbers::pi, 1e-4);
    EXPECT_NEAR(check.area.value_or(0), 20000 - 400 * std::numbers::pi, 1e-3);
    EXPECT_LT(check.fromPoints, 1e-5);
}

TEST_F(CutCheckTest, AHoleOverTheEdgeOrOutsideIsToldOf) {
    for (const C3DPoint& centre : {C3DPoint{10, 50}, C3DPoint{-100, 50}, C3DPoint{400, 50}}) {
        surfaces = {};
        surfaces.Add(FoldedPlate()).List3 = Circle(centre, 20, 49);
        Draw();
        const CutCheck check = Check();
        EXPECT_EQ(check.holesOutside, 1U);
        EXPECT_EQ(check.faults.size(), 1U);
    }
}

TEST_F(CutCheckTest, AHoleThatSpansThePlateIsToldOf) {
    // All its own points lie outside, and so does the plate's corner from it.
    surfaces.Add(FoldedPlate()).List3 = Circle({100, 50}, 300, 49);
    Draw();
    EXPECT_EQ(Check().holesOutside, 1U);
}

TEST_F(CutCheckTest, AGapIsToldOfFromAThousandthOn) {
    surfaces.Add(FoldedPlate());
    Draw();
    const CutCurve whole = First(CutPart::FirstEnd).curve;
    for (const double gap : {0.0009, 0.0011}) {
        First(CutPart::FirstEnd).curve = SectionOf(whole, gap / 100, 1);
        const CutCheck check = Check();
        if (gap < 0.001) {
            EXPECT_EQ(check.faults, std::vector<std::string>());
            EXPECT_NEAR(check.widestGap, gap, 1e-9);
            EXPECT_NEAR(check.area.value_or(0), 20000, 1);
        } else {
            EXPECT_EQ(check.openOutlines, 1U);
            EXPECT_FALSE(check.area.has_value());
            ASSERT_EQ(check.faults.size(), 2U);  // either side of it
            EXPECT_EQ(check.faults[0],
                      "piece 1: the outline is open at (0, 99.999), 0.0011 from the next end");
        }
    }
}

TEST_F(CutCheckTest, AMissingLineOpensTheOutline) {
    surfaces.Add(FoldedPlate());
    Draw();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const PieceCurve taken = lines[i];
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(i));
        EXPECT_EQ(Check().openOutlines, taken.part == CutPart::Bend ? 0U : 1U) << i;
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(i), taken);
    }
}

TEST_F(CutCheckTest, ALineThatStandsTwiceIsToldOfAndCountedOnce) {
    surfaces.Add(FoldedPlate()).List3 = Circle({50, 50}, 20, 49);
    Draw();
    const CutCheck good = Check();
    const PieceCurves all = lines;
    for (const PieceCurve& line : all) {
        lines = all;
        AddAgain(line);
        const CutCheck check = Check();
        EXPECT_EQ(check.doubled, 1U);
        EXPECT_EQ(check.faults.size(), 1U);
        EXPECT_DOUBLE_EQ(check.cutLength, good.cutLength);
        EXPECT_NEAR(check.area.value_or(0), *good.area, 1e-9);
        EXPECT_EQ(check.bends, 1U);
    }
}

TEST_F(CutCheckTest, ALineThatRunsAlongAnotherInPartIsToldOf) {
    surfaces.Add(FoldedPlate()).List3 = Circle({50, 50}, 20, 49);
    Draw();
    const PieceCurves all = lines;
    for (const CutPart part : {CutPart::FirstEnd, CutPart::Edge1, CutPart::Line3}) {
        lines = all;
        PieceCurve again = First(part);
        again.curve = SectionOf(again.curve, 0.25, 0.625);
        AddAgain(again);
        EXPECT_EQ(Check().doubled, 1U);
    }
}

TEST_F(CutCheckTest, ALineWithoutLengthIsToldOf) {
    surfaces.Add(FoldedPlate());
    Draw();
    AddAgain({LineCurve({30, 30}, {30, 30}), 1, CutPart::Edge1, 0});
    EXPECT_EQ(Check().zeroLength, 1U);
}

TEST_F(CutCheckTest, AStripThatEndsInAPointIsMeantSo) {
    CRuleSurf triangle = FoldedPlate();
    triangle.List1->Item(2).Flag = CornerRuleStation;
    triangle.List1->Item(3) = triangle.List2->Item(3);
    surfaces.Add(triangle);
    Draw();
    const CutCheck check = Check();
    EXPECT_EQ(check.faults, std::vector<std::string>());
    EXPECT_EQ(check.onPurpose.points, 1U);
    EXPECT_NEAR(check.area.value_or(0), 15000, 1e-6);
}

TEST_F(CutCheckTest, TheLastSegmentOfAnEvenEdgeStandsTwiceOnPurpose) {
    CRuleSurf strip;
    strip.List1 = CutList({});
    strip.List2 = CutList({});
    for (int i = 0; i < 8; ++i) {
        const double angle = 0.1 * i;
        strip.List1->Add({500 * std::cos(angle), 500 * std::sin(angle), 0, 1});
        strip.List2->Add({400 * std::cos(angle), 400 * std::sin(angle), 0, 1});
    }
    surfaces.Add(strip);
    Draw();
    const CutCheck check = Check();
    EXPECT_EQ(check.faults, std::vector<std::string>());
    EXPECT_EQ(check.onPurpose.lastSegments, 2U);
    EXPECT_NEAR(check.cutLength, 200 + 900 * 0.7, 1e-4);
    EXPECT_NEAR(check.area.value_or(0), 0.35 * (500 * 500 - 400 * 400), 0.1);
    const PieceCurve last = lines.back();
    AddAgain(last);
    EXPECT_EQ(Check().faults.size(), 1U) << "three times is once too often";
}

TEST_F(CutCheckTest, AFoldOnAnEdgeIsToldOfAsMeant) {
    CRuleSurf plate = FoldedPlate();
    plate.List1->Item(2) = plate.List1->Item(3);
    plate.List2->Item(2) = plate.List2->Item(3);
    surfaces.Add(plate);
    Draw();
    const CutCheck check = Check();
    EXPECT_EQ(check.faults, std::vector<std::string>());
    EXPECT_EQ(check.onPurpose.foldsOnEdges, 1U);
    EXPECT_EQ(check.bends, 0U);
    EXPECT_NEAR(check.cutLength, 600, 1e-9);
}

TEST_F(CutCheckTest, RepeatedStationsFoldOnce) {
    CRuleSurf plate = FoldedPlate();
    plate.List1 = CutList({{0, 100, 0, 1}, {100, 100, 0, 1}, {100, 100, 0, 1}, {150, 100}, {200, 100}});
    plate.List2 = CutList({{0, 0, 0, 1}, {100, 0, 0, 1}, {100, 0, 0, 1}, {150, 0}, {200, 0}});
    surfaces.Add(plate);
    Draw();
    const CutCheck check = Check();
    EXPECT_EQ(check.faults, std::vector<std::string>());
    EXPECT_EQ(check.onPurpose.repeatedFolds, 1U);
    EXPECT_EQ(check.bends, 1U);
    AddAgain(First(CutPart::Bend));
    EXPECT_EQ(Check().doubled, 1U);
}

TEST_F(CutCheckTest, PiecesMayShareAnEdge) {
    surfaces.Add(FoldedPlate());
    surfaces.Add(FoldedPlate(200));
    Draw();
    const CutCheck check = Check();
    EXPECT_EQ(check.faults, std::vector<std::string>());
    EXPECT_EQ(check.pieces, 2U);
    EXPECT_EQ(check.onPurpose.sharedCuts, 1U);
    EXPECT_NEAR(check.cutLength, 1100, 1e-9);
    EXPECT_NEAR(check.area.value_or(0), 40000, 1e-9);
}

TEST_F(CutCheckTest, ARingIsCutOnceBetweenItsEdges) {
    CRuleSurf ring;
    ring.List1 = Circle({0, 0}, 300, 49);
    ring.List2 = Circle({0, 0}, 100, 49);
    surfaces.Add(ring);
    Draw();
    const CutCheck check = Check();
    EXPECT_EQ(check.faults, std::vector<std::string>());
    EXPECT_EQ(check.onPurpose.seams, 1U);
    EXPECT_NEAR(check.cutLength, 800 * std::numbers::pi + 200, 1e-3);
    EXPECT_NEAR(check.area.value_or(0), 80000 * std::numbers::pi, 0.5);
}

TEST_F(CutCheckTest, HalfAHoleEndsOnTheOutline) {
    CRuleSurf& plate = surfaces.Add(FoldedPlate());
    plate.List3 = CutList({{60, 0}, {70, 30}, {90, 30}, {100, 0}});
    Draw(PolylineEdges);
    EXPECT_EQ(Check().onPurpose.openLines, 1U);
    EXPECT_EQ(Check().faults, std::vector<std::string>());
    plate.List3 = CutList({{60, 1}, {70, 30}, {90, 30}, {100, 1}});
    Draw(PolylineEdges);
    EXPECT_EQ(Check().openHoles, 1U);
}

TEST_F(CutCheckTest, TheDistanceFromThePointsIsThatOfTheWorstOne) {
    surfaces.Add(FoldedPlate()).List3 = Circle({50, 50}, 20, 49);
    Draw();
    (&First(CutPart::Line3))[1].curve.radius += 0.25;  // the first one that runs over a point
    EXPECT_NEAR(Check().fromPoints, 0.25, 1e-4);
}

TEST_F(CutCheckTest, ADrawingOfManySegmentsIsCheckedInAMoment) {
    constexpr int Stations = 20001;
    CRuleSurf strip;
    strip.List1 = std::make_shared<C3DPoints>();
    strip.List2 = std::make_shared<C3DPoints>();
    for (int i = 0; i < Stations; ++i) {
        const double angle = 2.0 * i / (Stations - 1);
        const auto flag = static_cast<std::int16_t>(i % 2 == 0 ? 1 : 0);
        strip.List1->Add({900 * std::cos(angle), 900 * std::sin(angle), 0, flag});
        strip.List2->Add({400 * std::cos(angle), 400 * std::sin(angle), 0, flag});
    }
    surfaces.Add(strip);
    Draw();
    const auto start = std::chrono::steady_clock::now();
    const CutCheck check = Check();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(check.faults, std::vector<std::string>());
    EXPECT_EQ(check.bends, static_cast<std::size_t>(Stations / 2 - 1));
    EXPECT_NEAR(check.cutLength, 1000 + 2600, 0.5);
    EXPECT_NEAR(check.area.value_or(0), 900 * 900 - 400 * 400, 5);
    EXPECT_LT(taken.count(), 60) << "comparing each line with every other would take longer";
    RecordProperty("seconds", std::to_string(taken.count()));
}

}  // namespace
}  // namespace korvet
