#include "records/ContactRows.h"

#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "removal/DeleteRecord.h"

namespace records {

std::vector<core::Choice> ListContacts(const RelatedOwner& owner) {
    platform::Recordset rows = core::Read(
        "SELECT IdContact, Description FROM Contact WHERE (IdRelated = ?) AND (dbType = ?) "
        "ORDER BY Description",
        {owner.id, owner.kind});
    std::vector<core::Choice> contacts;
    for (; !rows.Eof(); rows.MoveNext()) {
        contacts.push_back({TextOf(rows["Description"]), rows["IdContact"].AsLong()});
    }
    return contacts;
}

core::RowToWrite OpenContact(std::int32_t idContact, const RelatedOwner& owner) {
    core::RowToWrite contact("Contact", "IdContact", idContact);
    if (contact.isNew) {
        contact["dbType"].Set(owner.kind);
        contact["IdRelated"].Set(owner.id);
        contact["Description"].Set(platform::Value("New Contact"));
        contact["IconFlag"].Set(std::int16_t{0});
    }
    return contact;
}

std::int32_t AddContact(const RelatedOwner& owner) {
    core::RowToWrite contact = OpenContact(0, owner);
    contact.row.Update();
    return contact.id;
}

bool DeleteContact(std::int32_t idContact) {
    if (!removal::AgreedToDelete(
            "Confirm", "Delete selected Contact entry?",
            core::ReadValue("SELECT Description FROM Contact WHERE IdContact = ?", {idContact}))) {
        return false;
    }
    core::Execute("DELETE * FROM Contact WHERE IdContact = ?", {idContact});
    return true;
}

} // namespace records
