// Back, forward and refresh, as other rooms ask for them.
#pragma once

namespace web {

class PageNavigation {
public:
    virtual ~PageNavigation() = default;
    /// Each as a click on its control: under the connection guard, on the tab in front.
    virtual void ClickBack() = 0;
    virtual void ClickForward() = 0;
    virtual void ClickRefresh() = 0;
};

}  // namespace web
