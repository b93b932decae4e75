#include "base/SongEntry.h"

#include <gtest/gtest.h>

#include <array>

namespace base {
namespace {

TEST(SongEntry, AShortEntryIsASongId) {
    const SongEntry entry("1234567");

    EXPECT_TRUE(entry.IsSongId());
    EXPECT_EQ(entry.SongId(), 1234567);
    EXPECT_EQ(entry.Text(), "1234567");
}

TEST(SongEntry, ALongEntryIsAPath) {
    const SongEntry entry("C:\\a.mp3");

    EXPECT_FALSE(entry.IsSongId());
    EXPECT_EQ(entry.SongId(), 0);
    EXPECT_EQ(entry.Text(), "C:\\a.mp3");
}

TEST(SongEntry, EachPlaceHasItsOwnLimit) {
    struct Case {
        std::string_view text;
        bool is_id_in_list;
        bool is_id_at_cue_head;
        bool is_id_from_cue;
    };
    constexpr std::array kCases = {
        Case{"123456", true, true, true},
        Case{"1234567", true, false, true},
        Case{"12345678", false, false, true},
        Case{"123456789", false, false, false},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(SongEntry(one.text).IsSongId(), one.is_id_in_list) << one.text;
        EXPECT_EQ(SongEntry(one.text, kShortestPathAtCueHead).IsSongId(), one.is_id_at_cue_head) << one.text;
        EXPECT_EQ(SongEntry(one.text, kShortestPathFromCue).IsSongId(), one.is_id_from_cue) << one.text;
    }
}

TEST(SongEntry, LengthCountsCharactersNotBytes) {
    EXPECT_TRUE(SongEntry("\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4").IsSongId());
}

TEST(SongEntry, AShortTextThatIsNoNumberIsTheSongIdNought) {
    EXPECT_TRUE(SongEntry("abc").IsSongId());
    EXPECT_EQ(SongEntry("abc").SongId(), 0);
    EXPECT_EQ(SongEntry("").SongId(), 0);
}

}  // namespace
}  // namespace base
