#include "platform/webengine/EngineFactory.h"

#include <qtwebenginecoreglobal.h>

#include "platform/webengine/DownloadName.h"

namespace webengine {

namespace {

constexpr int kMostDownloads = 8;

}  // namespace

EngineFactory::EngineFactory(PageSettings settings) : settings_(std::move(settings)) {
    RegisterMakerScheme();
    MakeProfile();
}

void EngineFactory::MakeProfile() {
    profile_ = std::make_unique<QWebEngineProfile>();
    profile_->installUrlSchemeHandler(MakerScheme(), &maker_pages_);
    profile_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    profile_->setSpellCheckEnabled(false);
    QObject::connect(profile_.get(), &QWebEngineProfile::downloadRequested, profile_.get(),
                     [this](QWebEngineDownloadRequest* download) { TakeDownload(download); });
}

EngineFactory::~EngineFactory() {
    EndPages();
}

// The engine wants its pages gone before their profile.
void EngineFactory::EndPages() {
    pages_.clear();
    profile_.reset();
    downloads_running_ = 0;
}

void EngineFactory::ForgetVisits() {
    EndPages();
    MakeProfile();
}

ports::BrowserControl* EngineFactory::MakePage(controls::WebBrowser& /*browser*/, QWidget* parent) {
    pages_.push_back(
        std::make_unique<EnginePage>(PageShare{profile_.get(), settings_, windows_, choices_}, parent));
    return pages_.back().get();
}

// Whatever name the server gives, the file ends in the download folder under a name that is free there.
void EngineFactory::TakeDownload(QWebEngineDownloadRequest* download) {
    const QString folder = QString::fromStdString(settings_.download_folder);
    const QString name = FreeDownloadName(folder, CleanDownloadName(download->suggestedFileName()));
    if (folder.isEmpty() || downloads_running_ >= kMostDownloads || !EndsInside(folder, name)) {
        download->cancel();
        return;
    }
    download->setDownloadDirectory(folder);
    download->setDownloadFileName(name);
    ++downloads_running_;
    QObject::connect(download, &QWebEngineDownloadRequest::isFinishedChanged, profile_.get(),
                     [this, download] {
                         if (download->isFinished()) --downloads_running_;
                     });
    download->accept();
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
