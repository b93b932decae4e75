#include "platform/webengine/PageTools.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QVBoxLayout>
#include <QWebEngineHistory>

#include "platform/webengine/DownloadName.h"
#include "platform/webengine/LimitedPage.h"
#include "platform/webengine/PageMenu.h"

namespace webengine {

namespace {

/// The developer tools of one page, which works on it as long as the window is open.
class ToolsWindow final : public QWidget {
public:
    ToolsWindow(QWebEnginePage& inspected, QWebEngineProfile* profile)
        : inspected_(&inspected), view_(new QWebEngineView(this)) {
        setObjectName(QStringLiteral("developerTools"));
        setWindowTitle(tr("Developer tools"));
        setAttribute(Qt::WA_DeleteOnClose);
        setAttribute(Qt::WA_QuitOnClose, false);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(view_);
        view_->setContextMenuPolicy(Qt::NoContextMenu);
        view_->setPage(new QWebEnginePage(profile, view_));
        inspected.setDevToolsPage(view_->page());
        constexpr QSize kSize(1000, 640);
        resize(kSize);
    }
    ~ToolsWindow() override {
        if (inspected_ != nullptr) inspected_->setDevToolsPage(nullptr);
    }

private:
    QPointer<QWebEnginePage> inspected_;
    QWebEngineView* view_;
};

}  // namespace

PageTools::PageTools(EnginePage& page, PageServices services)
    : page_(page),
      services_(std::move(services)),
      printing_(*page.View(), services_.downloads),
      full_screen_(page) {
    page_.View()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(page_.View(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) { ShowMenu(place); });
    connect(page_.View(), &QWebEngineView::printRequested, this, [this] { OnPrintWanted(); });
}

PageTools::~PageTools() {
    delete developer_tools_.data();
}

void PageTools::Renew() {
    print_boxes_.Renew();
    services_.downloads.Renew(&page_.Page());
}

void PageTools::Act(QWebEnginePage::WebAction action) {
    page_.Page().RenewQuotas();
    page_.Page().triggerAction(action);
}

void PageTools::ShowSource() {
    Act(QWebEnginePage::ViewSource);
}

void PageTools::ToggleDeveloperTools() {
    if (developer_tools_ != nullptr) {
        developer_tools_->close();
        return;
    }
    developer_tools_ = new ToolsWindow(page_.Page(), services_.tools_profile());
    developer_tools_->show();
}

void PageTools::InspectElement() {
    if (developer_tools_ == nullptr) ToggleDeveloperTools();
    Act(QWebEnginePage::InspectElement);
}

void PageTools::OpenInSystemsBrowser(const QUrl& address) {
    if (address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https"))
        QDesktopServices::openUrl(address);
}

void PageTools::AddToFavourites() {
    if (services_.settings.add_to_favourites) services_.settings.add_to_favourites();
}

void PageTools::AskForPlace(const QString& name, std::function<void(const QString&)> then) {
    if (page_.View() == nullptr) return;
    auto* box = new QFileDialog(page_.View(), tr("Save as"), services_.downloads.Folder());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setAcceptMode(QFileDialog::AcceptSave);
    box->selectFile(CleanDownloadName(name));
    connect(box, &QFileDialog::fileSelected, this, std::move(then));
    box->open();
}

void PageTools::SaveAs(const QUrl& address, const QString& name, QWebEnginePage::WebAction fetch) {
    AskForPlace(name.isEmpty() ? address.fileName() : name, [this, address, fetch](const QString& path) {
        services_.downloads.Expect(address, path);
        Act(fetch);
    });
}

void PageTools::SavePage() {
    const QString title = page_.Page().title();
    AskForPlace((title.isEmpty() ? tr("Page") : title) + QStringLiteral(".html"),
                [this](const QString& path) {
                    const bool is_one_file =
                        path.endsWith(QLatin1String(".mht")) || path.endsWith(QLatin1String(".mhtml"));
                    services_.downloads.Expect(page_.Page().url(), path);
                    page_.Page().save(path, is_one_file ? QWebEngineDownloadRequest::MimeHtmlSaveFormat
                                                        : QWebEngineDownloadRequest::CompleteHtmlSaveFormat);
                });
}

// A page behind has nobody to ask.
void PageTools::OnPrintWanted() {
    if (page_.IsShown() && !printing_.IsAsking() && print_boxes_.Take()) printing_.Ask();
}

void PageTools::ShowMenu(const QPoint& place) {
    QWebEngineContextMenuRequest* const request = page_.View()->lastContextMenuRequest();
    if (request == nullptr) return;
    QMenu* const menu = MakePageMenu(*this, *request, page_.View());
    menu->popup(page_.View()->mapToGlobal(place));
}

}  // namespace webengine
