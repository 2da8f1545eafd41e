#include "leases/RentPayment.h"
#include "leases/screens/LeaseForm.h"

namespace tests {

namespace {

using core::TransactionClass;
using leases::RentFlags;

TEST_F(LeaseForm, CommandsAskSaveAndMoveTheLease) {
    const auto form = Open();
    Answer({false, true, true, true, true});
    Trigger(*form, "mnuGiveNotice");
    EXPECT_EQ(Lease("Status"), "Contracted") << "No changes nothing";
    Type(Find<QLineEdit>(*form, "txtNoticeDays"), "10");
    Trigger(*form, "mnuGiveNotice");
    EXPECT_EQ(Titles(Heard()), "Give Notice?;Give Notice?;");
    EXPECT_EQ(Lease("Status"), "Notice");
    EXPECT_EQ(Lease("NoticeDays"), "10") << "saved first";
    EXPECT_EQ(Text(*form, "txtStatus"), "Notice");
    EXPECT_EQ(Text(*form, "dpDateVacating"), "05/27/2024");
    EXPECT_TRUE(IsEnabled(*form, "dpDateVacating"));
    Trigger(*form, "mnuCancelNotice");
    EXPECT_EQ(Text(*form, "txtStatus"), "Contracted");
    EXPECT_EQ(Text(*form, "dpDateVacating"), "");
    Trigger(*form, "mnuBreakLease");
    EXPECT_EQ(Text(*form, "txtStatus"), "Broken");
    EXPECT_EQ(Text(*form, "txtRentStatus"), "n/a");
    EXPECT_EQ(Ask("SELECT Status FROM Unit WHERE IdUnit = 20"), "Avaliable");
    Trigger(*form, "mnuRenewLease");
    EXPECT_EQ(Text(*form, "txtStatus"), "Contracted");
    EXPECT_FALSE(form->Dirty());
}

TEST_F(LeaseForm, ACommandStopsWhenTheSaveIsRefused) {
    const auto form = Open();
    Type(Find<QLineEdit>(*form, "txtRent"), "0");
    Answer({true});
    Trigger(*form, "mnuBreakLease");
    EXPECT_EQ(Titles(Heard()), "Break Lease?;Whoa!;");
    EXPECT_EQ(Lease("Status"), "Contracted");
    EXPECT_EQ(Lease("Rent"), "950");
}

TEST_F(LeaseForm, RollForwardAndReprocessPostAndShowTheirCharges) {
    Set("DateNextDue", "06/01/2024");
    Set("Discount", "25");
    const auto form = Open();
    Answer({true, true});
    Trigger(*form, "mnuRollFOrward");
    EXPECT_EQ(ListRows(*form, "lvw"),
              (Said{"06/01/2024|Rent|Rent due 06/01/2024|950.00|925.00",
                    "05/27/2024|Rent Discount|Discount for rent due 06/01/2024|(25.00)|(25.00)"}));
    EXPECT_EQ(Text(*form, "txtRentDue"), "925.00");
    EXPECT_EQ(Titles(Heard()), "Confirm Roll Forward;");
    Set("DateNextDue", "05/01/2024");
    Set("DateUpdated", "05/17/2024");
    core::NotifyAll(core::kLease, core::kRecordsChanged, kLease);
    Trigger(*form, "mnuReprocess");
    EXPECT_EQ(ListRows(*form, "lvw").size(), 4U) << "the rent of May and its late fee besides";
    EXPECT_EQ(Titles(Heard()), "Confirm Reprocess;");
}

TEST_F(LeaseForm, APaymentElsewhereShowsAtOnceAndTypedWordsStay) {
    Charge("05/01/2024", 950, RentFlags::PeriodRent);
    const auto form = Open();
    EXPECT_EQ(Text(*form, "txtRentDue"), "950.00");
    Find<QPlainTextEdit>(*form, "mtxtNotes").setPlainText(QStringLiteral("Call her"));
    leases::SubmitPayment(leases::ProposePayment(kLease, TransactionClass::Rent));
    EXPECT_EQ(Text(*form, "dpDateNextDue"), "06/01/2024");
    EXPECT_EQ(Text(*form, "txtRentDue"), "0.00");
    EXPECT_EQ(Text(*form, "txtRentStatus"), "OK");
    EXPECT_EQ(ListRows(*form, "lvw"), Said{});
    EXPECT_TRUE(form->Dirty());
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Lease("DateNextDue"), "06/01/2024") << "the save doesn't undo the payment";
    EXPECT_EQ(Lease("Notes"), "Call her");
}

} // namespace

} // namespace tests
