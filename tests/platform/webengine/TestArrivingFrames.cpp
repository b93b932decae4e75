#include <gtest/gtest.h>

#include "platform/webengine/ArrivingFrames.h"

namespace {

using webengine::ArrivingFrames;

QUrl Frame(int number) {
    return QUrl(QStringLiteral("https://site.example/frame%1").arg(number));
}

TEST(ArrivingFrames, ThoseThatSetOutWhileADocumentLoadsArriveInTheirOrder) {
    ArrivingFrames frames;
    frames.Begin();
    frames.Add(Frame(1));
    frames.Add(Frame(2));

    EXPECT_EQ(frames.Take(), (std::vector<QUrl>{Frame(1), Frame(2)}));
    EXPECT_EQ(frames.Count(), 0u);
}

TEST(ArrivingFrames, ADocumentThatIsThereSendsItsFramesOnForEverAndNoneIsKept) {
    ArrivingFrames frames;
    frames.Begin();
    frames.Take();

    for (int i = 0; i < 5000; ++i)
        frames.Add(Frame(i));

    EXPECT_EQ(frames.Count(), 0u);
}

TEST(ArrivingFrames, ALoadThatEndsInNothingLeavesNone) {
    ArrivingFrames frames;
    frames.Begin();
    frames.Add(Frame(1));

    frames.Drop();
    frames.Add(Frame(2));

    EXPECT_EQ(frames.Count(), 0u);
}

TEST(ArrivingFrames, OneLoadAfterAnotherHasFramesOfItsOwn) {
    ArrivingFrames frames;
    frames.Begin();
    frames.Add(Frame(1));
    frames.Begin();
    frames.Add(Frame(2));

    EXPECT_EQ(frames.Take(), std::vector<QUrl>{Frame(2)});
}

TEST(ArrivingFrames, ADocumentThatNeverEndsToLoadIsGivenNoMoreThanItCanHave) {
    ArrivingFrames frames;
    frames.Begin();

    for (int i = 0; i < 5000; ++i)
        frames.Add(Frame(i));

    EXPECT_EQ(frames.Count(), ArrivingFrames::kMost);
}

}  // namespace
