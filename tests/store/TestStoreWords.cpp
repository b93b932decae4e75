#include "store/StoreWords.h"

#include <gtest/gtest.h>

namespace {

using ports::DatabaseError;

TEST(StoreWords, ANewerStoreIsToldWithBothVersions) {
    EXPECT_EQ(store::NewerStoreMessage("dbFavs.mdb", 3, 1, {}),
              "The file \"dbFavs.mdb\" belongs to a newer version of Brindlepost: it is version 3, and this "
              "program "
              "knows version 1.\nNothing was changed. Please start the newer program again.");
}

TEST(StoreWords, ACopyThatFitsIsNamed) {
    EXPECT_TRUE(store::NewerStoreMessage("dbFavs.mdb", 3, 1, "dbFavs.mdb.version-1")
                    .ends_with("\nA copy from before, which this program can open, is kept beside it as "
                               "\"dbFavs.mdb.version-1\"."));
}

TEST(StoreWords, AnOlderStoreIsToldWithTheReason) {
    EXPECT_EQ(store::OlderStoreMessage("dbMedia.mdb", {DatabaseError::DiskFull, "database or disk is full"}),
              "The file \"dbMedia.mdb\" is of an older version of Brindlepost and can not be brought up to "
              "this one: "
              "the disk is full.\nThe file was left as it is.");
}

TEST(StoreWords, TheEnginesOwnWordsAreAddedWhereTheReasonSaysLittle) {
    EXPECT_EQ(store::OlderStoreMessage("dbMedia.mdb", {DatabaseError::InputOutput, "disk I/O error"}),
              "The file \"dbMedia.mdb\" is of an older version of Brindlepost and can not be brought up to "
              "this one: "
              "the disk or the system reported an error.\n(disk I/O error)\nThe file was left as it is.");
}

}  // namespace
