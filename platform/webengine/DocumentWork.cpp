#include "platform/webengine/DocumentWork.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace webengine {

namespace {

constexpr const char* kWorkOnDocument = R"((address, steps) => {
    const wanted = new URL(address);
    if (window.top !== window || location.origin !== wanted.origin || location.pathname !== wanted.pathname) return;
    const first = (found) => found instanceof Element ? found : found && found.length ? found[0] : null;
    for (const [kind, name, value] of steps) {
        const element = first(kind === 2 ? document.forms.namedItem(name) : document.all.namedItem(name));
        if (!element) continue;
        if (kind === 0) element.value = value;
        if (kind === 1) element.click();
        if (kind === 2) HTMLFormElement.prototype.submit.call(element);
    }
})";

}  // namespace

QString DocumentWork(const std::string& address, const std::vector<ports::ElementStep>& steps) {
    QJsonArray list;
    for (const ports::ElementStep& step : steps) {
        list.append(QJsonArray{static_cast<int>(step.kind), QString::fromStdString(step.name),
                               QString::fromStdString(step.value)});
    }
    const QJsonArray arguments{QString::fromStdString(address), list};
    const QString values = QString::fromUtf8(QJsonDocument(arguments).toJson(QJsonDocument::Compact));
    return QStringLiteral("(%1)(...%2)").arg(QLatin1String(kWorkOnDocument), values);
}

}  // namespace webengine
