#include "base/Markup.h"

#include <gtest/gtest.h>

namespace {

TEST(Markup, EntitiesAreDecoded) {
    const std::pair<const char*, const char*> cases[] = {
        {"Owls &amp; Larks", "Owls & Larks"},
        {"&lt;b&gt; &quot;x&quot; &#39;y&apos;", "<b> \"x\" 'y'"},
        {"&#233;&#xE9;&#XE9;", "\xC3\xA9\xC3\xA9\xC3\xA9"},
        {"&teeth; & &; &#; &#0; &#xD800; &#1114112; &amp", "&teeth; & &; &#; &#0; &#xD800; &#1114112; &amp"},
        {"&amp;lt;", "&lt;"},
        {"", ""},
    };
    for (const auto& [text, decoded] : cases)
        EXPECT_EQ(base::DecodeEntities(text), decoded) << text;
}

TEST(Markup, WhatIsEncodedIsDecodedAgain) {
    const std::string text = "<a href=\"x?a=1&b=2\">'Owls' \xC3\xA9</a>";

    EXPECT_EQ(base::EncodeEntities(text),
              "&lt;a href=&quot;x?a=1&amp;b=2&quot;&gt;&#39;Owls&#39; \xC3\xA9&lt;/a&gt;");
    EXPECT_EQ(base::DecodeEntities(base::EncodeEntities(text)), text);
}

TEST(Markup, ATagEndsPastItsQuotedValues) {
    EXPECT_EQ(base::EndOfTag("a>b"), 1u);
    EXPECT_EQ(base::EndOfTag("a x='>' y=\">\">"), 13u);
    EXPECT_EQ(base::EndOfTag("a x='>"), 6u);
    EXPECT_EQ(base::EndOfTag(""), 0u);
}

}  // namespace
