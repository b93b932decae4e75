// A computer without a screen, sound or net: the files, the stores as they are shipped, what plays and the
// made-up web. It outlasts the runs of the program.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/FakeBrowserControl.h"
#include "fakes/FakeDatabase.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeInstanceLock.h"
#include "fakes/FakeKeptTexts.h"
#include "fakes/FakeMediaControl.h"
#include "fakes/FakeRegistry.h"

namespace scenario {

inline constexpr std::string_view kMediaPath = "C:\\app\\dbMedia.mdb";
inline constexpr std::string_view kFavouritesPath = "C:\\app\\dbFavs.mdb";
inline constexpr std::string_view kHistoryPath = "C:\\app\\dbHistory.mdb";
inline constexpr std::string_view kLoginPath = "C:\\app\\dbLogin.mdb";

struct Computer {
    Computer();

    /// A media file that can be found, opened and played.
    void AddSong(std::string_view path, fakes::FakeMedia media = {});
    /// A song in the library, whose file is there as well. Gives its path.
    std::string AddToLibrary(int song_id, std::string_view artist, std::string_view title,
                             fakes::FakeMedia media = {}, std::string_view extension = "mp3");
    /// A person who may log in, with no site logins.
    void AddUser(std::string_view name, std::string_view password);
    /// A page under a whole address.
    void AddPage(std::string_view address, std::string_view title);
    /// The text of a settings row, 1 to 20.
    std::string Setting(int row) const;

    fakes::FakeFiles files{"C:\\app"};
    fakes::FakeDatabase database;
    fakes::FakeMediaControl media;
    fakes::FakeWeb web;
    /// Of each user's pages.
    std::map<std::string, fakes::FakeCookies> cookies;
    fakes::FakeInstances instances;
    fakes::FakeRegistry registry;
    fakes::FakeKeptTexts kept;
};

}  // namespace scenario
