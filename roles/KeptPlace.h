// Where the music stopped, kept for each user. Why: it begins and ends with a login, and goes with the
// history.
#pragma once

#include <string_view>

namespace roles {

class KeptPlace {
public:
    virtual ~KeptPlace() = default;
    /// A user is logged in: offers the place that was kept, and keeps it from now on. For one who keeps no
    /// history nothing is offered or kept, and what was kept before goes.
    virtual void BeginUser(std::string_view name, bool keeps_history) = 0;
    /// Nobody is logged in any more. What was kept stays.
    virtual void EndUser() = 0;
    /// The history was deleted, and the place goes with it. It is kept again from the next song on.
    virtual void Forget() = 0;
    /// A user is new: what was kept for an earlier one of that name goes.
    virtual void RemoveUser(std::string_view name) = 0;
};

}  // namespace roles
