#include "base/FileAddress.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace base {
namespace {

TEST(FileAddress, PercentSignsAreDecodedAndOthersStay) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"a%20b", "a b"}, {"%C3%a9", "\xC3\xA9"}, {"100%", "100%"},
        {"%4", "%4"},     {"%zz%41", "%zzA"},     {"%+1", "%+1"},
        {"", ""},         {"%2541", "%41"},       {"%00", {"\0", 1}},
    };

    for (const auto& [text, decoded] : cases)
        EXPECT_EQ(PercentDecoded(text), decoded) << text;
}

TEST(FileAddress, AFileOfThisComputerHasAPath) {
    const std::vector<std::pair<std::string, std::optional<std::string>>> cases = {
        {"file:///home/a%20b/x.mpl", "/home/a b/x.mpl"},
        {"FILE:///x.mpl", "/x.mpl"},
        {"file://localhost/x.mpl", "/x.mpl"},
        {"file:/x.mpl", "/x.mpl"},
        {"file:///C:/Music/x.mpl", "C:/Music/x.mpl"},
        {"file:///C%3A/x.mpl", "/C:/x.mpl"},
        {"file:///x.mpl#top", "/x.mpl"},
        {"file:///x%23.mpl?y", "/x#.mpl"},
        {"file://server/share/x.mpl", std::nullopt},
        {"file://", std::nullopt},
        {"file:", std::nullopt},
        {"http://one.example/x.mpl", std::nullopt},
        {"/home/x.mpl", std::nullopt},
        {"C:\\x.mpl", std::nullopt},
        {"", std::nullopt},
    };

    for (const auto& [address, path] : cases)
        EXPECT_EQ(PathOfFileAddress(address), path) << address;
}

TEST(FileAddress, ASchemeIsToldFromADrive) {
    for (const char* address : {"http://a", "FILE:///a", "file:/a", "rtsp://a"})
        EXPECT_TRUE(HasScheme(address)) << address;
    for (const char* path : {"C:\\a", "C:/a", "/a://b", "://a", "", "a b://c", "Music/a.mp3"})
        EXPECT_FALSE(HasScheme(path)) << path;
}

}  // namespace
}  // namespace base
