// Texts that the program keeps for itself from one run to the next, each under a name of its own.
//
// Why: where the music stopped and what was removed last are no rows of the four stores, and must outlast a
// program that is killed. Nobody but the user of the computer can read them.
//
// A name may hold any bytes and is not empty. A text that was written or added is there as soon as the call
// has returned, whatever becomes of the program; a power cut may cost the last half minute. Nothing throws.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ports {

class KeptTexts {
public:
    virtual ~KeptTexts() = default;
    /// Nothing when there is no such text or it cannot be read.
    virtual std::optional<std::string> Read(std::string_view name) const = 0;
    /// Replaces the whole text: the old one or the new one is there, never a part. False when it cannot be
    /// kept; the old one stays.
    virtual bool Write(std::string_view name, std::string_view text) = 0;
    /// Adds to the end of the text, which begins empty. False when it cannot be kept; a part may be there
    /// then.
    virtual bool Append(std::string_view name, std::string_view text) = 0;
    virtual void Remove(std::string_view name) = 0;
    /// A text that makes no sense is put beside the others, where the next one replaces it.
    virtual void SetAside(std::string_view name) = 0;
    /// Those that begin with some bytes, sorted by their bytes.
    virtual std::vector<std::string> Names(std::string_view prefix) const = 0;
};

}  // namespace ports
