// Asked first by every command that needs the Internet.
#pragma once

#include "ports/Dialogs.h"

namespace web {

class ConnectionGuard final {
public:
    ConnectionGuard(const bool& Internet_Connection, ports::Dialogs& dialogs)
        : Internet_Connection_(Internet_Connection), dialogs_(dialogs) {}

    /// True when there is a connection; otherwise shows the box that says so.
    bool Passes() const;

private:
    const bool& Internet_Connection_;
    ports::Dialogs& dialogs_;
};

}  // namespace web
