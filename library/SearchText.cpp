#include "library/SearchText.h"

#include "base/Text.h"

namespace library {
namespace {

constexpr std::string_view kDropped = " -";
constexpr std::string_view kDroppedInFilenames = " -'&+()*!";
constexpr unsigned char kFirstBeyondAscii = 0x80;

}  // namespace

std::optional<SearchText> SearchText::For(std::string_view field, std::string_view text) {
    namespace song = store::tblSong;
    if (field == "Artist") return SearchText(song::artist, std::nullopt, kDropped, text);
    if (field == "Title") return SearchText(song::title, std::nullopt, kDropped, text);
    if (field == "Broad") return SearchText(song::artist, song::title, kDropped, text);
    if (field == "Filename") return SearchText(song::FilePath, std::nullopt, kDroppedInFilenames, text);
    return std::nullopt;
}

SearchText::SearchText(store::Field first, std::optional<store::Field> second, std::string_view dropped,
                       std::string_view text)
    : first_(first), second_(second) {
    for (std::size_t i = 0; i < kept_.size(); ++i) {
        const char character = static_cast<char>(i);
        const bool is_upper = character >= 'A' && character <= 'Z';
        const bool is_dropped = dropped.find(character) != std::string_view::npos;
        kept_[i] = is_dropped ? '\0' : static_cast<char>(is_upper ? character - 'A' + 'a' : character);
    }
    Append(text);
    needle_ = cleaned_.substr(0, used_);
}

bool SearchText::Matches(const store::RecordSet& rows) {
    if (needle_.empty()) return true;
    used_ = 0;
    Append(rows.Text(first_));
    if (second_) Append(rows.Text(*second_));
    return std::string_view(cleaned_.data(), used_).find(needle_) != std::string_view::npos;
}

void SearchText::Append(std::string_view text) {
    const std::size_t before = used_;
    if (cleaned_.size() < used_ + text.size()) cleaned_.resize((used_ + text.size()) * 2);
    if (FitsAscii(text)) return;
    used_ = before;
    Clean(base::LCase(text));
}

bool SearchText::FitsAscii(std::string_view text) {
    char* place = cleaned_.data() + used_;
    for (const char raw : text) {
        const auto character = static_cast<unsigned char>(raw);
        if (character >= kFirstBeyondAscii) return false;
        const char lower = kept_[character];
        *place = lower;
        place += lower == '\0' ? 0 : 1;
    }
    used_ = static_cast<std::size_t>(place - cleaned_.data());
    return true;
}

void SearchText::Clean(std::string_view lower) {
    if (cleaned_.size() < used_ + lower.size()) cleaned_.resize((used_ + lower.size()) * 2);
    for (const char raw : lower) {
        const auto character = static_cast<unsigned char>(raw);
        const char kept = character >= kFirstBeyondAscii ? raw : kept_[character];
        cleaned_[used_] = kept;
        used_ += kept == '\0' ? 0 : 1;
    }
}

}  // namespace library
