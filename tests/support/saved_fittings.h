// A fitting that is saved and opened again.
#pragma once

#include <gtest/gtest.h>

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
    }
}

/// The surfaces of a model and its pattern: the pieces of a fitting that has several, else one of each.
inline CRuleSurfs AllSurfaces(const FittingResults& results) {
    CRuleSurfs all;
    for (const CRuleSurfs* pieces : {&results.ModelSurfaceList, &results.PatternSurfaceList}) {
        for (const CRuleSurf& piece : *pieces) {
            all.Add(piece);
        }
    }
    for (const CRuleSurf* surface : {&results.ModelSurface, &results.PatternSurface}) {
        if (surface->List1) {
            all.Add(*surface);
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
    EXPECT_GE(AllSurfaces(window.fitting->Results()).Count(), 2U);
    ExpectSameSurfaces(AllSurfaces(window.fitting->Results()), AllSurfaces(opened->fitting->Results()));
    ASSERT_EQ(opened->SaveFile("b.Kvt"), Passed);
    EXPECT_EQ(shell.files.files["a.Kvt"], shell.files.files["b.Kvt"]);
    EXPECT_TRUE(shell.ui.messages.empty());
}

}  // namespace korvet
