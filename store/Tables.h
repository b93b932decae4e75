// The tables and their fields, under the names they have in the files.
#pragma once

#include <array>
#include <string_view>

namespace store {

/// One field of a table: its place in a row, its name, and whether it is kept as an integer.
struct Field {
    int column = 0;
    std::string_view name;
    bool is_integer = false;
};

/// Longest texts of tblSong, in characters.
inline constexpr int kLongestName = 80;
inline constexpr int kLongestFilePath = 255;

/// The query texts in use.
inline constexpr std::string_view kAllSongs = "SELECT * from tblSong";
inline constexpr std::string_view kAllPlayListRows = "SELECT * from tblPlayList";
inline constexpr std::string_view kAllPlayListRowsToDelete = "SELECT * from tblPlaylist";
inline constexpr std::string_view kAllFolders = "SELECT * from tblFolder";
inline constexpr std::string_view kAllFavourites = "SELECT * from tblFavs";
inline constexpr std::string_view kAllHistory = "SELECT * from tblHistory";
inline constexpr std::string_view kAllUsers = "SELECT * from tblLogin";
inline constexpr std::string_view kFavouritesToDelete = "SELECT * from tblMySpace";
inline constexpr std::string_view kSongById = "SELECT * from tblSong where [SongID] = ID";
inline constexpr std::string_view kSongsByArtist =
    "SELECT * from tblSong ORDER BY Artist ASC; /* ascending sort */";

/// The files, as they are appended to the application folder.
inline constexpr std::string_view kMediaStore = "\\dbMedia.mdb";
inline constexpr std::string_view kFavouritesStore = "\\dbFavs.mdb";
inline constexpr std::string_view kHistoryStore = "\\dbHistory.mdb";
inline constexpr std::string_view kLoginStore = "\\dbLogin.mdb";

namespace tblSong {
inline constexpr Field SongID{0, "SongID", true};
inline constexpr Field artist{1, "artist"};
inline constexpr Field title{2, "title"};
inline constexpr Field FilePath{3, "FilePath"};
inline constexpr Field PlayCount{4, "PlayCount", true};
inline constexpr std::array kFields{SongID, artist, title, FilePath, PlayCount};
}  // namespace tblSong

namespace tblPlayList {
inline constexpr Field PlayListID{0, "PlayListID", true};
inline constexpr Field Name{1, "Name"};
inline constexpr Field SongID{2, "SongID", true};
inline constexpr Field artist{3, "artist"};
inline constexpr Field title{4, "title"};
inline constexpr std::array kFields{PlayListID, Name, SongID, artist, title};
}  // namespace tblPlayList

namespace tblFavs {
inline constexpr Field ID{0, "ID", true};
inline constexpr Field GroupName{1, "GroupName"};
inline constexpr Field FriendName{2, "FriendName"};
inline constexpr Field URL{3, "URL"};
inline constexpr std::array kFields{ID, GroupName, FriendName, URL};
}  // namespace tblFavs

namespace tblHistory {
inline constexpr Field HistoryID{0, "HistoryID", true};
inline constexpr Field HistoryType{1, "HistoryType"};
inline constexpr Field HistoryText{2, "HistoryText"};
inline constexpr std::array kFields{HistoryID, HistoryType, HistoryText};
}  // namespace tblHistory

namespace tblLogin {
inline constexpr Field UserName{0, "UserName"};
inline constexpr Field Password{1, "Password"};
inline constexpr Field MySpaceE{2, "MySpaceE"};
inline constexpr Field MySpaceP{3, "MySpaceP"};
inline constexpr Field HotmailE{4, "HotmailE"};
inline constexpr Field HotmailP{5, "HotmailP"};
inline constexpr Field FaceBookE{6, "FaceBookE"};
inline constexpr Field FaceBookP{7, "FaceBookP"};
inline constexpr Field RememberMe{8, "RememberMe"};
inline constexpr Field AutoLogin{9, "AutoLogin"};
inline constexpr std::array kFields{UserName, Password,  MySpaceE,  MySpaceP,   HotmailE,
                                    HotmailP, FaceBookE, FaceBookP, RememberMe, AutoLogin};
}  // namespace tblLogin

}  // namespace store
