#include "player/MessengerLine.h"

namespace player {

namespace {

constexpr std::string_view kFormat = "{0} - {1} {2}";

}  // namespace

void MessengerLine::SetCustomText(std::string_view text) {
    state_.NowAlbum = text;
}

void MessengerLine::SendNowPlaying() {
    messenger_.SendNowPlaying({.first = state_.NowArtist,
                               .second = state_.NowTitle,
                               .third = state_.NowAlbum,
                               .extra = {},
                               .format = kFormat,
                               .enabled = true});
}

void MessengerLine::SendNothingPlaying() {
    messenger_.SendNowPlaying(
        {.first = {}, .second = {}, .third = {}, .extra = {}, .format = kFormat, .enabled = false});
}

}  // namespace player
