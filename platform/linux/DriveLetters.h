// Which volume has which drive letter, for good: the paths of the library and of the playlists hold letters,
// and must lead to the same volume in every run, whatever else was mounted before it.
//
// A volume is known by its mount point. Once given, a letter stays with it while it is away, when nothing has
// the letter. A new volume gets the first letter that none has, in the order of mounting; when all are given,
// that of the volume which is away longest.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/DrivePath.h"
#include "ports/KeptTexts.h"

namespace linux {

class DriveLetters final {
public:
    static constexpr std::string_view kName = "drive-letters";  ///< of the kept text

    enum class Keeping { ReadOnly, ReadAndWrite };

    /// Known for as long as this lives.
    DriveLetters() = default;
    /// Known from one run to the next. A text that is missing, damaged or cannot be written leaves what is
    /// known here; a damaged one is set aside, and the lines of it that make sense count.
    DriveLetters(ports::KeptTexts& texts, Keeping keeping);

    /// What is mounted now, by native paths in the order of mounting, each once; sorted by letters. What is
    /// mounted beyond the 23 letters gets none.
    std::vector<base::Volume> Give(const std::vector<std::string>& mount_points);

private:
    struct Given {
        char letter;
        std::string mount_point;
    };

    void Read();
    bool ReadLines(std::string_view text);
    bool ReadLine(std::string_view line);
    void GiveLetter(const std::string& mount_point, const std::vector<std::string>& mount_points);
    char FirstFree() const;
    const Given* Find(std::string_view mount_point) const;
    void Write();

    ports::KeptTexts* texts_ = nullptr;
    Keeping keeping_ = Keeping::ReadOnly;
    std::string written_;       // the text as it is kept
    std::vector<Given> given_;  // those that are away first, the longest away before the others
};

}  // namespace linux
