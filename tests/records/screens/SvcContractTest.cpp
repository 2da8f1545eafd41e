#include "records/screens/frmSvcContract.h"

#include "records/screens/Fields.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::frmSvcContract;

const std::vector<FieldEntry> kFields = {
    {"cboBuilding", "12 Elm St", "IdBuilding", "10"},
    {"cboAppliance", "Ace Stove 007", "IdAppliance", "70"},
    {"cboVendor", "Fix-It Co", "IdVendor", "63"},
    {"txtSvcType", "Bob's \"full\" service", "SvcType", ""},
    {"txtRep", "Ann O'Hare", "Rep", ""},
    {"txtPhone", "555-0100", "Phone", ""},
    {"txtAltPhone", "555-0101", "AltPhone", ""},
    {"dpDateStart", "02/29/2024", "DateStart", ""},
    {"txtSvcTerm", "2", "SvcTerm", ""},
    {"cboTermType", "Year(s)", "SvcTermType", ""},
    {"txtAmount", "1,045.50", "Amount", "1045.5"},
    {"txtBillTerm", "3", "BillTerm", ""},
    {"cboBillTermType", "Year(s)", "BillTermType", ""},
    {"cboBillType", "Auto Debit", "BillType", ""},
    {"dpDatePaidThru", "12/31/2024", "DatePaidThru", ""},
    {"txtm", "Renews by itself", "Notes", ""},
};

class SvcContractTest : public ScreenTest {
  protected:
    SvcContractTest() {
        Run("INSERT INTO Account (IdAccount, ShowAs, AccountType) "
            "VALUES (63, 'Fix-It Co', 'Vendor')");
        Run("UPDATE Appliance SET SN = '007'");
    }
    QPointer<frmSvcContract> Open(std::int32_t id = 0, std::int32_t idBuilding = 0,
                                  std::int32_t idAppliance = 0) {
        return Show<frmSvcContract>(id, idBuilding, idAppliance);
    }
    static QString Chosen(const frmSvcContract& form, const char* combo) {
        return Find<QComboBox>(form, combo).currentText();
    }
};

TEST_F(SvcContractTest, ANewOneTakesEveryFieldAndShowsItAgain) {
    auto form = Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Service Contract"));
    support::Enter(*form, kFields);
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(StoredFaults("SvcContract", "IdSvcContract = 1000", kFields), Said{});
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Service Contract: 12 Elm St"));
    ClickAction(*form, "CLOSE");
    form = Open(1000);
    EXPECT_EQ(ShownFaults(*form, kFields), Said{});
    EXPECT_FALSE(form->Dirty());
}

TEST_F(SvcContractTest, TellsAllThatIsMissing) {
    auto form = Open();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\n"
                            "A building must be selected.\nA Vendor must be selected.\n"});
    form->CloseUnasked();
    form = Open(0, 11);
    EXPECT_EQ(Chosen(*form, "cboBuilding"), QStringLiteral("Oak Rd"));
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\n"
                            "A Vendor must be selected.\n"});
    EXPECT_EQ(Ask("SELECT Count(*) FROM SvcContract"), "0");
}

TEST_F(SvcContractTest, TheBuildingDecidesWhichAppliancesAreOffered) {
    const auto form = Open(0, 10, 70);
    EXPECT_EQ(Chosen(*form, "cboAppliance"), QStringLiteral("Ace Stove 007"));
    support::Choose(*form, "cboBuilding", "Oak Rd");
    EXPECT_EQ(Chosen(*form, "cboAppliance"), QStringLiteral("[ No Appliance Selected ]"));
    EXPECT_EQ(Find<QComboBox>(*form, "cboAppliance").count(), 1);
    support::Choose(*form, "cboVendor", "Fix-It Co");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT IdAppliance FROM SvcContract"), "0");
}

TEST_F(SvcContractTest, UnsetWordsStayUnset) {
    Run("INSERT INTO SvcContract (IdSvcContract, IdBuilding, IdVendor, BillType) "
        "VALUES (500, 10, 63, 'Barter')");
    const auto form = Open(500);
    EXPECT_EQ(Chosen(*form, "cboTermType"), QString());
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT BillType & '|' & SvcTermType & '|' FROM SvcContract"), "Barter||");
}

TEST_F(SvcContractTest, FollowsOtherScreens) {
    const auto form = Open(0, 10, 70);
    support::Choose(*form, "cboVendor", "Fix-It Co");
    Run("UPDATE Account SET ShowAs = 'Fix-It Ltd' WHERE IdAccount = 63");
    Run("UPDATE Building SET Address = '12 Elm Street' WHERE IdBuilding = 10");
    Run("UPDATE Appliance SET SN = '008'");
    for (const core::RecordKind kind : {core::kAccount, core::kBuilding, core::kAppliance}) {
        core::NotifyAll(kind, core::kRecordsChanged, 0);
    }
    EXPECT_EQ(Chosen(*form, "cboVendor"), QStringLiteral("Fix-It Ltd"));
    EXPECT_EQ(Chosen(*form, "cboBuilding"), QStringLiteral("12 Elm Street"));
    EXPECT_EQ(Chosen(*form, "cboAppliance"), QStringLiteral("Ace Stove 008"));
}

} // namespace
} // namespace support
