#include "platform/linux/CommandText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/linux/Bench.h"
#include "platform/linux/LinuxFiles.h"

namespace linux {
namespace {

class CommandTextTest : public testing::Test {
protected:
    std::string Of(const std::vector<std::string>& arguments) const {
        return CommandText(arguments, "/home/ann/music", files_);
    }

    LinuxFiles files_{"/opt/brindlepost", "/opt", "/no/such/table"};
};

TEST_F(CommandTextTest, NoArgumentsAreTheEmptyText) {
    EXPECT_EQ(Of({}), "");
    EXPECT_EQ(Of({""}), "");
}

TEST_F(CommandTextTest, APathStandsBetweenQuotes) {
    EXPECT_EQ(Of({"/m/a b.mp3"}), "\"C:\\m\\a b.mp3\"");
}

TEST_F(CommandTextTest, OneBlankStandsBetweenPaths) {
    EXPECT_EQ(Of({"/m/a.mp3", "", "/m/b.mp3"}), "\"C:\\m\\a.mp3\" \"C:\\m\\b.mp3\"");
}

TEST_F(CommandTextTest, ARelativePathIsMadeAbsolute) {
    EXPECT_EQ(Of({"a.mp3"}), "\"C:\\home\\ann\\music\\a.mp3\"");
    EXPECT_EQ(Of({"new/Summer.mpl"}), "\"C:\\home\\ann\\music\\new\\Summer.mpl\"");
    EXPECT_EQ(Of({"-x"}), "\"C:\\home\\ann\\music\\-x\"");
    EXPECT_EQ(Of({"--remote-debugging-port=9"}), "\"C:\\home\\ann\\music\\--remote-debugging-port=9\"");
}

TEST_F(CommandTextTest, ADrivePathStaysAsItIs) {
    EXPECT_EQ(Of({"C:\\m\\a.mp3"}), "\"C:\\m\\a.mp3\"");
    EXPECT_EQ(Of({"d:/m/a.mp3"}), "\"d:/m/a.mp3\"");
}

TEST_F(CommandTextTest, AnAddressStaysAsItIs) {
    for (const char* address :
         {"http://example.org/a?b=c&d", "https://localhost:8080/", "HTTP://X.COM", "www.example.de",
          "example.com/a/b", "example.co.uk", "about:blank", "mailto:a@b.c"}) {
        EXPECT_EQ(Of({address}), "\"" + std::string(address) + "\"") << address;
    }
}

TEST_F(CommandTextTest, AQuoteInAnAddressIsWrittenAsAddressesWriteIt) {
    EXPECT_EQ(Of({"http://example.org/\"a\""}), "\"http://example.org/%22a%22\"");
}

TEST_F(CommandTextTest, AFileAddressIsThePathItNames) {
    EXPECT_EQ(Of({"file:///m/a%20b%C3%A9.mp3"}), "\"C:\\m\\a b\xC3\xA9.mp3\"");
    EXPECT_EQ(Of({"file://localhost/m/a.mp3"}), "\"C:\\m\\a.mp3\"");
    EXPECT_EQ(Of({"FILE:///m/100%.mp3"}), "\"C:\\m\\100%.mp3\"");
}

TEST_F(CommandTextTest, NamesThatAPathCannotHoldLeadBackToTheirFiles) {
    const std::string text = Of({"/m/say \"hi\"\\ \xF6.mp3"});

    EXPECT_EQ(text.find('"', 1), text.size() - 1);
    EXPECT_EQ(files_.ToNative(text.substr(1, text.size() - 2)), "/m/say \"hi\"\\ \xF6.mp3");
}

TEST_F(CommandTextTest, AFileThatIsThereIsNoAddress) {
    const linux_tests::PlayFolder folder;
    folder.Write("www.song.com.mp3");
    folder.Write("a:b.mp3");

    EXPECT_EQ(CommandText({"www.song.com.mp3"}, folder.Path(), files_),
              "\"" + files_.FromNative(folder / "www.song.com.mp3") + "\"");
    EXPECT_EQ(CommandText({folder / "www.song.com.mp3"}, "/", files_),
              "\"" + files_.FromNative(folder / "www.song.com.mp3") + "\"");
    EXPECT_EQ(CommandText({"./a:b.mp3"}, folder.Path(), files_),
              "\"" + files_.FromNative(folder / "a:b.mp3") + "\"");
}

TEST_F(CommandTextTest, DotsOnTheWayAreResolvedAsTheSystemDoes) {
    const linux_tests::PlayFolder folder;
    folder.Make("x/deep");
    folder.Make("y");
    folder.Link("../x/deep", "y/link");

    // The folder above the link's target, not above the link.
    EXPECT_EQ(CommandText({"y/link/../a.mp3"}, folder.Path(), files_),
              "\"" + files_.FromNative(folder / "x/a.mp3") + "\"");
    EXPECT_EQ(CommandText({"./y/."}, folder.Path(), files_), "\"" + files_.FromNative(folder / "y") + "\"");
    EXPECT_EQ(CommandText({"/../a.mp3"}, folder.Path(), files_), "\"C:\\a.mp3\"");
}

TEST_F(CommandTextTest, TheWorkingFolderIsANativePath) {
    EXPECT_TRUE(WorkingFolder().starts_with('/'));
}

}  // namespace
}  // namespace linux
