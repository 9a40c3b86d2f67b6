// A fitting that is saved and opened again.
#pragma once

#include <gtest/gtest.h>

#include "core/fitting_surfaces.h"
#include "tests/support/point_lists.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {

/// The points of every surface are the same to the last bit.
inline void ExpectSameSurfaces(const CRuleSurfs& a, const CRuleSurfs& b) {
    ASSERT_EQ(a.Count(), b.Count());
    for (std::size_t i = 1; i <= a.Count(); ++i) {
        EXPECT_TRUE(SamePoints(*a.Item(i).List1, *b.Item(i).List1)) << i;
        EXPECT_TRUE(SamePoints(*a.Item(i).List2, *b.Item(i).List2)) << i;
        ASSERT_EQ(IsPresent(a.Item(i).List3), IsPresent(b.Item(i).List3)) << i;
        EXPECT_TRUE(!IsPresent(a.Item(i).List3) || SamePoints(*a.Item(i).List3, *b.Item(i).List3)) << i;
    }
}

/// The surfaces of a window's fitting, made anew: those of the model, and of the pattern where there is one.
inline CRuleSurfs AllSurfaces(const CFittingWindow& window) {
    CRuleSurfs all;
    for (const FittingShape shape : {FittingShape::Model, FittingShape::Pattern}) {
        for (const CRuleSurf& surface : MakeSurfaces(*window.fitting, shape, window.Table().multiple)) {
            all.Add(surface);
        }
    }
    return all;
}

/// Of a window with all its choices made: its pattern is drawn, and its file opens in a new window with the
/// same surfaces and is saved from there with the same bytes.
inline void ExpectFileKeepsEverything(TestShell& shell, CFittingWindow& window) {
    window.ClickView(PatternButton);
    ASSERT_EQ(window.SaveFile("a.Kvt"), Passed);
    const auto opened = shell.Open(window.category);
    ASSERT_EQ(opened->FillFromFile("a.Kvt"), Passed);
    // As often as the window before its save: some models have the seam of the build before.
    opened->Redraw();
    opened->Redraw();
    EXPECT_EQ(opened->dtype, window.dtype);
    const CRuleSurfs surfaces = AllSurfaces(window);
    EXPECT_GT(surfaces.Count(), 0U);
    ExpectSameSurfaces(surfaces, AllSurfaces(*opened));
    ASSERT_EQ(opened->SaveFile("b.Kvt"), Passed);
    EXPECT_EQ(shell.files.files["a.Kvt"], shell.files.files["b.Kvt"]);
    EXPECT_TRUE(shell.ui.messages.empty());
}

}  // namespace korvet
