#include "platform/webengine/SettingsDesk.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <optional>

namespace {

using webengine::Ability;
using webengine::PageAnswer;
using webengine::PageRequest;
using webengine::Verdict;
using Kind = webengine::PageAnswer::Kind;

const QUrl kItself(QStringLiteral("brindlepost://settings"));

class SettingsDesk : public testing::Test {
protected:
    PageAnswer Ask(const PageRequest& request) {
        std::optional<PageAnswer> answer;
        desk.Answer(request, [&answer](const PageAnswer& given) { answer = given; });
        return answer.value_or(PageAnswer{.kind = Kind::Refused, .body = "no answer"});
    }
    PageAnswer Get(const char* path, const QUrl& initiator = {}) {
        return Ask({.address = QUrl(QStringLiteral("brindlepost://settings") + QLatin1String(path)),
                    .method = "GET",
                    .initiator = initiator});
    }
    QByteArray Token() {
        return Get("/").body.mid(6);  // behind "token="
    }
    PageAnswer Do(const char* query) {
        return Ask({.address = QUrl(QStringLiteral("brindlepost://settings/do?") + QLatin1String(query)),
                    .method = "POST",
                    .initiator = kItself,
                    .token = Token()});
    }
    static QJsonObject Json(const PageAnswer& answer) {
        return QJsonDocument::fromJson(answer.body).object();
    }

    webengine::SiteChoices choices;
    std::optional<webengine::SettingsErrands::Told> importing;
    webengine::SettingsDesk desk{
        choices,
        "token={{token}}",
        "script",
        {.import_favourites = [this](const auto& told) { importing = told; }, .export_favourites = {}}};
};

TEST_F(SettingsDesk, TheUserGetsThePageWithALongToken) {
    const PageAnswer page = Get("/");

    EXPECT_EQ(page.kind, Kind::Reply);
    EXPECT_EQ(page.type, "text/html");
    EXPECT_EQ(Token().size(), 64);
    EXPECT_EQ(Get("").kind, Kind::Reply);
    EXPECT_EQ(Get("/", QUrl(QStringLiteral("brindlepost://start"))).kind, Kind::Reply);
}

TEST_F(SettingsDesk, OtherSitesGetNothing) {
    for (const char* other : {"https://settings", "http://owl.example", "null", "file://"}) {
        for (const char* path : {"/", "/settings.js", "/do?what=state"})
            EXPECT_EQ(Get(path, QUrl(QString::fromLatin1(other))).kind, Kind::Refused) << other << path;
    }
}

TEST_F(SettingsDesk, AChangeNeedsItsOwnDocumentAPostAndTheToken) {
    const PageRequest right{.address = QUrl(QStringLiteral("brindlepost://settings/do?what=zoom&value=2")),
                            .method = "POST",
                            .initiator = kItself,
                            .token = Token()};
    std::vector<PageRequest> wrong(7, right);
    wrong[0].method = "GET";
    wrong[1].initiator = QUrl();
    wrong[2].initiator = QUrl(QStringLiteral("https://owl.example"));
    wrong[3].initiator = QUrl(QStringLiteral("brindlepost://start"));
    wrong[4].token = QByteArray();
    wrong[5].token[3] = wrong[5].token[3] == 'a' ? 'b' : 'a';
    wrong[6].token += "0";
    for (const PageRequest& request : wrong)
        EXPECT_EQ(Ask(request).kind, Kind::Refused);
    EXPECT_DOUBLE_EQ(choices.General().zoom, 1.0);

    EXPECT_EQ(Ask(right).kind, Kind::Reply);

    EXPECT_DOUBLE_EQ(choices.General().zoom, 2.0);
}

TEST_F(SettingsDesk, TheStateIsAllThatWasChosen) {
    choices.SetGeneral({.zoom = 1.5, .https_first = false});
    choices.SetZoom(QStringLiteral("owl.example"), 2);
    choices.SetVerdict(QStringLiteral("https://lark.example"), Ability::Camera, Verdict::Deny);

    const QJsonObject state = Json(Do("what=state"));

    EXPECT_DOUBLE_EQ(state.value(QLatin1String("zoom")).toDouble(), 1.5);
    EXPECT_FALSE(state.value(QLatin1String("https_first")).toBool(true));
    EXPECT_TRUE(state.value(QLatin1String("can_import")).toBool());
    EXPECT_FALSE(state.value(QLatin1String("can_export")).toBool(true));
    EXPECT_FALSE(state.value(QLatin1String("engines")).toArray().isEmpty());
    const QJsonArray sites = state.value(QLatin1String("sites")).toArray();
    ASSERT_EQ(sites.size(), 2);
    EXPECT_EQ(sites[0][QLatin1String("site")].toString(), QStringLiteral("https://lark.example"));
    EXPECT_FALSE(sites[0][QLatin1String("allowed")].toBool(true));
    EXPECT_DOUBLE_EQ(sites[1][QLatin1String("zoom")].toDouble(), 2);
}

TEST_F(SettingsDesk, EverySwitchSwitches) {
    for (const char* name : {"https_first", "keep_site_data", "keep_cache", "spell_check", "notifications"}) {
        const QByteArray off = QByteArray("what=") + name + "&value=false";
        EXPECT_FALSE(Json(Do(off)).value(QLatin1String(name)).toBool(true)) << name;
        const QByteArray on = QByteArray("what=") + name + "&value=true";
        EXPECT_TRUE(Json(Do(on)).value(QLatin1String(name)).toBool(false)) << name;
    }
}

TEST_F(SettingsDesk, AKnownSearchEngineIsChosen) {
    EXPECT_EQ(Do("what=search_engine&value=mojeek").kind, Kind::Reply);
    EXPECT_EQ(choices.General().search_engine, QStringLiteral("mojeek"));
    EXPECT_EQ(Do("what=search_engine&value=teeth").kind, Kind::NotFound);
    EXPECT_EQ(choices.General().search_engine, QStringLiteral("mojeek"));

    EXPECT_EQ(Do("what=search_engine&value=").kind, Kind::Reply);

    EXPECT_EQ(choices.General().search_engine, QString());
}

TEST_F(SettingsDesk, SitesAreForgottenOneByOneAndAllTogether) {
    choices.SetZoom(QStringLiteral("owl.example"), 2);
    choices.SetZoom(QStringLiteral("wren.example"), 2);
    choices.SetVerdict(QStringLiteral("https://lark.example"), Ability::Camera, Verdict::Allow);
    Do("what=forget_zoom&of=owl.example");
    Do("what=forget_permission&of=https%3A%2F%2Flark.example&value=camera");
    EXPECT_EQ(choices.Zooms().size(), 1u);
    EXPECT_TRUE(choices.Permissions().empty());

    Do("what=forget_sites");

    EXPECT_TRUE(choices.Zooms().empty());
}

TEST_F(SettingsDesk, WhatMakesNoSenseChangesNothing) {
    for (const char* query : {"what=teeth&value=1", "what=zoom&value=wide", "what=", "",
                              "what=forget_permission&of=https://lark.example&value=teeth", "what=export"})
        EXPECT_EQ(Do(query).kind, Kind::NotFound) << query;
    EXPECT_EQ(Get("/secret").kind, Kind::NotFound);
    EXPECT_EQ(choices.General(), webengine::GeneralChoices());
}

TEST_F(SettingsDesk, AnErrandIsAnsweredWhenItIsDone) {
    std::optional<PageAnswer> answer;
    desk.Answer({.address = QUrl(QStringLiteral("brindlepost://settings/do?what=import")),
                 .method = "POST",
                 .initiator = kItself,
                 .token = Token()},
                [&answer](const PageAnswer& given) { answer = given; });
    ASSERT_TRUE(importing.has_value());
    EXPECT_FALSE(answer.has_value());

    (*importing)(QStringLiteral("3 favourites came in."));

    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(Json(*answer).value(QLatin1String("words")).toString(),
              QStringLiteral("3 favourites came in."));
}

}  // namespace
