// What the user can do with one page: its own menu, printing, the full screen, the developer tools and the
// source.
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWebEngineContextMenuRequest>
#include <functional>
#include <memory>

#include "platform/webengine/Downloads.h"
#include "platform/webengine/EnginePage.h"
#include "platform/webengine/FullScreen.h"
#include "platform/webengine/Printing.h"
#include "platform/webengine/Quota.h"

namespace webengine {

/// How often a page may bring up the print box, until the user does something.
inline constexpr int kMostPrintBoxes = 2;

/// What the pages of the program share for it.
struct PageServices {
    Downloads& downloads;
    const PageSettings& settings;
    std::function<void()> show_downloads;
    /// The developer tools go on working for a moment after their window has gone, so their profile must not
    /// go with the user's.
    std::function<QWebEngineProfile*()> tools_profile;
};

class PageTools final : public QObject {
public:
    /// The page must outlive it.
    PageTools(EnginePage& page, PageServices services);
    ~PageTools() override;

    void Print() { printing_.Ask(); }
    void ShowDownloads() { services_.show_downloads(); }
    void ShowSource();
    /// Opens the developer tools in a window of their own, or closes them.
    void ToggleDeveloperTools();
    void InspectElement();
    void SavePage();
    /// For http and https only.
    static void OpenInSystemsBrowser(const QUrl& address);
    void AddToFavourites();
    /// Asks for a place for what lies at the address, then lets the engine fetch it.
    void SaveAs(const QUrl& address, const QString& name, QWebEnginePage::WebAction fetch);
    void Act(QWebEnginePage::WebAction action);
    const PageSettings& Settings() const { return services_.settings; }
    EnginePage& Page() { return page_; }

    /// The user did something in the page, or sent it somewhere.
    void Renew();

private:
    void ShowMenu(const QPoint& place);
    void OnPrintWanted();
    void AskForPlace(const QString& name, std::function<void(const QString&)> then);

    EnginePage& page_;
    PageServices services_;
    Printing printing_;
    FullScreen full_screen_;
    Quota print_boxes_{kMostPrintBoxes};
    QPointer<QWidget> developer_tools_;
};

}  // namespace webengine
