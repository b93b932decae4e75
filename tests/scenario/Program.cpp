#include "scenario/Program.h"

#include <algorithm>
#include <utility>

namespace scenario {
namespace {

constexpr int kHeartbeat = 50;
/// Longer than the splash can take to count to 100.
constexpr int kSplashTime = 12'000;
/// Longer than the lists and the login take to load.
constexpr int kStartTime = 2'000;

}  // namespace

Program::Program(Computer& on, std::string_view command, session::StartFacts facts)
    : computer(on),
      instance(on.instances),
      windows(on.files),
      main_window(windows,
                  {on.database, on.files, on.media, places, shape, dialogs, desktop, desktop, chance,
                   instance, messenger, board, screen_saver, pages, on.registry, programs, on.kept,
                   "C:\\brindlepost", std::move(facts)},
                  command, [this] {
                      ended = true;
                      desktop.Ending = true;
                  }) {
    instance.TryBecomeFirst();
    for (controls::Form* form : windows.All())
        desktop.Adopt(*form);
    pages.OnEnd = [this] { TakePagesAway(); };
}

void Program::Start() {
    main_window.Start();
    desktop.EndHandler();
    Wait(kStartTime);
}

void Program::LogIn(std::string_view name, std::string_view password) {
    windows.login.cmbUser.SetText(name);
    windows.login.txtPassword.SetText(password);
    Click(windows.login.cmdLogin);
}

void Program::StartAndLogIn(std::string_view name, std::string_view password) {
    Start();
    LogIn(name, password);
    Wait(kSplashTime);
}

void Program::Click(controls::Control& control) {
    control.Click.Raise();
    desktop.EndHandler();
    GiveEnginesToPagesThatShow();
}

void Program::DoubleClick(controls::Control& control) {
    control.DblClick.Raise();
    desktop.EndHandler();
    GiveEnginesToPagesThatShow();
}

void Program::PressEnter(controls::Control& control) {
    control.KeyDown.Raise(controls::kKeyEnter, 0);
    desktop.EndHandler();
    GiveEnginesToPagesThatShow();
}

void Program::GoTo(std::string_view address) {
    Browser().web.address.txtAddress.SetText(address);
    PressEnter(Browser().web.address.txtAddress);
}

void Program::Wait(int milliseconds) {
    for (int left = milliseconds; left > 0; left -= kHeartbeat) {
        const int step = std::min(left, kHeartbeat);
        computer.media.Advance(step);
        desktop.Advance(step);
        GiveEnginesToPagesThatShow();
    }
}

void Program::LetPagesArrive() {
    bool any = true;
    while (any) {
        any = false;
        for (std::size_t i = 0; i < engines_.size(); ++i)
            any = engines_[i]->Settle() || any;
        desktop.EndHandler();
        GiveEnginesToPagesThatShow();
    }
}

fakes::FakeBrowserControl* Program::PageOf(int tab) {
    ports::BrowserControl* const engine = Browser().web.tabs.Browser(tab).Engine();
    for (const auto& known : engines_) {
        if (known.get() == engine) return known.get();
    }
    return nullptr;
}

// As the screen does: a page gets its engine when it is seen, and somebody is logged in.
void Program::GiveEnginesToPagesThatShow() {
    if (pages.User.empty()) return;
    auto& browsers = Browser().web.tabs.Browser;
    for (int i = 1; i < browsers.Count(); ++i) {
        if (!browsers(i).Visible() || browsers(i).Engine() != nullptr) continue;
        engines_.push_back(
            std::make_unique<fakes::FakeBrowserControl>(computer.web, computer.cookies[pages.User]));
        browsers(i).Attach(engines_.back().get());
    }
}

void Program::TakePagesAway() {
    auto& browsers = Browser().web.tabs.Browser;
    for (int i = 1; i < browsers.Count(); ++i)
        browsers(i).Forget();
    engines_.clear();
}

std::vector<std::string> Program::BoxTexts() const {
    std::vector<std::string> texts;
    texts.reserve(dialogs.Boxes.size());
    for (const fakes::ShownBox& box : dialogs.Boxes)
        texts.push_back(box.text);
    return texts;
}

std::vector<std::string> Program::RowsOf(const controls::ListBox& list) {
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(list.ListCount()));
    for (int row = 0; row < list.ListCount(); ++row)
        rows.emplace_back(list.List(row));
    return rows;
}

}  // namespace scenario
