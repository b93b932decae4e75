#include "platform/qt/ScaledPictures.h"

#include <QWidget>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "base/Number.h"
#include "base/Text.h"

namespace qt {
namespace {

constexpr std::size_t kPutWords = 8;  ///< put, an alias, window at, left, top, width, height
constexpr std::size_t kFirstNumber = 4;

/// The word after the last one that is `keyword`; empty when there is none.
std::string WordAfter(const std::vector<std::string>& words, std::string_view keyword) {
    for (std::size_t i = words.size(); i-- > 1;)
        if (base::EqualIgnoringCase(words[i - 1], keyword)) return words[i];
    return {};
}

}  // namespace

double PixelRatioOf(std::int64_t handle) {
    const QWidget* widget = handle != 0 ? QWidget::find(static_cast<WId>(handle)) : nullptr;
    return widget != nullptr ? widget->devicePixelRatioF() : 1;
}

ports::MediaReply ScaledPictures::SendString(std::string_view command) {
    const std::string_view verb = command.substr(0, command.find(' '));
    if (base::EqualIgnoringCase(verb, "open")) NoteParent(command);
    if (base::EqualIgnoringCase(verb, "put")) return engine_.SendString(Scaled(command));
    return engine_.SendString(command);
}

void ScaledPictures::NoteParent(std::string_view command) {
    const std::vector<std::string> words = base::Split(command, " ");
    parents_[base::LCase(WordAfter(words, "alias"))] = base::WholeVal(WordAfter(words, "parent"));
}

/// Edges are rounded, as the toolkit does it.
std::string ScaledPictures::Scaled(std::string_view command) const {
    const std::vector<std::string> words = base::Split(command, " ");
    if (words.size() != kPutWords) return std::string(command);
    const auto parent = parents_.find(base::LCase(words[1]));
    const double ratio = parent != parents_.end() ? ratio_(parent->second) : 1;
    if (ratio == 1) return std::string(command);
    std::array<double, 4> place{};
    for (std::size_t i = 0; i < place.size(); ++i)
        place.at(i) = static_cast<double>(base::WholeVal(words[kFirstNumber + i]));
    std::string scaled = words[0] + " " + words[1] + " " + words[2] + " " + words[3];
    for (const std::size_t side : {0U, 1U})
        scaled += " " + base::ToText(std::llround(place.at(side) * ratio));
    for (const std::size_t side : {0U, 1U}) {
        const double end = place.at(side) + place.at(side + 2);
        scaled += " " + base::ToText(std::llround(end * ratio) - std::llround(place.at(side) * ratio));
    }
    return scaled;
}

}  // namespace qt
