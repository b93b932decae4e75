// What every instance lock promises: one body of tests for the stand-in and for the real system.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ports/InstanceLock.h"

namespace contracts {

/// One application folder in which instances start.
class InstanceBench {
public:
    virtual ~InstanceBench() = default;
    virtual std::unique_ptr<ports::InstanceLock> Start() = 0;
    /// Lets `second` hand over while `first` serves; what HandOff gave.
    virtual bool HandOver(ports::InstanceLock& second, ports::InstanceLock& first,
                          const std::string& text) = 0;
    /// Lets `start` ask while `first` serves; what AskFirst gave.
    virtual std::optional<ports::OptionAnswer> Ask(ports::InstanceLock& start, ports::InstanceLock& first,
                                                   const std::string& option) = 0;
    /// Makes the folder read-only.
    virtual void MakeUnusable() = 0;
};

using MakeInstanceBench = std::function<std::unique_ptr<InstanceBench>()>;

class RecordingHandOff final : public ports::HandOffListener {
public:
    void OnBringToFront() override { Told.emplace_back("front"); }
    void OnCommandText(std::string_view text) override { Told.push_back("text " + std::string(text)); }
    void OnTrigger() override {
        Told.emplace_back("trigger");
        if (WhenTriggered) WhenTriggered();
    }

    std::vector<std::string> Told;
    std::function<void()> WhenTriggered;
};

class AnsweringListener final : public ports::OptionListener {
public:
    ports::OptionAnswer OnOption(std::string_view option) override {
        Asked.emplace_back(option);
        return Answer;
    }

    ports::OptionAnswer Answer;
    std::vector<std::string> Asked;
};

class InstanceLockContract : public testing::TestWithParam<MakeInstanceBench> {
protected:
    std::unique_ptr<InstanceBench> bench_ = GetParam()();
};

TEST_P(InstanceLockContract, TheFirstStartIsTheFirstAndLaterOnesAreNot) {
    const auto first = bench_->Start();
    const auto second = bench_->Start();
    const auto third = bench_->Start();

    EXPECT_EQ(first->TryBecomeFirst(), ports::Instance::First);
    EXPECT_EQ(second->TryBecomeFirst(), ports::Instance::Second);
    EXPECT_EQ(third->TryBecomeFirst(), ports::Instance::Second);
    EXPECT_EQ(first->TryBecomeFirst(), ports::Instance::First);
    EXPECT_EQ(second->TryBecomeFirst(), ports::Instance::Second);
    EXPECT_EQ(first->Failure(), "");
}

TEST_P(InstanceLockContract, TheAnswerIsKeptWhateverHappensAfterIt) {
    auto first = bench_->Start();
    const auto second = bench_->Start();
    EXPECT_EQ(second->Answer(), ports::Instance::Failed);
    first->TryBecomeFirst();
    second->TryBecomeFirst();
    EXPECT_EQ(first->Answer(), ports::Instance::First);

    first.reset();
    bench_->MakeUnusable();

    EXPECT_EQ(second->Answer(), ports::Instance::Second);
}

TEST_P(InstanceLockContract, AfterTheFirstEndedTheNextIsFirst) {
    auto first = bench_->Start();
    const auto next = bench_->Start();
    ASSERT_EQ(first->TryBecomeFirst(), ports::Instance::First);

    first.reset();

    EXPECT_EQ(next->TryBecomeFirst(), ports::Instance::First);
}

TEST_P(InstanceLockContract, TheEndOfASecondLeavesTheFirstAlone) {
    const auto first = bench_->Start();
    auto second = bench_->Start();
    const auto third = bench_->Start();
    ASSERT_EQ(first->TryBecomeFirst(), ports::Instance::First);
    ASSERT_EQ(second->TryBecomeFirst(), ports::Instance::Second);

    second.reset();

    EXPECT_EQ(third->TryBecomeFirst(), ports::Instance::Second);
}

TEST_P(InstanceLockContract, AHandOverBringsToTheFrontThenDeliversThenTriggers) {
    const auto first = bench_->Start();
    const auto second = bench_->Start();
    RecordingHandOff listener;
    ASSERT_EQ(first->TryBecomeFirst(), ports::Instance::First);
    ASSERT_EQ(second->TryBecomeFirst(), ports::Instance::Second);
    first->SetListener(&listener);

    const bool delivered = bench_->HandOver(*second, *first, "\"C:\\a.mp3\" \"C:\\b \xC3\xA9.mp3\"");

    EXPECT_TRUE(delivered);
    EXPECT_EQ(listener.Told,
              (std::vector<std::string>{"front", "text \"C:\\a.mp3\" \"C:\\b \xC3\xA9.mp3\"", "trigger"}));
}

TEST_P(InstanceLockContract, AnEmptyTextIsHandedOverToo) {
    const auto first = bench_->Start();
    const auto second = bench_->Start();
    RecordingHandOff listener;
    first->TryBecomeFirst();
    second->TryBecomeFirst();
    first->SetListener(&listener);

    const bool delivered = bench_->HandOver(*second, *first, "");

    EXPECT_TRUE(delivered);
    EXPECT_EQ(listener.Told, (std::vector<std::string>{"front", "text ", "trigger"}));
}

TEST_P(InstanceLockContract, ALongTextArrivesWhole) {
    const auto first = bench_->Start();
    const auto second = bench_->Start();
    RecordingHandOff listener;
    first->TryBecomeFirst();
    second->TryBecomeFirst();
    first->SetListener(&listener);
    const std::string text(1 << 20, 'x');

    const bool delivered = bench_->HandOver(*second, *first, text);

    EXPECT_TRUE(delivered);
    ASSERT_EQ(listener.Told.size(), 3U);
    EXPECT_EQ(listener.Told[1], "text " + text);
}

TEST_P(InstanceLockContract, EachHandOverArrivesOnce) {
    const auto first = bench_->Start();
    const auto second = bench_->Start();
    const auto third = bench_->Start();
    RecordingHandOff listener;
    first->TryBecomeFirst();
    second->TryBecomeFirst();
    third->TryBecomeFirst();
    first->SetListener(&listener);

    bench_->HandOver(*second, *first, "one");
    bench_->HandOver(*third, *first, "two");
    first->Serve();

    EXPECT_EQ(listener.Told,
              (std::vector<std::string>{"front", "text one", "trigger", "front", "text two", "trigger"}));
}

TEST_P(InstanceLockContract, ServingInsideATriggerDoesNotTellTheSameTextAgain) {
    const auto first = bench_->Start();
    const auto second = bench_->Start();
    RecordingHandOff listener;
    listener.WhenTriggered = [&first] { first->Serve(); };
    first->TryBecomeFirst();
    second->TryBecomeFirst();
    first->SetListener(&listener);

    bench_->HandOver(*second, *first, "one");

    EXPECT_EQ(listener.Told, (std::vector<std::string>{"front", "text one", "trigger"}));
}

TEST_P(InstanceLockContract, AnOptionIsAnsweredAndBringsNothingToTheFront) {
    const auto first = bench_->Start();
    const auto later = bench_->Start();
    RecordingHandOff texts;
    AnsweringListener options;
    options.Answer = {.exit_code = 1, .text = "two\nlines"};
    first->TryBecomeFirst();
    first->SetListener(&texts);
    first->SetOptionListener(&options);

    const auto answer = bench_->Ask(*later, *first, "next");

    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->exit_code, 1);
    EXPECT_EQ(answer->text, "two\nlines");
    EXPECT_EQ(options.Asked, std::vector<std::string>{"next"});
    EXPECT_TRUE(texts.Told.empty());
}

TEST_P(InstanceLockContract, AnAnswerWithoutATextIsOne) {
    const auto first = bench_->Start();
    const auto later = bench_->Start();
    AnsweringListener options;
    first->TryBecomeFirst();
    first->SetOptionListener(&options);

    const auto answer = bench_->Ask(*later, *first, "stop");

    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->exit_code, 0);
    EXPECT_EQ(answer->text, "");
}

TEST_P(InstanceLockContract, WhereNobodyRunsNobodyAnswers) {
    const auto later = bench_->Start();

    EXPECT_FALSE(later->AskFirst("status"));
}

TEST_P(InstanceLockContract, TheFirstHandsNothingOver) {
    const auto first = bench_->Start();
    first->TryBecomeFirst();

    EXPECT_FALSE(first->HandOff("text"));
}

TEST_P(InstanceLockContract, WhereNothingCanBeWrittenTheStartFailsWithAReason) {
    bench_->MakeUnusable();
    const auto start = bench_->Start();

    EXPECT_EQ(start->TryBecomeFirst(), ports::Instance::Failed);

    EXPECT_FALSE(start->Failure().empty());
}

}  // namespace contracts
