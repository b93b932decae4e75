#include "web/PageKeysRoom.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "controls/KeyCodes.h"
#include "web/Addresses.h"

namespace web {

namespace {

constexpr int kPlain = 0;
constexpr int kControl = controls::kControlMask;
constexpr int kControlShift = controls::kControlMask | controls::kShiftMask;
constexpr int kAlt = controls::kAltMask;
constexpr int kLastPlace = 9;

}  // namespace

struct PageKeysRoom::Key {
    int key_code;
    int shift;
    void (*act)(PageKeysRoom&);
};

// One row a key; the page in docs/ for users lists the same.
const PageKeysRoom::Key PageKeysRoom::kKeys[] = {
    {'L', kControl, [](PageKeysRoom& keys) { keys.GoToAddress(); }},
    {'T', kControl, [](PageKeysRoom& keys) { keys.OpenEmptyTab(); }},
    {'W', kControl, [](PageKeysRoom& keys) { keys.tabs_.CloseTabInFront(); }},
    {'T', kControlShift, [](PageKeysRoom& keys) { keys.tabs_.Reopen(); }},
    {controls::kKeyTab, kControl, [](PageKeysRoom& keys) { keys.finder_.Walk(1); }},
    {controls::kKeyTab, kControlShift, [](PageKeysRoom& keys) { keys.finder_.Walk(-1); }},
    {'A', kControlShift, [](PageKeysRoom& keys) { keys.finder_.Find(); }},
    {'R', kControl, [](PageKeysRoom& keys) { keys.pages_.Refresh(); }},
    {controls::kKeyF5, kPlain, [](PageKeysRoom& keys) { keys.pages_.Refresh(); }},
    {controls::kKeyLeft, kAlt, [](PageKeysRoom& keys) { keys.pages_.GoBack(); }},
    {controls::kKeyRight, kAlt, [](PageKeysRoom& keys) { keys.pages_.GoForward(); }},
    {'D', kControl, [](PageKeysRoom& keys) { keys.favourites_.AddPageInFront(); }},
    {'J', kControl, [](PageKeysRoom& keys) { keys.engine_.ShowDownloads(); }},
    {controls::kKeyF11, kPlain, [](PageKeysRoom& keys) { keys.window_.ToggleFullScreen(); }},
};

PageKeysRoom::PageKeysRoom(const WebState& state, AddressBox& address, AddressRoom& opener,
                           CompletionRoom& completion, TabRoom& tabs, TabFinderRoom& finder,
                           BrowserEventsRoom& pages, roles::Window& window, roles::Favourites& favourites,
                           ports::PageEngine& engine)
    : state_(state),
      address_(address),
      opener_(opener),
      completion_(completion),
      tabs_(tabs),
      finder_(finder),
      pages_(pages),
      window_(window),
      favourites_(favourites),
      engine_(engine) {}

bool PageKeysRoom::Take(int key_code, int shift) {
    const auto* const key = std::find_if(std::begin(kKeys), std::end(kKeys), [=](const Key& one) {
        return one.key_code == key_code && one.shift == shift;
    });
    if (key != std::end(kKeys)) {
        key->act(*this);
        return true;
    }
    if (shift == kControl && key_code >= '1' && key_code <= '9') {
        ShowTab(key_code - '0');
        return true;
    }
    const bool is_escape = key_code == controls::kKeyEscape && shift == kPlain;
    if (is_escape && (completion_.Dismiss() || finder_.Dismiss())) return true;
    return OfferToPage(key_code, shift) || (is_escape && Stop());
}

void PageKeysRoom::GoToAddress() {
    address_.FocusIfVisible();
}

void PageKeysRoom::OpenEmptyTab() {
    opener_.OpenTab(MakerSiteUrl);
    tabs_.MarkFrontAsEmpty();
}

// The ninth is the last one, however many there are.
void PageKeysRoom::ShowTab(int place) {
    const std::vector<int> strip = tabs_.Strip();
    if (strip.empty()) return;
    const int count = static_cast<int>(strip.size());
    if (place == kLastPlace) place = count;
    if (place <= count) tabs_.ShowMember(strip[static_cast<std::size_t>(place - 1)]);
}

bool PageKeysRoom::OfferToPage(int key_code, int shift) {
    if (tabs_.InFront() > 0) return tabs_.Front().TakeKey(key_code, shift);
    return !state_.BackdropHidden && tabs_.Backdrop().TakeKey(key_code, shift);
}

bool PageKeysRoom::Stop() {
    if (tabs_.InFront() <= 0 || !tabs_.Front().Busy()) return false;
    tabs_.Front().Stop();
    return true;
}

}  // namespace web
