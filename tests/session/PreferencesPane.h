// The rooms of the preferences on a window of their own, in the session as the program joins it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "session/BackUpRoom.h"
#include "session/MaintenanceRoom.h"
#include "session/PreferencesRoom.h"
#include "session/SessionHarness.h"

namespace session_tests {

inline constexpr std::string_view kHistoryPath = fakes::SeededStores::kHistoryPath;
inline constexpr std::string_view kMediaPath = fakes::SeededStores::kMediaPath;

class PreferencesTest : public CoreTest {
protected:
    PreferencesTest() { BindSettings(); }

    /// The library lists its playlists, as DisplayPlayLists does.
    void HavePlayLists(const Texts& names) {
        near.OnDisplayPlayLists = [this, names] {
            pane.lstEditPlayList.Clear();
            for (const char* view : {"  [All Media]", "  [Last 20]", "  [Top 20]"})
                pane.lstEditPlayList.AddItem(view);
            for (const std::string& name : names)
                pane.lstEditPlayList.AddItem(name);
        };
    }
    void SeedSong(int id, std::string_view artist, std::string_view title,
                  std::string_view play_count = "0") {
        stores.Seed("tblSong", {{base::ToText(id), std::string(artist), std::string(title),
                                 "C:\\Music\\" + base::ToText(id) + ".mp3", std::string(play_count)}});
    }
    /// The head row of a playlist and a row for each song.
    void SeedPlayList(std::string_view name, const std::vector<int>& songs) {
        stores.Seed("tblPlayList", {{base::ToText(++play_list_key_), std::string(name)}});
        for (const int song : songs) {
            stores.Seed("tblPlayList", {{base::ToText(++play_list_key_), std::string(name),
                                         base::ToText(song), "old", "old"}});
        }
    }
    void OpenBackUp() {
        info.frmInfo.Show();
        info.cmdBackingUp.Click.Raise();
    }
    void Choose(std::string_view list) { ASSERT_TRUE(pane.lstEditPlayList.SelectText(list)) << list; }
    static Texts RowsOf(const controls::ListBox& list) {
        Texts rows;
        for (int row = 0; row < list.ListCount(); ++row)
            rows.emplace_back(list.List(row));
        return rows;
    }
    Texts BoxTexts() const {
        Texts texts;
        for (const fakes::ShownBox& box : boxes.Boxes)
            texts.push_back(box.text);
        return texts;
    }

    session::PreferencesMenu menu;
    session::BackUpControls& pane = info.back_up;
    session::MaintenanceRoom maintenance{
        info.maintenance,
        {.datSong = info.datSong, .datPlayList = info.datPlayList, .datFolder = info.datFolder},
        w.frmAddMedia,
        near,
        near,
        {stores.Stores, trouble},
        boxes,
        desktop};
    session::BackUpRoom back_up{
        info.back_up,
        {.datHistory = info.datHistory, .datSong = info.datSong, .datPlayList = info.datPlayList},
        options,
        near,
        {.files = files, .dialogs = boxes, .clock = desktop, .loop = desktop}};
    session::PreferencesRoom preferences{info,  menu,    back_up, wizard, {stores.Stores, trouble},
                                         boxes, kAppPath};

private:
    int play_list_key_ = 0;
};

}  // namespace session_tests
