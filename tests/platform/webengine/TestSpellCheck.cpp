#include "platform/webengine/SpellCheck.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

using webengine::DictionariesFor;
using webengine::DictionaryFolder;

class SpellCheck : public testing::Test {
protected:
    void Put(const char* name) const {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir folder;
};

TEST_F(SpellCheck, TheFirstFolderWithADictionaryCounts) {
    const QTemporaryDir empty;
    Put("en_US.bdic");

    EXPECT_EQ(DictionaryFolder({"/nowhere/at/all", empty.path(), folder.path()}), folder.path());
    EXPECT_EQ(DictionaryFolder({"/nowhere/at/all", empty.path()}), QString());
}

TEST_F(SpellCheck, TheUsersLanguagesAreFoundHoweverTheyAreWritten) {
    for (const char* name : {"de_DE.bdic", "en-GB.bdic", "en_US.bdic", "fr.bdic", "notes.txt"})
        Put(name);

    EXPECT_EQ(DictionariesFor(folder.path(), {"en-US", "en"}), QStringList({"en_US", "en-GB"}));
    EXPECT_EQ(DictionariesFor(folder.path(), {"de-AT", "fr-FR"}), QStringList({"de_DE", "fr"}));
    EXPECT_EQ(DictionariesFor(folder.path(), {"fi-FI", "C"}), QStringList());
    EXPECT_EQ(DictionariesFor({}, {"en-US"}), QStringList());
}

}  // namespace
