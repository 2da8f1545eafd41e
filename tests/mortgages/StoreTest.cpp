#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/Globals.h"
#include "mortgages/MortgageFixture.h"
#include "mortgages/MortgageUpkeep.h"
#include "mortgages/clsMortgage.h"
#include "platform/database/Recordset.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using mortgages::clsMortgage;
using platform::CursorMode;
using platform::Recordset;
using testing::ElementsAre;

class MortgageStore : public testing::Test {
  protected:
    static void OpenRow(Recordset& row) {
        row.Open(core::App().Connection, "SELECT * FROM Mortgage", CursorMode::Updatable);
    }

    support::TemporaryFolder folder_;
    BooksWithOneMortgage books_{folder_.Path() / "db"};
};

TEST_F(MortgageStore, LoadsStoredValuesPastTheLimitsAndKeepsDefaultsForNulls) {
    SetMortgageField("OrigRate", "0.45");
    SetMortgageField("OrigPV", "12000000");
    SetMortgageField("CurrentPeriod", "400");
    SetMortgageField("ARMLifeCap", "NULL");
    clsMortgage loan;
    ASSERT_TRUE(loan.LoadMtg(kMortgageId));
    EXPECT_EQ(loan.OrigRate(), 45);
    EXPECT_EQ(loan.OrigPV(), 12'000'000);
    EXPECT_EQ(loan.CurrentPeriod(), 400);
    EXPECT_EQ(loan.ARMLifeCap(), 6);
    EXPECT_EQ(loan.ArraySize(), 360); // of the new object: there is no list
    EXPECT_FALSE(loan.LoadMtg(999));
}

TEST_F(MortgageStore, TheTwoWaysOfLoadingDifferInTheBalloonAndTheLists) {
    SetMortgageField("BalloonMtg", "True");
    SetMortgageField("BalloonPer", "60");
    SetMortgageField("xPri", "1,2,3,4");
    SetMortgageField("xRate", "NULL");
    clsMortgage byId;
    ASSERT_TRUE(byId.LoadMtg(kMortgageId));
    EXPECT_TRUE(byId.Balloon());
    EXPECT_EQ(byId.ArraySize(), 360);
    Recordset row;
    OpenRow(row);
    clsMortgage byRow;
    EXPECT_TRUE(byRow.LoadRS(row));
    EXPECT_FALSE(byRow.Balloon());
    EXPECT_EQ(byRow.ArraySize(), 4);
    byId.ReCalc();
    byRow.ReCalc();
    EXPECT_EQ(byId.GetPeriods(), 60);
    EXPECT_EQ(byRow.GetPeriods(), 360);
    EXPECT_EQ(byRow.Schedule()[3].XPri, 4);
    EXPECT_EQ(byRow.Schedule()[4].XPri, 0);

    SetMortgageField("xRate", "0.07,words,0.08");
    SetMortgageField("ARM", "True");
    clsMortgage again;
    ASSERT_TRUE(again.LoadMtg(kMortgageId));
    EXPECT_EQ(again.ArraySize(), 3);
    again.SetBalloon(false);
    again.ReCalc();
    EXPECT_DOUBLE_EQ(again.GetRate(1), 7);
    EXPECT_EQ(again.GetRate(2), 0); // a word is no rate
    EXPECT_DOUBLE_EQ(again.GetRate(3), 8);
    EXPECT_DOUBLE_EQ(again.GetRate(360), 8);
    EXPECT_EQ(again.GetXPRI(4), 4);
}

TEST_F(MortgageStore, ALoanWithoutAListOfRatesHasItsOwnThroughout) {
    SetMortgageField("ARM", "True");
    SetMortgageField("xRate", "NULL");
    platform::Recordset row;
    row.Open(core::App().Connection, "SELECT * FROM Mortgage");
    clsMortgage byRow;
    byRow.LoadRS(row);
    clsMortgage byId;
    ASSERT_TRUE(byId.LoadMtg(kMortgageId));
    for (clsMortgage* loan : {&byRow, &byId}) {
        loan->ReCalc();
        EXPECT_EQ(loan->GetRate(1), 6);
        EXPECT_EQ(loan->GetRate(360), 6);
        EXPECT_NEAR(loan->Schedule().front().Pmt, 599.55, 0.005);
    }
}

TEST_F(MortgageStore, ReadsARowThatLacksFields) {
    Recordset row;
    row.Open(core::App().Connection, "SELECT IdMortgage, OrigRate FROM Mortgage");
    clsMortgage loan;
    EXPECT_TRUE(loan.LoadRS(row));
    EXPECT_EQ(loan.OrigRate(), 6);
    EXPECT_EQ(loan.OrigPV(), 100'000);
}

TEST_F(MortgageStore, TheTwoWaysOfSavingDifferInTheBalance) {
    clsMortgage loan;
    ASSERT_TRUE(loan.LoadMtg(kMortgageId));
    loan.ReCalc();
    loan.SetCurrentPeriod(2);
    loan.SaveMtg(kMortgageId);
    const std::string current =
        "SELECT NextDue, CurrentPV, CurrentI, CurrentPmt, RemainingT FROM Mortgage";
    const auto line = [&](double balance) {
        return "02/15/2024|" + platform::Value(balance).AsText() + "|0.06|" +
               platform::Value(loan.OrigPmt()).AsText() + "|359";
    };
    EXPECT_THAT(Rows(current), ElementsAre(line(loan.Schedule()[1].EndBal)));
    Recordset row;
    OpenRow(row);
    loan.SaveRS(row);
    row.Update();
    EXPECT_THAT(Rows(current), ElementsAre(line(loan.Schedule()[1].BeginBal)));
    row.Close();

    loan.SetXPri(1, 1e6);
    loan.ReCalc();
    OpenRow(row);
    loan.SaveRS(row); // the current period stands past the end
    row.Update();
    EXPECT_THAT(Rows(current), ElementsAre("|0|0|0|0"));

    loan.SaveMtg(0); // no mortgage
    EXPECT_THAT(Rows("SELECT Count(*) FROM Mortgage"), ElementsAre("1"));
    loan.SaveMtg(777); // a row that isn't there yet
    EXPECT_THAT(Rows("SELECT Description, OrigPer FROM Mortgage WHERE IdMortgage = 777"),
                ElementsAre("Elm's loan|360"));
}

TEST_F(MortgageStore, WhatItSavesLoadsTheSame) {
    clsMortgage loan;
    loan.SetDescription("A 'new' one");
    loan.SetOrigPer(36);
    loan.SetFirstDue("01/31/2024");
    loan.SetARM(true);
    loan.SetRate(7, 0.0675);
    loan.SetXPri(5, 123.4567);
    loan.SetXPri(0, 1.0 / 3);
    loan.SetPPM(true);
    loan.SetPPMPct(3.5);
    loan.SetBalloon(true);
    loan.SetBalloonPer(24);
    loan.ReCalc();
    loan.SaveMtg(500);
    clsMortgage back;
    ASSERT_TRUE(back.LoadMtg(500));
    back.ReCalc();
    ASSERT_EQ(back.Schedule().size(), 24U);
    for (std::size_t i = 0; i < 24; ++i) {
        EXPECT_EQ(back.Schedule()[i].EndBal, loan.Schedule()[i].EndBal) << i;
        EXPECT_EQ(back.Schedule()[i].Due.View(), loan.Schedule()[i].Due.View()) << i;
        EXPECT_EQ(back.Schedule()[i].Penalty, loan.Schedule()[i].Penalty) << i;
    }
    EXPECT_EQ(back.Description(), "A 'new' one");
    EXPECT_EQ(back.BalloonPmt(), loan.BalloonPmt());
}

} // namespace

} // namespace tests
