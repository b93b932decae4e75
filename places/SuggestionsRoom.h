// Suggests addresses out of the tables of favourites and history.
//
// It walks them with data sources of its own, so that it moves nobody's record set, and keeps what it has
// read for as long as the tables only grow.
#pragma once

#include <string_view>
#include <vector>

#include "places/AddressIndex.h"
#include "roles/Suggestions.h"
#include "store/DataSource.h"

namespace places {

class SuggestionsRoom final : public roles::Suggestions {
public:
    /// `folder` is the application folder. Nothing is opened before the first letter is typed.
    SuggestionsRoom(store::Stores& stores, std::string_view folder);

    std::vector<roles::Suggestion> Suggest(std::string_view typed, std::size_t most) override;
    void NoteVisit(std::string_view address) override { index_.NoteVisit(address); }
    /// The visits that NoteVisit was told of.
    void ForgetVisits() { index_.ForgetVisits(); }

private:
    /// How a table was when it was read.
    struct Stamp {
        store::Bookmark end = 0;
        std::size_t rows = 0;
        std::uint64_t rewrites = 0;
        bool operator==(const Stamp&) const = default;
    };

    void CatchUp();
    void ReadFavourites();
    void ReadHistory(store::Bookmark from);
    static Stamp StampOf(const store::RecordSet& rows, store::Field field);

    store::DataSource favourites_{"datSuggestedFavourites"};
    store::DataSource history_{"datSuggestedHistory"};
    AddressIndex index_;
    Stamp favourites_read_;
    Stamp history_read_;
};

}  // namespace places
