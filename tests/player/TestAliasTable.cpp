#include <gtest/gtest.h>

#include "player/AliasTable.h"

namespace {

using player::ChooseAlias;
using player::FadeStart;

struct Case {
    bool a;
    bool b;
    std::string_view current;
    std::string_view alias;
    bool silent;
    FadeStart fade;
};

TEST(AliasTable, HasARowForEveryState) {
    constexpr std::array cases = {
        Case{false, false, "", "a", false, FadeStart::None},
        Case{false, false, "b", "a", false, FadeStart::None},
        Case{false, true, "b", "a", true, FadeStart::ToA},
        Case{false, true, "a", "a", true, FadeStart::ToA},
        Case{true, false, "a", "b", true, FadeStart::ToB},
        Case{true, false, "b", "b", true, FadeStart::ToB},
        Case{true, true, "a", "b", false, FadeStart::ToB},
        Case{true, true, "b", "a", false, FadeStart::ToA},
        Case{true, true, "", "a", false, FadeStart::ToA},
    };

    for (const Case& one : cases) {
        const auto& row = ChooseAlias(one.a, one.b, one.current);
        EXPECT_EQ(row.alias, one.alias) << one.a << one.b << one.current;
        EXPECT_EQ(row.silent, one.silent) << one.a << one.b << one.current;
        EXPECT_EQ(row.fade, one.fade) << one.a << one.b << one.current;
    }
}

}  // namespace
