#include "platform/webengine/PageMenu.h"

#include <QWebEngineHistory>
#include <QWebEnginePage>
#include <functional>
#include <utility>

#include "platform/webengine/LimitedPage.h"
#include "platform/webengine/PageTools.h"
#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

using Request = QWebEngineContextMenuRequest;
using Page = QWebEnginePage;

constexpr int kMostSuggestions = 5;

bool IsWebAddress(const QUrl& address) {
    return address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https");
}

/// Fills one menu. The tools may go while it is open; their actions go with them.
class Filling final {
public:
    Filling(PageTools& tools, const Request& request, QMenu& menu)
        : tools_(tools), request_(request), menu_(menu) {}

    void Fill() {
        if (!request_.linkUrl().isEmpty()) AddLink();
        if (request_.mediaType() == Request::MediaTypeImage) AddPicture();
        if (request_.mediaType() == Request::MediaTypeVideo ||
            request_.mediaType() == Request::MediaTypeAudio)
            AddMedia();
        if (request_.isContentEditable()) {
            AddEditing();
        } else if (!request_.selectedText().isEmpty()) {
            Add(Text("Copy"), Page::Copy);
            menu_.addSeparator();
        }
        const bool is_page = menu_.isEmpty();
        if (is_page) AddPage();
        Add(Text("View source"), [](PageTools& tools) { tools.ShowSource(); });
        Add(Text("Inspect"), [](PageTools& tools) { tools.InspectElement(); });
    }

private:
    static QString Text(const char* text) { return PageTools::tr(text); }

    void Add(const QString& words, std::function<void(PageTools&)> act, bool enabled = true) {
        QAction* const action = menu_.addAction(words);
        action->setEnabled(enabled);
        QObject::connect(action, &QAction::triggered, &tools_,
                         [&tools = tools_, act = std::move(act)] { act(tools); });
    }
    void Add(const QString& words, Page::WebAction web_action, bool enabled = true) {
        Add(words, [web_action](PageTools& tools) { tools.Act(web_action); }, enabled);
    }

    void AddLink() {
        const QUrl link = request_.linkUrl();
        Add(Text("Open link in a new tab"), Page::OpenLinkInNewTab);
        Add(Text("Open link behind"), Page::OpenLinkInNewBackgroundTab);
        if (IsWebAddress(link)) {
            Add(Text("Open link in the system's browser"),
                [link](PageTools& /*tools*/) { PageTools::OpenInSystemsBrowser(link); });
        }
        Add(Text("Copy link"), Page::CopyLinkToClipboard);
        Add(Text("Save link as..."),
            [link](PageTools& tools) { tools.SaveAs(link, {}, Page::DownloadLinkToDisk); });
        menu_.addSeparator();
    }

    void AddPicture() {
        const QUrl picture = request_.mediaUrl();
        Add(Text("Copy image"), Page::CopyImageToClipboard);
        Add(Text("Copy image address"), Page::CopyImageUrlToClipboard);
        Add(Text("Save image as..."),
            [picture](PageTools& tools) { tools.SaveAs(picture, {}, Page::DownloadImageToDisk); });
        menu_.addSeparator();
    }

    void AddMedia() {
        const Request::MediaFlags flags = request_.mediaFlags();
        const QUrl media = request_.mediaUrl();
        Add(flags.testFlag(Request::MediaPaused) ? Text("Play") : Text("Pause"), Page::ToggleMediaPlayPause);
        if (flags.testFlag(Request::MediaHasAudio))
            Add(flags.testFlag(Request::MediaMuted) ? Text("Sound on") : Text("Sound off"),
                Page::ToggleMediaMute);
        Add(flags.testFlag(Request::MediaLoop) ? Text("Play once") : Text("Play again and again"),
            Page::ToggleMediaLoop);
        Add(Text("Copy media address"), Page::CopyMediaUrlToClipboard);
        if (flags.testFlag(Request::MediaCanSave)) {
            Add(Text("Save media as..."),
                [media](PageTools& tools) { tools.SaveAs(media, {}, Page::DownloadMediaToDisk); });
        }
        menu_.addSeparator();
    }

    void AddEditing() {
        AddSuggestions();
        const Request::EditFlags can = request_.editFlags();
        Add(Text("Undo"), Page::Undo, can.testFlag(Request::CanUndo));
        Add(Text("Redo"), Page::Redo, can.testFlag(Request::CanRedo));
        menu_.addSeparator();
        Add(Text("Cut"), Page::Cut, can.testFlag(Request::CanCut));
        Add(Text("Copy"), Page::Copy, can.testFlag(Request::CanCopy));
        Add(Text("Paste"), Page::Paste, can.testFlag(Request::CanPaste));
        Add(Text("Select all"), Page::SelectAll, can.testFlag(Request::CanSelectAll));
        menu_.addSeparator();
    }

    void AddSuggestions() {
        if (request_.misspelledWord().isEmpty()) return;
        const QStringList suggestions = request_.spellCheckerSuggestions().mid(0, kMostSuggestions);
        for (const QString& word : suggestions) {
            Add(VisibleText(word).replace(QLatin1Char('&'), QLatin1String("&&")),
                [word](PageTools& tools) { tools.Page().Page().replaceMisspelledWord(word); });
        }
        if (suggestions.isEmpty())
            Add(Text("No other spelling is known"), [](PageTools& /*tools*/) {}, false);
        menu_.addSeparator();
    }

    void AddPage() {
        Page& page = tools_.Page().Page();
        const QUrl address = page.url();
        Add(Text("Back"), [](PageTools& tools) { tools.Page().GoBack(); }, page.history()->canGoBack());
        Add(
            Text("Forward"), [](PageTools& tools) { tools.Page().GoForward(); },
            page.history()->canGoForward());
        Add(Text("Refresh"), [](PageTools& tools) { tools.Page().Refresh(); });
        menu_.addSeparator();
        if (tools_.Settings().add_to_favourites)
            Add(Text("Add page to favourites"), [](PageTools& tools) { tools.AddToFavourites(); });
        if (IsWebAddress(address)) {
            Add(Text("Open page in the system's browser"),
                [address](PageTools& /*tools*/) { PageTools::OpenInSystemsBrowser(address); });
        }
        Add(Text("Save page as..."), [](PageTools& tools) { tools.SavePage(); });
        Add(Text("Print..."), [](PageTools& tools) { tools.Print(); });
        Add(Text("Downloads"), [](PageTools& tools) { tools.ShowDownloads(); });
        menu_.addSeparator();
    }

    PageTools& tools_;
    const Request& request_;
    QMenu& menu_;
};

}  // namespace

QMenu* MakePageMenu(PageTools& tools, const Request& request, QWidget* parent) {
    auto* menu = new QMenu(parent);
    menu->setObjectName(QStringLiteral("pageMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    Filling(tools, request, *menu).Fill();
    return menu;
}

}  // namespace webengine
