// The built-in settings page, "brindlepost:settings", as requests and answers.
//
// Only the document of that address may read or change anything: a request counts when the engine names
// "brindlepost://settings" as the one that began it, when it is none that a link can make (POST), and when it
// carries the token that only this document was given. Other sites get not even the document.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <functional>

#include "platform/webengine/SiteChoices.h"

namespace webengine {

inline constexpr const char* kSettingsHost = "settings";
inline constexpr const char* kTokenHeader = "X-Brindlepost-Token";

struct PageRequest {
    QUrl address;
    QByteArray method;
    /// The origin of the document that made it; empty when the user did.
    QUrl initiator{};
    QByteArray token{};
};

struct PageAnswer {
    enum class Kind { Reply, NotFound, Refused };
    Kind kind = Kind::Reply;
    QByteArray type{};
    QByteArray body{};
};

/// What the page offers beyond the choices. Each may be empty: then the page does not offer it. The results
/// are words for the user, and may come later.
struct SettingsErrands {
    using Told = std::function<void(const QString& words)>;
    std::function<void(Told)> import_favourites{};
    std::function<void(Told)> export_favourites{};
    /// The host of the built-in search service.
    QString built_in_search{};
};

class SettingsDesk final {
public:
    /// `document` is the page with the word "{{token}}" in it.
    SettingsDesk(SiteChoices& choices, QByteArray document, QByteArray script, SettingsErrands errands);

    /// Calls `reply` once, perhaps later.
    void Answer(const PageRequest& request, const std::function<void(const PageAnswer&)>& reply);

private:
    bool IsFromItself(const PageRequest& request) const;
    PageAnswer Document(const PageRequest& request) const;
    void Work(const PageRequest& request, const std::function<void(const PageAnswer&)>& reply);
    bool Change(const QString& what, const QString& of, const QString& value);
    bool ChangeGeneral(const QString& what, const QString& value);
    PageAnswer State(const QString& words = {}) const;

    SiteChoices& choices_;
    QByteArray document_;
    QByteArray script_;
    SettingsErrands errands_;
    QByteArray token_;
};

}  // namespace webengine
