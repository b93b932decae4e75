// One instance for each folder and user: a locked file and a socket beside the stores.
//
// The order is what makes it safe. The file is locked before the socket is touched, so only the holder of the
// lock ever makes, replaces or removes the socket. The system drops the lock when its holder ends, however
// that happens; a file or a socket left by a dead instance is therefore recognised and taken over. The lock
// file itself is never removed: two starts could then hold locks on two files of one name.
#pragma once

#include <string>
#include <string_view>

#include "platform/linux/Descriptor.h"
#include "platform/linux/HandOffSocket.h"
#include "ports/InstanceLock.h"

namespace linux {

class LinuxInstanceLock final : public ports::InstanceLock {
public:
    /// `folder` is the native path of the application folder.
    explicit LinuxInstanceLock(std::string folder);
    ~LinuxInstanceLock() override;
    LinuxInstanceLock(const LinuxInstanceLock&) = delete;
    LinuxInstanceLock& operator=(const LinuxInstanceLock&) = delete;

    ports::Instance TryBecomeFirst() override;
    std::string Failure() const override { return failure_; }
    bool HandOff(std::string_view text) override;
    void SetListener(ports::HandOffListener* listener) override { listener_ = listener; }
    int FileDescriptor() const override { return server_.FileDescriptor(); }
    void Serve() override;

private:
    ports::Instance Fail(std::string_view what, int error);
    SocketPlace Place() const;

    std::string folder_path_;
    std::string lock_name_;
    std::string failure_;
    Descriptor folder_;
    Descriptor lock_;
    HandOffServer server_;
    ports::HandOffListener* listener_ = nullptr;
};

}  // namespace linux
