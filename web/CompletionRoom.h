// The addresses that show under the address row while one is typed.
//
// The keyboard stays in the row. Down and Up put a suggestion into it, where Enter takes it as if it had been
// typed; Escape brings back what was typed. As long as no suggestion was picked, Enter does what it always
// does.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"
#include "roles/Suggestions.h"
#include "web/AddressBox.h"
#include "web/WebControls.h"

namespace web {

/// As many rows as show at once.
inline constexpr std::size_t kMostSuggestions = 8;

class CompletionRoom final {
public:
    /// `open` opens a suggestion that was clicked.
    CompletionRoom(CompletionControls& controls, const AddressControls& row, AddressBox& address,
                   roles::Suggestions& suggestions, std::function<void(std::string_view)> open);

    /// The text in the row is another one, by the user or by the program.
    void OnText();
    /// Takes the keys that walk the list; true if the key is used up.
    bool TakeKey(int key_code, int shift);
    bool IsOpen() const { return controls_.lstSuggestions.Visible(); }
    void Close();
    /// Closes the list and puts back what was typed; false if it was not open.
    bool Dismiss();
    /// The text that Enter has to work on: what is in the row, and a picked address in the form in which its
    /// brackets do it no harm.
    std::string TextToEnter() const;

private:
    void lstSuggestions_Click();

    void Offer(const std::string& typed);
    void Show();
    void Pick(int row);
    void Put(std::string_view text);

    CompletionControls& controls_;
    const AddressControls& row_;
    AddressBox& address_;
    roles::Suggestions& suggestions_;
    std::function<void(std::string_view)> open_;
    std::vector<roles::Suggestion> offered_;
    std::string typed_;
    std::string picked_;
    bool at_work_ = false;  // what changes is changed by this room
    controls::EventClaims claims_;
};

}  // namespace web
