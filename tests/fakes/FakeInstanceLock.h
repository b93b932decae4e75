// Instances of one program that live in one test.
#pragma once

#include <algorithm>
#include <deque>
#include <optional>
#include <string>

#include "ports/InstanceLock.h"

namespace fakes {

class FakeInstanceLock;

/// One application folder of one user: who runs there.
struct FakeInstances {
    FakeInstanceLock* First = nullptr;
    /// What every start fails with; empty when none does.
    std::string Failure;
};

/// A start. It hands over at once; a text that finds no listener waits for the next Serve.
class FakeInstanceLock final : public ports::InstanceLock {
public:
    explicit FakeInstanceLock(FakeInstances& instances) : instances_(instances) {}
    ~FakeInstanceLock() override {
        if (instances_.First == this) instances_.First = nullptr;
    }
    FakeInstanceLock(const FakeInstanceLock&) = delete;
    FakeInstanceLock& operator=(const FakeInstanceLock&) = delete;

    ports::Instance TryBecomeFirst() override {
        if (instances_.First == nullptr && instances_.Failure.empty()) instances_.First = this;
        answer_ = instances_.First == this ? ports::Instance::First : ports::Instance::Second;
        if (!instances_.Failure.empty()) answer_ = ports::Instance::Failed;
        return answer_;
    }
    ports::Instance Answer() const override { return answer_; }
    std::string Failure() const override { return instances_.Failure; }
    bool HandOff(std::string_view text) override {
        FakeInstanceLock* const first = instances_.First;
        if (first == nullptr || first == this) return false;
        first->waiting_.emplace_back(text);
        first->Serve();
        return true;
    }
    std::optional<ports::OptionAnswer> AskFirst(std::string_view option) override {
        FakeInstanceLock* const first = instances_.First;
        if (first == nullptr || first->option_listener_ == nullptr) return std::nullopt;
        return first->option_listener_->OnOption(option);
    }
    void SetListener(ports::HandOffListener* listener) override { listener_ = listener; }
    void SetOptionListener(ports::OptionListener* listener) override { option_listener_ = listener; }
    int FileDescriptor() const override { return -1; }
    void Serve() override {
        while (listener_ != nullptr && !waiting_.empty()) {
            const std::string text = std::move(waiting_.front());
            waiting_.pop_front();
            listener_->OnBringToFront();
            listener_->OnCommandText(text);
            listener_->OnTrigger();
        }
    }

private:
    FakeInstances& instances_;
    ports::Instance answer_ = ports::Instance::Failed;
    ports::HandOffListener* listener_ = nullptr;
    ports::OptionListener* option_listener_ = nullptr;
    std::deque<std::string> waiting_;
};

}  // namespace fakes
