// What the desktop's portal says about the look that every program is to have: whether the user wants high
// contrast. Desktops say it there that have no theme of that name.
//
// It is asked when the bus is joined and when the portal comes, and heard again at each change. No portal is
// started for it, and one that says something else, or nothing, changes nothing.
#pragma once

#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <functional>

#include "platform/dbus/SessionBus.h"

namespace dbus {

class BusAppearance final : public QObject {
    Q_OBJECT

public:
    explicit BusAppearance(SessionBus& bus);
    ~BusAppearance() override { bus_.WaitForAnswers(); }
    BusAppearance(const BusAppearance&) = delete;
    BusAppearance& operator=(const BusAppearance&) = delete;

    /// Gets what is wanted each time that the portal says it, as an event.
    std::function<void(bool high)> OnContrast;

private slots:
    void OnOwner(const QString& name, const QString& before, const QString& now);
    void OnSetting(const QString& space, const QString& key, const QDBusVariant& value);

private:
    void Ask();
    void Take(const QVariant& value);

    SessionBus& bus_;
};

}  // namespace dbus
