#include "library/SearchText.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "base/Text.h"

namespace library {
namespace {

constexpr std::string_view kDropped = " -";
constexpr std::string_view kDroppedInFilenames = " -'&+()*!";
constexpr unsigned char kFirstBeyondAscii = 0x80;
constexpr unsigned char kAscii = 0x7f;
constexpr unsigned char kSmallLetterBit = 0x20;
constexpr std::size_t kBlock = sizeof(std::uint64_t);
constexpr std::uint64_t kEach = 0x0101010101010101;

// The only letters beyond ASCII whose lower case is an ASCII letter: capital I with a dot, and the Kelvin
// sign.
constexpr std::string_view kDottedI = "\u0130";
constexpr std::string_view kKelvin = "\u212a";

// Which byte of a block, in the order of the text, is the first with a mark.
std::size_t FirstMarked(std::uint64_t marked) {
    const int bits =
        std::endian::native == std::endian::little ? std::countr_zero(marked) : std::countl_zero(marked);
    return static_cast<std::size_t>(bits) / 8;
}

std::uint64_t WithoutFirst(std::uint64_t marked) {
    if (std::endian::native == std::endian::little) return marked & (marked - 1);
    return marked & ~std::bit_floor(marked);
}

unsigned char Byte(char character) {
    return static_cast<unsigned char>(character);
}

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
        kept_[i] = is_upper ? static_cast<char>(character - 'A' + 'a') : character;
    }
    for (const char character : dropped)
        kept_[Byte(character)] = '\0';
    AppendCleaned(text);
    needle_.swap(cleaned_);
    SetMarks();
}

void SearchText::SetMarks() {
    if (needle_.empty()) return;
    first_in_each_ = kEach * (Byte(needle_.front()) | kSmallLetterBit);
    ascii_ =
        std::none_of(needle_.begin(), needle_.end(), [](char c) { return Byte(c) >= kFirstBeyondAscii; });
    for (std::size_t i = 0; i < marks_.size(); ++i) {
        if (kept_[i] == needle_.front()) marks_[i] = Mark::FirstOfText;
        if (!ascii_ && i >= kFirstBeyondAscii) marks_[i] = Mark::NeedsCleaning;
    }
    marks_[Byte(kDottedI.front())] = Mark::NeedsCleaning;
    marks_[Byte(kKelvin.front())] = Mark::NeedsCleaning;
}

bool SearchText::Matches(const store::RecordSet& rows) {
    return IsIn(rows.Text(first_), second_ ? rows.Text(*second_) : std::string_view());
}

bool SearchText::IsIn(std::string_view front, std::string_view back) {
    if (needle_.empty()) return true;
    Answer answer = Scan(front, back);
    if (answer == Answer::No) answer = Scan(back, {});
    if (answer != Answer::CleanFirst) return answer == Answer::Yes;
    cleaned_.clear();
    AppendCleaned(front);
    AppendCleaned(back);
    return cleaned_.find(needle_) != std::string::npos;
}

// Looks for a beginning of the searched text in `text`; what is found may go on in `rest`.
SearchText::Answer SearchText::Scan(std::string_view text, std::string_view rest) const {
    if (text.size() < kBlock) return ScanEach(text, rest);
    const std::size_t last_block = text.size() - kBlock;
    for (std::size_t i = 0; i < last_block; i += kBlock) {
        const Answer answer = ScanBlock(text, i, rest);
        if (answer != Answer::No) return answer;
    }
    return ScanBlock(text, last_block, rest);
}

SearchText::Answer SearchText::ScanEach(std::string_view text, std::string_view rest) const {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const Answer answer = LookAt(text, i, rest);
        if (answer != Answer::No) return answer;
    }
    return Answer::No;
}

// Eight bytes at once: most are not beyond ASCII and cannot begin the searched text. Setting the bit that
// tells small letters from capitals only makes more bytes look like a beginning.
SearchText::Answer SearchText::ScanBlock(std::string_view text, std::size_t start,
                                         std::string_view rest) const {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, text.data() + start, sizeof bytes);
    const std::uint64_t differing = (bytes | kEach * kSmallLetterBit) ^ first_in_each_;
    const std::uint64_t different = ((differing & kEach * kAscii) + kEach * kAscii) | differing;
    std::uint64_t marked = (~different | bytes) & (kEach * kFirstBeyondAscii);
    while (marked != 0) {
        const Answer answer = LookAt(text, start + FirstMarked(marked), rest);
        if (answer != Answer::No) return answer;
        marked = WithoutFirst(marked);
    }
    return Answer::No;
}

SearchText::Answer SearchText::LookAt(std::string_view text, std::size_t place, std::string_view rest) const {
    const Mark mark = marks_[Byte(text[place])];
    if (mark == Mark::None) return Answer::No;
    if (mark == Mark::FirstOfText) {
        return ContinuesIn(text.substr(place + 1), rest) ? Answer::Yes : Answer::No;
    }
    return NeedsCleaning(text.substr(place)) ? Answer::CleanFirst : Answer::No;
}

bool SearchText::ContinuesIn(std::string_view text, std::string_view rest) const {
    std::size_t matched = 1;
    for (const std::string_view part : {text, rest}) {
        for (const char raw : part) {
            if (matched == needle_.size()) return true;
            const char kept = kept_[Byte(raw)];
            if (kept == '\0') continue;
            if (kept != needle_[matched]) return false;
            ++matched;
        }
    }
    return matched == needle_.size();
}

bool SearchText::NeedsCleaning(std::string_view text) const {
    return !ascii_ || text.starts_with(kDottedI) || text.starts_with(kKelvin);
}

void SearchText::AppendCleaned(std::string_view text) {
    for (const char raw : base::LCase(text)) {
        const char kept = kept_[Byte(raw)];
        if (kept != '\0') cleaned_.push_back(kept);
    }
}

}  // namespace library
