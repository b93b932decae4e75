// The tab strip: the music tab and the web tabs. Why: the session closes, names and restores them.
//
// Web tabs are counted from 1; 0 is the template that is never shown.
#pragma once

#include <string_view>

namespace roles {

class Tabs {
public:
    virtual ~Tabs() = default;
    /// Members of the tab arrays, the template included; tabs are 1 to Count - 1.
    virtual int Count() const = 0;
    /// `index` must exist, here and below.
    virtual bool IsTabVisible(int index) const = 0;
    /// As a click on the tab's close target.
    virtual void CloseTab(int index) = 0;
    /// As a click on the tab with the left button.
    virtual void BringForward(int index) = 0;
    virtual void NameTab(int index, std::string_view caption) = 0;
    /// Lays the strip out again.
    virtual void CorrectTabs() = 0;
    /// `imgMusicTab` shows: the music tab is not closed.
    virtual bool IsMusicTabVisible() const = 0;
    /// The click of `imgMusicTabMini`: opens the music tab and puts it in front.
    virtual void OpenMusicTab() = 0;
    /// `imgMusicTab` was clicked with the left button.
    virtual void BringMusicTabForward() = 0;
    /// The click of `tabMusicClose`.
    virtual void CloseMusicTab() = 0;
    /// The backdrop page goes to an address.
    virtual void NavigateBackdrop(std::string_view address) = 0;
};

}  // namespace roles
