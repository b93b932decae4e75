#include "contracts/InstanceLockContract.h"
#include "fakes/FakeInstanceLock.h"

namespace contracts {
namespace {

class FakeBench final : public InstanceBench {
public:
    std::unique_ptr<ports::InstanceLock> Start() override {
        return std::make_unique<fakes::FakeInstanceLock>(instances_);
    }
    bool HandOver(ports::InstanceLock& second, ports::InstanceLock& /*first*/,
                  const std::string& text) override {
        return second.HandOff(text);
    }
    std::optional<ports::OptionAnswer> Ask(ports::InstanceLock& start, ports::InstanceLock& /*first*/,
                                           const std::string& option) override {
        return start.AskFirst(option);
    }
    void MakeUnusable() override { instances_.Failure = "The folder cannot be written to."; }

private:
    fakes::FakeInstances instances_;
};

INSTANTIATE_TEST_SUITE_P(Fake, InstanceLockContract,
                         testing::Values(MakeInstanceBench([] { return std::make_unique<FakeBench>(); })),
                         [](const auto&) { return "Fake"; });

}  // namespace
}  // namespace contracts
