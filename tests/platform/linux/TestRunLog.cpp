#include "platform/linux/RunLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "platform/linux/Bench.h"

namespace {

namespace fs = std::filesystem;
using End = linux::RunLog::LastRun::End;
using linux::RunLog;
using linux_tests::PlayFolder;

class RunLogTest : public testing::Test {
protected:
    std::string Folder() const { return state / "brindlepost"; }
    std::vector<std::string> Files() const {
        std::vector<std::string> files;
        for (const auto& entry : fs::directory_iterator(Folder()))
            files.push_back(entry.path().string());
        std::sort(files.begin(), files.end());
        return files;
    }
    static std::string Text(const std::string& file) {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    std::string Newest() const { return Text(Files().back()); }
    End LastEnd() const { return RunLog(state.Path(), "/app").Last().end; }

    PlayFolder state;
};

TEST_F(RunLogTest, FolderAndFilesAreTheUsersAlone) {
    const RunLog log(state.Path(), "/app");

    EXPECT_EQ(fs::status(Folder()).permissions(), fs::perms(0700));
    EXPECT_EQ(fs::status(Files().front()).permissions(), fs::perms(0600));
}

TEST_F(RunLogTest, NotesAndMessagesStandThereWithATimeAndWithoutNames) {
    RunLog log(state.Path(), "/app");
    RunLog::Note("pages begin");
    RunLog::TakeMessage("js: failed at https://bank.example/");
    log.End(0);

    std::istringstream lines(Newest());
    std::vector<std::string> words;
    for (std::string line; std::getline(lines, line);) {
        ASSERT_GT(line.size(), 13U);
        EXPECT_EQ(line[2], ':');
        EXPECT_EQ(line[8], '.');
        words.push_back(line.substr(13));
    }
    EXPECT_EQ(words,
              (std::vector<std::string>{"- pages begin", "| js: failed at [...]", "ended with code 0"}));
}

TEST_F(RunLogTest, TheFirstRunKnowsOfNone) {
    EXPECT_EQ(LastEnd(), End::None);
}

TEST_F(RunLogTest, ARunThatEndedIsInOrder) {
    RunLog(state.Path(), "/app").End(0);

    EXPECT_EQ(LastEnd(), End::InOrder);
}

TEST_F(RunLogTest, ARunWithoutALastLineDidNotEndInOrder) {
    {
        const RunLog killed(state.Path(), "/app");
    }

    EXPECT_EQ(LastEnd(), End::Unknown);
}

TEST_F(RunLogTest, ACrashIsKnownByItsReportAndToldToTheNextRunAlone) {
    {
        const RunLog crashed(state.Path(), "/app");
    }
    const std::string report = Files().front();
    std::ofstream(report, std::ios::app) << RunLog::kCrash << "SIGSEGV in thread x\n  libx.so+0x1\n";
    {
        RunLog next(state.Path(), "/app");
        EXPECT_EQ(next.Last().end, End::Crashed);
        EXPECT_EQ(next.Last().file, report);
        next.End(0);
    }

    EXPECT_EQ(LastEnd(), End::InOrder);
}

TEST_F(RunLogTest, WhatAMessageSaysIsNoCrashAndNoEnd) {
    {
        const RunLog killed(state.Path(), "/app");
        RunLog::TakeMessage("CRASH SIGSEGV in thread x");
        RunLog::TakeMessage("x\nCRASH SIGSEGV in thread x");
        RunLog::TakeMessage(" ended with code 0");
    }

    EXPECT_EQ(LastEnd(), End::Unknown);
}

TEST_F(RunLogTest, RunsOnOtherStoresAreNotThisOnesLast) {
    {
        const RunLog other(state.Path(), "/elsewhere");
    }

    EXPECT_EQ(LastEnd(), End::None);
}

TEST_F(RunLogTest, OnlyTheLastRunsAreKept) {
    for (int i = 0; i < RunLog::kFilesKept + 5; ++i)
        RunLog(state.Path(), "/app").End(i);

    EXPECT_EQ(Files().size(), static_cast<std::size_t>(RunLog::kFilesKept));
    EXPECT_NE(Newest().find("code 14"), std::string::npos);
}

TEST_F(RunLogTest, ARunThatGoesOnKeepsItsFile) {
    const RunLog running(state.Path(), "/elsewhere");
    const std::string file = Files().front();
    for (int i = 0; i < RunLog::kFilesKept + 5; ++i)
        RunLog(state.Path(), "/app").End(0);

    EXPECT_TRUE(fs::exists(file));
}

TEST_F(RunLogTest, AFloodOfMessagesIsBounded) {
    RunLog log(state.Path(), "/app");
    for (int i = 0; i < 20'000; ++i)
        RunLog::TakeMessage("the same thing again and again");
    RunLog::Note("still here");
    log.End(0);

    EXPECT_LT(fs::file_size(Files().front()), 2 * RunLog::kMostBytes);
    const std::string text = Newest();
    EXPECT_EQ(text.find("more messages are left out"), text.rfind("more messages are left out"));
    EXPECT_NE(text.find("more messages are left out"), std::string::npos);
    EXPECT_NE(text.find("still here"), std::string::npos);
    EXPECT_NE(text.find("ended with code"), std::string::npos);
}

TEST_F(RunLogTest, WhereNothingMayBeWrittenNothingIsKept) {
    state.Write("brindlepost", "a file stands here");
    RunLog log(state.Path(), "/app");
    RunLog::Note("lost");
    log.End(0);

    EXPECT_EQ(log.Number(), -1);
    EXPECT_EQ(log.Last().end, End::None);
    EXPECT_EQ(RunLog("", "/app").Number(), -1);
}

}  // namespace
