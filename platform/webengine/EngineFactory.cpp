#include "platform/webengine/EngineFactory.h"

#include <qtwebenginecoreglobal.h>

namespace webengine {

EngineFactory::EngineFactory(PageSettings settings)
    : settings_(std::move(settings)),
      downloads_(settings_),
      download_bars_(downloads_, [this] { ShowDownloads(); }) {
    downloads_.OnChange = [this] {
        if (downloads_window_ != nullptr) downloads_window_->Follow();
    };
    downloads_.OnNews = [this](QWebEnginePage* page, const Download& news) {
        download_bars_.Tell(page, news);
    };
    downloads_.OnRefused = [this](QWebEnginePage* page) { download_bars_.TellRefused(page); };
    RegisterMakerScheme();
    MakeProfile();
}

void EngineFactory::MakeProfile() {
    profile_ = std::make_unique<QWebEngineProfile>();
    profile_->installUrlSchemeHandler(MakerScheme(), &maker_pages_);
    profile_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    profile_->setSpellCheckEnabled(false);
    downloads_.BeginUser(*profile_, {});
    choices_.Open({});
    profile_->setNotificationPresenter([this](std::unique_ptr<QWebEngineNotification> notification) {
        notices_.Present(std::move(notification));
    });
}

EngineFactory::~EngineFactory() {
    EndPages();
}

// The engine wants its pages gone before their profile.
void EngineFactory::EndPages() {
    downloads_.EndUser();
    downloads_window_.reset();
    notices_.CloseAll();
    pages_.clear();
    profile_.reset();
}

void EngineFactory::ShowDownloads() {
    if (downloads_window_ == nullptr) downloads_window_ = std::make_unique<DownloadsWindow>(downloads_);
    downloads_window_->Present();
}

void EngineFactory::ForgetVisits() {
    EndPages();
    MakeProfile();
}

ports::BrowserControl* EngineFactory::MakePage(controls::WebBrowser& /*browser*/, QWidget* parent) {
    pages_.push_back(
        std::make_unique<EnginePage>(PageShare{profile_.get(), settings_, windows_, choices_}, parent));
    LimitedPage* const made = &pages_.back()->Page();
    made->OnRenewed = [this, made] { downloads_.Renew(made); };
    return pages_.back().get();
}

}  // namespace webengine

extern "C" __attribute__((visibility("default"))) qt::PageFactory* BrindlepostMakePageFactory(
    const webengine::PageSettings& settings) {
    return std::make_unique<webengine::EngineFactory>(settings).release();
}

extern "C" __attribute__((visibility("default"))) const char* BrindlepostPageEngineVersion() {
    static const QByteArray version = QByteArray("Qt WebEngine ") + qWebEngineVersion() + ", Chromium " +
                                      qWebEngineChromiumVersion() + ", security patches up to " +
                                      qWebEngineChromiumSecurityPatchVersion();
    return version.constData();
}
