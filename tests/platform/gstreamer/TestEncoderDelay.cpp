#include "platform/gstreamer/EncoderDelay.h"

#include <gtest/gtest.h>

#include <string>

#include "real/sound/GeneratedMedia.h"

namespace {

using gstreamer::Recording;
using gstreamer::RecordingOf;
using gstreamer::RecordingOfFile;

constexpr std::int64_t kSecond = 1'000'000'000;
constexpr std::int64_t kRate = 44100;

std::string Number(unsigned long number) {
    std::string bytes;
    for (unsigned shift = 32; shift > 0; shift -= 8)
        bytes += static_cast<char>(number >> (shift - 8) & 0xFFU);
    return bytes;
}

/// A first frame of stereo sound at 44,100 hertz, `frames` of which follow.
std::string Frame(unsigned long frames, unsigned delay, unsigned padding,
                  const std::string& encoder = "LAME3.100") {
    const unsigned long delays = delay * 4096UL + padding;
    return std::string("\xFF\xFB\x50\x40", 4) + std::string(32, '\0') + "Info" + Number(15) + Number(frames) +
           Number(9999) + std::string(100, '\7') + Number(0) + encoder + std::string(12, '\0') +
           Number(delays).substr(1) + std::string(300, '\0');
}

TEST(EncoderDelay, IsReadFromTheFirstFrame) {
    const Recording recording = RecordingOf("", Frame(116, 576, 756));

    EXPECT_EQ(recording.begin, (576 + 529) * kSecond / kRate);
    EXPECT_EQ(recording.end, (116 * 1152 - 756 + 529) * kSecond / kRate);
}

TEST(EncoderDelay, APaddingThatTheDecoderUsesUpLeavesTheEndOfTheFile) {
    EXPECT_EQ(RecordingOf("", Frame(10, 576, 100)).end, 11520 * kSecond / kRate);
}

TEST(EncoderDelay, WithoutANumberOfFramesTheEndIsThatOfTheFile) {
    std::string frame = Frame(116, 576, 756);
    frame.erase(36 + 8, 4);
    frame[36 + 7] = 14;

    const Recording recording = RecordingOf("", frame);

    EXPECT_EQ(recording.begin, (576 + 529) * kSecond / kRate);
    EXPECT_EQ(recording.end, 0);
}

TEST(EncoderDelay, IsReadFromTheComment) {
    const std::string tag = std::string("ID3\3\0\0\0\0\2\1COMM", 14) + std::string("eng") + "iTunSMPB" +
                            '\0' + " 00000000 00000240 000002F4 00000000000204CC 00000000";

    const Recording recording = RecordingOf(tag, Frame(116, 0, 0, std::string(9, '\0')));

    EXPECT_EQ(recording.begin, (576 + 529) * kSecond / kRate);
    EXPECT_EQ(recording.end, (576 + 132300 + 529) * kSecond / kRate);
}

TEST(EncoderDelay, WhatIsNoNoteTellsNothing) {
    const std::string whole = Frame(116, 576, 756);
    for (const std::string& frame :
         {std::string(), std::string("RIFF"), std::string("\xFF\xFB\x50", 3),
          Frame(116, 576, 756, std::string(9, '\0')), whole.substr(0, 150),
          std::string("\xFF\xF3\xFC\x40", 4) + whole.substr(4), Frame(1, 4000, 4000)}) {
        EXPECT_EQ(RecordingOf("", frame).begin, 0);
        EXPECT_EQ(RecordingOf("ID3 iTunSMPB 0 zz", frame).end, 0);
    }
}

TEST(EncoderDelay, OfAFileOfARealEncoder) {
    sound::GeneratedMedia files;
    const Recording recording = RecordingOfFile(files.Make("song.mp3", {.seconds = 3}));

    EXPECT_EQ(recording.begin, (576 + 529) * kSecond / kRate);
    EXPECT_NEAR(static_cast<double>(recording.end - recording.begin) / kSecond, 3, 0.0001);
    EXPECT_EQ(RecordingOfFile(files.Make("song.wav", {.seconds = 1})).begin, 0);
    EXPECT_EQ(RecordingOfFile("/nowhere/song.mp3").begin, 0);
}

}  // namespace
