#include "controls/WebBrowser.h"

namespace controls {

WebBrowser::~WebBrowser() {
    if (engine_ != nullptr) engine_->SetListener(nullptr);
}

void WebBrowser::Attach(ports::BrowserControl* engine) {
    if (engine_ != nullptr) engine_->SetListener(nullptr);
    engine_ = engine;
    if (engine_ == nullptr) return;
    engine_->SetListener(this);
    engine_->SetSeen(seen_);
    if (waiting_address_.empty()) return;
    const std::string address = std::move(waiting_address_);
    waiting_address_.clear();
    address_under_way_ = address;
    engine_->Navigate(address);
}

void WebBrowser::Forget() {
    Attach(nullptr);
    waiting_address_.clear();
    asked_address_.clear();
    address_under_way_.clear();
    known_address_.clear();
}

void WebBrowser::NavigateAgain(std::string_view address) {
    Navigate(address);
    known_address_ = address;
}

void WebBrowser::Navigate(std::string_view address) {
    if (!address.empty()) {
        known_address_.clear();
        asked_address_ = address;
    }
    if (engine_ == nullptr) {
        if (address.empty()) return;
        waiting_address_ = address;
        // Asks the screen, if one watches, for an engine.
        Report(Property::Value);
        return;
    }
    if (!address.empty()) address_under_way_ = address;
    engine_->Navigate(address);
}

void WebBrowser::Navigate2(std::string_view address) {
    if (engine_ != nullptr && !address.empty() && address == address_under_way_) return;
    Navigate(address);
}

void WebBrowser::GoBack() {
    known_address_.clear();
    if (engine_ != nullptr) engine_->GoBack();
}

void WebBrowser::GoForward() {
    known_address_.clear();
    if (engine_ != nullptr) engine_->GoForward();
}

void WebBrowser::RefreshPage() {
    known_address_.clear();
    if (engine_ != nullptr) engine_->Refresh();
}

void WebBrowser::Stop() {
    if (engine_ != nullptr) engine_->Stop();
}

bool WebBrowser::TakeKey(int key_code, int shift) {
    return engine_ != nullptr && engine_->TakeKey(key_code, shift);
}

void WebBrowser::SetSeen(ports::PageSeen seen) {
    if (seen == seen_) return;
    seen_ = seen;
    if (engine_ != nullptr) engine_->SetSeen(seen);
}

std::string WebBrowser::LocationURL() const {
    return engine_ != nullptr ? engine_->LocationURL() : std::string();
}

std::string WebBrowser::LocationName() const {
    return engine_ != nullptr ? engine_->LocationName() : std::string();
}

bool WebBrowser::Busy() const {
    return engine_ != nullptr && engine_->Busy();
}

ports::PageSigns WebBrowser::Signs() const {
    return engine_ != nullptr ? engine_->Signs() : ports::PageSigns();
}

void WebBrowser::ShowSecurity() {
    if (engine_ != nullptr) engine_->ShowSecurity();
}

void WebBrowser::WorkOnDocument(std::string_view host, const std::vector<ports::ElementStep>& steps) {
    if (engine_ != nullptr) engine_->WorkOnDocument(host, steps);
}

void WebBrowser::OnTitleChange(std::string_view title) {
    TitleChange.Raise(title);
}

void WebBrowser::OnNavigateComplete(std::string_view url) {
    address_under_way_.clear();
    if (!known_address_.empty() && LocationURL() == known_address_) return;
    known_address_.clear();
    NavigateComplete2.Raise(url);
}

bool WebBrowser::OnNavigateError(std::string_view url, int /*code*/) {
    address_under_way_.clear();
    if (asked_address_.empty()) asked_address_ = url;
    bool cancel = false;
    NavigateError.Raise(cancel);
    return cancel;
}

ports::BrowserControl* WebBrowser::OnNewWindow(ports::WindowPlace place) {
    WebBrowser* target = nullptr;
    (place == ports::WindowPlace::Behind ? NewWindowBehind : NewWindow2).Raise(target);
    if (target == nullptr) return nullptr;
    // A pop-up is the one page that starts without an address, so its engine is asked for here.
    if (target->engine_ == nullptr) target->Report(Property::Value);
    return target->engine_;
}

}  // namespace controls
