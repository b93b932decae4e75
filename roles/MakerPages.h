// The maker's pages, each in a tab of its own. Why: the about box has a button for either.
#pragma once

namespace roles {

class MakerPages {
public:
    virtual ~MakerPages() = default;
    /// Without an Internet connection the user is told so, and no tab opens.
    virtual void OpenMakerHome() = 0;
    virtual void OpenUpdates() = 0;
};

}  // namespace roles
