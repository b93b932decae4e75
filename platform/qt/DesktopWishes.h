// How the user wants every program of the desktop to look: larger letters, high contrast.
//
// The settings manager of an X11 desktop tells both, under the names that every desktop uses for it. The
// resolution of letters ("Xft/DPI") needs nothing here: the toolkit scales the whole program by it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace qt {

struct DesktopWishes {
    /// How much larger than usual letters are to be, 1 to 3.
    double letters = 1;
    bool high_contrast = false;
};

/// The text setting of that name out of what a settings manager publishes; nothing where it has none, or what
/// it publishes is broken off.
std::optional<std::string> TextSetting(std::span<const std::uint8_t> published, std::string_view name);
/// How much larger than usual the letters of a font like "Cantarell 16" are; 1 for usual, smaller and unknown
/// sizes.
double LettersOf(std::string_view font);
/// The name of a theme, as that of the desktop, asks for high contrast.
bool MeansHighContrast(std::string_view theme);

/// Asks the display. To be called before the application object is made.
DesktopWishes WishesOfDesktop();
/// Has the toolkit show everything larger when letters are to be; before the application object is made.
void TakeLetters(const DesktopWishes& wishes);

}  // namespace qt
