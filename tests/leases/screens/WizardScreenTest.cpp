#include "leases/screens/LeaseScreens.h"
#include "leases/screens/frmLease.h"
#include "leases/screens/frmLeaseWizard.h"

namespace tests {

namespace {

using leases::screens::frmLease;
using leases::screens::frmLeaseWizard;

class LeaseWizardScreen : public LeaseScreenTest {
  protected:
    static QPointer<frmLeaseWizard> Open() {
        QPointer<frmLeaseWizard> wizard(new frmLeaseWizard);
        wizard->Setup();
        return wizard;
    }
};

TEST_F(LeaseWizardScreen, LeasesWhatThereIsToWhoThereIs) {
    const auto wizard = Open();
    EXPECT_EQ(Text(*wizard, "dpStartDate"), "06/01/2024");
    EXPECT_EQ(Text(*wizard, "txtTerm"), "12");
    ClickAction(*wizard, "NEXT");
    ClickAction(*wizard, "NEXT");
    EXPECT_EQ(Heard(), Said{kRoll + "A valid property has not been selected.\n"});
    Choose(*wizard, "cboProperty", "12 Elm St B");
    EXPECT_EQ(Text(*wizard, "txtRent"), "950.50");
    ClickAction(*wizard, "NEXT");
    ClickAction(*wizard, "NEXT");
    EXPECT_EQ(Heard(), Said{kRoll + "A valid tenant has not been selected.\n"});
    Choose(*wizard, "cboTenant", "Zu, Li");
    ClickAction(*wizard, "NEXT");
    Type(Find<QLineEdit>(*wizard, "dpStartDate"), "5/1/24");
    Type(Find<QLineEdit>(*wizard, "txtLateFee"), "35");
    Type(Find<QLineEdit>(*wizard, "txtLateDays"), "5");
    ClickAction(*wizard, "NEXT");
    EXPECT_EQ(Text(*wizard, "lblProperty"), "12 Elm St B");
    EXPECT_EQ(Text(*wizard, "lblFeeText"), "35.00, 5 day(s) after the due date");
    ClickAction(*wizard, "FINISH");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_FALSE(wizard && wizard->isVisible());
    EXPECT_EQ(Ask("SELECT Rent FROM Lease WHERE IdTenant = 32 AND IdUnit = 20"), "950.5");
    EXPECT_EQ(Ask("SELECT Status FROM Lease WHERE IdTenant = 32"), "Contracted");
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE Flags = 1"), "1");
    const auto lease = Opened<frmLease>();
    ASSERT_TRUE(lease) << "it opens, as was ticked";
    EXPECT_EQ(lease->windowTitle(), QStringLiteral("Lease: Zu, Li at 12 Elm St B"));
}

TEST_F(LeaseWizardScreen, MakesWhatIsNewAndStaysClosedIfToldSo) {
    const auto wizard = Open();
    ClickAction(*wizard, "NEXT");
    EXPECT_FALSE(Find<QLineEdit>(*wizard, "txtAddress").isEnabled());
    Find<QRadioButton>(*wizard, "optProperty1").click();
    EXPECT_FALSE(Find<QComboBox>(*wizard, "cboProperty").isEnabled());
    ClickAction(*wizard, "NEXT");
    EXPECT_EQ(Heard(), Said{kRoll + "A valid address has not been entered.\n"});
    Type(Find<QLineEdit>(*wizard, "txtAddress"), "9 O'Hare Ct");
    ClickAction(*wizard, "NEXT");
    Find<QRadioButton>(*wizard, "optTenant1").click();
    ClickAction(*wizard, "NEXT");
    EXPECT_EQ(Heard(), Said{kRoll + "A valid last name has not been entered.\n"});
    Type(Find<QLineEdit>(*wizard, "txtLastName"), "New");
    Type(Find<QLineEdit>(*wizard, "txtFirstName"), "Bo");
    ClickAction(*wizard, "STEP4");
    EXPECT_EQ(Text(*wizard, "lblTenant"), "New, Bo (new)");
    EXPECT_EQ(Text(*wizard, "lblFeeText"), "none");
    Find<QLineEdit>(*wizard, "dpStartDate").clear();
    Find<QCheckBox>(*wizard, "chkOpenLease").setChecked(false);
    ClickAction(*wizard, "FINISH");
    EXPECT_EQ(Heard(), Said{kRoll + "A valid start date has not been selected.\n"});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Building"), "2") << "nothing is made before the end";
    ClickAction(*wizard, "BACK");
    Type(Find<QLineEdit>(*wizard, "dpStartDate"), "07/01/2024");
    ClickAction(*wizard, "NEXT");
    ClickAction(*wizard, "FINISH");
    EXPECT_EQ(Ask("SELECT U.Status FROM Unit AS U, Building AS B WHERE U.IdBuilding = B.IdBuilding "
                  "AND B.Address = '9 O''Hare Ct'"),
              "Leased");
    EXPECT_EQ(Ask("SELECT Status FROM Tenant WHERE LastName = 'New'"), "Current");
    EXPECT_FALSE(Opened<frmLease>());
}

TEST_F(LeaseWizardScreen, LooksAndReadsRight) {
    const auto wizard = Open();
    Choose(*wizard, "cboProperty", "12 Elm St B");
    Choose(*wizard, "cboTenant", "Zu, Li");
    EXPECT_EQ(support::NameFaults(*wizard), Said{});
    for (int step = 0; step < 5; ++step) {
        wizard->GoTo(step);
        support::SettleEvents();
        EXPECT_EQ(support::LookFaults(*wizard, "frmLeaseWizard" + std::to_string(step)), Said{});
    }
}

} // namespace

} // namespace tests
