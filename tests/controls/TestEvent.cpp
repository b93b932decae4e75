#include "controls/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace controls {
namespace {

TEST(Event, CallsItsListenerWithTheArguments) {
    Event<int, int> event;
    EventClaims claims;
    std::vector<int> heard;
    claims.Claim(event, [&heard](int first, int second) { heard = {first, second}; });

    event.Raise(3, 4);

    EXPECT_EQ(heard, (std::vector<int>{3, 4}));
}

TEST(Event, AListenerMayTakeNoArguments) {
    Event<int, int> event;
    EventClaims claims;
    int raised = 0;
    claims.Claim(event, [&raised] { ++raised; });

    event.Raise(3, 4);

    EXPECT_EQ(raised, 1);
}

TEST(Event, WithoutAListenerNothingHappens) {
    Event<> event;

    event.Raise();

    EXPECT_FALSE(event.IsClaimed());
}

TEST(Event, AListenerMayAnswerThroughAReference) {
    Event<bool&> event;
    EventClaims claims;
    claims.Claim(event, [](bool& cancel) { cancel = true; });
    bool cancel = false;

    event.Raise(cancel);

    EXPECT_TRUE(cancel);
}

TEST(Event, AListenerMayRaiseTheEventAgain) {
    Event<> event;
    EventClaims claims;
    int calls = 0;
    claims.Claim(event, [&] {
        if (++calls < 3) event.Raise();
    });

    event.Raise();

    EXPECT_EQ(calls, 3);
}

TEST(Event, AListenerMayGiveItsOwnClaimBack) {
    Event<> event;
    EventClaims claims;
    int calls = 0;
    claims.Claim(event, [&claims, &calls, kept = std::make_unique<int>(7).release()] {
        claims.Release();
        calls += *kept;
        delete kept;
    });

    event.Raise();
    event.Raise();

    EXPECT_EQ(calls, 7);
}

TEST(EventClaims, GivesItsClaimsBackAtTheEnd) {
    Event<> first;
    Event<int> second;
    int calls = 0;
    {
        EventClaims claims;
        claims.Claim(first, [&calls] { ++calls; });
        claims.Claim(second, [&calls](int) { ++calls; });
        EXPECT_TRUE(first.IsClaimed());
    }

    first.Raise();
    second.Raise(1);

    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(first.IsClaimed());
    EXPECT_FALSE(second.IsClaimed());
}

TEST(EventClaims, AnEventGivenBackCanBeClaimedByAnother) {
    Event<> event;
    EventClaims claims;
    EventClaims later;
    int calls = 0;
    claims.Claim(event, [] {});
    claims.Release();

    later.Claim(event, [&calls] { ++calls; });
    claims.Release();
    event.Raise();

    EXPECT_EQ(calls, 1);
}

#ifndef NDEBUG
TEST(EventClaimsDeathTest, ClaimingAnEventTwiceIsABug) {
    Event<> event;
    EventClaims claims;
    claims.Claim(event, [] {});

    EXPECT_DEATH(claims.Claim(event, [] {}), "IsClaimed");
}
#endif

}  // namespace
}  // namespace controls
