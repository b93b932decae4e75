#include "base/TextLines.h"

#include <charconv>
#include <system_error>

#include "base/Number.h"
#include "base/Text.h"

namespace base {

void AddLine(std::string& text, std::string_view value) {
    for (const char letter : value) {
        if (letter == '%') {
            text += "%25";
        } else if (letter == '\n') {
            text += "%0A";
        } else {
            text += letter;
        }
    }
    text += '\n';
}

void AddLine(std::string& text, std::int64_t value) {
    text.append(ToText(value)).append("\n");
}

void TextLines::Expect(std::string_view line) {
    sound_ = Line() == line && sound_;
}

std::string TextLines::Text() {
    return Replace(Replace(Line(), "%0A", "\n"), "%25", "%");
}

std::int64_t TextLines::Number() {
    const std::string_view line = Line();
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    sound_ = sound_ && error == std::errc() && end == line.data() + line.size();
    return sound_ ? number : 0;
}

std::size_t TextLines::Count() {
    const std::int64_t count = Number();
    sound_ = sound_ && count >= 0 && count <= static_cast<std::int64_t>(rest_.size());
    return sound_ ? static_cast<std::size_t>(count) : 0;
}

std::string_view TextLines::Line() {
    const std::size_t end = rest_.find('\n');
    sound_ = sound_ && end != std::string_view::npos;
    if (!sound_) return {};
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end + 1);
    return line;
}

}  // namespace base
