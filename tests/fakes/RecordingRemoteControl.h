// Whoever carries out what is asked for on the desktop's player controls: it only notes it.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "ports/NowPlaying.h"

namespace fakes {

/// Notes what it is asked for.
class RecordingRemoteControl final : public ports::RemoteControl {
public:
    void OnPlay() override { Asked.emplace_back("play"); }
    void OnPause() override { Asked.emplace_back("pause"); }
    void OnPlayPause() override { Asked.emplace_back("play or pause"); }
    void OnStop() override { Asked.emplace_back("stop"); }
    void OnNext() override { Asked.emplace_back("next"); }
    void OnPrevious() override { Asked.emplace_back("previous"); }
    void OnSeek(std::int64_t offset) override { Asked.push_back("seek " + std::to_string(offset)); }
    void OnSetPosition(std::int64_t track, std::int64_t position) override {
        Asked.push_back("position " + std::to_string(track) + " " + std::to_string(position));
    }
    void OnSetRate(double rate) override { Asked.push_back("rate " + std::to_string(rate)); }
    void OnSetVolume(double volume) override { Asked.push_back("volume " + std::to_string(volume)); }
    void OnSetRepeat(bool repeat) override { Asked.emplace_back(repeat ? "repeat" : "repeat no more"); }
    void OnSetShuffle(bool shuffle) override { Asked.emplace_back(shuffle ? "shuffle" : "shuffle no more"); }
    void OnGoTo(std::int64_t track) override { Asked.push_back("go to " + std::to_string(track)); }
    void OnRaise() override { Asked.emplace_back("raise"); }
    void OnQuit() override { Asked.emplace_back("quit"); }
    std::int64_t Position() override { return At; }
    std::vector<ports::ListedTrack> Describe(const std::vector<std::int64_t>& tracks) override {
        std::vector<ports::ListedTrack> known;
        for (const ports::ListedTrack& track : Known) {
            if (std::count(tracks.begin(), tracks.end(), track.track) > 0) known.push_back(track);
        }
        return known;
    }

    std::vector<std::string> Asked;
    std::int64_t At = 0;
    std::vector<ports::ListedTrack> Known;
};

}  // namespace fakes
