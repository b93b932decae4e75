#include "contracts/FilesContract.h"
#include "platform/linux/Bench.h"
#include "platform/linux/LinuxFiles.h"

namespace contracts {
namespace {

class LinuxBench final : public FilesBench {
public:
    LinuxBench() : files_(folder_ / "brindlepost") {}
    ~LinuxBench() override {
        for (const std::string& closed : closed_)
            ::chmod(closed.c_str(), 0700);
    }
    ports::Files& Files() override { return files_; }
    std::string Folder() const override { return files_.FromNative(folder_.Path()); }
    void MakeUnreadable(const std::string& path) override {
        closed_.push_back(files_.ToNative(path));
        ASSERT_EQ(::chmod(closed_.back().c_str(), 0), 0);
    }

private:
    linux_tests::PlayFolder folder_;
    linux_tests::Unprivileged rights_{folder_};
    linux::LinuxFiles files_;
    std::vector<std::string> closed_;
};

INSTANTIATE_TEST_SUITE_P(Linux, FilesContract,
                         testing::Values(MakeFilesBench([] { return std::make_unique<LinuxBench>(); })),
                         [](const auto&) { return "Linux"; });

}  // namespace
}  // namespace contracts
