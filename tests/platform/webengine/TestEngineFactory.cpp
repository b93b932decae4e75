#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QOpenGLContext>

#include "platform/webengine/EngineWorld.h"

namespace {

using webengine_tests::WaitFor;

/// Two users, one after the other, on one site.
class EngineFactory : public testing::Test {
protected:
    EngineFactory() {
        server.Pages["/in"] = {"<title>In</title>in",
                               "Content-Type: text/html\r\nSet-Cookie: who=ann; Max-Age=3600\r\n"};
        server.Pages["/there"] = {"<title>There</title>there"};
        server.Pages["/beat"] = {"beat"};
        server.Pages["/store"] = {
            "<title>Store</title><script>localStorage.setItem('who', 'ann');"
            "document.title = 'stored'</script>"};
        server.Pages["/read"] = {"<script>document.title = 'found ' + localStorage.getItem('who')</script>"};
        server.Pages["/alive"] = {
            "<title>Alive</title><script>setInterval(() => fetch('/beat'), 20)</script>"};
        window.show();
    }

    /// A page that a user opens, until it has arrived under a title.
    bool Open(const char* path, const std::string& title) {
        page = webengine_tests::Factory().MakePage(control, &window);
        page->Navigate(server.Address() + path);
        return WaitFor([&] { return page->LocationName() == title; });
    }

    webengine_tests::PageServer server;
    QWidget window;
    controls::WebBrowser control{"Browser"};
    ports::BrowserControl* page = nullptr;
};

TEST_F(EngineFactory, TheNextUserHasNoCookieOfTheOneBefore) {
    ASSERT_TRUE(Open("/in", "In"));
    ASSERT_TRUE(Open("/there", "There"));
    ASSERT_TRUE(server.LastRequest().contains("who=ann")) << "the same user is known";

    webengine_tests::Factory().ForgetVisits();

    ASSERT_TRUE(Open("/there", "There"));
    EXPECT_FALSE(server.LastRequest().contains("who=ann"));
}

TEST_F(EngineFactory, TheNextUserFindsNothingThatPagesStored) {
    ASSERT_TRUE(Open("/store", "stored"));
    ASSERT_TRUE(Open("/read", "found ann"));

    webengine_tests::Factory().ForgetVisits();

    EXPECT_TRUE(Open("/read", "found null"));
}

TEST_F(EngineFactory, PagesThatNobodyCanCloseAnyMoreGoWithTheirUser) {
    ASSERT_TRUE(Open("/alive", "Alive"));
    ASSERT_TRUE(WaitFor([&] { return server.Asked("/beat") > 2; }));

    webengine_tests::Factory().ForgetVisits();

    ASSERT_TRUE(Open("/there", "There"));
    const int beats = server.Asked("/beat");
    ASSERT_TRUE(Open("/in", "In"));
    EXPECT_EQ(server.Asked("/beat"), beats);
    EXPECT_TRUE(Open("/there", "There"));
    EXPECT_TRUE(server.LastRequest().contains("who=ann")) << "cookies work again";
}

TEST(PageModule, TellsTheEnginesVersionAndPatchLevel) {
    const std::string version = webengine::EngineVersion(BRINDLEPOST_PAGES_DIR);

    EXPECT_EQ(version.find("Qt WebEngine 6."), 0U) << version;
    EXPECT_NE(version.find(", Chromium "), std::string::npos) << version;
    EXPECT_NE(version.find(", security patches up to "), std::string::npos) << version;
    EXPECT_EQ(webengine::EngineVersion("/nowhere"), "");
}

// As the engine is loaded it looks for the context, and says so where there is none.
TEST(PageModule, HasAContextToShareAsSoonAsItIsLoadedWithoutAWordOfTheToolkit) {
    static std::string said;
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
            said += message.toStdString() + "\n";
        });
    const std::string version = webengine::EngineVersion(BRINDLEPOST_PAGES_DIR);
    qWarning("after it");
    qInstallMessageHandler(before);

    ASSERT_FALSE(version.empty());
    EXPECT_EQ(said.find("AA_ShareOpenGLContexts"), std::string::npos) << said;
    EXPECT_NE(said.find("after it"), std::string::npos) << "warnings are told again";
    EXPECT_NE(QOpenGLContext::globalShareContext(), nullptr);
    EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts));
}

}  // namespace
