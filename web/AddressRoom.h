// The address row: one input that opens pages, files and play lists, searches, and sets the messenger's
// custom text. What it does follows from the mode in `cmbType` and from the shape of the text.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "ports/EventLoop.h"
#include "web/AddressBox.h"
#include "web/Outgoing.h"
#include "web/Tabs.h"
#include "web/WebControls.h"
#include "web/WebState.h"

namespace web {

/// What the address row asks of its neighbours.
struct AddressPartners {
    BrowserWindow& window;
    MusicPlayer& player;
    MediaLibrary& library;
    CueList& cue;
    HistoryLog& history;
    NowPlayingLine& messenger;
    Session& session;
    FileNames& files;
    ports::EventLoop& events;
};

/// Opens what stands in `cmbAddress` in a new web tab.
class AddressOpener {
public:
    virtual ~AddressOpener() = default;
    virtual void cmdGo() = 0;
};

class AddressRoom final : public AddressOpener {
public:
    AddressRoom(AddressControls& controls, WebState& state, AddressBox& address, Tabs& tabs,
                AddressPartners partners);

    /// A text of the form "title (address)" is cut to the address first.
    void cmdGo() override;
    /// As Enter on `cmbAddress`, with what stands there.
    void EnterAddress();
    /// As Enter on `txtAddress`, with what stands there.
    void EnterTyped();

private:
    void cmbAddress_KeyDown(int key_code, int shift);
    void cmbAddress_Click();
    void cmbAddress_OLEDragDrop(const controls::DropData& data);
    void txtAddress_KeyDown(int key_code, int shift);
    void txtAddress_OLEDragDrop(const controls::DropData& data);
    void cmbType_Click();
    void cmbType_KeyDown(int key_code, int shift);

    enum class Handled { Wholly, SoFar };
    Handled Enter();
    Handled EnterWeb(const std::string& text);
    Handled EnterMediaPath(const std::string& text);
    void EnterMessengerText(const std::string& text);
    void EnterFile(const std::string& text);
    void EnterSearch(const std::string& text);
    void AddStartUpMedia();
    void RefillHistory();
    std::string CutFromTitle(std::string_view text);
    void Drop(const controls::DropData& data, bool takes_play_lists);
    void DropMedia(const std::string& path, bool is_first);

    AddressControls& controls_;
    WebState& state_;
    AddressBox& address_;
    Tabs& tabs_;
    AddressPartners partners_;
    controls::EventClaims claims_;
};

}  // namespace web
