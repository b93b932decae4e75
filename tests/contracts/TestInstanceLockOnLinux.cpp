#include <poll.h>

#include <future>

#include "contracts/InstanceLockContract.h"
#include "platform/linux/Bench.h"
#include "platform/linux/LinuxInstanceLock.h"

namespace contracts {
namespace {

// Serves `first`, as its event loop would, until the other side is done.
template <class Result>
Result ServeUntilDone(ports::InstanceLock& first, std::future<Result> done) {
    constexpr int kMilliseconds = 5;
    while (done.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
        pollfd wanted{first.FileDescriptor(), POLLIN, 0};
        if (::poll(&wanted, 1, kMilliseconds) > 0) first.Serve();
    }
    return done.get();
}

class LinuxBench final : public InstanceBench {
public:
    ~LinuxBench() override { ::chmod(folder_.Path().c_str(), 0700); }
    std::unique_ptr<ports::InstanceLock> Start() override {
        return std::make_unique<linux::LinuxInstanceLock>(folder_.Path());
    }
    bool HandOver(ports::InstanceLock& second, ports::InstanceLock& first, const std::string& text) override {
        return ServeUntilDone(
            first, std::async(std::launch::async, [&second, &text] { return second.HandOff(text); }));
    }
    std::optional<ports::OptionAnswer> Ask(ports::InstanceLock& start, ports::InstanceLock& first,
                                           const std::string& option) override {
        return ServeUntilDone(
            first, std::async(std::launch::async, [&start, &option] { return start.AskFirst(option); }));
    }
    void MakeUnusable() override { ASSERT_EQ(::chmod(folder_.Path().c_str(), 0500), 0); }

private:
    linux_tests::PlayFolder folder_;
    linux_tests::Unprivileged rights_{folder_};
};

INSTANTIATE_TEST_SUITE_P(Linux, InstanceLockContract,
                         testing::Values(MakeInstanceBench([] { return std::make_unique<LinuxBench>(); })),
                         [](const auto&) { return "Linux"; });

}  // namespace
}  // namespace contracts
