#include <gtest/gtest.h>

#include "fakes/FakeDatabase.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "session/StoreTroubleRoom.h"
#include "store/DataSource.h"

namespace {

class StoreTroubleRoom : public ::testing::Test {
protected:
    StoreTroubleRoom() {
        desktop.AdoptTimer(controls.tmrTrouble);
        session.FirstLoadDone = true;
        database.MakeStore(kPath);
        history.SetDatabaseName(stores, kPath);
    }

    static constexpr std::string_view kPath = "C:\\app\\dbHistory.mdb";

    fakes::FakeDesktop desktop;
    fakes::FakeDialogs boxes;
    fakes::FakeDatabase database;
    session::SessionState session;
    session::StoreTroubleControls controls;
    session::StoreTroubleRoom room{controls, session, boxes};
    store::Stores stores{database, desktop, room};
    store::DataSource history{"datHistory"};
};

TEST_F(StoreTroubleRoom, TheBoxWaitsForAnEventOfItsOwn) {
    database.FailOpen(kPath, ports::DatabaseError::Damaged);

    history.Open(store::kAllHistory);
    EXPECT_TRUE(boxes.Boxes.empty());
    desktop.Advance(10);

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_NE(boxes.Boxes[0].text.find("dbHistory.mdb"), std::string::npos);
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::Critical);
    EXPECT_EQ(boxes.Boxes[0].title, "Brindlepost");
}

TEST_F(StoreTroubleRoom, OneTroubleIsToldOnce) {
    database.FailOpen(kPath, ports::DatabaseError::Damaged);

    for (int i = 0; i < 50; ++i)
        history.Open(store::kAllHistory);
    desktop.Advance(1000);

    EXPECT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_FALSE(controls.tmrTrouble.Enabled());
}

TEST_F(StoreTroubleRoom, EveryKindOfTroubleIsTold) {
    for (const auto error :
         {ports::DatabaseError::Damaged, ports::DatabaseError::OtherKind, ports::DatabaseError::ReadOnly,
          ports::DatabaseError::Locked, ports::DatabaseError::DiskFull, ports::DatabaseError::Missing,
          ports::DatabaseError::IsFolder, ports::DatabaseError::InputOutput}) {
        boxes.Boxes.clear();

        room.OnStoreTrouble(kPath, error, "what happened");
        desktop.Advance(10);

        ASSERT_EQ(boxes.Boxes.size(), 1U) << static_cast<int>(error);
        EXPECT_EQ(boxes.Boxes[0].text, "what happened");
    }
}

TEST_F(StoreTroubleRoom, WhatCouldNotBeSavedIsToldAtOnceAndOnceOnly) {
    history.Open(store::kAllHistory);
    history.Recordset().AddNew();
    history.Recordset().Set(store::tblHistory::HistoryID, "1");
    history.Recordset().Update();
    database.FailApply(kPath, ports::DatabaseError::DiskFull);
    ASSERT_FALSE(stores.CommitAll());

    room.TellUnsaved("Not saved.", stores);
    desktop.Advance(1000);

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text,
              "Not saved.\r\nThe file \"dbHistory.mdb\" can not be written: the disk is full.");
}

TEST_F(StoreTroubleRoom, ABoxThatWaitsStaysWhereTheStoresKnowNoReason) {
    database.FailOpen(kPath, ports::DatabaseError::Damaged);
    history.Open(store::kAllHistory);

    room.TellUnsaved("Not saved.", stores);
    desktop.Advance(10);

    ASSERT_EQ(boxes.Boxes.size(), 2U);
    EXPECT_EQ(boxes.Boxes[0].text, "Not saved.");
    EXPECT_NE(boxes.Boxes[1].text.find("damaged"), std::string::npos);
}

TEST_F(StoreTroubleRoom, SeveralTroublesAreToldOneAfterAnother) {
    room.OnStoreTrouble("C:\\a", ports::DatabaseError::Locked, "first");
    room.OnStoreTrouble("C:\\b", ports::DatabaseError::Locked, "second");

    desktop.Advance(10);

    ASSERT_EQ(boxes.Boxes.size(), 2U);
    EXPECT_EQ(boxes.Boxes[0].text, "first");
    EXPECT_EQ(boxes.Boxes[1].text, "second");
}

TEST_F(StoreTroubleRoom, AFileThatIsNotThereAtTheStartIsTheSplashsToReport) {
    session.FirstLoadDone = false;

    room.OnStoreTrouble(kPath, ports::DatabaseError::Missing, "missing");
    room.OnStoreTrouble(kPath, ports::DatabaseError::IsFolder, "folder");
    desktop.Advance(10);

    EXPECT_TRUE(boxes.Boxes.empty());
}

TEST_F(StoreTroubleRoom, OtherTroublesAtTheStartAreTold) {
    session.FirstLoadDone = false;

    room.OnStoreTrouble(kPath, ports::DatabaseError::Locked, "locked");
    desktop.Advance(10);

    EXPECT_EQ(boxes.Boxes.size(), 1U);
}

TEST_F(StoreTroubleRoom, AfterARefusedStartNothingIsTold) {
    session.NothingBegun = true;

    room.OnStoreTrouble(kPath, ports::DatabaseError::Locked, "locked");
    desktop.Advance(10);

    EXPECT_TRUE(boxes.Boxes.empty());
}

}  // namespace
