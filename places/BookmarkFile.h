// The bookmark file (HTML) in which browsers hand over favourites: folders within folders, each with its
// links.
//
// Such files come from many programs, and damaged ones from many more: what can be read of one is read, and
// nothing here fails. Folders within folders are flattened to one group, "A / B".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace places {

struct BookmarkLink {
    std::string group;
    std::string name;
    std::string address;
};

struct Bookmarks {
    /// In the order of the file, each once; a group may have no link.
    std::vector<std::string> groups;
    std::vector<BookmarkLink> links;
    /// Links that were left out: no web page, or beyond the limit.
    std::size_t skipped = 0;
};

/// Links of one file; lists hold no more rows.
inline constexpr std::size_t kMostBookmarks = 32000;
/// Characters of a name and of a group. A longer one is cut.
inline constexpr std::size_t kLongestBookmarkName = 200;
/// Bytes of an address. A link with a longer one is left out.
inline constexpr std::size_t kLongestBookmarkAddress = 4000;
/// The group of links that are in no folder.
inline constexpr std::string_view kGroupWithoutFolder = "Imported";

/// The bytes are UTF-8, UTF-16 with a mark, or Windows-1252, which is told by looking at them. Only links to
/// web pages and files are taken: a script in an address would run in whatever page is in front.
Bookmarks ReadBookmarks(std::string_view bytes);

/// A file that browsers read, in UTF-8.
std::string WriteBookmarks(const Bookmarks& bookmarks);

}  // namespace places
