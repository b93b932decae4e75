#include "platform/webengine/AddressCompletion.h"

#include <gtest/gtest.h>

namespace {

std::string NativePath(std::string_view path) {
    if (path.substr(0, 2) != "C:") return {};
    std::string native(path.substr(2));
    for (char& character : native) {
        if (character == '\\') character = '/';
    }
    return native;
}

std::string Search(std::string_view words) {
    return "https://search.example/?q=" + std::string(words);
}

webengine::AddressRules Rules() {
    return {.to_native_path = &NativePath, .search_address = &Search};
}

std::string Complete(std::string_view typed) {
    return webengine::CompleteAddress(typed, Rules()).address.toEncoded().toStdString();
}

std::string OnRefusal(std::string_view typed) {
    return webengine::CompleteAddress(typed, Rules()).on_refusal.toEncoded().toStdString();
}

TEST(AddressCompletion, WhatAPersonTypesBecomesAnAddress) {
    const std::pair<const char*, const char*> cases[] = {
        {"https://example.org/", "https://example.org/"},
        {"HTTP://Example.ORG/A", "http://example.org/A"},
        {"localhost", "http://localhost"},
        {"localhost:8080", "http://localhost:8080"},
        {"localhost:8080/x", "http://localhost:8080/x"},
        {"owl.localhost/x", "http://owl.localhost/x"},
        {"127.0.0.1:8080/x", "http://127.0.0.1:8080/x"},
        {"127.0.0.1", "http://127.0.0.1"},
        {"127.0.0.1/a b", "http://127.0.0.1/a%20b"},
        {"[::1]:8080/x", "http://[::1]:8080/x"},
        {"[::1]/x", "http://[::1]/x"},
        {"example.org:8080/x", "http://example.org:8080/x"},
        {"intranet/", "http://intranet/"},
        {"brindlepost://start/?origin=x", "brindlepost://start/?origin=x"},
        {"about:blank", "about:blank"},
        {"mailto:owl@example.org", "mailto:owl@example.org"},
        {"/home/owl/a b.html", "file:///home/owl/a%20b.html"},
        {"/home/owl/50%.html", "file:///home/owl/50%25.html"},
        {"C:\\home\\owl\\a#1.html", "file:///home/owl/a%231.html"},
        {"C:/home/owl", "file:///home/owl"},
        {"file:///home/owl", "file:///home/owl"},
    };
    for (const auto& [typed, wanted] : cases) {
        EXPECT_EQ(Complete(typed), wanted) << typed;
        EXPECT_EQ(OnRefusal(typed), "") << typed;
    }
}

TEST(AddressCompletion, ABareHostIsAskedForOnHttpsFirst) {
    const std::pair<const char*, const char*> cases[] = {
        {"example.org", "example.org"},
        {"  example.org  ", "example.org"},
        {"Example.ORG/A", "example.org/A"},
        {"www.example.org/a b?q=1#x", "www.example.org/a%20b?q=1#x"},
        {"example.org?q=1", "example.org?q=1"},
        {"my_host.example/", "my_host.example/"},
        {"b\xC3\xBC"
         "cher.example",
         "xn--bcher-kva.example"},
    };
    for (const auto& [typed, wanted] : cases) {
        EXPECT_EQ(Complete(typed), std::string("https://") + wanted) << typed;
        EXPECT_EQ(OnRefusal(typed), std::string("http://") + wanted) << typed;
    }
}

TEST(AddressCompletion, WithHttpsFirstSwitchedOffItIsHttp) {
    webengine::AddressRules rules = Rules();
    rules.https_first = false;

    const webengine::Completed completed = webengine::CompleteAddress("example.org", rules);

    EXPECT_EQ(completed.address, QUrl("http://example.org"));
    EXPECT_TRUE(completed.on_refusal.isEmpty());
}

TEST(AddressCompletion, WhatCannotBeAHostIsSearchedFor) {
    const std::pair<const char*, const char*> cases[] = {
        {"weather", "weather"},
        {"owls at night", "owls+at+night"},
        {"  owls   at night ", "owls+at+night"},
        {"what is c++?", "what+is+c%2B%2B%3F"},
        {"define: owl", "define%3A+owl"},
        {"rock & roll", "rock+%26+roll"},
        {"3.14", "3.14"},
        {"node .js", "node+.js"},
        {"owl@example.org", "owl%40example.org"},
        {"<b>owl</b>", "%3Cb%3Eowl%3C%2Fb%3E"},
        {"a..b", "a..b"},
        {".mp3", ".mp3"},
        {"?q=owls", "%3Fq%3Dowls"},
        {"red roses.example/x", "red+roses.example%2Fx"},
        {"k\xC3\xA4uzchen", "k%C3%A4uzchen"},
    };
    for (const auto& [typed, words] : cases) {
        EXPECT_EQ(Complete(typed), std::string("https://search.example/?q=") + words) << typed;
        EXPECT_EQ(OnRefusal(typed), "") << typed;
    }
}

TEST(AddressCompletion, WhatMeansNothingIsInvalid) {
    for (const char* typed : {"", "   ", "http://", "https://", "javascript:alert(1)", "JavaScript:alert(1)",
                              "javascript: alert(1)", "Q:\\nowhere"}) {
        EXPECT_EQ(Complete(typed), "") << typed;
    }
}

TEST(AddressCompletion, WithoutASearchServiceEverythingBareIsAHost) {
    const webengine::AddressRules rules{.to_native_path = &NativePath};

    EXPECT_EQ(webengine::CompleteAddress("intranet", rules).address, QUrl("http://intranet"));
    EXPECT_FALSE(webengine::CompleteAddress("no such thing", rules).address.isValid());
    EXPECT_FALSE(webengine::CompleteAddress("?q=owls", rules).address.isValid());
}

TEST(AddressCompletion, WithoutAConverterADrivePathMeansNothing) {
    EXPECT_FALSE(webengine::CompleteAddress("C:\\a.html", {}).address.isValid());
}

TEST(AddressCompletion, ARefusalIsAConnectionThatDoesNotComeAbout) {
    for (const int code : {-102, -107, -324, -7})
        EXPECT_TRUE(webengine::IsRefusal(code)) << code;
    // The name is not found; a certificate of another host, one that is too old, one of nobody.
    for (const int code : {-105, -200, -201, -202, 0, 404})
        EXPECT_FALSE(webengine::IsRefusal(code)) << code;
}

}  // namespace
