#include "platform/webengine/PermissionGate.h"

#include <QtGlobal>
#include <algorithm>
#include <optional>
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
#include <QWebEnginePermission>
#include <QWebEngineProfile>
#endif

namespace webengine {

namespace {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
using Kind = QWebEnginePermission::PermissionType;
#else
using Kind = QWebEnginePage::Feature;
#endif

struct KindOfAbility {
    Kind kind;
    Ability ability;
};

constexpr KindOfAbility kKinds[] = {
    {Kind::Geolocation, Ability::Place},
    {Kind::Notifications, Ability::Notifications},
    {Kind::MediaAudioCapture, Ability::Microphone},
    {Kind::MediaVideoCapture, Ability::Camera},
    {Kind::MediaAudioVideoCapture, Ability::MicrophoneAndCamera},
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    {Kind::ClipboardReadWrite, Ability::Clipboard},
#endif
};

std::optional<Ability> AbilityOf(Kind kind) {
    const auto* const found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                           [kind](const KindOfAbility& one) { return one.kind == kind; });
    return found == std::end(kKinds) ? std::nullopt : std::optional(found->ability);
}

/// The engine asks anew for a device each time it is wanted, and remembers the others.
bool IsRemembered(Ability ability) {
    return ability == Ability::Place || ability == Ability::Notifications || ability == Ability::Clipboard;
}

}  // namespace

PermissionGate::PermissionGate(QWebEnginePage& page, SiteChoices& choices, SiteQuestions::SeenArea seen_area)
    : page_(page), choices_(choices), questions_(choices, std::move(seen_area)) {
    Listen();
    connect(&page, &QWebEnginePage::urlChanged, this, [this](const QUrl& url) { OnDocument(url); });
    choices.WhenChanged(this, [this] { TakeBack(); });
}

// A page may ask how it is with a permission before it asks for one.
void PermissionGate::OnDocument(const QUrl& address) {
    questions_.SetDocument(address);
    if (!MayAskForAbilities(address)) return;
    for (const KindOfAbility& kind : kKinds) {
        const Verdict verdict = choices_.VerdictOn(OriginOf(address), kind.ability);
        if (IsRemembered(kind.ability) && verdict != Verdict::Ask) Tell(address, kind.ability, verdict);
    }
}

void PermissionGate::TakeBack() {
    const auto told = std::move(told_);
    told_.clear();
    for (const auto& [origin, ability] : told)
        Tell(QUrl(origin), ability, choices_.VerdictOn(origin, ability));
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void PermissionGate::Listen() {
    connect(&page_, &QWebEnginePage::permissionRequested, this,
            [this](const QWebEnginePermission& permission) {
                const std::optional<Ability> ability = AbilityOf(permission.permissionType());
                if (!ability) {
                    permission.deny();
                    return;
                }
                questions_.Put(permission.origin(), *ability, [this, permission, ability](Verdict verdict) {
                    if (verdict == Verdict::Allow) {
                        permission.grant();
                    } else {
                        permission.deny();
                    }
                    if (IsRemembered(*ability)) Tell(permission.origin(), *ability, verdict);
                });
            });
}

void PermissionGate::Tell(const QUrl& origin, Ability ability, Verdict verdict) {
    for (const KindOfAbility& kind : kKinds) {
        if (kind.ability != ability) continue;
        const QWebEnginePermission permission = page_.profile()->queryPermission(origin, kind.kind);
        if (verdict == Verdict::Ask) {
            permission.reset();
            continue;
        }
        told_.emplace(OriginOf(origin), ability);
        if (verdict == Verdict::Allow) {
            permission.grant();
        } else {
            permission.deny();
        }
    }
}

#else

void PermissionGate::Listen() {
    connect(&page_, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl& origin, QWebEnginePage::Feature feature) {
                const std::optional<Ability> ability = AbilityOf(feature);
                if (!ability) {
                    page_.setFeaturePermission(origin, feature, QWebEnginePage::PermissionDeniedByUser);
                    return;
                }
                questions_.Put(origin, *ability, [this, origin, ability](Verdict verdict) {
                    if (verdict == Verdict::Ask) Tell(origin, *ability, Verdict::Deny);
                    if (verdict != Verdict::Ask || IsRemembered(*ability)) Tell(origin, *ability, verdict);
                });
            });
}

void PermissionGate::Tell(const QUrl& origin, Ability ability, Verdict verdict) {
    for (const KindOfAbility& kind : kKinds) {
        if (kind.ability != ability) continue;
        const auto policy = verdict == Verdict::Allow  ? QWebEnginePage::PermissionGrantedByUser
                            : verdict == Verdict::Deny ? QWebEnginePage::PermissionDeniedByUser
                                                       : QWebEnginePage::PermissionUnknown;
        page_.setFeaturePermission(origin, kind.kind, policy);
        if (IsRemembered(ability) && verdict != Verdict::Ask) told_.emplace(OriginOf(origin), ability);
    }
}

#endif

}  // namespace webengine
