// The stand-ins for loop, boxes and the window's shape keep to the contracts of the real ones.
#include <algorithm>

#include "contracts/DialogsContract.h"
#include "contracts/EventLoopContract.h"
#include "contracts/WindowShapeContract.h"
#include "controls/Form.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "fakes/RecordingWindowShape.h"

namespace contracts {
namespace {

class FakeDialogsBench final : public DialogsBench {
public:
    ports::Dialogs& Dialogs() override { return dialogs_; }
    void WillAnswer(ports::BoxAnswer answer) override { dialogs_.Answers.push_back(answer); }
    void WillClose() override {}
    void WillType(std::string_view text) override { dialogs_.Typed.emplace_back(text); }
    std::string ShownText() const override {
        return dialogs_.Inputs.empty() ? dialogs_.Boxes.back().text : dialogs_.Inputs.back().prompt;
    }
    std::string ShownTitle() const override {
        return dialogs_.Inputs.empty() ? dialogs_.Boxes.back().title : dialogs_.Inputs.back().title;
    }
    std::string OfferedText() const override { return dialogs_.Inputs.back().default_text; }

private:
    fakes::FakeDialogs dialogs_;
};

class FakeLoopBench final : public EventLoopBench {
public:
    ports::EventLoop& Loop() override { return desktop_; }
    void Adopt(controls::Form& form) override { desktop_.Adopt(form); }
    void Run(std::function<void()> handler) override {
        handler();
        desktop_.EndHandler();
    }
    void Post(std::function<void()> handler) override {
        desktop_.Post([this, handler] { Run(handler); });
    }
    bool YieldUntil(const std::function<bool()>& done) override {
        constexpr int kMost = 1000;
        for (int i = 0; i < kMost && !done(); ++i) {
            desktop_.Yield();
            if (!done()) desktop_.Advance(1);
        }
        return done();
    }
    void AskToEnd() override { desktop_.Ending = true; }

private:
    fakes::FakeDesktop desktop_;
};

class FakeShapeBench final : public WindowShapeBench {
public:
    ports::WindowShape& Shape() override { return shape_; }
    void EndHandler() override {}
    bool HasPixel(int x, int y) override {
        if (shape_.Holes.empty() || !shape_.Holes.back()) return true;
        const ports::WindowRect& box = shape_.Holes.back()->box;
        return x < box.left || x >= box.right || y < box.top || y >= box.bottom;
    }

private:
    fakes::RecordingWindowShape shape_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, DialogsContract, FakeDialogsBench);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, EventLoopContract, FakeLoopBench);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, WindowShapeContract, FakeShapeBench);

}  // namespace
}  // namespace contracts
