#include "window/MSN.h"

#include "base/Text.h"

namespace window {
namespace {

constexpr std::uint32_t kNowPlayingData = 1351;
/// A backslash and a zero, as characters.
constexpr std::string_view kSeparator = "\\0";
constexpr std::string_view kCategory = "Music";

/// Low byte first, the terminator included.
ports::CopyData BlockOf(std::string_view text) {
    ports::CopyData block;
    const std::u16string wide = base::ToUtf16(text);
    block.lpData.reserve(2 * (wide.size() + 1));
    for (std::size_t i = 0; i <= wide.size(); ++i) {
        const char16_t unit = i < wide.size() ? wide[i] : u'\0';
        block.lpData.push_back(static_cast<std::uint8_t>(unit & 0xFFU));
        block.lpData.push_back(static_cast<std::uint8_t>(unit >> 8U));
    }
    block.dwData = kNowPlayingData;
    block.cbData = static_cast<std::uint32_t>(block.lpData.size());
    return block;
}

}  // namespace

void MSN::SendNowPlaying(const roles::NowPlayingText& text) {
    if (!options_.Loaded || !options_.Allow_MSN_Name) return;
    std::string line(kSeparator);
    for (const std::string_view field : {kCategory, std::string_view(text.enabled ? "1" : "0"), text.format,
                                         text.first, text.second, text.third, text.extra}) {
        line.append(field).append(kSeparator);
    }
    messenger_.SendToWindows(kMessengerClass, BlockOf(line));
}

}  // namespace window
