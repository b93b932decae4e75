#include "platform/webengine/DownloadBars.h"

#include <QTimer>
#include <QWebEngineView>

#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

constexpr int kShownMilliseconds = 8000;
constexpr int kMostName = 60;
const QString kNews = QStringLiteral("download");

PageBars* BarsOf(QWebEnginePage* page) {
    const QWebEngineView* const view = page != nullptr ? QWebEngineView::forPage(page) : nullptr;
    for (QWidget* widget = view != nullptr ? view->parentWidget() : nullptr; widget != nullptr;
         widget = widget->parentWidget()) {
        if (auto* bars = dynamic_cast<PageBars*>(widget)) return bars;
    }
    return nullptr;
}

QString QuestionName(int id) {
    return QStringLiteral("keep download %1").arg(id);
}

/// Takes the bar away after a while, unless another one has taken its place.
void RemoveLater(PageBar& bar, PageBars& bars) {
    QTimer::singleShot(kShownMilliseconds, &bar, [&bar, &bars] { bars.RemoveBar(bar.Name()); });
}

QString NewsOf(const Download& download, const QString& name) {
    switch (download.state) {
        case DownloadState::Running:
        case DownloadState::Paused:
            return Downloads::tr("%1 is being saved.").arg(name);
        case DownloadState::Done:
            return Downloads::tr("%1 is saved.").arg(name);
        case DownloadState::Failed:
            return Downloads::tr("%1 was not saved. %2").arg(name, download.why);
        case DownloadState::Cancelled:
            return {};
    }
    return {};
}

}  // namespace

// A window that was opened for a download alone is gone by the time it is done.
PageBars* DownloadBars::AreaFor(QWebEnginePage* page) const {
    PageBars* const own = BarsOf(page);
    return own != nullptr && own->isVisible() ? own : in_front_();
}

void DownloadBars::Tell(QWebEnginePage* page, const Download& download) {
    PageBars* const bars = AreaFor(page);
    if (bars == nullptr) return;
    const int id = download.id;
    const QString name = CutInTheMiddle(VisibleText(download.Name()), kMostName);
    if (download.Asks() && download.state != DownloadState::Failed) {
        if (bars->Bar(QuestionName(id)) != nullptr) return;
        bars->ShowBar(
            {.name = QuestionName(id),
             .words = Downloads::tr("%1 is of a kind that can harm the computer. Keep it?").arg(name),
             .buttons = {{Downloads::tr("Keep"), [this, id] { downloads_.Keep(id); }},
                         {Downloads::tr("Discard"), [this, id] { downloads_.Discard(id); }}},
             .guarded = true});
        return;
    }
    bars->RemoveBar(QuestionName(id));
    const QString words = NewsOf(download, name);
    if (words.isEmpty()) {
        bars->RemoveBar(kNews);
        return;
    }
    std::vector<BarButton> buttons;
    if (downloads_.CanPlay(download))
        buttons.push_back({Downloads::tr("Play"), [this, id] { downloads_.Play(id); }});
    else if (Downloads::CanOpen(download))
        buttons.push_back({Downloads::tr("Open"), [this, id] { downloads_.Open(id); }});
    buttons.push_back({Downloads::tr("Downloads"), show_list_});
    RemoveLater(
        bars->ShowBar({.name = kNews, .words = words, .buttons = std::move(buttons), .guarded = true}),
        *bars);
}

void DownloadBars::TellRefused(QWebEnginePage* page) {
    PageBars* const bars = BarsOf(page);
    if (bars == nullptr) return;
    const QPointer<QWebEnginePage> asking = page;
    bars->ShowBar({.name = QStringLiteral("more downloads"),
                   .words = Downloads::tr("This page tries to save more files by itself. They were refused."),
                   .buttons = {{Downloads::tr("Save them"),
                                [this, asking] {
                                    if (asking != nullptr) downloads_.AllowMore(asking);
                                }}},
                   .guarded = true});
}

}  // namespace webengine
