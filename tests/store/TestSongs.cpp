#include <gtest/gtest.h>

#include "fakes/SeededStores.h"
#include "store/Songs.h"

namespace store {
namespace {

TEST(Songs, ASongKeyLeadsToThePathOfTheFirstRowThatHasIt) {
    fakes::SeededStores stores;
    stores.Seed("tblSong", {{"1", "A", "a", "C:\\a.mp3", "0"},
                            {" 7 ", "B", "b", "C:\\b.mp3", "0"},
                            {"7", "C", "c", "C:\\c.mp3", "0"}});
    const auto datSong = stores.OpenTable("tblSong");
    datSong->Recordset().MoveLast();

    EXPECT_EQ(SongPathFromId(*datSong, "7"), "C:\\b.mp3");
    EXPECT_EQ(SongPathFromId(*datSong, "1"), "C:\\a.mp3");
    EXPECT_EQ(SongPathFromId(*datSong, "2"), "");
    EXPECT_EQ(SongPathFromId(*datSong, ""), "");
}

TEST(Songs, AnUnboundSourceHasNoSongs) {
    DataSource datSong("datSong");

    EXPECT_EQ(SongPathFromId(datSong, "1"), "");
}

}  // namespace
}  // namespace store
