// The way of the media commands to the engine on a desktop that is scaled.
//
// The player speaks of the toolkit's pixels, and so does its window. The engine's picture is a window of the
// display, whose pixels are smaller there: at a ratio of 2 a picture that was put as told would fill a
// quarter of its place. Everything but the place of a picture passes as it is.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "ports/MediaControl.h"

namespace qt {

/// How many pixels of the display one of the toolkit's is, in the window with this handle; 1 for no window.
double PixelRatioOf(std::int64_t handle);

class ScaledPictures final : public ports::MediaControl {
public:
    using Ratio = std::function<double(std::int64_t handle)>;

    /// The engine must outlive it.
    explicit ScaledPictures(ports::MediaControl& engine, Ratio ratio = PixelRatioOf)
        : engine_(engine), ratio_(std::move(ratio)) {}

    ports::MediaReply SendString(std::string_view command) override;
    std::string ErrorString(int error) const override { return engine_.ErrorString(error); }

private:
    void NoteParent(std::string_view command);
    std::string Scaled(std::string_view command) const;

    ports::MediaControl& engine_;
    Ratio ratio_;
    std::map<std::string, std::int64_t> parents_;  ///< the window of each alias, in lower case
};

}  // namespace qt
