#include "platform/webengine/SiteQuestions.h"

#include <gtest/gtest.h>

#include <QLabel>

namespace {

using webengine::Ability;
using webengine::PageBar;
using webengine::PageBars;
using webengine::SiteChoices;
using webengine::SiteQuestions;
using webengine::Verdict;

const QUrl kOwl(QStringLiteral("https://owl.example/"));
const QUrl kLark(QStringLiteral("https://lark.example/"));

class Questions : public testing::Test {
protected:
    Questions() {
        bars.SetPage(new QWidget(&bars));
        questions.SetDocument(kOwl);
    }
    SiteQuestions::Answer Hear() {
        return [this](Verdict verdict) { heard.push_back(verdict); };
    }
    PageBar* Bar() const { return bars.Bar(QLatin1String(webengine::kQuestionBar)); }
    static void Press(PageBar& bar, int button) {
        bar.Button(button)->setEnabled(true);  // past the half second in which a click grants nothing
        bar.Button(button)->click();
    }

    QWidget window;
    PageBars bars{&window};
    SiteChoices choices;
    bool seen = true;
    SiteQuestions questions{choices, [this] { return seen ? &bars : nullptr; }};
    std::vector<Verdict> heard;
};

TEST_F(Questions, ASiteIsAllowedAndThatIsRemembered) {
    questions.Put(kOwl, Ability::Place, Hear());
    ASSERT_NE(Bar(), nullptr);
    EXPECT_EQ(Bar()->Words(), QStringLiteral("owl.example wants to know where you are."));
    EXPECT_FALSE(Bar()->Button(0)->isEnabled());
    EXPECT_TRUE(heard.empty());

    Press(*Bar(), 0);

    EXPECT_EQ(heard, std::vector{Verdict::Allow});
    EXPECT_EQ(choices.VerdictOn(QStringLiteral("https://owl.example"), Ability::Place), Verdict::Allow);
    EXPECT_EQ(Bar(), nullptr);
    questions.Put(kOwl, Ability::Place, Hear());
    EXPECT_EQ(heard.size(), 2u);
    EXPECT_EQ(Bar(), nullptr);
}

TEST_F(Questions, ASiteIsBlockedAndThatIsRemembered) {
    questions.Put(kOwl, Ability::Camera, Hear());

    Press(*Bar(), 1);
    questions.Put(kOwl, Ability::Camera, Hear());

    EXPECT_EQ(heard, (std::vector{Verdict::Deny, Verdict::Deny}));
    EXPECT_EQ(Bar(), nullptr);
}

TEST_F(Questions, TheCrossIsNotNowUntilTheUserSendsThePageSomewhere) {
    questions.Put(kOwl, Ability::Place, Hear());
    Bar()->Close();
    questions.Put(kOwl, Ability::Place, Hear());
    EXPECT_EQ(heard, (std::vector{Verdict::Ask, Verdict::Ask}));
    EXPECT_EQ(Bar(), nullptr);
    EXPECT_TRUE(choices.Permissions().empty());

    questions.Renew();
    questions.Put(kOwl, Ability::Place, Hear());

    EXPECT_NE(Bar(), nullptr);
}

TEST_F(Questions, AFloodIsOneBar) {
    for (int i = 0; i < 500; ++i) {
        for (const Ability ability : webengine::kAbilities)
            questions.Put(kOwl, ability, Hear());
    }
    EXPECT_EQ(bars.findChildren<QWidget*>(QStringLiteral("bar question")).size(), 1);

    for (std::size_t i = 0; i < std::size(webengine::kAbilities); ++i) {
        ASSERT_NE(Bar(), nullptr) << i;
        Press(*Bar(), 1);
    }

    EXPECT_EQ(Bar(), nullptr);
    EXPECT_EQ(heard.size(), 500 * std::size(webengine::kAbilities));
}

TEST_F(Questions, OnlyEncryptedPagesAreHeard) {
    questions.SetDocument(QUrl(QStringLiteral("http://owl.example/")));

    questions.Put(QUrl(QStringLiteral("http://owl.example/")), Ability::Place, Hear());

    EXPECT_EQ(heard, std::vector{Verdict::Ask});
    EXPECT_EQ(Bar(), nullptr);
}

TEST_F(Questions, AFrameOfAnotherSiteIsNotHeardEvenWhereItIsAllowed) {
    choices.SetVerdict(webengine::OriginOf(kLark), Ability::Place, Verdict::Allow);

    questions.Put(kLark, Ability::Place, Hear());

    EXPECT_EQ(heard, std::vector{Verdict::Ask});
    EXPECT_EQ(Bar(), nullptr);
}

TEST_F(Questions, AnUnseenPageAsksNothing) {
    seen = false;

    questions.Put(kOwl, Ability::Place, Hear());

    EXPECT_EQ(heard, std::vector{Verdict::Ask});
    EXPECT_EQ(Bar(), nullptr);
}

TEST_F(Questions, AnotherSitesDocumentTakesTheQuestionsAway) {
    questions.Put(kOwl, Ability::Place, Hear());
    questions.Put(kOwl, Ability::Camera, Hear());

    questions.SetDocument(kLark);

    EXPECT_EQ(heard, (std::vector{Verdict::Ask, Verdict::Ask}));
    EXPECT_EQ(Bar(), nullptr);
}

TEST_F(Questions, APageThatGoesToAndFroStops) {
    int bars_seen = 0;
    for (int i = 0; i < 100; ++i) {
        questions.SetDocument(i % 2 == 0 ? kOwl : kLark);
        questions.Put(i % 2 == 0 ? kOwl : kLark, Ability::Place, Hear());
        if (Bar() != nullptr) ++bars_seen;
    }

    EXPECT_EQ(bars_seen, webengine::kMostQuestions);
}

TEST_F(Questions, ASiteThatOpensTooManyWindowsIsAskedAbout) {
    EXPECT_FALSE(questions.MayOpenWindows());
    questions.OnWindowRefused();
    ASSERT_NE(Bar(), nullptr);
    EXPECT_EQ(Bar()->Words(), QStringLiteral("owl.example wants to open many windows."));

    Press(*Bar(), 0);

    EXPECT_TRUE(questions.MayOpenWindows());
    questions.SetDocument(kLark);
    EXPECT_FALSE(questions.MayOpenWindows());
}

TEST_F(Questions, ALongNameIsCutAndItsEndIsSeen) {
    const QUrl site(QStringLiteral("https://") + QString(60, QLatin1Char('a')) + QStringLiteral(".") +
                    QString(60, QLatin1Char('b')) + QStringLiteral(".owl.example/"));
    questions.SetDocument(site);

    questions.Put(site, Ability::Place, Hear());

    ASSERT_NE(Bar(), nullptr);
    EXPECT_TRUE(Bar()->Words().contains(QStringLiteral("owl.example wants to know")));
    EXPECT_LT(Bar()->Words().size(), 130);
}

}  // namespace
