#include "contracts/RegistryContract.h"
#include "platform/linux/Bench.h"
#include "platform/linux/LinuxFiles.h"
#include "platform/linux/LinuxRegistry.h"

namespace contracts {
namespace {

class LinuxBench final : public RegistryBench {
public:
    ports::Registry& Registry() override { return registry_; }

private:
    linux_tests::PlayFolder folder_;
    linux::LinuxFiles files_{"/app/Brindlepost"};
    linux::LinuxRegistry registry_{files_, {folder_ / "data", folder_ / "config", {}}};
};

INSTANTIATE_TEST_SUITE_P(Linux, RegistryContract,
                         testing::Values(MakeRegistryBench([] { return std::make_unique<LinuxBench>(); })),
                         [](const auto&) { return "Linux"; });

}  // namespace
}  // namespace contracts
