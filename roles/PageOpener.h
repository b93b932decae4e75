// Opens what the address row is asked for. Why: favourites, start-up, multimedia keys and web commands open
// pages without knowing what a tab is.
#pragma once

#include <string_view>

namespace roles {

class PageOpener {
public:
    virtual ~PageOpener() = default;
    /// Opens the address in a new web tab and empties the address row (`cmdGo`). A text of the form "title
    /// (address)" is cut to the address first.
    virtual void OpenTab(std::string_view address) = 0;
    /// As if the user had typed the text into `cmbAddress` and pressed Enter: the mode and the shape of the
    /// text decide what happens.
    virtual void Enter(std::string_view text) = 0;
    /// As Enter in the mode Web, whatever the mode is, and never cut: for a text that nobody typed.
    virtual void EnterAsWeb(std::string_view text) = 0;
};

}  // namespace roles
