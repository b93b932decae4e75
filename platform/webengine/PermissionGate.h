// Between the engine's requests for permissions and the questions to the user.
//
// The engine remembers what it was told for the run; what the user takes back is taken back there, too.
#pragma once

#include <QUrl>
#include <QWebEnginePage>
#include <set>
#include <utility>

#include "platform/webengine/SiteChoices.h"
#include "platform/webengine/SiteQuestions.h"

namespace webengine {

class PermissionGate final : public QObject {
public:
    PermissionGate(QWebEnginePage& page, SiteChoices& choices, SiteQuestions::SeenArea seen_area);

    SiteQuestions& Questions() { return questions_; }

private:
    void Listen();
    void OnDocument(const QUrl& address);
    void TakeBack();
    void Tell(const QUrl& origin, Ability ability, Verdict verdict);

    QWebEnginePage& page_;
    SiteChoices& choices_;
    SiteQuestions questions_;
    std::set<std::pair<QString, Ability>> told_;  // what the engine remembers of this page's sites
};

}  // namespace webengine
