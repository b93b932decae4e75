#include "platform/webengine/PageRest.h"

#include <QPointer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineScript>
#include <algorithm>

namespace webengine {

namespace {

using ports::PageSeen;
using State = QWebEnginePage::LifecycleState;

constexpr std::chrono::milliseconds kLooksAtLeast{20};
constexpr std::chrono::milliseconds kLooksAtMost{15000};

/// True when a field holds something else than the document gave it.
constexpr const char* kIsFilledIn = R"((() => {
    for (const field of document.querySelectorAll('input, textarea')) {
        if (field.type === 'file' ? field.files.length > 0
            : field.type === 'checkbox' || field.type === 'radio' ? field.checked !== field.defaultChecked
            : field.value !== field.defaultValue) return true;
    }
    for (const list of document.querySelectorAll('select')) {
        const options = [...list.options];
        if (options.some(o => o.defaultSelected) ? options.some(o => o.selected !== o.defaultSelected)
            : list.selectedIndex > 0) return true;
    }
    return false;
})())";

}  // namespace

RestHouse::RestHouse(RestTimes times) : times_(times) {
    connect(&look_, &QTimer::timeout, this, [this] { Look(); });
    look_.start(std::clamp(std::min(times_.covered, times_.closed) / 8, kLooksAtLeast, kLooksAtMost));
    give_back_.setSingleShot(true);
    connect(&give_back_, &QTimer::timeout, this, [this] { spare_.GiveBack(); });
    connect(&look_at_spare_, &QTimer::timeout, this, [this] { spare_.Look(); });
    look_at_spare_.start(times_.spare);
}

std::vector<PageRest*> RestHouse::Unseen(PageSeen seen) const {
    std::vector<PageRest*> found;
    for (PageRest* page : pages_) {
        if (page->Seen() == seen && !page->IsDiscarded()) found.push_back(page);
    }
    std::sort(found.begin(), found.end(), [](const PageRest* left, const PageRest* right) {
        return left->UnseenForMs() < right->UnseenForMs();
    });
    return found;
}

void RestHouse::Look() {
    const std::vector<PageRest*> covered = Unseen(PageSeen::Covered);
    for (std::size_t i = times_.most_covered; i < covered.size(); ++i) {
        if (covered[i]->UnseenForMs() >= times_.covered.count()) covered[i]->DiscardCovered();
    }
    const std::vector<PageRest*> closed = Unseen(PageSeen::Closed);
    for (std::size_t i = 0; i < closed.size(); ++i) {
        if (i < times_.most_closed && closed[i]->UnseenForMs() < times_.closed.count()) continue;
        closed[i]->DiscardClosed();
    }
}

PageRest::PageRest(QWebEnginePage& page, RestHouse& house) : QObject(&page), page_(page), house_(house) {
    house_.Add(*this);
    connect(page.profile(), &QWebEngineProfile::downloadRequested, this,
            [this](QWebEngineDownloadRequest* download) {
                if (download->page() != &page_) return;
                ++downloads_;
                connect(download, &QWebEngineDownloadRequest::isFinishedChanged, this, [this, download] {
                    if (download->isFinished()) --downloads_;
                });
            });
}

PageRest::~PageRest() {
    house_.Remove(*this);
}

void PageRest::SetSeen(PageSeen seen) {
    if (seen == seen_) return;
    if (seen == PageSeen::InFront) {
        unseen_.invalidate();
    } else if (seen_ == PageSeen::InFront || seen == PageSeen::Closed) {
        unseen_.start();
    }
    seen_ = seen;
    page_.setAudioMuted(seen == PageSeen::Closed);
    if (seen == PageSeen::InFront) Wake();
    if (seen == PageSeen::Covered && page_.lifecycleState() == State::Frozen)
        page_.setLifecycleState(State::Active);
    Freeze();
}

void PageRest::Wake() {
    if (discarded_) {
        discarded_ = false;
        if (waking) waking();
    }
    if (page_.lifecycleState() != State::Active) page_.setLifecycleState(State::Active);
    if (unseen_.isValid()) unseen_.start();
}

// A page that still loads is left to arrive: its title and its visit are told.
void PageRest::Freeze() {
    if (seen_ != PageSeen::Closed || discarded_ || page_.isVisible() || page_.isLoading() || is_busy())
        return;
    // What it sent and nobody has read would hold all other pages up, frozen or not.
    if (is_flooding()) DiscardClosed();
    if (page_.lifecycleState() == State::Active) page_.setLifecycleState(State::Frozen);
}

// To load again what came of a form that was sent would send it again. Back and forward may lead to that too.
void PageRest::OnNavigation(QWebEnginePage::NavigationType type) {
    using Type = QWebEnginePage;
    if (type == Type::NavigationTypeRedirect || type == Type::NavigationTypeReload) return;
    form_is_sent_ = type == Type::NavigationTypeFormSubmitted || type == Type::NavigationTypeBackForward;
}

void PageRest::OnDocument() {
    came_from_form_ = form_is_sent_;
    written_in_ = false;
}

void PageRest::OnLoadEnd() {
    // What the load brought shall be told before it stops.
    QTimer::singleShot(0, this, [this] { Freeze(); });
}

bool PageRest::CanBeDiscarded() const {
    return !discarded_ && !is_dead() && !page_.isVisible() && !came_from_form_ && downloads_ == 0 &&
           page_.devToolsPage() == nullptr && page_.inspectedPage() == nullptr;
}

// The engine recommends a page to live while it sounds, is recorded or loads.
void PageRest::DiscardCovered() {
    if (!CanBeDiscarded() || written_in_ || has_ties_ || page_.recommendedState() == State::Active) return;
    page_.runJavaScript(QLatin1String(kIsFilledIn), QWebEngineScript::ApplicationWorld,
                        [here = QPointer<PageRest>(this)](const QVariant& filled_in) {
                            if (here == nullptr || here->seen_ != PageSeen::Covered) return;
                            if (filled_in.typeId() == QMetaType::Bool && !filled_in.toBool()) here->Discard();
                        });
}

void PageRest::DiscardClosed() {
    if (!CanBeDiscarded()) return;
    if (page_.isLoading()) page_.triggerAction(QWebEnginePage::Stop);
    Discard();
}

void PageRest::Discard() {
    if (!CanBeDiscarded()) return;
    discarded_ = true;
    page_.setLifecycleState(State::Discarded);
    discarded_ = page_.lifecycleState() == State::Discarded;
    if (discarded_) house_.OnDiscarded();
}

}  // namespace webengine
