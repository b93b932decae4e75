// Values as the lines of a text: what the program keeps in files of its own, one value a line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace base {

/// Adds a value and a line break. A value may hold any bytes; a line break in it is written in three letters.
void AddLine(std::string& text, std::string_view value);
void AddLine(std::string& text, std::int64_t value);

/// Reads the values one after another. Once something was wrong nothing is right any more, and every value is
/// empty or 0.
class TextLines final {
public:
    explicit TextLines(std::string_view text) : rest_(text) {}

    bool IsSound() const { return sound_; }
    /// Everything was read, and all of it was sound.
    bool IsAtEnd() const { return sound_ && rest_.empty(); }
    /// The next line must be this one.
    void Expect(std::string_view line);
    std::string Text();
    std::int64_t Number();
    /// How many values follow, each of at least a line break.
    std::size_t Count();

private:
    std::string_view Line();

    std::string_view rest_;
    bool sound_ = true;
};

}  // namespace base
