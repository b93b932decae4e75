#include "player/MessengerLine.h"

namespace player {

namespace {

constexpr std::string_view kFormat = "{0} - {1} {2}";

}  // namespace

void MessengerLine::SetCustomText(std::string_view text) {
    state_.NowAlbum = text;
}

void MessengerLine::Forget() {
    state_.NowArtist.clear();
    state_.NowTitle.clear();
    state_.NowAlbum.clear();
}

void MessengerLine::SendNowPlaying() {
    has_told_ = true;
    messenger_.SendNowPlaying({.first = state_.NowArtist,
                               .second = state_.NowTitle,
                               .third = state_.NowAlbum,
                               .extra = {},
                               .format = kFormat,
                               .enabled = true});
}

void MessengerLine::SendNothingPlaying() {
    has_told_ = false;
    messenger_.SendNowPlaying(
        {.first = {}, .second = {}, .third = {}, .extra = {}, .format = kFormat, .enabled = false});
}

}  // namespace player
