#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "library/LibraryPane.h"

namespace library_tests {

/// The pane with three songs and two play lists: "Road" with three entries, one of them twice, and "Sunday"
/// with one.
class PlayListPane : public testing::Test, protected LibraryPane {
protected:
    PlayListPane() {
        SeedSongs(
            {Song("1", "Lark", "Brindle", "4"), Song("2", "Ac-dc", "Nightjar"), Song("3", "Lark", "Largo")});
        SeedPlayLists({PlayListRow("1", "Road"), PlayListRow("2", "Road", "3", "Lark", "Largo"),
                       PlayListRow("3", "Sunday"), PlayListRow("4", "Sunday", "3", "Lark", "Largo"),
                       PlayListRow("5", "Road", "3", "Lark", "Largo"),
                       PlayListRow("6", "Road", "2", "Ac-dc", "Nightjar")});
        ListsRoom.Command1();
        Neighbours.Calls.clear();
    }

    void OpenPanelFor(int track) {
        Lists.lstTracks.SetListIndex(track);
        PlayLists.imgAddSongOver.Click.Raise();
    }
    void ExpectQuestion(std::string_view text, std::string_view title) {
        ASSERT_EQ(Dialogs.Boxes.size(), 1U);
        EXPECT_EQ(Dialogs.Boxes[0].text, text);
        EXPECT_EQ(Dialogs.Boxes[0].title, title);
        EXPECT_EQ(Dialogs.Boxes[0].buttons, ports::BoxButtons::YesNo);
        EXPECT_EQ(Dialogs.Boxes[0].icon, ports::BoxIcon::None);
    }
};

}  // namespace library_tests
