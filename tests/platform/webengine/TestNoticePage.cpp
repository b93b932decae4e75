#include "platform/webengine/NoticePage.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "contracts/BrowserWorld.h"
#include "controls/WebBrowser.h"
#include "platform/webengine/EngineWorld.h"

namespace {

TEST(NoticePage, ItStandsInItsPlaceAndSaysWhy) {
    QWidget window;
    controls::WebBrowser control{"Browser"};
    webengine::NoticeFactory factory("no pages here");

    factory.MakePage(control, &window);

    const auto* notice = static_cast<webengine::Notice*>(window.findChild<QWidget*>("notice"));
    ASSERT_NE(notice, nullptr);
    EXPECT_EQ(notice->Words(), "no pages here");
}

TEST(NoticePage, WordsOfSeveralLinesHaveRoomForEachOfThem) {
    webengine::Notice notice(QString("many words ").repeated(30));
    notice.resize(900, 600);
    notice.show();

    const auto* words = notice.findChild<QLabel*>();

    EXPECT_GE(words->height(), words->heightForWidth(words->width()));
    EXPECT_GT(words->height(), 3 * words->fontMetrics().height());
}

TEST(NoticePage, AForgottenOneLeavesItsPlace) {
    QWidget window;
    controls::WebBrowser control{"Browser"};
    webengine::NoticeFactory factory("no pages here");
    factory.MakePage(control, &window);

    factory.ForgetVisits();

    EXPECT_EQ(window.findChild<QWidget*>("notice"), nullptr);
}

TEST(NoticePage, EveryAddressFailsLater) {
    QWidget window;
    controls::WebBrowser control{"Browser"};
    webengine::NoticeFactory factory("no pages here");
    ports::BrowserControl* page = factory.MakePage(control, &window);
    contracts::Listener heard(*page);
    page->SetListener(&heard);

    page->Navigate("http://one.example/");
    const bool at_once = !heard.Failed.empty();

    EXPECT_TRUE(webengine_tests::WaitFor([&] { return !heard.Failed.empty(); }));
    EXPECT_FALSE(at_once);
    EXPECT_EQ(page->LocationURL(), "");
}

TEST(NoticePage, AModuleThatIsNotThereGivesNotices) {
    const auto factory = webengine::LoadPages("/nowhere/at/all", {});
    QWidget window;
    controls::WebBrowser control{"Browser"};

    ASSERT_NE(factory->MakePage(control, &window), nullptr);

    EXPECT_NE(window.findChild<QWidget*>("notice"), nullptr);
}

TEST(NoticePage, RootIsToldToBecomeAnOrdinaryUser) {
    EXPECT_NE(webengine::WhyNoPages(true, false).find("ordinary user"), std::string::npos);
    EXPECT_NE(webengine::WhyNoPages(true, true).find("ordinary user"), std::string::npos);
}

TEST(NoticePage, ASystemWithoutUserNamespacesIsNamed) {
    EXPECT_NE(webengine::WhyNoPages(false, false).find("user namespaces"), std::string::npos);
}

TEST(NoticePage, OtherwiseThereIsNothingToTell) {
    EXPECT_EQ(webengine::WhyNoPages(false, true), "");
}

}  // namespace
