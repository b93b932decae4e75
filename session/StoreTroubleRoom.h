// Tells the user when a store cannot be read or written: one box per trouble.
//
// The stores report at the end of a handler, where no box may open, so the boxes wait for a timer.
#pragma once

#include <deque>
#include <string>
#include <string_view>

#include "controls/Event.h"
#include "controls/Timer.h"
#include "ports/Dialogs.h"
#include "session/SessionState.h"
#include "store/Stores.h"

namespace session {

struct StoreTroubleControls {
    controls::Timer tmrTrouble{"tmrTrouble", 1};
};

class StoreTroubleRoom final : public store::StoreTrouble {
public:
    StoreTroubleRoom(StoreTroubleControls& controls, const SessionState& session, ports::Dialogs& dialogs);

    void OnStoreTrouble(std::string_view file, ports::DatabaseError error, std::string_view message) override;
    /// The boxes that wait are not shown: the user was told otherwise.
    void Forget();
    /// A box that says what could not be saved, and why. Where the stores know why, it stands for the boxes
    /// that wait.
    void TellUnsaved(std::string_view what, const store::Stores& stores);

private:
    void tmrTrouble_Tick();

    StoreTroubleControls& controls_;
    const SessionState& session_;
    ports::Dialogs& dialogs_;
    std::deque<std::string> messages_;
    controls::EventClaims claims_;
};

/// What a room needs that says to the user that something is saved.
struct SessionStores {
    store::Stores& stores;
    StoreTroubleRoom& trouble;
};

}  // namespace session
