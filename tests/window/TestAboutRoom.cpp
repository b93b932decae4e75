#include "window/AboutRoom.h"

#include <gtest/gtest.h>

#include "fakes/FakeDialogs.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakePrograms.h"
#include "fakes/FakeRegistry.h"
#include "fakes/RecordingPageEngine.h"

namespace {

using ports::RegistryRoot;
using ports::RegistryType;
using Texts = std::vector<std::string>;

constexpr std::string_view kToolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr std::string_view kFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";

struct RecordingMaker final : roles::MakerPages {
    void OpenMakerHome() override { Opened.emplace_back("home"); }
    void OpenUpdates() override { Opened.emplace_back("updates"); }
    Texts Opened;
};

class AboutRoom : public testing::Test {
protected:
    void SeedText(std::string_view key, std::string_view name, std::string_view bytes) {
        registry.Seed(RegistryRoot::LocalMachine, key, name, {RegistryType::Text, std::string(bytes)});
    }

    window::AboutForm form;
    window::AboutMenu menu;
    RecordingMaker maker;
    fakes::RecordingPageEngine pages;
    fakes::FakeRegistry registry;
    fakes::FakePrograms programs;
    fakes::FakeFiles files{"C:\\app"};
    fakes::FakeDialogs boxes;
    window::AboutRoom room{form, menu, maker, {pages, registry, programs, files, boxes}};
};

TEST_F(AboutRoom, TheMenuOpensTheBoxWithItsTexts) {
    menu.mnuAbout.Click.Raise();

    EXPECT_TRUE(form.frmAbout.Visible());
    EXPECT_EQ(form.frmAbout.Caption(), "About Brindlepost");
    EXPECT_EQ(form.lblTitle.Caption(), "Brindlepost");
    EXPECT_EQ(form.lblVersion.Caption(), "Version 1.1.43");
    EXPECT_EQ(form.lblDisclaimer.Caption(),
              "Warning: This product is not protected by international copyright laws, this product can be "
              "re-distributed at users consent.");
    EXPECT_EQ(form.lblEngine.Caption(), "Page engine 1.2.3 (patches up to 1.2.4)");
    EXPECT_EQ(form.lblStores.Caption(), files.DisplayPath(files.ApplicationFolder()));
    EXPECT_FALSE(form.lblStores.Caption().empty());
    EXPECT_EQ(form.cmdLarkmoorHome.Caption(), "Larkmoor Home Page");
    EXPECT_EQ(form.cmdUpdates.Caption(), "Check For Updates");
    EXPECT_EQ(form.cmdSysInfo.Caption(), "&System Info...");
}

TEST_F(AboutRoom, TheEngineIsAskedOnlyWhenTheBoxOpens) {
    EXPECT_EQ(pages.VersionQuestions, 0);

    menu.mnuAbout.Click.Raise();
    menu.mnuAbout.Click.Raise();

    EXPECT_EQ(pages.VersionQuestions, 1);
}

TEST_F(AboutRoom, WithoutAPageEngineItSaysSo) {
    pages.VersionText.clear();

    menu.mnuAbout.Click.Raise();

    EXPECT_EQ(form.lblEngine.Caption(), "Not installed: web pages cannot be shown.");
}

TEST_F(AboutRoom, OkClosesTheBoxByEnterAndByEscape) {
    EXPECT_TRUE(form.cmdOK.IsDefault());
    EXPECT_TRUE(form.cmdOK.IsCancel());
    menu.mnuAbout.Click.Raise();

    form.cmdOK.Click.Raise();

    EXPECT_FALSE(form.frmAbout.IsLoaded());
    EXPECT_FALSE(form.frmAbout.Visible());
}

TEST_F(AboutRoom, TheTwoPagesAreTheMakers) {
    menu.mnuAbout.Click.Raise();

    form.cmdLarkmoorHome.Click.Raise();
    form.cmdUpdates.Click.Raise();

    EXPECT_EQ(maker.Opened, (Texts{"home", "updates"}));
    EXPECT_TRUE(form.frmAbout.Visible());
}

TEST_F(AboutRoom, EverythingLiesInsideItsPlace) {
    for (const controls::Control* control : form.frmAbout.Children()) {
        EXPECT_LE(control->Right(), form.frmAbout.ContentWidth()) << control->Name();
        EXPECT_LE(control->Bottom(), form.frmAbout.ContentHeight()) << control->Name();
    }
    for (const controls::Control* control : form.fraAbout.Children()) {
        EXPECT_LE(control->Right(), form.fraAbout.Width()) << control->Name();
        EXPECT_LE(control->Bottom(), form.fraAbout.Height()) << control->Name();
    }
}

TEST_F(AboutRoom, TheToolThatTheRegistryNamesIsStarted) {
    SeedText(kToolKey, "PATH", "C:\\tools\\msinfo.exe");
    SeedText(kFolderKey, "MSINFO", "C:\\other");
    programs.Installed = "C:\\tools\\msinfo.exe";
    programs.Tool = "C:\\usr\\bin\\hardinfo";

    form.cmdSysInfo.Click.Raise();

    EXPECT_EQ(programs.Started, Texts{"C:\\tools\\msinfo.exe"});
    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_EQ(registry.OpenKeys(), 0U);
}

TEST_F(AboutRoom, TheToolInTheFolderThatTheRegistryNamesIsStarted) {
    SeedText(kFolderKey, "MSINFO", "C:\\tools");
    files.AddFile("C:\\tools\\MSINFO32.EXE");
    programs.Installed = "C:\\tools\\MSINFO32.EXE";

    form.cmdSysInfo.Click.Raise();

    EXPECT_EQ(programs.Started, Texts{"C:\\tools\\MSINFO32.EXE"});
}

TEST_F(AboutRoom, AFolderWithoutTheToolIsUnavailable) {
    SeedText(kFolderKey, "MSINFO", "C:\\tools");
    programs.Installed = "C:\\tools\\MSINFO32.EXE";

    form.cmdSysInfo.Click.Raise();

    EXPECT_TRUE(programs.Started.empty());
    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "System Information Is Unavailable At This Time");
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::None);
}

TEST_F(AboutRoom, WithoutKeysTheDesktopsOwnToolIsStarted) {
    programs.Tool = "C:\\usr\\bin\\hardinfo";

    form.cmdSysInfo.Click.Raise();

    EXPECT_EQ(programs.Started, Texts{"C:\\usr\\bin\\hardinfo"});
}

TEST_F(AboutRoom, WithoutAnyToolTheUserIsTold) {
    form.cmdSysInfo.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "System Information Is Unavailable At This Time");
}

TEST_F(AboutRoom, AToolThatDoesNotStartIsUnavailableToo) {
    SeedText(kToolKey, "PATH", "C:\\gone.exe");

    form.cmdSysInfo.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "System Information Is Unavailable At This Time");
}

TEST_F(AboutRoom, ATextIsReadUpToItsEndMark) {
    using namespace std::string_view_literals;
    SeedText("A", "text", "C:\\tools\0rest"sv);
    SeedText("A", "plain", "words");
    SeedText("A", "empty", "");
    std::string value = "old";

    EXPECT_TRUE(room.GetKeyValue(RegistryRoot::LocalMachine, "A", "text", value));
    EXPECT_EQ(value, "C:\\tools");
    EXPECT_TRUE(room.GetKeyValue(RegistryRoot::LocalMachine, "A", "plain", value));
    EXPECT_EQ(value, "words");
    EXPECT_TRUE(room.GetKeyValue(RegistryRoot::LocalMachine, "A", "empty", value));
    EXPECT_EQ(value, "");
    EXPECT_EQ(registry.OpenKeys(), 0U);
}

TEST_F(AboutRoom, ANumberIsReadAsItsBytesFromTheHighestDown) {
    using namespace std::string_literals;
    registry.Seed(RegistryRoot::LocalMachine, "A", "number", {RegistryType::Number, "\x1F\x02\0\xAB"s});
    std::string value;

    EXPECT_TRUE(room.GetKeyValue(RegistryRoot::LocalMachine, "A", "number", value));

    EXPECT_EQ(value, "&hAB00021F");
}

TEST_F(AboutRoom, AMissingKeyOrValueIsNoSuccess) {
    SeedText("A", "text", "words");
    std::string value = "old";

    EXPECT_FALSE(room.GetKeyValue(RegistryRoot::LocalMachine, "B", "text", value));
    EXPECT_EQ(value, "");
    EXPECT_FALSE(room.GetKeyValue(RegistryRoot::LocalMachine, "A", "other", value));
    EXPECT_FALSE(room.GetKeyValue(RegistryRoot::ClassesRoot, "A", "text", value));
    EXPECT_EQ(registry.OpenKeys(), 0U);
}

}  // namespace
