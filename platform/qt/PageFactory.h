// Makes page engines. The engine is a module that is loaded when the first page is wanted, so this header is
// all that the rest of the program sees of it.
#pragma once

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
    /// Makes an engine for the control. Its widget is made as a child of `parent`, which keeps it filling
    /// itself. The engine belongs to the factory and lives as long as it; when the widget goes before, it
    /// does nothing more. Null when pages cannot be shown here.
    virtual ports::BrowserControl* MakePage(controls::WebBrowser& browser, QWidget* parent) = 0;
    /// Ends every engine it made, and what their pages left in memory. No control may use one any more.
    virtual void ForgetVisits() = 0;
    /// Brings the list of downloads to the front. Without downloads: nothing happens.
    virtual void ShowDownloads() {}
};

}  // namespace qt
