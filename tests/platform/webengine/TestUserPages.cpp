// What pages keep for their user, on the real engine.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QWidget>

#include "platform/webengine/EngineWorld.h"
#include "platform/webengine/SiteChoices.h"
#include "platform/webengine/UserFolder.h"

namespace {

using webengine_tests::Factory;
using webengine_tests::UsersFolder;
using webengine_tests::WaitFor;

class UserPages : public testing::Test {
protected:
    UserPages() {
        server.Pages["/in"] = {"<title>In</title>in",
                               "Content-Type: text/html\r\nSet-Cookie: who=me; Max-Age=3600\r\n"
                               "Set-Cookie: now=me\r\n"};
        server.Pages["/there"] = {"<title>There</title>there"};
        server.Pages["/store"] = {
            "<script>localStorage.setItem('who', 'me'); document.title = 'stored'</script>"};
        server.Pages["/read"] = {"<script>document.title = 'found ' + localStorage.getItem('who')</script>"};
        window.show();
        RemoveFolders();
    }
    ~UserPages() override {
        Factory().EndUser();
        RemoveFolders();
        Factory().BeginUser("owl", false);
    }

    bool Open(const char* path, const std::string& title) {
        ports::BrowserControl* page = Factory().MakePage(control, &window);
        if (page == nullptr) return false;
        page->Navigate(server.Address() + path);
        return WaitFor([&] { return page->LocationName() == title; });
    }
    /// The user's cookie went out with the last request.
    bool IsKnown() {
        EXPECT_TRUE(Open("/there", "There"));
        return server.LastRequest().contains("who=me");
    }
    static QStringList Files() {
        QStringList names;
        QDirIterator files(UsersFolder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext())
            names.push_back(files.next());
        return names;
    }
    static QString EngineOf(const char* user) {
        webengine::UserFolder folder(UsersFolder().toStdString());
        folder.Begin(user, true);
        return QString::fromStdString(folder.Engine());
    }

    webengine_tests::PageServer server;
    QWidget window;
    controls::WebBrowser control{"Browser"};

private:
    static void RemoveFolders() {
        const webengine::UserFolder folder(UsersFolder().toStdString());
        for (const char* user : {"Ann", "Bob"})
            folder.Remove(user);
    }
};

TEST_F(UserPages, WithNobodyLoggedInThereIsNoPage) {
    Factory().EndUser();

    EXPECT_EQ(Factory().MakePage(control, &window), nullptr);
}

TEST_F(UserPages, EachUserHasTheirOwnCookies) {
    Factory().BeginUser("Ann", true);
    ASSERT_TRUE(Open("/in", "In"));
    ASSERT_TRUE(IsKnown());

    Factory().EndUser();
    Factory().BeginUser("Bob", true);

    EXPECT_FALSE(IsKnown());
}

TEST_F(UserPages, AUserWhoComesBackIsKnownAndFindsWhatPagesStored) {
    Factory().BeginUser("Ann", true);
    ASSERT_TRUE(Open("/in", "In"));
    ASSERT_TRUE(Open("/store", "stored"));
    Factory().EndUser();
    Factory().BeginUser("Bob", true);
    ASSERT_FALSE(IsKnown());
    Factory().EndUser();

    Factory().BeginUser("Ann", true);

    EXPECT_TRUE(IsKnown());
    EXPECT_FALSE(server.LastRequest().contains("now=me")) << "a cookie of a session ends with it";
    EXPECT_TRUE(Open("/read", "found me"));
}

TEST_F(UserPages, OneWhoLogsInAgainAtOnceIsKnown) {
    Factory().BeginUser("Ann", true);
    ASSERT_TRUE(Open("/in", "In"));
    Factory().EndUser();

    Factory().BeginUser("Ann", true);

    EXPECT_TRUE(IsKnown());
}

TEST_F(UserPages, WithHistoryOffNothingIsWrittenAndWhatWasKeptIsGone) {
    Factory().BeginUser("Ann", true);
    ASSERT_TRUE(Open("/in", "In"));
    Factory().EndUser();
    ASSERT_FALSE(Files().isEmpty());

    Factory().BeginUser("Ann", false);

    EXPECT_FALSE(IsKnown());
    ASSERT_TRUE(Open("/in", "In"));
    EXPECT_TRUE(IsKnown()) << "for the time of the session";
    EXPECT_TRUE(Files().filter("engine-1/").isEmpty()) << Files().join(' ').toStdString();
    Factory().EndUser();
    Factory().BeginUser("Ann", true);
    EXPECT_FALSE(IsKnown());
}

TEST_F(UserPages, ForgottenVisitsAreGoneForGood) {
    Factory().BeginUser("Ann", true);
    ASSERT_TRUE(Open("/in", "In"));
    ASSERT_TRUE(Open("/store", "stored"));

    Factory().ForgetVisits();

    EXPECT_FALSE(IsKnown());
    EXPECT_TRUE(Open("/read", "found null"));
    ASSERT_TRUE(Open("/in", "In"));
    Factory().EndUser();
    Factory().BeginUser("Ann", true);
    EXPECT_TRUE(IsKnown()) << "what comes afterwards is kept again " << Files().join('\n').toStdString();
}

TEST_F(UserPages, ForgottenVisitsTakeTheSizesAndPermissionsOfSitesAlong) {
    Factory().BeginUser("Ann", true);
    ASSERT_TRUE(Open("/in", "In"));
    Factory().EndUser();
    const QString folder = QFileInfo(EngineOf("Ann")).path();
    {
        webengine::SiteChoices choices(folder);
        choices.SetZoom("owls.example", 1.5);
        choices.SetVerdict("https://owls.example", webengine::Ability::Place, webengine::Verdict::Allow);
        webengine::GeneralChoices general = choices.General();
        general.zoom = 1.25;
        choices.SetGeneral(general);
    }
    Factory().BeginUser("Ann", true);

    Factory().ForgetVisits();

    Factory().EndUser();
    const webengine::SiteChoices left(folder);
    EXPECT_TRUE(left.Zooms().empty());
    EXPECT_TRUE(left.Permissions().empty());
    EXPECT_EQ(left.General().zoom, 1.25) << "what was chosen in general stays";
}

TEST_F(UserPages, ADamagedProfileCostsWhatItHeldAndNotThePage) {
    Factory().BeginUser("Ann", true);
    ASSERT_TRUE(Open("/in", "In"));
    Factory().EndUser();
    ASSERT_FALSE(EngineOf("Ann").isEmpty()) << "by now the engine has closed its files";
    for (const QString& name : Files()) {
        // The engine may have mapped the one that was there.
        ASSERT_TRUE(QFile::remove(name));
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
    }

    Factory().BeginUser("Ann", true);

    EXPECT_FALSE(IsKnown());
    ASSERT_TRUE(Open("/in", "In"));
    ASSERT_TRUE(Open("/store", "stored"));
    Factory().EndUser();
    Factory().BeginUser("Ann", true);
    EXPECT_TRUE(IsKnown()) << "it is kept again";
}

TEST_F(UserPages, WhereNothingCanBeWrittenPagesWorkAllTheSame) {
    Factory().BeginUser("Ann", true);
    Factory().EndUser();
    ASSERT_TRUE(QFile::link(QStringLiteral("/proc"), UsersFolder() + QStringLiteral("/426f62")));

    Factory().BeginUser("Bob", true);

    ASSERT_TRUE(Open("/in", "In"));
    EXPECT_TRUE(IsKnown());
}

TEST_F(UserPages, NobodyElseCanLookIntoTheFolderAndNoVisitedLinksAreLeft) {
    Factory().BeginUser("Ann", true);
    ASSERT_TRUE(Open("/in", "In"));
    Factory().EndUser();

    struct stat found{};
    ASSERT_EQ(::stat(QFile::encodeName(UsersFolder()).constData(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777U, 0700U);
    EXPECT_TRUE(WaitFor([] { return Files().filter("Visited Links").isEmpty(); }));
    EXPECT_TRUE(EngineOf("Ann").startsWith(UsersFolder()));
}

TEST_F(UserPages, TheEngineWritesNowhereElse) {
    Factory().BeginUser("Ann", true);
    ASSERT_TRUE(Open("/in", "In"));
    Factory().EndUser();

    QStringList elsewhere;
    QDirIterator files(QDir::homePath(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = files.next();
        if (name.contains("WebEngine")) elsewhere.push_back(name);
    }
    EXPECT_TRUE(elsewhere.isEmpty()) << elsewhere.join(' ').toStdString();
}

}  // namespace
