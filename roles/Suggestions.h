// Addresses that the user may mean while an address is typed. Why: favourites and history know them, and the
// address row shows them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace roles {

struct Suggestion {
    std::string name;  ///< of a favourite; empty for an address of the history
    std::string address;
};

class Suggestions {
public:
    virtual ~Suggestions() = default;
    /// The best `most` for what is typed so far: those that begin with it first, then the most used, then the
    /// newest. Called at every letter, so it must not take longer than a few milliseconds.
    virtual std::vector<Suggestion> Suggest(std::string_view typed, std::size_t most) = 0;
    /// A page of this address has arrived: it is the newest now, and was used once more.
    virtual void NoteVisit(std::string_view address) = 0;
};

}  // namespace roles
