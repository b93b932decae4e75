// History and favourites on seeded stores, with neighbours that remember what they were asked.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/Number.h"
#include "controls/Form.h"
#include "controls/ListBox.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "fakes/NullWindow.h"
#include "fakes/SeededStores.h"
#include "places/AddFavouriteRoom.h"
#include "places/FavouritesRoom.h"
#include "places/HistoryRoom.h"

namespace places_tests {

using Texts = std::vector<std::string>;
using Row = fakes::FakeDatabase::Row;

/// Rows of a list box.
inline Texts RowsOf(const controls::ListBox& list) {
    Texts rows;
    for (int i = 0; i < list.ListCount(); ++i)
        rows.emplace_back(list.List(i));
    return rows;
}

class RecordingAddressRow final : public roles::AddressRow {
public:
    std::string Address() const override { return Text; }
    void SetAddress(std::string_view text) override { Text = text; }
    void ClearList() override {
        List.clear();
        ++Clears;
    }
    void AddToList(std::string_view text) override { List.emplace_back(text); }
    void SetTyped(std::string_view text) override { Typed = text; }
    void ShowLocation(std::string_view url) override { Typed = url; }
    bool IsAddressVisible() const override { return true; }
    roles::AddressMode Mode() const override { return Type; }
    void ClearStaleAddress() override {}
    void FocusAddress() override { ++Focuses; }

    std::string Text;
    std::string Typed;
    roles::AddressMode Type = roles::AddressMode::None;
    Texts List;
    int Clears = 0;
    int Focuses = 0;
};

class RecordingPageOpener final : public roles::PageOpener {
public:
    void OpenTab(std::string_view address) override { WentTo.emplace_back(address); }
    void Enter(std::string_view text) override { Entered.emplace_back(text); }
    void EnterAsWeb(std::string_view text) override { Entered.emplace_back(text); }

    Texts WentTo;
    Texts Entered;
};

class FakeFrontPage final : public roles::FrontPage {
public:
    bool IsPageVisible() const override { return Shown; }
    std::string LocationURL() const override { return Url; }
    std::string LocationName() const override { return Title; }
    void GoBack() override {}
    void GoForward() override {}
    void Refresh() override {}

    bool Shown = false;
    std::string Url;
    std::string Title;
};

class RecordingPlayedSongs final : public roles::TrackView {
public:
    void BeginView() override {
        Songs.clear();
        Log.emplace_back("begin");
    }
    void AddSong(std::string_view, std::string_view, std::string_view) override {
        Log.emplace_back("a song that was not played");
    }
    void AddPlayedSong(std::string_view song_id, std::string_view artist, std::string_view title) override {
        Songs.push_back(std::string(song_id).append("|").append(artist).append(" - ").append(title));
    }
    void EndView() override { Log.emplace_back("end"); }

    Texts Songs;
    Texts Log;
};

/// What is around the panel.
class RecordingWindow final : public roles::Layout,
                              public roles::VideoPane,
                              public roles::Highlights,
                              public roles::MediaKeys,
                              public roles::TrackLists {
public:
    void Form_Resize() override { Log.emplace_back("Form_Resize"); }
    void PlaceBelowSplitter() override { Log.emplace_back("PlaceBelowSplitter"); }
    void PlaceFavouritesPanel() override { Log.emplace_back("PlaceFavouritesPanel"); }
    void NoMouseOvers() override { Log.emplace_back("NoMouseOvers"); }
    void KeyDown(int key_code, int shift) override {
        Log.push_back("KeyDown " + base::ToText(key_code) + " " + base::ToText(shift));
    }
    bool IsVideoAttached() const override { return VideoAttached; }
    void ShowPane() override { Log.emplace_back("ShowPane"); }
    void ClosePane() override { Log.emplace_back("ClosePane"); }
    void Command1() override {
        Log.emplace_back("Command1");
        if (LoadFavs) LoadFavs();
    }

    void FollowMainWindow() override { Log.emplace_back("FollowMainWindow"); }
    void DisplayPlayLists() override { Log.emplace_back("DisplayPlayLists"); }
    void RefillIfEmpty() override { Log.emplace_back("RefillIfEmpty"); }
    void EndTasks() override { Log.emplace_back("EndTasks"); }

    bool VideoAttached = false;
    std::function<void()> LoadFavs;
    Texts Log;
};

/// The main window, as far as the dialog uses it.
class FormWindow final : public fakes::NullWindow {
public:
    explicit FormWindow(controls::Form& form) : form_(form) {}
    void Show() override { form_.Show(); }
    void SetEnabled(bool enabled) override { form_.SetEnabled(enabled); }

private:
    controls::Form& form_;
};

/// Panel and dialog together, as the main window joins them.
class FavouritesTest : public ::testing::Test {
protected:
    FavouritesTest() {
        window.LoadFavs = [this] { room.LoadFavs(); };
        stores.Bind(panel.datFav, "tblFavs");
        panel.PutInto(frmBrowser);
        frmBrowser.Show();
    }

    /// Rows behind the group "Home Pages": News with two favourites, Empty without one.
    void SeedFavourites() {
        stores.Seed("tblFavs", {{"2", "News", " ", " "},
                                {"3", "News", "  - Post", "http://post.example/"},
                                {"4", "Home Pages", "  - Start", "http://start.example/"},
                                {"5", "Empty", " ", " "},
                                {"6", "News", "  - Echo", "http://echo.example/"}});
    }
    void Load() {
        room.LoadFavs();
        room.populatefavs();
    }
    std::vector<Row> FavRows() { return stores.Rows("tblFavs"); }
    void Select(controls::ListBox& list, std::string_view text) {
        ASSERT_TRUE(list.SelectText(text)) << text;
    }

    fakes::FakeDesktop desktop;
    fakes::FakeDialogs boxes;
    fakes::SeededStores stores{desktop};
    controls::Form frmBrowser{"frmBrowser", "Brindlepost"};
    places::FavouritesControls panel;
    places::AddFavouriteForm form;
    places::FavouritesMenu menu;
    RecordingAddressRow address;
    FakeFrontPage page;
    RecordingWindow window;
    FormWindow main_window{frmBrowser};
    RecordingPageOpener opener;
    bool mainclose = false;
    places::AddFavouriteRoom dialog{
        form, {panel.datFav, panel.lblEntryCount}, room, mainclose, {main_window, window}, {boxes, desktop}};
    places::FavouritesRoom room{panel,
                                menu,
                                dialog,
                                {.address = address,
                                 .opener = opener,
                                 .page = page,
                                 .layout = window,
                                 .video = window,
                                 .highlights = window,
                                 .keys = window},
                                boxes};
};

}  // namespace places_tests
