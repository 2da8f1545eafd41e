#include "core/Configuration.h"
#include "core/binding/MaskedEdit.h"
#include "records/screens/frmAccount.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::binding::MaskedEdit;
using records::screens::frmAccount;

class AccountTest : public ScreenTest {
  protected:
    static QPointer<frmAccount> Open(std::int32_t id = 0, std::string_view type = {}) {
        return Show<frmAccount>(id, type);
    }
    static QLineEdit& Box(const frmAccount& form, const char* name) {
        return Find<QLineEdit>(Page(form), name);
    }
    /// A contact has boxes of the same names.
    static QWidget& Page(const frmAccount& form) { return Find<QWidget>(form, "tabAccount"); }
    static QComboBox& TypeBox(const frmAccount& form) {
        return Find<QComboBox>(form, "cboAccountType");
    }
    static std::string Title(const frmAccount& form) {
        return FromScreen(form.windowTitle()) + "|" +
               FromScreen(Find<QLabel>(form, "lblTitle").text());
    }
};

TEST_F(AccountTest, ANewOneStartsWithItsTypeAndTheUsualState) {
    core::Config().DefaultState = "OR";
    const auto form = Open(0, "Vendor");
    EXPECT_EQ(Title(*form), "Adding New Account|New Account (Press Apply to Save)");
    EXPECT_EQ(TypeBox(*form).currentText(), QStringLiteral("Vendor"));
    EXPECT_EQ(Box(*form, "txtState").text(), QStringLiteral("OR"));
    EXPECT_FALSE(form->Dirty());
    EXPECT_EQ(TypeBox(*Open()).currentText(), QString()) << "of no type in particular";
}

TEST_F(AccountTest, EveryFieldIsWrittenAndReadBack) {
    const std::vector<std::pair<const char*, std::string>> entries = {
        {"txtCompany", "O'Brien & \"Sons\""},
        {"txtLastName", "O'Brien"},
        {"txtFirstName", "Zo\xC3\xAB"},
        {"txtInitial", "Q"},
        {"txtAddress1", "1 \xF0\x9F\x8F\xA0 St"},
        {"txtAddress2", "Suite #5"},
        {"txtCity", "Salem"},
        {"txtState", "OR"},
        {"txtZip", "letters"},
        {"txtPhone", "503-555-1"},
        {"txtFAX", "503-555-2"},
        {"txtMobile", "503-555-3"},
        {"txtEmail", "zoe@elm.example"},
        {"txtWeb", "www.elm.example"},
        {"txtAccountNumber", "007"},
        {"txtTaxIDFed", "12-3456789"},
        {"txtTaxIDState", std::string(300, 'S')}};
    auto form = Open();
    for (const auto& [name, text] : entries)
        Box(*form, name).setText(platform::qt::ToScreen(text));
    Type(TypeBox(*form), "Jo's");
    Type(Box(*form, "txtBalance"), "1234.5");
    Find<QCheckBox>(*form, "chkHide").click();
    Find<QCheckBox>(*form, "chkSelected").click();
    Find<QCheckBox>(*form, "chkShowAsIndividual").click();
    Find<QPlainTextEdit>(Page(*form), "txtNotes").setPlainText(QStringLiteral("Two\nlines"));
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{});
    form = Open(1000);
    EXPECT_EQ(Title(*form),
              "Account: O'Brien, Zo\xC3\xAB Q|Editing Account: O'Brien, Zo\xC3\xAB Q");
    for (const auto& [name, text] : entries)
        EXPECT_EQ(FromScreen(Box(*form, name).text()), text) << name;
    EXPECT_EQ(TypeBox(*form).currentText(), QStringLiteral("Jo's"));
    EXPECT_EQ(Box(*form, "txtBalance").text(), QStringLiteral("1,234.50"));
    EXPECT_EQ(Find<QPlainTextEdit>(Page(*form), "txtNotes").toPlainText(),
              QStringLiteral("Two\nlines"));
    EXPECT_EQ(Text(*form, "lblShowAs"), "O'Brien, Zo\u00EB Q");
    EXPECT_EQ(Ask("SELECT Hide & Selected & ShowAsIndividual FROM Account WHERE IdAccount = 1000"),
              "TrueTrueTrue");
    EXPECT_EQ(Ask("SELECT AccountNumber FROM Account WHERE IdAccount = 1000"), "007");
    EXPECT_FALSE(form->Dirty());
}

TEST_F(AccountTest, IsEnteredByKeyboardAlone) {
    const auto form = Open();
    QApplication::setActiveWindow(form);
    for (const char* const text : {"Building Owner", "", "Lee", "Ann", "B", " ", "1 Elm St", "",
                                   "97301", "Salem", "OR", "555"}) {
        TypeAndTab(*form, text);
    }
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Ask("SELECT AccountType & '|' & ShowAs & '|' & ShowAsIndividual & '|' & Address1 & "
                  "'|' & Zip & City & State & '|' & Phone FROM Account WHERE IdAccount = 1000"),
              "Building Owner|Lee, Ann B|True|1 Elm St|97301SalemOR|555");
}

TEST_F(AccountTest, NeedsACompanyOrALastName) {
    const auto form = Open();
    Type(Box(*form, "txtFirstName"), "Ann");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kRoll + "A company or last name must be entered.\n"});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Account WHERE IdAccount = 1000"), "0");
    Type(Box(*form, "txtLastName"), "Lee");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Title(*form), "Account: Lee, Ann|Editing Account: Lee, Ann");
    EXPECT_EQ(form->OpenRecordId(), 1000);
    Type(Box(*form, "txtCompany"), "Lee & Co");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Ask("SELECT ShowAs FROM Account WHERE IdAccount = 1000"), "Lee & Co")
        << "made again at each save";
}

TEST_F(AccountTest, NumbersThatAreNobodysBusinessShowOnlyWithTheFocus) {
    Run("UPDATE Account SET AccountNumber = '4711', TaxIDFed = '123-45-6789'");
    const auto form = Open(60);
    const auto& number = Find<MaskedEdit>(Page(*form), "txtAccountNumber");
    const auto& tax = Find<MaskedEdit>(Page(*form), "txtTaxIDFed");
    const auto isMasked = [](const QLineEdit& box) {
        return box.displayText() != box.text() && !box.text().isEmpty();
    };
    QApplication::setActiveWindow(form);
    EXPECT_TRUE(isMasked(number)) << "a bank account's";
    EXPECT_TRUE(isMasked(tax));
    Box(*form, "txtAccountNumber").setFocus();
    EXPECT_FALSE(isMasked(number));
    EXPECT_TRUE(isMasked(tax));
    Box(*form, "txtTaxIDFed").setFocus();
    EXPECT_TRUE(isMasked(number));
    EXPECT_FALSE(isMasked(tax));
    Type(TypeBox(*form), "Utility");
    EXPECT_FALSE(isMasked(number)) << "a customer number is no secret";
}

TEST_F(AccountTest, TheTypesFollowTheAccountsAndWhatIsTypedStays) {
    Run("UPDATE Account SET Company = 'River Bank' WHERE IdAccount = 60");
    const auto form = Open(60);
    EXPECT_EQ(TypeBox(*form).findText(QStringLiteral("Gardener")), -1);
    Type(TypeBox(*form), "My own");
    Run("UPDATE Account SET AccountType = 'Gardener' WHERE IdAccount = 61");
    core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    EXPECT_GE(TypeBox(*form).findText(QStringLiteral("Gardener")), 0);
    EXPECT_EQ(TypeBox(*form).currentText(), QStringLiteral("My own"));
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Ask("SELECT AccountType FROM Account WHERE IdAccount = 60"), "My own");
}

TEST_F(AccountTest, ContactsOpenWithTheFirstSaveAndAreSavedWithTheAccount) {
    const auto form = Open();
    auto& contacts = Find<QWidget>(*form, "ucContacts");
    EXPECT_FALSE(contacts.isEnabled());
    Type(Box(*form, "txtCompany"), "Ace");
    ClickAction(*form, "APPLY");
    ASSERT_TRUE(contacts.isEnabled());
    support::ClickOn(Find<QPushButton>(contacts, "cmdAdd"));
    EXPECT_FALSE(form->Dirty());
    Type(Find<QLineEdit>(contacts, "txtMobile"), "555");
    EXPECT_TRUE(form->Dirty());
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Ask("SELECT dbType & ' ' & IdRelated & ' ' & Mobile FROM Contact"), "1 1000 555");
    EXPECT_FALSE(form->Dirty());
    EXPECT_EQ(Find<QListWidget>(contacts, "lvwContacts").currentRow(), 0);
}

TEST_F(AccountTest, IsSavedWithItsContactOrNotAtAll) {
    Run("INSERT INTO Contact (IdContact, dbType, IdRelated, Description, Phone) "
        "VALUES (500, 1, 60, 'Boss', '1')");
    const auto form = Open(60);
    Type(Box(*form, "txtCompany"), "Ace");
    auto& mobile = Find<QLineEdit>(Find<QWidget>(*form, "ucContacts"), "txtMobile");
    Type(mobile, "555");
    platform::Connection& books = core::App().Connection;
    books.RunScript(
        "CREATE TRIGGER full BEFORE UPDATE ON Contact "
        "BEGIN SELECT RAISE(ABORT, 'disk full'); END;");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_NE(Ask("SELECT Company FROM Account WHERE IdAccount = 60"), "Ace");
    EXPECT_TRUE(form->Dirty());
    books.RunScript("DROP TRIGGER full;");
    // Another program has deleted the contact: it comes back whole.
    Run("DELETE FROM Contact");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Company FROM Account WHERE IdAccount = 60"), "Ace");
    EXPECT_EQ(Ask("SELECT Description & ' ' & Phone & ' ' & Mobile FROM Contact"), "Boss 1 555");
}

} // namespace
} // namespace support
