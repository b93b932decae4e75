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

std::string Complete(std::string_view typed) {
    return webengine::CompleteAddress(typed, &NativePath).toEncoded().toStdString();
}

TEST(AddressCompletion, WhatAPersonTypesBecomesAnAddress) {
    const std::pair<const char*, const char*> cases[] = {
        {"example.org", "http://example.org"},
        {"  example.org  ", "http://example.org"},
        {"www.example.org/a b?q=1#x", "http://www.example.org/a%20b?q=1#x"},
        {"https://example.org/", "https://example.org/"},
        {"HTTP://Example.ORG/A", "http://example.org/A"},
        {"localhost:8080", "http://localhost:8080"},
        {"localhost:8080/x", "http://localhost:8080/x"},
        {"127.0.0.1:8080/x", "http://127.0.0.1:8080/x"},
        {"127.0.0.1", "http://127.0.0.1"},
        {"[::1]:8080/x", "http://[::1]:8080/x"},
        {"intranet", "http://intranet"},
        {"b\xC3\xBC"
         "cher.example",
         "http://xn--bcher-kva.example"},
        {"brindlepost://start/?origin=x", "brindlepost://start/?origin=x"},
        {"about:blank", "about:blank"},
        {"/home/owl/a b.html", "file:///home/owl/a%20b.html"},
        {"/home/owl/50%.html", "file:///home/owl/50%25.html"},
        {"C:\\home\\owl\\a#1.html", "file:///home/owl/a%231.html"},
        {"C:/home/owl", "file:///home/owl"},
        {"file:///home/owl", "file:///home/owl"},
    };
    for (const auto& [typed, wanted] : cases) {
        EXPECT_EQ(Complete(typed), wanted) << typed;
    }
}

TEST(AddressCompletion, WhatMeansNothingIsInvalid) {
    for (const char* typed : {"", "   ", "http://", "https://", "no such thing", "javascript:alert(1)",
                              "JavaScript:alert(1)", "Q:\\nowhere", "?q=owls"}) {
        EXPECT_FALSE(webengine::CompleteAddress(typed, &NativePath).isValid()) << typed;
    }
}

TEST(AddressCompletion, WithoutAConverterADrivePathMeansNothing) {
    EXPECT_FALSE(webengine::CompleteAddress("C:\\a.html", nullptr).isValid());
}

}  // namespace
