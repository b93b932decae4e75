#include "player/SongTitle.h"

#include "base/Text.h"

namespace player {

namespace {

constexpr std::string_view kBetween = " - ";
constexpr std::size_t kExtensionLength = 4;

std::string_view WithoutExtension(std::string_view title) {
    const std::size_t length = base::Len(title);
    return length < kExtensionLength ? title : base::Left(title, length - kExtensionLength);
}

}  // namespace

SongTitle TitleOfFile(std::string_view name, bool is_video) {
    SongTitle song{"Unknown", std::string(name)};
    if (const std::size_t at = base::InStr(name, kBetween); at > 0) {
        song.artist = base::Left(name, at);
        song.title = base::Right(name, base::Len(name) - at - 2);
    }
    song.title = std::string(WithoutExtension(song.title));
    if (is_video) song.title += " [Video]";
    return song;
}

std::string CaptionOf(const SongTitle& song) {
    return std::string(base::Trim(song.artist)) + std::string(kBetween) + std::string(base::Trim(song.title));
}

}  // namespace player
