// A page engine without pages: sites a test describes, a history, and answers that come when the test lets
// them.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ports/BrowserControl.h"

namespace fakes {

/// One document of the made-up web.
struct FakePage {
    std::string title;                     ///< empty: the page has none
    std::vector<std::string> frames;       ///< addresses of the documents in it
    std::string pop_up;                    ///< opened when the page has arrived; empty for none
    std::vector<std::string> inputs = {};  ///< names of the inputs of its form
    std::string form = {};                 ///< the form's name
    std::string action = {};               ///< where the form goes
    std::string anchor = {};               ///< the page goes there inside itself; empty for none
    bool gives_cookie = false;
    std::string title_with_cookie = {};  ///< for whoever brings the cookie; empty: the same
};

/// The addresses of pages that gave a cookie.
using FakeCookies = std::set<std::string, std::less<>>;

/// The made-up web that engines of one test share, under whole addresses. An address that is not there fails.
using FakeWeb = std::map<std::string, FakePage, std::less<>>;

class FakeBrowserControl final : public ports::BrowserControl {
public:
    explicit FakeBrowserControl(const FakeWeb& web) : web_(web) {}
    FakeBrowserControl(const FakeWeb& web, FakeCookies& cookies) : web_(web), cookies_(&cookies) {}

    void SetListener(ports::BrowserListener* listener) override { listener_ = listener; }
    void Navigate(std::string_view address) override;
    void GoBack() override;
    void GoForward() override;
    void Refresh() override;
    void Stop() override;
    bool TakeKey(int key_code, int shift) override;
    std::string LocationURL() const override;
    std::string LocationName() const override;
    bool Busy() const override { return busy_; }
    void WorkOnDocument(std::string_view host, const std::vector<ports::ElementStep>& steps) override;

    /// Lets the navigation that is under way, also one inside the document, arrive or fail. False when none
    /// was.
    bool Settle();
    ports::PageSigns Signs() const override { return signs_; }
    void ShowSecurity() override { Calls.emplace_back("ShowSecurity"); }
    void ChangeSigns(const ports::PageSigns& signs) {
        signs_ = signs;
        if (listener_ != nullptr) listener_->OnSignsChange();
    }
    /// The page changes its own title.
    void ChangeTitle(std::string_view title);

    /// What was asked of it, in order: "Navigate x", "GoBack", ...
    std::vector<std::string> Calls;
    /// The keys that the page's own area answers.
    std::vector<std::pair<int, int>> OwnKeys;
    /// The hosts that work on documents was asked for.
    std::vector<std::string> Hosts;
    /// What Navigate makes of an address.
    static std::string Complete(std::string_view typed);

private:
    enum class Way { New, Back, Forward, Again };
    void Begin(std::string_view address, Way way);
    void Arrive(const FakePage& page);
    bool GoInside();
    bool MayWorkFor(std::string_view host);
    void SendForm(const FakePage& page, const std::map<std::string, std::string>& values);

    const FakeWeb& web_;
    FakeCookies* cookies_ = nullptr;
    ports::BrowserListener* listener_ = nullptr;
    std::vector<std::string> history_;
    std::size_t position_ = 0;  // after the entry that is shown; 0 before the first
    std::string title_;
    bool busy_ = false;
    ports::PageSigns signs_;
    bool worked_on_ = false;
    std::string wanted_;
    std::string failed_;
    std::string anchor_;
    Way way_ = Way::New;
};

}  // namespace fakes
