#include <QTabBar>

#include "core/Configuration.h"
#include "leases/RentPayment.h"
#include "leases/screens/LeaseForm.h"
#include "platform/system/Clock.h"

namespace tests {

namespace {

using core::TransactionClass;
using leases::RentFlags;
using leases::screens::frmLease;

TEST_F(LeaseForm, OpeningALeaseBringsItUpToDate) {
    Set("DateUpdated", "03/31/2024");
    Set("DateNextDue", "04/01/2024");
    const auto form = Open();
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Lease: Smith, John Q at 12 Elm St B"));
    EXPECT_EQ(Text(*form, "lblTitle"), "Editing Lease: Smith, John Q at 12 Elm St B");
    EXPECT_EQ(Text(*form, "txtRentDue"), "1,980.00");
    EXPECT_EQ(Text(*form, "txtRentStatus"), "Warning");
    EXPECT_EQ(Text(*form, "dpDateNextDue"), "04/01/2024");
    EXPECT_FALSE(form->Dirty());
    EXPECT_EQ(form->OpenRecordId(), kLease);
}

TEST_F(LeaseForm, ShowsAndKeepsEveryField) {
    struct Field {
        const char* field;
        const char* control;
        const char* stored;
        const char* shown;
    };
    const std::vector<Field> fields = {
        {"Rent", "txtRent", "975.5", "975.50"},
        {"Discount", "txtDiscount", "20", "20.00"},
        {"DiscountDays", "txtDiscountDays", "7", "7"},
        {"OneTimeFee", "txtOneTimeFee", "45", "45.00"},
        {"OneTimeDays", "txtOneTimeDays", "6", "6"},
        {"DailyFee", "txtDailyFee", "3", "3.00"},
        {"DailyDays", "txtDailyDays", "11", "11"},
        {"EvictDays", "txtEvictDays", "75", "75"},
        {"BreakFee", "txtBreakFee", "500", "500.00"},
        {"NoticeDays", "txtNoticeDays", "28", "28"},
        {"Term", "txtTerm", "24", "24"},
        {"SubsAmt", "txtSubsAmt", "300", "300.00"},
        {"OptionCredit", "txtOptionCredit", "50", "50.00"},
        {"OptionPrice", "txtOptionPrice", "90000", "90,000.00"},
        {"DateRenewed", "dpDateRenewed", "02/01/2024", "02/01/2024"},
        {"DateNextDue", "dpDateNextDue", "06/01/2024", "06/01/2024"},
        {"OptionExpireDate", "dpOptionExpireDate", "12/31/2025", "12/31/2025"},
        {"TermType", "cboTermType", "Week(s)", "Week(s)"},
        {"ExpireOption", "cboExpireOption", "Renew", "Renew"},
    };
    for (const Field& f : fields)
        Set("[" + std::string(f.field) + "]", f.stored);
    for (const auto* flag : {"Hide", "Subs", "[Option]", "Pets", "SubLet", "OptionRenews"})
        Run("UPDATE Lease SET " + std::string(flag) + " = True");
    for (const auto* memo : {"PetList", "Residents", "Notes"})
        Set(memo, std::string(memo) + "'s text");
    Run("UPDATE Lease SET SubsidyType = 5, SubsidyId = 32");
    const auto form = Open();
    for (const Field& f : fields)
        EXPECT_EQ(Text(*form, f.control), f.shown) << f.field;
    EXPECT_EQ(Text(*form, "cboSubsidyType"), "Tenant");
    EXPECT_EQ(Text(*form, "cboSubsidy"), "Zu, Li");
    for (const auto* box :
         {"chkHide", "chkSubsidy", "chkPurchaseOption", "chkPets", "chkSubLet", "chkOptionRenews"})
        EXPECT_TRUE(Find<QCheckBox>(*form, box).isChecked()) << box;
    EXPECT_EQ(Find<QPlainTextEdit>(*form, "mtxtPets").toPlainText(),
              QStringLiteral("PetList's text"));
    Type(Find<QLineEdit>(*form, "txtRent"), "980");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Lease("Rent"), "980");
    for (const Field& f : fields) {
        if (std::string_view(f.field) != "Rent") {
            EXPECT_EQ(Lease("[" + std::string(f.field) + "]"), f.stored) << f.field;
        }
    }
    EXPECT_EQ(Lease("SubsidyId"), "32");
    EXPECT_EQ(Lease("Residents + Notes"), "Residents's textNotes's text");
    EXPECT_EQ(Lease("RentAccount"), "60") << "what no control shows stays";
}

TEST_F(LeaseForm, ANewLeaseStartsWithTheSettingsAndIsPendingUntilItsDay) {
    Run("UPDATE Configuration SET TermType = 'Month(s)', Term = 6, ExpireOption = 'Renew', "
        "NoticeDays = 30, DefaultRentAccount = 61, DefaultDepositAccount = 62");
    Run("UPDATE Unit SET Status = 'Hold'");
    Run("INSERT INTO Deposit (IdDeposit, IdBuilding, IdUnit, IsGlobal, Description, Amount) "
        "VALUES (300, 0, 0, True, 'Damage', 500)");
    core::LoadConfiguration();
    const auto form = Open(0);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Lease"));
    EXPECT_EQ(Text(*form, "lblTitle"), "New Lease (Press Apply to Save)");
    EXPECT_EQ(Text(*form, "dpDateActive"), "06/01/2024");
    EXPECT_EQ(Text(*form, "txtTerm"), "6");
    EXPECT_EQ(Text(*form, "cboExpireOption"), "Renew");
    EXPECT_FALSE(form->Dirty());
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kRoll + "A unit must be specified.\nA tenant must be specified.\n"
                                    "Rent rate should not be zero.\n"});
    Choose(*form, "cboIdUnit", "12 Elm St B");
    EXPECT_EQ(Text(*form, "txtRent"), "950.50") << "the unit's rent";
    Choose(*form, "cboIdTenant", "O'Brien, Ann");
    Type(Find<QLineEdit>(*form, "dpDateActive"), "05/20/2024");
    EXPECT_EQ(Text(*form, "dpDateRenewed"), "05/20/2024");
    EXPECT_EQ(Text(*form, "dpDateNextDue"), "05/20/2024");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    const std::string row = " FROM Lease WHERE IdTenant = 31";
    EXPECT_EQ(
        Ask("SELECT Status + '|' + RentStatus + '|' + DateRenewed + '|' + DateCreated + '|' + "
            "DateVacating" +
            row),
        "Pending|OK|05/20/2024|05/17/2024|");
    EXPECT_EQ(Ask("SELECT RentAccount" + row), "61");
    EXPECT_EQ(Ask("SELECT DepositAccount" + row), "62");
    EXPECT_EQ(Ask("SELECT Status FROM Unit WHERE IdUnit = 20"), "Leased");
    EXPECT_EQ(Text(*form, "lblDepositDue"), "500.00");
    EXPECT_EQ(Text(*form, "txtStatus"), "Pending");
    EXPECT_FALSE(IsEnabled(*form, "cboIdUnit"));
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog"), "1") << "deposits are charged once";
}

TEST_F(LeaseForm, RefusesALeaseWithoutANextDueDate) {
    const auto form = Open();
    Find<QLineEdit>(*form, "dpDateNextDue").clear();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kRoll + "A next due date must be specified.\n"});
    EXPECT_EQ(Lease("DateNextDue"), "05/01/2024");
}

TEST_F(LeaseForm, ASaveThatFailedMidwayIsStillThatOfANewLease) {
    Run("UPDATE Configuration SET DefaultRentAccount = 61");
    core::LoadConfiguration();
    const auto form = Open(0);
    Choose(*form, "cboIdUnit", "12 Elm St A");
    Choose(*form, "cboIdTenant", "Zu, Li");
    Type(Find<QLineEdit>(*form, "txtRent"), "700");
    Find<QLineEdit>(*form, "dpDateActive").clear();
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{"Vestrel: DateActive is empty"});
    EXPECT_TRUE(form->Dirty());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Lease"), "1");
    Type(Find<QLineEdit>(*form, "dpDateActive"), "05/01/2024");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Ask("SELECT RentAccount FROM Lease WHERE IdTenant = 32"), "61");
    EXPECT_EQ(Ask("SELECT DateCreated FROM Lease WHERE IdTenant = 32"), "05/17/2024");
}

TEST_F(LeaseForm, EnablesByStatus) {
    struct Case {
        const char* status;
        const char* vacating;
        std::string commands; // notice, break, cancel, renew
        bool active;
        bool vacatingEnabled;
        const char* vacatingShown;
    };
    for (const Case& c : {Case{"Pending", "", "-b--", true, false, ""},
                          Case{"Contracted", "", "nb--", false, false, ""},
                          Case{"Notice", "07/01/2024", "--c-", false, true, "07/01/2024"},
                          Case{"Expired", "", "---r", false, true, ""},
                          Case{"Broken", "05/01/2024", "---r", false, true, "05/01/2024"}}) {
        SCOPED_TRACE(c.status);
        Set("Status", c.status);
        Set("DateVacating", c.vacating);
        Set("DateActive", c.status == std::string("Pending") ? "06/01/2024" : "01/01/2024");
        const auto form = Open();
        std::string commands;
        for (const auto& [item, letter] : {std::pair{"mnuGiveNotice", 'n'},
                                           {"mnuBreakLease", 'b'},
                                           {"mnuCancelNotice", 'c'},
                                           {"mnuRenewLease", 'r'}})
            commands += IsEnabled(*form, item) ? letter : '-';
        EXPECT_EQ(commands, c.commands);
        EXPECT_EQ(IsEnabled(*form, "dpDateActive"), c.active);
        EXPECT_EQ(IsEnabled(*form, "dpDateVacating"), c.vacatingEnabled);
        EXPECT_EQ(Text(*form, "dpDateVacating"), c.vacatingShown);
        EXPECT_FALSE(IsEnabled(*form, "cboIdTenant"));
        EXPECT_TRUE(IsEnabled(*form, "mnuReprocess"));
        EXPECT_FALSE(form->Dirty());
        form->CloseUnasked();
        support::SettleEvents();
    }
    const auto form = Open(0);
    for (const auto* name : {"mnuGiveNotice", "mnuBreakLease", "mnuRollFOrward", "mnuReprocess",
                             "dpDateRenewed", "dpDateVacating"})
        EXPECT_FALSE(IsEnabled(*form, name)) << name;
    EXPECT_TRUE(IsEnabled(*form, "cboIdUnit"));
}

TEST_F(LeaseForm, WhatRunsOnHasNoTermAndAPartOpensItsFields) {
    const auto form = Open();
    for (const auto& [word, ends] :
         {std::pair{"MTM", false}, {"WTW", false}, {"Week(s)", true}, {"Year(s)", true}}) {
        Choose(*form, "cboTermType", word);
        EXPECT_EQ(IsEnabled(*form, "txtTerm"), ends) << word;
        EXPECT_EQ(IsEnabled(*form, "cboExpireOption"), ends) << word;
        EXPECT_EQ(Text(*form, "txtTerm"), "12") << "what it was stays";
    }
    const auto& tabs = Find<QTabBar>(Find<QWidget>(*form, "ucLL"), "tab");
    const auto shown = [&] {
        std::string names;
        for (int i = 0; i < tabs.count(); ++i) {
            if (tabs.isTabVisible(i)) names += tabs.tabText(i).toStdString() + ";";
        }
        return names;
    };
    EXPECT_EQ(shown(), "Rent;Rent History;Deposit;Deposit History;");
    EXPECT_FALSE(IsEnabled(*form, "fraSubsidy"));
    Find<QCheckBox>(*form, "chkSubsidy").setChecked(true);
    EXPECT_TRUE(IsEnabled(*form, "fraSubsidy"));
    EXPECT_FALSE(IsEnabled(*form, "fraLeaseOption"));
    Find<QCheckBox>(*form, "chkPurchaseOption").setChecked(true);
    EXPECT_TRUE(IsEnabled(*form, "fraLeaseOption"));
    EXPECT_EQ(shown(),
              "Rent;Rent History;Subsidy;Subsidy History;Deposit;Deposit History;"
              "Option Credits;");
    Choose(*form, "cboSubsidyType", "Tenant");
    EXPECT_GE(Find<QComboBox>(*form, "cboSubsidy").findText(QStringLiteral("Zu, Li")), 0);
}

TEST_F(LeaseForm, OpensItsUnitAndItsTenantAndOnceIsTheLeaseItself) {
    const auto form = Open();
    ClickAction(*form, "UNIT");
    ClickAction(*form, "TENANT");
    EXPECT_EQ(opened_, (Said{"29 20", "5 30"}));
    const auto missing = Open(4711);
    const Said heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].substr(0, 15), "No Record Found");
    EXPECT_EQ(missing->windowTitle(), QStringLiteral("Adding New Lease"));
}

TEST_F(LeaseForm, ALeaseWhoseDatesAreBrokenStillOpensToBeMended) {
    Set("DateNextDue", "");
    const auto form = Open();
    EXPECT_EQ(Titles(Heard()), "Vestrel;");
    Type(Find<QLineEdit>(*form, "dpDateNextDue"), "06/01/2024");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Lease("RentStatus"), "OK");
}

TEST_F(LeaseForm, AWordThatIsNotOfferedStays) {
    for (const auto* word : {"Yearly", "Weekly", "Years(s)", ""}) {
        Set("TermType", word);
        Set("ExpireOption", word);
        const auto form = Open();
        EXPECT_EQ(Text(*form, "cboTermType"), word);
        EXPECT_FALSE(form->Dirty());
        ClickAction(*form, "CLOSE");
        EXPECT_EQ(Lease("TermType"), word);
        EXPECT_EQ(Lease("ExpireOption"), word);
        support::SettleEvents();
    }
}

TEST_F(LeaseForm, AUnitWithoutALabelIsOfferedToo) {
    Run("UPDATE Unit SET Unit = NULL WHERE IdUnit = 22");
    const auto form = Open(0);
    EXPECT_EQ(Heard(), Said{});
    EXPECT_GE(Find<QComboBox>(*form, "cboIdUnit").findData(22), 0);
    EXPECT_EQ(Find<QComboBox>(*form, "cboIdTenant").count(), 4);
}

TEST_F(LeaseForm, ALeaseWhoseUnitIsGoneCanBeGivenAnotherAndBePaid) {
    Charge("05/01/2024", 950, RentFlags::PeriodRent);
    Run("DELETE * FROM Unit WHERE IdUnit = 20");
    const auto form = Open();
    EXPECT_FALSE(IsEnabled(*form, "cboIdTenant"));
    EXPECT_EQ(Text(*form, "cboIdUnit"), "Unit no. 20 (deleted)");
    leases::SubmitPayment(leases::ProposePayment(kLease, TransactionClass::Rent));
    EXPECT_EQ(Ask("SELECT IdUnit - IdBuilding FROM Transactions WHERE Amount = 950"), "20");
    Choose(*form, "cboIdUnit", "12 Elm St A");
    EXPECT_EQ(Text(*form, "txtRent"), "950.00") << "its own rent stays";
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Lease("IdUnit"), "21");
    EXPECT_FALSE(IsEnabled(*form, "cboIdUnit"));
}

} // namespace

} // namespace tests
