#include "window/MSN.h"

#include <gtest/gtest.h>

#include "fakes/FakeMessenger.h"

namespace {

constexpr std::string_view kFormat = "{0} - {1} {2}";

class MSNTest : public testing::Test {
protected:
    /// The bytes of a text, two each, low byte first, with the terminator.
    static std::vector<std::uint8_t> Wide(std::u16string_view text) {
        std::vector<std::uint8_t> bytes;
        for (const char16_t unit : text) {
            bytes.push_back(static_cast<std::uint8_t>(unit % 256));
            bytes.push_back(static_cast<std::uint8_t>(unit / 256));
        }
        bytes.insert(bytes.end(), {0, 0});
        return bytes;
    }

    fakes::FakeMessenger messenger;
    session::SessionOptions options{.Loaded = true};
    window::MSN msn{messenger, options};
};

TEST_F(MSNTest, TheTextHoldsEveryFieldBetweenSeparators) {
    msn.SendNowPlaying({"Owls ", "Nightjar", "at home", "more", kFormat, true});

    ASSERT_EQ(messenger.Sent.size(), 1U);
    EXPECT_EQ(messenger.Sent[0].lpData,
              Wide(u"\\0Music\\01\\0{0} - {1} {2}\\0Owls \\0Nightjar\\0at home\\0more\\0"));
}

TEST_F(MSNTest, TheBlockSaysWhatItIsAndHowLong) {
    msn.SendNowPlaying({"a", "b", "", "", kFormat, true});

    // 37 characters and the terminator.
    EXPECT_EQ(messenger.Sent[0].dwData, 1351U);
    EXPECT_EQ(messenger.Sent[0].dwData, 0x547U);
    EXPECT_EQ(messenger.Sent[0].cbData, messenger.Sent[0].lpData.size());
    EXPECT_EQ(messenger.Sent[0].cbData, 76U);
}

TEST_F(MSNTest, ByteForByte) {
    msn.SendNowPlaying({"", "", "", "", "", false});

    EXPECT_EQ(
        messenger.Sent[0].lpData,
        (std::vector<std::uint8_t>{'\\', 0, '0', 0, 'M',  0, 'u', 0, 's',  0, 'i', 0, 'c', 0,  // category
                                   '\\', 0, '0', 0, '0',  0,                           // nothing plays
                                   '\\', 0, '0', 0, '\\', 0, '0', 0, '\\', 0, '0', 0,  // format, first
                                   '\\', 0, '0', 0, '\\', 0, '0', 0, '\\', 0, '0', 0,  // second, third, extra
                                   0,    0}));
}

TEST_F(MSNTest, ThatNothingPlaysIsADigitAndEmptyFields) {
    msn.SendNowPlaying({"", "", "", "", kFormat, false});

    EXPECT_EQ(messenger.Sent[0].lpData, Wide(u"\\0Music\\00\\0{0} - {1} {2}\\0\\0\\0\\0\\0"));
}

TEST_F(MSNTest, TheCategoryIsNotUsed) {
    msn.SendNowPlaying({"a", "b", "c", "", kFormat, true});

    EXPECT_EQ(messenger.Sent[0].lpData, Wide(u"\\0Music\\01\\0{0} - {1} {2}\\0a\\0b\\0c\\0\\0"));
}

TEST_F(MSNTest, LettersOfAnyScriptGoOutUnchanged) {
    msn.SendNowPlaying({"Bj\xC3\xB6rk ", "\xE6\xAD\x8C", "\xF0\x9F\x8E\xB5", "", kFormat, true});

    EXPECT_EQ(messenger.Sent[0].lpData,
              Wide(u"\\0Music\\01\\0{0} - {1} {2}\\0Bj\u00F6rk \\0\u6B4C\\0\U0001F3B5\\0\\0"));
}

TEST_F(MSNTest, EveryMessengerIsTold) {
    const std::size_t first = messenger.AddWindow("MsnMsgrUIManager");
    const std::size_t other = messenger.AddWindow("SomethingElse");
    const std::size_t second = messenger.AddWindow("MsnMsgrUIManager");

    msn.SendNowPlaying({"a", "b", "c", "", kFormat, true});

    EXPECT_EQ(messenger.Windows[first].Received, messenger.Sent);
    EXPECT_EQ(messenger.Windows[second].Received, messenger.Sent);
    EXPECT_TRUE(messenger.Windows[other].Received.empty());
}

TEST_F(MSNTest, NotAllowedNobodyIsLookedFor) {
    messenger.AddWindow("MsnMsgrUIManager");
    options.Allow_MSN_Name = false;

    msn.SendNowPlaying({"a", "b", "c", "", kFormat, true});

    EXPECT_EQ(messenger.Searches, 0);
    EXPECT_TRUE(messenger.Windows[0].Received.empty());
}

TEST_F(MSNTest, BeforeTheSettingsAreReadNobodyIsLookedFor) {
    messenger.AddWindow("MsnMsgrUIManager");
    options.Loaded = false;

    msn.SendNowPlaying({"", "", "", "", kFormat, false});

    EXPECT_EQ(messenger.Searches, 0);
}

TEST_F(MSNTest, TheOptionCountsAtTheTimeOfSending) {
    options.Allow_MSN_Name = false;
    msn.SendNowPlaying({"a", "b", "c", "", kFormat, true});
    options.Allow_MSN_Name = true;

    msn.SendNowPlaying({"a", "b", "c", "", kFormat, true});

    EXPECT_EQ(messenger.Searches, 1);
}

}  // namespace
