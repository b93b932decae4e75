// The skin's colours: the usual ones, and those for who asks the desktop for high contrast.
#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QVariant>

namespace qt::skin {

struct ColourSet {
    QRgb ground;
    QRgb strip;
    QRgb panel;
    QRgb panel_line;
    QRgb raised;
    QRgb raised_top;  // shades of a raised panel
    QRgb raised_bottom;
    QRgb tool_top;
    QRgb tool_bottom;
    QRgb row_bottom;
    QRgb hover;
    QRgb pressed;
    QRgb line;
    QRgb well;
    QRgb well_odd;
    QRgb checked;  // the ground of a ticked box
    QRgb handle;   // of scroll bars and splitters
    QRgb handle_over;
    QRgb text;
    QRgb muted;
    QRgb tab_text;
    QRgb accent;
    QRgb accent_over;
    QRgb accent_pressed;
    QRgb accent_deep;
    QRgb warning;
    QRgb critical;
    QRgb disabled;
    QRgb teal;
    QRgb teal_deep;
    QRgb pale;
    QRgb pale_line;
    QRgb ink;
    QRgb ink_muted;
    QRgb knob;
    QRgb shadow;
    bool high_contrast;
};

inline constexpr ColourSet kUsual{.ground = 0xff1d1916,
                                  .strip = 0xff171310,
                                  .panel = 0xff27211d,
                                  .panel_line = 0xff3b322b,
                                  .raised = 0xff342c26,
                                  .raised_top = 0xff362d27,
                                  .raised_bottom = 0xff292320,
                                  .tool_top = 0xff382f29,
                                  .tool_bottom = 0xff2e2722,
                                  .row_bottom = 0xff241e1a,
                                  .hover = 0xff40362e,
                                  .pressed = 0xff2b241f,
                                  .line = 0xff4b4037,
                                  .well = 0xff171310,
                                  .well_odd = 0xff1b1613,
                                  .checked = 0xff4a3218,
                                  .handle = 0xff6b5d50,
                                  .handle_over = 0xff7d6c5d,
                                  .text = 0xfff2e9de,
                                  .muted = 0xffb9ab9a,
                                  .tab_text = 0xffd9cdbf,
                                  .accent = 0xffe9a24b,
                                  .accent_over = 0xfff2b568,
                                  .accent_pressed = 0xffcf8c3a,
                                  .accent_deep = 0xff7a4d1b,
                                  .warning = 0xfff2a18c,
                                  .critical = 0xffc4503b,
                                  .disabled = 0xff8d8072,
                                  .teal = 0xff57b8a8,
                                  .teal_deep = 0xff1f5c53,
                                  .pale = 0xfff2e6d4,
                                  .pale_line = 0xffd8c8b0,
                                  .ink = 0xff2a221b,
                                  .ink_muted = 0xff5c4c3c,
                                  .knob = 0xfffff4e4,
                                  .shadow = 0xff0d0b09,
                                  .high_contrast = false};

/// Black, white and one yellow; every edge is a line.
inline constexpr ColourSet kHighContrast{.ground = 0xff000000,
                                         .strip = 0xff000000,
                                         .panel = 0xff000000,
                                         .panel_line = 0xffffffff,
                                         .raised = 0xff000000,
                                         .raised_top = 0xff000000,
                                         .raised_bottom = 0xff000000,
                                         .tool_top = 0xff000000,
                                         .tool_bottom = 0xff000000,
                                         .row_bottom = 0xff000000,
                                         .hover = 0xff303030,
                                         .pressed = 0xff505050,
                                         .line = 0xffffffff,
                                         .well = 0xff000000,
                                         .well_odd = 0xff000000,
                                         .checked = 0xff000000,
                                         .handle = 0xffffffff,
                                         .handle_over = 0xffffe000,
                                         .text = 0xffffffff,
                                         .muted = 0xffffffff,
                                         .tab_text = 0xffffffff,
                                         .accent = 0xffffe000,
                                         .accent_over = 0xffffffff,
                                         .accent_pressed = 0xffc8b000,
                                         .accent_deep = 0xff0a3fb0,
                                         .warning = 0xffffb0a0,
                                         .critical = 0xffd00000,
                                         .disabled = 0xffa8a8a8,
                                         .teal = 0xff60ffe8,
                                         .teal_deep = 0xff0a3fb0,
                                         .pale = 0xffffffff,
                                         .pale_line = 0xff606060,
                                         .ink = 0xff000000,
                                         .ink_muted = 0xff202020,
                                         .knob = 0xffffffff,
                                         .shadow = 0xff000000,
                                         .high_contrast = true};

inline constexpr const char* kHighContrastMark = "highContrast";

/// Those that are shown now. The application object remembers which, since the module of the pages has no
/// other thing in common with the program.
inline const ColourSet& Colours() {
    const QCoreApplication* application = QCoreApplication::instance();
    const bool high = application != nullptr && application->property(kHighContrastMark).toBool();
    return high ? kHighContrast : kUsual;
}

/// Takes these or the usual ones from now on; what is on the screen keeps its own until it is painted again.
inline void ShowHighContrast(bool wanted) {
    if (QCoreApplication* application = QCoreApplication::instance())
        application->setProperty(kHighContrastMark, wanted);
}

}  // namespace qt::skin
