// What every way to the screen saver promises: one body of tests for the stand-in and for the real bus.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "ports/ScreenSaver.h"

namespace contracts {

/// A desktop with a screen saver.
class ScreenSaverBench {
public:
    virtual ~ScreenSaverBench() = default;
    virtual ports::ScreenSaver& Saver() = 0;
    /// Once everything that was said has arrived: may the screen go dark?
    virtual bool MayGoDark() = 0;
    /// The program ends, however.
    virtual void EndProgram() = 0;
};

using MakeScreenSaverBench = std::function<std::unique_ptr<ScreenSaverBench>()>;

class ScreenSaverContract : public testing::TestWithParam<MakeScreenSaverBench> {
protected:
    std::unique_ptr<ScreenSaverBench> bench_ = GetParam()();
};

TEST_P(ScreenSaverContract, AtTheStartTheScreenMayGoDark) {
    EXPECT_TRUE(bench_->MayGoDark());
}

TEST_P(ScreenSaverContract, InhibitedItStaysOnUntilItIsLetGo) {
    bench_->Saver().SetInhibited(true);
    EXPECT_FALSE(bench_->MayGoDark());

    bench_->Saver().SetInhibited(false);

    EXPECT_TRUE(bench_->MayGoDark());
}

TEST_P(ScreenSaverContract, SayingItTwiceIsSayingItOnce) {
    bench_->Saver().SetInhibited(true);
    bench_->Saver().SetInhibited(true);
    EXPECT_FALSE(bench_->MayGoDark());

    bench_->Saver().SetInhibited(false);

    EXPECT_TRUE(bench_->MayGoDark());
}

TEST_P(ScreenSaverContract, QuickChangesEndAsTheLastOneSaid) {
    for (int i = 0; i < 5; ++i) {
        bench_->Saver().SetInhibited(true);
        bench_->Saver().SetInhibited(false);
    }
    EXPECT_TRUE(bench_->MayGoDark());

    for (int i = 0; i < 5; ++i) {
        bench_->Saver().SetInhibited(false);
        bench_->Saver().SetInhibited(true);
    }

    EXPECT_FALSE(bench_->MayGoDark());
}

TEST_P(ScreenSaverContract, WithTheProgramItsWishEnds) {
    bench_->Saver().SetInhibited(true);
    EXPECT_FALSE(bench_->MayGoDark());

    bench_->EndProgram();

    EXPECT_TRUE(bench_->MayGoDark());
}

}  // namespace contracts
