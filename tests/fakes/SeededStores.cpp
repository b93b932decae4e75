#include "fakes/SeededStores.h"

#include "base/Number.h"
#include "base/Text.h"
#include "store/Settings.h"
#include "store/StartingContent.h"

namespace fakes {
namespace {

std::string_view PathOf(std::string_view table) {
    if (base::EqualIgnoringCase(table, "tblFavs")) return SeededStores::kFavouritesPath;
    if (base::EqualIgnoringCase(table, "tblHistory")) return SeededStores::kHistoryPath;
    if (base::EqualIgnoringCase(table, "tblLogin")) return SeededStores::kLoginPath;
    return SeededStores::kMediaPath;
}

}  // namespace

SeededStores::SeededStores(FakeDesktop& desktop) : Stores(Database, desktop, Trouble) {
    Database.MakeStore(kMediaPath);
    Database.MakeStore(kLoginPath);
    Seed("tblFavs", {Row(store::kStartingFavourite.begin(), store::kStartingFavourite.end())});
    for (const store::Setting& setting : store::kSettings) {
        Seed("tblHistory", {{base::ToText(store::NumberOf(setting.row)), std::string(store::kSettingsType),
                             std::string(setting.shipped)}});
    }
}

void SeededStores::Seed(std::string_view table, const std::vector<Row>& rows) {
    Database.Seed(PathOf(table), table, rows);
}

std::vector<SeededStores::Row> SeededStores::Rows(std::string_view table) {
    Stores.CommitAll();
    return Database.Rows(PathOf(table), table);
}

std::unique_ptr<store::DataSource> SeededStores::OpenTable(std::string_view table) {
    auto source = std::make_unique<store::DataSource>("dat" + std::string(table.substr(3)));
    Bind(*source, table);
    source->Open("SELECT * from " + std::string(table));
    return source;
}

void SeededStores::Bind(store::DataSource& source, std::string_view table) {
    source.SetDatabaseName(Stores, PathOf(table));
}

}  // namespace fakes
