// Makes page engines. The engine is a module that is loaded when the first page is wanted, so this header is
// all that the rest of the program sees of it.
#pragma once

#include <string_view>

class QWidget;

namespace controls {
class WebBrowser;
}
namespace ports {
class BrowserControl;
}

namespace qt {

class PageFactory {
public:
    virtual ~PageFactory() = default;
    /// From now on pages are this user's; those of another one have ended before. `keeps_history` as
    /// ports::PageEngine says.
    virtual void BeginUser(std::string_view name, bool keeps_history) = 0;
    /// Ends every engine it made. No control may use one any more, and none is made until BeginUser.
    virtual void EndUser() = 0;
    /// Makes an engine for the control. Its widget is made as a child of `parent`, which keeps it filling
    /// itself. The engine belongs to the factory and lives as long as it; when the widget goes before, it
    /// does nothing more. Null when pages cannot be shown here.
    virtual ports::BrowserControl* MakePage(controls::WebBrowser& browser, QWidget* parent) = 0;
    /// Ends every engine it made, and what pages of the user left. No control may use one any more.
    virtual void ForgetVisits() = 0;
    /// Brings the list of downloads to the front. Without downloads: nothing happens.
    virtual void ShowDownloads() {}
};

}  // namespace qt
