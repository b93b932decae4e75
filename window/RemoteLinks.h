// The player as remote controls see and steer it, answered by the rooms and controls that know.
#pragma once

#include "window/Desk.h"

namespace window {

class RemoteLinks final : public RemotePlayer {
public:
    explicit RemoteLinks(Desk& desk) : desk_(desk) {}

    std::uint64_t Orders() const override;
    std::int64_t Openings() const override;
    std::uint64_t Seeks() const override;
    ports::PlaybackStatus Status() override;
    bool IsVideo() const override;
    std::string Artist() const override;
    std::string Title() const override;
    std::string Path() const override;
    double Length() override;
    double Position() override;
    int Speed() const override;
    double Volume() const override;
    bool HasSelectedTrack() const override;
    bool HasNext() const override;
    bool HasPrevious() const override;
    void Play() override;
    void Pause() override;
    void Stop() override;
    void Next() override;
    void Previous() override;
    void SeekTo(double second) override;
    void SetSpeed(double percent) override;
    void SetVolume(double level) override;
    void Raise() override;
    void Quit() override;

private:
    player::PlayerControls& Controls() const { return desk_.windows.frmBrowser.player; }
    const player::PlayerState& Known() const { return desk_.state.player; }
    double Seconds(std::int64_t frames) const;

    Desk& desk_;
};

}  // namespace window
