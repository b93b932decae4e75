#include "player/ResumeRoom.h"

#include <gtest/gtest.h>

#include <memory>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;

/// The same computer from run to run: what a run kept is there in the next one.
struct Runs {
    Runs() { Begin(); }

    PlayerHouse& House() { return *house; }
    roles::KeptPlace& Place() { return house->player.Place(); }
    controls::Label& Offer() { return house->controls.resume.lblResume; }

    /// The program is killed, and started again. Nothing of it runs at its end.
    void KillAndBegin() {
        const auto texts = house->kept.Texts;
        Begin();
        house->kept.Texts = texts;
    }
    void Begin() {
        house = std::make_unique<PlayerHouse>();
        for (const char* name : {"Owls - Fly.mp3", "Bats - Hang.mp3", "Moths - Film.mp3", "Cat - Cue.mp3"})
            paths.push_back(house->AddSong(name, 300'000));
        house->AddTrack("Owls - Fly", paths[0]);
        house->AddTrack("Bats - Hang", paths[1]);
        house->AddTrack("Moths - Film", paths[2]);
    }
    void AnnPlays(int track, int milliseconds) {
        Place().BeginUser("Ann", true);
        House().DoubleClickTrack(track);
        House().RunFor(milliseconds);
    }
    void AnnTakesTheOffer() {
        Place().BeginUser("Ann", true);
        Offer().Click.Raise();
    }
    std::string Song(int number) const { return paths[static_cast<std::size_t>(number)]; }
    double Second() { return house->player.Playing().Position(); }

    std::unique_ptr<PlayerHouse> house;
    std::vector<std::string> paths;
};

TEST(ResumeRoom, AFirstLoginOffersNothing) {
    Runs runs;
    runs.Place().BeginUser("Ann", true);

    EXPECT_FALSE(runs.Offer().Visible());
    runs.House().RunFor(20'000);
    EXPECT_TRUE(runs.House().kept.Texts.empty());
}

TEST(ResumeRoom, AKilledProgramOffersListsRowAndPlaceAndAClickTakesThem) {
    Runs runs;
    runs.AnnPlays(1, 40'000);
    runs.House().player.Cue().CueFile(runs.Song(3), "Cat - Cue");
    runs.House().RunFor(43'500);

    runs.KillAndBegin();
    EXPECT_FALSE(runs.Offer().Visible());
    runs.Place().BeginUser("Ann", true);
    ASSERT_TRUE(runs.Offer().Visible());
    EXPECT_TRUE(runs.Offer().Caption().starts_with("Go on with Bats - Hang at 1:2"))
        << runs.Offer().Caption();
    runs.Offer().Click.Raise();

    EXPECT_FALSE(runs.Offer().Visible());
    EXPECT_EQ(runs.House().PlayingOn("a"), runs.Song(1));
    EXPECT_NEAR(runs.Second(), 83.5, 5.1);
    EXPECT_EQ(runs.House().controls.queue.lstCuedSongs.List(0), "Cat - Cue");
    EXPECT_EQ(runs.House().controls.queue.lstNowPlaying.ListCount(), 3);
    EXPECT_EQ(runs.House().controls.queue.lstNowPlaying.ListIndex(), 1);
    runs.House().player.Next();
    EXPECT_EQ(runs.House().NowPlaying(), runs.Song(3));
    runs.House().player.Next();
    EXPECT_EQ(runs.House().NowPlaying(), runs.Song(2));
}

TEST(ResumeRoom, TheKeptPlaceIsNeverMoreThanSixSecondsOld) {
    for (const int length : {1'000, 7'300, 12'050, 60'000, 121'950}) {
        Runs runs;
        runs.AnnPlays(0, length);
        const double heard = runs.Second();
        runs.KillAndBegin();
        runs.AnnTakesTheOffer();
        EXPECT_LE(runs.Second(), heard + 0.1) << length;
        EXPECT_GE(runs.Second(), heard - 6.1) << length;
    }
}

TEST(ResumeRoom, WritingIsBounded) {
    Runs runs;
    runs.AnnPlays(0, 10'000);
    const int before = runs.House().kept.Writes;

    runs.House().RunFor(100'000);
    EXPECT_LE(runs.House().kept.Writes - before, 21);
    EXPECT_GE(runs.House().kept.Writes - before, 19);

    runs.House().player.Pause();
    runs.House().RunFor(2'000);
    const int paused = runs.House().kept.Writes;
    runs.House().RunFor(100'000);
    EXPECT_EQ(runs.House().kept.Writes, paused);
}

TEST(ResumeRoom, ADragThatSeeksAllTheTimeWritesOnceASecond) {
    Runs runs;
    runs.AnnPlays(0, 5'000);
    const int before = runs.House().kept.Writes;

    for (int step = 0; step < 200; ++step) {
        runs.House().player.SeekTo(step);
        runs.House().RunFor(50);
    }

    EXPECT_LE(runs.House().kept.Writes - before, 11);
}

TEST(ResumeRoom, AStopKeepsThePlace) {
    Runs runs;
    runs.AnnPlays(2, 30'000);
    runs.House().player.Stop();
    runs.House().RunFor(30'000);

    runs.KillAndBegin();
    runs.AnnTakesTheOffer();

    EXPECT_EQ(runs.House().NowPlaying(), runs.Song(2));
    EXPECT_NEAR(runs.Second(), 30, 1.1);
}

TEST(ResumeRoom, AnOfferThatIsNotTakenStandsAgainAtTheNextStart) {
    Runs runs;
    runs.AnnPlays(0, 30'000);
    runs.KillAndBegin();
    runs.Place().BeginUser("Ann", true);
    const auto kept = runs.House().kept.Texts;
    runs.House().player.Cue().CueFile(runs.Song(3), "Cat - Cue");
    runs.House().RunFor(30'000);
    EXPECT_EQ(runs.House().kept.Texts, kept);

    runs.KillAndBegin();
    runs.Place().BeginUser("Ann", true);

    EXPECT_TRUE(runs.Offer().Visible());
}

TEST(ResumeRoom, ASongThatIsStartedTakesTheOfferAway) {
    Runs runs;
    runs.AnnPlays(0, 30'000);
    runs.KillAndBegin();
    runs.Place().BeginUser("Ann", true);

    runs.House().DoubleClickTrack(2);
    runs.House().RunFor(2'000);

    EXPECT_FALSE(runs.Offer().Visible());
    runs.KillAndBegin();
    runs.Place().BeginUser("Ann", true);
    EXPECT_NE(runs.Offer().Caption().find("Moths - Film"), std::string::npos);
}

TEST(ResumeRoom, WhatWasCuedSinceComesAfterWhatWasKept) {
    Runs runs;
    runs.Place().BeginUser("Ann", true);
    runs.House().DoubleClickTrack(0);
    runs.House().player.Cue().CueFile(runs.Song(3), "Cat - Cue");
    runs.House().RunFor(30'000);
    runs.KillAndBegin();
    runs.Place().BeginUser("Ann", true);
    runs.House().player.Cue().CueFile(runs.Song(1), "Bats - Hang");

    runs.Offer().Click.Raise();

    ASSERT_EQ(runs.House().controls.queue.lstCuedSongs.ListCount(), 2);
    EXPECT_EQ(runs.House().controls.queue.lstCuedSongs.List(0), "Cat - Cue");
    EXPECT_EQ(runs.House().controls.queue.lstCuedSongsPath.List(1), runs.Song(1));
}

TEST(ResumeRoom, ADoubleClickAfterwardsPlaysTheRowThatShows) {
    Runs runs;
    runs.AnnPlays(0, 30'000);
    runs.KillAndBegin();
    runs.House().lstTracks.RemoveItem(0);
    runs.House().lstMaybe.RemoveItem(0);
    runs.House().ListMaybeChanged = false;
    runs.AnnTakesTheOffer();

    runs.House().DoubleClickTrack(0);

    EXPECT_EQ(runs.House().NowPlaying(), runs.Song(1));
}

TEST(ResumeRoom, ASongThatIsGoneMakesWayForTheNextFromItsStart) {
    Runs runs;
    runs.AnnPlays(0, 30'000);
    runs.KillAndBegin();
    runs.House().files.Remove(runs.Song(0));
    runs.Place().BeginUser("Ann", true);

    runs.Offer().Click.Raise();

    EXPECT_EQ(runs.House().NowPlaying(), runs.Song(1));
    EXPECT_LT(runs.Second(), 0.1);
}

TEST(ResumeRoom, EachUserHasAPlaceOfTheirOwn) {
    Runs runs;
    runs.AnnPlays(0, 30'000);
    runs.House().player.StopAndForget();
    runs.Place().EndUser();

    runs.Place().BeginUser("Bob", true);
    EXPECT_FALSE(runs.Offer().Visible());
    runs.House().DoubleClickTrack(2);
    runs.House().RunFor(10'000);
    runs.House().player.StopAndForget();
    runs.Place().EndUser();
    runs.House().RunFor(10'000);

    runs.Place().BeginUser("Ann", true);
    EXPECT_NE(runs.Offer().Caption().find("Owls - Fly at 0:"), std::string::npos) << runs.Offer().Caption();
}

TEST(ResumeRoom, ListsThatAnotherUserLeftAreKeptWithTheSongThatIsPlayedOfThem) {
    Runs runs;
    runs.AnnPlays(0, 30'000);
    runs.House().player.StopAndForget();
    runs.Place().EndUser();
    runs.Place().BeginUser("Bob", true);
    runs.House().RunFor(10'000);
    EXPECT_FALSE(runs.House().kept.Texts.contains("lists of Bob"));

    runs.House().player.Next();
    runs.House().RunFor(10'000);
    runs.KillAndBegin();
    runs.Place().BeginUser("Bob", true);
    runs.Offer().Click.Raise();

    EXPECT_EQ(runs.House().NowPlaying(), runs.Song(1));
    EXPECT_EQ(runs.House().controls.queue.lstNowPlaying.ListCount(), 3);
}

TEST(ResumeRoom, WithHistoryOffNothingIsKeptAndWhatWasGoes) {
    Runs runs;
    runs.AnnPlays(0, 30'000);
    runs.KillAndBegin();

    runs.Place().BeginUser("Ann", false);
    EXPECT_FALSE(runs.Offer().Visible());
    runs.House().DoubleClickTrack(1);
    runs.House().RunFor(30'000);

    EXPECT_TRUE(runs.House().kept.Texts.empty());
}

TEST(ResumeRoom, ADeletedHistoryTakesThePlaceAlongUntilTheNextSong) {
    Runs runs;
    runs.AnnPlays(0, 30'000);

    runs.Place().Forget();
    runs.House().RunFor(30'000);
    EXPECT_TRUE(runs.House().kept.Texts.empty());

    runs.House().player.Next();
    runs.House().RunFor(10'000);
    runs.KillAndBegin();
    runs.AnnTakesTheOffer();
    EXPECT_EQ(runs.House().NowPlaying(), runs.Song(1));
    EXPECT_EQ(runs.House().controls.queue.lstNowPlaying.ListCount(), 3);
}

TEST(ResumeRoom, ADeletedHistoryTakesTheOfferAlong) {
    Runs runs;
    runs.AnnPlays(0, 30'000);
    runs.KillAndBegin();
    runs.Place().BeginUser("Ann", true);

    runs.Place().Forget();

    EXPECT_FALSE(runs.Offer().Visible());
    EXPECT_TRUE(runs.House().kept.Texts.empty());
}

TEST(ResumeRoom, ADamagedTextIsSetAsideAndNothingOffered) {
    Runs runs;
    for (const char* name : {"place of Ann", "lists of Ann"})
        runs.House().kept.Texts[name] = "half a te";

    runs.Place().BeginUser("Ann", true);

    EXPECT_FALSE(runs.Offer().Visible());
    EXPECT_TRUE(runs.House().kept.Texts.empty());
    EXPECT_EQ(runs.House().kept.Aside.size(), 2U);
}

TEST(ResumeRoom, AFullDiskHurtsNothing) {
    Runs runs;
    runs.House().kept.DiskIsFull = true;
    runs.Place().BeginUser("Ann", true);

    runs.House().DoubleClickTrack(0);
    runs.House().RunFor(30'000);

    EXPECT_EQ(runs.House().NowPlaying(), runs.Song(0));
}

TEST(ResumeRoom, OfOtherListsAPlaceKnowsNoRow) {
    Runs runs;
    runs.AnnPlays(2, 30'000);
    const std::string place = runs.House().kept.Texts["place of Ann"];
    runs.House().ListMaybeChanged = true;
    runs.House().DoubleClickTrack(1);
    runs.House().RunFor(30'000);
    // Killed between the two writings.
    runs.House().kept.Texts["place of Ann"] = place;
    runs.KillAndBegin();

    runs.AnnTakesTheOffer();

    EXPECT_EQ(runs.House().NowPlaying(), runs.Song(2));
    EXPECT_EQ(runs.House().controls.queue.lstNowPlaying.ListIndex(), -1);
}

TEST(ResumeRoom, ACueListAloneIsOfferedAndPlaysNothing) {
    Runs runs;
    runs.Place().BeginUser("Ann", true);
    runs.House().player.Cue().CueFile(runs.Song(3), "Cat - Cue");
    runs.House().RunFor(10'000);
    runs.KillAndBegin();
    runs.Place().BeginUser("Ann", true);
    ASSERT_TRUE(runs.Offer().Visible());

    runs.Offer().Click.Raise();

    EXPECT_EQ(runs.House().NowPlaying(), "");
    EXPECT_EQ(runs.House().controls.queue.lstCuedSongs.ListCount(), 1);
    runs.House().player.Next();
    EXPECT_EQ(runs.House().NowPlaying(), runs.Song(3));
}

TEST(ResumeRoom, TheEndOfTheProgramKeepsTheLastPlace) {
    Runs runs;
    runs.AnnPlays(0, 33'900);
    const double heard = runs.Second();
    runs.Place().EndUser();

    runs.KillAndBegin();
    runs.AnnTakesTheOffer();

    EXPECT_NEAR(runs.Second(), heard, 0.1);
}

}  // namespace
