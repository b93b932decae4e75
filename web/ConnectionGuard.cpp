#include "web/ConnectionGuard.h"

namespace web {

bool ConnectionGuard::Passes() const {
    if (Internet_Connection_) return true;
    dialogs_.MsgBox(
        "You do not have an Internet connection. Please re-establish a connection and restart the "
        "application.",
        ports::BoxButtons::Ok, "No Internet Connection", ports::BoxIcon::Critical);
    return false;
}

}  // namespace web
