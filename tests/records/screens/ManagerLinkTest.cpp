#include "records/screens/Fields.h"
#include "records/screens/frmManagerLink.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::frmManagerLink;

class ManagerLinkTest : public ScreenTest {
  protected:
    ManagerLinkTest() {
        Run("INSERT INTO Account (IdAccount, ShowAs, AccountType) "
            "VALUES (64, 'Mo''s Management', 'Building Manager')");
    }
    static QPointer<frmManagerLink> Open(std::int32_t id = 0, std::int32_t building = 11) {
        return Show<frmManagerLink>(id, building);
    }
};

const std::vector<FieldEntry> kFields = {{"cboBuilding", "12 Elm St", "IdBuilding", "10"},
                                         {"cboManager", "Mo's Management", "IdAccount", "64"},
                                         {"dpDateStart", "02/29/2024", "DateStart", ""},
                                         {"txtTerm", "2", "Term", ""},
                                         {"cboTermType", "Year(s)", "TermType", ""},
                                         {"chkOnSite", "x", "OnSite", "True"},
                                         {"cboFeeType", "Percentage", "FeeType", ""},
                                         {"txtFirstFee", "50", "FirstFee", ""},
                                         {"txtMonthlyFee", "7.5", "MonthlyFee", ""},
                                         {"txtRepairLimit", "500.00", "RepairLimit", "500"}};

TEST_F(ManagerLinkTest, IsEnteredAndReopened) {
    auto form = Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Manager"));
    EXPECT_EQ(Text(*form, "cboBuilding"), "Oak Rd");
    EXPECT_EQ(Find<QComboBox>(*form, "cboManager").count(), 1) << "only managers are offered";
    EXPECT_EQ(Text(*form, "cboFeeType"), "Fixed");
    EXPECT_EQ(Text(*form, "cboTermType"), "Month(s)");
    support::Enter(*form, kFields);
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Manager: Mo's Management"));
    EXPECT_EQ(StoredFaults("ManagerLink", "IdManagerLink = 1000", kFields), Said{});
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{}) << "it is no duplicate of itself";
    form = Open(1000);
    EXPECT_EQ(ShownFaults(*form, kFields), Said{});
}

TEST_F(ManagerLinkTest, TheSamePairIsRefused) {
    Run("INSERT INTO ManagerLink (IdManagerLink, IdBuilding, IdAccount) VALUES (500, 11, 64)");
    const auto form = Open();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(),
              Said{kRoll + "A duplicate record for this building and manager already exist.\n"});
    support::Choose(*form, "cboBuilding", "12 Elm St");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Ask("SELECT Count(*) FROM ManagerLink"), "2");
}

TEST_F(ManagerLinkTest, AllThatIsWrongIsToldAtOnce) {
    Run("DELETE * FROM Building");
    Run("DELETE * FROM Account");
    const auto form = Open();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kRoll + "A Building must be selected.\n"
                                    "A Manager must be selected.\n"});
    EXPECT_EQ(Ask("SELECT Count(*) FROM ManagerLink"), "0");
}

TEST_F(ManagerLinkTest, HearsOfNewManagers) {
    const auto form = Open();
    Run("UPDATE Account SET AccountType = 'Building Manager' WHERE IdAccount = 61");
    core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    EXPECT_EQ(Find<QComboBox>(*form, "cboManager").count(), 2);
    EXPECT_EQ(Text(*form, "cboManager"), "Mo's Management");
    EXPECT_FALSE(form->Dirty());
}

TEST_F(ManagerLinkTest, AnAccountOfAnotherTypeStaysTheManager) {
    Run("INSERT INTO ManagerLink (IdManagerLink, IdBuilding, IdAccount) VALUES (500, 11, 61)");
    const auto form = Open(500);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Manager: Al Owner"));
    core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT IdAccount FROM ManagerLink"), "61");
}

} // namespace
} // namespace support
