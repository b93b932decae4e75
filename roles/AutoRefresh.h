// The automatic refresh of the tab in front. Why: it must not go on for a user who has logged out.
#pragma once

namespace roles {

class AutoRefresh {
public:
    virtual ~AutoRefresh() = default;
    /// As a click on `imgCheckChecked`; nothing happens while it is off.
    virtual void SwitchOff() = 0;
};

}  // namespace roles
