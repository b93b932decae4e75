#include "window/Switchboard.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::string Source() {
    std::ifstream file(std::filesystem::path(BRINDLEPOST_SOURCE_DIR) / "window" / "Switchboard.h");
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

TEST(Switchboard, ARelayPassesEveryVerbOnAndDoesNothingElse) {
    const std::string source = Source();
    const std::regex verb(R"((\w+)\([^()]*\)(?: const)? override \{\s*([^}]*?)\s*\})");
    const std::regex passing(R"((?:return )?Answers\(\)\.(\w+)\([\w, ]*\);)");
    int verbs = 0;
    for (std::sregex_iterator found(source.begin(), source.end(), verb), end; found != end; ++found) {
        const std::string name = (*found)[1];
        const std::string body = (*found)[2];
        std::smatch passed;
        EXPECT_TRUE(std::regex_match(body, passed, passing) && passed[1] == name) << name << ": " << body;
        ++verbs;
    }

    EXPECT_GT(verbs, 20);
}

TEST(Switchboard, NoControlIsInReachOfARelay) {
    const std::string source = Source();

    EXPECT_EQ(source.find("#include \"controls/"), std::string::npos);
    EXPECT_EQ(source.find("controls::"), std::string::npos);
}

struct RecordingHistory final : roles::History {
    void AddSiteToHistory(roles::HistoryKind kind, std::string_view text) override {
        Log.push_back(std::string(TextOf(kind)).append(" ").append(text));
    }
    void DeleteHistory() override { Log.emplace_back("DeleteHistory"); }
    void PopulateHistory(roles::HistoryKind kind) override { Log.emplace_back(TextOf(kind)); }
    std::vector<std::string> Log;
};

TEST(Switchboard, AConnectedRelayAnswersAsItsSubjectDoes) {
    RecordingHistory answers;
    window::Switchboard relays;
    relays.history.Connect(answers);
    roles::History& history = relays.history;

    history.AddSiteToHistory(roles::HistoryKind::File, "C:\\a.txt");
    history.PopulateHistory(roles::HistoryKind::Msn);

    EXPECT_EQ(answers.Log, (std::vector<std::string>{"File C:\\a.txt", "MSN"}));
}

}  // namespace
