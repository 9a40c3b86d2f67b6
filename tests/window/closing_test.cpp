// What counts as changed in a window, the question before it closes, and what its saves ask.
#include <gtest/gtest.h>

#include <functional>

#include "core/constants.h"
#include "frame/catalogue.h"
#include "tests/support/test_context.h"
#include "window/parameter_file.h"
#include "window/saving.h"
#include "window/views.h"

namespace korvet {
namespace {

class ClosingTest : public testing::Test {
  protected:
    std::unique_ptr<CFittingWindow> Cone() { return shell.OpenSample("Right Cone", 2); }

    std::unique_ptr<CFittingWindow> DrawnCone() {
        auto window = Cone();
        window->ClickView(PatternButton);
        EXPECT_TRUE(window->hasModel);
        return window;
    }

    /// The same, saved: nothing in it is yet to be saved.
    std::unique_ptr<CFittingWindow> SavedCone() {
        auto window = DrawnCone();
        EXPECT_EQ(window->SaveFile("cone.Kvt"), Passed);
        return window;
    }

    TestShell shell;
};

TEST_F(ClosingTest, ANewWindowHasNothingToSave) {
    for (const CatalogueRow& row : Catalogue) {
        const auto window = shell.Open(std::string(row.category));
        EXPECT_FALSE(HasChanges(*window)) << row.category;
        EXPECT_EQ(window->CloseForm(), Passed);
    }
    EXPECT_TRUE(shell.ui.messages.empty());
}

/// What builds, views, saves and loads do to a window is no change of the user's.
TEST_F(ClosingTest, WhatTheProgramDoesByItselfIsNoChange) {
    for (const CatalogueRow& row : Catalogue) {
        SCOPED_TRACE(row.category);
        for (std::size_t type = 1; type <= row.table->pages.size(); ++type) {
            const auto window = shell.OpenSample(std::string(row.category), static_cast<int>(type));
            window->ClickView(0);
            ASSERT_TRUE(window->hasModel);
            EXPECT_TRUE(HasChanges(*window));
            ASSERT_EQ(window->SaveFile("a.Kvt"), Passed);
            EXPECT_FALSE(HasChanges(*window));
            const auto loaded = shell.Open(std::string(row.category));
            ASSERT_EQ(loaded->LoadFile("a.Kvt"), Passed);
            for (CFittingWindow* const both : {window.get(), loaded.get()}) {
                both->ClickView(8);
                both->ZoomX(2);
                both->Redraw();
                both->Settings();  // and Cancel
                both->ZoomExtents();
                EXPECT_FALSE(HasChanges(*both));
                EXPECT_EQ(both->CloseForm(), Passed);
            }
        }
    }
}

TEST_F(ClosingTest, AnythingElseThatASaveWritesIsAChange) {
    using Change = std::function<void(CFittingWindow&)>;
    const std::vector<Change> changes = {
        [](CFittingWindow& window) { window.ChangeBox(3, "301"); },
        [](CFittingWindow& window) { window.ChangeBox(0, "1"); },  // of a type that is not shown
        [](CFittingWindow& window) { window.settings.Thickness = 2; },
        [](CFittingWindow& window) { window.settings.segs = 36; },
        [](CFittingWindow& window) { window.settings.HalfPattern = true; },
        [](CFittingWindow& window) {
            window.dimensions->Add({1, 1, 2, 1, 3, 4});
        },
        [](CFittingWindow& window) { window.comment2 = "second"; },
        [](CFittingWindow& window) {
            window.display.LabelPoint = C3DPoint{1, 2, 0, 0};
        },
        [](CFittingWindow& window) { window.display.RotationAngle = 0.5; },
        [](CFittingWindow& window) { window.display.FrameRequested = true; }};
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const auto window = SavedCone();
        const auto fresh = shell.Open("Right Cone");
        for (CFittingWindow* const both : {window.get(), fresh.get()}) {
            changes[i](*both);
            EXPECT_TRUE(HasChanges(*both)) << i;
        }
    }
}

TEST_F(ClosingTest, ChoicesAndTypesAreChangesToo) {
    const auto branch = shell.Open("Branch");
    branch->SelectPattern(1);
    EXPECT_TRUE(HasChanges(*branch));
    const auto joined = shell.Open("Branch");
    joined->branch.heelCompensation = !joined->branch.heelCompensation;
    EXPECT_TRUE(HasChanges(*joined));
    const auto cone = shell.Open("Right Cone");
    cone->ClickPoint(0);
    EXPECT_TRUE(HasChanges(*cone));
    cone->ClickPoint(1);
    EXPECT_FALSE(HasChanges(*cone));
}

TEST_F(ClosingTest, ASizeThatIsTypedBackIsNoChange) {
    const auto window = SavedCone();
    window->ChangeBox(3, "301");
    EXPECT_TRUE(HasChanges(*window));
    window->ChangeBox(3, "300");
    EXPECT_FALSE(HasChanges(*window));
}

TEST_F(ClosingTest, TypedSizesAreAskedForWithoutAModelToo) {
    const auto window = Cone();
    EXPECT_EQ(window->CloseForm(), Refused);  // the box is answered with Cancel
    ASSERT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_EQ(shell.ui.messages[0].text, "Save parameter file for Development 1");
    EXPECT_EQ(shell.ui.messages[0].style, YesNoCancelBox);
    EXPECT_EQ(shell.ui.messages[0].title, "Korvet Development");
    EXPECT_FALSE(window->closed);
    EXPECT_EQ(window->views->Count(), 0U);
    shell.ui.answers = {Answer::No};
    EXPECT_EQ(window->CloseForm(), Passed);
    EXPECT_TRUE(shell.files.files.empty());
}

TEST_F(ClosingTest, YesBuildsAndSaves) {
    const auto window = Cone();
    shell.ui.answers = {Answer::Yes};
    shell.ui.files = {"cone.Kvt"};
    EXPECT_EQ(window->CloseForm(), Passed);
    EXPECT_EQ(shell.ui.fileDialogs.at(0).title, "SaveAs");
    EXPECT_EQ(shell.ui.fileDialogs.at(0).filter, "Korvet Development Files (*.Kvt)|*.Kvt");
    EXPECT_EQ(shell.ui.fileDialogs.at(0).name, "Right Cone.Kvt");
    const auto loaded = shell.Open("Right Cone");
    EXPECT_EQ(loaded->LoadFile("cone.Kvt"), Passed);
    EXPECT_TRUE(loaded->hasModel);
    EXPECT_EQ(shell.ui.messages.size(), 1U);
}

TEST_F(ClosingTest, ARefusedBuildKeepsTheWindowOpen) {
    const auto never = shell.Open("Right Cone");
    never->ChangeBox(3, "300");
    const auto spoilt = SavedCone();
    spoilt->ChangeBox(4, "400");
    for (CFittingWindow* const window : {never.get(), spoilt.get()}) {
        const std::string before = shell.files.files["cone.Kvt"];
        shell.ui.messages.clear();
        shell.ui.answers = {Answer::Yes};
        EXPECT_EQ(window->CloseForm(), Refused);
        EXPECT_EQ(shell.ui.messages.size(), 2U);
        EXPECT_EQ(shell.ui.messages.back().title, "User Error");
        EXPECT_TRUE(shell.ui.fileDialogs.empty());
        EXPECT_EQ(shell.files.files["cone.Kvt"], before);
        EXPECT_FALSE(window->closed);
    }
    EXPECT_EQ(never->views->Count(), 0U);
}

TEST_F(ClosingTest, ClosingStopsWhenTheSaveDoesNotHappen) {
    const auto window = DrawnCone();
    shell.ui.answers = {Answer::Yes, Answer::Yes};
    shell.ui.files = {std::nullopt, "full/cone.Kvt"};
    EXPECT_EQ(window->CloseForm(), Refused);  // the file dialog was cancelled
    shell.files.unwritable.insert("full/cone.Kvt");
    EXPECT_EQ(window->CloseForm(), Refused);
    EXPECT_EQ(shell.ui.messages.back().text, "full/cone.Kvt: cannot be written");
    EXPECT_EQ(window->controls.caption, "Development 1");
    EXPECT_FALSE(window->closed);
    EXPECT_TRUE(HasChanges(*window));
}

TEST_F(ClosingTest, ASavedWindowIsSavedUnderItsName) {
    const auto window = SavedCone();
    EXPECT_EQ(window->controls.caption, "cone.Kvt");
    window->ChangeBox(3, "310");
    shell.ui.answers = {Answer::Yes};
    EXPECT_EQ(window->CloseForm(), Passed);
    EXPECT_TRUE(shell.ui.fileDialogs.empty());
    EXPECT_NE(shell.files.files["cone.Kvt"].find("\r\n310\r\n"), std::string::npos);
}

TEST_F(ClosingTest, AnImportedMeshIsAChange) {
    const auto window = shell.Open("Imported Mesh");
    window->mesh = window->Table().sampleMesh();
    EXPECT_TRUE(HasChanges(*window));
    window->ClickView(0);
    ASSERT_EQ(window->SaveFile("mesh.Kvt"), Passed);
    EXPECT_FALSE(HasChanges(*window));
    window->mesh = window->Table().sampleMesh();  // imported once more
    EXPECT_TRUE(HasChanges(*window));
}

TEST_F(ClosingTest, AFileOfAnotherProgramIsReplacedOnlyAfterAQuestion) {
    const auto window = SavedCone();
    const auto loaded = shell.Open("Right Cone");
    ASSERT_EQ(loaded->LoadFile("cone.Kvt"), Passed);
    EXPECT_EQ(window->SaveFile("cone.Kvt"), Passed);  // as it was read: no question
    EXPECT_TRUE(shell.ui.messages.empty());
    for (CFittingWindow* const both : {window.get(), loaded.get()}) {
        shell.files.files["cone.Kvt"] = "of another program";
        both->ChangeBox(3, "310");
        shell.ui.messages.clear();
        shell.ui.answers = {Answer::No, Answer::Yes};
        EXPECT_EQ(both->SaveFile("cone.Kvt"), Refused);
        ASSERT_EQ(shell.ui.messages.size(), 1U);
        EXPECT_EQ(shell.ui.messages[0].text,
                  "cone.Kvt has been changed by another program. Do you want to replace it?");
        EXPECT_EQ(shell.ui.messages[0].style, YesNoWarningBox);
        EXPECT_EQ(shell.files.files["cone.Kvt"], "of another program");
        EXPECT_TRUE(HasChanges(*both));
        EXPECT_EQ(both->SaveFile("cone.Kvt"), Passed);
        EXPECT_EQ(both->SaveFile("cone.Kvt"), Passed);
        EXPECT_EQ(shell.ui.messages.size(), 2U);
    }
}

TEST_F(ClosingTest, AFileThatIsGoneIsWrittenAgainAndAnotherNameIsTheFileDialogsMatter) {
    const auto window = SavedCone();
    shell.files.files.clear();
    EXPECT_EQ(window->SaveFile("cone.Kvt"), Passed);
    shell.files.files["other.Kvt"] = "of another program";
    EXPECT_EQ(window->SaveFile("other.Kvt"), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(ClosingTest, AFileThatCannotBeReadAnyMoreIsNotTheOneThatWas) {
    const auto window = SavedCone();
    shell.files.unreadable = {"cone.Kvt"};
    EXPECT_EQ(window->SaveFile("cone.Kvt"), Refused);
    EXPECT_EQ(shell.ui.messages.size(), 1U);
}

TEST_F(ClosingTest, NamesAreOfferedAsTheFileHasThemOrTheFitting) {
    const auto window = DrawnCone();
    (void)ChooseSaveName(*window);
    (void)ChooseDrawingName(*window);
    ASSERT_EQ(window->SaveFile("orders/7/v1.2 cone.Kvt"), Passed);
    (void)ChooseSaveName(*window);
    (void)ChooseDrawingName(*window);
    const std::vector<FileChoice>& asked = shell.ui.fileDialogs;
    ASSERT_EQ(asked.size(), 4U);
    EXPECT_EQ(asked[0].name, "Right Cone.Kvt");
    EXPECT_EQ(asked[1].name, "Right Cone.DXF");
    EXPECT_EQ(asked[1].folder, "");
    EXPECT_EQ(asked[2].name, "v1.2 cone.Kvt");
    EXPECT_EQ(asked[3].name, "v1.2 cone.DXF");
    EXPECT_EQ(asked[3].folder, "orders/7");
}

}  // namespace
}  // namespace korvet
