// The engine's profile and its pages.
//
// Several users share the program, each with a login of their own, and each has a profile of their own: it
// begins with the login and ends with it, together with all its pages. What it keeps lies in the user's
// folder (UserFolder.h); for a user who keeps no history, or whose folder cannot be written to, it lives in
// memory alone.
#pragma once

#include <QWebEngineProfile>
#include <memory>
#include <vector>

#include "platform/qt/PageFactory.h"
#include "platform/webengine/DownloadBars.h"
#include "platform/webengine/Downloads.h"
#include "platform/webengine/DownloadsWindow.h"
#include "platform/webengine/EnginePage.h"
#include "platform/webengine/EngineTurns.h"
#include "platform/webengine/FavouritesFile.h"
#include "platform/webengine/LimitedPage.h"
#include "platform/webengine/MakerPages.h"
#include "platform/webengine/PageSettings.h"
#include "platform/webengine/PageTools.h"
#include "platform/webengine/SiteChoices.h"
#include "platform/webengine/SiteNotices.h"
#include "platform/webengine/UserFolder.h"

namespace webengine {

class EngineFactory final : public qt::PageFactory {
public:
    explicit EngineFactory(PageSettings settings);
    ~EngineFactory() override;

    void BeginUser(std::string_view name, bool keeps_history) override;
    void EndUser() override;
    ports::BrowserControl* MakePage(controls::WebBrowser& browser, QWidget* parent) override;
    void ForgetVisits() override;
    void ShowDownloads() override;

private:
    void MakeProfile();
    void MakeKeptProfile();
    void EndPages();
    void CheckSpelling();
    PageBars* AreaInFront() const;
    QWebEngineProfile* ToolsProfile();

    EngineTurns turns_;
    PageSettings settings_;
    UserFolder folder_;
    SiteChoices choices_;
    FavouritesFile favourites_file_{settings_};
    MakerPages maker_pages_{choices_, favourites_file_.Errands()};
    SiteNotices notices_{choices_, settings_.notices};
    std::unique_ptr<QWebEngineProfile> tools_profile_;
    std::unique_ptr<QWebEngineProfile> profile_;
    RestHouse rest_{settings_.rest};
    std::vector<std::unique_ptr<EnginePage>> pages_;
    std::vector<std::unique_ptr<PageTools>> tools_;
    Quota windows_{kMostWindows};
    Downloads downloads_;
    std::unique_ptr<DownloadsWindow> downloads_window_;
    DownloadBars download_bars_;
};

}  // namespace webengine
