// One instance for each folder and user: a locked file and a socket beside the stores.
//
// The order is what makes it safe. The file is locked before the socket is touched, so only the holder of the
// lock ever makes, replaces or removes the socket. The system drops the lock when its holder ends, however
// that happens; a file or a socket left by a dead instance is therefore recognised and taken over. The lock
// file itself is never removed: two starts could then hold locks on two files of one name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/Descriptor.h"
#include "platform/linux/HandOffSocket.h"
#include "ports/InstanceLock.h"

namespace linux {

class LinuxInstanceLock final : public ports::InstanceLock {
public:
    /// `folder` is the native path of the application folder; `startup_id` is what a launcher gave this
    /// start, which is handed over with its text.
    explicit LinuxInstanceLock(std::string folder, std::string startup_id = {});
    ~LinuxInstanceLock() override;
    LinuxInstanceLock(const LinuxInstanceLock&) = delete;
    LinuxInstanceLock& operator=(const LinuxInstanceLock&) = delete;

    /// Makes the system's room for the descriptor of a lock. To be called before there are threads; without
    /// it the lock is taken all the same, and later.
    static void MakeRoom();

    ports::Instance TryBecomeFirst() override;
    ports::Instance Answer() const override { return answer_; }
    std::string Failure() const override { return failure_; }
    bool HandOff(std::string_view text) override;
    std::optional<ports::OptionAnswer> AskFirst(std::string_view option) override;
    void SetListener(ports::HandOffListener* listener) override { listener_ = listener; }
    void SetOptionListener(ports::OptionListener* listener) override { option_listener_ = listener; }
    int FileDescriptor() const override { return server_.FileDescriptor(); }
    void Serve() override;

    /// As the first: takes the start-up id of a later start before the listener is notified of anything.
    StartupIdTaker OnStartupId;

private:
    ports::Instance Try();
    ports::Instance Fail(std::string_view what, int error);
    SocketPlace Place() const;

    std::string folder_path_;
    std::string startup_id_;
    std::string lock_name_;
    std::string failure_;
    ports::Instance answer_ = ports::Instance::Failed;
    Descriptor folder_;
    Descriptor lock_;
    HandOffServer server_;
    ports::HandOffListener* listener_ = nullptr;
    ports::OptionListener* option_listener_ = nullptr;
};

}  // namespace linux
