#include <gtest/gtest.h>

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "platform/webengine/EngineWorld.h"

namespace {

using webengine_tests::EngineWorld;
using webengine_tests::WaitFor;

constexpr const char* kToDisk = "Content-Type: application/octet-stream\r\n";

class Downloads : public testing::Test {
protected:
    Downloads() {
        world.Browser().SetListener(&heard);
        webengine_tests::Intake().clear();
        Clean();
    }
    ~Downloads() override {
        world.Browser().SetListener(nullptr);
        webengine_tests::Factory().ForgetVisits();
        Clean();
    }

    void Clean() {
        for (const QFileInfo& file : folder.entryInfoList(QDir::Files | QDir::Hidden))
            QFile::remove(file.filePath());
    }
    /// The window of the list, brought up.
    static QWidget* List() {
        webengine_tests::Factory().ShowDownloads();
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "downloads" && window->isVisible()) return window;
        return nullptr;
    }
    /// The texts of a list's rows: its name and what is said of it.
    static QStringList Rows() {
        QStringList rows;
        for (const QWidget* row : List()->findChildren<QWidget*>("download"))
            if (row->isVisible()) rows << row->accessibleName();
        return rows;
    }
    /// A button of a row, by its words and the download's name; of a bar, by its words.
    static QPushButton* Button(const QWidget* in, const QString& name) {
        for (QPushButton* button : in->findChildren<QPushButton*>())
            if (button->accessibleName() == name && button->isVisible() && button->isEnabled()) return button;
        return nullptr;
    }
    static bool Press(const QString& name) {
        QWidget* const list = List();
        if (!WaitFor([&] { return Button(list, name) != nullptr; })) return false;
        Button(list, name)->click();
        return true;
    }
    bool PressOnPage(const QString& name) {
        if (!WaitFor([&] { return Button(&world.Window(), name) != nullptr; })) return false;
        Button(&world.Window(), name)->click();
        return true;
    }
    bool HasRow(const QString& row) {
        return WaitFor([&] { return Rows().contains(row); });
    }
    bool SeesOnPage(const QString& words) {
        const auto labels = [&] { return world.Window().findChildren<QLabel*>(); };
        return WaitFor([&] {
            const auto found = labels();
            return std::any_of(found.begin(), found.end(), [&](const QLabel* label) {
                return label->text().contains(words) && label->isVisible();
            });
        });
    }

    bool Arrive(const std::string& address) {
        const std::size_t before = heard.Completed.size();
        world.Browser().Navigate(address);
        return WaitFor([&] { return heard.Completed.size() > before && !world.Browser().Busy(); });
    }
    void Serve(const char* path, const QByteArray& body) { world.Server().Pages[path] = {body}; }
    void ServeToDisk(const char* path, const QByteArray& body) {
        world.Server().Pages[path] = {body, kToDisk};
    }
    QStringList Files() const { return folder.entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QByteArray TextOf(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    EngineWorld world;
    contracts::Listener heard{world.Browser()};
    QDir folder{webengine_tests::DownloadFolder()};
};

TEST_F(Downloads, TwoOfOneNameAtTheSameTimeAreTwoFiles) {
    ServeToDisk("/a/same.bin", "first");
    ServeToDisk("/b/same.bin", "second");
    Serve("/both",
          "<title>Both</title><a href=/a/same.bin download></a><a href=/b/same.bin download></a>"
          "<script>for (const a of document.links) a.click()</script>");

    ASSERT_TRUE(Arrive(world.Site + "/both"));

    ASSERT_TRUE(WaitFor(
        [&] { return world.Server().Asked("/a/same.bin") + world.Server().Asked("/b/same.bin") == 2; }));
    EXPECT_TRUE(WaitFor([&] { return Files() == QStringList({"same (1).bin", "same.bin"}); }))
        << Files().join(' ').toStdString();
    QList<QByteArray> texts{TextOf("same.bin"), TextOf("same (1).bin")};
    std::sort(texts.begin(), texts.end());
    EXPECT_EQ(texts, (QList<QByteArray>{"first", "second"}));
}

TEST_F(Downloads, APageSavesOnlyAFewFilesWithoutAClick) {
    ServeToDisk("/file.bin", "words");
    Serve("/flood",
          "<title>Flood</title><script>let n = 0; const timer = setInterval(() => {"
          "const a = document.createElement('a'); a.href = '/file.bin?' + n; a.download = 'f' + n + '.bin'; "
          "a.click();"
          "if (++n === 12) { clearInterval(timer); document.title = 'Over'; } }, 40)</script>");
    for (int i = 0; i < 12; ++i)
        ServeToDisk(("/file.bin?" + std::to_string(i)).c_str(), "words");

    ASSERT_TRUE(Arrive(world.Site + "/flood"));
    ASSERT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Over" && Files().size() >= 3; }));
    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    EXPECT_EQ(Files().size(), 3) << Files().join(' ').toStdString();
}

TEST_F(Downloads, WhatAPageWasRefusedBeginsWhenTheUserAllowsIt) {
    Serve("/many",
          "<title>Many</title><a href=/1.bin download></a><a href=/2.bin download></a><a href=/3.bin "
          "download></a>"
          "<a href=/4.bin download></a><a href=/5.bin download></a>"
          "<script>let i = 0; const t = setInterval(() => { document.links[i].click();"
          "if (++i === 5) { clearInterval(t); document.title = 'Over'; } }, 60)</script>");
    for (const char* path : {"/1.bin", "/2.bin", "/3.bin", "/4.bin", "/5.bin"})
        ServeToDisk(path, "words");
    ASSERT_TRUE(Arrive(world.Site + "/many"));
    ASSERT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Over" && Files().size() == 3; }));

    ASSERT_TRUE(PressOnPage("Save them"));

    EXPECT_TRUE(WaitFor([&] {
        return Files() == QStringList({"1.bin", "2.bin", "3.bin", "4.bin", "5.bin"});
    })) << Files().join(' ').toStdString();
}

TEST_F(Downloads, AClickInThePageGivesItAFewAgain) {
    Serve("/few",
          "<title>Few</title><script>let n = 0; const save = () => { const a = document.createElement('a');"
          "a.href = '/f' + n++ + '.bin'; a.download = ''; a.click() };"
          "const timer = setInterval(() => { save(); if (n === 4) { clearInterval(timer); document.title = "
          "'Over' "
          "} }, 60); onmousedown = () => { save(); document.title = 'Pressed' }</script>");
    for (const char* path : {"/f0.bin", "/f1.bin", "/f2.bin", "/f3.bin", "/f4.bin"})
        ServeToDisk(path, "words");
    ASSERT_TRUE(Arrive(world.Site + "/few"));
    ASSERT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Over"; }));
    ASSERT_TRUE(SeesOnPage("This page tries to save more files"));
    ASSERT_EQ(Files(), QStringList({"f0.bin", "f1.bin", "f2.bin"}));

    ASSERT_TRUE(WaitFor([&] { return world.PressInPage() && world.Browser().LocationName() == "Pressed"; }));

    EXPECT_TRUE(WaitFor([&] { return Files().contains("f4.bin"); })) << Files().join(' ').toStdString();
}

TEST_F(Downloads, OneIsShownSelectedInItsFolder) {
    ServeToDisk("/owl.zip", "words");
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    world.Browser().Navigate(world.Site + "/owl.zip");
    ASSERT_TRUE(HasRow("owl.zip, 5 bytes, from 127.0.0.1"));

    ASSERT_TRUE(Press("Show in folder owl.zip"));

    EXPECT_EQ(webengine_tests::Intake(),
              std::vector<std::string>{"show " + folder.filePath("owl.zip").toStdString()});
}

TEST_F(Downloads, OneThatIsDoneIsInTheListAndOnThePage) {
    ServeToDisk("/owl.zip", "0123456789");
    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    world.Browser().Navigate(world.Site + "/owl.zip");

    EXPECT_TRUE(SeesOnPage("owl.zip is saved."));
    EXPECT_TRUE(HasRow("owl.zip, 10 bytes, from 127.0.0.1")) << Rows().join('|').toStdString();
}

TEST_F(Downloads, ADangerousKindIsKeptOnlyWhenTheUserSaysSo) {
    ServeToDisk("/owl.desktop", "[Desktop Entry]");
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    world.Browser().Navigate(world.Site + "/owl.desktop");
    ASSERT_TRUE(WaitFor([&] { return Files() == QStringList("owl.desktop.unconfirmed"); }));

    ASSERT_TRUE(Press("Keep owl.desktop"));

    EXPECT_TRUE(WaitFor([&] { return Files() == QStringList("owl.desktop"); }));
    EXPECT_EQ(Button(List(), "Open owl.desktop"), nullptr);
}

TEST_F(Downloads, ADangerousKindThatIsDiscardedLeavesNothing) {
    ServeToDisk("/owl.sh", "#!/bin/sh");
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    world.Browser().Navigate(world.Site + "/owl.sh");
    ASSERT_TRUE(WaitFor([&] { return Files() == QStringList("owl.sh.unconfirmed"); }));

    ASSERT_TRUE(PressOnPage("Discard"));

    EXPECT_TRUE(WaitFor([&] { return Rows().isEmpty(); }));
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(Downloads, ASongCanBePlayedAndAddedToTheLibrary) {
    ServeToDisk("/owl.mp3", "hoot");
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    world.Browser().Navigate(world.Site + "/owl.mp3");
    ASSERT_TRUE(HasRow("owl.mp3, 4 bytes, from 127.0.0.1"));

    ASSERT_TRUE(Press("Play owl.mp3"));
    ASSERT_TRUE(Press("Add to library owl.mp3"));

    const std::string path = folder.filePath("owl.mp3").toStdString();
    EXPECT_EQ(webengine_tests::Intake(), (std::vector<std::string>{"play " + path, "add " + path}));
}

TEST_F(Downloads, ACancelledOneCanBeRetriedUnderItsName) {
    world.Server().Pages["/slow.bin"] = {QByteArray(100'000, 'x'), kToDisk, "200 OK"};
    world.Server().Unfinished = "/slow.bin";
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    world.Browser().Navigate(world.Site + "/slow.bin");
    ASSERT_TRUE(Press("Cancel slow.bin"));
    ASSERT_TRUE(HasRow("slow.bin, Cancelled"));
    EXPECT_TRUE(WaitFor([&] { return Files().isEmpty(); })) << Files().join(' ').toStdString();

    world.Server().Unfinished.clear();
    ASSERT_TRUE(Press("Retry slow.bin"));

    EXPECT_TRUE(HasRow("slow.bin, 100.0 kB, from 127.0.0.1")) << Rows().join('|').toStdString();
    EXPECT_EQ(Files(), QStringList("slow.bin"));
}

TEST_F(Downloads, OneCanBePausedAndGoOn) {
    world.Server().Pages["/slow.bin"] = {QByteArray(100'000, 'x'), kToDisk, "200 OK"};
    world.Server().Unfinished = "/slow.bin";
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    world.Browser().Navigate(world.Site + "/slow.bin");

    ASSERT_TRUE(Press("Pause slow.bin"));
    ASSERT_TRUE(WaitFor([&] { return Rows().join('|').contains("Paused"); }));
    ASSERT_TRUE(Press("Resume slow.bin"));

    EXPECT_TRUE(WaitFor([&] { return Button(List(), "Pause slow.bin") != nullptr; }));
}

TEST_F(Downloads, AServerThatBreaksOffIsSaid) {
    world.Server().Pages["/torn.bin"] = {"words",
                                         "Content-Type: application/octet-stream\r\nContent-Length: 900\r\n"};
    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    world.Browser().Navigate(world.Site + "/torn.bin");

    EXPECT_TRUE(WaitFor([&] { return Button(List(), "Retry torn.bin") != nullptr; }))
        << Rows().join('|').toStdString();
    EXPECT_TRUE(SeesOnPage("torn.bin was not saved."));
}

TEST_F(Downloads, AFolderThatCannotBeWrittenIsSaid) {
    ServeToDisk("/owl.zip", "words");
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);

    world.Browser().Navigate(world.Site + "/owl.zip");

    EXPECT_TRUE(WaitFor([&] { return Rows().join('|').contains("cannot be written"); }))
        << Rows().join('|').toStdString();
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    ASSERT_TRUE(Press("Retry owl.zip"));
    EXPECT_TRUE(HasRow("owl.zip, 5 bytes, from 127.0.0.1"));
}

}  // namespace
