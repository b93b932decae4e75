// The page of the web tab in front, or of the last one in front while the music tab is. Why: favourites and
// history store it, multimedia keys steer it.
#pragma once

#include <string>

namespace roles {

class FrontPage {
public:
    virtual ~FrontPage() = default;
    virtual bool IsPageVisible() const = 0;
    virtual std::string LocationURL() const = 0;
    virtual std::string LocationName() const = 0;
    /// Each as a click on its control: under the connection guard.
    virtual void GoBack() = 0;
    virtual void GoForward() = 0;
    virtual void Refresh() = 0;
};

}  // namespace roles
