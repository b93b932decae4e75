#include "platform/webengine/SiteChoices.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <algorithm>
#include <cmath>

namespace webengine {

namespace {

constexpr const char* kFileName = "/choices.json";
constexpr const char* kDamaged = ".damaged";
constexpr qint64 kMostBytes = 1 << 20;
constexpr qsizetype kLongestSite = 300;
constexpr qsizetype kLongestKey = 40;
constexpr int kSoonMilliseconds = 500;
constexpr double kSameZoom = 0.001;

constexpr const char* kAbilityNames[] = {
    "place", "notifications", "microphone", "camera", "microphone and camera", "clipboard", "pop-ups"};
static_assert(std::size(kAbilityNames) == std::size(kAbilities));

double Bounded(double zoom) {
    return std::isfinite(zoom) ? std::clamp(zoom, kLeastZoom, kMostZoom) : 1.0;
}

bool IsSameZoom(double one, double other) {
    return std::abs(one - other) < kSameZoom;
}

bool IsSite(const QString& site) {
    return !site.isEmpty() && site.size() <= kLongestSite;
}

bool IsDefaultPort(const QUrl& address) {
    return address.port() < 0 || (address.scheme() == QLatin1String("https") && address.port() == 443) ||
           (address.scheme() == QLatin1String("http") && address.port() == 80);
}

/// The newest rows are at the end.
template <typename Row>
void DropOldest(std::vector<Row>& rows) {
    if (rows.size() > kMostSites) rows.erase(rows.begin(), rows.end() - static_cast<long>(kMostSites));
}

GeneralChoices GeneralIn(const QJsonObject& file) {
    GeneralChoices found;
    const auto is_on = [&file](const char* key, bool otherwise) {
        return file.value(QLatin1String(key)).toBool(otherwise);
    };
    found.zoom = Bounded(file.value(QLatin1String("zoom")).toDouble(1.0));
    found.search_engine = file.value(QLatin1String("search_engine")).toString().left(kLongestKey);
    found.https_first = is_on("https_first", found.https_first);
    found.keep_site_data = is_on("keep_site_data", found.keep_site_data);
    found.keep_cache = is_on("keep_cache", found.keep_cache);
    found.spell_check = is_on("spell_check", found.spell_check);
    found.notifications = is_on("notifications", found.notifications);
    return found;
}

void PutGeneral(QJsonObject& file, const GeneralChoices& choices) {
    file[QLatin1String("zoom")] = choices.zoom;
    file[QLatin1String("search_engine")] = choices.search_engine;
    file[QLatin1String("https_first")] = choices.https_first;
    file[QLatin1String("keep_site_data")] = choices.keep_site_data;
    file[QLatin1String("keep_cache")] = choices.keep_cache;
    file[QLatin1String("spell_check")] = choices.spell_check;
    file[QLatin1String("notifications")] = choices.notifications;
}

}  // namespace

QString NameOf(Ability ability) {
    return QLatin1String(kAbilityNames[static_cast<std::size_t>(ability)]);
}

std::optional<Ability> AbilityNamed(const QString& name) {
    for (const Ability ability : kAbilities) {
        if (NameOf(ability) == name) return ability;
    }
    return std::nullopt;
}

QString HostOf(const QUrl& address) {
    return address.host(QUrl::FullyEncoded).toLower();
}

QString OriginOf(const QUrl& address) {
    const QString host = HostOf(address);
    if (host.isEmpty()) return {};
    QUrl origin;
    origin.setScheme(address.scheme());
    origin.setHost(host);
    if (!IsDefaultPort(address)) origin.setPort(address.port());
    return QString::fromUtf8(origin.toEncoded());
}

bool MayAskForAbilities(const QUrl& origin) {
    const QString host = HostOf(origin);
    if (origin.scheme() == QLatin1String("https")) return !host.isEmpty();
    return origin.scheme() == QLatin1String("http") &&
           (host == QLatin1String("localhost") || host.endsWith(QLatin1String(".localhost")) ||
            host == QLatin1String("127.0.0.1") || host == QLatin1String("::1"));
}

SiteChoices::SiteChoices(const QString& folder, bool keeps_sites) {
    write_soon_.setSingleShot(true);
    QObject::connect(&write_soon_, &QTimer::timeout, &write_soon_, [this] { Flush(); });
    Open(folder, keeps_sites);
}

SiteChoices::~SiteChoices() {
    Flush();
}

void SiteChoices::Open(const QString& folder, bool keeps_sites) {
    Flush();
    path_ = folder.isEmpty() ? QString() : folder + QLatin1String(kFileName);
    keeps_sites_ = keeps_sites;
    general_ = {};
    zooms_.clear();
    permissions_.clear();
    file_ = {};
    trouble_.clear();
    waits_ = false;
    write_soon_.stop();
    Read();
    for (const auto& [context, callback] : std::vector(callbacks_)) {
        if (context != nullptr) callback();
    }
}

void SiteChoices::Read() {
    QFile file(path_);
    if (path_.isEmpty() || !file.exists()) return;
    const bool opened = file.size() <= kMostBytes && file.open(QIODevice::ReadOnly);
    const QJsonDocument text = opened ? QJsonDocument::fromJson(file.read(kMostBytes)) : QJsonDocument();
    if (!text.isObject()) {
        file.close();
        SetAside();
        return;
    }
    file_ = text.object();
    general_ = GeneralIn(file_);
    if (keeps_sites_) {
        ReadZooms(file_);
        ReadPermissions(file_);
    } else if (file_.contains(QLatin1String("zooms")) || file_.contains(QLatin1String("permissions"))) {
        waits_ = true;
        Flush();
    }
}

void SiteChoices::ReadZooms(const QJsonObject& file) {
    for (const QJsonValue row : file.value(QLatin1String("zooms")).toArray()) {
        const QString host = row[QLatin1String("host")].toString();
        const double factor = row[QLatin1String("zoom")].toDouble();
        if (IsSite(host) && factor > 0) zooms_.push_back({host, Bounded(factor)});
    }
    DropOldest(zooms_);
}

void SiteChoices::ReadPermissions(const QJsonObject& file) {
    for (const QJsonValue row : file.value(QLatin1String("permissions")).toArray()) {
        const QString origin = row[QLatin1String("origin")].toString();
        const auto ability = AbilityNamed(row[QLatin1String("ability")].toString());
        const QJsonValue allowed = row[QLatin1String("allowed")];
        if (IsSite(origin) && ability && allowed.isBool())
            permissions_.push_back({origin, *ability, allowed.toBool()});
    }
    DropOldest(permissions_);
}

// The one that was set aside before is not needed any more.
void SiteChoices::SetAside() {
    const QString aside = path_ + QLatin1String(kDamaged);
    QFile::remove(aside);
    trouble_ =
        QFile::rename(path_, aside)
            ? QStringLiteral("The file of your choices was damaged. It was set aside as %1.").arg(aside)
            : QStringLiteral("The file of your choices, %1, cannot be read.").arg(path_);
}

void SiteChoices::SetGeneral(const GeneralChoices& choices) {
    GeneralChoices wanted = choices;
    wanted.zoom = Bounded(wanted.zoom);
    if (wanted.search_engine.size() > kLongestKey) wanted.search_engine.clear();
    if (wanted == general_) return;
    general_ = wanted;
    Changed();
}

double SiteChoices::ZoomOf(const QString& host) const {
    const auto found = std::find_if(zooms_.begin(), zooms_.end(),
                                    [&host](const SiteZoom& zoom) { return zoom.host == host; });
    return found == zooms_.end() ? general_.zoom : found->factor;
}

void SiteChoices::SetZoom(const QString& host, double factor) {
    if (!IsSite(host) || !std::isfinite(factor)) return;
    const double zoom = Bounded(factor);
    if (IsSameZoom(zoom, ZoomOf(host))) return;
    std::erase_if(zooms_, [&host](const SiteZoom& old) { return old.host == host; });
    if (!IsSameZoom(zoom, general_.zoom)) zooms_.push_back({host, zoom});
    DropOldest(zooms_);
    Changed();
}

void SiteChoices::ForgetZoom(const QString& host) {
    if (std::erase_if(zooms_, [&host](const SiteZoom& old) { return old.host == host; }) > 0) Changed();
}

Verdict SiteChoices::VerdictOn(const QString& origin, Ability ability) const {
    for (const SitePermission& permission : permissions_) {
        if (permission.origin == origin && permission.ability == ability)
            return permission.allowed ? Verdict::Allow : Verdict::Deny;
    }
    return Verdict::Ask;
}

void SiteChoices::SetVerdict(const QString& origin, Ability ability, Verdict verdict) {
    if (!IsSite(origin) || VerdictOn(origin, ability) == verdict) return;
    std::erase_if(permissions_, [&origin, ability](const SitePermission& old) {
        return old.origin == origin && old.ability == ability;
    });
    if (verdict != Verdict::Ask) permissions_.push_back({origin, ability, verdict == Verdict::Allow});
    DropOldest(permissions_);
    Changed();
}

void SiteChoices::ForgetSites() {
    if (zooms_.empty() && permissions_.empty()) return;
    zooms_.clear();
    permissions_.clear();
    Changed();
}

void SiteChoices::WhenChanged(QObject* context, std::function<void()> callback) {
    std::erase_if(callbacks_, [](const auto& old) { return old.first == nullptr; });
    callbacks_.emplace_back(context, std::move(callback));
}

// A turn of the wheel zooms in many steps; the disk sees the last one. A callback may add another one.
void SiteChoices::Changed() {
    waits_ = true;
    if (!path_.isEmpty()) write_soon_.start(kSoonMilliseconds);
    for (const auto& [context, callback] : std::vector(callbacks_)) {
        if (context != nullptr) callback();
    }
}

QByteArray SiteChoices::Written() const {
    QJsonObject file = file_;
    PutGeneral(file, general_);
    file.remove(QLatin1String("zooms"));
    file.remove(QLatin1String("permissions"));
    if (keeps_sites_) {
        QJsonArray zooms;
        for (const SiteZoom& zoom : zooms_)
            zooms.append(
                QJsonObject{{QLatin1String("host"), zoom.host}, {QLatin1String("zoom"), zoom.factor}});
        QJsonArray permissions;
        for (const SitePermission& permission : permissions_) {
            permissions.append(QJsonObject{{QLatin1String("origin"), permission.origin},
                                           {QLatin1String("ability"), NameOf(permission.ability)},
                                           {QLatin1String("allowed"), permission.allowed}});
        }
        file[QLatin1String("zooms")] = zooms;
        file[QLatin1String("permissions")] = permissions;
    }
    return QJsonDocument(file).toJson();
}

bool SiteChoices::Flush() {
    write_soon_.stop();
    if (!waits_ || path_.isEmpty()) return true;
    QSaveFile file(path_);
    const QByteArray text = Written();
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                         file.write(text) == text.size() && file.commit();
    if (!written) {
        trouble_ = QStringLiteral("Your choices could not be kept: %1.").arg(file.errorString());
        return false;
    }
    waits_ = false;
    return true;
}

}  // namespace webengine
