// The whole way from a record set to the file and back.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "base/Number.h"
#include "fakes/FakeDesktop.h"
#include "fakes/SeededStores.h"
#include "platform/sqlite/SqliteBench.h"
#include "store/Key.h"
#include "store/Layouts.h"

namespace {

using ports::DatabaseError;
using sqlite_tests::SqliteBench;
namespace tblSong = store::tblSong;
using Song = std::vector<std::string>;
using Songs = std::vector<Song>;

constexpr const char* kAllFields =
    "SELECT ifnull(SongID, ''), artist, title, FilePath, ifnull(PlayCount, '') FROM tblSong ORDER BY rowid";
const std::vector<store::Field> kFields{tblSong::SongID, tblSong::artist, tblSong::title, tblSong::FilePath,
                                        tblSong::PlayCount};

class StoresOnSqlite : public testing::Test {
protected:
    StoresOnSqlite() {
        bench_.MakeStore(path_);
        Start();
    }

    void Start() {
        stores_.emplace(bench_.Database(), desktop_, trouble_);
        source_.SetDatabaseName(*stores_, path_);
        ASSERT_TRUE(source_.Open(store::kAllSongs));
    }
    void Restart() {
        EXPECT_TRUE(stores_->Close());
        stores_.reset();
        Start();
    }
    store::RecordSet& Records() { return source_.Recordset(); }
    void AddSong() {
        store::NextKey(Records(), tblSong::SongID, caption_);
        Records().Update();
    }
    std::string CountInFile() { return bench_.AskElsewhere(path_, "SELECT count(*) FROM tblSong").at(0); }

    SqliteBench bench_;
    std::string path_ = SqliteBench::PathOf(store::kMediaStore);
    fakes::FakeDesktop desktop_;
    fakes::RecordingTrouble trouble_;
    std::optional<store::Stores> stores_;
    store::DataSource source_{"datSong"};
    std::string caption_;
};

TEST_F(StoresOnSqlite, KeysCountOnAfterARestart) {
    AddSong();
    AddSong();
    Restart();
    AddSong();
    desktop_.EndHandler();

    EXPECT_EQ(bench_.AskElsewhere(path_, "SELECT group_concat(SongID) FROM tblSong").at(0), "1,2,3");
}

TEST_F(StoresOnSqlite, ALockedFileIsToldOnceAndWrittenWhenItIsFree) {
    AddSong();
    desktop_.EndHandler();
    bench_.Lock(path_);
    AddSong();
    desktop_.EndHandler();
    AddSong();
    desktop_.EndHandler();
    const std::size_t told = trouble_.Troubles.size();
    bench_.Unlock();
    const bool written = stores_->CommitAll();

    ASSERT_EQ(told, 1U);
    EXPECT_EQ(trouble_.Troubles[0].error, DatabaseError::Locked);
    EXPECT_TRUE(written);
    EXPECT_EQ(CountInFile(), "3");
}

TEST_F(StoresOnSqlite, AFileThatWasTakenAwayIsTold) {
    AddSong();
    bench_.RemoveStore(path_);

    desktop_.EndHandler();

    ASSERT_EQ(trouble_.Troubles.size(), 1U);
    EXPECT_EQ(trouble_.Troubles[0].error, DatabaseError::Missing);
    EXPECT_FALSE(stores_->Close());
}

TEST_F(StoresOnSqlite, AHundredThousandSongsAreOneTransaction) {
    for (int i = 0; i < 100'000; ++i)
        AddSong();

    desktop_.EndHandler();

    EXPECT_EQ(CountInFile(), "100000");
    EXPECT_TRUE(trouble_.Troubles.empty());
}

// Random steps on a record set and on a plain list of songs, which must stay the same; so must the file
// whenever a handler ended.
class RandomSteps : public StoresOnSqlite {
protected:
    void Run(unsigned seed) {
        chance_.seed(seed);
        for (int step = 0; step < 2000 && !HasFailure(); ++step)
            Step();
        bench_.Unlock();
        EXPECT_TRUE(stores_->CommitAll());
        ExpectSame();
    }

private:
    unsigned Below(unsigned limit) { return static_cast<unsigned>(chance_() % limit); }

    std::string AnyText() {
        static const std::vector<std::string> parts{"",  "a", "\xc3\xa9",   "'", "\"",
                                                    " ", "|", "long text ", "\n"};
        std::string text;
        for (unsigned i = Below(5); i > 0; --i)
            text += parts[Below(static_cast<unsigned>(parts.size()))];
        if (Below(50) == 0) text.append(Below(70'000), 'x');
        return text;
    }

    void Step() {
        switch (Below(12)) {
            case 0:
            case 1:
            case 2:
                return Add();
            case 3:
            case 4:
                return EditAny();
            case 5:
            case 6:
                return DeleteAny();
            case 7:
                return Abandon();
            case 8:
                return DeleteInAWalk();
            case 9:
                return Below(40) == 0 ? LockOrUnlock() : EndHandler();
            case 10:
                return Below(20) == 0 ? RestartUnlocked() : EndHandler();
            default:
                return EndHandler();
        }
    }
    void Add() {
        store::NextKey(Records(), tblSong::SongID, caption_);
        const Song song{caption_, AnyText(), AnyText(), AnyText(),
                        Below(2) == 0 ? "" : base::ToText(Below(99))};
        for (std::size_t i = 1; i < song.size(); ++i)
            Records().Set(kFields[i], song[i]);
        Records().Update();
        EXPECT_EQ(caption_, base::ToText(songs_.empty() ? 1 : std::stoll(songs_.back()[0]) + 1));
        songs_.push_back(song);
    }
    bool GoToAny(std::size_t& place) {
        if (songs_.empty()) return false;
        place = Below(static_cast<unsigned>(songs_.size()));
        Records().MoveFirst();
        for (std::size_t i = 0; i < place; ++i)
            Records().MoveNext();
        return true;
    }
    void EditAny() {
        std::size_t place = 0;
        if (!GoToAny(place)) return;
        Records().Edit();
        const std::size_t field = 1 + Below(3);
        const std::string text = AnyText();
        Records().Set(kFields[field], text);
        EXPECT_TRUE(Records().Update());
        songs_[place][field] = text;
    }
    void DeleteAny() {
        std::size_t place = 0;
        if (!GoToAny(place)) return;
        EXPECT_TRUE(Records().Delete());
        songs_.erase(songs_.begin() + static_cast<std::ptrdiff_t>(place));
    }
    void Abandon() {
        Records().AddNew();
        Records().Set(tblSong::artist, "never");
        Records().CancelUpdate();
        std::size_t place = 0;
        if (!GoToAny(place)) return;
        Records().Edit();
        Records().Set(tblSong::artist, "never");
        Records().MoveNext();
    }
    void DeleteInAWalk() {
        if (Below(10) != 0) return;
        const std::string digit = base::ToText(Below(10));
        const auto is_meant = [&digit](std::string_view id) { return id.ends_with(digit); };
        for (Records().MoveFirst(); !Records().Eof(); Records().MoveNext()) {
            if (is_meant(Records().Text(tblSong::SongID))) Records().Delete();
        }
        std::erase_if(songs_, [&](const Song& song) { return is_meant(song[0]); });
    }
    void LockOrUnlock() {
        if (is_locked_) {
            bench_.Unlock();
        } else {
            stores_->CommitAll();  // the log is on from here, so that the lock can be taken beside the reader
            bench_.Lock(path_);
        }
        is_locked_ = !is_locked_;
    }
    void RestartUnlocked() {
        bench_.Unlock();
        is_locked_ = false;
        Restart();
        ExpectSame();
    }
    void EndHandler() {
        desktop_.EndHandler();
        if (is_locked_) return;
        EXPECT_TRUE(stores_->CommitAll());
        ExpectSame();
    }
    void ExpectSame() {
        Songs image;
        for (Records().MoveFirst(); !Records().Eof(); Records().MoveNext()) {
            Song song;
            for (const store::Field field : kFields)
                song.emplace_back(Records().Text(field));
            image.push_back(song);
        }
        EXPECT_EQ(image, songs_);
        std::vector<std::string> lines;
        lines.reserve(songs_.size());
        for (const Song& song : songs_) {
            lines.push_back(song[0] + "|" + song[1] + "|" + song[2] + "|" + song[3] + "|" + song[4]);
        }
        EXPECT_EQ(bench_.AskElsewhere(path_, kAllFields), lines);
        EXPECT_EQ(Records().RecordCount(), songs_.size());
    }

    std::mt19937 chance_;
    Songs songs_;
    bool is_locked_ = false;
};

TEST_F(RandomSteps, KeepImageAndFileEqualToAPlainList) {
    Run(1);
}
TEST_F(RandomSteps, KeepImageAndFileEqualToAPlainListAnotherTime) {
    Run(2);
}
TEST_F(RandomSteps, KeepImageAndFileEqualToAPlainListAThirdTime) {
    Run(3);
}

}  // namespace
