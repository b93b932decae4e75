#include "platform/webengine/PageSecurity.h"

#include <QWebEngineProfile>

#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

using Security = ports::PageSigns::Security;

constexpr int kMostHost = 60;
const QString kDetails = QStringLiteral("security");
const QString kWarning = QStringLiteral("certificate warning");

QString HostOfPage(const QUrl& address) {
    return CutInTheMiddle(VisibleText(address.host()), kMostHost);
}

}  // namespace

PageSecurity::PageSecurity(QWebEnginePage& page, PageBars& bars, std::function<void(const QUrl&)> load)
    : page_(page), bars_(bars), load_(std::move(load)), passed_(PassedCertificates::Of(*page.profile())) {
    connect(&page_, &QWebEnginePage::certificateError, this,
            [this](const QWebEngineCertificateError& error) { OnError(error); });
}

// The engine does not say whether it is the page or a part of it that wants the certificate. What the user
// lets pass is the page's, so only that is remembered for the question.
void PageSecurity::OnError(QWebEngineCertificateError error) {
    const QList<QSslCertificate> chain = error.certificateChain();
    const bool is_known = !chain.isEmpty() && passed_.IsPassed(error.url(), chain.first());
    if (is_known && error.isOverridable()) {
        error.acceptCertificate();
        return;
    }
    refused_ = {
        .address = error.url(), .chain = chain, .may_pass = error.isOverridable() && !chain.isEmpty()};
    error.rejectCertificate();
}

Security PageSecurity::Of(const QUrl& location) const {
    if (location.scheme() == QLatin1String("http")) return Security::NotEncrypted;
    if (location.scheme() != QLatin1String("https")) return Security::None;
    return passed_.IsAnyPassed(location) ? Security::ErrorPassed : Security::Encrypted;
}

void PageSecurity::Show(const QUrl& location) {
    const QString host = HostOfPage(location);
    switch (Of(location)) {
        case Security::None:
            Say(tr("This page came over no network."));
            break;
        case Security::NotEncrypted:
            Say(tr("The connection to %1 is not secure: others on the way can read and change what is sent.")
                    .arg(host));
            break;
        case Security::Encrypted:
        case Security::ErrorPassed:
            Say(tr("The connection to %1 is encrypted. Asking who certified it …").arg(host));
            query_ = std::make_unique<CertificateQuery>(
                location, [this, location](const SecurityFacts& facts) { ShowFacts(location, facts); });
            break;
    }
}

void PageSecurity::ShowFacts(const QUrl& location, const SecurityFacts& facts) {
    if (bars_.Bar(kDetails) == nullptr) return;
    const QString host = HostOfPage(location);
    QString words =
        Of(location) == Security::ErrorPassed
            ? tr("The connection to %1 is encrypted, but its certificate is not valid; you let it pass.")
            : tr("The connection to %1 is encrypted.");
    words = words.arg(host);
    if (!facts.trouble.isEmpty()) {
        Say(words + QLatin1Char(' ') + facts.trouble);
        return;
    }
    Say(tr("%1 Asked again just now, over %2: %3.").arg(words, facts.protocol, WordsOfChain(facts.chain)));
}

void PageSecurity::Say(const QString& words) {
    if (PageBar* bar = bars_.Bar(kDetails)) {
        bar->SetWords(words);
        return;
    }
    bars_.ShowBar({.name = kDetails, .words = words, .closed = [this] { query_.reset(); }});
}

void PageSecurity::Forget() {
    query_.reset();
    refused_ = {};
    bars_.RemoveBar(kDetails);
    bars_.RemoveBar(kWarning);
}

// A part of the page may have its own certificate refused in between: each button holds what it is about.
std::vector<BarButton> PageSecurity::WaysOn(const QUrl& address) {
    if (refused_.address.host() != address.host()) return {};
    std::vector<BarButton> ways;
    ways.push_back({.words = tr("Certificate"),
                    .pressed = [this, refused = refused_] { ShowChain(refused); },
                    .stays = true});
    if (refused_.may_pass) {
        ways.push_back({.words = tr("Go on all the same"),
                        .pressed = [this, refused = refused_] { Warn(refused); },
                        .stays = true});
    }
    return ways;
}

QString PageSecurity::MoreReasons(const QUrl& address, int code) const {
    if (refused_.address.host() != address.host() || refused_.chain.isEmpty()) return {};
    return webengine::MoreReasons(refused_.chain.first(), address, code);
}

void PageSecurity::ShowChain(const Refused& refused) {
    Say(refused.chain.isEmpty() ? tr("The site showed no certificate.")
                                : tr("The site says it is: %1.").arg(WordsOfChain(refused.chain)));
}

void PageSecurity::Warn(const Refused& refused) {
    bars_.ShowBar(
        {.name = kWarning,
         .words = tr("Somebody may be in the place of %1, and read and change all that you send and see. "
                     "Go on only if you know why its certificate is not valid.")
                      .arg(HostOfPage(refused.address)),
         .buttons = {{.words = tr("Do not go on")},
                     {.words = tr("Go on until the program ends"),
                      .pressed = [this, refused] { Pass(refused); }}},
         .guarded = true});
}

void PageSecurity::Pass(const Refused& refused) {
    passed_.Pass(refused.address, refused.chain.first());
    load_(refused.address);
}

}  // namespace webengine
