// Passes media commands on and counts those that change what plays, so that a change is noticed without
// asking the device, wherever it came from.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ports/MediaControl.h"

namespace player {

class MediaWatch final : public ports::MediaControl {
public:
    /// `media` must outlive the watch.
    explicit MediaWatch(ports::MediaControl& media) : media_(media) {}

    ports::MediaReply SendString(std::string_view command) override;
    std::string ErrorString(int error) const override { return media_.ErrorString(error); }

    /// Commands other than questions, the time format that questions set, levels and the place of the
    /// picture.
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
