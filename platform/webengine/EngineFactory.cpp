#include "platform/webengine/EngineFactory.h"

#include <qtwebenginecoreglobal.h>

#include <QDir>
#include <QLocale>

#include "platform/webengine/SpellCheck.h"

namespace webengine {

namespace {

constexpr int kLargestCache = 64 * 1024 * 1024;

}  // namespace

EngineFactory::EngineFactory(PageSettings settings)
    : settings_(std::move(settings)),
      folder_(settings_.users_folder),
      downloads_(settings_),
      download_bars_(downloads_, [this] { ShowDownloads(); }, [this] { return AreaInFront(); }) {
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
}

void EngineFactory::BeginUser(std::string_view name, bool keeps_history) {
    EndUser();
    folder_.Begin(name, keeps_history);
    choices_.Open(QString::fromStdString(folder_.Path()), keeps_history);
    if (!choices_.General().keep_site_data) folder_.GiveUpEngine();
    MakeProfile();
}

void EngineFactory::EndUser() {
    EndPages();
    choices_.Open(QString());
    folder_.End();
}

void EngineFactory::MakeProfile() {
    if (folder_.Engine().empty()) {
        profile_ = std::make_unique<QWebEngineProfile>();
        profile_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    } else {
        MakeKeptProfile();
    }
    profile_->installUrlSchemeHandler(MakerScheme(), &maker_pages_);
    CheckSpelling();
    // The list says where the user was, so it goes with all else that does.
    downloads_.BeginUser(*profile_, folder_.Engine().empty()
                                        ? QString()
                                        : QString::fromStdString(folder_.Engine() + "/downloads.json"));
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

// Cookies are kept as long as their sites want, those of a session never.
void EngineFactory::MakeKeptProfile() {
    const QString folder = QString::fromStdString(folder_.Engine());
    profile_ = std::make_unique<QWebEngineProfile>(QStringLiteral("user"));
    QDir usual(profile_->persistentStoragePath());
    profile_->setPersistentStoragePath(folder);
    // It begins in a folder of its own choice, and leaves its preferences there.
    usual.removeRecursively();
    profile_->setCachePath(folder + QStringLiteral("/cache"));
    profile_->setHttpCacheMaximumSize(kLargestCache);
    if (!choices_.General().keep_cache) profile_->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
    profile_->setPersistentCookiesPolicy(QWebEngineProfile::AllowPersistentCookies);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    profile_->setPersistentPermissionsPolicy(QWebEngineProfile::PersistentPermissionsPolicy::AskEveryTime);
#endif
}

// The process may end right after this.
EngineFactory::~EngineFactory() {
    EndPages();
    folder_.Close();
    EndUser();
}

// The engine wants its pages gone before their profile.
void EngineFactory::EndPages() {
    tools_.clear();
    downloads_.EndUser();
    downloads_window_.reset();
    notices_.CloseAll();
    pages_.clear();
    if (profile_ != nullptr) profile_->clearAllVisitedLinks();
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

// A size and an answer to a question say which site they were for, too.
void EngineFactory::ForgetVisits() {
    EndPages();
    choices_.ForgetSites();
    folder_.RenewEngine();
    MakeProfile();
}

ports::BrowserControl* EngineFactory::MakePage(controls::WebBrowser& /*browser*/, QWidget* parent) {
    if (profile_ == nullptr) return nullptr;
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
