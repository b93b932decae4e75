#include <gtest/gtest.h>

#include <QByteArray>
#include <string>
#include <vector>

#include "platform/qt/DesktopWishes.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

/// What a settings manager publishes, in one byte order or the other.
class Manager {
public:
    explicit Manager(bool big) : big_(big) {
        bytes_ = {static_cast<std::uint8_t>(big ? 1 : 0), 0, 0, 0};
        Number(7, 4);
        Number(3, 4);
        Begin(0, "Xft/DPI");
        Number(98304, 4);
        Begin(2, "Some/Colour");
        Number(0, 4);
        Number(0, 4);
    }
    void Text(const std::string& name, const std::string& text) {
        Begin(1, name);
        Number(text.size(), 4);
        Fill(text);
    }
    Bytes Published() const { return bytes_; }

private:
    void Begin(std::uint8_t kind, const std::string& name) {
        bytes_.push_back(kind);
        bytes_.push_back(0);
        Number(name.size(), 2);
        Fill(name);
        Number(1, 4);
    }
    void Fill(const std::string& text) {
        bytes_.insert(bytes_.end(), text.begin(), text.end());
        while (bytes_.size() % 4 != 0)
            bytes_.push_back(0);
    }
    void Number(std::size_t number, int size) {
        for (int i = 0; i < size; ++i)
            bytes_.push_back(static_cast<std::uint8_t>(number >> (8 * (big_ ? size - 1 - i : i))));
    }

    bool big_;
    Bytes bytes_;
};

TEST(DesktopWishes, ATextSettingIsFoundAmongTheOthersInBothByteOrders) {
    for (const bool big : {false, true}) {
        Manager manager(big);
        manager.Text("Gtk/FontName", "Cantarell 16");

        EXPECT_EQ(qt::TextSetting(manager.Published(), "Gtk/FontName"), "Cantarell 16");
        EXPECT_EQ(qt::TextSetting(manager.Published(), "Net/ThemeName"), std::nullopt);
    }
}

TEST(DesktopWishes, WhatIsBrokenOffHasNoSetting) {
    Manager manager(false);
    manager.Text("Gtk/FontName", "Cantarell 16");
    const Bytes whole = manager.Published();

    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(qt::TextSetting({whole.data(), size}, "Gtk/FontName"), std::nullopt) << size;
}

TEST(DesktopWishes, LettersAreLargerOnlyBeyondTheUsualSizes) {
    EXPECT_DOUBLE_EQ(qt::LettersOf("Cantarell 11"), 1);
    EXPECT_DOUBLE_EQ(qt::LettersOf("Sans 8"), 1);
    EXPECT_DOUBLE_EQ(qt::LettersOf("Noto Sans Bold 16.5"), 1.5);
    EXPECT_DOUBLE_EQ(qt::LettersOf("Sans 400"), 3);
    EXPECT_DOUBLE_EQ(qt::LettersOf("Sans"), 1);
    EXPECT_DOUBLE_EQ(qt::LettersOf("Noto Sans"), 1);
    EXPECT_DOUBLE_EQ(qt::LettersOf(""), 1);
}

TEST(DesktopWishes, AThemeOfHighContrastAsksForIt) {
    EXPECT_TRUE(qt::MeansHighContrast("HighContrast"));
    EXPECT_TRUE(qt::MeansHighContrast("HighContrastInverse"));
    EXPECT_FALSE(qt::MeansHighContrast("Adwaita"));
}

TEST(DesktopWishes, LargerLettersComeOnTopOfTheScaleThatTheDesktopHas) {
    const QByteArray before = qgetenv("QT_SCALE_FACTOR");
    qputenv("QT_SCALE_FACTOR", "2");

    qt::TakeLetters({.letters = 1.5});
    const QByteArray larger = qgetenv("QT_SCALE_FACTOR");
    qt::TakeLetters({.letters = 1});
    const QByteArray same = qgetenv("QT_SCALE_FACTOR");
    qputenv("QT_SCALE_FACTOR", before);

    EXPECT_EQ(larger.toDouble(), 3);
    EXPECT_EQ(same, larger);
}

}  // namespace
