// What a video shows on a display of the test's own, which has no extension for video, as a bare one has not.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platform/gstreamer/MediaEngine.h"
#include "platform/gstreamer/PrivateDisplay.h"
#include "real/sound/GeneratedMedia.h"

namespace {

using gstreamer_tests::Pixel;
using gstreamer_tests::PrivateDisplay;

constexpr Pixel kRed = 0xFF0000;
constexpr Pixel kGreen = 0x00FF00;
constexpr Pixel kBlue = 0x0000FF;
constexpr Pixel kYellow = 0xFFFF00;
constexpr Pixel kBlack = 0x000000;
/// Of the player's window.
constexpr Pixel kGround = 0x886644;

struct Size {
    int width;
    int height;
};

std::string Text(Size size) {
    return std::to_string(size.width) + "x" + std::to_string(size.height);
}

class PictureTest : public testing::Test {
protected:
    PictureTest() { setenv("PULSE_SERVER", "unix:/nonexistent/native", 1); }
    ~PictureTest() override {
        Send("close all");
        display.Destroy(window);
    }

    /// A film with red, green, blue and yellow in its corners.
    std::string MakeFilm(const std::string& name, Size size, double seconds = 4) {
        const std::string part = ":size=" + std::to_string(size.width / 2) + "x" +
                                 std::to_string(size.height / 2) +
                                 ":rate=25:duration=" + std::to_string(seconds);
        const auto colour = [&part](const std::string& value) { return "color=" + value + part; };
        return Encode(name, {"-f",
                             "lavfi",
                             "-i",
                             colour("0xff0000"),
                             "-f",
                             "lavfi",
                             "-i",
                             colour("0x00ff00"),
                             "-f",
                             "lavfi",
                             "-i",
                             colour("0x0000ff"),
                             "-f",
                             "lavfi",
                             "-i",
                             colour("0xffff00"),
                             "-filter_complex",
                             "[0][1]hstack[t];[2][3]hstack[b];[t][b]vstack",
                             "-pix_fmt",
                             "yuv420p",
                             "-c:v",
                             name.ends_with(".mpg") ? "mpeg2video" : "mpeg4",
                             "-b:v",
                             "2000k"});
    }
    std::string Encode(const std::string& name, std::vector<std::string> how) {
        std::vector<std::string> words{"ffmpeg", "-y", "-loglevel", "error"};
        words.insert(words.end(), how.begin(), how.end());
        words.push_back(media.Path(name));
        EXPECT_EQ(sound::Child(words).Wait(60), 0);
        return media.Path(name);
    }
    int Send(const std::string& command) { return engine.SendString(command).error; }
    int Open(const std::string& path, const std::string& alias = "a") {
        return Send("open \"" + path + "\" type MPEGVideo alias " + alias + " parent " +
                    std::to_string(window) + " style 1073741824");
    }
    void Put(Size size, const std::string& alias = "a") {
        Send("put " + alias + " window at 0 0 " + std::to_string(size.width) + " " +
             std::to_string(size.height));
    }
    /// The picture's four fields fill a box that stands in the middle of the window, with black beside it.
    void ExpectPicture(Size place, Size picture) {
        const int left = (place.width - picture.width) / 2;
        const int top = (place.height - picture.height) / 2;
        const int right = left + picture.width;
        const int bottom = top + picture.height;
        constexpr int kIn = 6;
        EXPECT_TRUE(display.Shows(window, left + kIn, top + kIn, kRed)) << Text(picture);
        EXPECT_TRUE(display.Shows(window, right - kIn, top + kIn, kGreen)) << Text(picture);
        EXPECT_TRUE(display.Shows(window, left + kIn, bottom - kIn, kBlue)) << Text(picture);
        EXPECT_TRUE(display.Shows(window, right - kIn, bottom - kIn, kYellow)) << Text(picture);
        if (left > 2 * kIn) {
            EXPECT_TRUE(display.Shows(window, left - kIn, place.height / 2, kBlack)) << Text(picture);
            EXPECT_TRUE(display.Shows(window, right + kIn, place.height / 2, kBlack)) << Text(picture);
        }
        if (top > 2 * kIn) {
            EXPECT_TRUE(display.Shows(window, place.width / 2, top - kIn, kBlack)) << Text(picture);
            EXPECT_TRUE(display.Shows(window, place.width / 2, bottom + kIn, kBlack)) << Text(picture);
        }
    }

    PrivateDisplay& display = PrivateDisplay::Get();
    xcb_window_t window = display.MakeWindow(400, 300, kGround);
    sound::GeneratedMedia media;
    gstreamer::MediaEngine engine{[](std::string_view name) { return std::string(name); }};
};

TEST_F(PictureTest, KeepsItsProportionsInTheWindow) {
    struct Case {
        std::string name;
        Size film;
        Size seen;
    };
    for (const Case& one : {Case{"old.mp4", {320, 240}, {400, 300}}, Case{"wide.avi", {640, 360}, {400, 225}},
                            Case{"tall.mp4", {180, 320}, {169, 300}}}) {
        ASSERT_EQ(Open(MakeFilm(one.name, one.film)), 0);
        Put({400, 300});

        Send("play a");

        ExpectPicture({400, 300}, one.seen);
        Send("close a");
    }
}

TEST_F(PictureTest, FillsItsNewPlaceWhileItPlays) {
    ASSERT_EQ(Open(MakeFilm("film.mp4", {320, 240}, 10)), 0);
    Put({400, 300});
    Send("play a");
    ExpectPicture({400, 300}, {400, 300});

    display.Resize(window, 640, 240);
    Put({640, 240});

    ExpectPicture({640, 240}, {320, 240});
}

TEST_F(PictureTest, FillsItsNewPlaceWhileItStandsStill) {
    ASSERT_EQ(Open(MakeFilm("film.mp4", {320, 240})), 0);
    Put({400, 300});
    Send("play a");
    ExpectPicture({400, 300}, {400, 300});
    Send("pause a");

    display.Resize(window, 720, 540);
    Put({720, 540});

    ExpectPicture({720, 540}, {720, 540});
}

TEST_F(PictureTest, FillsItsNewPlaceBeforeItPlays) {
    ASSERT_EQ(Open(MakeFilm("film.mp4", {320, 240})), 0);
    ExpectPicture({400, 300}, {400, 300});

    display.Resize(window, 720, 540);
    Put({720, 540});

    ExpectPicture({720, 540}, {720, 540});
}

// A sink of pictures that is not needed holds the start of a song up.
TEST_F(PictureTest, IsLookedForInFilmsByTheirNameOnly) {
    const std::string song = media.Path("song.m4a");
    std::filesystem::copy_file(MakeFilm("film.mp4", {320, 240}), song);
    ASSERT_EQ(Open(song), 0);
    Put({400, 300});
    ASSERT_EQ(Send("play a"), 0);

    EXPECT_EQ(display.ChildrenOf(window), 0);
    EXPECT_EQ(engine.SendString("status a mode").text, "playing");

    Send("close a");
    ASSERT_EQ(Open(media.Path("film.mp4")), 0);
    EXPECT_GT(display.ChildrenOf(window), 0);
}

TEST_F(PictureTest, StandsWhereItIsPut) {
    ASSERT_EQ(Open(MakeFilm("film.mp4", {320, 240})), 0);
    Send("play a");

    Send("put a window at 100 50 160 120");

    EXPECT_TRUE(display.Shows(window, 106, 56, kRed));
    EXPECT_TRUE(display.Shows(window, 254, 164, kYellow));
    EXPECT_TRUE(display.Shows(window, 50, 100, kGround));
    EXPECT_TRUE(display.Shows(window, 300, 250, kGround));
}

TEST_F(PictureTest, IsSeenBeforeItPlays) {
    ASSERT_EQ(Open(MakeFilm("film.mp4", {320, 240})), 0);

    ExpectPicture({400, 300}, {400, 300});
}

TEST_F(PictureTest, ComesBackWhenTheWindowDoesWhileItStandsStill) {
    ASSERT_EQ(Open(MakeFilm("film.mp4", {320, 240})), 0);
    Put({400, 300});
    ExpectPicture({400, 300}, {400, 300});

    display.SetSeen(window, false);
    display.SetSeen(window, true);

    ExpectPicture({400, 300}, {400, 300});
}

TEST_F(PictureTest, TheNewerOfTwoLiesAboveAndGoesWithItsAlias) {
    ASSERT_EQ(Open(MakeFilm("first.mp4", {320, 240}, 20), "a"), 0);
    Send("play a");
    ExpectPicture({400, 300}, {400, 300});
    const std::string second =
        Encode("second.mp4", {"-f", "lavfi", "-i", "color=0xff00ff:size=320x240:rate=25:duration=20", "-c:v",
                              "mpeg4", "-b:v", "1000k"});

    ASSERT_EQ(Open(second, "b"), 0);
    Send("play b");
    EXPECT_TRUE(display.Shows(window, 20, 20, 0xFF00FF));
    for (int look = 0; look < 100; ++look)
        ASSERT_TRUE(display.Shows(window, 20, 20, 0xFF00FF, 0)) << "the older one shows through";
    Send("close b");

    ExpectPicture({400, 300}, {400, 300});
    Send("close a");
    EXPECT_TRUE(display.Shows(window, 20, 20, kGround));
    EXPECT_EQ(display.ChildrenOf(window), 0);
}

TEST_F(PictureTest, SoundAloneLeavesTheWindowAsItIs) {
    const std::string sound_alone =
        Encode("sound.mp4", {"-f", "lavfi", "-i", "sine=frequency=440:duration=2", "-c:a", "aac"});
    for (const std::string& path : {media.Make("song.mp3", {.seconds = 2}), sound_alone}) {
        ASSERT_EQ(Open(path), 0) << path;
        Put({400, 300});
        Send("play a");

        EXPECT_TRUE(display.Shows(window, 200, 150, kGround));
        EXPECT_FALSE(display.Shows(window, 200, 150, kBlack, 0.3)) << path;
        Send("close a");
    }
}

TEST_F(PictureTest, FollowsAFilmWhosePictureChangesItsSize) {
    const std::string first = MakeFilm("first.mpg", {320, 240}, 1);
    const std::string second = MakeFilm("second.mpg", {640, 240}, 3);
    std::ofstream both(media.Path("both.mpg"), std::ios::binary);
    both << std::ifstream(first, std::ios::binary).rdbuf() << std::ifstream(second, std::ios::binary).rdbuf();
    both.close();
    ASSERT_EQ(Open(media.Path("both.mpg")), 0);
    Put({400, 300});

    Send("play a");

    ExpectPicture({400, 300}, {400, 300});
    ExpectPicture({400, 300}, {400, 150});
}

TEST_F(PictureTest, AFilmThatClaims16384By16384HoldsNobodyUp) {
    const std::string path =
        Encode("claims.avi", {"-f", "lavfi", "-i", "testsrc=size=320x240:rate=5:duration=2", "-pix_fmt",
                              "yuvj420p", "-c:v", "mjpeg"});
    // Height and width stand behind the mark, the length and the depth of every picture's header.
    std::ifstream small(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(small), std::istreambuf_iterator<char>()};
    const std::string mark("\xFF\xC0\x00\x11\x08", 5);
    int patched = 0;
    for (auto at = bytes.find(mark); at != std::string::npos; at = bytes.find(mark, at + 1), ++patched)
        bytes.replace(at + mark.size(), 4, std::string("\x40\0\x40\0", 4));
    ASSERT_GT(patched, 5);
    const std::string claims = media.Write("claims.avi", bytes);
    const auto begin = std::chrono::steady_clock::now();

    const int error = Open(claims);
    if (error == 0) Send("play a");
    Send("close a");
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;

    EXPECT_LT(took.count(), 5.5);
    ASSERT_EQ(Open(MakeFilm("film.mp4", {320, 240})), 0);
    Send("play a");
    ExpectPicture({400, 300}, {400, 300});
}

TEST_F(PictureTest, AFilmOfOnePictureEnds) {
    const std::string path = Encode("one.avi", {"-f", "lavfi", "-i", "color=0xff0000:size=320x240:rate=25",
                                                "-frames:v", "1", "-c:v", "mpeg4"});
    if (Open(path) != 0) return;  // What is refused is passed over at once.
    Send("play a");

    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    ports::MediaReply mode = engine.SendString("status a mode");
    while (mode.error == 0 && mode.text != "stopped" && std::chrono::steady_clock::now() < until)
        mode = engine.SendString("status a mode");
    EXPECT_EQ(mode.text, "stopped");
}

TEST_F(PictureTest, AFilmWithoutPicturesIsRefused) {
    const std::string path = MakeFilm("film.mp4", {320, 240}, 1);
    std::filesystem::resize_file(path, std::filesystem::file_size(path) / 3);

    EXPECT_NE(Open(path), 0);
}

TEST_F(PictureTest, AWindowThatIsNoneOrGoesAwayHurtsNobody) {
    const std::string film = MakeFilm("film.mp4", {320, 240}, 1);
    const xcb_window_t brief = display.MakeWindow(200, 150, kGround);

    EXPECT_EQ(Send("open \"" + film + "\" alias none parent 123456789"), 0);
    EXPECT_EQ(Send("open \"" + film + "\" alias brief parent " + std::to_string(brief)), 0);
    Send("play none");
    Send("play brief");
    EXPECT_TRUE(display.Shows(brief, 6, 6, kRed));
    display.Destroy(brief);
    Send("put brief window at 0 0 100 100");

    const auto has_ended = [&](const std::string& alias) {
        return engine.SendString("status " + alias + " mode").text == "stopped";
    };
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (!(has_ended("none") && has_ended("brief")) && std::chrono::steady_clock::now() < until) {
    }
    EXPECT_TRUE(has_ended("none"));
    EXPECT_TRUE(has_ended("brief"));
}

}  // namespace
