#include "platform/gstreamer/MidiFile.h"

#include <gtest/gtest.h>

#include <string>

#include "real/sound/GeneratedMedia.h"

namespace {

using gstreamer::IsWholeMidi;
using gstreamer::IsWholeMidiFile;

std::string Chunk(const std::string& name, const std::string& content) {
    const auto byte = [&](unsigned shift) { return static_cast<char>(content.size() >> shift & 0xFFU); };
    return name + byte(24) + byte(16) + byte(8) + byte(0) + content;
}

std::string File(const std::string& track, const std::string& division = {"\0\x60", 2}) {
    return Chunk("MThd", std::string("\0\0\0\1", 4) + division) + Chunk("MTrk", track);
}

const std::string kEnd("\0\xFF\x2F\0", 4);
const std::string kNote("\0\x90\x51\x7F\x60\x51\0", 7);  // the second event by running status

TEST(MidiFile, LetsAWholeFileThrough) {
    EXPECT_TRUE(IsWholeMidi(File(kNote + kEnd)));
    EXPECT_TRUE(IsWholeMidi(File(std::string("\x83\x7F\xC0\x4A\0\xE0\0\x40", 8) + kEnd)));
    EXPECT_TRUE(IsWholeMidi(File(std::string("\0\xF0\3abc\0\xF7\1d\0\xFF\1\2hi", 16) + kEnd)));
}

TEST(MidiFile, LetsAFileInAShellThrough) {
    EXPECT_TRUE(IsWholeMidi(std::string("RIFF\x40\0\0\0RMIDdata\x38\0\0\0", 20) + File(kNote + kEnd)));
}

TEST(MidiFile, LetsOtherChunksAndABehindThrough) {
    const std::string header = File("").substr(0, 14);

    EXPECT_TRUE(IsWholeMidi(header + Chunk("XFIH", "any") + Chunk("MTrk", kNote + kEnd) + "behind"));
}

TEST(MidiFile, RefusesEventsThatLeaveTheirTrack) {
    for (const std::string& track :
         {std::string("\0\x90\x51", 3), std::string("\0\xFF\1\x7Fhi", 6), std::string("\0\xF0\5abc", 6),
          std::string("\0\xFF", 2), std::string("\0", 1), std::string("\0\xC0", 2)}) {
        EXPECT_FALSE(IsWholeMidi(File(track))) << testing::PrintToString(track);
    }
}

TEST(MidiFile, RefusesNumbersOfMoreThanFourBytes) {
    EXPECT_FALSE(IsWholeMidi(File(std::string("\xFF\xFF\xFF\xFF\x7F\x90\x51\x7F", 8) + kEnd)));
    EXPECT_FALSE(IsWholeMidi(File(std::string("\0\xFF\1\x80\x80\x80\x80\0", 8) + kEnd)));
}

TEST(MidiFile, RefusesEventsThatAreNone) {
    EXPECT_FALSE(IsWholeMidi(File(std::string("\0\x51\x7F", 3) + kEnd)));
    EXPECT_FALSE(IsWholeMidi(File(std::string("\0\xF4", 2) + kEnd)));
}

TEST(MidiFile, RefusesAFileThatIsCutAnywhereBeforeItsEnd) {
    const std::string whole = File(kNote + kEnd);

    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(IsWholeMidi(whole.substr(0, size))) << size;
}

TEST(MidiFile, RefusesAHeaderWithoutADivision) {
    EXPECT_FALSE(IsWholeMidi(File(kNote + kEnd, std::string(2, '\0'))));
}

TEST(MidiFile, LooksAtFiles) {
    sound::GeneratedMedia media;

    EXPECT_TRUE(IsWholeMidiFile(media.Make("flute.mid")));
    std::string notes;
    while (notes.size() < 200'000)
        notes += kNote;
    EXPECT_TRUE(IsWholeMidiFile(media.Write("long.mid", File(notes + kEnd))));
    EXPECT_FALSE(IsWholeMidiFile(media.Write("text.mid", "no music")));
    EXPECT_FALSE(IsWholeMidiFile(media.Path("missing.mid")));
}

}  // namespace
