#include "records/ContactRows.h"

#include "core/RecordKinds.h"
#include "core/RecordsFixture.h"
#include "support/ScriptedDialogs.h"

namespace {

using records::RelatedOwner;

class ContactRows : public tests::CoreRecords {
  protected:
    static std::string Listed(const RelatedOwner& owner) {
        std::string text;
        for (const core::Choice& contact : records::ListContacts(owner))
            text += std::to_string(contact.id) + " " + contact.text + ";";
        return text;
    }

    const RelatedOwner smith_{core::kTenant, 30};
};

TEST_F(ContactRows, ANewOneIsWrittenAtOnceForItsRecord) {
    EXPECT_EQ(records::AddContact(smith_), 1000);
    EXPECT_EQ(Ask("SELECT dbType & ' ' & IdRelated & ' ' & Description & ' ' & IconFlag "
                  "FROM Contact WHERE IdContact = 1000"),
              "5 30 New Contact 0");
}

TEST_F(ContactRows, AreListedByDescriptionForTheirKindOfRecordAlone) {
    for (const char* const values :
         {"(1, 5, 30, 'plumber')", "(2, 5, 30, 'Mother''s')", "(3, 1, 30, 'of an account')",
          "(4, 5, 31, 'of another')", "(5, 5, 30, NULL)"}) {
        Run(std::string("INSERT INTO Contact (IdContact, dbType, IdRelated, Description) VALUES ") +
            values);
    }
    EXPECT_EQ(Listed(smith_), "5 ;2 Mother's;1 plumber;");
    EXPECT_EQ(Listed({core::kTenant, 0}), "");
}

TEST_F(ContactRows, OneThatHasGoneComesBackUnderItsNumber) {
    core::RowToWrite contact = records::OpenContact(77, smith_);
    EXPECT_TRUE(contact.isNew);
    contact["Phone"].Set(platform::Value("555"));
    contact.row.Update();
    EXPECT_EQ(Ask("SELECT IdRelated & ' ' & Phone FROM Contact WHERE IdContact = 77"), "30 555");
}

TEST_F(ContactRows, DeletingAsksFirst) {
    const std::int32_t id = records::AddContact(smith_);
    const std::int32_t other = records::AddContact(smith_);
    for (const bool answer : {false, true}) {
        const support::ScriptedDialogs person({answer});
        EXPECT_EQ(records::DeleteContact(id), answer);
        ASSERT_EQ(person.Heard().size(), 1U);
        EXPECT_EQ(person.Heard()[0].title, "Confirm");
        EXPECT_EQ(person.Heard()[0].text, "Delete selected Contact entry?\n\nNew Contact");
        EXPECT_TRUE(person.Heard()[0].question);
        EXPECT_EQ(Listed(smith_), (answer ? "" : std::to_string(id) + " New Contact;") +
                                      std::to_string(other) + " New Contact;");
    }
}

} // namespace
