// The choices of an export, and what it writes.
#include <gtest/gtest.h>

#include "frame/catalogue.h"
#include "tests/support/test_context.h"
#include "window/export_fitting.h"
#include "window/saving.h"
#include "window/views.h"

namespace korvet {
namespace {

class ExportTest : public testing::Test {
  protected:
    void SetUp() override { AcceptExports(shell.ui); }

    /// What the export dialog shows when the user gets to see it.
    DxfOptionsDialog Shown(CFittingWindow& window, ExportMode mode = ExportMode::Dxf) {
        DxfOptionsDialog shown;
        shell.ui.onDxfOptions = [&](DxfOptionsDialog& dialog) { shown = dialog; };
        (void)window.Export("out.dxf", mode);
        AcceptExports(shell.ui);
        return shown;
    }

    static bool IsOffered(const DxfOptionsDialog& dialog, std::size_t index) {
        EXPECT_EQ(dialog.chkDXFOutput.at(index).checked, dialog.chkDXFOutput.at(index).enabled);
        return dialog.chkDXFOutput.at(index).checked;
    }

    TestShell shell;
};

TEST_F(ExportTest, OffersWhatThePatternShows) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(PatternButton);
    DxfOptionsDialog dialog = Shown(*window);
    EXPECT_EQ(dialog.caption, "Exporting out.dxf");
    EXPECT_EQ(dialog.lblExportType, "Exporting unfolded pattern");
    EXPECT_TRUE(IsOffered(dialog, DxfOptionsDialog::Outlines));
    EXPECT_TRUE(IsOffered(dialog, DxfOptionsDialog::BendLines));
    EXPECT_FALSE(IsOffered(dialog, DxfOptionsDialog::Diagonals));
    EXPECT_FALSE(IsOffered(dialog, DxfOptionsDialog::Dimensions));
    EXPECT_FALSE(IsOffered(dialog, DxfOptionsDialog::Label));
    EXPECT_FALSE(dialog.chkSurfaceMesh.enabled);
    EXPECT_TRUE(dialog.optPolyMode.IsOn(0));
    window->display.DiagonalsRequested = true;
    EXPECT_TRUE(IsOffered(Shown(*window), DxfOptionsDialog::Diagonals));
    EXPECT_FALSE(IsOffered(Shown(*window), DxfOptionsDialog::Dimensions));
    window->display.LabelPoint = C3DPoint{};
    EXPECT_TRUE(IsOffered(Shown(*window), DxfOptionsDialog::Label));
    for (bool CObjectDisplay::*request :
         {&CObjectDisplay::TrueLengthsRequested, &CObjectDisplay::CoordGridRequested,
          &CObjectDisplay::CoordTableRequested, &CObjectDisplay::FrameRequested}) {
        window->display.*request = true;
        EXPECT_TRUE(IsOffered(Shown(*window), DxfOptionsDialog::Dimensions));
        window->display.*request = false;
    }
    window->dimensions->Add({1, 1, 2, 1, 1, 1});
    EXPECT_TRUE(IsOffered(Shown(*window), DxfOptionsDialog::Dimensions));
    shell.options.PolyMode = 1;
    EXPECT_TRUE(Shown(*window).optPolyMode.IsOn(1));
}

TEST_F(ExportTest, TellsWhichPieceIsDrawn) {
    const auto window = shell.OpenSample("Branch", 1);
    EXPECT_EQ(DrawnPiece(*window), "");
    for (const auto& [index, piece] : {std::pair{0U, "Trunk"}, {1U, "Branch"}}) {
        window->SelectPattern(index);
        window->ClickView(PatternButton);
        ASSERT_TRUE(window->hasModel);
        window->SelectPattern(1 - index);  // is drawn with the next build only
        EXPECT_EQ(Shown(*window).lblExportType, std::string("Exporting unfolded pattern: ") + piece);
        shell.ui.fileDialogs.clear();
        (void)ChooseDrawingName(*window);
        EXPECT_EQ(shell.ui.fileDialogs.at(0).name, std::string("Branch ") + piece + ".DXF");
    }
    window->ClickView(0);
    EXPECT_EQ(Shown(*window).lblExportType, "Exporting wire-frame model");
    EXPECT_EQ(DrawnPiece(*window), "");
}

TEST_F(ExportTest, EveryPieceThatCanBeChosenIsNamed) {
    int pieces = 0;
    for (const CatalogueRow& row : Catalogue) {
        const WindowTable& table = *row.table;
        for (std::size_t i = 0; !table.patternSurface.empty() && i < table.patternSelect.size(); ++i) {
            SCOPED_TRACE(row.category);
            const std::string category(row.category);
            const std::string piece(table.patternSelect[i]);
            const auto window = shell.OpenSample(category, 1);
            window->SelectPattern(i);
            window->ClickView(PatternButton);
            ASSERT_TRUE(window->hasModel);
            EXPECT_EQ(Shown(*window).lblExportType, "Exporting unfolded pattern: " + piece);
            shell.ui.fileDialogs.clear();
            (void)ChooseDrawingName(*window);
            EXPECT_EQ(shell.ui.fileDialogs.at(0).name, category + " " + piece + ".DXF");
            ++pieces;
        }
    }
    EXPECT_EQ(pieces, 15);
}

TEST_F(ExportTest, AChoiceOfLayoutIsNoPiece) {
    const auto window = shell.OpenSample("Segmented Bend", 1);
    window->SelectPattern(1);
    window->ClickView(PatternButton);
    ASSERT_TRUE(window->hasModel);
    EXPECT_EQ(Shown(*window).lblExportType, "Exporting unfolded pattern");
}

TEST_F(ExportTest, APlotterTakesNeitherPolylinesNorText) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->display.FrameRequested = window->display.DiagonalsRequested = true;
    window->display.LabelPoint = C3DPoint{};
    shell.options.PolyMode = 1;
    for (const int button : {PatternButton, 0}) {
        window->ClickView(button);
        const DxfOptionsDialog dialog = Shown(*window, ExportMode::Plotter);
        EXPECT_TRUE(dialog.optPolyMode.IsOn(0));
        EXPECT_FALSE(dialog.optPolyMode.enabled);
        EXPECT_EQ(IsOffered(dialog, DxfOptionsDialog::Diagonals), button == PatternButton);
        EXPECT_FALSE(IsOffered(dialog, DxfOptionsDialog::Dimensions));
        EXPECT_FALSE(IsOffered(dialog, DxfOptionsDialog::Label));
    }
}

TEST_F(ExportTest, HeaderLayersAndUnitsAreForFilesAndOffAtTheStart) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(PatternButton);
    EXPECT_TRUE(Shown(*window).chkComplete.enabled);
    EXPECT_FALSE(Shown(*window).chkComplete.checked);
    EXPECT_FALSE(Shown(*window, ExportMode::Plotter).chkComplete.enabled);
    ASSERT_EQ(window->Export("plain.dxf", ExportMode::Dxf), Passed);
    shell.ui.onDxfOptions = [](DxfOptionsDialog& dialog) {
        dialog.chkComplete.checked = true;
        dialog.lblStatus = "OK";
    };
    shell.options.DXFFoldLayer = "FOLDS";
    shell.options.Colors.DisplayFoldColor = Magenta;
    shell.printDialog.PrintUnits = Inches;
    ASSERT_EQ(window->Export("complete.dxf", ExportMode::Dxf), Passed);
    AcceptExports(shell.ui);
    const std::string& text = shell.files.files["complete.dxf"];
    EXPECT_NE(text.find("$INSUNITS\r\n70\r\n1\r\n"), std::string::npos);
    EXPECT_NE(text.find("2\r\nFOLDS\r\n70\r\n0\r\n62\r\n6\r\n"), std::string::npos);
    // It stays for as long as the program runs, and a plot in between does not change that.
    EXPECT_FALSE(Shown(*window, ExportMode::Plotter).chkComplete.checked);
    EXPECT_TRUE(Shown(*window).chkComplete.checked);
    EXPECT_EQ(shell.files.files["plain.dxf"].find("$ACADVER"), std::string::npos);
}

TEST_F(ExportTest, OffersAMeshForAModel) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(0);
    window->display.DiagonalsRequested = true;
    const DxfOptionsDialog dialog = Shown(*window);
    EXPECT_EQ(dialog.lblExportType, "Exporting wire-frame model");
    EXPECT_TRUE(dialog.chkSurfaceMesh.enabled);
    EXPECT_FALSE(IsOffered(dialog, DxfOptionsDialog::Diagonals));
}

TEST_F(ExportTest, WritesTheFileAndSaysSo) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(PatternButton);
    EXPECT_EQ(window->Export("out.dxf", ExportMode::Dxf), Passed);
    ASSERT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_EQ(shell.ui.messages[0].text, "DXF successfully saved to: out.dxf");
    EXPECT_EQ(shell.ui.messages[0].style, InformationBox);
    const std::string& dxf = shell.files.files["out.dxf"];
    EXPECT_EQ(dxf.find("0\r\nSECTION\r\n2\r\nENTITIES\r\n"), 0U);
    EXPECT_NE(dxf.find("ARC\r\n8\r\nCutLayer\r\n"), std::string::npos);
    EXPECT_NE(dxf.find("LINE\r\n8\r\nFoldLayer\r\n"), std::string::npos);
}

TEST_F(ExportTest, DiagonalsFollowTheDisplayWhenDimensionsGoOut) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->display.TrueLengthsRequested = true;
    window->ClickView(PatternButton);
    shell.ui.onDxfOptions = [](DxfOptionsDialog& dialog) {
        dialog.chkDXFOutput[DxfOptionsDialog::Diagonals].checked = true;
        dialog.lblStatus = "OK";
    };
    ASSERT_EQ(window->Export("out.dxf", ExportMode::Dxf), Passed);
    EXPECT_EQ(shell.files.files["out.dxf"].find("LINE\r\n8\r\nDimensionLayer"), std::string::npos);
    shell.ui.onDxfOptions = [](DxfOptionsDialog& dialog) {
        dialog.chkDXFOutput[DxfOptionsDialog::Diagonals].checked = true;
        dialog.chkDXFOutput[DxfOptionsDialog::Dimensions].checked = false;
        dialog.lblStatus = "OK";
    };
    ASSERT_EQ(window->Export("out.dxf", ExportMode::Dxf), Passed);
    EXPECT_NE(shell.files.files["out.dxf"].find("LINE\r\n8\r\nDimensionLayer"), std::string::npos);
}

TEST_F(ExportTest, ALabelWithItsCommentsGoesThroughTheFileIntoTheDrawingUntilItIsTakenAway) {
    auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(PatternButton);
    const auto labelDialog = [this](CFittingWindow& labelled, bool shown) {
        shell.ui.onLabel = [shown](LabelDialog& dialog) {
            dialog.txtLabelItem[0].text = "Order 7";
            dialog.txtLabelItem[1].text = "two off";
            dialog.chkDisplayLabel.checked = shown;
            dialog.lblStatus = "OK";
        };
        labelled.PlaceLabel();
    };
    labelDialog(*window, true);
    window->display.LabelPoint = C3DPoint{12, 34, 0, 0};
    ASSERT_EQ(window->SaveFile("labelled.Kvt"), Passed);

    const auto loaded = shell.Open("Right Cone");
    ASSERT_EQ(loaded->LoadFile("labelled.Kvt"), Passed);
    ASSERT_EQ(loaded->Export("labelled.dxf", ExportMode::Dxf), Passed);
    const std::string& drawing = shell.files.files["labelled.dxf"];
    const std::size_t first = drawing.find("\r\n1\r\nOrder 7\r\n");
    const std::size_t second = drawing.find("\r\n1\r\ntwo off\r\n");
    const std::size_t third = drawing.find("\r\n1\r\nBase diameter = 300\r\n");
    ASSERT_NE(third, std::string::npos);
    EXPECT_LT(first, second);
    EXPECT_LT(second, third);

    labelDialog(*loaded, false);
    ASSERT_EQ(loaded->SaveFile("bare.Kvt"), Passed);
    EXPECT_NE(shell.files.files["bare.Kvt"].find("Start LabelPoint\r\nEnd LabelPoint"), std::string::npos);
    EXPECT_NE(shell.files.files["bare.Kvt"].find("Order 7"), std::string::npos);
    ASSERT_EQ(loaded->Export("bare.dxf", ExportMode::Dxf), Passed);
    EXPECT_EQ(shell.files.files["bare.dxf"].find("Order 7"), std::string::npos);
}

TEST_F(ExportTest, CancelWritesNothing) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->ClickView(PatternButton);
    shell.ui.onDxfOptions = nullptr;
    EXPECT_EQ(window->Export("out.dxf", ExportMode::Dxf), Refused);
    EXPECT_TRUE(shell.files.files.empty());
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(ExportTest, AFailureNamesTheStepItCameTo) {
    shell.files.unwritable.insert("out.dxf");
    shell.files.files["out.dxf"] = "old";
    for (const auto& [button, step] : {std::pair{PatternButton, "7"}, {0, "4"}}) {
        const auto window = shell.OpenSample("Right Cone", 2);
        window->ClickView(button);
        shell.ui.messages.clear();
        EXPECT_EQ(window->Export("out.dxf", ExportMode::Dxf), Refused);
        ASSERT_EQ(shell.ui.messages.size(), 1U);
        EXPECT_EQ(shell.ui.messages[0].text,
                  std::string("A problem has occured creating the DXF file ") + step);
        EXPECT_EQ(shell.ui.messages[0].style, PlainBox);
        EXPECT_EQ(shell.ui.messages[0].detail, "out.dxf: cannot be written");
        EXPECT_EQ(window->controls.mousePointer, Cursor::Default);
    }
    EXPECT_EQ(shell.files.files["out.dxf"], "old");
}

}  // namespace
}  // namespace korvet
