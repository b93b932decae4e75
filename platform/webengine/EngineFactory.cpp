#include "platform/webengine/EngineFactory.h"

#include <qtwebenginecoreglobal.h>

#include <QLocale>

#include "platform/webengine/SpellCheck.h"

namespace webengine {

EngineFactory::EngineFactory(PageSettings settings)
    : settings_(std::move(settings)),
      downloads_(settings_),
      download_bars_(
          downloads_, [this] { ShowDownloads(); }, [this] { return AreaInFront(); }) {
    downloads_.OnChange = [this] {
        if (downloads_window_ != nullptr) downloads_window_->Follow();
    };
    downloads_.OnNews = [this](QWebEnginePage* page, const Download& news) {
        download_bars_.Tell(page, news);
    };
    downloads_.OnRefused = [this](QWebEnginePage* page) { download_bars_.TellRefused(page); };
    choices_.WhenChanged(&downloads_, [this] {
        if (profile_ != nullptr) CheckSpelling();
    });
    RegisterMakerScheme();
    MakeProfile();
}

void EngineFactory::MakeProfile() {
    profile_ = std::make_unique<QWebEngineProfile>();
    profile_->installUrlSchemeHandler(MakerScheme(), &maker_pages_);
    profile_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    CheckSpelling();
    downloads_.BeginUser(*profile_, {});
    choices_.Open({});
    profile_->setNotificationPresenter([this](std::unique_ptr<QWebEngineNotification> notification) {
        notices_.Present(std::move(notification));
    });
}

void EngineFactory::CheckSpelling() {
    const QStringList dictionaries =
        DictionariesFor(QString::fromStdString(settings_.dictionary_folder), QLocale::system().uiLanguages());
    profile_->setSpellCheckLanguages(dictionaries);
    profile_->setSpellCheckEnabled(choices_.General().spell_check && !dictionaries.isEmpty());
}

EngineFactory::~EngineFactory() {
    EndPages();
}

// The engine wants its pages gone before their profile.
void EngineFactory::EndPages() {
    tools_.clear();
    downloads_.EndUser();
    downloads_window_.reset();
    notices_.CloseAll();
    pages_.clear();
    profile_.reset();
}

QWebEngineProfile* EngineFactory::ToolsProfile() {
    if (tools_profile_ == nullptr) tools_profile_ = std::make_unique<QWebEngineProfile>();
    return tools_profile_.get();
}

PageBars* EngineFactory::AreaInFront() const {
    for (const std::unique_ptr<EnginePage>& page : pages_)
        if (page->IsShown()) return page->Bars();
    return nullptr;
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
    pages_.push_back(std::make_unique<EnginePage>(
        PageShare{profile_.get(), settings_, windows_, choices_, rest_}, parent));
    EnginePage& made = *pages_.back();
    tools_.push_back(std::make_unique<PageTools>(
        made,
        PageServices{downloads_, settings_, [this] { ShowDownloads(); }, [this] { return ToolsProfile(); }}));
    made.SetTools(tools_.back().get());
    made.Page().OnRenewed = [tools = tools_.back().get()] { tools->Renew(); };
    return &made;
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
