// What one user chose for pages: in general, and site by site. It is kept in one file of the user's own page
// folder.
//
// A site appears in it only by something the user did (a zoom, an answer to a question), and the number of
// rows is limited: the oldest go first. A file that cannot be read is set aside under another name, and the
// choices begin again. A file that cannot be written costs nothing but its being kept: the next change tries
// again. Keys that this version does not know stay in the file.
#pragma once

#include <QJsonObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace webengine {

/// What a site can be allowed.
enum class Ability { Place, Notifications, Microphone, Camera, MicrophoneAndCamera, Clipboard, PopUps };
inline constexpr Ability kAbilities[] = {Ability::Place,  Ability::Notifications,       Ability::Microphone,
                                         Ability::Camera, Ability::MicrophoneAndCamera, Ability::Clipboard,
                                         Ability::PopUps};
/// The word for it in the file and in addresses: "place", "notifications" ...
QString NameOf(Ability ability);
std::optional<Ability> AbilityNamed(const QString& name);

enum class Verdict { Ask, Allow, Deny };

/// What holds for every site.
struct GeneralChoices {
    double zoom = 1.0;           ///< of pages without one of their own
    QString search_engine = {};  ///< a key of the search engines; empty is the built-in one
    bool https_first = true;     ///< a bare host is asked for on https before http
    bool keep_site_data = true;  ///< cookies and storage outlast the run, as long as history is saved
    bool keep_cache = true;      ///< the same of the cache
    bool spell_check = true;
    bool notifications = true;  ///< off: no site's notification is shown, whatever it was allowed
    bool operator==(const GeneralChoices&) const = default;
};

struct SiteZoom {
    QString host;
    double factor;
};

struct SitePermission {
    QString origin;
    Ability ability;
    bool allowed;
};

/// The engine's own bounds of a zoom factor.
inline constexpr double kLeastZoom = 0.25;
inline constexpr double kMostZoom = 5.0;
inline constexpr std::size_t kMostSites = 1000;

/// "https://example.org:8443": scheme, host and port unless it is the scheme's own; empty without a host.
QString OriginOf(const QUrl& address);
/// The host in lower case, as it is kept; empty for an address without one.
QString HostOf(const QUrl& address);
/// Encrypted, or this computer itself: the only sites that may ask for anything.
bool MayAskForAbilities(const QUrl& origin);

class SiteChoices final {
public:
    /// In memory only, until Open.
    SiteChoices() : SiteChoices(QString()) {}
    /// `folder`: the user's own page folder; empty keeps nothing on the disk.
    explicit SiteChoices(const QString& folder, bool keeps_sites = true);
    ~SiteChoices();
    SiteChoices(const SiteChoices&) = delete;
    SiteChoices& operator=(const SiteChoices&) = delete;

    /// Another user: writes what waits, forgets it and reads that folder's file. Without `keeps_sites` what
    /// is chosen for single sites holds for the run only, and rows kept before are taken out of the file.
    void Open(const QString& folder, bool keeps_sites = true);

    const GeneralChoices& General() const { return general_; }
    /// The zoom is brought into its bounds, a name of a search engine that is too long is dropped.
    void SetGeneral(const GeneralChoices& choices);

    /// The default where the host has none of its own.
    double ZoomOf(const QString& host) const;
    /// The default itself forgets the host's own.
    void SetZoom(const QString& host, double factor);
    void ForgetZoom(const QString& host);
    const std::vector<SiteZoom>& Zooms() const { return zooms_; }

    Verdict VerdictOn(const QString& origin, Ability ability) const;
    /// Verdict::Ask forgets what was answered.
    void SetVerdict(const QString& origin, Ability ability, Verdict verdict);
    const std::vector<SitePermission>& Permissions() const { return permissions_; }

    /// False while nothing of single sites outlasts the run.
    bool KeepsSites() const { return keeps_sites_ && !path_.isEmpty(); }

    /// Every zoom and every answer.
    void ForgetSites();

    /// Calls it after every change, also by Open, as long as the context lives.
    void WhenChanged(QObject* context, std::function<void()> callback);

    /// Writes at once what waits to be written; that happens automatically after a moment. False when the
    /// file could not be written.
    bool Flush();
    /// In words for the user: a file that was set aside or could not be written; empty when all is well.
    QString Trouble() const { return trouble_; }

private:
    void Read();
    void ReadZooms(const QJsonObject& file);
    void ReadPermissions(const QJsonObject& file);
    void SetAside();
    QByteArray Written() const;
    void Changed();

    QString path_;
    bool keeps_sites_ = true;
    GeneralChoices general_;
    std::vector<SiteZoom> zooms_;
    std::vector<SitePermission> permissions_;
    QJsonObject file_;
    QString trouble_;
    bool waits_ = false;
    QTimer write_soon_;
    std::vector<std::pair<QPointer<QObject>, std::function<void()>>> callbacks_;
};

}  // namespace webengine
