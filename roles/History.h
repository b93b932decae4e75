// The log of what was visited, typed or played.
#pragma once

#include <string_view>

#include "roles/AddressMode.h"

namespace roles {

enum class HistoryKind { Web, Music, File, Msn, Search };

/// `HistoryType` as the table keeps it.
constexpr std::string_view TextOf(HistoryKind kind) {
    switch (kind) {
        case HistoryKind::Web:
            return "Web";
        case HistoryKind::Music:
            return "Music";
        case HistoryKind::File:
            return "File";
        case HistoryKind::Msn:
            return "MSN";
        case HistoryKind::Search:
            return "Search";
    }
    return {};
}

/// What is typed in a mode is kept under the kind of the same name; without a mode, as in Web.
constexpr HistoryKind HistoryKindOf(AddressMode mode) {
    switch (mode) {
        case AddressMode::Msn:
            return HistoryKind::Msn;
        case AddressMode::File:
            return HistoryKind::File;
        case AddressMode::Search:
            return HistoryKind::Search;
        case AddressMode::Web:
        case AddressMode::None:
            break;
    }
    return HistoryKind::Web;
}

class History {
public:
    virtual ~History() = default;
    /// Adds a row, unless history is off or the text is empty or known. A store that cannot be read adds
    /// nothing.
    virtual void AddSiteToHistory(HistoryKind kind, std::string_view text) = 0;
    /// Music fills the music pane with the last 20 songs, any other kind the list of the address row.
    virtual void PopulateHistory(HistoryKind kind) = 0;
    /// Asks whether the whole history shall be deleted, and does it on Yes.
    virtual void DeleteHistory() = 0;
};

}  // namespace roles
