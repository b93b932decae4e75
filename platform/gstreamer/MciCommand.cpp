#include "platform/gstreamer/MciCommand.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "platform/gstreamer/MciErrors.h"

namespace gstreamer {
namespace {

constexpr std::size_t kCoordinates = 4;

// The words of a command, taken one by one from the front.
class Words {
public:
    /// False when a quotation mark has no partner.
    bool Read(std::string_view text) {
        std::size_t at = 0;
        while ((at = text.find_first_not_of(" \t", at)) != std::string_view::npos) {
            const bool quoted = text[at] == '"';
            const std::size_t end = quoted ? text.find('"', at + 1) : text.find_first_of(" \t", at);
            if (quoted && end == std::string_view::npos) return false;
            const std::size_t begin = quoted ? at + 1 : at;
            words_.emplace_back(text.substr(begin, end == std::string_view::npos ? end : end - begin));
            at = end == std::string_view::npos ? text.size() : end + (quoted ? 1 : 0);
        }
        return true;
    }
    bool Empty() const { return next_ >= words_.size(); }
    std::string Take() { return Empty() ? std::string() : words_[next_++]; }
    std::string TakeLower() { return base::LCase(Take()); }
    std::string PeekLower() const { return Empty() ? std::string() : base::LCase(words_[next_]); }
    /// Takes the next word if it is the keyword.
    bool Skip(std::string_view keyword) {
        const bool is_next = !Empty() && base::EqualIgnoringCase(words_[next_], keyword);
        if (is_next) ++next_;
        return is_next;
    }
    /// A whole decimal number; 0, or the number of the error.
    int TakeNumber(std::int64_t& number) {
        if (Empty()) return kMissingParameter;
        const std::string word = Take();
        const char* const end = word.data() + word.size();
        const auto result = std::from_chars(word.data(), end, number);
        return result.ec == std::errc() && result.ptr == end ? kNoError : kBadInteger;
    }

private:
    std::vector<std::string> words_;
    std::size_t next_ = 0;
};

bool SkipFlag(Words& words) {
    return words.Skip("wait") || words.Skip("notify");
}

int ParseNothing(Words& words, Command& /*command*/) {
    while (SkipFlag(words)) {
    }
    return words.Empty() ? kNoError : kUnrecognizedKeyword;
}

int ParseOpen(Words& words, Command& command) {
    std::int64_t style = 0;
    while (!words.Empty()) {
        if (SkipFlag(words) || words.Skip("shareable")) continue;
        int error = kNoError;
        if (words.Skip("type")) {
            command.type = words.Take();
        } else if (words.Skip("alias")) {
            command.alias = words.TakeLower();
        } else if (words.Skip("parent")) {
            error = words.TakeNumber(command.parent);
        } else if (words.Skip("style")) {
            error = words.TakeNumber(style);
        } else {
            error = kUnrecognizedKeyword;
        }
        if (error != kNoError) return error;
    }
    if (command.alias.empty()) command.alias = base::LCase(command.target);
    return command.alias == "all" ? kCannotUseAll : kNoError;
}

int ParsePlay(Words& words, Command& command) {
    while (!words.Empty()) {
        if (SkipFlag(words)) continue;
        const bool from = words.Skip("from");
        if (!from && !words.Skip("to")) return kUnrecognizedKeyword;
        std::int64_t place = 0;
        if (const int error = words.TakeNumber(place)) return error;
        (from ? command.from : command.to) = place;
    }
    return kNoError;
}

int ParseSeek(Words& words, Command& command) {
    if (!words.Skip("to")) return words.Empty() ? kMissingParameter : kUnrecognizedKeyword;
    if (words.Skip("start")) {
        command.seek = SeekTarget::Start;
    } else if (words.Skip("end")) {
        command.seek = SeekTarget::End;
    } else {
        std::int64_t place = 0;
        if (const int error = words.TakeNumber(place)) return error;
        command.to = place;
    }
    return ParseNothing(words, command);
}

int ParseTimeFormat(Words& words, Command& command) {
    command.verb = Verb::SetTimeFormat;
    const std::string format = words.TakeLower();
    if (format != "frames" && format != "ms" && format != "milliseconds") return kBadTimeFormat;
    command.format = format == "frames" ? TimeFormat::Frames : TimeFormat::Milliseconds;
    return ParseNothing(words, command);
}

int ParseSet(Words& words, Command& command) {
    if (words.Empty()) return kMissingParameter;
    if (words.Skip("time") && words.Skip("format")) return ParseTimeFormat(words, command);
    if (!words.Skip("speed")) return kUnrecognizedKeyword;
    command.verb = Verb::SetSpeed;
    if (const int error = words.TakeNumber(command.value)) return error;
    return ParseNothing(words, command);
}

Channel TakeChannel(Words& words) {
    if (words.Skip("left")) return Channel::Left;
    if (words.Skip("right")) return Channel::Right;
    return Channel::Both;
}

int ParseSetAudio(Words& words, Command& command) {
    if (words.Empty()) return kMissingParameter;
    command.channel = TakeChannel(words);
    if (!words.Skip("volume") || !words.Skip("to")) return kUnrecognizedKeyword;
    if (const int error = words.TakeNumber(command.value)) return error;
    return ParseNothing(words, command);
}

struct StatusItem {
    std::string_view word;
    Item item;
};

constexpr std::array kStatusItems = {
    StatusItem{"volume", Item::Volume}, StatusItem{"mode", Item::Mode},
    StatusItem{"length", Item::Length}, StatusItem{"position", Item::Position},
    StatusItem{"speed", Item::Speed},   StatusItem{"time", Item::TimeFormat},
};

int ParseStatus(Words& words, Command& command) {
    if (words.Empty()) return kMissingParameter;
    command.channel = TakeChannel(words);
    const std::string word = words.TakeLower();
    const auto* const found = std::find_if(kStatusItems.begin(), kStatusItems.end(),
                                           [&word](const StatusItem& item) { return item.word == word; });
    if (found == kStatusItems.end()) return kUnrecognizedKeyword;
    command.item = found->item;
    if (command.item != Item::Volume && command.channel != Channel::Both) return kUnrecognizedKeyword;
    if (command.item == Item::TimeFormat && !words.Skip("format")) return kUnrecognizedKeyword;
    return ParseNothing(words, command);
}

int ParsePut(Words& words, Command& command) {
    if (!words.Skip("window")) return words.Empty() ? kMissingParameter : kUnrecognizedKeyword;
    if (!words.Skip("at")) return words.Empty() ? kMissingParameter : kUnrecognizedKeyword;
    for (std::size_t i = 0; i < kCoordinates; ++i) {
        std::int64_t number = 0;
        if (const int error = words.TakeNumber(number)) return error;
        if (!std::in_range<int>(number)) return kOutOfRange;
        command.place.at(i) = static_cast<int>(number);
    }
    return ParseNothing(words, command);
}

int ParseFollow(Words& words, Command& command) {
    if (words.Skip("by")) {
        if (words.Empty()) return kMissingParameter;
        command.file = words.Take();
    }
    return ParseNothing(words, command);
}

struct Syntax {
    std::string_view word;
    Verb verb;
    int (*parse)(Words&, Command&);
};

constexpr std::array kSyntax = {
    Syntax{"open", Verb::Open, ParseOpen},
    Syntax{"close", Verb::Close, ParseNothing},
    Syntax{"play", Verb::Play, ParsePlay},
    Syntax{"pause", Verb::Pause, ParseNothing},
    Syntax{"resume", Verb::Resume, ParseNothing},
    Syntax{"stop", Verb::Stop, ParseNothing},
    Syntax{"seek", Verb::Seek, ParseSeek},
    Syntax{"set", Verb::SetSpeed, ParseSet},
    Syntax{"setaudio", Verb::SetAudio, ParseSetAudio},
    Syntax{"status", Verb::Status, ParseStatus},
    Syntax{"put", Verb::Put, ParsePut},
    Syntax{"follow", Verb::Follow, ParseFollow},
};

const Syntax* FindSyntax(std::string_view word) {
    for (const Syntax& syntax : kSyntax) {
        if (syntax.word == word) return &syntax;
    }
    return nullptr;
}

}  // namespace

int ParseCommand(std::string_view text, Command& command) {
    Words words;
    if (!words.Read(text)) return kNoClosingQuote;
    if (words.Empty()) return kNoCommand;
    const Syntax* const syntax = FindSyntax(words.TakeLower());
    if (syntax == nullptr) return kUnrecognizedCommand;
    // "open  type MPEGVideo ..." has lost its file name.
    const bool is_open = syntax->verb == Verb::Open;
    if (words.Empty() || (is_open && words.PeekLower() == "type")) return kNameRequired;
    command = {};
    command.verb = syntax->verb;
    command.target = is_open ? words.Take() : words.TakeLower();
    return syntax->parse(words, command);
}

}  // namespace gstreamer
