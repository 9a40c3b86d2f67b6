// The window of an imported mesh: its two buttons, what it says, and its files.
#include <gtest/gtest.h>

#include "fittings/imported/import_mesh.h"
#include "fittings/windows.h"
#include "tests/support/refusals.h"
#include "tests/support/saved_fittings.h"
#include "window/import_mesh.h"

namespace korvet {
namespace {

constexpr const char* NoMesh = "No suitable mesh found.  (see Help for more information)";
constexpr const char* NotNow = "Operation cannot be carried out at this time";

std::string TwoByTwo(const std::string& flag) {
    std::string text = "0\nSECTION\n2\nENTITIES\n0\nPOLYLINE\n70\n" + flag + "\n71\n2\n72\n2\n";
    for (const char* place : {"10\n0\n20\n0\n30\n5\n", "10\n30\n20\n0\n30\n5\n", "10\n0\n20\n40\n30\n5\n",
                              "10\n30\n20\n40\n30\n5\n"}) {
        text += std::string("0\nVERTEX\n") + place;
    }
    return text + "0\nSEQEND\n0\nENDSEC\n0\nEOF\n";
}

class ImportMeshWindow : public testing::Test {
  protected:
    ImportMeshWindow() {
        shell.files.files["hood.dxf"] = TwoByTwo("16");
        shell.files.files["closed.dxf"] = TwoByTwo("17");
        shell.files.files["text.dxf"] = "no drawing";
    }

    /// Presses the first button and chooses a file.
    void Import(const std::string& path) {
        shell.ui.files.emplace_back(path);
        window->ClickImportMesh(MeshOfDxf);
    }

    TestShell shell;
    std::unique_ptr<CFittingWindow> window = shell.Open("Imported Mesh");
};

TEST_F(ImportMeshWindow, StartsWithTwoButtonsAndNoBox) {
    EXPECT_TRUE(window->controls.txtParameter.empty());
    ASSERT_EQ(window->controls.btnImportMesh.size(), 2U);
    EXPECT_TRUE(window->controls.btnImportMesh[MeshOfDxf].enabled);
    EXPECT_TRUE(window->controls.btnImportMesh[MeshOfCad].enabled);
    EXPECT_EQ(window->controls.btnImportMesh[MeshOfDxf].caption, "Import Mesh from DXF File...");
    EXPECT_EQ(window->dtype, 0);
    EXPECT_EQ(window->settings.LapEnable, NoLaps);
    EXPECT_TRUE(window->settings.HalfPatternDisable);
    EXPECT_FALSE(window->Table().multiple);
    EXPECT_TRUE(shell.Open("Right Cone")->controls.btnImportMesh.empty());
}

TEST_F(ImportMeshWindow, HasNothingToShowUntilAMeshIsThere) {
    window->ClickView(0);
    window->ClickView(PatternButton);
    window->DimensionOptionsDialog();
    EXPECT_EQ(window->Export("a.dxf", ExportMode::Dxf), Refused);
    EXPECT_EQ(window->SaveFile("a.Kvt"), Refused);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>(5, NotNow)));
    EXPECT_EQ(shell.ui.messages[0].title, "User Error");
    EXPECT_EQ(window->views->Count(), 0U);
    window->Redraw();
    EXPECT_EQ(shell.ui.messages.size(), 5U);
}

TEST_F(ImportMeshWindow, TakesTheMeshOfADrawing) {
    Import("hood.dxf");
    ASSERT_EQ(shell.ui.fileDialogs.size(), 1U);
    EXPECT_EQ(shell.ui.fileDialogs[0].filter, "Drawing eXchange File (*.DXF)|*.DXF");
    EXPECT_FALSE(shell.ui.fileDialogs[0].save);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"Suitable mesh located"});
    EXPECT_EQ(shell.ui.messages[0].style, PlainBox);
    EXPECT_FALSE(window->hasModel) << "nothing is drawn before the first view";
    window->ClickView(PatternButton);
    ASSERT_TRUE(window->hasModel);
    const CRuleSurf& flat = window->fitting->Results().PatternSurface;
    EXPECT_NEAR(flat.List1->Item(1).y, -30, 1e-9) << "the last station of the mesh";
    EXPECT_NEAR(flat.List2->Item(2).x, 40, 1e-9);
    EXPECT_EQ(window->fitting->As<CImportMesh>().FileName, "hood.dxf");
    EXPECT_EQ(TextBlock(*window), (std::vector<std::string>{"", "", "Thickness = 0",
                                                            "Imported Mesh  Full pattern  21 Nov 2026"}));
}

TEST_F(ImportMeshWindow, CancelOfTheFileDialogChangesNothing) {
    window->ClickImportMesh(MeshOfDxf);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_FALSE(window->mesh.DXFMeshOK);
}

TEST_F(ImportMeshWindow, AFileWithoutAMeshLeavesTheOneThatIsThere) {
    Import("hood.dxf");
    window->ClickView(0);
    shell.ui.messages.clear();
    for (const char* path : {"closed.dxf", "missing.dxf"}) {
        Import(path);
        ASSERT_EQ(shell.ui.Texts(), std::vector<std::string>{NoMesh}) << path;
        EXPECT_NE(shell.ui.messages[0].detail.find(path), std::string::npos);
        shell.ui.messages.clear();
    }
    Import("text.dxf");
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"Unsuitable DXF: No ENTITIES Section", NoMesh}));
    EXPECT_TRUE(window->mesh.DXFMeshOK);
    EXPECT_EQ(window->mesh.FileName, "hood.dxf");
    EXPECT_TRUE(window->hasModel);
    window->Redraw();
    EXPECT_TRUE(window->hasModel);
}

TEST_F(ImportMeshWindow, ANewMeshIsDrawnAtOnce) {
    Import("hood.dxf");
    window->ClickView(PatternButton);
    shell.files.files["hood.dxf"] = TwoByTwo("16");
    shell.files.files["hood.dxf"].replace(shell.files.files["hood.dxf"].find("\n40\n"), 4, "\n50\n");
    Import("hood.dxf");
    EXPECT_NEAR(window->fitting->Results().PatternSurface.List2->Item(2).x, 50, 1e-9);
}

TEST_F(ImportMeshWindow, NoMeshComesFromADrawingProgramThatIsNotThere) {
    Import("hood.dxf");
    shell.ui.messages.clear();
    window->ClickImportMesh(MeshOfCad);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"Could not locate an active AutoCAD 2000 drawing."});
    EXPECT_FALSE(window->mesh.DXFMeshOK);
}

/// What is still to be seen is not there any more: it must not be saved over the file that holds it.
TEST_F(ImportMeshWindow, AMeshThatWasDroppedIsNeitherSavedNorExported) {
    Import("hood.dxf");
    window->ClickView(PatternButton);
    ASSERT_EQ(window->SaveFile("hood.Kvt"), Passed);
    const std::string saved = shell.files.files["hood.Kvt"];
    window->ClickImportMesh(MeshOfCad);
    shell.ui.messages.clear();
    EXPECT_EQ(window->Export("a.dxf", ExportMode::Dxf), Refused);
    EXPECT_EQ(window->SaveFile("hood.Kvt"), Refused);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>(2, NotNow)));
    EXPECT_EQ(shell.files.files["hood.Kvt"], saved);
}

TEST_F(ImportMeshWindow, AMeshTooFarOutIsNotMade) {
    shell.files.files["far.dxf"] = TwoByTwo("16");
    shell.files.files["far.dxf"].replace(shell.files.files["far.dxf"].find("\n40\n"), 4, "\n4e9\n");
    Import("far.dxf");
    shell.ui.messages.clear();
    window->ClickView(0);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"This fitting cannot be made with these sizes"});
    EXPECT_FALSE(window->hasModel);
}

TEST_F(ImportMeshWindow, AFileKeepsItsMesh) {
    const auto sample = shell.OpenSample("Imported Mesh", 1);
    ExpectFileKeepsEverything(shell, *sample);
}

TEST_F(ImportMeshWindow, AFileWithoutAMeshOpensWithNothingToBuild) {
    Import("hood.dxf");
    window->ClickView(PatternButton);
    ASSERT_EQ(window->SaveFile("a.Kvt"), Passed);
    std::string& saved = shell.files.files["a.Kvt"];
    saved.resize(saved.find("Start Imported Mesh"));
    shell.ui.messages.clear();
    const auto opened = shell.Open("Imported Mesh");
    EXPECT_EQ(opened->LoadFile("a.Kvt"), Passed);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"The item has no extents"});
    EXPECT_FALSE(opened->hasModel);
    EXPECT_FALSE(opened->mesh.DXFMeshOK);
}

TEST_F(ImportMeshWindow, AFaultyFileLeavesTheMeshThatIsThere) {
    Import("hood.dxf");
    window->ClickView(PatternButton);
    ASSERT_EQ(window->SaveFile("a.Kvt"), Passed);
    std::string& saved = shell.files.files["a.Kvt"];
    saved.resize(saved.find("End Imported Mesh"));
    EXPECT_EQ(window->FillFromFile("a.Kvt"), Refused);
    EXPECT_TRUE(window->mesh.DXFMeshOK);
}

}  // namespace
}  // namespace korvet
