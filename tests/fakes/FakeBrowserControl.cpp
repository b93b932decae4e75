#include "fakes/FakeBrowserControl.h"

#include <algorithm>

#include "base/Text.h"

namespace fakes {

std::string FakeBrowserControl::Complete(std::string_view typed) {
    std::string address(base::Trim(typed));
    if (base::Contains(address, "://")) return address;
    if (address.size() > 2 && address[1] == ':') {
        address = base::Replace(address.substr(2), "\\", "/");
        return "file://" + address;
    }
    if (base::StartsWith(address, "/")) return "file://" + address;
    const std::size_t slash = address.find('/');
    if (slash == std::string::npos) address += '/';
    return "http://" + address;
}

void FakeBrowserControl::Navigate(std::string_view address) {
    Calls.push_back("Navigate " + std::string(address));
    if (base::Trim(address).empty()) return;
    Begin(Complete(address), Way::New);
}

void FakeBrowserControl::GoBack() {
    Calls.emplace_back("GoBack");
    if (position_ > 1) Begin(history_[position_ - 2], Way::Back);
}

void FakeBrowserControl::GoForward() {
    Calls.emplace_back("GoForward");
    if (position_ < history_.size()) Begin(history_[position_], Way::Forward);
}

void FakeBrowserControl::Refresh() {
    Calls.emplace_back("Refresh");
    if (position_ > 0) {
        Begin(history_[position_ - 1], Way::Again);
    } else if (!failed_.empty()) {
        Begin(failed_, Way::New);
    }
}

void FakeBrowserControl::Stop() {
    Calls.emplace_back("Stop");
    busy_ = false;
}

bool FakeBrowserControl::TakeKey(int key_code, int shift) {
    if (std::find(OwnKeys.begin(), OwnKeys.end(), std::pair(key_code, shift)) == OwnKeys.end()) return false;
    Calls.push_back("TakeKey " + std::to_string(key_code) + " " + std::to_string(shift));
    return true;
}

void FakeBrowserControl::Begin(std::string_view address, Way way) {
    wanted_ = address;
    way_ = way;
    busy_ = true;
}

std::string FakeBrowserControl::LocationURL() const {
    return position_ == 0 ? "" : history_[position_ - 1];
}

std::string FakeBrowserControl::LocationName() const {
    return title_.empty() ? LocationURL() : title_;
}

bool FakeBrowserControl::Settle() {
    if (!busy_) return GoInside();
    busy_ = false;
    failed_.clear();
    const auto found = web_.find(wanted_);
    if (found == web_.end()) {
        failed_ = wanted_;
        if (listener_ != nullptr) listener_->OnNavigateError(wanted_, -105);
        return true;
    }
    Arrive(found->second);
    return true;
}

void FakeBrowserControl::Arrive(const FakePage& page) {
    if (way_ == Way::New) {
        history_.resize(position_);
        history_.push_back(wanted_);
        ++position_;
    }
    if (way_ == Way::Back) --position_;
    if (way_ == Way::Forward) ++position_;
    title_ = page.title;
    anchor_ = page.anchor;
    worked_on_ = false;
    if (cookies_ != nullptr && cookies_->contains(wanted_) && !page.title_with_cookie.empty())
        title_ = page.title_with_cookie;
    if (cookies_ != nullptr && page.gives_cookie) cookies_->insert(wanted_);
    if (listener_ == nullptr) return;
    for (const std::string& frame : page.frames)
        listener_->OnNavigateComplete(frame);
    listener_->OnTitleChange(LocationName());
    listener_->OnNavigateComplete(LocationURL());
    if (page.pop_up.empty()) return;
    ports::BrowserControl* window = listener_->OnNewWindow(ports::WindowPlace::InFront);
    if (window != nullptr) window->Navigate(page.pop_up);
}

bool FakeBrowserControl::GoInside() {
    if (anchor_.empty()) return false;
    history_.resize(position_);
    history_.push_back(LocationURL() + anchor_);
    ++position_;
    anchor_.clear();
    if (listener_ == nullptr) return true;
    listener_->OnTitleChange(LocationName());
    listener_->OnNavigateComplete(LocationURL());
    return true;
}

bool FakeBrowserControl::MayWorkFor(std::string_view host) {
    constexpr std::string_view kScheme = "https://";
    const std::string address = LocationURL();
    if (!base::StartsWith(address, kScheme) || worked_on_) return false;
    const std::string rest = address.substr(kScheme.size());
    const std::string name = rest.substr(0, rest.find_first_of(":/?#"));
    worked_on_ = name == host || base::EndsWith(name, "." + std::string(host));
    return worked_on_;
}

// Everything that is asked is remembered, but no form is sent that does not belong to the host.
void FakeBrowserControl::WorkOnDocument(std::string_view host, const std::vector<ports::ElementStep>& steps) {
    Hosts.emplace_back(host);
    const bool may_work = MayWorkFor(host);
    const auto page = web_.find(LocationURL());
    std::map<std::string, std::string> values;
    for (const ports::ElementStep& step : steps) {
        switch (step.kind) {
            case ports::ElementStep::Kind::SetValue:
                Calls.push_back("SetValue " + step.name + " " + step.value);
                values[step.name] = step.value;
                break;
            case ports::ElementStep::Kind::Click:
                Calls.push_back("Click " + step.name);
                break;
            case ports::ElementStep::Kind::Submit:
                Calls.push_back("Submit " + step.name);
                if (may_work && page != web_.end() && page->second.form == step.name)
                    SendForm(page->second, values);
                break;
        }
    }
}

void FakeBrowserControl::SendForm(const FakePage& page, const std::map<std::string, std::string>& values) {
    std::string address = page.action;
    char separator = '?';
    for (const std::string& input : page.inputs) {
        const auto value = values.find(input);
        address += separator + input + '=' + (value == values.end() ? std::string() : value->second);
        separator = '&';
    }
    Begin(address, Way::New);
}

void FakeBrowserControl::ChangeTitle(std::string_view title) {
    title_ = title;
    if (listener_ != nullptr) listener_->OnTitleChange(title_);
}

}  // namespace fakes
