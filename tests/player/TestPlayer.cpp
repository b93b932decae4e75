// The whole player under hands without a plan: whatever is done in whatever order, what it keeps stays sound.
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <regex>
#include <unordered_set>

#include "player/PlayerHouse.h"

namespace {

using player::PlayerMenu;
using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;
using Entry = controls::Menu PlayerMenu::*;

constexpr std::array<Entry, 4> kFades = {&PlayerMenu::mnuQuickFade, &PlayerMenu::mnuMediumFade,
                                         &PlayerMenu::mnuLongFade, &PlayerMenu::mnuFadeOff};
constexpr std::array<Entry, 5> kPannings = {&PlayerMenu::mnuPanInstant, &PlayerMenu::mnuPanQuick,
                                            &PlayerMenu::mnuPanMedium, &PlayerMenu::mnuPanLong,
                                            &PlayerMenu::mnuPanOff};
constexpr std::array<Entry, 13> kOthers = {
    &PlayerMenu::mnuPlay,          &PlayerMenu::mnuPause,          &PlayerMenu::mnuStop,
    &PlayerMenu::mnuRepeat,        &PlayerMenu::mnuShuffle,        &PlayerMenu::mnuCueSong,
    &PlayerMenu::mnuRemoveCueList, &PlayerMenu::mnuIncreaseVolume, &PlayerMenu::mnuDecreaseVolume,
    &PlayerMenu::mnuMusicMute,     &PlayerMenu::mnuIncreaseSpeed,  &PlayerMenu::mnuDecreaseSpeed,
    &PlayerMenu::mnuNormalSpeed};

/// Every shape that a command of the player can have.
const std::regex& CommandShapes() {
    static const std::regex shapes(R"(open \S* type MPEGVideo Alias [ab] parent \d+ Style 1073741824)"
                                   R"(|play [ab] from 0 to (-1|\d+))"
                                   R"(|(Close|Pause|Stop|Resume|Play) [ab]?)"
                                   R"(|status [ab]? (mode|length|position|Volume))"
                                   R"(|set [ab]? time format (frames|ms))"
                                   R"(|set [ab]? speed -?\d+)"
                                   R"(|seek [ab]? to -?\d+)"
                                   R"(|setaudio [ab]? ((left|right) )?Volume to (1000|\d{1,3}))"
                                   R"(|put [ab]? window at 0 0 -?\d+ -?\d+)"
                                   R"(|follow [ab]( by \S+)?)");
    return shapes;
}

template <std::size_t kCount>
int Checked(const PlayerMenu& menu, const std::array<Entry, kCount>& entries) {
    return static_cast<int>(std::count_if(entries.begin(), entries.end(),
                                          [&menu](Entry entry) { return (menu.*entry).Checked(); }));
}

class HandsWithoutAPlan : public testing::TestWithParam<unsigned> {
protected:
    HandsWithoutAPlan() {
        for (int id = 1; id <= 12; ++id)
            paths_.push_back(
                house.AddSong("Artist - Song" + base::ToText(id) + ".mp3", 300 + Below(40'000), id));
        paths_.push_back(house.AddSong("Moon - Film.avi", 9'000, 1234567));
        paths_.push_back(house.AddSong("Short - Film.avi", 40));
        for (const char* name : {"gone1.mp3", "gone2.mp3"})
            paths_.push_back(PlayerHouse::Gone(name));
        paths_.push_back(house.AddBrokenSong("broken.mp3"));
        house.device.WhenOpened = [this] {
            house.desktop.Pass(opening_takes_);
            house.device.Advance(opening_takes_);
        };
        RebuildTracks();
    }

    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(chance_); }
    double Anywhere(double from, double to) {
        return std::uniform_real_distribution<double>(from, to)(chance_);
    }
    template <class List>
    auto AnyOf(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(list.size())))];
    }
    /// What a row of the tracks may hold: a number, of a song or of none, or a path.
    std::string AnyEntry() {
        if (Below(2) == 0) return AnyOf(paths_);
        return AnyOf(Texts{"1", "5", "7", "8", "12", "99", "1234567"});
    }
    void Choose(Entry entry) { (house.menu.*entry).Click.Raise(); }

    void RebuildTracks() {
        house.lstTracks.Clear();
        house.lstMaybe.Clear();
        house.ListMaybeChanged = true;
        for (int rows = Below(9); rows > 0; --rows)
            house.AddTrack("row " + base::ToText(rows), AnyEntry());
    }
    void DoubleClickATrack() {
        house.lstTracks.SetListIndex(Below(house.lstTracks.ListCount() + 1) - 1);
        house.lstTracks.DblClick.Raise();
    }
    void CueSomeWay() {
        house.lstTracks.SetListIndex(Below(house.lstTracks.ListCount() + 1) - 1);
        switch (Below(3)) {
            case 0:
                house.controls.queue.imgCueSongOver.Click.Raise();
                break;
            case 1:
                Choose(&PlayerMenu::mnuCueSong);
                break;
            default:
                house.Cue("dropped", "\"" + AnyOf(paths_) + "\"");
                house.state.CueHeadIsPath = true;
        }
    }
    void PlayOrTakeACue() {
        auto& cued = house.controls.queue.lstCuedSongs;
        cued.SetListIndex(Below(cued.ListCount() + 1) - 1);
        if (Below(2) == 0) {
            cued.DblClick.Raise();
        } else {
            house.controls.queue.imgUnCueOver.Click.Raise();
        }
    }
    void DragSomething() {
        auto& parts = house.controls;
        controls::Label& marker = *AnyOf(std::vector<controls::Label*>{
            &parts.transport.lblProgress, &parts.levels.lblStartFade, &parts.levels.lblSongSpeed});
        PlayerHouse::Press(marker, Anywhere(0, 4));
        for (int moves = Below(3); moves > 0; --moves)
            PlayerHouse::MoveTo(marker, Anywhere(-40, 40));
        if (Below(5) > 0) PlayerHouse::Release(marker);
    }
    void PressOrTurnSomething() {
        auto& parts = house.controls;
        switch (Below(5)) {
            case 0:
                PlayerHouse::Press(parts.levels.lblVol, Anywhere(-100, 2100));
                break;
            case 1:
                parts.levels.picVolume.MouseWheel.Raise(Below(9) - 4);
                break;
            case 2:
                parts.transport.picSongProgress.MouseWheel.Raise(Below(9) - 4);
                break;
            case 3:
                PlayerHouse::Press(parts.levels.picSpeed, Anywhere(0, 200));
                break;
            default:
                PlayerHouse::Press(parts.transport.picSongProgress,
                                   Anywhere(0, parts.transport.picSongProgress.ScaleWidth()));
        }
    }
    void TestTheSpeakers() {
        Choose(&PlayerMenu::mnuSoundTest);
        house.frmSpeakerTest.cmdRight.Click.Raise();
        if (Below(2) == 0) house.RunFor(500);
        house.frmSpeakerTest.UnloadWindow();
    }
    void ChangeAFile() {
        const std::string path = AnyOf(paths_);
        if (house.files.FileExists(path)) {
            house.files.Remove(path);
        } else {
            house.files.AddFile(path);
        }
    }

    void OneStep() {
        house.chance.Value = Anywhere(0, 1);
        house.desktop.YieldTakes = Below(4) == 0 ? Below(120) : 0;
        opening_takes_ = Below(8) == 0 ? Below(3000) : 0;
        if (Below(6) == 0) house.desktop.Post([this] { DoubleClickATrack(); });
        switch (Below(16)) {
            case 0:
            case 1:
            case 2:
                DoubleClickATrack();
                break;
            case 3:
                house.player.Next();
                break;
            case 4:
                house.player.Previous();
                break;
            case 5:
            case 6:
                CueSomeWay();
                break;
            case 7:
                PlayOrTakeACue();
                break;
            case 8:
                Choose(AnyOf(kFades));
                break;
            case 9:
                Choose(AnyOf(kPannings));
                break;
            case 10:
                DragSomething();
                break;
            case 11:
                PressOrTurnSomething();
                break;
            case 12:
                RebuildTracks();
                break;
            case 13:
                ChangeAFile();
                break;
            case 14:
                if (Below(4) == 0) TestTheSpeakers();
                break;
            default:
                Choose(AnyOf(kOthers));
        }
        if (Below(3) == 0) house.RunFor(50 * Below(60));
        house.desktop.Yield();
    }

    void ExpectSound() {
        const auto& state = house.state;
        const auto& queue = house.controls.queue;
        EXPECT_EQ(queue.lstCuedSongs.ListCount(), queue.lstCuedSongsPath.ListCount());
        ExpectFewBoxes();
        // After the box for a list of missing files the song before them may still be heard to its end.
        if (state.PlayerStopped && !stopped_by_a_box_) {
            EXPECT_FALSE(house.IsOpen("a"));
            EXPECT_FALSE(house.IsOpen("b"));
        }
        EXPECT_EQ(Checked(house.menu, kFades), 1);
        EXPECT_EQ(Checked(house.menu, kPannings), 1);
        EXPECT_EQ(house.menu.mnuMusicMute.Checked(), house.controls.levels.lblMute.Visible());
        EXPECT_GE(state.MusicVolume, 0);
        EXPECT_LE(state.MusicVolume, 100);
        EXPECT_LE(state.VideoPlaying, house.controls.video.picVideo.Visible() || state.PlayerStopped);
        ExpectBoundedMissingCount();
        for (const std::string& command : house.TakeCommands()) {
            if (!seen_.insert(command).second) continue;
            EXPECT_TRUE(std::regex_match(command, CommandShapes())) << command;
        }
    }
    /// A step ends or starts a few songs at most, and only one that is started or ends can be followed by a
    /// box.
    void ExpectFewBoxes() {
        const std::size_t boxes = house.dialogs.Boxes.size();
        EXPECT_LE(boxes, boxes_before_ + kMostBoxes);
        stopped_by_a_box_ = house.state.PlayerStopped && (stopped_by_a_box_ || boxes > boxes_before_);
        boxes_before_ = boxes;
    }
    /// A step starts a few songs at most, and each gives every cue and every row one turn.
    void ExpectBoundedMissingCount() {
        const int rows = house.controls.queue.lstNowPlaying.ListCount() + most_cued_;
        EXPECT_GE(house.state.MissingTrackCount, 0);
        EXPECT_LE(house.state.MissingTrackCount, missing_before_ + kMostStarts * (1 + rows));
        missing_before_ = house.state.MissingTrackCount;
        most_cued_ = house.controls.queue.lstCuedSongs.ListCount() + 1;
    }

    static constexpr int kMostStarts = 80;  // a tick may start one, and a step is 60 ticks and a few clicks
    /// Two double clicks, the end of a song and of one that could not be opened.
    static constexpr std::size_t kMostBoxes = 4;

    std::mt19937 chance_{GetParam()};
    PlayerHouse house;
    Texts paths_;
    std::unordered_set<std::string> seen_;  ///< commands that were looked at
    int missing_before_ = 0;
    std::size_t boxes_before_ = 0;
    bool stopped_by_a_box_ = false;
    int most_cued_ = 1;
    int opening_takes_ = 0;  ///< milliseconds, while the other song goes on
};

TEST_P(HandsWithoutAPlan, LeaveThePlayerSound) {
    for (int step = 0; step < 200 && !HasFailure(); ++step) {
        OneStep();
        ExpectSound();
    }

    // Whatever state it was left in, the next good song plays and ends by itself.
    Choose(&PlayerMenu::mnuStop);
    house.lstTracks.Clear();
    house.lstMaybe.Clear();
    const auto last = house.AddSong("last.mp3", 60'000);
    house.AddTrack("last", last);
    house.DoubleClickTrack(0);
    EXPECT_EQ(house.PlayingOn("a"), last);
}

INSTANTIATE_TEST_SUITE_P(OfManyKinds, HandsWithoutAPlan, testing::Range(1U, 13U));

}  // namespace
