#include "store/DataSource.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "store/Stores.h"

namespace store {
namespace {

constexpr std::string_view kSelectAll = "SELECT * from ";
constexpr std::string_view kSongTable = "tblSong";

struct Query {
    std::string_view table;
    bool by_artist = false;
};

// The clause of kSongById compares with a literal word and selects nothing: the walk does the choosing.
std::optional<Query> ParseQuery(std::string_view text) {
    if (text == kSongById) return Query{kSongTable};
    if (text == kSongsByArtist) return Query{kSongTable, true};
    if (!base::StartsWith(text, kSelectAll)) return std::nullopt;
    return Query{text.substr(kSelectAll.size())};
}

// Artists are few beside songs: they are put in order once, and the songs by their artist's place.
class ArtistOrder {
public:
    void Learn(std::string_view artist) { places_.try_emplace(artist, 0); }
    void Settle() {
        std::vector<std::pair<std::string, std::string_view>> sorted;
        sorted.reserve(places_.size());
        for (const auto& [artist, place] : places_)
            sorted.emplace_back(base::LCase(artist), artist);
        std::sort(sorted.begin(), sorted.end());
        std::uint32_t place = 0;
        for (std::size_t i = 0; i < sorted.size(); ++i) {
            if (i > 0 && sorted[i].first != sorted[i - 1].first) ++place;
            places_[sorted[i].second] = place;
        }
    }
    std::uint32_t PlaceOf(std::string_view artist) const { return places_.at(artist); }

private:
    std::unordered_map<std::string_view, std::uint32_t> places_;
};

std::vector<std::uint32_t> RowsByArtist(const Table& songs) {
    const auto column = static_cast<std::size_t>(tblSong::artist.column);
    ArtistOrder order;
    std::vector<std::uint32_t> rows;
    rows.reserve(songs.Count());
    for (RowNumber row = songs.FirstFrom(0); row < songs.End(); row = songs.FirstFrom(row + 1)) {
        order.Learn(songs.Value(row, column));
        rows.push_back(row);
    }
    order.Settle();
    std::vector<std::uint32_t> place_of_row(songs.End());
    for (const RowNumber row : rows)
        place_of_row[row] = order.PlaceOf(songs.Value(row, column));
    std::stable_sort(rows.begin(), rows.end(), [&place_of_row](RowNumber left, RowNumber right) {
        return place_of_row[left] < place_of_row[right];
    });
    return rows;
}

}  // namespace

void DataSource::SetDatabaseName(Stores& stores, std::string_view path) {
    stores_ = &stores;
    path_ = path;
}

bool DataSource::Refresh() {
    if (!IsBound()) return false;
    const std::optional<Query> query = ParseQuery(record_source_);
    if (!query) return false;
    Table* const table = stores_->TableOf(path_, query->table);
    if (table == nullptr) return false;
    records_ = query->by_artist ? RecordSet(*table, RowsByArtist(*table)) : RecordSet(*table);
    return true;
}

bool DataSource::ReadPiece(std::string_view query) const {
    if (!IsBound()) return false;
    const std::optional<Query> parsed = ParseQuery(query);
    return parsed && stores_->ReadPiece(path_, parsed->table);
}

bool DataSource::Open(std::string_view query) {
    SetRecordSource(query);
    return Refresh();
}

}  // namespace store
