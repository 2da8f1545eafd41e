#include "core/EditRecord.h"
#include "core/Lookups.h"
#include "core/binding/MaskedEdit.h"
#include "records/screens/frmTenant.h"
#include "removal/DeleteRecord.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::binding::MaskedEdit;
using records::screens::frmTenant;

class TenantTest : public ScreenTest {
  protected:
    static QPointer<frmTenant> Open(std::int32_t id = 0) { return Show<frmTenant>(id); }
    static QLineEdit& Box(const frmTenant& form, const char* name) {
        for (const char* const page : {"tabTenant", "tabIdentity"}) {
            auto* const box = Find<QWidget>(form, page).findChild<QLineEdit*>(QLatin1String(name));
            if (box) return *box;
        }
        throw std::runtime_error(name);
    }
    static std::string Title(const frmTenant& form) {
        return FromScreen(form.windowTitle()) + "|" +
               FromScreen(Find<QLabel>(form, "lblTitle").text());
    }
    static core::grid::Grid& Incidents(const frmTenant& form) {
        return *Find<QWidget>(form, "ucIncidents").findChild<core::grid::Grid*>();
    }
};

TEST_F(TenantTest, ANewOneIsPendingAndNeedsALastName) {
    const auto form = Open();
    EXPECT_EQ(Title(*form), "Adding New Tenant|New Tenant (Press Apply to Save)");
    auto& status = Find<QComboBox>(*form, "cboStatus");
    EXPECT_EQ(status.count(), 5);
    EXPECT_FALSE(Find<QWidget>(*form, "ucContacts").isEnabled());
    Type(Box(*form, "txtLastName"), "  ");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\n"
                            "A last name must be entered.\n"});
    Type(Box(*form, "txtLastName"), "O'Neil");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Title(*form), "Tenant: O'Neil|Editing Tenant: O'Neil");
    EXPECT_EQ(Ask("SELECT Status & Selected & Kids & DOB FROM Tenant WHERE IdTenant = 1000"),
              "PendingFalse0");
    EXPECT_TRUE(Find<QWidget>(*form, "ucContacts").isEnabled());
}

TEST_F(TenantTest, EveryFieldIsWrittenAndReadBack) {
    const std::vector<std::pair<const char*, std::string>> entries = {
        {"txtLastName", "O'Neil \"Shaq\""},
        {"txtFirstName", "\xF0\x9F\x98\x80"},
        {"txtInitial", "B"},
        {"txtSpouseName", std::string(256, 's')},
        {"txtPhone", "1"},
        {"txtAltPhone", "2"},
        {"txtEmail", "a@b.example"},
        {"txtWeb", "b.example"},
        {"txtKids", "12"},
        {"txtFICO", "850"},
        {"dpDOB", "02/29/1992"},
        {"txtSSN", "012-34-5678"},
        {"txtDLN", "D 1"},
        {"txtDLState", "OR"},
        {"txtBankName", "River"},
        {"txtBankRouting", "0111"},
        {"txtBankAccount", "0222"},
        {"txtCCType", "Visa"},
        {"txtCCNum", "4111 1111"},
        {"txtCCExp", "01/30"},
        {"txtCCCVN", "007"}};
    auto form = Open();
    for (const auto& [name, text] : entries)
        Box(*form, name).setText(platform::qt::ToScreen(text));
    Choose(*form, "cboStatus", "Rejected");
    Type(Find<QComboBox>(*form, "cboMaritalStatus"), "Widowed");
    for (const char* const flag :
         {"chkHide", "chkSelected", "chkEviction", "chkLawsuitPending", "chkBankrupcy"}) {
        Find<QCheckBox>(*form, flag).click();
    }
    Find<QPlainTextEdit>(Find<QWidget>(*form, "tabTenant"), "txtNotes")
        .setPlainText(QStringLiteral("n"));
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{});
    form = Open(1000);
    for (const auto& [name, text] : entries)
        EXPECT_EQ(FromScreen(Box(*form, name).text()), text) << name;
    EXPECT_EQ(Text(*form, "cboStatus"), "Rejected");
    EXPECT_EQ(Text(*form, "cboMaritalStatus"), "Widowed");
    EXPECT_EQ(Ask("SELECT Hide & Selected & Eviction & LawsuitPending & Bankrupcy & Notes "
                  "FROM Tenant WHERE IdTenant = 1000"),
              "TrueTrueTrueTrueTruen");
    EXPECT_FALSE(form->Dirty());
    EXPECT_GE(Find<QComboBox>(*Open(), "cboMaritalStatus").findText(QStringLiteral("Widowed")), 0)
        << "offered again";
}

TEST_F(TenantTest, IsEnteredByKeyboardAlone) {
    const auto form = Open();
    QApplication::setActiveWindow(form);
    for (const char* const text : {"Lee", "Ann", "B", "Appr", "Bo", "Married", "2", "02/29/1992",
                                   "555", "556", "ann@b.example", "b.example", "Pays early."}) {
        TypeAndTab(*form, text);
    }
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Ask("SELECT LastName & FirstName & Initial & Status & SpouseName & MaritalStatus & "
                  "Kids & DOB & Phone & AltPhone & Email & Web & Notes FROM Tenant "
                  "WHERE IdTenant = 1000"),
              "LeeAnnBApprovedBoMarried202/29/1992555556ann@b.exampleb.examplePays early.");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(TenantTest, AStatusOfAnotherMakeIsKept) {
    Run("UPDATE Tenant SET Status = 'On leave' WHERE IdTenant = 30");
    auto form = Open(30);
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Status FROM Tenant WHERE IdTenant = 30"), "On leave");
    form = Open(31);
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Status FROM Tenant WHERE IdTenant = 31"), "NULL") << "not Pending";
}

TEST_F(TenantTest, AStatusThatALeaseSetMeanwhileIsNotSavedAway) {
    const auto lease = [](const char* status) { core::SetTenantStatus(30, status); };
    auto form = Open(30);
    lease("Current");
    EXPECT_EQ(Text(*form, "cboStatus"), "Current");
    EXPECT_FALSE(form->Dirty());
    lease("Archived");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Status FROM Tenant WHERE IdTenant = 30"), "Archived");

    form = Open(30);
    Choose(*form, "cboStatus", "Rejected");
    lease("Current");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Status FROM Tenant WHERE IdTenant = 30"), "Rejected")
        << "what was chosen here stays";
}

TEST_F(TenantTest, NumbersThatAreNobodysBusinessShowOnlyWithTheFocus) {
    const auto form = Open(30);
    Find<QTabWidget>(*form, "tabs").setCurrentIndex(1);
    QApplication::setActiveWindow(form);
    for (const char* const name :
         {"txtSSN", "txtBankRouting", "txtBankAccount", "txtCCNum", "txtCCCVN"}) {
        auto& box = Find<MaskedEdit>(*form, name);
        Box(*form, "txtDLN").setFocus();
        box.setText(QStringLiteral("4711"));
        EXPECT_EQ(box.displayText().count(QLatin1Char('4')), 0) << name;
        box.setFocus();
        EXPECT_EQ(box.displayText(), QStringLiteral("4711")) << name;
    }
}

TEST_F(TenantTest, ListsItsIncidentsAndOpensThem) {
    std::vector<core::EditRequest> opened;
    core::RegisterOpener(core::kIncident,
                         [&](const core::EditRequest& request) { opened.push_back(request); });
    Run("INSERT INTO Incident (IdIncident, IdTenant, EntryDate, Severity, Description) "
        "VALUES (500, 30, '02/29/2024', '2 - Warning', 'Loud')");
    const auto form = Open(30);
    EXPECT_EQ(support::GridText(Incidents(*form)),
              "Entry Date|Severity|Description\n"
              "02/29/2024|2 - Warning|Loud\n");
    Run("UPDATE Incident SET Description = 'Quiet'");
    core::NotifyAll(core::kIncident, core::kRecordsChanged, 0);
    EXPECT_EQ(support::GridText(Incidents(*form)),
              "Entry Date|Severity|Description\n"
              "02/29/2024|2 - Warning|Quiet\n");
    Q_EMIT Incidents(*form).RowChosen(500);
    ASSERT_EQ(opened.size(), 1U);
    EXPECT_EQ(opened[0], (core::EditRequest{core::kIncident, 500, 30, 0, 0}));
    core::RegisterOpener(core::kIncident, {});
}

TEST_F(TenantTest, ShowsPaymentsAndComesBackUnderItsNumberWhenRemovedMeanwhile) {
    Run("INSERT INTO Transactions (IdTransaction, IdTenant, DateEffective, Amount, Description) "
        "VALUES (600, 30, '05/01/2024', 950, 'May')");
    const auto form = Open(30);
    auto* const ledger = Find<QWidget>(*form, "ucLedger").findChild<core::grid::Grid*>();
    EXPECT_EQ(ledger->Model().rowCount(), 1);
    Run("UPDATE Transactions SET IdTenant = 31");
    core::NotifyAll(core::kTransaction, core::kRecordsChanged, 0);
    EXPECT_EQ(ledger->Model().rowCount(), 0);

    Answer({true});
    removal::DeleteRecord(core::kTenant, 30);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Tenant WHERE IdTenant = 30"), "0");
    Answer({true}); // to whether it is to be saved again
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT LastName FROM Tenant WHERE IdTenant = 30"), "Smith");
}

} // namespace
} // namespace support
