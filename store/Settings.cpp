#include "store/Settings.h"

#include <cstdint>

#include "base/Number.h"
#include "store/Tables.h"

namespace store {

bool IsOn(Truth truth, std::string_view text) {
    switch (truth) {
        case Truth::OnlyTrue:
            return text == base::FlagText(true);
        case Truth::UnlessFalse:
            return text != base::FlagText(false);
        default:
            return false;
    }
}

bool IsOn(SettingsRow row, std::string_view text) {
    return IsOn(SettingOf(row).truth, text);
}

int HistoryNumber(const RecordSet& history) {
    return base::Saturated<std::int32_t>(base::WholeVal(history.Text(tblHistory::HistoryID)));
}

const Setting* SettingAt(const RecordSet& history) {
    const int number = HistoryNumber(history);
    const bool is_setting = number >= 1 && number <= NumberOf(SettingsRow::EndMark);
    return is_setting ? &SettingOf(static_cast<SettingsRow>(number)) : nullptr;
}

bool MoveToSetting(RecordSet& history, SettingsRow row) {
    for (history.MoveFirst(); !history.Eof(); history.MoveNext()) {
        if (HistoryNumber(history) == NumberOf(row)) return true;
    }
    return false;
}

bool WriteSetting(RecordSet& history, std::string_view text) {
    // A row that is right already needs no write, which may not be possible.
    if (history.Text(tblHistory::HistoryType) == kSettingsType &&
        history.Text(tblHistory::HistoryText) == text) {
        return true;
    }
    if (!history.Edit()) return false;
    history.Set(tblHistory::HistoryType, kSettingsType);
    history.Set(tblHistory::HistoryText, text);
    return history.Update();
}

}  // namespace store
