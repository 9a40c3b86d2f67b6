// The link to a drawing program, by the list of calls that it makes there.
#include "window/auto_cad.h"

#include <gtest/gtest.h>

#include <numbers>

#include "exchange/dxf_stream.h"
#include "tests/support/fake_drawing.h"
#include "tests/support/point_lists.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {
namespace {

using Calls = std::vector<std::string>;

constexpr const char* NoDrawing = "Could not locate an active AutoCAD 2000 drawing.";
constexpr const char* Pick = "Pick the insertion point on the AutoCAD screen";
constexpr const char* NoMesh = "No suitable mesh found.  (see Help for more information)";

class CadLinkTest : public testing::Test {
  protected:
    CadLinkTest() {
        shell.context.automation = &program;
        AcceptExports(shell.ui);
    }

    /// Draws what `write` puts into the transfer file; the calls behind those of the preparation.
    template <typename Write>
    Calls Drawn(Write write) {
        DxfStream stream(2.5);
        write(stream);
        shell.files.files["work/Transfer.tmp"] = stream.Finish();
        shell.ui.answers = {Answer::Ok};
        EXPECT_EQ(ConnectGlobalAcad(shell.context), Passed);
        drawing.calls.clear();
        drawing.layers = {"BorderLayer", "CutLayer", "DimensionLayer", "FoldLayer", "TextLayer"};
        EXPECT_EQ(TransferToAcad(shell.context), Passed);
        Calls calls = drawing.calls;
        const Calls before = {
            "Utility.GetPoint(-, \"Start point: \")", "Document.SendCommand(\"_ucs w \")",
            "Document.SendCommand(\"(princ \"Transferring to AutoCAD, please wait...\") \")"};
        const Calls behind = {"Document.Regen(true)",
                              "Document.SendCommand(\"(alert \"Transfer to AutoCAD complete\") \")"};
        EXPECT_EQ(Calls(calls.begin(), calls.begin() + 3), before);
        EXPECT_EQ(Calls(calls.end() - 2, calls.end()), behind);
        return {calls.begin() + 3, calls.end() - 2};
    }

    TestShell shell;
    FakeAutomation program;
    FakeDrawing& drawing = program.drawing;
};

TEST_F(CadLinkTest, ConnectsToTheProgramThatRuns) {
    EXPECT_EQ(ConnectGlobalAcad(shell.context), Passed);
    EXPECT_EQ(program.asked, Calls{"AutoCAD.Application.15"});
    EXPECT_TRUE(shell.context.acad->AcadConnected);
    EXPECT_EQ(shell.context.acad->Version, 15);
    EXPECT_TRUE(shell.context.acad->AcadDoc);
    EXPECT_TRUE(drawing.calls.empty());
}

TEST_F(CadLinkTest, SaysWhenThereIsNoDrawing) {
    drawing.fails = "Application.ActiveDocument";
    EXPECT_EQ(ConnectGlobalAcad(shell.context), Refused);
    EXPECT_FALSE(shell.context.acad->AcadApp);
    drawing.running = false;
    EXPECT_EQ(ConnectGlobalAcad(shell.context), Refused);
    shell.context.automation = nullptr;
    EXPECT_EQ(ConnectGlobalAcad(shell.context), Refused);
    EXPECT_EQ(shell.ui.Texts(), Calls(3, NoDrawing));
    EXPECT_EQ(shell.ui.messages[0].style, PlainBox);
}

TEST_F(CadLinkTest, LinesAndArcsAreMovedToThePointThatWasPicked) {
    EXPECT_EQ(
        Drawn([](DxfStream& out) {
            out.WriteLine({1, 2, 3}, {4, 5, 6}, "CutLayer");
            out.WriteArc({15, 20, 0}, {10, 25, 0}, {10, 20, 0}, "FoldLayer");
        }),
        (Calls{"ModelSpace.AddLine([101 202 8], [104 205 11])", "Line.Layer = \"CutLayer\"",
               "ModelSpace.AddArc([110 220 5], 5, 0, 1.570796326794895)", "Arc.Layer = \"FoldLayer\""}));
}

TEST_F(CadLinkTest, TextsAreAlignedWhereTheyHaveAJustification) {
    EXPECT_EQ(
        Drawn([](DxfStream& out) {
            out.WriteText("12.5", {1, 2, 0}, 0, "TextLayer", TextJustification::Left);
            out.WriteText("\u00d8 5", {1, 2, 0}, 0, "TextLayer", TextJustification::Right);
        }),
        (Calls{"ModelSpace.AddText(\"12.5\", [101 202 5], 2.5)", "Text.Rotation = 0", "Text.Alignment = 0",
               "Text.Layer = \"TextLayer\"", "ModelSpace.AddText(\"\u00d8 5\", [101 202 5], 2.5)",
               "Text.Rotation = 0", "Text.Alignment = 2", "Text.TextAlignmentPoint = [101 202 5]",
               "Text.Layer = \"TextLayer\""}));
}

TEST_F(CadLinkTest, PolylinesAndMeshesAreUpdated) {
    EXPECT_EQ(
        Drawn([](DxfStream& out) {
            out.WritePolyline(PointsOf({{1, 1, 0}, {2, 3, 0}, {5, 5, 1}}), "CutLayer");
            out.WriteMesh(PointsOf({{0, 0, 0}, {1, 0, 0}}), PointsOf({{0, 1, 0}, {1, 1, 0}}), "FoldLayer");
        }),
        (Calls{"ModelSpace.AddPolyline([101 201 5 102 203 5 105 205 6])", "Polyline.Layer = \"CutLayer\"",
               "Polyline.Update()", "ModelSpace.Add3DMesh(2, 2, [100 200 5 101 200 5 100 201 5 101 201 5])",
               "3DMesh.Layer = \"FoldLayer\"", "3DMesh.Update()"}));
}

TEST_F(CadLinkTest, ALayoutTakesNoMesh) {
    drawing.activeSpace = 0;
    EXPECT_EQ(
        Drawn([](DxfStream& out) {
            out.WriteMesh(PointsOf({{0, 0, 0}, {1, 0, 0}}), PointsOf({{0, 1, 0}, {1, 1, 0}}), "FoldLayer");
            out.WriteLine({0, 0, 0}, {1, 0, 0}, "CutLayer");
        }),
        (Calls{"PaperSpace.AddLine([100 200 5], [101 200 5])", "Line.Layer = \"CutLayer\""}));
    EXPECT_EQ(shell.ui.messages.back().text,
              "The 3D polygon mesh cannot be transfered to a drawing layout, only to model space");
    EXPECT_EQ(shell.ui.messages.back().style, PlainBox);
}

TEST_F(CadLinkTest, OnlyLayersThatTheDrawingLacksAreMade) {
    drawing.layers = {"0", " CutLayer ", "foldlayer"};
    ASSERT_EQ(ConnectGlobalAcad(shell.context), Passed);
    shell.options.DXFTextLayer = "  M\u00e4nner ";
    DxfStream stream(1);
    stream.WriteLine({}, {1, 0, 0}, shell.options.DXFTextLayer);
    shell.files.files["work/Transfer.tmp"] = stream.Finish();
    shell.ui.answers = {Answer::Ok};
    ASSERT_EQ(TransferToAcad(shell.context), Passed);
    EXPECT_EQ(drawing.calls.end()[-3], "Line.Layer = \"M\u00e4nner\"");
    EXPECT_EQ(Calls(drawing.calls.begin() + 1, drawing.calls.begin() + 6),
              (Calls{"Document.SendCommand(\"_ucs w \")", "Layers.Add(\"BorderLayer\")",
                     "Layers.Add(\"DimensionLayer\")", "Layers.Add(\"FoldLayer\")",
                     "Layers.Add(\"M\u00e4nner\")"}));
}

TEST_F(CadLinkTest, CancelAtThePickLeavesTheDrawingUntouched) {
    ASSERT_EQ(ConnectGlobalAcad(shell.context), Passed);
    shell.files.files["work/Transfer.tmp"] = DxfStream(1).Finish();
    shell.ui.answers = {Answer::Cancel};
    EXPECT_EQ(TransferToAcad(shell.context), Refused);
    EXPECT_TRUE(drawing.calls.empty());
    ASSERT_EQ(shell.ui.Texts(), Calls{Pick});
    EXPECT_EQ(shell.ui.messages[0].style, OkCancelBox);
}

TEST_F(CadLinkTest, WithoutATransferFileNothingIsDone) {
    ASSERT_EQ(ConnectGlobalAcad(shell.context), Passed);
    EXPECT_EQ(TransferToAcad(shell.context), Refused);
    EXPECT_TRUE(drawing.calls.empty());
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(CadLinkTest, AFailureEndsTheTransferWhereItIs) {
    DxfStream stream(2.5);
    stream.WriteLine({1, 2, 3}, {4, 5, 6}, "CutLayer");
    stream.WriteArc({15, 20, 0}, {10, 25, 0}, {10, 20, 0}, "CutLayer");
    shell.files.files["work/Transfer.tmp"] = stream.Finish();
    ASSERT_EQ(ConnectGlobalAcad(shell.context), Passed);
    drawing.fails = "ModelSpace.AddArc";
    shell.ui.answers = {Answer::Ok};
    EXPECT_EQ(TransferToAcad(shell.context), Refused);
    EXPECT_EQ(drawing.calls.back(), "Line.Layer = \"CutLayer\"");
    EXPECT_EQ(shell.ui.messages.back().text,
              "The transfer to AutoCAD has come to an end before all was drawn");
    EXPECT_EQ(shell.ui.messages.back().detail, "ModelSpace.AddArc has failed");
}

TEST_F(CadLinkTest, APatternGoesThroughTheTransferFile) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(PatternButton);
    ASSERT_EQ(ConnectGlobalAcad(shell.context), Passed);
    shell.ui.answers = {Answer::Ok};
    EXPECT_EQ(window->Export("work/Transfer.tmp", ExportMode::CadLink), Passed);
    EXPECT_TRUE(shell.files.files.contains("work/Transfer.tmp"));
    EXPECT_GT(drawing.calls.size(), 60U);
    EXPECT_EQ(shell.ui.Texts(), Calls{Pick});
    shell.transferPlace.busy = true;
    drawing.calls.clear();
    EXPECT_EQ(window->Export("work/Transfer.tmp", ExportMode::CadLink), Refused);
    EXPECT_TRUE(drawing.calls.empty());
}

class CadMeshTest : public CadLinkTest {
  protected:
    CadMeshTest() {
        drawing.mesh = {{"MVertexCount", std::int32_t{2}},
                        {"NVertexCount", std::int32_t{3}},
                        {"MClose", false},
                        {"Coordinates",
                         std::vector<double>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18}}};
    }

    /// What is said behind the question when there is no mesh; "" when there is one.
    Calls Refusal() {
        shell.ui.messages.clear();
        shell.ui.answers = {Answer::Ok};
        const bool found = MeshFromAcad(shell.context).has_value();
        Calls texts = shell.ui.Texts();
        texts.erase(texts.begin());
        return found ? Calls{""} : texts;
    }
};

TEST_F(CadMeshTest, TheRowsOfTheSelectedMeshAreTaken) {
    shell.ui.answers = {Answer::Ok};
    const auto mesh = MeshFromAcad(shell.context);
    ASSERT_TRUE(mesh);
    EXPECT_EQ(drawing.calls, Calls{"Utility.GetEntity(-, -, \"Select Mesh: \")"});
    EXPECT_TRUE(SamePoints(*mesh->List1, PointsOf({{1, 2, 3, 5}, {4, 5, 6, 5}, {7, 8, 9, 5}})));
    EXPECT_TRUE(SamePoints(*mesh->List2, PointsOf({{10, 11, 12, 5}, {13, 14, 15, 5}, {16, 17, 18, 5}})));
    EXPECT_EQ(shell.ui.Texts(),
              (Calls{"Select a mesh object from the AutoCAD screen", "Suitable mesh located"}));
    EXPECT_EQ(shell.ui.messages[0].style, OkCancelBox);
}

TEST_F(CadMeshTest, WhatIsNoOpenMeshOfTwoRowsIsRefused) {
    const auto with = [&](const char* name, const AutomationValue& value) {
        const auto good = drawing.mesh;
        drawing.mesh[name] = value;
        const Calls said = Refusal();
        drawing.mesh = good;
        return said;
    };
    EXPECT_EQ(with("MVertexCount", std::int32_t{3}), Calls{NoMesh});
    EXPECT_EQ(with("MVertexCount", std::int32_t{1}), Calls{NoMesh});
    EXPECT_EQ(with("NVertexCount", std::int32_t{1}), Calls{NoMesh});
    EXPECT_EQ(with("NVertexCount", std::int32_t{-3}), Calls{NoMesh});
    EXPECT_EQ(with("NVertexCount", std::string("3")), Calls{NoMesh});
    EXPECT_EQ(with("Coordinates", std::vector<double>(17)), Calls{NoMesh});
    EXPECT_EQ(with("Coordinates", std::vector<double>(18, NAN)), Calls{NoMesh});
    EXPECT_EQ(
        with("MClose", true),
        (Calls{"This mesh is a closed surface.  That is, it has no start or end edges. See help for further "
               "information",
               NoMesh}));
    drawing.mesh.clear();  // a line was picked
    EXPECT_EQ(Refusal(), Calls{NoMesh});
    drawing.fails = "Utility.GetEntity";
    EXPECT_EQ(Refusal(), Calls{NoMesh});
}

TEST_F(CadMeshTest, CancelOfTheQuestionIsNoMesh) {
    shell.ui.answers = {Answer::Cancel};
    EXPECT_FALSE(MeshFromAcad(shell.context));
    EXPECT_TRUE(drawing.calls.empty());
    EXPECT_EQ(shell.ui.messages.back().text, NoMesh);
}

TEST_F(CadMeshTest, ComesIntoItsWindow) {
    const auto window = shell.Open("Imported Mesh");
    shell.ui.answers = {Answer::Ok};
    window->ClickImportMesh(MeshOfCad);
    EXPECT_TRUE(window->mesh.DXFMeshOK);
    EXPECT_EQ(window->mesh.FileName, "");
    window->ClickView(0);
    EXPECT_TRUE(window->hasModel);
    drawing.running = false;
    window->ClickImportMesh(MeshOfCad);
    EXPECT_FALSE(window->mesh.DXFMeshOK);
}

}  // namespace
}  // namespace korvet
