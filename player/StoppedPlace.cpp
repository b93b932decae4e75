#include "player/StoppedPlace.h"

#include <utility>

#include "base/TextLines.h"

namespace player {

using base::AddLine;
using base::TextLines;

namespace {

// One value a line; the last line says that nothing is missing.
constexpr std::string_view kLists = "brindlepost lists 1";
constexpr std::string_view kPlace = "brindlepost place 1";
constexpr std::string_view kEnd = "end";

}  // namespace

std::string TextOf(const StoppedLists& lists) {
    std::string text;
    AddLine(text, kLists);
    AddLine(text, lists.stamp);
    AddLine(text, std::int64_t{lists.CueHeadIsPath});
    AddLine(text, std::int64_t{lists.CueHeadIsId});
    AddLine(text, static_cast<std::int64_t>(lists.cued.size()));
    for (const CuedRow& row : lists.cued) {
        AddLine(text, row.text);
        AddLine(text, row.entry);
    }
    AddLine(text, static_cast<std::int64_t>(lists.order.size()));
    for (const std::string& entry : lists.order)
        AddLine(text, entry);
    AddLine(text, kEnd);
    return text;
}

std::string TextOf(const StoppedPlace& place) {
    std::string text;
    AddLine(text, kPlace);
    AddLine(text, place.stamp);
    AddLine(text, std::int64_t{place.row});
    AddLine(text, place.milliseconds);
    AddLine(text, place.path);
    AddLine(text, place.title);
    AddLine(text, kEnd);
    return text;
}

std::optional<StoppedLists> ListsOfText(std::string_view text) {
    TextLines lines(text);
    lines.Expect(kLists);
    StoppedLists lists;
    lists.stamp = lines.Number();
    lists.CueHeadIsPath = lines.Number() != 0;
    lists.CueHeadIsId = lines.Number() != 0;
    for (std::size_t left = lines.Count(); left > 0 && lines.IsSound(); --left) {
        std::string shown = lines.Text();
        lists.cued.push_back({.text = std::move(shown), .entry = lines.Text()});
    }
    for (std::size_t left = lines.Count(); left > 0 && lines.IsSound(); --left)
        lists.order.push_back(lines.Text());
    lines.Expect(kEnd);
    return lines.IsAtEnd() ? std::optional(std::move(lists)) : std::nullopt;
}

std::optional<StoppedPlace> PlaceOfText(std::string_view text) {
    TextLines lines(text);
    lines.Expect(kPlace);
    StoppedPlace place;
    place.stamp = lines.Number();
    const std::int64_t row = lines.Number();
    place.row = row >= 0 && row <= INT32_MAX ? static_cast<int>(row) : -1;
    place.milliseconds = lines.Number();
    place.path = lines.Text();
    place.title = lines.Text();
    lines.Expect(kEnd);
    return lines.IsAtEnd() && place.milliseconds >= 0 ? std::optional(std::move(place)) : std::nullopt;
}

}  // namespace player
