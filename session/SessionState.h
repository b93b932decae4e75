// What the session knows, under the names the whole program uses. Plain data: rooms take it by reference.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace session {

/// Public flags of the splash window.
struct ConnectionState {
    bool Internet_Connection = true;
    bool Just_Music = false;
};

/// Public fields of the login window: the person who is logged in.
struct LoginState {
    std::string MySpaceE;
    std::string MySpaceP;
    std::string HotmailE;
    std::string HotmailP;
    std::string FaceBookE;
    std::string FaceBookP;
    /// The main window loads the settings again when it is next activated.
    bool NewLogin = false;
    bool Allow_Multiple_Users = false;
};

/// Options kept in the settings rows. They start as the shipped rows say, so a row that is gone leaves its
/// option on.
struct SessionOptions {
    /// The rows have been read.
    bool Loaded = false;
    bool Save_Settings = true;
    bool Open_Home_Pages = true;
    bool Allow_MSN_Name = true;
    bool Allow_MSN_Custom = true;
    bool Save_MSN_names = true;
    bool Auto_Login = true;
    bool Save_History = true;
    bool Allow_Search = true;
    bool Allow_Open_File = true;
    bool Include_Sub_Folders = true;
    /// Stored at every end of a session, read by nothing.
    bool Show_Activation = false;
    /// Row 5 as a number yyyymmdd, and today's number less it: a plain difference, no count of days.
    std::int32_t DaysStampA = 0;
    std::int32_t DaysStampAge = 0;
    /// Row 6, the date of the last back-up of all play lists, in the same form.
    std::int32_t LastPlayListBackUp = 0;
    std::int32_t LastPlayListBackUpAge = 0;
};

/// Public flags of the main window that belong to no subject.
struct SessionState {
    bool LoggedIn = false;
    /// The close was accepted; False again when the window is next activated.
    bool mainclose = false;
    /// The save leaves the windows loaded: the person only logs out.
    bool LoggingOut = false;
    /// Nothing was begun that an end would have to ask about, stop or save: a second start that handed over,
    /// or a start that found a store missing.
    bool NothingBegun = false;
    /// The program was started with files or an address.
    bool StartedWithArguments = false;
    std::vector<std::string> StartArguments;
    std::size_t StartArgument = 0;
    /// Settings are loaded by the start-up timer once only.
    bool FirstLoadDone = false;
    /// The splash has yet to be shown over the disabled main window.
    bool SplashPending = true;
    /// Width and height of the video pane at the start, joined by a comma.
    std::string VideoPaneSize;
};

}  // namespace session
