#include "platform/webengine/LoadFailure.h"

#include <gtest/gtest.h>

namespace {

std::string Words(const char* address, int code) {
    return webengine::WordsOfFailure(QUrl(QString::fromLatin1(address)), code).toStdString();
}

TEST(LoadFailure, TheHostIsNamed) {
    EXPECT_EQ(Words("https://owl.example/a", -105), "owl.example was not found. Is the name right?");
    EXPECT_EQ(Words("https://owl.example/a", -102), "owl.example refused the connection.");
    EXPECT_EQ(Words("https://owl.example/a", -118), "owl.example took too long to answer.");
    EXPECT_EQ(Words("https://owl.example/a", -106), "There is no connection to the network.");
    EXPECT_EQ(Words("https://owl.example/a", -201),
              "The certificate of owl.example is not valid today: it has expired or begins later.");
}

TEST(LoadFailure, ACodeThatHasNoWordsIsSaidAsItsNumber) {
    EXPECT_EQ(Words("https://owl.example/", -999), "The page could not be loaded (error 999).");
    EXPECT_EQ(Words("https://owl.example/", -219), "The certificate of owl.example is not valid.");
}

TEST(LoadFailure, AnAddressWithoutAHostIsTheServer) {
    EXPECT_EQ(Words("file:///a", -102), "The server refused the connection.");
}

TEST(LoadFailure, CertificateCodesAreKnown) {
    EXPECT_TRUE(webengine::IsCertificateFailure(-200));
    EXPECT_TRUE(webengine::IsCertificateFailure(-150));
    EXPECT_FALSE(webengine::IsCertificateFailure(-107));
    EXPECT_FALSE(webengine::IsCertificateFailure(-300));
}

}  // namespace
