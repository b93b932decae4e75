// The address row: one input that opens pages, files and play lists, searches, and sets the messenger's
// custom text. What it does follows from the mode in `cmbType` and from the shape of the text.
//
// `cmbAddress` shows the text that is being worked on and is emptied when a tab was opened; inside, the text
// is passed from step to step.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "roles/CueList.h"
#include "roles/History.h"
#include "roles/MediaIntake.h"
#include "roles/MediaKeys.h"
#include "roles/MessengerLine.h"
#include "roles/NowPlaying.h"
#include "roles/PageOpener.h"
#include "roles/Start.h"
#include "roles/TrackLists.h"
#include "roles/Transport.h"
#include "web/AddressBox.h"
#include "web/CompletionRoom.h"
#include "web/TabRoom.h"
#include "web/WebControls.h"
#include "web/WebState.h"

namespace web {

struct AddressRoles {
    roles::MediaKeys& keys;
    roles::Transport& transport;
    roles::NowPlaying& now_playing;
    roles::TrackLists& track_lists;
    roles::MediaIntake& media;
    roles::CueList& cue;
    roles::History& history;
    roles::MessengerLine& messenger;
    roles::Start& start;
};

struct AddressPorts {
    const ports::Files& files;
    ports::EventLoop& events;
};

class AddressRoom final : public roles::PageOpener {
public:
    /// `StartedWithArguments` is cleared by the first media path that is entered.
    AddressRoom(AddressControls& controls, WebState& state, bool& StartedWithArguments, AddressBox& address,
                CompletionRoom& completion, TabRoom& tabs, AddressRoles roles, AddressPorts ports);

    // roles::PageOpener
    void OpenTab(std::string_view address) override;
    void Enter(std::string_view text) override;
    void EnterAsWeb(std::string_view text) override;

private:
    void cmbAddress_KeyDown(int key_code, int shift);
    void cmbAddress_Click();
    void cmbAddress_OLEDragDrop(const controls::DropData& data);
    void txtAddress_KeyDown(int key_code, int shift);
    void txtAddress_Change();
    void txtAddress_LostFocus();
    void txtAddress_OLEDragDrop(const controls::DropData& data);
    void txtAddress_SignClick();
    void cmbType_Click();
    void cmbType_KeyDown(int key_code, int shift);

    enum class Handled { Wholly, SoFar };
    void TakeKey(int key_code, int shift, roles::AddressMode mode);
    Handled TakeEnter(roles::AddressMode mode);
    Handled EnterWeb(const std::string& text);
    bool IsForeignPlayList(std::string_view text) const;
    Handled EnterMediaPath(const std::string& text);
    void EnterMessengerText(const std::string& text);
    void EnterFile(const std::string& text);
    void EnterSearch(const std::string& text);
    void AddStartUpMedia(const std::string& text);
    void RefillHistory();
    std::string CutFromTitle(std::string_view text);
    void Drop(const controls::DropData& data, bool takes_play_lists);
    void DropMedia(const std::string& path, bool is_first);

    AddressControls& controls_;
    WebState& state_;
    bool& StartedWithArguments_;
    AddressBox& address_;
    CompletionRoom& completion_;
    TabRoom& tabs_;
    AddressRoles roles_;
    AddressPorts ports_;
    bool enters_whole_ = false;  ///< what is entered came from outside and is not cut
    controls::EventClaims claims_;
};

}  // namespace web
