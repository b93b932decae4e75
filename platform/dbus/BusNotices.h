// Notifications by the desktop's service (org.freedesktop.Notifications).
//
// A service that shows markup gets the text escaped; every other one gets it as it is.
#pragma once

#include <QObject>
#include <map>

#include "platform/dbus/SessionBus.h"
#include "ports/NoticeBoard.h"

namespace dbus {

class BusNotices final : public QObject, public ports::NoticeBoard {
    Q_OBJECT

public:
    explicit BusNotices(SessionBus& bus);
    /// What is still on the screen goes.
    ~BusNotices() override;

    int Show(ports::Notice notice) override;
    void Close(int ticket) override;

private slots:
    void ActionInvoked(uint id, const QString& action);
    void NotificationClosed(uint id, uint reason);

private:
    struct Shown {
        ports::Notice notice;
        uint id = 0;  ///< the service's own number; 0 until it has answered
    };

    void Send(int ticket, bool takes_markup);
    void OnAnswer(int ticket, const QDBusMessage& reply);
    void OnGone(int ticket);
    int TicketOf(uint id) const;

    SessionBus& bus_;
    std::map<int, Shown> shown_;
    int last_ = 0;
};

}  // namespace dbus
