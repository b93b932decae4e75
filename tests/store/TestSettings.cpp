#include "store/Settings.h"

#include <gtest/gtest.h>

#include <string>

#include "base/Number.h"
#include "fakes/SeededStores.h"
#include "store/Tables.h"

namespace {

using fakes::SeededStores;
using store::SettingsRow;
using store::Truth;

TEST(Settings, ATextBecomesAFlagByTheRuleOfItsRow) {
    const struct {
        const char* text;
        bool only_true;
        bool unless_false;
    } cases[] = {{"True", true, true},  {"False", false, false}, {"", false, true},
                 {"true", false, true}, {"false", false, true},  {"maybe", false, true}};
    for (const auto& one : cases) {
        EXPECT_EQ(store::IsOn(Truth::OnlyTrue, one.text), one.only_true) << one.text;
        EXPECT_EQ(store::IsOn(Truth::UnlessFalse, one.text), one.unless_false) << one.text;
        EXPECT_FALSE(store::IsOn(Truth::NoFlag, one.text)) << one.text;
        EXPECT_EQ(store::IsOn(SettingsRow::Repeat, one.text), one.only_true) << one.text;
        EXPECT_EQ(store::IsOn(SettingsRow::ScrollTitle, one.text), one.unless_false) << one.text;
    }
}

TEST(Settings, OnlyModesAndTheMusicTabNeedTheTextTrue) {
    for (const store::Setting& setting : store::kSettings) {
        const bool strict = setting.row == SettingsRow::Repeat || setting.row == SettingsRow::Shuffle ||
                            setting.row == SettingsRow::MusicTab;
        EXPECT_EQ(setting.truth == Truth::OnlyTrue, strict) << store::NumberOf(setting.row);
    }
}

TEST(Settings, TheRowOfANumberIsASettingUpToTheEndMark) {
    SeededStores stores;
    stores.Seed("tblHistory", {{base::ToText(store::NumberOf(SettingsRow::EndMark) + 1), "Web", "a"},
                               {"0", "Web", "b"},
                               {"-1", "Web", "c"},
                               {"9223372036854775807", "Web", "d"},
                               {"", "Web", "e"}});
    const auto source = stores.OpenTable("tblHistory");
    store::RecordSet& rows = source->Recordset();
    rows.MoveFirst();

    for (const store::Setting& setting : store::kSettings) {
        EXPECT_EQ(store::SettingAt(rows), &setting);
        rows.MoveNext();
    }
    for (; !rows.Eof(); rows.MoveNext())
        EXPECT_EQ(store::SettingAt(rows), nullptr) << rows.Text(store::tblHistory::HistoryText);
}

TEST(Settings, ARowIsFoundByItsNumberAndWrittenAsASetting) {
    SeededStores stores;
    const auto source = stores.OpenTable("tblHistory");
    store::RecordSet& rows = source->Recordset();

    ASSERT_TRUE(store::MoveToSetting(rows, SettingsRow::LastCleanUp));
    EXPECT_TRUE(store::WriteSetting(rows, "20260309"));

    const auto written = stores.Rows("tblHistory");
    EXPECT_EQ(written.at(4), (SeededStores::Row{"5", "Settings", "20260309"}));
}

TEST(Settings, ARowThatIsGoneIsNeitherFoundNorWritten) {
    SeededStores stores;
    const auto source = stores.OpenTable("tblHistory");
    store::RecordSet& rows = source->Recordset();
    ASSERT_TRUE(store::MoveToSetting(rows, SettingsRow::MultipleUsers));
    rows.Delete();
    const auto before = stores.Rows("tblHistory");

    EXPECT_FALSE(store::MoveToSetting(rows, SettingsRow::MultipleUsers));
    EXPECT_FALSE(store::WriteSetting(rows, "True"));

    EXPECT_EQ(stores.Rows("tblHistory"), before);
}

}  // namespace
