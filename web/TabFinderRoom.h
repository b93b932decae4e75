// The list of all tabs over the page: while one walks through them by keys, and to find one by a few letters
// of its title or address.
//
// The strip does not scroll, so past its edge this list is where the tabs are.
#pragma once

#include <string>
#include <vector>

#include "controls/Event.h"
#include "roles/MediaKeys.h"
#include "roles/Window.h"
#include "web/TabRoom.h"
#include "web/WebControls.h"

namespace web {

class TabFinderRoom final {
public:
    TabFinderRoom(TabFinderControls& controls, TabRoom& tabs, roles::Window& window, roles::MediaKeys& keys);

    /// Goes that many tabs on in the strip, round its end, and shows the list for a moment.
    void Walk(int steps);
    /// Shows all tabs with a box to type into.
    void Find();
    /// Closes the list; false if it was not open.
    bool Dismiss();

private:
    void lstTabFinder_Click();
    void txtTabFinder_Change();
    void txtTabFinder_KeyDown(int key_code, int shift);
    void txtTabFinder_LostFocus();
    void tmrTabFinder_Tick();

    bool IsFinding() const;
    void Fill(const std::string& wanted);
    void Show();
    void Place();
    void Choose(int row);
    void Close();
    std::string TitleOf(int index) const;
    bool Holds(int index, const std::vector<std::string>& words) const;

    TabFinderControls& controls_;
    TabRoom& tabs_;
    roles::Window& window_;
    roles::MediaKeys& keys_;
    std::vector<int> listed_;  // the tab of each row
    bool at_work_ = false;     // the row is chosen by this room
    controls::EventClaims claims_;
};

}  // namespace web
