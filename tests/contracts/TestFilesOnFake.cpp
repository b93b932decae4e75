#include "contracts/FilesContract.h"
#include "fakes/FakeFiles.h"

namespace contracts {
namespace {

class FakeBench final : public FilesBench {
public:
    FakeBench() { files_.AddFolder("C:\\play"); }
    ports::Files& Files() override { return files_; }
    std::string Folder() const override { return "C:\\play"; }
    void MakeUnreadable(const std::string& path) override { files_.MakeUnreadable(path); }

private:
    fakes::FakeFiles files_;
};

INSTANTIATE_TEST_SUITE_P(Fake, FilesContract,
                         testing::Values(MakeFilesBench([] { return std::make_unique<FakeBench>(); })),
                         [](const auto&) { return "Fake"; });

}  // namespace
}  // namespace contracts
