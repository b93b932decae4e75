#include <gtest/gtest.h>

#include "player/AliasTable.h"

namespace {

using player::Alias;
using player::ChooseAlias;
using player::FadeStart;
using player::TextOf;

struct Case {
    bool a;
    bool b;
    Alias current;
    Alias alias;
    bool silent;
    FadeStart fade;
};

TEST(AliasTable, HasARowForEveryState) {
    constexpr std::array kCases = {
        Case{false, false, Alias::None, Alias::A, false, FadeStart::None},
        Case{false, false, Alias::B, Alias::A, false, FadeStart::None},
        Case{false, true, Alias::B, Alias::A, true, FadeStart::ToA},
        Case{false, true, Alias::A, Alias::A, true, FadeStart::ToA},
        Case{true, false, Alias::A, Alias::B, true, FadeStart::ToB},
        Case{true, false, Alias::B, Alias::B, true, FadeStart::ToB},
        Case{true, true, Alias::A, Alias::B, false, FadeStart::ToB},
        Case{true, true, Alias::B, Alias::A, false, FadeStart::ToA},
        Case{true, true, Alias::None, Alias::A, false, FadeStart::ToA},
    };

    for (const Case& one : kCases) {
        const auto& row = ChooseAlias(one.a, one.b, one.current);
        EXPECT_EQ(row.alias, one.alias) << one.a << one.b << TextOf(one.current);
        EXPECT_EQ(row.silent, one.silent) << one.a << one.b << TextOf(one.current);
        EXPECT_EQ(row.fade, one.fade) << one.a << one.b << TextOf(one.current);
    }
}

}  // namespace
