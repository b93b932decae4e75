#include "platform/linux/MimeApps.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "base/Text.h"

namespace linux {
namespace {

constexpr std::string_view kDefaults = "[Default Applications]";
constexpr std::string_view kAdded = "[Added Associations]";
constexpr std::string_view kRemoved = "[Removed Associations]";
constexpr std::string_view kBlanks = " \t\r";

std::string_view Trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// Lines without their line feed; the last is what follows the last line feed.
std::vector<std::string> LinesOf(std::string_view text) {
    return text.empty() ? std::vector<std::string>{""} : base::Split(text, "\n");
}

std::string TextOf(const std::vector<std::string>& lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i)
        text.append(i == 0 ? "" : "\n").append(lines[i]);
    return text;
}

bool IsGroup(std::string_view line) {
    return Trimmed(line).starts_with('[');
}

bool IsKey(std::string_view line, std::string_view key) {
    const std::size_t equals = line.find('=');
    return equals != std::string_view::npos && Trimmed(line.substr(0, equals)) == key;
}

/// The entries of a line "kind=one;two;", but for the entry of the claim.
std::string OthersIn(std::string_view line, const MimeClaim& claim) {
    std::string others;
    for (const std::string& entry : base::Split(Trimmed(line.substr(line.find('=') + 1)), ";")) {
        const std::string_view name = Trimmed(entry);
        if (!name.empty() && name != claim.entry) others.append(name).append(";");
    }
    return others;
}

std::string LineEndOf(std::string_view line) {
    return line.ends_with('\r') ? "\r" : "";
}

std::string Claimed(std::string_view others, const MimeClaim& claim) {
    return std::string(claim.kind).append("=").append(claim.entry).append(";").append(others);
}

/// Calls `change` with the place of every line of a key in the groups of that name, the last first.
void ForEachKey(std::vector<std::string>& lines, std::string_view group, std::string_view key,
                const std::function<void(std::size_t)>& change) {
    std::vector<std::size_t> found;
    bool is_inside = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (IsGroup(lines[i])) is_inside = Trimmed(lines[i]) == group;
        if (is_inside && IsKey(lines[i], key)) found.push_back(i);
    }
    std::for_each(found.rbegin(), found.rend(), change);
}

/// After the last line of the first such group that is not blank; the group is added where it is missing.
void Insert(std::vector<std::string>& lines, std::string_view group, const std::string& line) {
    const auto is_group = [group](const std::string& one) { return Trimmed(one) == group; };
    const auto head = std::find_if(lines.begin(), lines.end(), is_group);
    if (head == lines.end()) {
        if (!lines.back().empty()) lines.emplace_back();
        if (lines.size() > 1 && !Trimmed(lines[lines.size() - 2]).empty()) lines.insert(lines.end() - 1, "");
        lines.insert(lines.end() - 1, {std::string(group), line});
        return;
    }
    auto end = std::find_if(head + 1, lines.end(), IsGroup);
    while (Trimmed(*(end - 1)).empty())
        --end;
    const bool is_at_end = end == lines.end();
    lines.insert(end, line + LineEndOf(*head));
    if (is_at_end) lines.emplace_back();
}

void PutFirst(std::vector<std::string>& lines, std::string_view group, const MimeClaim& claim) {
    bool is_there = false;
    ForEachKey(lines, group, claim.kind, [&](std::size_t place) {
        std::string& line = lines[place];
        const std::string_view first = Trimmed(std::string_view(line).substr(line.find('=') + 1));
        is_there = true;
        const bool is_first = first == claim.entry || first.starts_with(std::string(claim.entry) + ";");
        if (!is_first) line = Claimed(OthersIn(line, claim), claim) + LineEndOf(line);
    });
    if (!is_there) Insert(lines, group, Claimed({}, claim));
}

void TakeOut(std::vector<std::string>& lines, std::string_view group, const MimeClaim& claim) {
    ForEachKey(lines, group, claim.kind, [&](std::size_t place) {
        std::string& line = lines[place];
        const std::vector<std::string> entries = base::Split(line.substr(line.find('=') + 1), ";");
        const auto is_it = [&claim](const std::string& entry) { return Trimmed(entry) == claim.entry; };
        if (std::none_of(entries.begin(), entries.end(), is_it)) return;
        const std::string others = OthersIn(line, claim);
        if (others.empty()) {
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(place));
        } else {
            line = std::string(claim.kind).append("=").append(others).append(LineEndOf(line));
        }
    });
}

}  // namespace

std::string WithClaim(std::string_view text, const MimeClaim& claim) {
    std::vector<std::string> lines = LinesOf(text);
    PutFirst(lines, kDefaults, claim);
    PutFirst(lines, kAdded, claim);
    TakeOut(lines, kRemoved, claim);
    return TextOf(lines);
}

bool NamesDefault(std::string_view text, std::string_view kind) {
    std::vector<std::string> lines = LinesOf(text);
    bool is_named = false;
    ForEachKey(lines, kDefaults, kind, [&is_named](std::size_t) { is_named = true; });
    return is_named;
}

}  // namespace linux
