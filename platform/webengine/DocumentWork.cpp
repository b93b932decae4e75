#include "platform/webengine/DocumentWork.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace webengine {

namespace {

// A document is marked in the script's own world, which a page cannot look into: it is worked on once,
// however often it is asked for.
constexpr const char* kWorkOnDocument = R"((address, host, steps) => {
    const wanted = new URL(address);
    const isMeant = () => window.top === window && ['https:', 'brindlepost:'].includes(location.protocol) &&
        (location.hostname === host || location.hostname.endsWith('.' + host)) &&
        location.origin === wanted.origin && location.pathname === wanted.pathname;
    const first = (found) => found instanceof Element ? found : found && found.length ? found[0] : null;
    const work = () => {
        if (!isMeant()) return;
        for (const [kind, name, value] of steps) {
            const element = first(kind === 2 ? document.forms.namedItem(name) : document.all.namedItem(name));
            if (!element) continue;
            if (kind === 0) element.value = value;
            if (kind === 1) element.click();
            if (kind === 2) HTMLFormElement.prototype.submit.call(element);
        }
    };
    if (!isMeant() || globalThis.workedOn === document) return;
    globalThis.workedOn = document;
    if (document.readyState === 'loading') document.addEventListener('DOMContentLoaded', work, {once: true});
    else work();
})";

}  // namespace

QString DocumentWork(const std::string& address, std::string_view host,
                     const std::vector<ports::ElementStep>& steps) {
    QJsonArray list;
    for (const ports::ElementStep& step : steps) {
        list.append(QJsonArray{static_cast<int>(step.kind), QString::fromStdString(step.name),
                               QString::fromStdString(step.value)});
    }
    const QJsonArray arguments{QString::fromStdString(address),
                               QString::fromUtf8(host.data(), static_cast<qsizetype>(host.size())), list};
    const QString values = QString::fromUtf8(QJsonDocument(arguments).toJson(QJsonDocument::Compact));
    return QStringLiteral("(%1)(...%2)").arg(QLatin1String(kWorkOnDocument), values);
}

}  // namespace webengine
