// Where the contract of page engines is tried: an engine, a site of a few pages, and a listener that
// remembers.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ports/BrowserControl.h"

namespace contracts {

/// An engine with a site of a few pages. Addresses below are appended to Site:
/// "/plain" is titled "Plain words", "/other" "Other words", "/untitled" has no title, "/frames" is titled
/// "Frames" and holds "/plain" and "/untitled" in frames, "/pops" opens "/other" in a window of its own,
/// "/form" is titled "Form" and has a form "theForm" with the inputs "email" and "word" that goes to
/// "/other"; "/inside" is titled "Inside" and goes to its anchor "#end" automatically. The form is at each of
/// SecureSites and at InsecureSite, and not at Site. `Local` is a page on the disk titled "Local words". No
/// server answers at `DeadSite`.
class BrowserWorld {
public:
    virtual ~BrowserWorld() = default;
    virtual ports::BrowserControl& Browser() = 0;
    /// An engine that has shown nothing yet, for a pop-up.
    virtual ports::BrowserControl& Other() = 0;
    /// Lets things happen until `done`; false when they do not come to it.
    virtual bool WaitFor(const std::function<bool()>& done) = 0;

    std::string Site;
    std::vector<std::string> SecureSites{"https://pal.example", "https://www.pal.example",
                                         "https://notpal.example", "https://pal.example.other.example",
                                         "https://other.example"};
    std::string InsecureSite = "http://pal.example";
    std::string DeadSite;
    /// A drive path.
    std::string Local;
    /// The file address that it becomes.
    std::string LocalAddress;
};

class Listener final : public ports::BrowserListener {
public:
    void OnTitleChange(std::string_view) override { Titles.push_back(browser_.LocationName()); }
    void OnNavigateComplete(std::string_view url) override {
        Completed.emplace_back(url);
        Locations.push_back(browser_.LocationURL());
    }
    bool OnNavigateError(std::string_view url, int code) override {
        Codes.push_back(code);
        Failed.emplace_back(url);
        return true;
    }
    ports::BrowserControl* OnNewWindow(ports::WindowPlace place) override {
        ++Windows;
        if (place == ports::WindowPlace::Behind) ++WindowsBehind;
        return ForWindow;
    }
    void OnWindowClosing() override { ++Closings; }
    explicit Listener(ports::BrowserControl& browser) : browser_(browser) {}

    std::vector<std::string> Titles;
    std::vector<std::string> Completed;
    std::vector<std::string> Locations;
    std::vector<std::string> Failed;
    std::vector<int> Codes;  // of those that failed
    int Windows = 0;
    int WindowsBehind = 0;
    int Closings = 0;
    ports::BrowserControl* ForWindow = nullptr;

private:
    ports::BrowserControl& browser_;
};

}  // namespace contracts
