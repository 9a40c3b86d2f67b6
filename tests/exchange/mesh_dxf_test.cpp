// Meshes in the text of drawing files, good and hostile.
#include "exchange/mesh_dxf.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "exchange/dxf.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

/// A mesh of two by three, as a plain drawing has it. A count may be told otherwise than it is.
std::string MeshText(const std::string& flag = "16", const std::string& rows = "2",
                     const std::string& columns = "3") {
    std::string text = "0\nPOLYLINE\n8\nHood\n66\n1\n10\n0.0\n20\n0.0\n30\n0.0\n70\n" + flag + "\n71\n" +
                       rows + "\n72\n" + columns + "\n";
    for (int vertex = 1; vertex <= 6; ++vertex) {
        const std::string number = std::to_string(vertex);
        text +=
            "0\nVERTEX\n8\nHood\n10\n" + number + "\n20\n-" + number + ".5\n30\n" + number + "e2\n70\n64\n";
    }
    return text + "0\nSEQEND\n8\nHood\n";
}

std::string Drawing(const std::string& entities) {
    return "0\nSECTION\n2\nENTITIES\n" + entities + "0\nENDSEC\n0\nEOF\n";
}

void ExpectHood(const DxfMesh& mesh) {
    ASSERT_TRUE(mesh.surface) << mesh.fault;
    for (const auto& [list, first] : {std::pair{mesh.surface->List1, 1}, {mesh.surface->List2, 4}}) {
        ASSERT_EQ(list->Count(), 3U);
        for (int i = 0; i < 3; ++i) {
            const double number = first + i;
            EXPECT_TRUE(Same(list->Item(static_cast<std::size_t>(i) + 1),
                             {number, -number - 0.5, number * 100, CornerRuleStation}));
        }
    }
    EXPECT_FALSE(mesh.surface->List3);
}

std::string Replaced(std::string text, const std::string& old, const std::string& put) {
    for (std::size_t at = text.find(old); at != std::string::npos; at = text.find(old, at + put.size())) {
        text.replace(at, old.size(), put);
    }
    return text;
}

std::string FaultOf(const std::string& text) {
    const DxfMesh mesh = ReadDxfMesh(text);
    EXPECT_FALSE(mesh.surface);
    return mesh.fault;
}

TEST(MeshDxf, VerticesAreAssignedInTheirOrder) {
    ExpectHood(ReadDxfMesh(Drawing(MeshText())));
}

TEST(MeshDxf, LinesMayEndInAnyWayAndHaveBlanksAroundThem) {
    const std::string text = Drawing(MeshText());
    ExpectHood(ReadDxfMesh(Replaced(text, "\n", "\r\n")));
    ExpectHood(ReadDxfMesh(Replaced(text, "\n", "\r")));
    ExpectHood(ReadDxfMesh(Replaced(text, "\n", " \t\n  ")));
    ExpectHood(ReadDxfMesh(Replaced(Replaced(text, "ENTITIES", "Entities"), "VERTEX", "vertex")));
}

TEST(MeshDxf, WhatIsNoOpenMeshOfTwoRowsIsPassedOver) {
    const std::string line = "0\nLINE\n8\n0\n10\n1\n20\n2\n30\n3\n11\n4\n21\n5\n31\n6\n";
    const std::string polyline =
        "0\nPOLYLINE\n8\n0\n66\n1\n10\n0\n20\n0\n30\n0\n0\nVERTEX\n8\n0\n10\n1\n20\n2\n30\n3\n0\nVERTEX\n8\n"
        "0\n10\n4\n20\n5\n30\n6\n0\nSEQEND\n8\n0\n";
    const std::string polyline3d =
        "0\nPOLYLINE\n8\n0\n66\n1\n10\n0\n20\n0\n30\n0\n70\n8\n0\nVERTEX\n8\n0\n10\n1\n20\n2\n30\n3\n70\n32\n"
        "0\nSEQEND\n8\n0\n";
    for (const std::string& before :
         {line, polyline, polyline3d, MeshText("17"), MeshText("48"), MeshText("16", "3", "2"),
          MeshText("16", "2", "1"), MeshText("16", "2", "2.5"), MeshText("16", "2", "x"),
          MeshText("16", "2", "-3"), MeshText("x"), line + polyline + polyline3d}) {
        ExpectHood(ReadDxfMesh(Drawing(before + MeshText())));
        EXPECT_EQ(FaultOf(Drawing(before)), "it holds no open polygon mesh of 2 by N vertices");
    }
}

TEST(MeshDxf, TheFirstOfSeveralIsTaken) {
    const std::string other = Replaced(MeshText(), "-4.5", "-7");
    ExpectHood(ReadDxfMesh(Drawing(MeshText() + other)));
    EXPECT_EQ(ReadDxfMesh(Drawing(other + MeshText())).surface->List2->Item(1).y, -7);
}

TEST(MeshDxf, AMeshOutsideTheEntitiesIsNone) {
    const DxfMesh none = ReadDxfMesh("0\nSECTION\n2\nBLOCKS\n" + MeshText() + "0\nENDSEC\n0\nEOF\n");
    EXPECT_FALSE(none.hasEntities);
    EXPECT_FALSE(none.surface);
    EXPECT_FALSE(none.fault.empty());
    EXPECT_FALSE(ReadDxfMesh("").hasEntities);
    EXPECT_TRUE(ReadDxfMesh("ENTITIES").hasEntities);
}

TEST(MeshDxf, AFileThatEndsAnywhereHasNoMesh) {
    const std::string whole = Drawing(MeshText());
    // The last coordinate is 600: with its first digit the file could not know that more is missing.
    const std::size_t last = whole.rfind("\n6e2") + 2;
    for (std::size_t length = 0; length < last; ++length) {
        EXPECT_FALSE(ReadDxfMesh(whole.substr(0, length)).surface) << length;
    }
    ExpectHood(ReadDxfMesh(whole.substr(0, last + 2)));
}

TEST(MeshDxf, CountsThatLieAreNotMadeRoomFor) {
    for (const char* columns : {"1000000000", "1e9", "1e300", "9007199254740993"}) {
        EXPECT_TRUE(FaultOf(Drawing(MeshText("16", "2", columns))).find("the file is too short") !=
                    std::string::npos)
            << columns;
    }
    EXPECT_EQ(FaultOf(Drawing(MeshText("16", "2", "1e999"))),
              "it holds no open polygon mesh of 2 by N vertices");
}

/// Of two meshes with a wrong count neither is read on into what stands behind it, and none is cut short.
TEST(MeshDxf, CountsThatLieAboutTheVerticesAreFaults) {
    for (const std::string& behind : {std::string(), MeshText(), Replaced(MeshText(), "POLYLINE", "LINE")}) {
        EXPECT_TRUE(FaultOf(Drawing(MeshText("16", "2", "4") + behind))
                        .ends_with("the mesh ends before vertex 3 of its second row"));
        EXPECT_TRUE(FaultOf(Drawing(MeshText("16", "2", "2") + behind))
                        .ends_with("the mesh has more vertices than it says"));
    }
}

TEST(MeshDxf, CoordinatesAreFiniteNumbers) {
    for (const char* word : {"nan", "inf", "-inf", "1e999", "0x10", "five", "1,5", "", "1 2"}) {
        const std::string fault =
            FaultOf(Drawing(Replaced(MeshText(), "\n-2.5\n", "\n" + std::string(word) + "\n")));
        EXPECT_TRUE(fault.ends_with(": a coordinate is no number")) << word << ": " << fault;
        EXPECT_TRUE(fault.starts_with("line ")) << fault;
    }
}

TEST(MeshDxf, LinesMayBeOfAnyLength) {
    constexpr std::size_t TenMegabytes = 10U << 20U;
    const std::string text = Drawing(MeshText());
    ExpectHood(ReadDxfMesh(Replaced(text, "\nHood\n", "\n" + std::string(TenMegabytes / 8, 'x') + "\n")));
    EXPECT_FALSE(ReadDxfMesh(std::string(TenMegabytes, 'x')).hasEntities);
    EXPECT_FALSE(FaultOf(Drawing(Replaced(MeshText(), "-2.5", std::string(TenMegabytes, '9')))).empty());
}

/// A wall whose fields are not flat, with a third line that takes no part.
CRuleSurf Wall(std::size_t stations) {
    CRuleSurf wall;
    wall.List1 = std::make_shared<C3DPoints>();
    wall.List2 = std::make_shared<C3DPoints>();
    for (std::size_t i = 0; i < stations; ++i) {
        const double angle = std::numbers::pi / 7 * static_cast<double>(i);
        wall.List1->Add({std::cos(angle) * 100, std::sin(angle) * 100, 200 + std::sin(3 * angle), 1});
        wall.List2->Add({std::cos(angle) * 170, std::sin(angle) * 120, std::cos(angle) * 10, 0});
    }
    wall.List3 = wall.List1;
    return wall;
}

TEST(MeshDxf, TheSurfaceMeshOfAnExportReadsBack) {
    CDXF dxf;
    CRuleSurf uneven = Wall(9);
    uneven.List2 = Wall(8).List2;
    dxf.SurfaceList.Add(Wall(15));
    dxf.SurfaceList.Add(uneven);
    dxf.AcadPolygonMesh = dxf.OutlinesRequested = dxf.BendLinesRequested = true;
    dxf.FoldLayer = "FoldLayer";
    dxf.CutLayer = "CutLayer";
    const DxfMesh read = ReadDxfMesh(dxf.Text());
    ASSERT_TRUE(read.surface) << read.fault;
    EXPECT_FALSE(read.surface->List3);
    const CRuleSurf wall = Wall(15);
    for (const auto& [got, put] :
         {std::pair{read.surface->List1, wall.List1}, {read.surface->List2, wall.List2}}) {
        ASSERT_EQ(got->Count(), put->Count());
        for (std::size_t i = 1; i <= put->Count(); ++i) {
            EXPECT_NEAR(got->Item(i).x, put->Item(i).x, 1e-6);
            EXPECT_NEAR(got->Item(i).y, put->Item(i).y, 1e-6);
            EXPECT_NEAR(got->Item(i).z, put->Item(i).z, 1e-6);
            EXPECT_EQ(got->Item(i).Flag, CornerRuleStation);
        }
    }
}

}  // namespace
}  // namespace korvet
