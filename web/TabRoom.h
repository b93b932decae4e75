// The tabs: the music tab and, behind it, the web tabs.
//
// A tab is an index. Slots are never used again: closing a tab hides its members, its page stays loaded, and
// a new tab takes the next index. While the music tab is closed its small button stands for it.
#pragma once

#include "controls/Event.h"
#include "ports/EventLoop.h"
#include "web/AddressBox.h"
#include "web/Outgoing.h"
#include "web/TabStrip.h"
#include "web/Tabs.h"
#include "web/WebControls.h"
#include "web/WebMenu.h"
#include "web/WebState.h"

namespace web {

/// What the tabs ask of their neighbours.
struct TabPartners {
    BrowserWindow& window;
    MusicPanel& panel;
    MusicPlayer& player;
    MediaLibrary& library;
    NowPlayingLine& messenger;
    ports::EventLoop& events;
    PageWatcher& watcher;
};

class TabRoom final : public Tabs {
public:
    TabRoom(TabControls& controls, TabMenu& menu, WebState& state, AddressBox& address, TabPartners partners);

    int Count() const override { return controls_.Browser.Count(); }
    controls::WebBrowser& Page(int index) override { return controls_.Browser(index); }
    bool IsShown(int index) const override { return controls_.Browser(index).Visible(); }
    void GetNewBrowser() override;
    void CorrectTabs() override;
    void BringForward(int index) override;
    void ShowTitle(int index) override;

    /// Puts what is in front on the window: caption, lines, menu marks, address.
    void TabChange();
    /// Shows the backdrop page when neither the music tab nor a web tab is there.
    void CheckOpenBrowser();
    /// Brings the first open web tab to the front.
    void ShowNextBrowser();
    /// True while a web tab is open.
    bool IsAnyTabOpen() const;
    /// As a click on the tab's close target.
    void CloseTab(int index);
    /// Closes every web tab, slots long closed included.
    void CloseAllTabs();
    /// As a click on the music tab.
    void BringMusicTabForward();
    /// As a click on the small button: opens the music tab and brings it to the front.
    void OpenMusicTab();
    /// As a click on the music tab's close target: closes it and stops the music.
    void CloseMusicTab();

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
    void HideTab(int index);
    bool IsFrontShown() const { return controls_.Browser(state_.currentbrowser).Visible(); }
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
    TabPartners partners_;
    TabStrip strip_;
    controls::EventClaims claims_;
};

}  // namespace web
