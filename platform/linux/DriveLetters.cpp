#include "platform/linux/DriveLetters.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/TextLines.h"

namespace linux {
namespace {

constexpr std::string_view kFirstLine = "brindlepost drive letters 1";
constexpr char kFirstLetter = 'D';
constexpr char kLastLetter = 'Z';
constexpr char kNoLetter = '\0';

bool Holds(const std::vector<std::string>& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

std::string LabelOf(const std::string& mount_point) {
    return base::NameToText(mount_point.substr(mount_point.rfind('/') + 1));
}

}  // namespace

DriveLetters::DriveLetters(ports::KeptTexts& texts, Keeping keeping) : texts_(&texts), keeping_(keeping) {
    Read();
}

// A text that is there and cannot be read is as good as damaged: the next one would replace it.
void DriveLetters::Read() {
    const std::optional<std::string> text = texts_->Read(kName);
    if (text && ReadLines(*text)) {
        written_ = *text;
    } else if (keeping_ == Keeping::ReadAndWrite && Holds(texts_->Names(kName), std::string(kName))) {
        texts_->SetAside(kName);
    }
}

/// False when not all of it makes sense.
bool DriveLetters::ReadLines(std::string_view text) {
    base::TextLines lines(text);
    lines.Expect(kFirstLine);
    bool is_sound = lines.IsSound();
    while (lines.IsSound() && !lines.IsAtEnd())
        is_sound = ReadLine(lines.Text()) && is_sound;
    return is_sound;
}

// "D /media/ann/Stick"
bool DriveLetters::ReadLine(std::string_view line) {
    if (line.size() < 3 || line[1] != ' ' || line[2] != '/') return false;
    const char letter = line.front();
    const std::string_view mount_point = line.substr(2);
    const auto has_letter = [letter](const Given& given) { return given.letter == letter; };
    const bool is_taken = std::any_of(given_.begin(), given_.end(), has_letter);
    if (letter < kFirstLetter || letter > kLastLetter || is_taken || Find(mount_point) != nullptr)
        return false;
    given_.push_back({letter, std::string(mount_point)});
    return true;
}

std::vector<base::Volume> DriveLetters::Give(const std::vector<std::string>& mount_points) {
    const auto is_away = [&](const Given& given) { return !Holds(mount_points, given.mount_point); };
    std::stable_partition(given_.begin(), given_.end(), is_away);
    for (const std::string& mount_point : mount_points) {
        if (Find(mount_point) == nullptr) GiveLetter(mount_point, mount_points);
    }
    Write();
    std::vector<base::Volume> volumes;
    for (const Given& given : given_) {
        if (!is_away(given)) volumes.push_back({given.letter, given.mount_point, LabelOf(given.mount_point)});
    }
    const auto by_letter = [](const base::Volume& a, const base::Volume& b) { return a.letter < b.letter; };
    std::sort(volumes.begin(), volumes.end(), by_letter);
    return volumes;
}

void DriveLetters::GiveLetter(const std::string& mount_point, const std::vector<std::string>& mount_points) {
    char letter = FirstFree();
    if (letter == kNoLetter) {
        if (Holds(mount_points, given_.front().mount_point)) return;
        letter = given_.front().letter;
        given_.erase(given_.begin());
    }
    given_.push_back({letter, mount_point});
}

char DriveLetters::FirstFree() const {
    for (char letter = kFirstLetter; letter <= kLastLetter; ++letter) {
        const auto has_letter = [letter](const Given& given) { return given.letter == letter; };
        if (std::none_of(given_.begin(), given_.end(), has_letter)) return letter;
    }
    return kNoLetter;
}

const DriveLetters::Given* DriveLetters::Find(std::string_view mount_point) const {
    const auto is_it = [mount_point](const Given& given) { return given.mount_point == mount_point; };
    const auto found = std::find_if(given_.begin(), given_.end(), is_it);
    return found == given_.end() ? nullptr : &*found;
}

// What could not be written is tried again when something is mounted or unmounted.
void DriveLetters::Write() {
    if (keeping_ != Keeping::ReadAndWrite || given_.empty()) return;
    std::string text;
    base::AddLine(text, kFirstLine);
    for (const Given& given : given_)
        base::AddLine(text, std::string(1, given.letter).append(" ").append(given.mount_point));
    if (text != written_ && texts_->Write(kName, text)) written_ = std::move(text);
}

}  // namespace linux
