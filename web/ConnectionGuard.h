// Stands in front of every command that needs the Internet.
#pragma once

#include "ports/Dialogs.h"
#include "web/Outgoing.h"

namespace web {

class ConnectionGuard final {
public:
    ConnectionGuard(const Session& session, ports::Dialogs& dialogs) : session_(session), dialogs_(dialogs) {}

    /// True when there is a connection; otherwise shows the box that says so.
    bool Passes() const;

private:
    const Session& session_;
    ports::Dialogs& dialogs_;
};

}  // namespace web
