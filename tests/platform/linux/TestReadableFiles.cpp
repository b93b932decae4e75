#include "platform/linux/ReadableFiles.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Bench.h"
#include "base/Text.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/FolderReader.h"

namespace linux {
namespace {

using Names = std::vector<std::string>;

constexpr int kMany = 2500;
constexpr int kTooFewForAThread = 1000;

class ReadableFilesTest : public testing::Test {
protected:
    /// As many as there are to be, with those that are there; their names in order.
    Names MakeFiles(int count) {
        for (int i = static_cast<int>(names_.size()); i < count; ++i) {
            names_.push_back((i % 3 == 0 ? "Song " : "song ") + std::to_string(i) + ".mp3");
            folder_.Write(names_.back());
        }
        Names names = names_;
        std::sort(names.begin(), names.end(), [](const std::string& left, const std::string& right) {
            return base::CompareForSort(left, right) < 0;
        });
        return names;
    }

    linux_tests::PlayFolder folder_;

private:
    Names names_;
};

TEST_F(ReadableFilesTest, AnyNumberOfFilesIsListedInOrder) {
    for (const int count : {0, 1, 1023, 1024, 1025, kMany}) {
        const Names names = MakeFiles(count);

        const auto listing = ReadFolder(folder_.Path());

        ASSERT_TRUE(listing.has_value());
        EXPECT_EQ(listing->Files, names) << count;
    }
}

TEST_F(ReadableFilesTest, FilesThatMayNotBeReadAreLeftOutWhereverTheyStand) {
    Names names = MakeFiles(kMany);
    const auto is_shut = [](const std::string& name) { return name.ends_with("7.mp3"); };
    for (const std::string& name : names) {
        if (is_shut(name)) {
            ASSERT_EQ(::chmod((folder_ / name).c_str(), 0), 0);
        }
    }
    std::erase_if(names, is_shut);
    const linux_tests::Unprivileged rights(folder_);

    const auto listing = ReadFolder(folder_.Path());

    ASSERT_TRUE(listing.has_value());
    EXPECT_EQ(listing->Files, names);
}

TEST_F(ReadableFilesTest, AFileThatIsGoneMeanwhileIsLeftOut) {
    const Descriptor folder(::open(folder_.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    folder_.Write("here.mp3");
    ReadableFiles files(folder.Number());
    files.Add("gone.mp3");
    files.Add("here.mp3");
    const ports::MayGoOn never_asked;
    Pace pace(never_asked);
    NameSorter sorter;

    EXPECT_TRUE(files.MoveTo(sorter, pace));
    EXPECT_EQ(sorter.Sorted(pace), Names{"here.mp3"});
}

TEST_F(ReadableFilesTest, AskingCanBeGivenUp) {
    const Descriptor folder(::open(folder_.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ReadableFiles files(folder.Number());
    for (int i = 0; i < kTooFewForAThread; ++i)
        files.Add("gone.mp3");
    const ports::MayGoOn give_up = [] { return false; };
    Pace pace(give_up);
    NameSorter sorter;

    EXPECT_FALSE(files.MoveTo(sorter, pace));
}

}  // namespace
}  // namespace linux
