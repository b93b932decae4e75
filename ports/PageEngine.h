// The page engine as a whole, whichever pages it shows.
//
// Why: pages belong to the user who is logged in, with all that they leave, and only the engine can keep it
// for that user and take it away; and the about box names the engine.
#pragma once

#include <string>
#include <string_view>

namespace ports {

class PageEngine {
public:
    virtual ~PageEngine() = default;
    /// A user is logged in; another one who still was is ended first, and of a second call for the same one
    /// nothing comes. No page is shown before; those that wait are shown now. Each user has cookies,
    /// storage and caches of their own. They outlast the run for one who keeps history; for one who does not
    /// they end with the log out, and what was kept before is taken away.
    virtual void BeginUser(std::string_view name, bool keeps_history) = 0;
    /// Nobody is logged in any more: every page goes, seen or not, and downloads that are under way end. A
    /// control that had a page, or waited for one, has none until it is sent somewhere.
    virtual void EndUser() = 0;
    /// Takes away what the pages of the user left: cookies, storage, caches, visited links. Pages that are
    /// open load again, which is no visit.
    virtual void ForgetVisits() = 0;
    /// Brings the list of downloads to the front; nothing while nobody is logged in.
    virtual void ShowDownloads() = 0;
    /// A user is new: what was kept for an earlier one of that name is taken away.
    virtual void RemoveUser(std::string_view name) = 0;
    /// Name, version and patch level in words for the user; empty when no engine is installed. May take a
    /// tenth of a second, for the engine is loaded when it is first wanted.
    virtual std::string Version() = 0;
};

}  // namespace ports
