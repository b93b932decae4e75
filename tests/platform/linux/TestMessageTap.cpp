#include "platform/linux/MessageTap.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/Bench.h"
#include "platform/linux/RunLog.h"

namespace {

class MessageTapTest : public testing::Test {
protected:
    void Say(std::string_view text) const {
        ASSERT_EQ(::write(tap_->Number(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }
    std::string Log() const {
        const auto file = *std::filesystem::directory_iterator(state_ / "brindlepost");
        std::ifstream stream(file.path());
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    linux_tests::PlayFolder state_;
    linux::RunLog log_{state_.Path(), "/app"};
    std::optional<linux::MessageTap> tap_{std::in_place};
};

TEST_F(MessageTapTest, LinesGoOnAsTheyAreAndToTheLogWithoutNames) {
    testing::internal::CaptureStderr();
    Say("cannot open /home/ann/a.mp3\nsecond ");
    Say("half\nno end");
    tap_.reset();

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "cannot open /home/ann/a.mp3\nsecond half\nno end");
    const std::string log = Log();
    EXPECT_NE(log.find("| cannot open [...]\n"), std::string::npos) << log;
    EXPECT_NE(log.find("| second half\n"), std::string::npos) << log;
    EXPECT_NE(log.find("| no end\n"), std::string::npos) << log;
}

TEST_F(MessageTapTest, ALineWithoutEndIsTakenInPieces) {
    testing::internal::CaptureStderr();
    Say(std::string(20'000, 'x'));
    tap_.reset();

    EXPECT_EQ(testing::internal::GetCapturedStderr().size(), 20'000U);
    EXPECT_NE(Log().find("| xxx"), std::string::npos);
}

}  // namespace
