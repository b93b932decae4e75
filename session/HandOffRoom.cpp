#include "session/HandOffRoom.h"

#include <string>
#include <utility>

namespace session {

HandOffControls::HandOffControls() {
    cmdDummy.SetVisible(false);
    Text1.SetVisible(false);
    lstOpenWith.SetVisible(false);
}

void HandOffControls::PutInto(controls::Container& container) {
    container.Add(cmdDummy, Text1, lstOpenWith, tmrOpenWith);
}

HandOffRoom::HandOffRoom(HandOffControls& controls, ports::InstanceLock& instance,
                         std::function<void()> bring_to_front)
    : controls_(controls), instance_(instance), bring_to_front_(std::move(bring_to_front)) {
    claims_.Claim(controls_.cmdDummy.Click, [this] { cmdDummy_Click(); });
    instance_.SetListener(this);
}

HandOffRoom::~HandOffRoom() {
    instance_.SetListener(nullptr);
}

void HandOffRoom::Prepare() {
    controls_.cmdDummy.SetVisible(false);
    controls_.Text1.SetText("");
}

void HandOffRoom::Deliver(std::string_view command) {
    OnCommandText(command);
    OnTrigger();
}

void HandOffRoom::OnBringToFront() {
    bring_to_front_();
}

void HandOffRoom::OnCommandText(std::string_view text) {
    controls_.cmdDummy.SetCaption(text);
}

void HandOffRoom::OnTrigger() {
    controls_.cmdDummy.Click.Raise();
}

void HandOffRoom::cmdDummy_Click() {
    ProcessCommand(controls_.cmdDummy.Caption());
    controls_.cmdDummy.SetCaption("Ready for command");
}

// Commands are only logged; they are not carried out yet.
void HandOffRoom::ProcessCommand(std::string_view Command) {
    std::string log = controls_.Text1.Text();
    if (!log.empty()) log += "\r\n";
    controls_.Text1.SetText(log.append("Excuted with command: ").append(Command));
}

}  // namespace session
