// History and favourites on seeded stores, with neighbours that remember what they were asked.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/Number.h"
#include "controls/ListBox.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "fakes/SeededStores.h"
#include "places/AddFavouriteRoom.h"
#include "places/FavouritesRoom.h"
#include "places/HistoryRoom.h"

namespace places_test {

using Texts = std::vector<std::string>;
using Row = fakes::FakeDatabase::Row;

/// Rows of a list box.
inline Texts RowsOf(const controls::ListBox& list) {
    Texts rows;
    for (int i = 0; i < list.ListCount(); ++i)
        rows.emplace_back(list.List(i));
    return rows;
}

class RecordingAddressRow final : public places::AddressRow {
public:
    std::string Address() const override { return Text; }
    void SetAddress(std::string_view text) override { Text = text; }
    void ClearList() override {
        List.clear();
        ++Clears;
    }
    void AddToList(std::string_view text) override { List.emplace_back(text); }
    void SetTyped(std::string_view text) override { Typed = text; }
    std::string Mode() const override { return Type; }
    void cmdGo() override { WentTo.push_back(Text); }
    void PressEnter() override { Entered.push_back(Text); }
    void FocusAddress() override { ++Focuses; }

    std::string Text;
    std::string Typed;
    std::string Type;
    Texts List;
    Texts WentTo;
    Texts Entered;
    int Clears = 0;
    int Focuses = 0;
};

class FakeFrontPage final : public places::FrontPage {
public:
    bool IsPageVisible() const override { return Shown; }
    std::string LocationURL() const override { return Url; }
    std::string LocationName() const override { return Title; }

    bool Shown = false;
    std::string Url;
    std::string Title;
};

class RecordingPlayedSongs final : public places::PlayedSongsView {
public:
    void BeginView() override {
        Songs.clear();
        Log.emplace_back("begin");
    }
    void AddSong(std::string_view song_id, std::string_view artist, std::string_view title) override {
        Songs.push_back(std::string(song_id).append("|").append(artist).append(" - ").append(title));
    }
    void EndView() override { Log.emplace_back("end"); }

    Texts Songs;
    Texts Log;
};

class RecordingWindow final : public places::FavouritesWindow {
public:
    void Form_Resize() override { Log.emplace_back("Form_Resize"); }
    void NoMouseOvers() override { Log.emplace_back("NoMouseOvers"); }
    void KeyDown(int key_code, int shift) override {
        Log.push_back("KeyDown " + base::ToText(key_code) + " " + base::ToText(shift));
    }
    bool IsVideoAttached() const override { return VideoAttached; }
    void ShowVideoPane() override { Log.emplace_back("ShowVideoPane"); }
    void HideVideoPane() override { Log.emplace_back("HideVideoPane"); }
    void Command1() override {
        Log.emplace_back("Command1");
        if (LoadFavs) LoadFavs();
    }

    bool VideoAttached = false;
    std::function<void()> LoadFavs;
    Texts Log;
};

/// The dialog as the panel is given it, before the dialog's room is there.
class LateDialog final : public places::FavouritesDialog {
public:
    void OpenToAdd(std::string_view name, std::string_view address) override {
        Room->OpenToAdd(name, address);
    }
    void OpenToDelete() override { Room->OpenToDelete(); }
    void OfferAddress(std::string_view address) override { Room->OfferAddress(address); }
    void ClearGroups() override { Room->ClearGroups(); }
    void AddGroup(std::string_view name) override { Room->AddGroup(name); }

    places::FavouritesDialog* Room = nullptr;
};

/// Panel and dialog together, as the main window joins them.
class FavouritesTest : public ::testing::Test {
protected:
    FavouritesTest() {
        late_dialog.Room = &dialog;
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
    LateDialog late_dialog;
    bool mainclose = false;
    places::FavouritesRoom room{panel, menu, {address, page, window, late_dialog}, boxes};
    places::AddFavouriteRoom dialog{
        form, {frmBrowser, panel.datFav, panel.lblEntryCount, mainclose}, room, window, boxes, desktop};
};

}  // namespace places_test
