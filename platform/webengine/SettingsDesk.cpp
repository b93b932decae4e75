#include "platform/webengine/SettingsDesk.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QUrlQuery>
#include <algorithm>
#include <array>
#include <optional>

#include "platform/webengine/SearchEngines.h"

namespace webengine {

namespace {

constexpr const char* kOrigin = "brindlepost://settings";

struct Switch {
    const char* name;
    bool GeneralChoices::* choice;
};

constexpr Switch kSwitches[] = {
    {"https_first", &GeneralChoices::https_first},     {"keep_site_data", &GeneralChoices::keep_site_data},
    {"keep_cache", &GeneralChoices::keep_cache},       {"spell_check", &GeneralChoices::spell_check},
    {"notifications", &GeneralChoices::notifications},
};

QByteArray NewToken() {
    std::array<quint32, 8> numbers{};
    QRandomGenerator::system()->fillRange(numbers.data(), static_cast<qsizetype>(numbers.size()));
    return QByteArray(reinterpret_cast<const char*>(numbers.data()), sizeof numbers).toHex();
}

/// Takes the same time wherever the two differ.
bool IsSame(const QByteArray& one, const QByteArray& other) {
    if (one.size() != other.size()) return false;
    int different = 0;
    for (qsizetype i = 0; i < one.size(); ++i)
        different |= one[i] ^ other[i];
    return different == 0;
}

PageAnswer Refused() {
    return {.kind = PageAnswer::Kind::Refused};
}

QJsonArray EnginesToChoose() {
    QJsonArray engines;
    for (const SearchEngine& engine : kSearchEngines) {
        engines.append(QJsonObject{{QLatin1String("key"), QLatin1String(engine.key)},
                                   {QLatin1String("name"), QLatin1String(engine.name)}});
    }
    return engines;
}

QJsonArray SitesOf(const SiteChoices& choices) {
    QJsonArray sites;
    for (const SitePermission& permission : choices.Permissions()) {
        sites.append(QJsonObject{{QLatin1String("site"), permission.origin},
                                 {QLatin1String("ability"), NameOf(permission.ability)},
                                 {QLatin1String("allowed"), permission.allowed}});
    }
    for (const SiteZoom& zoom : choices.Zooms()) {
        sites.append(QJsonObject{{QLatin1String("site"), zoom.host}, {QLatin1String("zoom"), zoom.factor}});
    }
    return sites;
}

}  // namespace

SettingsDesk::SettingsDesk(SiteChoices& choices, QByteArray document, QByteArray script,
                           SettingsErrands errands)
    : choices_(choices),
      document_(std::move(document)),
      script_(std::move(script)),
      errands_(std::move(errands)),
      token_(NewToken()) {}

bool SettingsDesk::IsFromItself(const PageRequest& request) const {
    return request.initiator.toString(QUrl::RemovePath | QUrl::RemoveQuery) == QLatin1String(kOrigin);
}

void SettingsDesk::Answer(const PageRequest& request, const std::function<void(const PageAnswer&)>& reply) {
    const QString path = request.address.path();
    if (path.isEmpty() || path == QLatin1String("/")) {
        reply(Document(request));
    } else if (path == QLatin1String("/settings.js")) {
        reply(IsFromItself(request) ? PageAnswer{.type = "text/javascript", .body = script_} : Refused());
    } else if (path == QLatin1String("/do")) {
        if (request.method == "POST" && IsFromItself(request) && IsSame(request.token, token_)) {
            Work(request, reply);
        } else {
            reply(Refused());
        }
    } else {
        reply({.kind = PageAnswer::Kind::NotFound});
    }
}

// The user, and the program's own pages, may come here. A page of another site could lay it into a frame.
PageAnswer SettingsDesk::Document(const PageRequest& request) const {
    const bool is_own = request.initiator.scheme() == QLatin1String("brindlepost");
    if (request.method != "GET" || (!is_own && !request.initiator.isEmpty())) return Refused();
    QByteArray document = document_;
    document.replace("{{token}}", token_);
    return {.type = "text/html", .body = document};
}

void SettingsDesk::Work(const PageRequest& request, const std::function<void(const PageAnswer&)>& reply) {
    const QUrlQuery query(request.address);
    const auto item = [&query](const char* name) {
        return query.queryItemValue(QLatin1String(name), QUrl::FullyDecoded);
    };
    const QString what = item("what");
    const SettingsErrands::Told told = [this, reply](const QString& words) { reply(State(words)); };
    if (what == QLatin1String("import") && errands_.import_favourites) {
        errands_.import_favourites(told);
    } else if (what == QLatin1String("export") && errands_.export_favourites) {
        errands_.export_favourites(told);
    } else if (what == QLatin1String("state") || Change(what, item("of"), item("value"))) {
        reply(State());
    } else {
        reply({.kind = PageAnswer::Kind::NotFound});
    }
}

bool SettingsDesk::Change(const QString& what, const QString& of, const QString& value) {
    if (what == QLatin1String("forget_zoom")) {
        choices_.ForgetZoom(of);
    } else if (what == QLatin1String("forget_sites")) {
        choices_.ForgetSites();
    } else if (what == QLatin1String("forget_permission")) {
        const std::optional<Ability> ability = AbilityNamed(value);
        if (!ability) return false;
        choices_.SetVerdict(of, *ability, Verdict::Ask);
    } else if (!ChangeGeneral(what, value)) {
        return false;
    }
    choices_.Flush();
    return true;
}

bool SettingsDesk::ChangeGeneral(const QString& what, const QString& value) {
    GeneralChoices choices = choices_.General();
    if (what == QLatin1String("zoom")) {
        bool is_number = false;
        choices.zoom = value.toDouble(&is_number);
        if (!is_number) return false;
    } else if (what == QLatin1String("search_engine")) {
        if (!value.isEmpty() && SearchEngineOf(value) == nullptr) return false;
        choices.search_engine = value;
    } else {
        const auto* const found =
            std::find_if(std::begin(kSwitches), std::end(kSwitches),
                         [&what](const Switch& one) { return what == QLatin1String(one.name); });
        if (found == std::end(kSwitches)) return false;
        choices.*found->choice = value == QLatin1String("true");
    }
    choices_.SetGeneral(choices);
    return true;
}

PageAnswer SettingsDesk::State(const QString& words) const {
    const GeneralChoices& general = choices_.General();
    QJsonObject state{{QLatin1String("zoom"), general.zoom},
                      {QLatin1String("search_engine"), general.search_engine},
                      {QLatin1String("engines"), EnginesToChoose()},
                      {QLatin1String("built_in_search"), errands_.built_in_search},
                      {QLatin1String("sites"), SitesOf(choices_)},
                      {QLatin1String("keeps_sites"), choices_.KeepsSites()},
                      {QLatin1String("can_import"), static_cast<bool>(errands_.import_favourites)},
                      {QLatin1String("can_export"), static_cast<bool>(errands_.export_favourites)},
                      {QLatin1String("trouble"), choices_.Trouble()},
                      {QLatin1String("words"), words}};
    for (const Switch& one : kSwitches)
        state[QLatin1String(one.name)] = general.*one.choice;
    return {.type = "application/json", .body = QJsonDocument(state).toJson(QJsonDocument::Compact)};
}

}  // namespace webengine
