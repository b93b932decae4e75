#include "base/DrivePath.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Text.h"

namespace base {
namespace {

const std::vector<Volume> kVolumes = {{'D', "/media/Stick", "Stick"}, {'E', "/media/Stick/inner", "inner"}};

TEST(DrivePath, APathIsBuiltWithOneSeparator) {
    EXPECT_EQ(BuildPath("C:\\m", "a.mp3"), "C:\\m\\a.mp3");
    EXPECT_EQ(BuildPath("C:\\m\\", "a.mp3"), "C:\\m\\a.mp3");
    EXPECT_EQ(BuildPath("C:/m/", "a.mp3"), "C:/m/a.mp3");
    EXPECT_EQ(BuildPath("C:\\", "a.mp3"), "C:\\a.mp3");
    EXPECT_EQ(BuildPath("", "a.mp3"), "a.mp3");
}

TEST(DrivePath, DriveAndNativePathsBecomeOneAnother) {
    const std::vector<std::pair<const char*, const char*>> pairs = {
        {"C:\\", "/"},
        {"C:\\m\\a b.mp3", "/m/a b.mp3"},
        {"C:\\media\\Sticky\\a", "/media/Sticky/a"},
        {"D:\\a.mp3", "/media/Stick/a.mp3"},
        {"E:\\a.mp3", "/media/Stick/inner/a.mp3"},
        {"D:\\innermost", "/media/Stick/innermost"},
    };

    for (const auto& [drive, native] : pairs) {
        EXPECT_EQ(NativePath(drive, kVolumes), native);
        EXPECT_EQ(DrivePath(native, kVolumes), drive);
    }
}

TEST(DrivePath, BothSeparatorsAndRunsOfThemAreUnderstood) {
    EXPECT_EQ(NativePath("c:/m\\\\n//a", kVolumes), "/m/n/a");
    EXPECT_EQ(NativePath("/m/a", kVolumes), "/m/a");
    EXPECT_EQ(NativePath("\\m\\a", kVolumes), "/m/a");
    EXPECT_EQ(NativePath("m\\a", kVolumes), "m/a");
    EXPECT_EQ(NativePath("C:m", kVolumes), "/m");
    EXPECT_EQ(NativePath("C:", kVolumes), "/");
    EXPECT_EQ(NativePath("d:", kVolumes), "/media/Stick");
    EXPECT_EQ(NativePath("", kVolumes), "");
}

TEST(DrivePath, ALetterWithoutAVolumeLeadsNowhere) {
    EXPECT_FALSE(NativePath("F:\\a", kVolumes).has_value());
    EXPECT_FALSE(NativePath(std::string("C:\\a\0b", 6), kVolumes).has_value());
}

TEST(DrivePath, EveryByteHasAStandInOrStandsForItself) {
    std::string name;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '/') name += static_cast<char>(byte);
    }

    const std::string text = NameToText(name);

    EXPECT_TRUE(IsUtf8(text));
    EXPECT_EQ(text.find('\\'), std::string::npos);
    EXPECT_EQ(TextToBytes(text), name);
}

TEST(DrivePath, ARealCharacterThatLooksLikeAStandInComesBack) {
    const std::string name = "\xEF\x81\x9C\xEF\x83\xBF\xEF\x80\xA0";  // U+F05C, U+F0FF, U+F020

    EXPECT_NE(NameToText(name), name);
    EXPECT_EQ(TextToBytes(NameToText(name)), name);
}

TEST(DrivePath, AStandInNeverBecomesASeparatorOrAnEndMark) {
    EXPECT_EQ(TextToBytes("\xEF\x80\xAF"), "\xEF\x80\xAF");  // U+F02F
    EXPECT_EQ(TextToBytes("\xEF\x80\x80"), "\xEF\x80\x80");  // U+F000
    EXPECT_EQ(TextToBytes("\xEF\x80\xAE"), "\xEF\x80\xAE");  // U+F02E
}

TEST(DrivePath, AStandInIsShownAsWhatItStandsFor) {
    EXPECT_EQ(WithoutStandIns(NameToText("a\\b")), "a\\b");
    EXPECT_EQ(WithoutStandIns(NameToText("Bj\xF6rk")), "Bj\xC3\xB6rk");
    EXPECT_EQ(WithoutStandIns(BlankFree("a b\n\"c\"")), "a b \"c\"");
    EXPECT_EQ(WithoutStandIns(NameToText("\x80")), "\xEF\xBF\xBD");
    EXPECT_EQ(WithoutStandIns("plain \xC3\xA9"), "plain \xC3\xA9");
    EXPECT_EQ(WithoutStandIns("\xEF\x81\x81"), "\xEF\x81\x81");  // U+F041 stands for nothing
}

TEST(DrivePath, ABlankFreePathIsOneWord) {
    const std::string path = "C:\\My Music\\a\t\"b\".mp3";

    const std::string word = BlankFree(path);

    EXPECT_EQ(word.find_first_of(" \t\""), std::string::npos);
    EXPECT_EQ(NativePath(word, {}), "/My Music/a\t\"b\".mp3");
}

TEST(DrivePath, AQuoteFreePathKeepsItsBlanks) {
    EXPECT_EQ(QuoteFree("a b"), "a b");
    EXPECT_EQ(TextToBytes(QuoteFree("a \"b\"")), "a \"b\"");
    EXPECT_EQ(QuoteFree("a \"b\"").find('"'), std::string::npos);
}

TEST(DrivePath, ATextThatIsAFileNameIsOneNameAndComesBack) {
    for (const auto* text : {"AC/DC", "a\\b", "..", "../../etc", "/", "\\", "C:\\x", "a/b\\c", "Björk – ½"}) {
        const std::string name = SeparatorFree(text);

        const std::optional<std::string> native = NativePath("C:\\lists\\" + name + ".mpl", {});

        ASSERT_TRUE(native.has_value()) << text;
        EXPECT_EQ(native->rfind('/'), std::string_view("/lists").size()) << text;
        EXPECT_EQ(DrivePath(*native, {}), "C:\\lists\\" + name + ".mpl") << text;
        EXPECT_EQ(WithSeparators(name), text);
    }
    EXPECT_EQ(SeparatorFree("plain name"), "plain name");
    EXPECT_EQ(WithSeparators("plain name"), "plain name");
}

TEST(ShortPaths, APathThatIsShortEnoughOnlyLosesItsBlanks) {
    ShortPaths paths;

    EXPECT_EQ(paths.Shorten("C:\\a.mp3"), "C:\\a.mp3");
    EXPECT_EQ(paths.Shorten("C:\\a b.mp3"), BlankFree("C:\\a b.mp3"));
    EXPECT_EQ(paths.Resolve("C:\\a.mp3"), "C:\\a.mp3");
}

TEST(ShortPaths, ALongPathGetsANameThatLeadsBack) {
    ShortPaths paths;
    const std::string fits = "C:\\" + std::string(248, 'x') + ".mp3";
    const std::string is_long = "C:\\" + std::string(249, 'x') + ".mp3";

    const std::string short_path = paths.Shorten(is_long);

    EXPECT_EQ(paths.Shorten(fits), fits);
    EXPECT_LT(short_path.size(), 30U);
    EXPECT_TRUE(short_path.ends_with(".mp3"));
    EXPECT_EQ(paths.Resolve(short_path), is_long);
    EXPECT_EQ(paths.Shorten(is_long), short_path);
    EXPECT_NE(paths.Shorten(is_long + "x"), short_path);
}

}  // namespace
}  // namespace base
