#include "platform/linux/LinuxRegistry.h"

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>

#include "platform/linux/Bench.h"
#include "platform/linux/LinuxFiles.h"

namespace {

constexpr auto kRoot = ports::RegistryRoot::ClassesRoot;

class LinuxRegistryTest : public testing::Test {
protected:
    linux::DesktopFolders Folders() const {
        return {folder_ / "data", folder_ / "config", {"other", "gnome"}};
    }
    /// As the program does it at the end of a load, from a program of that path.
    void Claim(linux::LinuxRegistry& registry,
               const std::string& program = "C:\\opt\\Brindlepost\\Brindlepost") {
        Set(registry, ".mp3\\shell\\open\\command", "\"" + program + ".exe\" \"%1\"");
        Set(registry, ".mp3\\DefaultIcon\\", program.substr(0, program.rfind('\\')) + "\\Brindlepost.exe,0");
        registry.NotifyAssociationsChanged();
    }
    void Claim(const std::string& program = "C:\\opt\\Brindlepost\\Brindlepost") {
        linux::LinuxRegistry registry(files_, Folders());
        Claim(registry, program);
    }
    static void Set(linux::LinuxRegistry& registry, const std::string& path, const std::string& text) {
        const ports::RegistryKey key = registry.CreateKey(kRoot, path);
        registry.SetValue(key, "", text);
        registry.CloseKey(key);
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(folder_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::string LineOf(const std::string& key) const {
        std::istringstream entry(Read("data/applications/brindlepost.desktop"));
        for (std::string line; std::getline(entry, line);)
            if (line.starts_with(key + "=")) return line.substr(key.size() + 1);
        return "no line";
    }
    /// Everything below the folder: path and, for a file, its inode, time and bytes.
    std::string Everything() const {
        std::string all;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.Path())) {
            struct stat status{};
            ::lstat(entry.path().c_str(), &status);
            all += entry.path().string() + " " + std::to_string(status.st_ino) + " " +
                   std::to_string(status.st_mtim.tv_nsec) + "\n";
        }
        return all;
    }

    linux_tests::PlayFolder folder_;
    linux::LinuxFiles files_{"/opt/Brindlepost/Brindlepost"};
};

TEST_F(LinuxRegistryTest, TheKeysAreThereAtTheNextStart) {
    {
        linux::LinuxRegistry registry(files_, Folders());
        Set(registry, "mp3file\\Shell\\", "a \"b\"\\\nc");
        registry.NotifyAssociationsChanged();
    }
    linux::LinuxRegistry next(files_, Folders());

    const auto value = next.QueryValue(next.OpenKey(kRoot, "mp3file\\shell"), "");

    ASSERT_TRUE(value);
    EXPECT_EQ(value->bytes, "a \"b\"\\\nc");
    EXPECT_FALSE(next.DeleteKey(kRoot, "mp3file"));
}

TEST_F(LinuxRegistryTest, WithoutANoticeNothingIsWritten) {
    linux::LinuxRegistry registry(files_, Folders());

    Set(registry, ".mp3\\shell\\open\\command", "\"C:\\p.exe\" \"%1\"");

    EXPECT_FALSE(std::filesystem::exists(folder_ / "data"));
}

TEST_F(LinuxRegistryTest, TheNoticeWritesAnEntryThatOpensSeveralFilesAtOnce) {
    Claim();

    EXPECT_EQ(Read("data/applications/brindlepost.desktop"),
              "[Desktop Entry]\n"
              "Type=Application\n"
              "Name=Brindlepost\n"
              "GenericName=Web Browser and Music Player\n"
              "TryExec=/opt/Brindlepost/Brindlepost\n"
              "Exec=/opt/Brindlepost/Brindlepost %F\n"
              "Icon=/opt/Brindlepost/images/brindlepost.png\n"
              "MimeType=audio/mpeg;\n"
              "Categories=AudioVideo;Audio;Player;\n"
              "StartupNotify=true\n"
              "StartupWMClass=Brindlepost\n");
    EXPECT_EQ(Read("config/mimeapps.list"),
              "[Default Applications]\naudio/mpeg=brindlepost.desktop;\n"
              "\n[Added Associations]\naudio/mpeg=brindlepost.desktop;\n");
}

TEST_F(LinuxRegistryTest, TheEntryOfThePackageIsNotHiddenByOneOfTheUsers) {
    const std::string program = files_.FromNative(folder_ / "usr/lib/brindlepost/Brindlepost");
    linux::DesktopFolders folders = Folders();
    folders.system = folder_ / "usr";
    Claim();  // from a checkout, before
    ASSERT_TRUE(std::filesystem::exists(folder_ / "data/applications/brindlepost.desktop"));
    folder_.Make("usr/share/applications");
    folder_.Write("usr/share/applications/brindlepost.desktop");
    linux::LinuxRegistry registry(files_, folders);

    Claim(registry, program);

    EXPECT_FALSE(std::filesystem::exists(folder_ / "data/applications/brindlepost.desktop"));
    EXPECT_TRUE(Read("config/mimeapps.list")
                    .starts_with("[Default Applications]\naudio/mpeg=brindlepost.desktop;\n"));
}

TEST_F(LinuxRegistryTest, AProgramBesideThePackageOrAPackageWithoutAnEntryHasTheUsers) {
    const std::string program = files_.FromNative(folder_ / "usr/lib/brindlepost/Brindlepost");
    linux::DesktopFolders folders = Folders();
    folders.system = folder_ / "usr";
    linux::LinuxRegistry registry(files_, folders);

    Claim(registry, program);
    EXPECT_EQ(LineOf("TryExec"), folder_ / "usr/lib/brindlepost/Brindlepost");

    folder_.Make("usr/share/applications");
    folder_.Write("usr/share/applications/brindlepost.desktop");
    Claim(registry);
    EXPECT_EQ(LineOf("TryExec"), "/opt/Brindlepost/Brindlepost");
}

TEST_F(LinuxRegistryTest, AFolderWithOddNamesIsQuoted) {
    Claim("C:\\my \"$5\" 100% app\\Brindlepost");
    EXPECT_EQ(LineOf("Exec"), R"("/my \\"\\$5\\" 100%% app/Brindlepost" %F)");
    EXPECT_EQ(LineOf("TryExec"), "/my \"$5\" 100% app/Brindlepost");
}

TEST_F(LinuxRegistryTest, ANoticeWithoutACommandClaimsNothing) {
    linux::LinuxRegistry registry(files_, Folders());

    registry.NotifyAssociationsChanged();

    EXPECT_FALSE(std::filesystem::exists(folder_ / "config"));
    EXPECT_FALSE(std::filesystem::exists(folder_ / "data/applications"));
}

TEST_F(LinuxRegistryTest, ASecondClaimTouchesNoFile) {
    folder_.Make("config");
    folder_.Write("config/mimeapps.list", "# mine\n[Default Applications]\naudio/mpeg=other.desktop\n");
    linux::LinuxRegistry registry(files_, Folders());
    Claim(registry);
    const std::string before = Everything();

    Claim(registry);
    Claim();

    EXPECT_EQ(Everything(), before);
}

TEST_F(LinuxRegistryTest, AfterAMoveOfTheFolderTheEntryNamesTheNewOne) {
    Claim();

    Claim("C:\\home\\ann\\b\\Brindlepost");

    EXPECT_EQ(LineOf("Exec"), "/home/ann/b/Brindlepost %F");
    EXPECT_EQ(LineOf("Icon"), "/home/ann/b/images/brindlepost.png");
}

TEST_F(LinuxRegistryTest, AnotherPlayerThatWasChosenSinceComesSecond) {
    Claim();
    folder_.Write("config/mimeapps.list", "[Default Applications]\naudio/mpeg=other.desktop\n");

    Claim();

    EXPECT_NE(Read("config/mimeapps.list").find("audio/mpeg=brindlepost.desktop;other.desktop;"),
              std::string::npos);
}

TEST_F(LinuxRegistryTest, TheListOfTheDesktopIsClaimedWhereItNamesTheKind) {
    folder_.Make("config");
    folder_.Write("config/gnome-mimeapps.list", "[Default Applications]\naudio/mpeg=other.desktop\n");
    folder_.Write("config/other-mimeapps.list", "[Default Applications]\ntext/plain=ed.desktop\n");

    Claim();

    EXPECT_TRUE(Read("config/gnome-mimeapps.list")
                    .starts_with("[Default Applications]\naudio/mpeg=brindlepost.desktop;other.desktop;\n"));
    EXPECT_EQ(Read("config/other-mimeapps.list"), "[Default Applications]\ntext/plain=ed.desktop\n");
}

TEST_F(LinuxRegistryTest, AListBehindALinkIsWrittenWhereItIsAndKeepsItsMode) {
    folder_.Make("config");
    folder_.Make("dotfiles");
    folder_.Write("dotfiles/list", "");
    ::chmod((folder_ / "dotfiles/list").c_str(), 0640);
    folder_.Link("../dotfiles/list", "config/mimeapps.list");

    Claim();

    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "config/mimeapps.list"));
    EXPECT_NE(Read("dotfiles/list").find("audio/mpeg=brindlepost.desktop;"), std::string::npos);
    struct stat status{};
    ASSERT_EQ(::stat((folder_ / "dotfiles/list").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST_F(LinuxRegistryTest, AListThatWasMadeReadOnlyIsLeftAlone) {
    folder_.Make("config");
    folder_.Write("config/mimeapps.list", "[Default Applications]\naudio/mpeg=other.desktop\n");
    ::chmod((folder_ / "config/mimeapps.list").c_str(), 0444);

    Claim();

    EXPECT_EQ(Read("config/mimeapps.list"), "[Default Applications]\naudio/mpeg=other.desktop\n");
}

TEST_F(LinuxRegistryTest, AHomeThatCannotBeWrittenIsLeftInSilence) {
    const linux_tests::Unprivileged rights(folder_);
    ::chmod(folder_.Path().c_str(), 0500);

    Claim();

    EXPECT_TRUE(std::filesystem::is_empty(folder_.Path()));
    ::chmod(folder_.Path().c_str(), 0700);
}

TEST_F(LinuxRegistryTest, FoldersInTheWayOfTheFilesAreLeftAlone) {
    folder_.Make("config/mimeapps.list");
    folder_.Make("data/brindlepost/registry");
    folder_.Make("data/applications/brindlepost.desktop");

    Claim();

    EXPECT_TRUE(std::filesystem::is_directory(folder_ / "config/mimeapps.list"));
    EXPECT_TRUE(std::filesystem::is_directory(folder_ / "data/applications/brindlepost.desktop"));
}

TEST_F(LinuxRegistryTest, AKeyFileOfNonsenseIsNoHindrance) {
    folder_.Make("data/brindlepost");
    folder_.Write(
        "data/brindlepost/registry",
        "\"early\"=\"value\"\n[HKEY_CLASSES_ROOT\\.mp3\n[]\n[HKEY_CLASSES_ROOT\\]\n\"open\n\xFF\xFE\n"
        "[HKEY_CLASSES_ROOT\\kept]\n\"\"=\"yes\"\n");
    linux::LinuxRegistry registry(files_, Folders());

    EXPECT_EQ(registry.QueryValue(registry.OpenKey(kRoot, "kept"), "")->bytes, "yes");
    Claim(registry);
    EXPECT_EQ(LineOf("MimeType"), "audio/mpeg;");
}

TEST_F(LinuxRegistryTest, FoldersComeFromTheEnvironmentOrTheHomeFolder) {
    const auto with = [](const char* home, const char* data, const char* desktop) {
        ::setenv("HOME", home, 1);
        ::setenv("XDG_DATA_HOME", data, 1);
        ::setenv("XDG_CONFIG_HOME", "relative", 1);
        ::setenv("XDG_CURRENT_DESKTOP", desktop, 1);
        return linux::FoldersOfUser();
    };

    const linux::DesktopFolders folders = with("/home/ann", "/data", "ubuntu:GNOME");

    EXPECT_EQ(folders.data, "/data");
    EXPECT_EQ(folders.config, "/home/ann/.config");
    EXPECT_EQ(folders.desktops, (std::vector<std::string>{"ubuntu", "gnome"}));
    EXPECT_EQ(with("/home/ann", "", "").data, "/home/ann/.local/share");
    EXPECT_TRUE(with("/home/ann", "", "../x").desktops.empty());
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CURRENT_DESKTOP"})
        ::unsetenv(name);
}

}  // namespace
