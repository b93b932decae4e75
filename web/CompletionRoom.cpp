#include "web/CompletionRoom.h"

#include <utility>

#include "base/Text.h"
#include "controls/Arrange.h"
#include "controls/KeyCodes.h"

namespace web {

namespace {

constexpr double kRow = controls::Px(24);
constexpr double kEdges = controls::Px(2);
constexpr std::size_t kLongestName = 48;

/// One line, the name of a favourite before its address.
std::string LineOf(const roles::Suggestion& suggestion) {
    if (suggestion.name.empty()) return suggestion.address;
    std::string line(base::Left(suggestion.name, kLongestName));
    return line.append("  \xC2\xB7  ").append(suggestion.address);
}

}  // namespace

CompletionRoom::CompletionRoom(CompletionControls& controls, const AddressControls& row, AddressBox& address,
                               roles::Suggestions& suggestions, std::function<void(std::string_view)> open)
    : controls_(controls), row_(row), address_(address), suggestions_(suggestions), open_(std::move(open)) {
    claims_.Claim(controls_.lstSuggestions.Click, [this] { lstSuggestions_Click(); });
}

void CompletionRoom::OnText() {
    if (at_work_) return;
    if (address_.IsBeingSet() || !address_.IsWebMode()) {
        Close();
    } else {
        Offer(address_.Typed());
    }
}

void CompletionRoom::Offer(const std::string& typed) {
    typed_ = typed;
    picked_.clear();
    offered_ = suggestions_.Suggest(typed, kMostSuggestions);
    if (offered_.empty()) {
        Close();
    } else {
        Show();
    }
}

void CompletionRoom::Show() {
    controls::ListBox& list = controls_.lstSuggestions;
    list.Clear();
    for (const roles::Suggestion& suggestion : offered_)
        list.AddItem(LineOf(suggestion));
    const controls::TextBox& box = row_.txtAddress;
    list.Move(box.Left(), box.Bottom() + kEdges, box.Width(),
              static_cast<double>(offered_.size()) * kRow + kEdges);
    list.SetVisible(true);
    list.KeepInFront(true);
}

void CompletionRoom::Close() {
    picked_.clear();
    offered_.clear();
    if (!IsOpen()) return;
    controls_.lstSuggestions.SetVisible(false);
    controls_.lstSuggestions.Clear();
}

bool CompletionRoom::Dismiss() {
    if (!IsOpen()) return false;
    if (!picked_.empty()) Put(typed_);
    Close();
    return true;
}

bool CompletionRoom::TakeKey(int key_code, int shift) {
    if (!IsOpen() || shift != 0 || (key_code != controls::kKeyUp && key_code != controls::kKeyDown))
        return false;
    // Before the first row and after the last there is what was typed.
    const int places = controls_.lstSuggestions.ListCount() + 1;
    const int from = controls_.lstSuggestions.ListIndex() + 1;
    Pick((from + (key_code == controls::kKeyDown ? 1 : places - 1)) % places - 1);
    return true;
}

void CompletionRoom::Pick(int row) {
    const bool is_row = row >= 0 && row < static_cast<int>(offered_.size());
    at_work_ = true;
    controls_.lstSuggestions.SetListIndex(is_row ? row : -1);
    at_work_ = false;
    picked_ = is_row ? offered_[static_cast<std::size_t>(row)].address : std::string();
    Put(is_row ? picked_ : typed_);
}

void CompletionRoom::Put(std::string_view text) {
    at_work_ = true;
    address_.SetTyped(text);
    at_work_ = false;
}

// An address with a bracket in it would be taken for an entry of the form title (address), and cut.
std::string CompletionRoom::TextToEnter() const {
    const std::string& text = address_.Typed();
    if (picked_.empty() || text != picked_ || !base::Contains(text, "(")) return text;
    return base::StartsWith(text, "http") ? "(" + text + ")" : text;
}

void CompletionRoom::lstSuggestions_Click() {
    const int row = controls_.lstSuggestions.ListIndex();
    if (at_work_ || row < 0) return;
    Pick(row);
    const std::string text = picked_;
    Close();
    open_(text);
}

}  // namespace web
