#include "contracts/RegistryContract.h"
#include "fakes/FakeRegistry.h"

namespace contracts {
namespace {

class FakeBench final : public RegistryBench {
public:
    ports::Registry& Registry() override { return registry_; }

private:
    fakes::FakeRegistry registry_;
};

INSTANTIATE_TEST_SUITE_P(Fake, RegistryContract,
                         testing::Values(MakeRegistryBench([] { return std::make_unique<FakeBench>(); })),
                         [](const auto&) { return "Fake"; });

TEST(FakeRegistry, NotesWhatChangesSomething) {
    fakes::FakeRegistry registry;
    registry.Seed(ports::RegistryRoot::LocalMachine, "SOFTWARE\\Tool", "PATH",
                  {ports::RegistryType::Number, std::string("\x01\x02", 2)});

    registry.CloseKey(registry.CreateKey(ports::RegistryRoot::ClassesRoot, ".mp3\\"));
    registry.NotifyAssociationsChanged();

    EXPECT_EQ(registry.Operations, (std::vector<std::string>{"create .mp3\\", "close", "notify"}));
    EXPECT_EQ(registry.Contents(ports::RegistryRoot::ClassesRoot), (std::vector<std::string>{".mp3"}));
    EXPECT_EQ(registry.Contents(ports::RegistryRoot::LocalMachine),
              (std::vector<std::string>{"software", "software\\tool", "software\\tool|path=\x01\x02"}));
}

TEST(FakeRegistry, ReadOnlyItRefusesEveryChange) {
    fakes::FakeRegistry registry;
    registry.Seed(ports::RegistryRoot::ClassesRoot, ".mp3", "", {ports::RegistryType::Text, "kept"});
    registry.ReadOnly = true;
    const ports::RegistryKey key = registry.OpenKey(ports::RegistryRoot::ClassesRoot, ".mp3");

    EXPECT_EQ(registry.CreateKey(ports::RegistryRoot::ClassesRoot, "new"), 0);
    EXPECT_FALSE(registry.SetValue(key, "", "changed"));
    EXPECT_FALSE(registry.DeleteKey(ports::RegistryRoot::ClassesRoot, ".mp3"));
    EXPECT_EQ(registry.QueryValue(key, "")->bytes, "kept");
    EXPECT_EQ(registry.OpenKeys(), 1U);
}

}  // namespace
}  // namespace contracts
