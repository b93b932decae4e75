// The controls of the web subsystem on the main window. The places in the tab strip are given here; where
// everything else is belongs to the layout.
#pragma once

#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/Line.h"
#include "controls/ListBox.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "controls/WebBrowser.h"

namespace web {

/// The tab strip, in twips of the window.
inline constexpr double kStripTop = 90;
inline constexpr double kStripHeight = 450;
inline constexpr double kTabWidth = 2640;
inline constexpr double kMusicTabLeft = 840;
inline constexpr double kFirstTabLeft = 3480;              ///< after the music tab
inline constexpr double kFirstTabLeftWithoutMusic = 1560;  ///< after the small button
inline constexpr double kTabLabelOffset = 120;
inline constexpr double kTabCloseOffset = 2280;
/// The address row and where the pages begin.
inline constexpr double kAddressRowTop = 660;
inline constexpr double kAddressRowHeight = 420;
inline constexpr double kPageTop = 1290;

/// Tabs: what has one index belongs together. Member 0 of each array is a template and never shows.
struct TabControls {
    TabControls();
    /// Puts the group into a window or panel, back to front.
    void PutInto(controls::Container& container);

    controls::WebBrowser BrowserBG{"BrowserBG"};
    controls::ControlArray<controls::WebBrowser> Browser{"Browser"};
    controls::Line TabLineLeft{"TabLineLeft"};
    controls::Line TabLineRight{"TabLineRight"};
    controls::Image imgMusicTab{"imgMusicTab"};
    controls::Image imgMusicTabMini{"imgMusicTabMini", "musictabmini"};
    controls::Label tabMusicClose{"tabMusicClose", "\xC3\x97"};
    controls::ControlArray<controls::Image> tabtab{"tabtab"};
    controls::ControlArray<controls::Label> tabLabel{"tabLabel"};
    controls::ControlArray<controls::Label> tabClose{"tabClose"};
    controls::ControlArray<controls::Menu> mnuTabTab{"mnuTabTab"};
};

/// The address row's input.
struct AddressControls {
    AddressControls();
    void PutInto(controls::Container& container);

    controls::ComboBox cmbType{"cmbType", controls::ComboStyle::DropDownList};
    controls::ComboBox cmbAddress{"cmbAddress"};
    controls::TextBox txtAddress{"txtAddress"};  ///< lies over the text part of cmbAddress
    controls::Label Label2{"Label2"};            ///< hidden scratch
};

/// What shows under the address row while one types.
struct CompletionControls {
    CompletionControls();
    void PutInto(controls::Container& container);

    controls::ListBox lstSuggestions{"lstSuggestions"};
};

/// The list of all tabs, with a box to find one.
struct TabFinderControls {
    TabFinderControls();
    void PutInto(controls::Container& container);

    controls::Frame fraTabFinder{"fraTabFinder"};
    controls::TextBox txtTabFinder{"txtTabFinder"};
    controls::ListBox lstTabFinder{"lstTabFinder"};
    controls::Timer tmrTabFinder{"tmrTabFinder", 1500};  ///< closes the list after a walk
};

/// Back, forward, refresh.
struct NavigationControls {
    NavigationControls();
    void PutInto(controls::Container& container);

    controls::Image imgBack{"imgBack", "back"};
    controls::Image imgBackOver{"imgBackOver", "backover"};
    controls::Image imgForward{"imgForward", "forward"};
    controls::Image imgForwardOver{"imgForwardOver", "forwardover"};
    controls::Label lblRefresh2{"lblRefresh2", "Refresh"};
};

/// Automatic refresh.
struct RefreshControls {
    RefreshControls();
    void PutInto(controls::Container& container);

    controls::Image imgCheck{"imgCheck", "check"};
    controls::Image imgCheckChecked{"imgCheckChecked", "checkchecked"};  ///< shows while it is on
    controls::Label lblRefresh1{"lblRefresh1", "Auto"};
    controls::TextBox txtRefresh{"txtRefresh"};
    controls::Timer tmrRefresh{"tmrRefresh", 1000};
};

/// The help button.
struct HelpControls {
    HelpControls();
    void PutInto(controls::Container& container);

    controls::Image imgHelp{"imgHelp", "help"};
};

/// The groups of the main window that the rooms here answer.
struct WebControls {
    void PutInto(controls::Container& container);

    TabControls tabs;
    AddressControls address;
    CompletionControls completion;
    TabFinderControls finder;
    NavigationControls navigation;
    RefreshControls refresh;
    HelpControls help;
};

}  // namespace web
