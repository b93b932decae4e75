#include "base/SongEntry.h"

#include "base/Number.h"
#include "base/Text.h"

namespace base {

SongEntry::SongEntry(std::string_view text, std::size_t shortest_path)
    : text_(text), is_song_id_(Len(text) < shortest_path) {
    if (is_song_id_) song_id_ = WholeVal(text);
}

}  // namespace base
