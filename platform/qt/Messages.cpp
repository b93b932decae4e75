#include "platform/qt/Messages.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <atomic>
#include <string>

namespace qt {
namespace {

// The toolkit knows a plain function only.
std::atomic<Messages::Take> taker{nullptr};
std::atomic<QtMessageHandler> handler_before{nullptr};

void Handle(QtMsgType kind, const QMessageLogContext& context, const QString& message) {
    const std::string_view category = context.category == nullptr ? "" : context.category;
    const Messages::Take take = taker.load();
    if (take != nullptr && category != "js") take(std::string(category) + ": " + message.toStdString());
    if (const QtMessageHandler before = handler_before.load()) before(kind, context, message);
}

}  // namespace

Messages::Messages(Take take) {
    taker = take;
    handler_before = qInstallMessageHandler(Handle);
}

Messages::~Messages() {
    qInstallMessageHandler(handler_before.load());
    taker = nullptr;
}

}  // namespace qt
