#include "scenario/Computer.h"

#include "base/Number.h"
#include "store/Settings.h"
#include "store/StartingContent.h"

namespace scenario {

Computer::Computer() {
    for (const std::string_view path : {kMediaPath, kFavouritesPath, kHistoryPath, kLoginPath}) {
        files.AddFile(path);
        database.MakeStore(path);
    }
    database.Seed(kFavouritesPath, "tblFavs",
                  {{store::kStartingFavourite.begin(), store::kStartingFavourite.end()}});
    for (const store::Setting& setting : store::kSettings) {
        database.Seed(kHistoryPath, "tblHistory",
                      {{base::ToText(store::NumberOf(setting.row)), std::string(store::kSettingsType),
                        std::string(setting.shipped)}});
    }
}

void Computer::AddSong(std::string_view path, fakes::FakeMedia of) {
    files.AddFile(path);
    media.AddFile(path, of);
    media.AddFile(files.GetShortPathName(path), of);
}

std::string Computer::AddToLibrary(int song_id, std::string_view artist, std::string_view title,
                                   fakes::FakeMedia of, std::string_view extension) {
    std::string path = "C:\\Music\\";
    path.append(artist).append(" - ").append(title).append(".").append(extension);
    AddSong(path, of);
    database.Seed(kMediaPath, "tblSong",
                  {{base::ToText(song_id), std::string(artist), std::string(title), path}});
    return path;
}

void Computer::AddUser(std::string_view name, std::string_view password) {
    database.Seed(
        kLoginPath, "tblLogin",
        {{std::string(name), std::string(password), " ", " ", " ", " ", " ", " ", "False", "False"}});
}

void Computer::AddPage(std::string_view address, std::string_view title) {
    web[std::string(address)] = {std::string(title), {}, {}};
}

std::string Computer::Setting(int row) const {
    return database.Rows(kHistoryPath, "tblHistory").at(static_cast<std::size_t>(row - 1)).at(2);
}

}  // namespace scenario
