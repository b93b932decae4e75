// What the other rooms of the web subsystem may ask of the tabs.
#pragma once

#include "controls/WebBrowser.h"

namespace web {

class Tabs {
public:
    virtual ~Tabs() = default;
    /// Members of the tab arrays, the template included; tabs are 1 to Count - 1.
    virtual int Count() const = 0;
    /// The page of a tab; `index` must exist.
    virtual controls::WebBrowser& Page(int index) = 0;
    virtual bool IsShown(int index) const = 0;
    /// Makes tab `NextBrowserIndex`, which must be Count, brings it to the front and sends it to the address
    /// in `cmbAddress`.
    virtual void GetNewBrowser() = 0;
    /// Lays the strip out afresh.
    virtual void CorrectTabs() = 0;
    /// As a click on the tab with the left button; `index` must exist.
    virtual void BringForward(int index) = 0;
    /// Shows a page's title on its tab, on its menu entry and, if it is in front, on the window.
    virtual void ShowTitle(int index) = 0;
};

/// Is told of each tab that is made, so that its page's events find a listener.
class PageWatcher {
public:
    virtual ~PageWatcher() = default;
    virtual void OnPageLoaded(int index) = 0;
};

}  // namespace web
