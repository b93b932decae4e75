#include "platform/linux/MimeApps.h"

#include <gtest/gtest.h>

namespace {

constexpr linux::MimeClaim kClaim{.kind = "audio/mpeg", .entry = "brindlepost.desktop"};

std::string Claimed(std::string_view text) {
    return linux::WithClaim(text, kClaim);
}

constexpr std::string_view kFresh =
    "[Default Applications]\naudio/mpeg=brindlepost.desktop;\n"
    "\n[Added Associations]\naudio/mpeg=brindlepost.desktop;\n";

TEST(MimeApps, AnEmptyListGetsBothGroups) {
    EXPECT_EQ(Claimed(""), kFresh);
}

TEST(MimeApps, ClaimingAgainChangesNothing) {
    EXPECT_EQ(Claimed(kFresh), kFresh);
}

TEST(MimeApps, WhatWasThereFollows) {
    EXPECT_EQ(Claimed("[Default Applications]\naudio/mpeg=other.desktop\n[Added Associations]\n"
                      "audio/mpeg = one.desktop; brindlepost.desktop;two.desktop\n"),
              "[Default Applications]\naudio/mpeg=brindlepost.desktop;other.desktop;\n[Added Associations]\n"
              "audio/mpeg=brindlepost.desktop;one.desktop;two.desktop;\n");
}

TEST(MimeApps, ALineThatNamesTheEntryFirstStaysAsItIs) {
    const std::string_view text =
        "[Added Associations]\naudio/mpeg = brindlepost.desktop\n"
        "[Default Applications]\naudio/mpeg=brindlepost.desktop;x.desktop\n";

    EXPECT_EQ(Claimed(text), text);
}

TEST(MimeApps, TheEntryIsNoLongerRemoved) {
    const std::string head(kFresh);

    EXPECT_EQ(Claimed(head + "[Removed Associations]\naudio/mpeg=a.desktop;brindlepost.desktop;\nx/y=z;\n"),
              head + "[Removed Associations]\naudio/mpeg=a.desktop;\nx/y=z;\n");
    EXPECT_EQ(Claimed(head + "[Removed Associations]\naudio/mpeg=brindlepost.desktop\nx/y=z;\n"),
              head + "[Removed Associations]\nx/y=z;\n");
    EXPECT_EQ(Claimed(head + "[Removed Associations]\naudio/mpeg=a.desktop\n"),
              head + "[Removed Associations]\naudio/mpeg=a.desktop\n");
}

TEST(MimeApps, EveryOtherByteStays) {
    const std::string before =
        "# mine\n\nnonsense\xFF\xFE line\n[Default Applications\naudio/mpeg=broken.desktop\n"
        "[Added Associations]\ntext/plain=ed.desktop;\n\n\n[Default Applications]\n; "
        "old\nvideo/mp4=v.desktop";

    EXPECT_EQ(Claimed(before),
              "# mine\n\nnonsense\xFF\xFE line\n[Default Applications\naudio/mpeg=broken.desktop\n"
              "[Added Associations]\ntext/plain=ed.desktop;\naudio/mpeg=brindlepost.desktop;\n\n\n"
              "[Default Applications]\n; old\nvideo/mp4=v.desktop\naudio/mpeg=brindlepost.desktop;\n");
}

TEST(MimeApps, AnotherKindThatBeginsTheSameIsAnother) {
    const std::string text = "[Default Applications]\naudio/mpegurl=list.desktop\nx-audio/mpeg=x.desktop\n";

    EXPECT_TRUE(Claimed(text).starts_with(text + "audio/mpeg=brindlepost.desktop;\n"));
}

TEST(MimeApps, LinesKeepTheirEnds) {
    EXPECT_EQ(Claimed("[Default Applications]\r\naudio/mpeg=other.desktop\r\n[Added Associations]\r\n"),
              "[Default Applications]\r\naudio/mpeg=brindlepost.desktop;other.desktop;\r\n"
              "[Added Associations]\r\naudio/mpeg=brindlepost.desktop;\r\n");
}

TEST(MimeApps, ADefaultIsNamedInItsGroupOnly) {
    EXPECT_TRUE(linux::NamesDefault("[Default Applications]\naudio/mpeg=a.desktop\n", "audio/mpeg"));
    EXPECT_FALSE(linux::NamesDefault("[Added Associations]\naudio/mpeg=a.desktop\n", "audio/mpeg"));
    EXPECT_FALSE(linux::NamesDefault("", "audio/mpeg"));
}

}  // namespace
