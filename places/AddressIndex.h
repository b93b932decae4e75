// Addresses by what is in them, for completion while one types.
//
// The texts lie one after another in two long strings, as they are and in lower case, so that 32,000 of them
// are walked in a millisecond or two. The table keeps an address once for all time; so what says how much an
// address is used are the visits of this run, then how many addresses of its host are kept.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "roles/Suggestions.h"

namespace places {

class AddressIndex final {
public:
    /// Forgets the addresses; what is known of visits stays.
    void Clear();
    void ForgetVisits() { visits_.clear(); }
    /// Each is newer than those before it. An address may come twice; Find names it once.
    void AddVisited(std::string_view address) { Add({}, address, 1); }
    /// A favourite counts as one use more.
    void AddFavourite(std::string_view name, std::string_view address) { Add(name, address, 2); }
    void NoteVisit(std::string_view address);
    /// Those that hold every word of `typed` in their address or name, whatever the case: the ones whose
    /// address begins with it first, then the most used, then those of the host with the most addresses, then
    /// the newest. A scheme and "www." do not count.
    std::vector<roles::Suggestion> Find(std::string_view typed, std::size_t most) const;
    std::size_t Size() const { return entries_.size(); }

private:
    struct Entry {
        std::uint32_t text;   // where it begins in texts_: address, then name
        std::uint32_t lower;  // where it begins in lower_: address without scheme, a line break, name
        std::uint32_t lower_length;
        std::uint32_t address_length;
        std::uint32_t name_length;
        std::uint32_t uses;
        std::uint32_t host;  // in hosts_
    };
    struct Visits {
        std::uint32_t count = 0;
        std::uint64_t last = 0;
    };
    struct Found;

    void Add(std::string_view name, std::string_view address, std::uint32_t uses);
    std::string_view LowerOf(const Entry& entry) const;
    std::string_view AddressOf(const Entry& entry) const;
    std::string_view NameOf(const Entry& entry) const;
    std::uint32_t NumberOfHost(std::string_view address);
    Found Weigh(std::size_t place, std::string_view start) const;

    std::string texts_;
    std::string lower_;
    std::vector<Entry> entries_;
    std::unordered_map<std::string, std::uint32_t> host_numbers_;
    std::vector<std::uint32_t> hosts_;                // how many addresses each has
    std::unordered_map<std::string, Visits> visits_;  // by address in lower case, without its scheme
    std::uint64_t visits_so_far_ = 0;
};

}  // namespace places
