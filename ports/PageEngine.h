// The page engine as a whole, whichever pages it shows.
//
// Why: what pages leave in memory belongs to the user who is logged in, and only the engine can take it away;
// and the about box names the engine.
#pragma once

#include <string>

namespace ports {

class PageEngine {
public:
    virtual ~PageEngine() = default;
    /// Takes away every page, seen or not, and what pages left: cookies, storage, caches, visited links.
    /// Downloads that are under way end. A control that had a page has none until it is sent somewhere.
    virtual void ForgetVisits() = 0;
    /// Name, version and patch level in words for the user; empty when no engine is installed. May take a
    /// tenth of a second, for the engine is loaded when it is first wanted.
    virtual std::string Version() = 0;
};

}  // namespace ports
