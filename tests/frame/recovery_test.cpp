// When recovery copies are written and taken away, and what a start offers after a bad end.
#include <gtest/gtest.h>

#include <set>

#include "tests/frame/main_frame_fixture.h"
#include "tests/support/memory_recovery.h"
#include "window/parameter_file.h"

namespace korvet {
namespace {

using Choice = RecoveryDialog::Choice;
using Captions = std::vector<std::string>;

class RecoveryTest : public testing::Test {
  protected:
    RecoveryTest() {
        rig.desktop.activate = [this](CFittingWindow* window) { frame.ActivateChild(window); };
        rig.desktop.onRecovery = [this](RecoveryDialog& dialog) {
            offered = dialog.windows;
            dialog.choice = choice;
        };
    }

    /// What a run leaves that ends with a new window and the window of a file, both with sizes typed.
    void LeaveTwo() {
        FrameRig earlier;
        MemoryRecovery copies;
        CMainFrame run(earlier.shell.context, earlier.desktop, earlier.help, earlier.store, &copies);
        earlier.desktop.activate = [&](CFittingWindow* window) { run.ActivateChild(window); };
        earlier.desktop.pick = "Right Cone";
        for (const std::string height : {"250", "260"}) {
            run.RunMenu("mnuFileNew");
            CFittingWindow& cone = *run.ActiveChild();
            cone.ChangeBox(3, "300");
            cone.ChangeBox(4, "150");
            cone.ChangeBox(5, height);
        }
        run.ActiveChild()->ClickView(0);
        EXPECT_EQ(run.ActiveChild()->SaveFile("cone.Kvt"), Passed);
        run.ActiveChild()->ChangeBox(3, "-");
        EXPECT_EQ(run.KeepCopies(), Passed);
        for (const auto& [number, copy] : copies.own) {
            store.left.emplace_back(copy);
        }
    }

    CFittingWindow& OpenCone() {
        rig.desktop.pick = "Right Cone";
        frame.RunMenu("mnuFileNew");
        return *frame.ActiveChild();
    }

    FrameRig rig;
    MemoryRecovery store;
    CMainFrame frame{rig.shell.context, rig.desktop, rig.help, rig.store, &store};
    Choice choice = Choice::Later;
    Captions offered;
};

TEST_F(RecoveryTest, OnlyWindowsWithChangesHaveACopyAndOneThatIsOfNow) {
    CFittingWindow& cone = OpenCone();
    OpenCone();
    EXPECT_EQ(frame.KeepCopies(), Passed);
    EXPECT_TRUE(store.own.empty());
    cone.ChangeBox(3, "3");
    EXPECT_EQ(frame.KeepCopies(), Passed);
    ASSERT_EQ(store.own.size(), 1U);
    const std::string first = store.own.begin()->second;
    EXPECT_EQ(frame.KeepCopies(), Passed);
    EXPECT_EQ(store.writes, 1);
    cone.ChangeBox(3, "30");
    EXPECT_EQ(frame.KeepCopies(), Passed);
    cone.views->Add(DefaultViewPoint());  // the views are in it too
    EXPECT_EQ(frame.KeepCopies(), Passed);
    EXPECT_EQ(store.writes, 3);
    EXPECT_EQ(store.own.size(), 1U);
    EXPECT_NE(store.own.begin()->second, first);
}

TEST_F(RecoveryTest, ACopyGoesWhenItsWindowIsSavedPutBackOrClosed) {
    CFittingWindow& saved = OpenCone();
    CFittingWindow& putBack = OpenCone();
    CFittingWindow& closed = OpenCone();
    for (CFittingWindow* const window : {&saved, &putBack, &closed}) {
        window->ChangeBox(3, "300");
    }
    EXPECT_EQ(frame.KeepCopies(), Passed);
    EXPECT_EQ(store.own.size(), 3U);
    saved.ChangeBox(4, "150");
    saved.ChangeBox(5, "250");
    saved.ClickView(0);
    ASSERT_EQ(saved.SaveFile("cone.Kvt"), Passed);
    EXPECT_EQ(frame.KeepCopies(), Passed);
    EXPECT_EQ(store.own.size(), 2U);
    putBack.ChangeBox(3, "0");
    EXPECT_EQ(frame.KeepCopies(), Passed);
    EXPECT_EQ(store.own.size(), 1U);
    rig.shell.ui.answers = {Answer::No};
    EXPECT_EQ(frame.CloseChild(closed), Passed);
    EXPECT_TRUE(store.own.empty());
}

TEST_F(RecoveryTest, ACleanEndLeavesNothing) {
    OpenCone().ChangeBox(3, "300");
    OpenCone().ChangeBox(3, "310");
    EXPECT_EQ(frame.KeepCopies(), Passed);
    rig.shell.ui.answers = {Answer::No, Answer::No};
    EXPECT_EQ(frame.QueryUnload({}, false), Passed);
    EXPECT_TRUE(store.own.empty());
}

TEST_F(RecoveryTest, ADiskThatIsFullIsToldOnce) {
    OpenCone().ChangeBox(3, "300");
    OpenCone().ChangeBox(3, "310");
    store.full = true;
    EXPECT_EQ(frame.KeepCopies(false), Refused);
    EXPECT_TRUE(rig.shell.ui.messages.empty()) << "in the middle of work";
    EXPECT_EQ(frame.KeepCopies(), Refused);
    EXPECT_EQ(frame.KeepCopies(), Refused);
    ASSERT_EQ(rig.shell.ui.messages.size(), 1U);
    EXPECT_EQ(rig.shell.ui.messages[0].text,
              "What is typed cannot be kept for the case that the program ends badly");
    EXPECT_EQ(rig.shell.ui.messages[0].detail, "the disk is full");
    store.full = false;
    EXPECT_EQ(frame.KeepCopies(), Passed);
    EXPECT_EQ(store.own.size(), 2U);
}

TEST_F(RecoveryTest, AStartAfterAGoodEndOffersNothing) {
    frame.OfferCopies();
    EXPECT_TRUE(rig.desktop.calls.empty());
    EXPECT_FALSE(store.holdsLeft);
}

TEST_F(RecoveryTest, WhatWasOpenIsOpenedAgain) {
    LeaveTwo();
    choice = Choice::OpenAll;
    frame.OfferCopies();
    EXPECT_EQ(offered, (Captions{"Right Cone (without a file)", "cone.Kvt"}));
    ASSERT_EQ(frame.Children().size(), 2U);
    const CFittingWindow& fresh = *frame.Children()[0];
    const CFittingWindow& ofFile = *frame.Children()[1];
    EXPECT_EQ(fresh.controls.txtParameter[5].text, "250");
    EXPECT_EQ(ofFile.controls.txtParameter[3].text, "-");
    EXPECT_EQ(ofFile.controls.txtParameter[5].text, "260");
    EXPECT_EQ(ofFile.controls.caption, "cone.Kvt");
    for (const CFittingWindow* const window : {&fresh, &ofFile}) {
        EXPECT_FALSE(window->hasModel);
        EXPECT_TRUE(HasChanges(*window));
        EXPECT_EQ(window->controls.txtParameter[4].textColor, Red);
    }
    EXPECT_TRUE(rig.shell.ui.messages.empty());
    // They are kept by this run now, and offered once only.
    EXPECT_EQ(store.own.size(), 2U);
    EXPECT_TRUE(store.left.empty());
    EXPECT_FALSE(store.holdsLeft);
    frame.OfferCopies();
    EXPECT_EQ(frame.Children().size(), 2U);
}

TEST_F(RecoveryTest, OpenNoneDeletesAndLaterLeaves) {
    LeaveTwo();
    frame.OfferCopies();
    EXPECT_TRUE(frame.Children().empty());
    EXPECT_EQ(store.left.size(), 2U);
    EXPECT_FALSE(store.holdsLeft);
    choice = Choice::DeleteAll;
    CMainFrame next(rig.shell.context, rig.desktop, rig.help, rig.store, &store);
    next.OfferCopies();
    EXPECT_TRUE(next.Children().empty());
    EXPECT_TRUE(store.left.empty());
}

TEST_F(RecoveryTest, WhatCannotBeKeptAgainOrReadStaysWhereItIs) {
    LeaveTwo();
    store.left.insert(store.left.begin(), "damaged");
    choice = Choice::OpenAll;
    store.full = true;
    frame.OfferCopies();
    EXPECT_EQ(offered.size(), 3U);
    EXPECT_EQ(frame.Children().size(), 2U);
    EXPECT_EQ(store.left.size(), 3U);
    store.full = false;
    CMainFrame next(rig.shell.context, rig.desktop, rig.help, rig.store, &store);
    next.OfferCopies();
    EXPECT_EQ(next.Children().size(), 2U);
    EXPECT_EQ(store.left, std::vector<std::string>{"damaged"});
}

}  // namespace
}  // namespace korvet
