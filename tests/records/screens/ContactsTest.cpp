#include <QSignalSpy>

#include "records/screens/Contacts.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::Contacts;

class ContactsTest : public ScreenTest {
  protected:
    ContactsTest() {
        AddRow(500, 30, "Mother");
        AddRow(501, 30, "Boss");
        AddRow(502, 31, "Somebody else's");
        panel_.resize(640, 460);
        panel_.show();
        panel_.Load(core::kTenant, 30);
    }
    static void AddRow(int id, int tenant, const std::string& description) {
        core::RowToWrite contact = records::OpenContact(id, {core::kTenant, tenant});
        contact["Description"].Set(platform::Value(description));
        contact.row.Update();
    }
    QLineEdit& Box(const char* name) { return Find<QLineEdit>(panel_, name); }
    QListWidget& List() { return Find<QListWidget>(panel_, "lvwContacts"); }
    void Click(const char* button) { support::ClickOn(Find<QPushButton>(panel_, button)); }
    std::string Listed() {
        QStringList rows;
        for (int i = 0; i < List().count(); ++i)
            rows << (i == List().currentRow() ? QStringLiteral("*") : QString()) +
                        List().item(i)->text();
        return platform::qt::FromScreen(rows.join(QLatin1Char('|')));
    }

    Contacts panel_;
};

TEST_F(ContactsTest, WaitsForItsRecordToBeSaved) {
    panel_.Load(core::kTenant, 0);
    EXPECT_FALSE(panel_.isEnabled());
    EXPECT_EQ(Listed(), "");
    panel_.Load(core::kTenant, 30);
    EXPECT_TRUE(panel_.isEnabled());
    EXPECT_EQ(Listed(), "*Boss|Mother");
    EXPECT_EQ(Box("txtDescription").text(), QStringLiteral("Boss"));
}

TEST_F(ContactsTest, AddingWritesARowAtOnceAndSelectsIt) {
    Click("cmdAdd");
    EXPECT_EQ(Listed(), "Boss|Mother|*New Contact");
    EXPECT_EQ(Ask("SELECT IdContact FROM Contact WHERE Description = 'New Contact'"), "1000");
    support::TypeOn(Box("txtDescription"), "Plumber"); // what is there is selected
    Type(Box("txtPhone"), "555-1234");
    Click("cmdAdd");
    EXPECT_EQ(Ask("SELECT Phone FROM Contact WHERE Description = 'Plumber'"), "555-1234");
    EXPECT_EQ(Listed(), "Boss|Mother|*New Contact|Plumber");
}

TEST_F(ContactsTest, MovingToAnotherSavesWhatWasChanged) {
    const QSignalSpy changed(&panel_, &Contacts::Changed);
    const std::string hard = "O'Brien & \"Sons\" \xF0\x9F\x94\xA7";
    Box("txtCompany").setText(platform::qt::ToScreen(hard));
    Find<QPlainTextEdit>(panel_, "txtNotes").setPlainText(QString(300, QLatin1Char('n')));
    EXPECT_GE(changed.count(), 1);
    List().setCurrentRow(1);
    EXPECT_EQ(Ask("SELECT Company FROM Contact WHERE IdContact = 501"), hard);
    EXPECT_EQ(Ask("SELECT Len(Notes) FROM Contact WHERE IdContact = 501"), "300");
    EXPECT_EQ(Box("txtCompany").text(), QString()) << "the other one has no company";
    List().setCurrentRow(0);
    EXPECT_EQ(Box("txtCompany").text(), platform::qt::ToScreen(hard));
    EXPECT_EQ(Ask("SELECT Company FROM Contact WHERE IdContact = 500"), "NULL")
        << "what wasn't changed isn't written";
}

TEST_F(ContactsTest, SavesWithItsRecordAndKeepsItsPlace) {
    List().setCurrentRow(1);
    Type(Box("txtDescription"), "Aunt");
    panel_.Write();
    panel_.NoteWritten();
    EXPECT_EQ(Listed(), "Boss|*Aunt");
    panel_.Load(core::kTenant, 30);
    EXPECT_EQ(Listed(), "*Aunt|Boss") << "sorted again";
}

TEST_F(ContactsTest, DeletingAsksAndMovesOn) {
    Answer({false, true, true});
    Click("cmdDelete");
    EXPECT_EQ(Listed(), "*Boss|Mother");
    Type(Box("txtPhone"), "555");
    Click("cmdDelete");
    EXPECT_EQ(Listed(), "*Mother");
    Click("cmdDelete");
    const std::string question = "Confirm: Delete selected Contact entry?\n\n";
    EXPECT_EQ(Heard(), (Said{question + "Boss", question + "Boss", question + "Mother"}));
    EXPECT_EQ(Listed(), "");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Contact"), "1");
    EXPECT_FALSE(Find<QPushButton>(panel_, "cmdDelete").isEnabled());
    EXPECT_FALSE(Find<QWidget>(panel_, "fields").isEnabled());
    EXPECT_EQ(Box("txtDescription").text(), QString());
}

TEST_F(ContactsTest, TheListTakesInsertAndDelete) {
    QApplication::setActiveWindow(&panel_);
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Insert);
    EXPECT_EQ(Listed(), "Boss|Mother|*New Contact");
    List().setFocus();
    Answer({true});
    QTest::keyClick(&List(), Qt::Key_Delete);
    EXPECT_EQ(Listed(), "*Boss|Mother");
}

TEST_F(ContactsTest, WhatCantBeWrittenStaysOnTheScreen) {
    Type(Box("txtPhone"), "555");
    core::App().Connection.RunScript("ALTER TABLE Contact RENAME TO Gone");
    List().setCurrentRow(1);
    EXPECT_EQ(Heard().size(), 1U);
    core::App().Connection.RunScript("ALTER TABLE Gone RENAME TO Contact");
    SettleEvents();
    EXPECT_EQ(Listed(), "*Boss|Mother");
    EXPECT_EQ(Box("txtPhone").text(), QStringLiteral("555"));
    panel_.Write();
    panel_.NoteWritten();
    EXPECT_EQ(Ask("SELECT Phone FROM Contact WHERE IdContact = 501"), "555");
}

} // namespace
} // namespace support
