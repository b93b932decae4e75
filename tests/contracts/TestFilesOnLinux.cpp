#include "contracts/FilesContract.h"
#include "platform/linux/Bench.h"
#include "platform/linux/LinuxFiles.h"

namespace contracts {
namespace {

/// On a disk, or on a share, which is a folder that a mount table says to be one.
class LinuxBench final : public FilesBench {
public:
    enum class Place { Disk, Share };
    explicit LinuxBench(Place place)
        : files_(folder_ / "brindlepost", folder_.Path(), MountTable(place), FILE_PROGRAM) {}
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
    std::string MountTable(Place place) const {
        if (place == Place::Disk) return "/proc/self/mountinfo";
        linux_tests::WriteMountTable(table_ / "table", folder_.Path());
        return table_ / "table";
    }

    linux_tests::PlayFolder table_;
    linux_tests::PlayFolder folder_;
    linux::LinuxFiles files_;
    linux_tests::Unprivileged rights_{folder_};
    std::vector<std::string> closed_;
};

MakeFilesBench On(LinuxBench::Place place) {
    return [place] { return std::make_unique<LinuxBench>(place); };
}

INSTANTIATE_TEST_SUITE_P(Linux, FilesContract,
                         testing::Values(On(LinuxBench::Place::Disk), On(LinuxBench::Place::Share)),
                         [](const auto& suite) { return suite.index == 0 ? "Linux" : "LinuxShare"; });

}  // namespace
}  // namespace contracts
