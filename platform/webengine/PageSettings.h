// What the program passes to the page module.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace ports {
class NoticeBoard;
}

namespace webengine {

inline constexpr std::string_view kSearchWords = "{words}";

/// When pages that the user does not see are discarded; "PageRest.h" says which.
struct RestTimes {
    std::chrono::milliseconds covered{std::chrono::minutes(4)};
    std::chrono::milliseconds closed{std::chrono::minutes(2)};
    /// So many covered pages stay however long they were covered: those seen last.
    std::size_t most_covered = 10;
    /// Of more closed pages than these the ones closed first go at once.
    std::size_t most_closed = 5;
    /// What the last discarded page leaves is freed by threads of the engine within this time.
    std::chrono::milliseconds clearing_up{std::chrono::seconds(5)};
    /// How often memory is looked for that was freed and is kept. Each look takes some milliseconds.
    std::chrono::milliseconds spare{std::chrono::minutes(1)};
};

struct PageSettings {
    /// Where downloads go: the native path of a folder, which is made when it is first needed.
    std::string download_folder;
    /// The native path of a path in drive form; empty when there is none.
    std::function<std::string(std::string_view)> to_native_path;
    /// A media file that was saved, by its native path: takes it into the library, or plays it at once.
    /// Without a player: empty.
    std::function<void(const std::string&)> add_to_library = {};
    std::function<void(const std::string&)> play = {};
    /// Adds the favourites of a bookmark file, given as its bytes. Returns what came of it, in words for the
    /// user.
    std::function<std::string(std::string_view)> import_favourites{};
    /// The bytes of a bookmark file with all favourites.
    std::function<std::string()> export_favourites{};
    /// Where sites may notify; null for nowhere.
    ports::NoticeBoard* notices = nullptr;
    /// The address of a search as the program makes it, with kSearchWords in the place of the words. Such an
    /// address goes to the service that the user chose.
    std::string search_form{};
    /// Offers the page in front to be added to the favourites.
    std::function<void()> add_to_favourites = {};
    /// Where the dictionaries of the spell check are; empty: none.
    std::string dictionary_folder = {};
    RestTimes rest = {};
    /// After so long without an answer on https a host that was typed without a scheme is asked on http.
    std::chrono::milliseconds patience_with_https{std::chrono::seconds(3)};
    /// Shows a file, by its native path, selected among its neighbours. Calls `otherwise`, at once or later,
    /// where the desktop cannot. Empty: never can.
    std::function<void(const std::string& file, std::function<void()> otherwise)> show_file = {};
    /// Where the folders of the users lie: a native path, made when it is first needed. Empty: nothing is
    /// kept.
    std::string users_folder = {};
};

}  // namespace webengine
