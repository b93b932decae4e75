// All four stores with the content they are shipped with, at "C:\app", on a fake database and a desktop
// without a screen.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/FakeDatabase.h"
#include "fakes/FakeDesktop.h"
#include "store/DataSource.h"
#include "store/Stores.h"

namespace fakes {

/// What the stores reported.
struct RecordingTrouble final : store::StoreTrouble {
    struct Told {
        std::string file;
        ports::DatabaseError error = ports::DatabaseError::None;
        std::string message;
    };

    void OnStoreTrouble(std::string_view file, ports::DatabaseError error,
                        std::string_view message) override {
        Troubles.push_back({std::string(file), error, std::string(message)});
    }

    std::vector<Told> Troubles;
};

struct SeededStores {
    using Row = FakeDatabase::Row;

    static constexpr std::string_view kMediaPath = "C:\\app\\dbMedia.mdb";
    static constexpr std::string_view kFavouritesPath = "C:\\app\\dbFavs.mdb";
    static constexpr std::string_view kHistoryPath = "C:\\app\\dbHistory.mdb";
    static constexpr std::string_view kLoginPath = "C:\\app\\dbLogin.mdb";

    /// On a desktop of its own, or on the test's.
    SeededStores() : SeededStores(own_desktop_) {}
    explicit SeededStores(FakeDesktop& desktop);

    /// Puts rows after those of a table ("tblSong", ...), straight into the file: before the table's first
    /// use.
    void Seed(std::string_view table, const std::vector<Row>& rows);
    /// What the file holds after the changes so far, one value a field.
    std::vector<Row> Rows(std::string_view table);
    /// A data source bound to the file of a table and opened with all its rows.
    std::unique_ptr<store::DataSource> OpenTable(std::string_view table);
    /// Binds a data source of the room under test to the file of a table.
    void Bind(store::DataSource& source, std::string_view table);

private:
    FakeDesktop own_desktop_;

public:
    FakeDatabase Database;
    RecordingTrouble Trouble;
    store::Stores Stores;
};

}  // namespace fakes
