#include "places/AddressIndex.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "base/Text.h"

namespace places {

namespace {

/// Longer addresses are hardly typed again; they would only cost time and room.
constexpr std::size_t kLongestAddress = 2000;

std::string_view WithoutScheme(std::string_view address) {
    static constexpr std::array<std::string_view, 3> kStarts{"https://", "http://", "www."};
    for (const std::string_view start : kStarts) {
        if (base::StartsWith(address, start)) address.remove_prefix(start.size());
    }
    return address;
}

/// In lower case; most addresses need no table of letters for that.
std::string Lower(std::string_view text) {
    std::string lower(text);
    for (char& letter : lower) {
        if (static_cast<unsigned char>(letter) >= 0x80) return base::LCase(text);
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
    return lower;
}

std::vector<std::string> WordsOf(const std::string& typed) {
    std::vector<std::string> words = base::Split(typed, " ");
    std::erase_if(words, [](const std::string& word) { return word.empty(); });
    return words;
}

bool HoldsAll(std::string_view text, const std::vector<std::string>& words) {
    return std::all_of(words.begin(), words.end(),
                       [text](const std::string& word) { return text.find(word) != std::string_view::npos; });
}

/// "http://one/" and "http://one" are the same page.
std::string_view WithoutSlash(std::string_view address) {
    return base::EndsWith(address, "/") ? address.substr(0, address.size() - 1) : address;
}

}  // namespace

struct AddressIndex::Found {
    std::size_t place;
    bool begins;
    std::uint32_t uses;
    std::uint64_t last;
    std::uint32_t of_host;

    bool operator<(const Found& other) const {
        return std::tie(other.begins, other.uses, other.last, other.of_host, other.place) <
               std::tie(begins, uses, last, of_host, place);
    }
};

void AddressIndex::Clear() {
    texts_.clear();
    lower_.clear();
    entries_.clear();
    host_numbers_.clear();
    hosts_.clear();
}

void AddressIndex::Add(std::string_view name, std::string_view address, std::uint32_t uses) {
    address = base::Trim(address);
    if (address.empty() || address.size() > kLongestAddress) return;
    const std::string lower_address = Lower(address);
    Entry entry{};
    entry.text = static_cast<std::uint32_t>(texts_.size());
    entry.lower = static_cast<std::uint32_t>(lower_.size());
    entry.address_length = static_cast<std::uint32_t>(address.size());
    entry.name_length = static_cast<std::uint32_t>(name.size());
    entry.uses = uses;
    entry.host = NumberOfHost(WithoutScheme(lower_address));
    ++hosts_[entry.host];
    texts_.append(address).append(name);
    lower_.append(WithoutScheme(lower_address));
    if (!name.empty()) lower_.append("\n").append(Lower(name));
    entry.lower_length = static_cast<std::uint32_t>(lower_.size()) - entry.lower;
    entries_.push_back(entry);
}

std::uint32_t AddressIndex::NumberOfHost(std::string_view address) {
    const auto next = static_cast<std::uint32_t>(hosts_.size());
    const auto [found, is_new] =
        host_numbers_.try_emplace(std::string(address.substr(0, address.find('/'))), next);
    if (is_new) hosts_.push_back(0);
    return found->second;
}

void AddressIndex::NoteVisit(std::string_view address) {
    const std::string lower = Lower(base::Trim(address));
    if (lower.empty() || lower.size() > kLongestAddress) return;
    Visits& visits = visits_[std::string(WithoutSlash(WithoutScheme(lower)))];
    ++visits.count;
    visits.last = ++visits_so_far_;
}

std::string_view AddressIndex::LowerOf(const Entry& entry) const {
    return std::string_view(lower_).substr(entry.lower, entry.lower_length);
}

std::string_view AddressIndex::AddressOf(const Entry& entry) const {
    return std::string_view(texts_).substr(entry.text, entry.address_length);
}

std::string_view AddressIndex::NameOf(const Entry& entry) const {
    return std::string_view(texts_).substr(entry.text + entry.address_length, entry.name_length);
}

AddressIndex::Found AddressIndex::Weigh(std::size_t place, std::string_view start) const {
    const Entry& entry = entries_[place];
    const std::string_view lower = LowerOf(entry);
    Found found{place, base::StartsWith(lower, start), entry.uses, 0, hosts_[entry.host]};
    if (visits_.empty()) return found;
    const auto visits = visits_.find(std::string(WithoutSlash(lower.substr(0, lower.find('\n')))));
    if (visits == visits_.end()) return found;
    found.uses += visits->second.count;
    found.last = visits->second.last;
    return found;
}

std::vector<roles::Suggestion> AddressIndex::Find(std::string_view typed, std::size_t most) const {
    const std::string lower = Lower(base::Trim(typed));
    const std::string start(WithoutScheme(lower));
    const std::vector<std::string> words = WordsOf(start);
    if (words.empty() || most == 0) return {};
    // The same address may be there as a favourite and in the history.
    const std::size_t kept = 2 * most;
    std::vector<Found> best;
    for (std::size_t place = 0; place < entries_.size(); ++place) {
        if (!HoldsAll(LowerOf(entries_[place]), words)) continue;
        const Found found = Weigh(place, start);
        if (best.size() == kept && !(found < best.back())) continue;
        best.insert(std::lower_bound(best.begin(), best.end(), found), found);
        if (best.size() > kept) best.pop_back();
    }
    std::vector<roles::Suggestion> suggestions;
    for (const Found& found : best) {
        const std::string_view address = AddressOf(entries_[found.place]);
        const bool is_there =
            std::any_of(suggestions.begin(), suggestions.end(), [address](const roles::Suggestion& other) {
                return base::EqualIgnoringCase(WithoutSlash(other.address), WithoutSlash(address));
            });
        if (!is_there)
            suggestions.push_back({std::string(NameOf(entries_[found.place])), std::string(address)});
        if (suggestions.size() == most) break;
    }
    return suggestions;
}

}  // namespace places
