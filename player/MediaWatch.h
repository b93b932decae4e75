// Passes media commands on and counts those that change what plays, so that a change is noticed without
// asking the device, wherever it came from.
#pragma once

#include <cstdint>

#include "ports/MediaControl.h"

namespace player {

class MediaWatch final : public ports::MediaControl {
public:
    /// `media` must outlive the watch.
    explicit MediaWatch(ports::MediaControl& media) : media_(media) {}

    int SendString(std::string_view command, std::string* reply, int return_length,
                   std::int64_t callback) override;
    bool ErrorString(int error, std::string& text, int length) const override;

    /// Commands but questions, the time format that questions set, levels and the place of the picture.
    std::uint64_t Orders() const { return orders_; }
    /// Songs that were opened.
    std::int64_t Openings() const { return openings_; }
    /// Jumps within a song.
    std::uint64_t Seeks() const { return seeks_; }

private:
    ports::MediaControl& media_;
    std::uint64_t orders_ = 0;
    std::int64_t openings_ = 0;
    std::uint64_t seeks_ = 0;
};

}  // namespace player
