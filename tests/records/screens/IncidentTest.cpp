#include "core/binding/DateEdit.h"
#include "records/screens/frmIncident.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::frmIncident;

class IncidentTest : public ScreenTest {
  protected:
    static QPointer<frmIncident> Open(std::int32_t id, std::int32_t tenant) {
        return Show<frmIncident>(id, tenant);
    }
    static std::string Row() {
        return Ask(
            "SELECT IdIncident & '|' & IdTenant & '|' & EntryDate & '|' & Severity & '|' & "
            "Description & '|' & Notes FROM Incident");
    }
};

TEST_F(IncidentTest, ANewOneIsOfItsTenantAndOfToday) {
    const auto form = Open(0, 31);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Incident"));
    EXPECT_EQ(Text(*form, "cboTenant"), "O'Brien, Ann");
    EXPECT_EQ(Text(*form, "dpEntryDate"), "05/17/2024");
    EXPECT_EQ(Find<QComboBox>(*form, "cboSeverity").count(), 4);
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\n"
                            "A description must be entered.\n"});
    Type(Find<QLineEdit>(*form, "txtDescription"), "Said \"no\" to O'Neil");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Row(), "1000|31|05/17/2024|0 - Informational|Said \"no\" to O'Neil|");
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Incident: Said \"no\" to O'Neil"));
    EXPECT_EQ(form->OpenRecordId(), 1000);
}

TEST_F(IncidentTest, IsChangedAndReopened) {
    Run("INSERT INTO Incident (IdIncident, IdTenant, EntryDate, Severity, Description) "
        "VALUES (500, 30, '02/29/2024', '2 - Warning', 'Loud')");
    auto form = Open(500, 0);
    EXPECT_EQ(Text(*form, "cboTenant"), "Smith, John Q");
    EXPECT_EQ(Text(*form, "cboSeverity"), "2 - Warning");
    Choose(*form, "cboSeverity", "3 - Critical");
    Choose(*form, "cboTenant", "Zu, Li");
    Type(Find<QLineEdit>(*form, "dpEntryDate"), "02/30/2024");
    ClickAction(*form, "CLOSE");
    ASSERT_EQ(Heard().size(), 1U) << "no such day";
    Type(Find<QLineEdit>(*form, "dpEntryDate"), "3/1/2024");
    Type(Find<QPlainTextEdit>(*form, "txtNotes"), "Again");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Row(), "500|32|03/01/2024|3 - Critical|Loud|Again");
    form = Open(500, 0);
    EXPECT_EQ(Text(*form, "dpEntryDate"), "03/01/2024");
    EXPECT_FALSE(form->Dirty());
}

TEST_F(IncidentTest, OneOfNobodyStaysOfNobody) {
    const auto form = Open(0, 0);
    Type(Find<QLineEdit>(*form, "txtDescription"), "x");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT IdTenant FROM Incident"), "0");
}

TEST_F(IncidentTest, HearsOfTenants) {
    const auto form = Open(0, 31);
    Run("UPDATE Tenant SET LastName = 'Ota' WHERE IdTenant = 31");
    core::NotifyAll(core::kTenant, core::kRecordsChanged, 0);
    EXPECT_EQ(Text(*form, "cboTenant"), "Ota, Ann");
    EXPECT_FALSE(form->Dirty());
}

} // namespace
} // namespace support
