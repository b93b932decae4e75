// The player as other subjects use it, doing nothing. A test overrides what it looks at.
#pragma once

#include <string_view>

#include "roles/PlayerSetup.h"
#include "roles/Transport.h"
#include "roles/VideoPane.h"

namespace fakes {

class NullTransport : public roles::Transport {
public:
    void PlaySong(std::string_view) override {}
    void Play() override {}
    void Pause() override {}
    bool IsPlayShown() const override { return true; }
    void Stop() override {}
    void StayStopped() override {}
    void StopAndForget() override {}
    void Next() override {}
    void Previous() override {}
    void SeekTo(double) override {}
    void SetSpeed(double) override {}
    void SetVolume(double) override {}
    void ToggleMute() override {}
    void IncreaseVolume() override {}
    void DecreaseVolume() override {}
};

class NullPlayerSetup : public roles::PlayerSetup {
public:
    void SetDefaults() override {}
    void ChooseQuickFade() override {}
    void ClearVideoPicture() override {}
    void EndUser() override {}
    void CloseMedia() override {}
    void RestoreBars() override {}
    void SettlePictures() override {}
};

class NullVideoPane : public roles::VideoPane {
public:
    bool IsVideoAttached() const override { return false; }
    void ShowPane() override {}
    void ClosePane() override {}
    void FollowMainWindow() override {}
};

}  // namespace fakes
