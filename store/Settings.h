// The settings rows of tblHistory: what each one ships with, how its text is read, and who writes it.
//
// A settings row is known by its HistoryID, never by its text. Rows are only edited, never added; a row that
// is gone leaves its setting as it is.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "store/RecordSet.h"

namespace store {

/// The HistoryID of each row. Those of the options, SaveSettings to SubFolders, have their flag and their
/// check box in session/Options.h.
enum class SettingsRow {
    Repeat = 1,
    Shuffle,
    RefreshSeconds,
    SearchField,
    LastCleanUp,  ///< a date yyyymmdd; 0: never
    LastBackUp,   ///< a date yyyymmdd; 0: never
    MusicTab,
    ScrollTitle,
    SaveSettings,
    OpenHomePages,
    MessengerName,
    MessengerCustom,
    SaveMessengerNames,
    MultipleUsers,
    AutoLogin,
    SaveHistory,
    Search,
    OpenFile,
    SubFolders,
    EndMark,  ///< ends the reading; its own text is never read
};

/// How the text of a row becomes a flag.
enum class Truth {
    NoFlag,
    OnlyTrue,     ///< on with the text "True" alone
    UnlessFalse,  ///< on with any text but "False", the empty one too
};

/// Who changes the text of a row. Loading the settings writes today's date over a date of 0 besides.
enum class SettingsWriter {
    EndOfSession,       ///< exit and log out, if settings are saved and were loaded
    EveryEndOfSession,  ///< exit and log out, whatever else is saved
    CleanUp,            ///< the library's clean-up, when it starts
    BackUp,             ///< the back-up of all play lists
    Preferences,        ///< at once, when they are applied
};

struct Setting {
    SettingsRow row;
    std::string_view shipped;  ///< its HistoryText in the store that comes with the program
    Truth truth;
    SettingsWriter writer;
};

/// All rows, in the order of their numbers.
inline constexpr std::array kSettings = {
    // A list plays to its end, in list order.
    Setting{SettingsRow::Repeat, "False", Truth::OnlyTrue, SettingsWriter::EndOfSession},
    Setting{SettingsRow::Shuffle, "False", Truth::OnlyTrue, SettingsWriter::EndOfSession},
    // The value that the question for the seconds offers too.
    Setting{SettingsRow::RefreshSeconds, "60", Truth::NoFlag, SettingsWriter::EndOfSession},
    Setting{SettingsRow::SearchField, "Broad", Truth::NoFlag, SettingsWriter::EndOfSession},
    Setting{SettingsRow::LastCleanUp, "0", Truth::NoFlag, SettingsWriter::CleanUp},
    Setting{SettingsRow::LastBackUp, "0", Truth::NoFlag, SettingsWriter::BackUp},
    // The one tab that is there on the first run.
    Setting{SettingsRow::MusicTab, "True", Truth::OnlyTrue, SettingsWriter::EndOfSession},
    Setting{SettingsRow::ScrollTitle, "True", Truth::UnlessFalse, SettingsWriter::EndOfSession},
    Setting{SettingsRow::SaveSettings, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    // The group ships empty, so pages that the user puts there open without a further step.
    Setting{SettingsRow::OpenHomePages, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    Setting{SettingsRow::MessengerName, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    Setting{SettingsRow::MessengerCustom, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    Setting{SettingsRow::SaveMessengerNames, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    // The login reads this row by the other rule: only "True" brings its window up a second time, enables the
    // log out before the main window shows, and lets pages be logged in to.
    Setting{SettingsRow::MultipleUsers, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    // A user who has stored no logins sends the login forms of the two sites off empty.
    Setting{SettingsRow::AutoLogin, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    Setting{SettingsRow::SaveHistory, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    Setting{SettingsRow::Search, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    Setting{SettingsRow::OpenFile, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    Setting{SettingsRow::SubFolders, "True", Truth::UnlessFalse, SettingsWriter::Preferences},
    Setting{SettingsRow::EndMark, "True", Truth::NoFlag, SettingsWriter::EveryEndOfSession},
};

/// The HistoryType of a settings row.
inline constexpr std::string_view kSettingsType = "Settings";

/// The last row that deleting the history keeps. The limit is the history's own and lies inside this table:
/// MessengerName to EndMark go with the history. Their options then keep their values until the program
/// ends, and start as SessionOptions starts them, which is as they were shipped. Their numbers go to the
/// next history rows, which the settings then read like any text that is not "False", and the end of a
/// session writes its EndMark over the history row of that number.
inline constexpr SettingsRow kLastRowOfDeletedHistory = SettingsRow::OpenHomePages;

constexpr int NumberOf(SettingsRow row) {
    return static_cast<int>(row);
}

constexpr const Setting& SettingOf(SettingsRow row) {
    return kSettings[static_cast<std::size_t>(NumberOf(row) - 1)];
}

consteval bool AreInOrder() {
    int number = 0;
    for (const Setting& setting : kSettings)
        if (NumberOf(setting.row) != ++number) return false;
    return number == NumberOf(SettingsRow::EndMark);
}
static_assert(AreInOrder());

bool IsOn(Truth truth, std::string_view text);
/// The flag of a row, by its own rule.
bool IsOn(SettingsRow row, std::string_view text);

/// The HistoryID of the current row of tblHistory, whatever the row is; 0 for a text that is no number.
int HistoryNumber(const RecordSet& history);
/// The setting of the current row of tblHistory; null when it is no settings row.
const Setting* SettingAt(const RecordSet& history);
/// Makes the row of a setting the current one; false, and past the last row, when it is gone.
bool MoveToSetting(RecordSet& history, SettingsRow row);
/// Writes the current row as a settings row with this text; false when there is no current row.
bool WriteSetting(RecordSet& history, std::string_view text);

}  // namespace store
