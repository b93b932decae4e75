// The tabs: the music tab and, after it, the web tabs.
//
// A tab is an index. Slots are never used again: closing a tab hides its members, its page stays loaded, and
// a new tab takes the next index. While the music tab is closed its small button is there instead.
#pragma once

#include <string_view>
#include <vector>

#include "controls/Event.h"
#include "controls/WebBrowser.h"
#include "ports/EventLoop.h"
#include "roles/Highlights.h"
#include "roles/Layout.h"
#include "roles/MediaIntake.h"
#include "roles/MessengerLine.h"
#include "roles/Tabs.h"
#include "roles/TrackLists.h"
#include "roles/Transport.h"
#include "roles/Window.h"
#include "web/AddressBox.h"
#include "web/TabStrip.h"
#include "web/WebControls.h"
#include "web/WebMenu.h"
#include "web/WebState.h"

namespace web {

struct TabRoles {
    roles::Window& window;
    roles::Layout& layout;
    roles::Highlights& highlights;
    roles::Transport& transport;
    roles::TrackLists& track_lists;
    roles::MediaIntake& media;
    roles::MessengerLine& messenger;
};

/// Notified of each tab that is made, so that its page's events find a listener. Why: the tabs make the
/// pages, and the room that listens to them is built on the tabs.
class PageWatcher {
public:
    virtual ~PageWatcher() = default;
    virtual void OnPageLoaded(int index) = 0;
};

class TabRoom final : public roles::Tabs {
public:
    TabRoom(TabControls& controls, TabMenu& menu, WebState& state, AddressBox& address, TabRoles roles,
            ports::EventLoop& events, PageWatcher& watcher);

    // roles::Tabs
    int Count() const override { return controls_.Browser.Count(); }
    bool IsTabVisible(int index) const override { return controls_.tabtab(index).Visible(); }
    void CloseTab(int index) override;
    void BringForward(int index) override;
    void NameTab(int index, std::string_view caption) override;
    void CorrectTabs() override;
    bool IsMusicTabVisible() const override { return controls_.imgMusicTab.Visible(); }
    void OpenMusicTab() override;
    void BringMusicTabForward() override;
    void CloseMusicTab() override;
    void NavigateBackdrop(std::string_view address) override { controls_.BrowserBG.Navigate(address); }

    /// The page of a tab; `index` must exist.
    controls::WebBrowser& Page(int index) { return controls_.Browser(index); }
    /// The page of the web tab in front, or of the last one in front while the music tab is. The template,
    /// which never shows, when there is no such tab.
    controls::WebBrowser& Front() { return controls_.Browser(FrontIndex()); }
    const controls::WebBrowser& Front() const { return controls_.Browser(FrontIndex()); }
    /// The page that shows when there is no tab.
    controls::WebBrowser& Backdrop() { return controls_.BrowserBG; }
    /// The page of the tab is open.
    bool IsShown(int index) const { return controls_.Browser(index).Visible(); }
    /// False once every index has been used.
    bool CanOpenTab() const { return Count() <= kLastTabIndex; }
    /// Makes a tab, brings it to the front and sends it to the address. Returns its index. CanOpenTab must
    /// hold.
    int GetNewBrowser(std::string_view address);
    /// The tabs of the strip as they are seen, from left to right; 0 is the music tab.
    std::vector<int> Strip() const;
    /// What of the strip is in front; -1 when nothing is.
    int InFront() const;
    /// Brings a tab of the strip to the front.
    void ShowMember(int index);
    /// Moves the keyboard to the address row.
    void FocusAddress() { address_.FocusAddress(); }
    /// As the menu's command: nothing while the music tab is in front.
    void CloseTabInFront() { mnuCloseCurrentTab_Click(); }
    /// Shows the tab that was closed last again, with the page it still has; the one before at the next call.
    void Reopen();
    /// The tab in front is for an address to come: it goes when that gets a tab of its own.
    void MarkFrontAsEmpty() { empty_tab_ = FrontIndex(); }
    /// That tab while it is in front and shows the program's own page; 0 if there is none.
    int EmptyTabInFront() const;
    /// Closes it; it does not come back by Reopen.
    void DropEmptyTab(int index);
    /// Makes an empty tab behind what is in front, which stays there. Returns its index. CanOpenTab must
    /// hold.
    int OpenBehind();
    /// A web tab or the music tab is in front.
    bool IsAnythingInFront() const { return state_.MusicTabActive || IsFrontShown(); }
    /// Shows a page's title on its tab, on its menu entry and, if it is in front, on the window.
    void ShowTitle(int index);
    /// Shows a page's icon and progress on its tab and, if it is in front, its security in the address row.
    void ShowSigns(int index);

private:
    void tabtab_MouseUp(int index, int button);
    void tabtab_MouseMove(int index);
    void tabLabel_MouseUp(int index, int button);
    void tabLabel_MouseMove(int index);
    void tabClose_Click(int index);
    void imgMusicTab_MouseUp(int button);
    void imgMusicTabMini_Click();
    void tabMusicClose_Click();
    void mnuTabTab_Click(int index);
    void mnuCloseCurrentTab_Click();
    void mnuCloseAllTabs_Click();

    void ClaimMusicTab();
    void LoadPage(int index);
    void LoadStripMembers(int index);
    void ShowStripMembers(int index);
    void FaceNewTab(int index);
    void ShowMembers(int index, bool shown);
    bool HasPageToShow(int index) const;
    /// `currentbrowser`, or 0 when there is no such tab.
    int FrontIndex() const;
    bool IsFrontShown() const { return Front().Visible(); }
    bool IsAnyTabOpen() const;
    /// Puts what is in front on the window: caption, lines, menu marks, address.
    void TabChange();
    /// Shows the backdrop page when neither the music tab nor a web tab is there.
    void CheckOpenBrowser();
    /// Brings the first open web tab to the front.
    void ShowNextBrowser();
    void TakeOverLeftmost();
    void MarkMenuEntries();
    void ShowNothingInFront();
    void ShowMusicInFront();
    void ShowPageInFront();
    void CheckMiniLine();

    TabControls& controls_;
    TabMenu& menu_;
    WebState& state_;
    AddressBox& address_;
    TabRoles roles_;
    ports::EventLoop& events_;
    PageWatcher& watcher_;
    TabStrip strip_;
    std::vector<int> closed_;  // slots, in the order of their closing
    int empty_tab_ = 0;
    controls::EventClaims claims_;
};

}  // namespace web
