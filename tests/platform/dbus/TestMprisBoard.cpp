#include "platform/dbus/MprisBoard.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QFile>
#include <QTemporaryDir>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>

#include "fakes/RecordingRemoteControl.h"
#include "platform/dbus/BusBench.h"

namespace {

using dbus_tests::PlayerWatcher;

const QString kName = QStringLiteral("org.mpris.MediaPlayer2.brindlepost");
const QString kPlayer = QStringLiteral("org.mpris.MediaPlayer2.Player");

QString Text(const char* text) {
    return QString::fromUtf8(text);
}

QVariantMap MapOf(const QVariant& value) {
    return qdbus_cast<QVariantMap>(value);
}

class MprisBoardTest : public testing::Test {
protected:
    MprisBoardTest() {
        dbus_tests::JoinNow(session);
        board.SetListener(&control);
        session.WaitForAnswers();
    }

    static ports::NowPlaying Song() {
        ports::NowPlaying now;
        now.status = ports::PlaybackStatus::Playing;
        now.track = 3;
        now.title = "Nightjar";
        now.artist = "Owls";
        now.path = "/m/Owls - Nightjar #2.mp3";
        now.length = 180'000'000;
        now.can_play = now.can_pause = now.can_seek = true;
        return now;
    }

    dbus_tests::PrivateBus bus;
    dbus::SessionBus session{bus.Address()};
    fakes::RecordingRemoteControl control;
    dbus::MprisBoard board{session};
    PlayerWatcher watcher{bus, kName};
};

TEST_F(MprisBoardTest, TheProgramSaysWhoItIs) {
    const QVariantMap root = watcher.All(Text("org.mpris.MediaPlayer2"));

    EXPECT_EQ(root.value(Text("Identity")).toString(), Text("Brindlepost"));
    EXPECT_EQ(root.value(Text("DesktopEntry")).toString(), Text("brindlepost"));
    EXPECT_TRUE(root.value(Text("CanRaise")).toBool());
    EXPECT_TRUE(root.value(Text("CanQuit")).toBool());
    EXPECT_TRUE(root.value(Text("HasTrackList")).toBool());
    EXPECT_EQ(root.size(), 7);
}

TEST_F(MprisBoardTest, EveryPropertyOfAPlayerIsThere) {
    const QVariantMap player = watcher.All(kPlayer);

    for (const char* name : {"PlaybackStatus", "Rate", "Metadata", "Volume", "Position", "MinimumRate",
                             "MaximumRate", "LoopStatus", "Shuffle", "CanGoNext", "CanGoPrevious", "CanPlay",
                             "CanPause", "CanSeek", "CanControl"}) {
        EXPECT_TRUE(player.contains(Text(name))) << name;
    }
    EXPECT_TRUE(player.value(Text("CanControl")).toBool());
    EXPECT_DOUBLE_EQ(player.value(Text("MinimumRate")).toDouble(), 0.03);
    EXPECT_DOUBLE_EQ(player.value(Text("MaximumRate")).toDouble(), 2.0);
}

TEST_F(MprisBoardTest, MetadataHasTheTypesOfTheInterface) {
    board.Show(Song());

    const QVariantMap data = MapOf(watcher.Get(Text("Metadata")));

    EXPECT_EQ(data.value(Text("mpris:trackid")).value<QDBusObjectPath>().path(),
              Text("/org/brindlepost/Brindlepost/Track/3"));
    EXPECT_EQ(data.value(Text("xesam:title")).toString(), Text("Nightjar"));
    EXPECT_EQ(data.value(Text("xesam:artist")).toStringList(), QStringList{Text("Owls")});
    EXPECT_EQ(data.value(Text("xesam:url")).toString(), Text("file:///m/Owls%20-%20Nightjar%20%232.mp3"));
    EXPECT_EQ(data.value(Text("mpris:length")).metaType(), QMetaType::fromType<qlonglong>());
    EXPECT_EQ(data.value(Text("mpris:length")).toLongLong(), 180'000'000);
}

TEST_F(MprisBoardTest, WithoutASongThereIsNoTrack) {
    const QVariantMap data = MapOf(watcher.Get(Text("Metadata")));

    EXPECT_EQ(data.size(), 1);
    EXPECT_EQ(data.value(Text("mpris:trackid")).value<QDBusObjectPath>().path(),
              Text("/org/mpris/MediaPlayer2/TrackList/NoTrack"));
}

TEST_F(MprisBoardTest, ANameThatIsNoTextOfAnyScriptStillHasAnAddress) {
    ports::NowPlaying song = Song();
    song.path =
        "/m/a\xFF"
        "b.mp3";
    song.title =
        "a\xFF"
        "b";

    board.Show(song);

    const QVariantMap data = MapOf(watcher.Get(Text("Metadata")));
    EXPECT_EQ(data.value(Text("xesam:url")).toString(), Text("file:///m/a%FFb.mp3"));
    EXPECT_EQ(data.value(Text("xesam:title")).toString(), Text("a\xEF\xBF\xBD"
                                                               "b"));
}

TEST_F(MprisBoardTest, OnlyTheChangedPropertiesAreTold) {
    ports::NowPlaying song = Song();
    board.Show(song);
    watcher.Settle();
    watcher.News.clear();
    song.status = ports::PlaybackStatus::Paused;
    song.volume = 0.25;

    board.Show(song);
    watcher.Settle();

    ASSERT_EQ(watcher.News.size(), 1U);
    EXPECT_EQ(watcher.News[0].keys(), (QStringList{Text("PlaybackStatus"), Text("Volume")}));
    EXPECT_EQ(watcher.News[0].value(Text("PlaybackStatus")).toString(), Text("Paused"));
    EXPECT_DOUBLE_EQ(watcher.News[0].value(Text("Volume")).toDouble(), 0.25);
}

TEST_F(MprisBoardTest, ATrackIdThatIsNoneOfOursIsNoTrack) {
    for (const char* path :
         {"/org/mpris/MediaPlayer2/TrackList/NoTrack", "/", "/org/brindlepost/Brindlepost/Track/x",
          "/org/brindlepost/Brindlepost/Track/99999999999999999999"}) {
        watcher.Call(Text("Player.SetPosition"),
                     {QVariant::fromValue(QDBusObjectPath(Text(path))), qlonglong{5}});
    }

    EXPECT_EQ(control.Asked, (std::vector<std::string>(4, "position -1 5")));
}

TEST_F(MprisBoardTest, NumbersThatAreNoneArePassedOnForTheProgramToJudge) {
    watcher.Set(Text("Volume"), std::numeric_limits<double>::quiet_NaN());
    watcher.Set(Text("Rate"), -std::numeric_limits<double>::infinity());

    EXPECT_EQ(control.Asked, (std::vector<std::string>{"volume nan", "rate -inf"}));
}

TEST_F(MprisBoardTest, WrongTypesAndReadOnlyPropertiesAreRefused) {
    EXPECT_EQ(watcher.Set(Text("Volume"), QStringList{Text("loud")}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(watcher.Set(Text("PlaybackStatus"), Text("Playing")).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(watcher.Set(Text("NoSuch"), 1).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(watcher.Call(Text("Player.Seek"), {Text("far")}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(watcher.Call(Text("Player.NoSuch")).type(), QDBusMessage::ErrorMessage);

    EXPECT_TRUE(control.Asked.empty());
}

TEST_F(MprisBoardTest, AnAddressFromOutsideIsNotOpened) {
    const QDBusMessage answer = watcher.Call(Text("Player.OpenUri"), {Text("file:///etc/passwd")});

    EXPECT_EQ(answer.type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(answer.errorName(), Text("org.freedesktop.DBus.Error.NotSupported"));
}

TEST_F(MprisBoardTest, AnotherInstanceHasANameOfItsOwn) {
    dbus::SessionBus other_session(bus.Address());
    dbus_tests::JoinNow(other_session);
    dbus::MprisBoard other(other_session);

    other_session.WaitForAnswers();

    const QStringList names = watcher.Itself().Names();
    EXPECT_TRUE(names.contains(kName));
    EXPECT_TRUE(names.contains(kName + Text(".instance%1").arg(getpid())));
}

TEST_F(MprisBoardTest, TheListEndsNever) {
    EXPECT_EQ(watcher.Get(Text("LoopStatus")).toString(), Text("Playlist"));
    watcher.Set(Text("LoopStatus"), Text("Track"));
    watcher.Set(Text("LoopStatus"), Text("Playlist"));
    watcher.Set(Text("LoopStatus"), Text("None"));
    watcher.Set(Text("LoopStatus"), Text("Round"));

    EXPECT_EQ(control.Asked, (std::vector<std::string>{"repeat", "repeat no more", "repeat no more"}));
}

TEST_F(MprisBoardTest, AnotherListIsToldOnceWithTheTrackThatPlays) {
    ports::NowPlaying song = Song();
    song.tracks = {4'294'967'296, 3, 4'294'967'298};

    board.Show(song);
    song.volume = 0.5;
    board.Show(song);
    watcher.Settle();

    EXPECT_EQ(watcher.Lists, (std::vector<qsizetype>{3}));
    EXPECT_EQ(watcher.CurrentTrack, Text("/org/brindlepost/Brindlepost/Track/3"));
    EXPECT_EQ(watcher.Outdated, QStringList{Text("Tracks")});
}

TEST_F(MprisBoardTest, ATrackThatPlaysOutsideTheListIsNoneOfIt) {
    ports::NowPlaying song = Song();
    song.tracks = {4'294'967'296};

    board.Show(song);
    watcher.Settle();

    EXPECT_EQ(watcher.CurrentTrack, Text("/org/mpris/MediaPlayer2/TrackList/NoTrack"));
}

TEST_F(MprisBoardTest, TheListCannotBeEdited) {
    EXPECT_FALSE(watcher.All(Text("org.mpris.MediaPlayer2.TrackList")).value(Text("CanEditTracks")).toBool());
    const QVariant path = QVariant::fromValue(QDBusObjectPath(Text("/org/brindlepost/Brindlepost/Track/3")));

    watcher.Call(Text("TrackList.AddTrack"), {Text("file:///etc/passwd"), path, true});
    watcher.Call(Text("TrackList.RemoveTrack"), {path});

    EXPECT_TRUE(control.Asked.empty());
}

TEST_F(MprisBoardTest, OnADeadBusNothingHappens) {
    bus.Kill();

    board.Show(Song());
    board.ShowJump(5);

    EXPECT_TRUE(dbus_tests::WaitFor([this] { return !session.IsJoined(); }));
}

TEST(MprisBoardEarly, WhatWasShownBeforeTheBusIsSeenOnIt) {
    dbus_tests::PrivateBus bus;
    dbus::SessionBus session(bus.Address());
    dbus::MprisBoard board(session);
    ports::NowPlaying now;
    now.volume = 0.75;
    board.Show(now);

    dbus_tests::JoinNow(session);
    session.WaitForAnswers();

    PlayerWatcher watcher(bus, kName);
    EXPECT_DOUBLE_EQ(watcher.Get(Text("Volume")).toDouble(), 0.75);
}

TEST(MprisBoardAgain, OnABusThatCameBackThePlayerIsThereAgain) {
    QTemporaryDir folder;
    const QString address = QStringLiteral("unix:path=") + folder.filePath(QStringLiteral("bus"));
    auto bus = std::make_unique<dbus_tests::PrivateBus>(address);
    dbus::SessionBus session(address, {.answer_ms = 100, .first_ms = 20, .longest_ms = 40});
    dbus::MprisBoard board(session);
    dbus_tests::JoinNow(session);
    bus->Kill();
    EXPECT_TRUE(dbus_tests::WaitFor([&session] { return !session.IsJoined(); }));
    ports::NowPlaying now;
    now.volume = 0.25;
    board.Show(now);

    QFile::remove(folder.filePath(QStringLiteral("bus")));
    bus = std::make_unique<dbus_tests::PrivateBus>(address);
    EXPECT_TRUE(dbus_tests::WaitFor([&session] { return session.IsJoined(); }));
    session.WaitForAnswers();

    PlayerWatcher watcher(*bus, kName);
    EXPECT_TRUE(watcher.Itself().Names().contains(kName));
    EXPECT_DOUBLE_EQ(watcher.Get(Text("Volume")).toDouble(), 0.25);
}

}  // namespace
