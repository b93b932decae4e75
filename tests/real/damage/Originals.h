// The good files that damages are made from.
#pragma once

#include <string>

#include "real/sound/GeneratedMedia.h"

namespace damage {

/// Of the good songs, damaged or following.
inline constexpr double kSongSeconds = 0.8;

std::string ContentOf(const std::string& path);
/// The path of a file of the kind that the name ends with; empty when it cannot be made.
std::string MakeMedia(sound::GeneratedMedia& files, const std::string& name);

}  // namespace damage
