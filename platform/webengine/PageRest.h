// How much of a page lives while the user does not see it.
//
// A covered page goes on: its scripts are slowed by the engine, its sound is heard. When it has been covered
// for long it is discarded: its process ends, and it is loaded again when it comes to the front. That happens
// only where nothing is lost (see CanBeDiscarded), and never to the few pages that were seen last. A closed
// page is silent at once, frozen as soon as it has loaded, and discarded sooner; one that sends without end
// at once.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <functional>
#include <vector>

#include "platform/webengine/PageSettings.h"
#include "platform/webengine/SpareMemory.h"
#include "ports/BrowserControl.h"

namespace webengine {

class PageRest;

/// Decides which pages are discarded; one for all pages.
class RestHouse final : public QObject {
public:
    explicit RestHouse(RestTimes times);
    void Add(PageRest& page) { pages_.push_back(&page); }
    void Remove(PageRest& page) { std::erase(pages_, &page); }
    /// What a discarded page leaves in this process is soon given back to the system.
    void OnDiscarded() { give_back_.start(times_.clearing_up); }

private:
    void Look();
    /// Those that live though they are not seen, the one seen last first.
    std::vector<PageRest*> Unseen(ports::PageSeen seen) const;

    RestTimes times_;
    QTimer look_;
    QTimer give_back_;
    QTimer look_at_spare_;
    SpareMemory spare_{SystemAllocator()};
    std::vector<PageRest*> pages_;
};

class PageRest final : public QObject {
public:
    /// Goes with the page.
    PageRest(QWebEnginePage& page, RestHouse& house);
    ~PageRest() override;

    /// The view is hidden before it is covered or closed, and shown after it came to the front.
    void SetSeen(ports::PageSeen seen);
    ports::PageSeen Seen() const { return seen_; }
    /// The page is sent somewhere: it lives until it has got there.
    void Wake();
    /// What was discarded is not there: what the engine reports of it meanwhile says nothing.
    bool IsDiscarded() const { return discarded_; }
    /// Whether it is on its way somewhere; the engine knows that later than who sent it.
    std::function<bool()> is_busy;
    /// Whether it sends more than anybody reads.
    std::function<bool()> is_flooding;
    /// Whether its process has died: then there is nothing to discard, and it would not come back by itself.
    std::function<bool()> is_dead;
    /// Called before a discarded page is loaded again.
    std::function<void()> waking;

    // Notifications of the page to its rest.
    void OnNavigation(QWebEnginePage::NavigationType type);
    void OnDocument();
    void OnLoadEnd();
    void OnWritten() { written_in_ = true; }
    /// It opened a window or is one: they may talk to each other.
    void OnTies() { has_ties_ = true; }

    // For the house.
    qint64 UnseenForMs() const { return unseen_.isValid() ? unseen_.elapsed() : 0; }
    void DiscardCovered();
    void DiscardClosed();

private:
    void Freeze();
    bool CanBeDiscarded() const;
    void Discard();

    QWebEnginePage& page_;
    RestHouse& house_;
    ports::PageSeen seen_ = ports::PageSeen::InFront;
    QElapsedTimer unseen_;
    int downloads_ = 0;
    bool written_in_ = false;
    bool has_ties_ = false;
    bool form_is_sent_ = false;
    bool came_from_form_ = false;
    bool discarded_ = false;
};

}  // namespace webengine
