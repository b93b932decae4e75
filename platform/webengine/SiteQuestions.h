// What the site of one page asks the user for, in a bar above the page.
//
// Only the document of the page itself is heard, and only on an encrypted address or this computer: a frame
// of another site, and a page that is covered or closed, are refused without a word. One bar at a time;
// further questions wait, one for each ability, so a flood of them is one bar. "Allow" and "Block" are
// remembered for the site; the cross is "not now", which counts until the user sends the page somewhere. A
// document of another site takes the questions of the one before away; a page that goes to and fro on its own
// shows no more than kMostQuestions.
#pragma once

#include <QObject>
#include <QUrl>
#include <functional>
#include <set>
#include <utility>
#include <vector>

#include "platform/webengine/PageBars.h"
#include "platform/webengine/SiteChoices.h"

namespace webengine {

/// The bar's name.
inline constexpr const char* kQuestionBar = "question";
/// Bars of one page until the user sends it somewhere.
inline constexpr int kMostQuestions = 10;

class SiteQuestions final : public QObject {
public:
    /// Gets Allow or Deny, or Ask for "not now". Called exactly once.
    using Answer = std::function<void(Verdict)>;
    /// The page's area while the user sees it, else null.
    using SeenArea = std::function<PageBars*()>;

    SiteQuestions(SiteChoices& choices, SeenArea seen_area)
        : choices_(choices), seen_area_(std::move(seen_area)) {}

    /// `origin` wants an ability. The answer comes at once where it is known.
    void Put(const QUrl& origin, Ability ability, Answer answer);
    /// A document of that address is loading, or was loaded, in the page.
    void SetDocument(const QUrl& address);
    /// The site was allowed as many windows as it likes.
    bool MayOpenWindows() const;
    /// A window was refused that was one too many.
    void OnWindowRefused();
    /// The user has sent the page somewhere: it may ask again for what was put off.
    void Renew() {
        put_off_.clear();
        shown_ = 0;
    }

private:
    struct Question {
        QString origin;
        Ability ability;
        std::vector<Answer> answers;
    };

    Question* Open(const QString& site, Ability ability);
    bool MayAsk(const QString& site, Ability ability) const;
    void ShowNext();
    void Settle(Verdict verdict);
    void Withdraw();

    SiteChoices& choices_;
    SeenArea seen_area_;
    QUrl document_;
    std::vector<Question> open_;  // the first is the one in the bar
    QPointer<PageBars> area_;     // where the bar is
    std::set<std::pair<QString, Ability>> put_off_;
    int shown_ = 0;
};

}  // namespace webengine
