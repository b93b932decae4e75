// What the session knows, under the names the whole program uses. Plain data: rooms take it by reference.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "web/SessionFacts.h"

namespace session {

/// Public flags of the splash window.
struct ConnectionState {
    bool Internet_Connection = true;
    bool Just_Music = false;
};

/// Public fields of the login window: the user who is logged in.
struct LoginState : web::SiteCredentials {
    /// Stored and kept like the others; no page asks for these two.
    std::string FaceBookE;
    std::string FaceBookP;
    /// The main window loads the settings again when it is next activated.
    bool NewLogin = false;
    bool Allow_Multiple_Users = false;
};

/// Options kept in the settings rows (session/Options.h has the row of each). They start as the rows are
/// shipped, so a row that is gone leaves its option on.
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
    /// Stored in the end mark at every end of a session, read by nothing.
    bool Show_Activation = false;
    /// The age of the last clean-up, as session/DateAge.h counts it.
    std::int32_t DaysStampA = 0;
    /// The day of the last back-up of all play lists as a number yyyymmdd.
    std::int32_t LastPlayListBackUp = 0;
};

/// Public flags of the main window that belong to no subject.
struct SessionState {
    bool LoggedIn = false;
    /// The user who is logged in; empty while nobody is.
    std::string UserName;
    /// The close was accepted. False again when the window is next activated, but for an activation that
    /// comes while the close is under way.
    bool mainclose = false;
    /// The save leaves the windows loaded: the user only logs out.
    bool LoggingOut = false;
    /// Nothing was begun that an end would have to ask about, stop or save: a second start that handed over,
    /// or a start that found a store missing.
    bool NothingBegun = false;
    /// The program was started with files or an address.
    bool StartedWithArguments = false;
    /// The quoted texts of the command line and the next of them. Read by nothing: the mailbox opens them.
    std::vector<std::string> StartArguments;
    std::size_t StartArgument = 0;
    /// Home pages wait until somebody is logged in, who may want none.
    bool HomePagesWait = false;
    /// The first user of this run gets no home pages.
    bool WithoutHomePages = false;
    /// Settings are loaded by the start-up timer once only.
    bool FirstLoadDone = false;
    /// The splash has yet to be shown over the disabled main window.
    bool SplashPending = true;
    /// Width and height of the video pane at the start, joined by a comma, for restoring it.
    std::string VideoPaneSize;

    /// Nothing is loaded any more and no window may refuse to unload.
    bool IsOver() const { return NothingBegun || mainclose; }
};

}  // namespace session
