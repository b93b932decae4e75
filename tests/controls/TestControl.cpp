#include "controls/Control.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/RecordingObserver.h"

namespace controls {
namespace {

using Told = std::vector<Property>;

TEST(Control, AnAssignmentOfTheSameValueIsNotTold) {
    Label label("lblTrack", "text");
    RecordingObserver screen;
    label.SetObserver(&screen);

    label.SetVisible(true);
    label.SetEnabled(true);
    label.Move(0, 0, 0, 0);
    label.SetToolTipText("");
    label.SetAccessibleName("");
    label.SetLook("");
    label.SetCaption("text");
    label.SetAlign(Alignment::Left);

    EXPECT_EQ(screen.Told, Told{});
}

TEST(Control, AChangeIsToldOnce) {
    Label label("lblTrack");
    RecordingObserver screen;
    label.SetObserver(&screen);

    label.SetVisible(false);
    label.SetEnabled(false);
    label.Move(15, 30, 45, 60);
    label.SetToolTipText("tip");
    label.SetAccessibleName("name");
    label.SetLook("panel");
    label.SetFocus();
    label.Refresh();

    EXPECT_EQ(screen.Told, (Told{Property::Visible, Property::Enabled, Property::Geometry, Property::ToolTip,
                                 Property::ToolTip, Property::Colour, Property::Focus, Property::Refresh}));
}

TEST(Control, ASizeBelowNothingIsNothing) {
    Label label("lblTrack");

    label.Move(10, 20, -5, -6);

    EXPECT_EQ(label.Left(), 10);
    EXPECT_EQ(label.Width(), 0);
    EXPECT_EQ(label.Height(), 0);
}

TEST(Control, OneSideMovesAloneAndTheOthersStay) {
    Label label("lblTrack");
    label.Move(100, 200, 300, 400);

    label.SetLeft(10);
    label.SetTop(20);
    label.SetWidth(30);
    label.SetHeight(40);

    EXPECT_EQ(label.Left(), 10);
    EXPECT_EQ(label.Top(), 20);
    EXPECT_EQ(label.Right(), 40);
    EXPECT_EQ(label.Bottom(), 60);
}

TEST(Control, IsShownOnlyWhereEverythingAroundItIs) {
    Frame outer("fraOuter");
    Frame inner("fraInner");
    Label label("lblTrack");
    outer.Add(inner);
    inner.Add(label);

    EXPECT_TRUE(label.IsShown());
    outer.SetVisible(false);
    EXPECT_FALSE(label.IsShown());
    EXPECT_TRUE(label.Visible());
    outer.SetVisible(true);
    label.SetVisible(false);
    EXPECT_FALSE(label.IsShown());
}

TEST(Container, ChildrenAreListedBottomFirst) {
    Frame frame("fraTask");
    Label bottom("a");
    Label top("b");

    frame.Add(bottom, top);

    EXPECT_EQ(frame.Children(), (std::vector<Control*>{&bottom, &top}));
    EXPECT_EQ(bottom.Parent(), &frame);
}

TEST(Container, BringingToTheFrontChangesTheOrderOnce) {
    Frame frame("fraTask");
    Label first("a");
    Label second("b");
    Label third("c");
    RecordingObserver screen;
    frame.Add(first, second, third);
    first.SetObserver(&screen);

    first.BringToFront();
    first.BringToFront();

    EXPECT_EQ(frame.Children(), (std::vector<Control*>{&second, &third, &first}));
    EXPECT_EQ(screen.Told, Told{Property::ZOrder});
}

TEST(Container, WhatIsKeptInFrontStaysThereWhateverComesToTheFront) {
    Frame window("frmBrowser");
    Label page("page");
    Label panel("panel");
    Label task("task");
    Label pane("pane");
    window.Add(page, panel, task, pane);

    panel.KeepInFront(true);
    task.KeepInFront(true);
    EXPECT_EQ(window.Children(), (std::vector<Control*>{&page, &pane, &panel, &task}));
    page.BringToFront();
    EXPECT_EQ(window.Children(), (std::vector<Control*>{&pane, &page, &panel, &task}));
    panel.BringToFront();
    EXPECT_EQ(window.Children(), (std::vector<Control*>{&pane, &page, &task, &panel}));
    Label tab("tab");
    window.Add(tab);
    EXPECT_EQ(window.Children(), (std::vector<Control*>{&pane, &page, &tab, &task, &panel}));

    panel.KeepInFront(false);
    EXPECT_EQ(window.Children(), (std::vector<Control*>{&pane, &page, &tab, &panel, &task}));
    task.KeepInFront(false);
    pane.BringToFront();
    EXPECT_EQ(window.Children(), (std::vector<Control*>{&page, &tab, &panel, &task, &pane}));
}

TEST(Container, TheScreenRaisesWhatIsKeptInFrontOverWhatCame) {
    Frame window("frmBrowser");
    Label page("page");
    Label pane("pane");
    Label task("task");
    window.Add(page, pane, task);
    task.KeepInFront(true);
    RecordingObserver screen;
    page.SetObserver(&screen);
    task.SetObserver(&screen);

    page.BringToFront();
    page.BringToFront();

    EXPECT_EQ(screen.Told, (Told{Property::ZOrder, Property::ZOrder}));
    screen.Told.clear();
    Label tab("tab");
    window.Add(tab);
    EXPECT_EQ(screen.Told, Told{Property::ZOrder});
}

TEST(Container, AControlStandsInOneContainerOnly) {
    Frame one("fraOne");
    Frame other("fraOther");
    Label label("a");
    one.Add(label);

    other.Add(label);

    EXPECT_TRUE(one.Children().empty());
    EXPECT_EQ(label.Parent(), &other);
}

TEST(Container, AddingAgainBringsToTheFront) {
    Frame frame("fraTask");
    Label first("a");
    Label second("b");
    frame.Add(first, second);

    frame.Add(first);

    EXPECT_EQ(frame.Children(), (std::vector<Control*>{&second, &first}));
}

TEST(Container, AControlThatGoesLeavesItsContainer) {
    Frame frame("fraTask");
    auto label = std::make_unique<Label>("a");
    frame.Add(*label);

    label.reset();

    EXPECT_TRUE(frame.Children().empty());
}

TEST(Container, AContainerThatGoesLeavesItsControlsAlone) {
    Label label("a");
    {
        Frame frame("fraTask");
        frame.Add(label);
    }

    EXPECT_EQ(label.Parent(), nullptr);
    label.BringToFront();
}

TEST(Container, AWatchedContainerTellsOfANewcomerThatNobodyWatches) {
    Frame frame("fraTask");
    Label label("a");
    RecordingObserver screen;
    frame.SetObserver(&screen);

    frame.Add(label);

    EXPECT_EQ(screen.Told, Told{Property::Parent});
    EXPECT_EQ(screen.Controls, std::vector<Control*>{&label});
}

TEST(Container, AWatchedNewcomerTellsForItself) {
    Frame frame("fraTask");
    Label label("a");
    RecordingObserver of_frame;
    RecordingObserver of_label;
    frame.SetObserver(&of_frame);
    label.SetObserver(&of_label);

    frame.Add(label);

    EXPECT_EQ(of_frame.Told, Told{});
    EXPECT_EQ(of_label.Told, Told{Property::Parent});
}

}  // namespace
}  // namespace controls
